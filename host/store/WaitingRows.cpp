#include "store/WaitingRows.h"

#include <limits>

namespace ko {

namespace {

const qint64 neverHad = std::numeric_limits<qint64>::max(); ///< Cursor::former behind all that the site lost

} // namespace

WaitingRows::WaitingRows(SqliteStore& store)
    : m_store(store)
{
}

SqliteStore::Rows WaitingRows::after(const SharedLog::Cursor& cursor)
{
    const qint64 quietUntil = quietAfter(cursor.former == neverHad ? cursor.row : 0);
    return m_store.run(
        "SELECT * FROM (SELECT -s.number AS former, c.seq AS seq, s.line, c.kind, c.id, c.before, c.after,"
        " t.id, t.time, t.user, t.host, t.purpose, t.subject FROM shared_lines s JOIN changes c ON c.seq = "
        "s.seq"
        " JOIN change_sets t ON t.seq = c.change_set WHERE s.number < 0 AND s.line IS NOT NULL"
        " AND (-s.number, c.seq) > (?, ?) ORDER BY -s.number, c.seq)"
        " UNION ALL SELECT * FROM (SELECT 9223372036854775807 AS former, c.seq AS seq, c.seq, c.kind, c.id,"
        " c.before, c.after, t.id, t.time, t.user, t.host, t.purpose, t.subject FROM changes c"
        " JOIN change_sets t ON t.seq = c.change_set WHERE c.kind IN ('N', 'R', 'S', 'E')"
        " AND c.seq > ?"
        " AND NOT EXISTS (SELECT 1 FROM shared_lines s WHERE s.seq = c.seq) ORDER BY c.seq)",
        {cursor.former, cursor.row, quietUntil});
}

bool WaitingRows::areAfter(const SharedLog::Cursor& cursor)
{
    return after(cursor).next();
}

qint64 WaitingRows::count()
{
    return m_store
        .value("SELECT (SELECT count(*) FROM shared_lines WHERE number < 0 AND line IS NOT NULL) +"
               " (SELECT count(*) FROM changes c WHERE c.seq > ? AND c.kind IN ('N', 'R', 'S', 'E')"
               " AND c.change_set IS NOT NULL"
               " AND NOT EXISTS (SELECT 1 FROM shared_lines s WHERE s.seq = c.seq))",
               {quietAfter(0)})
        .toLongLong();
}

/// No row that waits lies between \a row and the one that this returns.
qint64 WaitingRows::quietAfter(qint64 row)
{
    Quiet& known = row == 0 ? m_fromFirst : m_fromSent;
    if (known.after != row)
        known = {row, row};
    const qint64 last =
        m_store.value("SELECT max(seq) FROM changes").toLongLong(); // first: others write meanwhile
    const QVariant first =
        m_store.value("SELECT c.seq FROM changes c WHERE c.seq > ? AND c.kind IN ('N', 'R', 'S', 'E')"
                      " AND c.change_set IS NOT NULL"
                      " AND NOT EXISTS (SELECT 1 FROM shared_lines s WHERE s.seq = c.seq)"
                      " ORDER BY c.seq LIMIT 1",
                      {known.until});
    known.until = first.isValid() ? first.toLongLong() - 1 : qMax(known.until, last);
    return known.until;
}

} // namespace ko
