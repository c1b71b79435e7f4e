#include "audit/ChangeSetLogEntry.h"

#include "audit/ChangeSetTitle.h"

namespace ko {

namespace {

/// Of what was put back the title says what it was.
QString textOf(const ChangeSetRow& row)
{
    if (row.cause.purpose == Purpose::Undo)
        return ChangeSetTitle::of(row);
    return row.cause.subject.isEmpty() ? ChangeSetTitle::nodes(row) : row.cause.subject;
}

} // namespace

ChangeSetLogEntry::ChangeSetLogEntry(const ChangeSetRow& row)
    : m_purpose(row.cause.purpose)
    , m_nodes("Node", QLatin1String("nodes"), textOf(row))
{
    append(m_nodes);
}

QString ChangeSetLogEntry::title() const
{
    return ChangeSetTitle::logged(m_purpose);
}

} // namespace ko
