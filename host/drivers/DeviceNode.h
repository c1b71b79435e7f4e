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
    explicit DeviceNode(const NodeData& data);

    NodeData nodeData() const override;

    void notifyChange(int code) override;
    QString version() const override;
    void setVersion(const QString& version) override;
    QString model() const override;
    void setModel(const QString& model) override;
    QString address() const override;
    void setAddress(const QString& address) override;
    int port() const override;
    void setPort(int port) override;
    int bandwidth() const override;
    void setBandwidth(int bandwidth) override;
    int controlMode() const override;
    void setControlMode(int mode) override;
    MACAddress macAddress() const override;
    void setMacAddress(const MACAddress& address) override;
    bool useSSL() const override;
    void setUseSSL(bool useSSL) override;
    QString user(int option) const override;
    QString password(int option) const override;
    void setUser(const QString& user, const QString& password) override;
    void setCredentialsEntered(bool entered) override;
    const NetworkProxy& proxy() const override;
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

    void setChannel(int channel) override;
    int channel() const override;
};

} // namespace ko

#endif
