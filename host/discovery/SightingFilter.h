#ifndef KO_SIGHTINGFILTER_H
#define KO_SIGHTINGFILTER_H

#include "discovery/DiscoveredDevice.h"
#include "discovery/NearbyAddresses.h"

namespace ko {

/// What is believed of what a scanner saw.
class SightingFilter
{
public:
    /// Cleans and cuts the texts; false when nothing can be made of the device.
    bool pass(DiscoveredDevice& seen);

    /// That addresses are left out is said once in each scan.
    void beginScan() { m_saidFar = false; }

private:
    NearbyAddresses m_nearby;
    bool m_saidFar = false;
};

} // namespace ko

#endif
