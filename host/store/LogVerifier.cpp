#include "store/LogVerifier.h"

#include <numeric>
#include <utility>

namespace ko {

namespace {

constexpr int ReportInterval = 10000; // rows

/// Compares the rows of a link with what it has kept of each.
class RowComparison
{
public:
    typedef std::function<void(LogFinding::Kind, qint64)> Tell;

    RowComparison(const QByteArray& checks, const Tell& tell)
        : m_checks(checks)
        , m_tell(tell)
    {
    }

    void take(qint64 number, const QByteArray& hash)
    {
        const QByteArray check = hash.left(LogLink::CheckSize);
        const int place = find(check);
        if (place < 0) {
            settle(m_next + 1);
            m_suspect = number;
            return;
        }
        settle(place);
        for (int missing = place - m_next; missing > 0; --missing)
            m_tell(LogFinding::Missing, number - missing);
        m_next = place + 1;
    }

    /// \a last is the number of the last row that there was.
    void end(qint64 last)
    {
        settle(m_next + 1);
        for (int missing = count() - m_next; missing > 0; --missing)
            m_tell(LogFinding::Missing, last - missing + 1);
    }

private:
    int count() const { return int(m_checks.size()) / LogLink::CheckSize; }

    /// The place of a row that was there, at or after the next one.
    int find(const QByteArray& check) const
    {
        int at = m_next * LogLink::CheckSize;
        do {
            at = int(m_checks.indexOf(check, at));
            if (at < 0 || at % LogLink::CheckSize == 0)
                return at < 0 ? -1 : at / LogLink::CheckSize;
            ++at;
        } while (true);
    }

    /// The row that nobody knows stands for one that is gone, if one is gone before \a place.
    void settle(int place)
    {
        if (!m_suspect)
            return;
        const bool isAltered = m_next < std::min(place, count());
        m_tell(isAltered ? LogFinding::Altered : LogFinding::PutIn, *std::exchange(m_suspect, std::nullopt));
        if (isAltered)
            ++m_next;
    }

    const QByteArray m_checks;
    const Tell m_tell;
    int m_next = 0;
    std::optional<qint64> m_suspect;
};

} // namespace

LogVerifier::LogVerifier(SqliteFile& file, const Sealer& sealer, const GoOn& goOn)
    : m_file(file)
    , m_sealer(sealer)
    , m_goOn(goOn)
{
}

std::optional<LogReport> LogVerifier::run(const LogEnd& known)
{
    for (int table = 0; table < LogRows::Tables; ++table)
        m_rows.emplace_back(m_file, table, LogLink::BeforeAll);
    SqliteFile::Rows links = m_file.run("SELECT" KO_LINK_COLUMNS "FROM main.chain ORDER BY seq");
    LogLink last;
    while (!m_isEnded && links.next()) {
        const LogLink link = LogLink::from(links);
        if (last.number == 0)
            m_report.end.log = link.hash;
        verify(link, last);
        compareWithKnown(link, known);
        last = link;
    }
    takeRest(last.number != 0);
    if (m_isEnded)
        return std::nullopt;
    m_report.end.link = last.number;
    m_report.end.hash = last.hash;
    if (!known.log.isEmpty() && m_report.end.log != known.log)
        add(LogFinding::OtherLog, 0, 0);
    else if (!known.log.isEmpty() && !m_isKnownSeen)
        add(LogFinding::CutOff, LogFinding::ChangeSets,
            std::max<qint64>(0, last.ends[LogFinding::ChangeSets]));
    return m_report;
}

void LogVerifier::verify(const LogLink& link, const LogLink& before)
{
    m_firstEntry = 0;
    const bool hasRows = link.kind != LogLink::Beginning;
    const qint64 count = std::accumulate(link.counts.begin(), link.counts.end(), qint64(0));
    const int findings = int(m_report.findings.size());
    const bool isThinned = link.kind == LogLink::Thinned;
    LogHash hash = link.beginHash(isThinned ? link.hash : before.hash);
    int first = 0;
    for (int table = 0; table < LogRows::Tables; ++table) {
        const int length =
            int(qBound<qint64>(0, link.counts[size_t(table)], link.checks.size())) * LogLink::CheckSize;
        compare(table, link, hasRows ? link.checks.mid(first, length) : QByteArray(), &hash);
        first += length;
    }
    if (link.kind == LogLink::Older)
        m_report.older += count;
    const bool isWhole = findings == int(m_report.findings.size());
    if (isThinned)
        verifyThinned(link, before, isWhole ? hash.result() : QByteArray());
    else if (isWhole && hash.result() != link.hash)
        addAtLink(LogFinding::Rewritten, link);
    else
        checkSeal(link, link.hash);
}

/// Nobody thins without the key, nor anything but the oldest. \a hash is empty if rows are not as they were,
/// which is told.
void LogVerifier::verifyThinned(const LogLink& link, const LogLink& before, const QByteArray& hash)
{
    m_report.thinned = link.ends[LogFinding::ChangeSets];
    const bool isOldest = before.kind == LogLink::Beginning || before.kind == LogLink::Thinned;
    if (link.seal.isEmpty() || !isOldest)
        addAtLink(LogFinding::Rewritten, link);
    else if (!hash.isEmpty())
        checkSeal(link, hash);
}

void LogVerifier::compare(int table, const LogLink& link, const QByteArray& checks, LogHash* hash)
{
    LogRows& rows = m_rows[size_t(table)];
    const qint64 end = link.ends[size_t(table)];
    RowComparison comparison(checks,
                             [this, table](LogFinding::Kind kind, qint64 entry) { add(kind, table, entry); });
    for (; !m_isEnded && !rows.isAtEnd() && rows.number() <= end; rows.next()) {
        if (m_firstEntry == 0) {
            m_firstEntry = rows.number();
            m_firstTable = table;
        }
        if (link.kind == LogLink::Foreign)
            add(LogFinding::PutIn, table, rows.number());
        comparison.take(rows.number(), rows.hash());
        hash->add(rows.hash());
        countRow();
    }
    comparison.end(end);
}

void LogVerifier::checkSeal(const LogLink& link, const QByteArray& hash)
{
    if (link.seal.isEmpty()) {
        ++m_report.unsealed;
        return;
    }
    switch (m_sealer.check(hash, link.seal)) {
    case Sealer::Signature::Good:
        break;
    case Sealer::Signature::Bad:
        addAtLink(LogFinding::Rewritten, link);
        break;
    case Sealer::Signature::OtherKey:
        if (!std::exchange(m_isOtherKeyTold, true))
            addAtLink(LogFinding::OtherKey, link);
        break;
    }
}

void LogVerifier::compareWithKnown(const LogLink& link, const LogEnd& known)
{
    if (link.number != known.link)
        return;
    m_isKnownSeen = true;
    if (link.hash != known.hash && m_report.end.log == known.log)
        addAtLink(LogFinding::Rewritten, link);
}

/// What no link is over.
void LogVerifier::takeRest(bool hasChain)
{
    for (int table = 0; table < LogRows::Tables; ++table) {
        for (LogRows& rows = m_rows[size_t(table)]; !m_isEnded && !rows.isAtEnd(); rows.next()) {
            if (hasChain)
                add(LogFinding::PutIn, table, rows.number());
            else
                ++m_report.older;
            countRow();
        }
    }
}

void LogVerifier::add(LogFinding::Kind kind, int table, qint64 entry)
{
    if (m_report.findings.size() < LogReport::MostFindings)
        m_report.findings.append({kind, LogFinding::Table(table), entry});
}

/// Named by the first row that it is over, or the last one before it.
void LogVerifier::addAtLink(LogFinding::Kind kind, const LogLink& link)
{
    if (m_firstEntry != 0)
        add(kind, m_firstTable, m_firstEntry);
    else
        add(kind, LogFinding::ChangeSets, std::max<qint64>(0, link.ends[LogFinding::ChangeSets]));
}

void LogVerifier::countRow()
{
    if (++m_report.entries % ReportInterval == 0)
        m_isEnded = !m_goOn(m_report.entries);
}

} // namespace ko
