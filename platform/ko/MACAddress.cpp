#include "ko/MACAddress.h"

#include <QStringList>

namespace ko {

namespace {

/// The digits of \a text when it consists of equal groups of \a size joined by \a separator.
QString joinedGroups(const QString& text, QChar separator, int size)
{
    const QStringList groups = text.split(separator);
    if (groups.size() * size != 12)
        return QString();
    for (const QString& group : groups) {
        if (group.size() != size)
            return QString();
    }
    return groups.join(QString());
}

} // namespace

MACAddress::MACAddress(const QString& text)
{
    static const struct
    {
        char separator;
        int size;
    } forms[] = {{':', 2}, {'-', 2}, {' ', 2}, {'.', 4}};

    const QString trimmed = text.trimmed();
    QString digits = trimmed.size() == 12 ? trimmed : QString();
    for (const auto& form : forms) {
        if (digits.isEmpty())
            digits = joinedGroups(trimmed, QLatin1Char(form.separator), form.size);
    }
    if (digits.isEmpty())
        return;
    for (int i = 0; i < digits.size(); ++i) {
        const ushort c = digits.at(i).unicode();
        // toULongLong() also takes signs and a "0x", so every character is looked at.
        const bool hex = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
        if (!hex)
            return;
    }
    m_value = digits.toULongLong(&m_valid, 16);
}

QString MACAddress::toString(bool separators) const
{
    if (!m_valid)
        return QString();
    QString text = QString::number(m_value, 16).toUpper().rightJustified(12, QLatin1Char('0'));
    if (separators) {
        for (int i = 10; i > 0; i -= 2)
            text.insert(i, QLatin1Char(':'));
    }
    return text;
}

} // namespace ko
