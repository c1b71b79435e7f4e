#ifndef KO_IPDEVICENODE_H
#define KO_IPDEVICENODE_H

#include "ko/MACAddress.h"
#include "ko/NetworkProxy.h"
#include "ko/Node.h"

namespace ko {

/// A node that is reached over the network.
class KO_PLATFORM_EXPORT IPDeviceNode : public Node
{
public:
    /// Codes of notifyChange().
    enum Change { AddressChanged = 2 };

    /// Tells the node that something about it was changed by hand; call it after the setter.
    virtual void notifyChange(int code) = 0;

    virtual QString version() const = 0;
    virtual void setVersion(const QString& version) = 0;
    virtual QString model() const = 0;
    virtual void setModel(const QString& model) = 0;
    virtual QString address() const = 0; ///< host name or IP address
    virtual void setAddress(const QString& address) = 0;
    virtual int port() const = 0; ///< TCP port, 0 to 65535
    virtual void setPort(int port) = 0;
    virtual int bandwidth() const = 0; ///< an ENodeBandwidth, or -1 to follow NodeDB::bandwidth()
    virtual void setBandwidth(int bandwidth) = 0;
    virtual int controlMode() const = 0; ///< an ENodeControl, or -1 where never set
    virtual void setControlMode(int mode) = 0;
    virtual MACAddress macAddress() const = 0;
    virtual void setMacAddress(const MACAddress& address) = 0;
    virtual bool useSSL() const = 0;
    virtual void setUseSSL(bool useSSL) = 0;

    /// The stored credentials. \a option is the host's; 0 and 1 both give what was stored last.
    virtual QString user(int option) const = 0;
    virtual QString password(int option) const = 0;
    virtual void setUser(const QString& user, const QString& password) = 0;

    /// Marks the credentials as given by the user rather than taken from the factory defaults.
    virtual void setCredentialsEntered(bool entered) = 0;

    /// The device's own proxy settings.
    virtual const NetworkProxy& proxy() const = 0;
    virtual NetworkProxy& proxy() = 0;

protected:
    explicit IPDeviceNode(ENodeType nodeType);
};

/// The node as an IP device; null when there is none or it is another kind of node.
KO_PLATFORM_EXPORT kom::smart<const IPDeviceNode> deviceNode(const QString& nodeId);

} // namespace ko

#endif
