#include "discovery/AddressChangeLogEntry.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

const char* const titleText = QT_TRANSLATE_NOOP("LogEntry", "Accepted new address");

LogEntry* createEntry()
{
    return new AddressChangeLogEntry(QString(), QString(), QString());
}

bool registerEntry()
{
    logEntryFactory().registerCreator("NAdr", createEntry, QLatin1String(titleText));
    return true;
}

// While the library is loaded, so that a stored entry can be rebuilt.
const bool registered = registerEntry();

} // namespace

AddressChangeLogEntry::AddressChangeLogEntry(const QString& name, const QString& oldAddress,
                                             const QString& newAddress)
    : m_name("Name", QString::fromLatin1("name"), name)
    , m_oldAddress("AOld", QString::fromLatin1("old address"), oldAddress)
    , m_newAddress("ANew", QString::fromLatin1("new address"), newAddress)
{
    append(m_name);
    append(m_oldAddress);
    append(m_newAddress);
}

FourChars AddressChangeLogEntry::typeCode() const
{
    return FourChars("NAdr");
}

LogCategory AddressChangeLogEntry::category() const
{
    return LogCategory(LogCategoryDevices);
}

QString AddressChangeLogEntry::description() const
{
    return LogEntry::tr("Moved device %1 from address %2 to %3, where it was found.");
}

QString AddressChangeLogEntry::title() const
{
    return LogEntry::tr(titleText);
}

} // namespace ko
