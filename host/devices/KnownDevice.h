#ifndef KO_KNOWNDEVICE_H
#define KO_KNOWNDEVICE_H

#include "HostExport.h"
#include "devices/DeviceFacts.h"

namespace ko {

class Node;

/// By what the device of a node is known again, kept as properties of the node. They are this host's own: no
/// page shows them, and lists of cameras leave them out.
namespace KnownDevice {

KO_HOST_EXPORT DeviceIdentity of(const Node& node);

/// Whether \a seen tells anything that is not remembered of the node. What differs from what is remembered
/// is not new: it is another device's.
KO_HOST_EXPORT bool hasNews(const Node& node, const DeviceIdentity& seen);

/// Adds what is not remembered yet, and overwrites nothing.
KO_HOST_EXPORT void remember(Node& node, const DeviceIdentity& seen);

/// Another device is the node's from now on: what \a seen does not tell is forgotten.
KO_HOST_EXPORT void replace(Node& node, const DeviceIdentity& seen);

/// The properties in which it is remembered.
KO_HOST_EXPORT QStringList keys();

} // namespace KnownDevice

} // namespace ko

#endif
