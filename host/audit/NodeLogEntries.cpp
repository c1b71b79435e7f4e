#include "audit/NodeLogEntries.h"

#include "ko/LogEntryFactory.h"

namespace ko {

namespace {

template <NodeLogEntry::Kind kind>
LogEntry* create()
{
    return new NodeLogEntry(kind, QString());
}

/// In the order of NodeLogEntry::Kind.
const struct
{
    FourChars code;
    LogEntryFactory::Creator create;
    const char* title;
    const char* description;
} kinds[] = {
    {"NAdd", create<NodeLogEntry::Added>, QT_TRANSLATE_NOOP("LogEntry", "Added device"),
     QT_TRANSLATE_NOOP("LogEntry", "Added device with name %1.")},
    {"NRem", create<NodeLogEntry::Removed>, QT_TRANSLATE_NOOP("LogEntry", "Removed device"),
     QT_TRANSLATE_NOOP("LogEntry", "Removed device with name %1.")},
    {"NAcc", create<NodeLogEntry::DeviceAccepted>, QT_TRANSLATE_NOOP("LogEntry", "Accepted another device"),
     QT_TRANSLATE_NOOP("LogEntry", "Accepted another device than before as %1.")},
    {"NClr", create<NodeLogEntry::ClearPasswordAllowed>,
     QT_TRANSLATE_NOOP("LogEntry", "Allowed a clear password"),
     QT_TRANSLATE_NOOP("LogEntry", "Allowed to send the password of %1 in the clear.")},
};

bool registerEntries()
{
    for (const auto& kind : kinds)
        logEntryFactory().registerCreator(kind.code, kind.create, QLatin1String(kind.title));
    return true;
}

const bool registered = registerEntries();

} // namespace

NodeLogEntry::NodeLogEntry(Kind kind, const QString& name)
    : m_kind(kind)
    , m_name("Name", QStringLiteral("name"), name)
{
    append(m_name);
}

FourChars NodeLogEntry::typeCode() const
{
    return kinds[m_kind].code;
}

QString NodeLogEntry::description() const
{
    return LogEntry::tr(kinds[m_kind].description);
}

QString NodeLogEntry::title() const
{
    return LogEntry::tr(kinds[m_kind].title);
}

} // namespace ko
