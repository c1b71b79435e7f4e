#include "inspector/NodeRenameLogEntry.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

// Not an array: the macro puts the text in parentheses in Qt 4.8.
const char* const titleText = QT_TRANSLATE_NOOP("LogEntry", "Changed device name");

LogEntry* create()
{
    return new NodeRenameLogEntry(QString(), QString());
}

bool registerEntry()
{
    logEntryFactory().registerCreator("NRen", create, QLatin1String(titleText));
    return true;
}

// While the library is loaded, so that a host can rebuild what it stored.
const bool registered = registerEntry();

} // namespace

NodeRenameLogEntry::NodeRenameLogEntry(const QString& oldName, const QString& newName)
    : m_oldName("ONam", QLatin1String("oldname"), oldName)
    , m_newName("NNam", QLatin1String("newname"), newName)
{
    Q_UNUSED(registered);
    append(m_oldName);
    append(m_newName);
}

NodeRenameLogEntry::~NodeRenameLogEntry() = default;

FourChars NodeRenameLogEntry::typeCode() const
{
    return "NRen";
}

LogCategory NodeRenameLogEntry::category() const
{
    return LogCategoryDevices;
}

QString NodeRenameLogEntry::description() const
{
    return LogEntry::tr("Changed name of device from %1 to %2.");
}

QString NodeRenameLogEntry::title() const
{
    return LogEntry::tr(titleText);
}

} // namespace ko
