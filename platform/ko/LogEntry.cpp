#include "ko/LogEntry.h"

namespace ko {

QString FourChars::toString() const
{
    const char text[4] = {char(m_value >> 24), char(m_value >> 16), char(m_value >> 8), char(m_value)};
    return QString::fromLatin1(text, 4);
}

LogValue::LogValue(FourChars key, const QString& name)
    : m_key(key)
    , m_name(name)
{
}

LogValue::~LogValue() = default;

LogEntry::~LogEntry() = default;

void LogEntry::append(LogValue& value)
{
    m_values.append(&value);
}

QString LogEntry::text() const
{
    // One pass: QString::arg() would look for markers in what it has just filled in.
    const QString pattern = description();
    QString result;
    for (int i = 0; i < pattern.size(); ++i) {
        const bool marker = pattern.at(i) == QLatin1Char('%') && i + 1 < pattern.size();
        const int number = marker ? pattern.at(i + 1).digitValue() : -1;
        if (number >= 1 && number <= m_values.size()) {
            result += m_values.at(number - 1)->toString();
            ++i;
        } else {
            result += pattern.at(i);
        }
    }
    return result;
}

} // namespace ko
