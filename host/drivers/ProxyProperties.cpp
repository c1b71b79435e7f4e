#include "drivers/ProxyProperties.h"

#include "ko/PropertyKeys.h"
#include "secrets/Secrets.h"

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

NetworkProxy read(const NodeData& node)
{
    const auto value = [&node](const QString& key) { return node.properties.value(key); };
    const QString password = PropertyKeys::ProxyPassword;
    NetworkProxy proxy;
    proxy.setProxyAddress(value(PropertyKeys::ProxyAddress).toString(),
                          value(PropertyKeys::ProxyPort).toInt());
    proxy.setProxyUser(value(PropertyKeys::ProxyUser).toString(),
                       Secrets::open(node.id, password, node.properties.value(password).toString()));
    proxy.setUseProxy(value(PropertyKeys::ProxyUse).toBool());
    proxy.setSaveProxyPassword(value(PropertyKeys::ProxySavePassword).toBool());
    return proxy;
}

void write(NodeData& node, const NetworkProxy& proxy)
{
    if (proxy == read(node))
        return;
    const QString password = PropertyKeys::ProxyPassword;
    const auto set = [&node](const QString& key, const QVariant& value) { node.properties.set(key, value); };
    set(PropertyKeys::ProxyUse, proxy.useProxy());
    set(PropertyKeys::ProxyAddress, proxy.proxyAddress());
    set(PropertyKeys::ProxyPort, proxy.proxyPort());
    set(PropertyKeys::ProxyUser, proxy.proxyUser());
    set(PropertyKeys::ProxyPassword,
        Secrets::seal(node.id, password, proxy.proxyPassword(), node.properties.value(password).toString()));
    set(PropertyKeys::ProxySavePassword, proxy.saveProxyPassword());
}

} // namespace ProxyProperties

} // namespace ko
