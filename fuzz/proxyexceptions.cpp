#include "Input.h"

#include "ko/GlobalNetworkProxy.h"

using namespace ko;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzz::text(data, size);
    const int middle = int(text.size()) / 2;
    const QString address = text.left(middle);
    GlobalNetworkProxy proxy;
    proxy.setExceptions(text.mid(middle), QLatin1Char(';'));
    proxy.isAffectedFromExceptions(address);
    const QStringList exceptions = proxy.exceptions();
    for (const QString& pattern : exceptions)
        fuzz::require(!pattern.isEmpty() && pattern == pattern.trimmed(), "patterns are trimmed");
    const QString assembled = proxy.exceptionsAssembled(QLatin1Char(';'));
    proxy.setExceptions(assembled, QLatin1Char(';'));
    fuzz::require(proxy.exceptions() == exceptions, "patterns stay the same when they are set again");
    if (!address.trimmed().isEmpty() && !address.contains(QLatin1Char(';'))) {
        proxy.setExceptions(address, QLatin1Char(';'));
        fuzz::require(proxy.isAffectedFromExceptions(address.trimmed()), "a pattern matches itself");
    }
    return 0;
}
