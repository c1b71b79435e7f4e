#include "ko/NetworkProxy.h"

namespace ko {

NetworkProxy::~NetworkProxy() = default;

template <class T>
void NetworkProxy::assign(T& field, const T& value, bool& differs)
{
    differs = differs || field != value;
    field = value;
}

void NetworkProxy::setUseProxy(bool use)
{
    bool differs = false;
    assign(m_useProxy, use, differs);
    if (differs)
        changed();
}

void NetworkProxy::setProxyAddress(const QString& address, int port)
{
    bool differs = false;
    assign(m_address, address, differs);
    assign(m_port, port, differs);
    if (differs)
        changed();
}

void NetworkProxy::setProxyUser(const QString& user, const QString& password)
{
    bool differs = false;
    assign(m_user, user, differs);
    assign(m_password, password, differs);
    if (differs)
        changed();
}

void NetworkProxy::setSaveProxyPassword(bool save)
{
    bool differs = false;
    assign(m_savePassword, save, differs);
    if (differs)
        changed();
}

void NetworkProxy::changed() {}

bool operator==(const NetworkProxy& a, const NetworkProxy& b)
{
    return a.m_useProxy == b.m_useProxy && a.m_address == b.m_address && a.m_port == b.m_port &&
           a.m_user == b.m_user && a.m_password == b.m_password && a.m_savePassword == b.m_savePassword;
}

} // namespace ko
