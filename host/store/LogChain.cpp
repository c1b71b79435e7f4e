#include "store/LogChain.h"

namespace ko {

LogChain::LogChain(sqlite3* handle, const QString& file, const Sealer& sealer)
    : m_handle(handle)
    , m_file(file)
    , m_sealer(sealer)
{
}

/// The first one in the \a order.
LogLink LogChain::link(const char* order) const
{
    const QByteArray sql = QByteArray("SELECT") + LogLink::Columns +
                           "FROM main.chain WHERE seq < ?1 ORDER BY seq " + order + " LIMIT 1";
    SqliteRows rows(m_handle, m_file, sql.constData(), {LogLink::MaxNumber});
    return rows.next() ? LogLink::from(rows) : LogLink();
}

LogEnd LogChain::where() const
{
    const LogLink end = link("DESC");
    return end.number == 0 ? LogEnd() : LogEnd{link("ASC").hash, end.number, end.hash};
}

void LogChain::begin()
{
    m_last = link("DESC");
    if (m_last.number != 0) {
        add(LogLink::Foreign);
        return;
    }
    LogLink first;
    first.kind = LogLink::Beginning;
    first.checks.resize(16);
    randombytes_buf(first.checks.data(), size_t(first.checks.size()));
    insert(first, QByteArray());
    add(LogLink::Older);
}

void LogChain::end()
{
    add(LogLink::Commit);
}

void LogChain::add(char kind)
{
    while (addOne(kind)) {
    }
}

/// Returns whether there may be more rows than those of this link.
bool LogChain::addOne(char kind)
{
    LogLink link;
    link.kind = kind;
    link.ends = m_last.ends;
    QByteArray hashes;
    int count = 0;
    for (int table = 0; table < LogRows::Tables; ++table) {
        LogRows rows(m_handle, m_file, table, m_last.ends[size_t(table)]);
        for (; !rows.isAtEnd() && count < MostRows; rows.next(), ++count) {
            link.ends[size_t(table)] = rows.number();
            ++link.counts[size_t(table)];
            link.checks += rows.hash().left(LogLink::CheckSize);
            hashes += rows.hash();
        }
    }
    if (count > 0)
        insert(link, hashes);
    return count == MostRows;
}

/// Not one that was given already, whatever others made of the numbers: what cannot be numbered could not be
/// stored.
qint64 LogChain::nextNumber() const
{
    SqliteRows rows(m_handle, m_file,
                    "SELECT max(coalesce((SELECT max(seq) FROM main.chain WHERE seq < ?1), 0),"
                    " coalesce((SELECT max(seq) FROM main.sqlite_sequence WHERE name = 'chain'"
                    " AND typeof(seq) = 'integer' AND seq < ?1), 0)) + 1",
                    {LogLink::MaxNumber});
    rows.next();
    return rows.number(0);
}

void LogChain::insert(LogLink link, const QByteArray& rowHashes)
{
    link.number = nextNumber();
    link.hash = link.beginHash(m_last.hash).add(rowHashes).result();
    link.seal = m_sealer.sign(link.hash);
    SqliteRows row(
        m_handle, m_file,
        "INSERT OR REPLACE INTO main.chain (seq, set_end, change_end, audit_end, sets, changes, audits, kind,"
        " checks, hash, seal) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, char(?8), ?9, ?10, ?11)",
        {link.number, link.ends[0], link.ends[1], link.ends[2], link.counts[0], link.counts[1],
         link.counts[2], link.kind});
    row.bind(9, link.checks);
    row.bind(10, link.hash);
    row.bind(11, link.seal);
    row.next();
    m_last = link;
}

} // namespace ko
