#include "Input.h"

#include "discovery/MdnsTxt.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    DiscoveredDevice device;
    const QByteArray entry(reinterpret_cast<const char*>(data), int(size));
    readMdnsTxt(entry, device);
    const QString value = QString::fromUtf8(entry.mid(entry.indexOf('=') + 1));
    for (const QString& taken : {device.model, device.version, device.macAddress})
        fuzz::require(taken.isEmpty() || (entry.contains('=') && taken == value), "only the value is taken");
    return 0;
}
