#ifndef KO_PROXYPROPERTIES_H
#define KO_PROXYPROPERTIES_H

#include "ko/NetworkProxy.h"
#include "model/NodeData.h"

namespace ko {

class Vault;

/// The form in which a device's own proxy settings stand among its properties.
namespace ProxyProperties {

bool isKey(const QString& name);

/// The password is opened by \a vault, or in the clear without one.
NetworkProxy read(const NodeData& node, Vault* vault);

/// Settings that were never touched leave no properties behind.
void write(NodeData& node, const NetworkProxy& proxy, Vault* vault);

} // namespace ProxyProperties

} // namespace ko

#endif
