#ifndef KO_DEVICEADDRESSES_H
#define KO_DEVICEADDRESSES_H

#include "HostExport.h"
#include "kogen/PropertySet.h"

#include <QStringList>

namespace ko {

class PropertyAccess;

/// The IP addresses at which a device was seen or says that it is ("IPAddresses" and "IP"), the likeliest to
/// be reached first. They are shown, and nothing connects to them.
namespace DeviceAddresses {

enum { Most = 16 };

KO_HOST_EXPORT QStringList read(const PropertyAccess& device);

/// Cut to the limit. Nothing is done when they are there already.
KO_HOST_EXPORT void write(PropertyAccess& device, const QStringList& addresses);

/// What is known after \a seen: of each kind (IPv4, IPv6, link-local IPv6) of which one was seen, the earlier
/// ones are gone.
KO_HOST_EXPORT QStringList merged(const QStringList& known, const QStringList& seen);

/// As the property "IPAddresses", cut to the limit.
kogen::PropertySet toSet(const QStringList& addresses);

} // namespace DeviceAddresses

} // namespace ko

#endif
