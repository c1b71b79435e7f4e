#include "audit/ProgramLogEntry.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

LogEntry* create()
{
    return new ProgramLogEntry;
}

bool registerEntry()
{
    logEntryFactory().registerCreator(ProgramLogEntry::code(), create, QLatin1String("Program log"));
    return true;
}

const bool registered = registerEntry();

} // namespace

ProgramLogEntry::ProgramLogEntry(int level, const QString& line)
    : m_level("Levl", QLatin1String("level"), QString::number(level))
    , m_line("Line", QLatin1String("line"), line)
{
    append(m_level);
    append(m_line);
}

LogCategory ProgramLogEntry::category() const
{
    return ELogCategory(code().value());
}

QString ProgramLogEntry::description() const
{
    return LogEntry::tr("Level %1: %2");
}

QString ProgramLogEntry::title() const
{
    return LogEntry::tr("Program log");
}

} // namespace ko
