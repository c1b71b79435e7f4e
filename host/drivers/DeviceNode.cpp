#include "drivers/DeviceNode.h"

#include "drivers/ProxyProperties.h"
#include "ko/LogQt.h"

namespace ko {

DeviceNode::DeviceNode(const NodeData& data, std::shared_ptr<Vault> vault)
    : HostNode<IPDeviceNode>(data, std::move(vault))
    , m_proxy(ProxyProperties::read(data, m_vault.get()))
{
}

NodeData DeviceNode::nodeData() const
{
    NodeData data = m_data;
    ProxyProperties::write(data, m_proxy, m_vault.get());
    return data;
}

QVariant DeviceNode::read(const QString& name) const
{
    // The proxy is handed out by reference, so only it knows its settings.
    return ProxyProperties::isKey(name) ? opened(nodeData(), name) : HostNode<IPDeviceNode>::read(name);
}

void DeviceNode::write(const QString& name, const QVariant& value)
{
    if (!ProxyProperties::isKey(name)) {
        HostNode<IPDeviceNode>::write(name, value);
        return;
    }
    m_data = nodeData();
    HostNode<IPDeviceNode>::write(name, value);
    m_proxy = ProxyProperties::read(m_data, m_vault.get());
}

void DeviceNode::notifyChange(int code)
{
    if (code == AddressChanged)
        LogQt::line(LogQt::Info, QString::fromLatin1("The address of node %1 was changed by hand").arg(id()));
}

void DeviceNode::setUser(const QString& user, const QString& password)
{
    set(PropertyKeys::User, user);
    set(PropertyKeys::Password, password);
}

NetworkProxy& DeviceNode::proxy()
{
    touched();
    return m_proxy;
}

} // namespace ko
