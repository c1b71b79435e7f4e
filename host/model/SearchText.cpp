#include "model/SearchText.h"

#include <algorithm>

namespace ko {

namespace SearchText {

namespace {

bool isAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

} // namespace

QString folded(const QString& text)
{
    if (isAscii(text))
        return text.toLower();
    const QString decomposed = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString result;
    result.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (!c.isMark())
            result.append(c);
    }
    return result;
}

QString sortKey(const QString& text)
{
    const QString plain = folded(text);
    QString key;
    key.reserve(plain.size() + 2);
    for (int i = 0; i < plain.size();) {
        if (!isDigit(plain.at(i))) {
            key.append(plain.at(i++));
            continue;
        }
        int end = i;
        while (end < plain.size() && isDigit(plain.at(end)))
            ++end;
        while (i < end - 1 && plain.at(i) == QLatin1Char('0'))
            ++i;
        // The longer number is the larger one; the mark keeps numbers before letters.
        key.append(QChar(ushort('0')));
        key.append(QChar(ushort(end - i)));
        key.append(plain.constData() + i, end - i);
        i = end;
    }
    return key;
}

int sameStart(const QString& a, const QString& b, int limit)
{
    const int end = std::min({limit, int(a.size()), int(b.size())});
    return int(std::mismatch(a.begin(), a.begin() + end, b.begin()).first - a.begin());
}

quint64 startNumber(const QString& key, int from)
{
    const int bytes = int(sizeof(quint64));
    const ushort largest = 0xff;
    quint64 number = 0;
    bool exact = true;
    for (int i = from; i < from + bytes; ++i) {
        const ushort unit = exact && i < key.size() ? key.at(i).unicode() : ushort(0);
        exact = exact && unit < largest; // what follows a character that was cut off tells nothing
        number = number << 8 | std::min(unit, largest);
    }
    return number;
}

} // namespace SearchText

} // namespace ko
