#include "store/LogLink.h"

#include <QtEndian>

#include <sodium.h>

namespace ko {

namespace {

struct Table
{
    const char* rows;
    int columns;
};

const std::array<Table, LogRows::Tables> tables = {{
    {"SELECT seq, id, time, user, host, purpose, subject FROM main.change_sets WHERE seq > ?1 ORDER BY seq",
     7},
    {"SELECT seq, kind, id, change_set, before, after FROM main.changes WHERE seq > ?1 ORDER BY seq", 6},
    {"SELECT seq, time, user, host, code, data, change_set FROM main.audit WHERE seq > ?1 ORDER BY seq", 7},
}};

crypto_generichash_state* stateIn(std::array<unsigned char, 384>& bytes)
{
    static_assert(sizeof(crypto_generichash_state) == sizeof bytes, "libsodium keeps this size");
    static_assert(alignof(crypto_generichash_state) <= 64, "and this alignment");
    return reinterpret_cast<crypto_generichash_state*>(bytes.data());
}

} // namespace

LogHash::LogHash()
{
    crypto_generichash_init(stateIn(m_state), nullptr, 0, Size);
}

LogHash& LogHash::add(std::string_view bytes)
{
    crypto_generichash_update(stateIn(m_state), reinterpret_cast<const unsigned char*>(bytes.data()),
                              bytes.size());
    return *this;
}

LogHash& LogHash::add(const QByteArray& bytes)
{
    return add(std::string_view(bytes.constData(), size_t(bytes.size())));
}

/// The same on every computer.
LogHash& LogHash::add(qint64 number)
{
    const qint64 little = qToLittleEndian(number);
    return add(std::string_view(reinterpret_cast<const char*>(&little), sizeof little));
}

QByteArray LogHash::result()
{
    QByteArray bytes(Size, Qt::Uninitialized);
    crypto_generichash_final(stateIn(m_state), reinterpret_cast<unsigned char*>(bytes.data()), Size);
    return bytes;
}

LogRows::LogRows(SqliteFile& file, int table, qint64 after)
    : m_rows(file.run(tables[size_t(table)].rows, {after}))
    , m_columns(tables[size_t(table)].columns)
{
    next();
}

void LogRows::next()
{
    m_isAtEnd = !m_rows.next();
    if (m_isAtEnd)
        return;
    m_number = m_rows.number(0);
    LogHash hash;
    for (int column = 0; column < m_columns; ++column) {
        const char type = m_rows.type(column);
        const std::string_view value = m_rows.utf8(column);
        hash.add(std::string_view(&type, 1)).add(qint64(value.size())).add(value);
    }
    m_hash = hash.result();
}

LogLink LogLink::from(const SqliteFile::Rows& rows)
{
    const auto bytes = [&rows](int column) {
        const std::string_view value = rows.utf8(column);
        return QByteArray(value.data(), int(value.size()));
    };
    LogLink link;
    link.number = rows.number(0);
    const QByteArray kind = bytes(1);
    link.kind = kind.size() == 1 ? kind.at(0) : '\0';
    for (size_t table = 0; table < link.ends.size(); ++table) {
        link.ends[table] = rows.number(2 + int(table));
        link.counts[table] = rows.number(2 + LogRows::Tables + int(table));
    }
    link.checks = bytes(8);
    link.hash = bytes(9);
    link.seal = bytes(10);
    return link;
}

QByteArray LogLink::thinnedHash(const QByteArray& rowHashes) const
{
    return beginHash(hash).add(rowHashes).result(); // the kind is in it: no other link has the same
}

void LogLink::store(SqliteFile& file) const
{
    file.run("INSERT OR REPLACE INTO main.chain (" KO_LINK_COLUMNS
             ") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
             {number, QString(QLatin1Char(kind)), ends[0], ends[1], ends[2], counts[0], counts[1], counts[2],
              checks, hash, seal});
}

LogHash LogLink::beginHash(const QByteArray& before) const
{
    LogHash result;
    result.add(before).add(number).add(std::string_view(&kind, 1));
    for (size_t table = 0; table < ends.size(); ++table)
        result.add(ends[table]).add(counts[table]);
    if (kind == Beginning)
        result.add(checks);
    return result;
}

} // namespace ko
