#ifndef KO_SECRETS_H
#define KO_SECRETS_H

#include "HostExport.h"

#include <QStringList>

namespace ko {

/// Which stored values are passwords.
namespace Secrets {

/// Owner of the settings that belong to no node.
inline constexpr char Settings[] = "settings";
inline constexpr char GlobalProxyPassword[] = "proxy.password"; ///< of the settings

/// The properties of nodes that are passwords.
KO_HOST_EXPORT const QStringList& properties();
KO_HOST_EXPORT bool isSecret(const QString& property);

} // namespace Secrets

} // namespace ko

#endif
