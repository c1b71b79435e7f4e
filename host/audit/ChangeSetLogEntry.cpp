#include "audit/ChangeSetLogEntry.h"

#include <algorithm>

namespace ko {

namespace {

const struct
{
    Purpose purpose;
    const char* title;
} titles[] = {
    {Purpose::Edit, QT_TRANSLATE_NOOP("LogEntry", "Changed without a dialog")},
    {Purpose::Add, QT_TRANSLATE_NOOP("LogEntry", "Added by the program")},
    {Purpose::Remove, QT_TRANSLATE_NOOP("LogEntry", "Removed by the program")},
    {Purpose::Settings, QT_TRANSLATE_NOOP("LogEntry", "Changed settings")},
    {Purpose::Proxy, QT_TRANSLATE_NOOP("LogEntry", "Changed the global proxy")},
    {Purpose::Environments, QT_TRANSLATE_NOOP("LogEntry", "Changed environments")},
    {Purpose::Scan, QT_TRANSLATE_NOOP("LogEntry", "Found by a scan")},
    {Purpose::Address, QT_TRANSLATE_NOOP("LogEntry", "Accepted new addresses")},
    {Purpose::Check, QT_TRANSLATE_NOOP("LogEntry", "Noted what cameras are known by")},
    {Purpose::FillIn, QT_TRANSLATE_NOOP("LogEntry", "Filled in what cameras said")},
    {Purpose::Import, QT_TRANSLATE_NOOP("LogEntry", "Imported a list")},
    {Purpose::Start, QT_TRANSLATE_NOOP("LogEntry", "Made the database")},
    {Purpose::Restore, QT_TRANSLATE_NOOP("LogEntry", "Restored a backup")},
    {Purpose::Unknown, QT_TRANSLATE_NOOP("LogEntry", "Changed by a newer version")},
};

QString nodesOf(const ChangeSetRow& row)
{
    if (row.nodes < 2)
        return row.firstName;
    return LogEntry::tr("%1 and %n other(s)", nullptr, row.nodes - 1).arg(row.firstName);
}

} // namespace

ChangeSetLogEntry::ChangeSetLogEntry(const ChangeSetRow& row)
    : m_purpose(row.cause.purpose)
    , m_nodes("Node", QLatin1String("nodes"), row.cause.subject.isEmpty() ? nodesOf(row) : row.cause.subject)
{
    append(m_nodes);
}

QString ChangeSetLogEntry::title() const
{
    const auto* found = std::find_if(std::begin(titles), std::end(titles),
                                     [this](const auto& entry) { return entry.purpose == m_purpose; });
    return LogEntry::tr(found->title);
}

} // namespace ko
