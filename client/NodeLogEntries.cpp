#include "NodeLogEntries.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

const char* const added = QT_TRANSLATE_NOOP("LogEntry", "Added device");
const char* const removed = QT_TRANSLATE_NOOP("LogEntry", "Removed device");
const char* const allowedClear = QT_TRANSLATE_NOOP("LogEntry", "Allowed a clear password");
const char* const accepted = QT_TRANSLATE_NOOP("LogEntry", "Accepted another device");

template <class Entry>
LogEntry* create()
{
    return new Entry(QString());
}

} // namespace

NodeLogEntry::NodeLogEntry(const QString& name)
    : m_name("Name", QStringLiteral("name"), name)
{
    append(m_name);
}

NodeAddLogEntry::NodeAddLogEntry(const QString& name)
    : NodeLogEntry(name)
{
}

FourChars NodeAddLogEntry::typeCode() const
{
    return "NAdd";
}

QString NodeAddLogEntry::description() const
{
    return LogEntry::tr("Added device with name %1.");
}

QString NodeAddLogEntry::title() const
{
    return LogEntry::tr(added);
}

NodeRemoveLogEntry::NodeRemoveLogEntry(const QString& name)
    : NodeLogEntry(name)
{
}

FourChars NodeRemoveLogEntry::typeCode() const
{
    return "NRem";
}

QString NodeRemoveLogEntry::description() const
{
    return LogEntry::tr("Removed device with name %1.");
}

QString NodeRemoveLogEntry::title() const
{
    return LogEntry::tr(removed);
}

NodeAcceptLogEntry::NodeAcceptLogEntry(const QString& name)
    : NodeLogEntry(name)
{
}

FourChars NodeAcceptLogEntry::typeCode() const
{
    return "NAcc";
}

QString NodeAcceptLogEntry::description() const
{
    return LogEntry::tr("Accepted another device than before as %1.");
}

QString NodeAcceptLogEntry::title() const
{
    return LogEntry::tr(accepted);
}

NodeClearPasswordLogEntry::NodeClearPasswordLogEntry(const QString& name)
    : NodeLogEntry(name)
{
}

FourChars NodeClearPasswordLogEntry::typeCode() const
{
    return "NClr";
}

QString NodeClearPasswordLogEntry::description() const
{
    return LogEntry::tr("Allowed to send the password of %1 in the clear.");
}

QString NodeClearPasswordLogEntry::title() const
{
    return LogEntry::tr(allowedClear);
}

void registerNodeLogEntries()
{
    logEntryFactory().registerCreator("NAcc", create<NodeAcceptLogEntry>, QLatin1String(accepted));
    logEntryFactory().registerCreator("NAdd", create<NodeAddLogEntry>, QLatin1String(added));
    logEntryFactory().registerCreator("NClr", create<NodeClearPasswordLogEntry>, QLatin1String(allowedClear));
    logEntryFactory().registerCreator("NRem", create<NodeRemoveLogEntry>, QLatin1String(removed));
}

} // namespace ko
