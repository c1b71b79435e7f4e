#include "inspector/NodeChangeLogEntry.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

// Not an array: the macro puts the text in parentheses in Qt 4.8.
const char* const titleText = QT_TRANSLATE_NOOP("LogEntry", "Changed device properties");

LogEntry* create()
{
    return new NodeChangeLogEntry(QString());
}

bool registerEntry()
{
    logEntryFactory().registerCreator("NChg", create, QLatin1String(titleText));
    return true;
}

// While the library is loaded, so that a host can rebuild what it stored.
const bool registered = registerEntry();

} // namespace

NodeChangeLogEntry::NodeChangeLogEntry(const QString& name)
    : m_name("Name", QLatin1String("name"), name)
{
    Q_UNUSED(registered);
    append(m_name);
}

NodeChangeLogEntry::~NodeChangeLogEntry() = default;

FourChars NodeChangeLogEntry::typeCode() const
{
    return "NChg";
}

LogCategory NodeChangeLogEntry::category() const
{
    return LogCategoryDevices;
}

QString NodeChangeLogEntry::description() const
{
    return LogEntry::tr("Changed properties of device with name %1.");
}

QString NodeChangeLogEntry::title() const
{
    return LogEntry::tr(titleText);
}

} // namespace ko
