#ifndef KO_WAITINGROWS_H
#define KO_WAITINGROWS_H

#include "store/SharedLog.h"
#include "store/SqliteStore.h"

namespace ko {

/// The rows of a shared file's history that its site has not got. Each row is looked at once: most came from
/// the site, and there may be millions of those.
class WaitingRows
{
public:
    /// \a store outlives it. Nothing is asked in a transaction that has added rows: if it is rolled back,
    /// others get their numbers.
    explicit WaitingRows(SqliteStore& store);

    /// First what the site lost, then what it never had. The columns: number that it had, row, line, kind,
    /// id, before, after; then those of the change set: id, time, user, host, purpose, subject.
    SqliteStore::Rows after(const SharedLog::Cursor& cursor);
    bool areAfter(const SharedLog::Cursor& cursor);

    /// Of all.
    qint64 count();

private:
    /// Rows after one that are known not to wait, and never will again.
    struct Quiet
    {
        qint64 after = 0;
        qint64 until = 0;
    };

    qint64 quietAfter(qint64 row);

    SqliteStore& m_store;
    Quiet m_fromFirst;
    Quiet m_fromSent; ///< from the last one that was sent
};

} // namespace ko

#endif
