#include "history/LaterChanges.h"

#include "database/StoredHistory.h"

namespace ko {

LaterChanges::LaterChanges(StoredHistory& history, qint64 changeSet)
    : m_history(history)
    , m_changeSet(changeSet)
{
}

bool LaterChanges::readSome(int count)
{
    const LaterPart part = m_history.later(m_changeSet, m_after, count);
    for (const ChangeSet& set : part.sets)
        m_all += Alterations::of(set);
    m_after = part.after;
    m_remaining = part.remaining;
    return m_remaining > 0;
}

} // namespace ko
