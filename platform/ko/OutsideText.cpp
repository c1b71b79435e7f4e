#include "ko/OutsideText.h"

namespace ko {

namespace OutsideText {

namespace {

const uint Unseen[][2] = {
    {0x115f, 0x1160}, // fillers: letters by their category
    {0x2065, 0x2065}, {0x3164, 0x3164},   {0xffa0, 0xffa0},
    {0xfff0, 0xfff8}, {0xe0000, 0xe00ff}, {0xe01f0, 0xe0fff},
};

/// One character, which may take two units.
struct Sign
{
    uint code;
    int units;
};

Sign signAt(const QString& text, int i)
{
    const QChar first = text.at(i);
    if (first.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
        const Sign pair = {QChar::surrogateToUcs4(first, text.at(i + 1)), 2};
        return pair;
    }
    const Sign single = {first.unicode(), 1};
    return single;
}

bool isLetterOrMark(QChar::Category category)
{
    return (category >= QChar::Mark_NonSpacing && category <= QChar::Mark_Enclosing) ||
           (category >= QChar::Letter_Uppercase && category <= QChar::Letter_Other);
}

/// Joiners and variation selectors.
bool isJoiner(uint code)
{
    return code == 0x200c || code == 0x200d || (code >= 0xfe00 && code <= 0xfe0f) ||
           (code >= 0xe0100 && code <= 0xe01ef);
}

bool takesJoiner(uint code)
{
    const QChar::Category category = QChar::category(code);
    const bool isEuropean = code < 0x530 || (code >= 0x1d00 && code < 0x2000);
    return category == QChar::Symbol_Other || (category == QChar::Symbol_Modifier && code > 0xffff) ||
           (isLetterOrMark(category) && !isEuropean);
}

bool isNoCharacter(uint code)
{
    return (code & 0xfffe) == 0xfffe || (code >= 0xfdd0 && code <= 0xfdef);
}

/// \a before is the sign that is left before it, 0 at the beginning.
bool isUnseen(uint code, uint before)
{
    if (isJoiner(code))
        return !takesJoiner(before);
    for (size_t i = 0; i < sizeof Unseen / sizeof *Unseen; ++i) {
        if (code >= Unseen[i][0] && code <= Unseen[i][1])
            return true;
    }
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default: // what is not assigned yet may be a sign of a later version of Unicode
        return isNoCharacter(code);
    }
}

/// Control characters and separators that part words.
bool isBlank(uint code)
{
    return (code >= 0x09 && code <= 0x0d) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

QString hex(uint code, int digits)
{
    return QString::fromLatin1("%1").arg(code, digits, 16, QLatin1Char('0'));
}

QString spelt(uint code)
{
    if (code == '\n')
        return QLatin1String("\\n");
    if (code == '\r')
        return QLatin1String("\\r");
    if (code == '\t')
        return QLatin1String("\\t");
    if (code <= 0xff || (code >= 0xdc80 && code <= 0xdcff)) // the halves stand for bytes in names of files
        return QLatin1String("\\x") + hex(code & 0xff, 2);
    return code <= 0xffff ? QLatin1String("\\u") + hex(code, 4) : QLatin1String("\\U") + hex(code, 8);
}

void copy(const QString& from, int at, int units, QString* to)
{
    for (int i = at; i < at + units; ++i)
        to->append(from.at(i));
}

} // namespace

QString fit(const QString& text)
{
    QString result;
    uint before = 0;
    for (int i = 0; i < text.size();) {
        const Sign sign = signAt(text, i);
        if (sign.code != '\n' && isBlank(sign.code)) {
            result += QLatin1Char(' ');
            before = ' ';
        } else if (sign.code == '\n' || !isUnseen(sign.code, before)) {
            copy(text, i, sign.units, &result);
            before = sign.code;
        }
        i += sign.units;
    }
    return result;
}

QString visible(const QString& text)
{
    QString result;
    uint before = 0;
    for (int i = 0; i < text.size();) {
        const Sign sign = signAt(text, i);
        if (isUnseen(sign.code, before))
            result += spelt(sign.code);
        else
            copy(text, i, sign.units, &result);
        before = sign.code;
        i += sign.units;
    }
    return result;
}

} // namespace OutsideText

} // namespace ko
