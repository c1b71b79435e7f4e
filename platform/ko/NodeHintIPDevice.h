#ifndef KO_NODEHINTIPDEVICE_H
#define KO_NODEHINTIPDEVICE_H

#include "ko/MACAddress.h"
#include "ko/NetworkProxy.h"
#include "ko/NodeHint.h"

namespace ko {

/// Description of an IP device to be created. The fields are read and written directly by the pages.
class KO_PLATFORM_EXPORT NodeHintIPDevice : public NodeHint
{
public:
    QString model;
    QString version;
    QString address;     ///< host name or IP address
    int port = HttpPort; ///< TCP port, 0 to 65535
    bool useSSL = false;
    QString user;
    QString password;
    bool credentialsEntered = false;
    int channel = 1; ///< counted from 1; used where the type has channels
    MACAddress macAddress;
    NetworkProxy proxy; ///< the device's own proxy

protected:
    explicit NodeHintIPDevice(ENodeType nodeType);
};

} // namespace ko

#endif
