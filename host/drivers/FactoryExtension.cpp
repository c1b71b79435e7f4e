#include "drivers/FactoryExtension.h"

#include "ko/MACAddress.h"

#include <algorithm>

namespace ko {

namespace FactoryExtension {

namespace {

const int LongestSerial = 40;
const int ShortestSerial = 4; // "0", "n/a" and the like are no numbers

bool isPlain(QChar c)
{
    return (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

} // namespace

bool isNone(const QString& extension)
{
    return extension.isEmpty() || extension == QLatin1String("10_0_0_0");
}

QString ofMac(const QString& mac)
{
    const QString digits = MACAddress(mac).toString(false);
    const bool isOfGroup = !digits.isEmpty() && QString(digits.at(1)).toInt(nullptr, 16) % 2 == 1;
    return isOfGroup || digits == QLatin1String("000000000000") ? QString() : digits;
}

QString ofSerial(const QString& serial)
{
    // File servers take capital and small letters for the same.
    QString text = serial.trimmed().toUpper().left(LongestSerial);
    if (text.size() < ShortestSerial || text.count(text.at(0)) == text.size())
        return QString();
    const bool hasPlain = std::any_of(text.cbegin(), text.cend(), isPlain);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !isPlain(c); }, QLatin1Char('-'));
    return hasPlain ? QLatin1String("SN-") + text : QString();
}

/// Each channel of a recorder records for itself.
QString ofChannel(const QString& mac, int channel)
{
    const QString extension = ofMac(mac);
    return extension.isEmpty() ? extension : numbered(extension, channel);
}

QString numbered(const QString& extension, int number)
{
    return number <= 1 ? extension : extension + QLatin1Char('_') + QString::number(number);
}

} // namespace FactoryExtension

} // namespace ko
