#include "discovery/NetworkText.h"

#include <QHostAddress>

namespace ko {

namespace NetworkText {

namespace {

const int LongestAddress = 64; // 39 for IPv6, and a zone

bool isBlank(uint character)
{
    return character == '\t' || character == '\n' || character == '\r' || QChar::isSpace(character);
}

bool isUnfit(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return true;
    default:
        return false;
    }
}

} // namespace

QString cleaned(const QString& text, int limit)
{
    // A bound on the work too: what is thrown away must not be endless.
    const QString input = text.left(8 * limit);
    QString result;
    for (int i = 0; i < input.size(); ++i) {
        uint character = input.at(i).unicode();
        if (input.at(i).isHighSurrogate() && i + 1 < input.size() && input.at(i + 1).isLowSurrogate())
            character = QChar::surrogateToUcs4(input.at(i), input.at(i + 1));
        if (QChar::requiresSurrogates(character))
            ++i;
        const bool blank = isBlank(character);
        if ((!blank && isUnfit(character)) || (blank && result.endsWith(QLatin1Char(' '))))
            continue;
        const QString piece = blank ? QString(QLatin1Char(' '))
                                    : QString::fromUcs4(
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
                                          reinterpret_cast<const char32_t*>(&character),
#else
                                          &character,
#endif
                                          1);
        if (result.size() + piece.size() > limit)
            break;
        result += piece;
    }
    return result.trimmed();
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

} // namespace NetworkText

} // namespace ko
