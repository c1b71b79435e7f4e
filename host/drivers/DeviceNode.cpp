#include "drivers/DeviceNode.h"

#include "drivers/ProxyProperties.h"
#include "ko/LogQt.h"

namespace ko {

namespace {

QString key(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

DeviceNode::DeviceNode(const NodeData& data)
    : HostNode<IPDeviceNode>(data)
    , m_proxy(ProxyProperties::read(data))
{
}

NodeData DeviceNode::nodeData() const
{
    NodeData data = m_data;
    ProxyProperties::write(data, m_proxy);
    return data;
}

QVariant DeviceNode::read(const QString& name) const
{
    // The proxy is handed out by reference, so only it knows its settings.
    return ProxyProperties::isKey(name) ? opened(name, nodeData().properties.value(name))
                                        : HostNode<IPDeviceNode>::read(name);
}

void DeviceNode::write(const QString& name, const QVariant& value)
{
    if (!ProxyProperties::isKey(name)) {
        HostNode<IPDeviceNode>::write(name, value);
        return;
    }
    m_data = nodeData();
    HostNode<IPDeviceNode>::write(name, value);
    m_proxy = ProxyProperties::read(m_data);
}

void DeviceNode::notifyChange(int code)
{
    if (code == AddressChanged)
        LogQt::line(LogQt::Info, QString::fromLatin1("The address of node %1 was changed by hand").arg(id()));
}

QString DeviceNode::version() const
{
    return get(key(PropertyKeys::Version), QString());
}

void DeviceNode::setVersion(const QString& version)
{
    set(key(PropertyKeys::Version), version);
}

QString DeviceNode::model() const
{
    return get(key(PropertyKeys::Model), QString());
}

void DeviceNode::setModel(const QString& model)
{
    set(key(PropertyKeys::Model), model);
}

QString DeviceNode::address() const
{
    return get(key(PropertyKeys::Address), QString());
}

void DeviceNode::setAddress(const QString& address)
{
    set(key(PropertyKeys::Address), address);
}

int DeviceNode::port() const
{
    return get(key(PropertyKeys::Port), 80);
}

void DeviceNode::setPort(int port)
{
    set(key(PropertyKeys::Port), port);
}

int DeviceNode::bandwidth() const
{
    return get(key(PropertyKeys::Bandwidth), -1);
}

void DeviceNode::setBandwidth(int bandwidth)
{
    set(key(PropertyKeys::Bandwidth), bandwidth);
}

int DeviceNode::controlMode() const
{
    return get(key(PropertyKeys::ControlMode), -1);
}

void DeviceNode::setControlMode(int mode)
{
    set(key(PropertyKeys::ControlMode), mode);
}

MACAddress DeviceNode::macAddress() const
{
    return MACAddress(get(key(PropertyKeys::MacAddress), QString()));
}

void DeviceNode::setMacAddress(const MACAddress& address)
{
    set(key(PropertyKeys::MacAddress), address.toString(true));
}

bool DeviceNode::useSSL() const
{
    return get(key(PropertyKeys::UseSSL), false);
}

void DeviceNode::setUseSSL(bool useSSL)
{
    set(key(PropertyKeys::UseSSL), useSSL);
}

QString DeviceNode::user(int) const
{
    return get(key(PropertyKeys::User), QString());
}

QString DeviceNode::password(int) const
{
    return get(key(PropertyKeys::Password), QString());
}

void DeviceNode::setUser(const QString& user, const QString& password)
{
    set(key(PropertyKeys::User), user);
    set(key(PropertyKeys::Password), password);
}

void DeviceNode::setCredentialsEntered(bool entered)
{
    set(key(PropertyKeys::CredentialsEntered), entered);
}

const NetworkProxy& DeviceNode::proxy() const
{
    return m_proxy;
}

NetworkProxy& DeviceNode::proxy()
{
    touched();
    return m_proxy;
}

void ChannelDeviceNode::setChannel(int channel)
{
    set(key(PropertyKeys::Channel), channel);
}

int ChannelDeviceNode::channel() const
{
    return get(key(PropertyKeys::Channel), 1);
}

} // namespace ko
