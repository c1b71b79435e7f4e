#include "Input.h"

#include "discovery/WsDiscovery.h"
#include "network/NetworkText.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QHostAddress sender(QStringLiteral("10.0.0.9"));
    const QByteArray message = fuzz::soap(data, size, "ProbeMatches");
    const QVector<DiscoveredDevice> devices = WsDiscovery::read(message, sender);
    fuzz::require(devices.size() <= 3 * WsDiscovery::MostMatches, "one place of each kind");
    for (const DiscoveredDevice& device : devices) {
        QHostAddress address;
        fuzz::require(address.setAddress(device.address), "no name becomes an address");
        fuzz::require(device.port >= 0 && device.port <= 65535, "a port is one");
        fuzz::require(device.service == QLatin1String(WsDiscovery::Service), "it is found by WS-Discovery");
    }
    return 0;
}
