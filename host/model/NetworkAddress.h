#ifndef KO_NETWORKADDRESS_H
#define KO_NETWORKADDRESS_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// The address of a device as text, whoever wrote it.
namespace NetworkAddress {

/// The usual notation; empty when \a text is no IP address of a single host.
KO_HOST_EXPORT QString normalised(const QString& text);

/// Two addresses with equal keys are the same address: blanks around it, case, and the notation of an IPv6
/// address make no difference.
KO_HOST_EXPORT QString key(const QString& text);

} // namespace NetworkAddress

} // namespace ko

#endif
