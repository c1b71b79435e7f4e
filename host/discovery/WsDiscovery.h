#ifndef KO_WSDISCOVERY_H
#define KO_WSDISCOVERY_H

#include "HostExport.h"
#include "discovery/DiscoveredDevice.h"

#include <QByteArray>
#include <QHostAddress>
#include <QStringList>

namespace ko {

/// What WS-Discovery says over UDP, as cameras speak it (the drafts of 2005 that ONVIF refers to).
namespace WsDiscovery {

const quint16 Port = 3702;
const quint32 Group = 0xeffffffa; ///< 239.255.255.250

/// What DiscoveredDevice::service is for a device found so.
inline constexpr char Service[] = "ws-discovery";

enum Limits {
    LongestMessage = 65507, ///< bytes
    MostMatches = 50,       ///< in one message: a proxy tells of several
    MostAddresses = 8       ///< of one device
};

/// Questions for all kinds of camera, each with a number of its own; to be repeated as they are.
KO_HOST_EXPORT QVector<QByteArray> newProbes();

/// The devices that a message tells of: an answer to a probe, or a greeting. One of each for each kind of
/// address (see NetworkText::rank()), and none for what is not a camera, recorder or encoder. Host names are
/// skipped; who tells no address has that of the sender. Empty for what is not understood.
KO_HOST_EXPORT QVector<DiscoveredDevice> read(const QByteArray& message, const QHostAddress& sender);

} // namespace WsDiscovery

} // namespace ko

#endif
