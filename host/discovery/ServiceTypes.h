#ifndef KO_SERVICETYPES_H
#define KO_SERVICETYPES_H

#include <iterator>

namespace ko {

/// A service type under which cameras announce themselves.
struct ServiceType
{
    const char* type;
    int rank; ///< of several ports of one device, the one of the smallest rank is the node's
};

inline constexpr ServiceType serviceTypes[] = {
    {"_onvif._tcp", 0}, {"_psia._tcp", 0}, {"_axis-video._tcp", 0},
    {"_http._tcp", 1},  {"_rtsp._tcp", 3}, {"_rtsps._tcp", 4},
};

/// Of what is told by WS-Discovery: the port of the device service.
inline constexpr int wsDiscoveryRank = 0;

/// Between the ports that answer HTTP and those that don't.
inline constexpr int unknownServiceRank = 2;

} // namespace ko

#endif
