#include "devices/NodeTarget.h"

#include "devices/ClearPassword.h"
#include "devices/KnownDevice.h"
#include "drivers/NodeTypes.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"
#include "ko/PropertyKeys.h"
#include "kogen/PropertySet.h"

namespace ko {

namespace NodeTarget {

namespace {

QNetworkProxy toNetwork(const NetworkProxy& proxy)
{
    return QNetworkProxy(QNetworkProxy::HttpProxy, proxy.proxyAddress().trimmed(), quint16(proxy.proxyPort()),
                         proxy.proxyUser(), proxy.proxyPassword());
}

/// Switched on without an address it is none.
bool isUsed(const NetworkProxy& proxy)
{
    return proxy.useProxy() && !proxy.proxyAddress().trimmed().isEmpty();
}

} // namespace

bool isOf(const NodeSummary& node)
{
    return NodeTypes::isDevice(node.type) && !node.location.trimmed().isEmpty();
}

DeviceTarget of(const IPDeviceNode& node, const GlobalNetworkProxy& global)
{
    DeviceTarget target;
    target.id = node.id();
    target.address = node.address().trimmed();
    target.useSSL = node.useSSL();
    target.port = node.port() > 0 ? node.port() : int(target.useSSL ? HttpsPort : HttpPort);
    target.user = node.user(1);
    target.password = node.password(1);
    target.allowsBasic = ClearPassword::isAllowed(node);
    if (const auto* channels = dynamic_cast<const ISupportsChannels*>(&node))
        target.channel = channels->channel();
    target.proxy = proxyOf(node, global);
    target.known = KnownDevice::of(node);
    return target;
}

QNetworkProxy proxyOf(const IPDeviceNode& node, const GlobalNetworkProxy& global)
{
    if (isUsed(node.proxy()))
        return toNetwork(node.proxy());
    if (isUsed(global) && !global.isAffectedFromExceptions(node.address().trimmed()))
        return toNetwork(global);
    return QNetworkProxy(QNetworkProxy::NoProxy);
}

bool hasUnreadPassword(const IPDeviceNode& node)
{
    if (!node.password(1).isEmpty())
        return false;
    const auto stored = node.properties()[PropertyKeys::Password];
    return !stored.null() && !stored->value().toString().isEmpty();
}

} // namespace NodeTarget

} // namespace ko
