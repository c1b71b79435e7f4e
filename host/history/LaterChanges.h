#ifndef KO_LATERCHANGES_H
#define KO_LATERCHANGES_H

#include "history/Alteration.h"

namespace ko {

class StoredHistory;

/// What was done after a change set, read bit by bit. Taken back, all together, it gives what there was then.
class KO_HOST_EXPORT LaterChanges
{
public:
    /// The history outlives it.
    LaterChanges(StoredHistory& history, qint64 changeSet);

    /// Reads at most \a count changes more of what is stored by now. False if there are no more.
    bool readSome(int count);

    /// How many were left when some were read last.
    qint64 remaining() const { return m_remaining; }

    const QVector<Alteration>& all() const { return m_all; }

private:
    StoredHistory& m_history;
    const qint64 m_changeSet;
    qint64 m_after = 0;
    qint64 m_remaining = 0;
    QVector<Alteration> m_all;
};

} // namespace ko

#endif
