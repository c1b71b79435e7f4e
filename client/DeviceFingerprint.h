#ifndef KO_DEVICEFINGERPRINT_H
#define KO_DEVICEFINGERPRINT_H

#include <QByteArray>

namespace ko {

class IPDeviceNode;

/// Tells whether a device is still at the same place with the same credentials, without keeping these.
class DeviceFingerprint
{
public:
    DeviceFingerprint();

    /// Says nothing to another object of this class.
    QByteArray of(const IPDeviceNode& node) const;

private:
    const QByteArray m_salt; ///< so that no password can be guessed from what is kept of it
};

} // namespace ko

#endif
