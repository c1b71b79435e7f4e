#ifndef KO_NODETARGET_H
#define KO_NODETARGET_H

#include "HostExport.h"
#include "devices/DeviceReport.h"
#include "model/NodeData.h"

namespace ko {

class GlobalNetworkProxy;
class IPDeviceNode;

/// Where the device of a node is asked, and with which password.
namespace NodeTarget {

/// Whether there is a device to ask: the node is one that has an address.
KO_HOST_EXPORT bool isOf(const NodeSummary& node);

/// \a global is the proxy of the application. Only the identity is asked for.
KO_HOST_EXPORT DeviceTarget of(const IPDeviceNode& node, const GlobalNetworkProxy& global);

/// The way to the node: its own proxy, if it uses one, else the application's, unless that one's exceptions
/// name the node's address. They do not concern a proxy of the node's own.
KO_HOST_EXPORT QNetworkProxy proxyOf(const IPDeviceNode& node, const GlobalNetworkProxy& global);

/// There is a password, and it cannot be opened: trying the empty one that it reads as would count as a wrong
/// one with the device.
KO_HOST_EXPORT bool hasUnreadPassword(const IPDeviceNode& node);

} // namespace NodeTarget

} // namespace ko

#endif
