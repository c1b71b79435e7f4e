#include "store/LogChain.h"

#include <sodium.h>

namespace ko {

namespace {

const char firstLink[] = "SELECT" KO_LINK_COLUMNS "FROM main.chain WHERE seq < ? ORDER BY seq LIMIT 1";
const char lastLink[] = "SELECT" KO_LINK_COLUMNS "FROM main.chain WHERE seq < ? ORDER BY seq DESC LIMIT 1";

} // namespace

LogChain::LogChain(SqliteFile& file, const Sealer& sealer)
    : m_file(file)
    , m_sealer(sealer)
{
}

LogLink LogChain::link(const char* sql)
{
    SqliteFile::Rows rows = m_file.run(sql, {LogLink::MaxNumber});
    return rows.next() ? LogLink::from(rows) : LogLink();
}

LogEnd LogChain::where()
{
    const LogLink end = link(lastLink);
    return end.number == 0 ? LogEnd() : LogEnd{link(firstLink).hash, end.number, end.hash};
}

void LogChain::begin()
{
    m_last = link(lastLink);
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
        LogRows rows(m_file, table, m_last.ends[size_t(table)]);
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
qint64 LogChain::nextNumber()
{
    return m_file
        .value("SELECT max(coalesce((SELECT max(seq) FROM main.chain WHERE seq < ?1), 0),"
               " coalesce((SELECT max(seq) FROM main.sqlite_sequence WHERE name = 'chain'"
               " AND typeof(seq) = 'integer' AND seq < ?1), 0)) + 1",
               {LogLink::MaxNumber})
        .toLongLong();
}

void LogChain::insert(LogLink link, const QByteArray& rowHashes)
{
    link.number = nextNumber();
    link.hash = link.beginHash(m_last.hash).add(rowHashes).result();
    link.seal = m_sealer.sign(link.hash);
    link.store(m_file);
    m_last = link;
}

} // namespace ko
