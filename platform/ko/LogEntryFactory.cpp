#include "ko/LogEntryFactory.h"

namespace ko {

void LogEntryFactory::registerCreator(FourChars code, Creator creator, const QString& title)
{
    m_registrations[code] = Registration{creator, title};
}

std::unique_ptr<LogEntry> LogEntryFactory::create(FourChars code) const
{
    const auto found = m_registrations.find(code);
    return std::unique_ptr<LogEntry>(found == m_registrations.end() ? nullptr : found->second.creator());
}

QString LogEntryFactory::title(FourChars code) const
{
    const auto found = m_registrations.find(code);
    return found == m_registrations.end() ? QString() : found->second.title;
}

QList<FourChars> LogEntryFactory::codes() const
{
    QList<FourChars> codes;
    for (const auto& registration : m_registrations)
        codes.append(registration.first);
    return codes;
}

LogEntryFactory& logEntryFactory()
{
    static LogEntryFactory factory;
    return factory;
}

} // namespace ko
