#include "discovery/NetworkText.h"

#include "ko/OutsideText.h"

#include <QHostAddress>

namespace ko {

namespace NetworkText {

namespace {

const int LongestAddress = 64; // 39 for IPv6, and a zone

} // namespace

QString cleaned(const QString& text, int limit)
{
    // A bound on the work too: what is thrown away must not be endless.
    const QString line = OutsideText::fit(text.left(8 * limit)).simplified();
    const bool isCutInPair = line.size() > limit && line.at(limit - 1).isHighSurrogate();
    return line.left(isCutInPair ? limit - 1 : limit).trimmed();
}

QString address(const QString& text)
{
    const QString trimmed = text.trimmed();
    QHostAddress host;
    if (trimmed.size() > LongestAddress || !host.setAddress(trimmed))
        return QString();
    bool isMapped = false;
    const quint32 ipv4 = host.toIPv4Address(&isMapped);
    if (isMapped) {
        // "1.2" would be an address too.
        const bool spelt = trimmed.contains(QLatin1Char(':')) || trimmed.count(QLatin1Char('.')) == 3;
        host = QHostAddress(ipv4);
        if (!spelt || ipv4 >> 24 == 0)
            return QString();
    }
    const bool one = !host.isNull() && !host.isMulticast() && host != QHostAddress(QHostAddress::AnyIPv6) &&
                     host != QHostAddress(QHostAddress::Broadcast);
    // A zone is the name or number of an interface; nothing else belongs there.
    const QString zone = host.scopeId();
    for (const QChar character : zone) {
        if (!character.isLetterOrNumber() && !QLatin1String("-_.:@").contains(character))
            return QString();
    }
    return one ? host.toString() : QString();
}

QString addressKey(const QString& text)
{
    const QString key = text.trimmed().toLower();
    const QString normal = key.contains(QLatin1Char(':')) ? address(key) : QString();
    return normal.isEmpty() ? key : normal.toLower();
}

int rank(const QString& address)
{
    if (!address.contains(QLatin1Char(':')))
        return 0;
    return address.startsWith(QLatin1String("fe80"), Qt::CaseInsensitive) ? 2 : 1;
}

} // namespace NetworkText

} // namespace ko
