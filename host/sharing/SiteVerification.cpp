#include "sharing/SiteVerification.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace ko {

namespace {

const int rowsAtOnce = 500;

bool areSame(const QByteArray& a, const QByteArray& b)
{
    const QJsonDocument here = QJsonDocument::fromJson(a);
    return here.isArray() && here == QJsonDocument::fromJson(b);
}

} // namespace

SiteVerification::SiteVerification(SharedLog& log, SiteConnection& connection, Progress progress)
    : m_log(log)
    , m_connection(connection)
    , m_progress(std::move(progress))
{
}

SiteVerification::Verdict SiteVerification::run()
{
    SiteGreeting greeting;
    m_failure = m_connection.beginMoment();
    if (!m_failure)
        m_failure = m_connection.greet(&greeting);
    if (m_failure || !compareChain(greeting.number))
        return m_failure ? Verdict::Failed : m_verdict;
    const std::optional<qint64> position =
        m_log.forEachRow([this](SharedTable table, const SharedRow& row) { return compare(table, row); });
    if (m_verdict == Verdict::Same && position && goOnTo(SharedTable::Rest) && !hasMore() && !m_failure)
        m_failure = m_connection.endMoment();
    if (m_failure)
        return Verdict::Failed;
    return position == greeting.number || m_verdict == Verdict::Ended ? m_verdict : Verdict::Changing;
}

bool SiteVerification::compareChain(qint64 last)
{
    for (qint64 position = 0; position < last && !m_failure; position += rowsAtOnce) {
        QVector<SharedParcel> parcels;
        m_failure = m_connection.fetch(position, rowsAtOnce, &parcels);
        if (!m_failure && !m_log.agrees(parcels, position, rowsAtOnce)) {
            m_verdict = Verdict::Different;
            m_difference = QStringLiteral("parcels %1-%2").arg(position + 1).arg(position + rowsAtOnce);
            return false;
        }
        if (!m_failure && !m_progress(m_rows)) {
            m_verdict = Verdict::Ended;
            return false;
        }
    }
    return !m_failure;
}

bool SiteVerification::differs(const QByteArray& row)
{
    m_verdict = Verdict::Different;
    m_difference = QString::fromUtf8(row);
    return false;
}

bool SiteVerification::compare(SharedTable table, const SharedRow& here)
{
    if (!goOnTo(table))
        return false;
    SharedRow there;
    if (!next(table, &there))
        return m_failure ? false : differs(here.json);
    if (!areSame(here.json, there.json))
        return differs(here.json);
    if (++m_rows % rowsAtOnce == 0 && !m_progress(m_rows))
        m_verdict = Verdict::Ended;
    return m_verdict == Verdict::Same;
}

/// Goes on to a table; false if the site has more rows of those before it.
bool SiteVerification::goOnTo(SharedTable table)
{
    while (m_table != table) {
        if (hasMore())
            return false;
        m_table = SharedTable(int(m_table) + 1);
        m_there.clear();
        m_index = 0;
        m_place = 0;
    }
    return !m_failure;
}

bool SiteVerification::hasMore()
{
    SharedRow more;
    if (!next(m_table, &more))
        return false;
    differs(more.json);
    return true;
}

/// The site's next row; false at the end, or with a failure.
bool SiteVerification::next(SharedTable table, SharedRow* row)
{
    if (m_index == m_there.size() && !m_failure) {
        m_there.clear();
        m_index = 0;
        m_failure = m_connection.rows(table, m_place, rowsAtOnce, &m_there);
    }
    if (m_failure || m_index == m_there.size())
        return false;
    *row = m_there.at(m_index++);
    m_place = row->place;
    return true;
}

} // namespace ko
