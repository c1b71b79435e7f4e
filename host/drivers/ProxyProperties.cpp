#include "drivers/ProxyProperties.h"

#include "ko/PropertyKeys.h"
#include "secrets/Vault.h"

#include <algorithm>

namespace ko {

namespace ProxyProperties {

bool isKey(const QString& name)
{
    static const QLatin1String keys[] = {PropertyKeys::ProxyUse,      PropertyKeys::ProxyAddress,
                                         PropertyKeys::ProxyPort,     PropertyKeys::ProxyUser,
                                         PropertyKeys::ProxyPassword, PropertyKeys::ProxySavePassword};
    return std::find(std::begin(keys), std::end(keys), name) != std::end(keys);
}

NetworkProxy read(const NodeData& node, Vault* vault)
{
    const auto value = [&node](const QString& key) { return node.properties.value(key); };
    NetworkProxy proxy;
    proxy.setProxyAddress(value(PropertyKeys::ProxyAddress).toString(),
                          value(PropertyKeys::ProxyPort).toInt());
    proxy.setProxyUser(value(PropertyKeys::ProxyUser).toString(),
                       Vault::opened(vault, node, PropertyKeys::ProxyPassword));
    proxy.setUseProxy(value(PropertyKeys::ProxyUse).toBool());
    proxy.setSaveProxyPassword(value(PropertyKeys::ProxySavePassword).toBool());
    return proxy;
}

void write(NodeData& node, const NetworkProxy& proxy, Vault* vault)
{
    if (proxy == read(node, vault))
        return;
    const auto set = [&node](const QString& key, const QVariant& value) { node.properties.set(key, value); };
    set(PropertyKeys::ProxyUse, proxy.useProxy());
    set(PropertyKeys::ProxyAddress, proxy.proxyAddress());
    set(PropertyKeys::ProxyPort, proxy.proxyPort());
    set(PropertyKeys::ProxyUser, proxy.proxyUser());
    set(PropertyKeys::ProxyPassword,
        Vault::sealed(vault, node, PropertyKeys::ProxyPassword, proxy.proxyPassword()));
    set(PropertyKeys::ProxySavePassword, proxy.saveProxyPassword());
}

} // namespace ProxyProperties

} // namespace ko
