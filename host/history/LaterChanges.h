#ifndef KO_LATERCHANGES_H
#define KO_LATERCHANGES_H

#include "history/Alteration.h"

#include <QHash>

namespace ko {

class StoredHistory;

/// What was done after a change set, read bit by bit. Taken back, all together, it gives what there was then.
///
/// A value that was changed again and again is kept as one change, so that it takes memory with what was
/// touched, not with how often.
class KO_HOST_EXPORT LaterChanges
{
public:
    /// The history outlives it.
    LaterChanges(StoredHistory& history, qint64 changeSet);

    /// Reads at most \a count changes more of what is stored by now. False if there are no more.
    bool readSome(int count);

    /// What was read since the last call, each change as it was stored.
    QVector<Alteration> takeNew();

    /// How many were read, and how many were left when some were read last.
    qint64 count() const { return m_count; }
    qint64 remaining() const { return m_remaining; }

    const QVector<Alteration>& all() const { return m_all; }

private:
    void add(const Alteration& alteration);

    StoredHistory& m_history;
    const qint64 m_changeSet;
    qint64 m_after = 0;
    qint64 m_count = 0;
    qint64 m_remaining = 0;
    QVector<Alteration> m_all;
    QVector<Alteration> m_new;
    QHash<QString, int> m_last; ///< where in all the last change of a value is, since its node came or went
    QHash<NodeID, QStringList> m_values; ///< that have an entry there
};

} // namespace ko

#endif
