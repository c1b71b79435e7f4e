#include "audit/HistoryLogEntry.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

const char* const titleText = QT_TRANSLATE_NOOP("LogEntry", "Thinned history");

LogEntry* createEntry()
{
    return new HistoryLogEntry(QString(), QString());
}

bool registerEntry()
{
    logEntryFactory().registerCreator("HThn", createEntry, QLatin1String(titleText));
    return true;
}

// While the library is loaded, so that a stored entry can be rebuilt.
const bool registered = registerEntry();

} // namespace

HistoryLogEntry::HistoryLogEntry(const QString& last, const QString& lines)
    : m_last("HLst", QString::fromLatin1("last change set"), last)
    , m_lines("HLin", QString::fromLatin1("lines"), lines)
{
    append(m_last);
    append(m_lines);
}

FourChars HistoryLogEntry::typeCode() const
{
    return FourChars("HThn");
}

LogCategory HistoryLogEntry::category() const
{
    return LogCategory(LogCategoryDevices);
}

QString HistoryLogEntry::description() const
{
    return LogEntry::tr("Took the details of changes up to number %1 out of the history: %2 lines.");
}

QString HistoryLogEntry::title() const
{
    return LogEntry::tr(titleText);
}

} // namespace ko
