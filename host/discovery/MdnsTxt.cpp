#include "discovery/MdnsTxt.h"

namespace ko {

namespace {

struct TxtKey
{
    const char* key;
    QString DiscoveredDevice::*field;
};

/// As devices spell them, in lower case; of several the first in the record counts.
const TxtKey txtKeys[] = {
    {"model", &DiscoveredDevice::model},
    {"md", &DiscoveredDevice::model},
    {"ty", &DiscoveredDevice::model},
    {"product", &DiscoveredDevice::model},
    {"version", &DiscoveredDevice::version},
    {"firmware", &DiscoveredDevice::version},
    {"fw", &DiscoveredDevice::version},
    {"fwversion", &DiscoveredDevice::version},
    {"mac", &DiscoveredDevice::macAddress},
    {"macaddress", &DiscoveredDevice::macAddress},
    {"mac_address", &DiscoveredDevice::macAddress},
    {"macaddr", &DiscoveredDevice::macAddress},
};

} // namespace

void readMdnsTxt(const QByteArray& entry, DiscoveredDevice& device)
{
    const int equals = entry.indexOf('=');
    if (equals <= 0)
        return;
    const QByteArray key = entry.left(equals).toLower();
    for (const TxtKey& known : txtKeys) {
        if (key == known.key && (device.*known.field).isEmpty())
            device.*known.field = QString::fromUtf8(entry.mid(equals + 1));
    }
}

} // namespace ko
