#include "drivers/ProxyProperties.h"

#include "drivers/PropertyKeys.h"

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

NetworkProxy read(const PropertyList& properties)
{
    const auto value = [&properties](const char* key) { return properties.value(QLatin1String(key)); };
    NetworkProxy proxy;
    proxy.setProxyAddress(value(PropertyKeys::ProxyAddress).toString(),
                          value(PropertyKeys::ProxyPort).toInt());
    proxy.setProxyUser(value(PropertyKeys::ProxyUser).toString(),
                       value(PropertyKeys::ProxyPassword).toString());
    proxy.setUseProxy(value(PropertyKeys::ProxyUse).toBool());
    proxy.setSaveProxyPassword(value(PropertyKeys::ProxySavePassword).toBool());
    return proxy;
}

void write(PropertyList& properties, const NetworkProxy& proxy)
{
    if (proxy == read(properties))
        return;
    const auto set = [&properties](const char* key, const QVariant& value) {
        properties.set(QLatin1String(key), value);
    };
    set(PropertyKeys::ProxyUse, proxy.useProxy());
    set(PropertyKeys::ProxyAddress, proxy.proxyAddress());
    set(PropertyKeys::ProxyPort, proxy.proxyPort());
    set(PropertyKeys::ProxyUser, proxy.proxyUser());
    set(PropertyKeys::ProxyPassword, proxy.proxyPassword());
    set(PropertyKeys::ProxySavePassword, proxy.saveProxyPassword());
}

} // namespace ProxyProperties

} // namespace ko
