#include "store/LogThinning.h"

#include "model/LogFinding.h"
#include "secrets/Keyring.h"
#include "store/HistoryReader.h"
#include "store/SqliteStore.h"

#include <QDateTime>

#include <algorithm>

namespace ko {

namespace {

constexpr qint64 Day = qint64(24) * 60 * 60 * 1000; // ms

} // namespace

LogThinning::LogThinning(SqliteFile& file, const Sealer& sealer)
    : m_file(file)
    , m_sealer(sealer)
{
}

qint64 LogThinning::last(const HistoryLimit& limit, qint64 now)
{
    qint64 last = 0;
    // What a site has not got yet would go with the rest, and what it has could not be told from what it
    // lost.
    if (m_file.value("SELECT 1 FROM sqlite_master WHERE name = 'shared_site'").isValid())
        return last;
    if (limit.days > 0)
        last = lastByAge(now - limit.days * Day);
    if (limit.megabytes > 0)
        last = std::max(last, lastBySize(qint64(limit.megabytes) * 1000000));
    return last;
}

/// By the number, not by the time: clocks of stations differ, and whoever comes after one that stays, stays.
qint64 LogThinning::lastByAge(qint64 oldest)
{
    return m_file
        .value("SELECT coalesce((SELECT min(seq) FROM change_sets WHERE time >= ?) - 1,"
               " (SELECT max(seq) FROM change_sets), 0)",
               {oldest})
        .toLongLong();
}

qint64 LogThinning::lastBySize(qint64 bytes)
{
    return m_file
        .value("SELECT coalesce(max(change_set), 0) FROM"
               " (SELECT change_set, sum(sum(coalesce(length(CAST(before AS BLOB)), 0)"
               " + coalesce(length(CAST(after AS BLOB)), 0))) OVER (ORDER BY change_set DESC) AS total"
               " FROM changes WHERE change_set IS NOT NULL GROUP BY change_set) WHERE total > ?",
               {bytes})
        .toLongLong();
}

/// After the link \a number; none has the number 0.
LogLink LogThinning::next(qint64 number)
{
    SqliteFile::Rows rows =
        m_file.run("SELECT" KO_LINK_COLUMNS "FROM main.chain WHERE seq > ? AND seq < ? ORDER BY seq LIMIT 1",
                   {number, LogLink::MaxNumber});
    return rows.next() ? LogLink::from(rows) : LogLink();
}

LogThinning::Outcome LogThinning::thinSome(qint64 last)
{
    const qint64 until = m_lines + RowsAtOnce;
    while (m_lines < until) {
        const LogLink link = next(m_before.number);
        const bool isFirst = m_before.number == 0;
        if (link.number == 0 || (!isFirst && link.ends[LogFinding::ChangeSets] > last))
            return Outcome::Done;
        if (!isFirst && link.kind != LogLink::Thinned && !thin(link))
            return Outcome::Altered;
        m_before = link;
    }
    return Outcome::More;
}

/// False if the link is not what it was.
bool LogThinning::thin(const LogLink& link)
{
    LogLink thinned = link;
    thinned.kind = LogLink::Thinned;
    thinned.counts = {};
    thinned.checks.clear();
    LogHash whole = link.beginHash(m_before.hash);
    QByteArray kept;
    for (int table = 0; table < LogRows::Tables; ++table) {
        LogRows rows(m_file, table, m_before.ends[size_t(table)]);
        for (; !rows.isAtEnd() && rows.number() <= link.ends[size_t(table)]; rows.next()) {
            whole.add(rows.hash());
            if (table == LogFinding::Changes)
                continue;
            kept += rows.hash();
            thinned.checks += rows.hash().left(LogLink::CheckSize);
            ++thinned.counts[size_t(table)];
        }
    }
    const bool isOurs = link.kind == LogLink::Commit || link.kind == LogLink::Older;
    if (!isOurs || whole.result() != link.hash ||
        (!link.seal.isEmpty() && m_sealer.check(link.hash, link.seal) == Sealer::Signature::Bad))
        return false;
    thinned.seal = m_sealer.sign(thinned.thinnedHash(kept));
    thinned.store(m_file);
    m_lines += link.counts[LogFinding::Changes];
    m_file.run("DELETE FROM changes WHERE seq > ? AND seq <= ?",
               {m_before.ends[LogFinding::Changes], link.ends[LogFinding::Changes]});
    return true;
}

ThinnedHistory LogThinning::thin(SqliteStore& store, const HistoryLimit& limit,
                                 const std::function<bool()>& goOn)
{
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    if (!key->sealer.canSeal())
        throw StoreFailure{
            StoreError::make(StoreError::KeyNotKept, store.fileName(), QLatin1String("no key"))};
    ThinnedHistory result;
    LogThinning thinning(store, key->sealer);
    const qint64 last = thinning.last(limit, QDateTime::currentMSecsSinceEpoch());
    auto outcome = last > 0 ? LogThinning::Outcome::More : LogThinning::Outcome::Done;
    while (outcome == LogThinning::Outcome::More && goOn()) {
        Transaction transaction(store, Transaction::Write);
        outcome = thinning.thinSome(last);
        transaction.commit();
        result.lines = thinning.lines();
    }
    result.last = HistoryReader(store).lastThinned();
    result.isAltered = outcome == LogThinning::Outcome::Altered;
    return result;
}

} // namespace ko
