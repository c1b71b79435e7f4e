#include "network/NetworkText.h"

#include "ko/OutsideText.h"

namespace ko {

namespace NetworkText {

QString cleaned(const QString& text, int limit)
{
    // A bound on the work too: what is thrown away must not be endless.
    const QString line = OutsideText::fit(text.left(8 * limit)).simplified();
    const bool isCutInPair = line.size() > limit && line.at(limit - 1).isHighSurrogate();
    return line.left(isCutInPair ? limit - 1 : limit).trimmed();
}

int rank(const QString& address)
{
    if (!address.contains(QLatin1Char(':')))
        return 0;
    return address.startsWith(QLatin1String("fe80"), Qt::CaseInsensitive) ? 2 : 1;
}

} // namespace NetworkText

} // namespace ko
