#ifndef KO_MDNSTXT_H
#define KO_MDNSTXT_H

#include "HostExport.h"
#include "discovery/DiscoveredDevice.h"

#include <QByteArray>

namespace ko {

/// Takes model, version and MAC address from one entry of a TXT record. All other keys, some of which
/// carry credentials, are passed over unread.
KO_HOST_EXPORT void readMdnsTxt(const QByteArray& entry, DiscoveredDevice& device);

} // namespace ko

#endif
