#ifndef KO_PROXYPROPERTIES_H
#define KO_PROXYPROPERTIES_H

#include "ko/NetworkProxy.h"
#include "model/NodeData.h"

namespace ko {

/// The form in which a device's own proxy settings stand among its properties.
namespace ProxyProperties {

bool isKey(const QString& name);

/// The password is opened; \a node is whose it is.
NetworkProxy read(const NodeData& node);

/// Settings that were never touched leave no properties behind.
void write(NodeData& node, const NetworkProxy& proxy);

} // namespace ProxyProperties

} // namespace ko

#endif
