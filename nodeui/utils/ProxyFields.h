#ifndef KO_PROXYFIELDS_H
#define KO_PROXYFIELDS_H

#include "ko/NetworkProxy.h"
#include "utils/Fields.h"

namespace ko {

/// The fields in which a form edits proxy settings; whether the proxy is used is for the form to say.
struct ProxyFields
{
    QWidget* address;
    QWidget* port;
    QWidget* user;
    QWidget* password;

    void load(const NetworkProxy& proxy) const
    {
        setField(address, proxy.proxyAddress());
        setField(port, proxy.proxyPort());
        setField(user, proxy.proxyUser());
        setField(password, proxy.proxyPassword());
    }

    void store(NetworkProxy& proxy) const
    {
        proxy.setProxyAddress(fieldValue(address).toString(), fieldValue(port).toInt());
        proxy.setProxyUser(fieldValue(user).toString(), fieldValue(password).toString());
    }
};

} // namespace ko

#endif
