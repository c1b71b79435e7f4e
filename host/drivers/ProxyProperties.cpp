#include "drivers/ProxyProperties.h"

#include "drivers/PropertyKeys.h"
#include "secrets/Secrets.h"

namespace ko {

namespace ProxyProperties {

bool isKey(const QString& name)
{
    static const char* const keys[] = {PropertyKeys::ProxyUse,      PropertyKeys::ProxyAddress,
                                       PropertyKeys::ProxyPort,     PropertyKeys::ProxyUser,
                                       PropertyKeys::ProxyPassword, PropertyKeys::ProxySavePassword};
    for (const char* key : keys) {
        if (name == QLatin1String(key))
            return true;
    }
    return false;
}

NetworkProxy read(const NodeData& node)
{
    const auto value = [&node](const char* key) { return node.properties.value(QLatin1String(key)); };
    const QString password = QLatin1String(PropertyKeys::ProxyPassword);
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
    const QString password = QLatin1String(PropertyKeys::ProxyPassword);
    const auto set = [&node](const char* key, const QVariant& value) {
        node.properties.set(QLatin1String(key), value);
    };
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
