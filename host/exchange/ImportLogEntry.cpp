#include "exchange/ImportLogEntry.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

const char* const titleText = QT_TRANSLATE_NOOP("LogEntry", "Imported devices");

LogEntry* createEntry()
{
    return new ImportLogEntry(QString(), 0, 0, 0);
}

bool registerEntry()
{
    logEntryFactory().registerCreator("NImp", createEntry, QLatin1String(titleText));
    return true;
}

// While the library is loaded, so that a stored entry can be rebuilt.
const bool registered = registerEntry();

} // namespace

ImportLogEntry::ImportLogEntry(const QString& fileName, int added, int changed, int refused)
    : m_fileName("File", QString::fromLatin1("file"), fileName)
    , m_added("NAdd", QString::fromLatin1("added"), QString::number(added))
    , m_changed("NUpd", QString::fromLatin1("changed"), QString::number(changed))
    , m_refused("NBad", QString::fromLatin1("refused"), QString::number(refused))
{
    append(m_fileName);
    append(m_added);
    append(m_changed);
    append(m_refused);
}

FourChars ImportLogEntry::typeCode() const
{
    return FourChars("NImp");
}

LogCategory ImportLogEntry::category() const
{
    return LogCategory(LogCategoryDevices);
}

QString ImportLogEntry::description() const
{
    return LogEntry::tr("Imported devices from %1: %2 added, %3 changed, %4 lines refused.");
}

QString ImportLogEntry::title() const
{
    return LogEntry::tr(titleText);
}

} // namespace ko
