#ifndef KO_DISCOVEREDDEVICE_H
#define KO_DISCOVEREDDEVICE_H

#include <QMetaType>
#include <QString>
#include <QVector>

namespace ko {

/// What a scanner saw of one device. Nothing in it is trusted: it comes from the network as it is.
struct DiscoveredDevice
{
    QString name;         ///< what the device calls itself; may be empty
    QString address;      ///< IP address; link-local IPv6 ones carry their zone
    int port = 0;         ///< where it answers; 0 when not known
    QString service;      ///< service type such as "_rtsp._tcp"; empty when found by its address
    QString model;        ///< empty when not told
    QString version;      ///< firmware; empty when not told
    QString macAddress;   ///< a hint, in any notation; empty when not told
    QString neighbourMac; ///< what the system's neighbour table has for the address, whatever is told
    QString location;     ///< where it says it hangs; may be empty
    QString identity;     ///< what it calls itself whatever its address; a hint, empty when not told
};

} // namespace ko

Q_DECLARE_METATYPE(ko::DiscoveredDevice)
Q_DECLARE_METATYPE(QVector<ko::DiscoveredDevice>)

#endif
