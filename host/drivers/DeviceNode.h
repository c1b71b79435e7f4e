#ifndef KO_DEVICENODE_H
#define KO_DEVICENODE_H

#include "drivers/HostNode.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/IPDeviceNode.h"

namespace ko {

/// An IP device whose typed data are properties too, so that one store and one browser serve all nodes.
class DeviceNode : public HostNode<IPDeviceNode>
{
public:
    DeviceNode(const NodeData& data, std::shared_ptr<Vault> vault);

    NodeData nodeData() const override;

    void notifyChange(int code) override;
    QString version() const override { return get(PropertyKeys::Version, QString()); }
    void setVersion(const QString& version) override { set(PropertyKeys::Version, version); }
    QString model() const override { return get(PropertyKeys::Model, QString()); }
    void setModel(const QString& model) override { set(PropertyKeys::Model, model); }
    QString address() const override { return get(PropertyKeys::Address, QString()); }
    void setAddress(const QString& address) override { set(PropertyKeys::Address, address); }
    int port() const override { return get(PropertyKeys::Port, int(HttpPort)); }
    void setPort(int port) override { set(PropertyKeys::Port, port); }
    int bandwidth() const override { return get(PropertyKeys::Bandwidth, -1); }
    void setBandwidth(int bandwidth) override { set(PropertyKeys::Bandwidth, bandwidth); }
    int controlMode() const override { return get(PropertyKeys::ControlMode, -1); }
    void setControlMode(int mode) override { set(PropertyKeys::ControlMode, mode); }
    MACAddress macAddress() const override { return MACAddress(get(PropertyKeys::MacAddress, QString())); }
    void setMacAddress(const MACAddress& address) override
    {
        set(PropertyKeys::MacAddress, address.toString(true));
    }
    bool useSSL() const override { return get(PropertyKeys::UseSSL, false); }
    void setUseSSL(bool useSSL) override { set(PropertyKeys::UseSSL, useSSL); }
    QString user(int) const override { return get(PropertyKeys::User, QString()); }
    QString password(int) const override { return get(PropertyKeys::Password, QString()); }
    void setUser(const QString& user, const QString& password) override;
    void setCredentialsEntered(bool entered) override { set(PropertyKeys::CredentialsEntered, entered); }
    const NetworkProxy& proxy() const override { return m_proxy; }
    NetworkProxy& proxy() override;

protected:
    QVariant read(const QString& name) const override;
    void write(const QString& name, const QVariant& value) override;

private:
    NetworkProxy m_proxy;
};

/// A device of which the node uses one channel.
class ChannelDeviceNode : public DeviceNode, public virtual ISupportsChannels
{
public:
    using DeviceNode::DeviceNode;

    void setChannel(int channel) override { set(PropertyKeys::Channel, channel); }
    int channel() const override { return get(PropertyKeys::Channel, 1); }
};

} // namespace ko

#endif
