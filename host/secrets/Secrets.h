#ifndef KO_SECRETS_H
#define KO_SECRETS_H

#include "secrets/InstallationKey.h"
#include "store/StoreError.h"

#include <QStringList>

#include <functional>

namespace ko {

/// Which stored values are passwords, and how they pass into and out of the store.
///
/// A stored password is bound to its node and property, or to the setting; an empty one is stored as it is.
/// One that cannot be opened reads as empty and stays until another one is given. The keys are those of the
/// process: every program that uses the same database looks for them in the same places.
namespace Secrets {

/// Owner of the settings that belong to no node.
inline constexpr char Settings[] = "settings";
inline constexpr char GlobalProxyPassword[] = "proxy.password"; ///< of the settings

/// The properties of nodes that are passwords.
KO_HOST_EXPORT const QStringList& properties();
KO_HOST_EXPORT bool isSecret(const QString& property);

/// Where to look for the key instead of in the standard places; forgets the keys that were found.
KO_HOST_EXPORT void setPlaces(const InstallationKey::Places& places);

/// Gets the key if that was not done yet, which may take some seconds.
KO_HOST_EXPORT void prepare();

/// Whether what is sealed now can be opened after the next start.
bool isKeyKept();

/// The password that \a stored stands for. What is not sealed, and what belongs to no node yet (empty
/// \a owner), is the password itself.
KO_HOST_EXPORT QString open(const QString& owner, const QString& property, const QString& stored);

/// What to store for \a clear in the place of \a before: the same, if that stands for \a clear already, or
/// cannot be opened and nothing is given instead.
KO_HOST_EXPORT QString seal(const QString& owner, const QString& property, const QString& clear,
                            const QString& before = QString());

/// Called, from the thread in which it happens, with StoreError::SealedElsewhere when a password cannot be
/// opened, and with StoreError::KeyNotKept when one is sealed that cannot be opened after the next start;
/// with each once, until another listener comes.
void setListener(std::function<void(StoreError::Kind)> listener);

} // namespace Secrets

} // namespace ko

#endif
