#include "Input.h"

#include "discovery/MdnsTxt.h"
#include "ko/OutsideText.h"
#include "network/NetworkText.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    DiscoveredDevice device;
    const QByteArray entry(reinterpret_cast<const char*>(data), int(size));
    readMdnsTxt(entry, device);
    const QString value = QString::fromUtf8(entry.mid(entry.indexOf('=') + 1));
    for (const QString& taken : {device.model, device.version, device.macAddress})
        fuzz::require(taken.isEmpty() || (entry.contains('=') && taken == value), "only the value is taken");
    const QString shown = NetworkText::cleaned(value, 100);
    fuzz::require(shown.size() <= 100 && OutsideText::visible(shown) == shown,
                  "all that is left can be seen");
    fuzz::require(NetworkText::cleaned(shown, 100) == shown, "nothing is left to clean");
    return 0;
}
