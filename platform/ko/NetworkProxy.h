#ifndef KO_NETWORKPROXY_H
#define KO_NETWORKPROXY_H

#include "PlatformExport.h"

#include <QString>

namespace ko {

/// One set of proxy settings. Texts are kept as given; nothing is checked.
class KO_PLATFORM_EXPORT NetworkProxy
{
public:
    NetworkProxy() = default;
    NetworkProxy(const NetworkProxy&) = default;
    NetworkProxy& operator=(const NetworkProxy&) = default;
    virtual ~NetworkProxy();

    bool useProxy() const { return m_useProxy; }
    QString proxyAddress() const { return m_address; } ///< host name or IP address
    int proxyPort() const { return m_port; }           ///< 0 to 65535
    QString proxyUser() const { return m_user; }
    QString proxyPassword() const { return m_password; }
    bool saveProxyPassword() const { return m_savePassword; }

    // Virtual so that a host can watch the order of the calls.
    virtual void setUseProxy(bool use);
    virtual void setProxyAddress(const QString& address, int port);
    virtual void setProxyUser(const QString& user, const QString& password);
    virtual void setSaveProxyPassword(bool save);

    friend KO_PLATFORM_EXPORT bool operator==(const NetworkProxy& a, const NetworkProxy& b);

protected:
    /// Called after a setter that changed something.
    virtual void changed();

private:
    template <class T>
    void assign(T& field, const T& value, bool& differs);

    bool m_useProxy = false;
    QString m_address;
    int m_port = 0;
    QString m_user;
    QString m_password;
    bool m_savePassword = false;
};

KO_PLATFORM_EXPORT bool operator==(const NetworkProxy& a, const NetworkProxy& b);
inline bool operator!=(const NetworkProxy& a, const NetworkProxy& b)
{
    return !(a == b);
}

} // namespace ko

#endif
