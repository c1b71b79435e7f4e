#include "MomentReading.h"

#include "HandOver.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"

namespace ko {

namespace {

constexpr int Budget = 5;           // ms in one turn of the event loop
constexpr int ChangesAtOnce = 50;   // read in less than that
constexpr int NodesAtOnce = 20;     // likewise
constexpr int AllChanges = 1 << 20; // what was done meanwhile

} // namespace

MomentReading::MomentReading(HostNodeDB& db, qint64 changeSet, QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_later(db.history(), changeSet)
{
    connect(&m_timer, &QTimer::timeout, this, &MomentReading::readSome);
}

MomentReading::~MomentReading()
{
    if (m_work.valid())
        m_work.wait();
}

void MomentReading::start()
{
    m_areChangesRead = false;
    m_now = PresentState();
    m_toRead = QStringList(m_wanted.values.begin(), m_wanted.values.end());
    m_nodes = int(m_toRead.size());
    m_timer.start(0);
}

int MomentReading::progress() const
{
    const qint64 done = m_later.count() + m_nodes - m_toRead.size();
    const qint64 all = m_later.count() + m_later.remaining() + m_nodes;
    return all > 0 ? int(1000 * done / all) : 0;
}

void MomentReading::readSome()
{
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(Budget) && m_timer.isActive()) {
        if (!m_areChangesRead)
            m_areChangesRead = !readChanges(ChangesAtOnce);
        else if (m_toRead.isEmpty())
            complete();
        else if (!readNodes()) {
            m_timer.stop();
            emit failed();
        }
    }
    emit progressed();
}

/// Returns whether there are more. What they are about is read, again if it was read before they were made.
bool MomentReading::readChanges(int count)
{
    const bool isMore = m_later.readSome(count);
    const PresentState::Wanted wanted = Alterations::wanted(m_later.takeNew());
    for (const NodeID& id : wanted.values) {
        m_toRead.append(id);
        m_now.nodes.remove(id);
    }
    m_nodes += int(wanted.values.size());
    m_wanted.values.unite(wanted.values);
    m_wanted.ends.unite(wanted.ends);
    m_wanted.sources.unite(wanted.sources);
    m_wanted.related.unite(wanted.related);
    return isMore;
}

bool MomentReading::readNodes()
{
    const QStringList ids = m_toRead.mid(0, NodesAtOnce);
    m_toRead.erase(m_toRead.begin(), m_toRead.begin() + ids.size());
    PresentState::Wanted wanted;
    wanted.values = QSet<NodeID>(ids.begin(), ids.end());
    m_db.readAhead(ids);
    const std::optional<PresentState> some = m_db.history().present(wanted);
    if (some)
        m_now.nodes.insert(some->nodes);
    return some.has_value();
}

/// All that is read must be of one time: if anything was done meanwhile, what it is about is read again.
void MomentReading::complete()
{
    m_db.flush();
    m_db.syncForeignChanges();
    const qint64 seen = m_later.count();
    readChanges(AllChanges);
    if (m_later.count() > seen)
        return;
    m_timer.stop();
    PresentState::Wanted links = m_wanted;
    links.values.clear();
    std::optional<PresentState> now = m_db.history().present(links);
    if (!now) {
        emit failed();
        return;
    }
    now->nodes = m_now.nodes;
    m_work =
        std::async(std::launch::async, [this, since = m_later.all(), now = *now, nodes = m_db.summaries()] {
            const auto rows = std::make_shared<MomentRows>(Moment(since, now, nodes));
            handOver(this, [this, rows] { emit finished(*rows); });
        });
}

std::optional<QVector<Alteration>> MomentReading::since()
{
    if (!m_db.flush())
        return std::nullopt;
    m_db.syncForeignChanges();
    readChanges(AllChanges);
    return m_later.all();
}

QVector<Alteration> MomentReading::detailsOf(const NodeID& id)
{
    if (!this->since())
        return {};
    const std::optional<PresentState> now = m_db.history().present({{id}, {}, {id}, {}});
    return now ? Moment::detailsOf(id, m_later.all(), *now) : QVector<Alteration>();
}

} // namespace ko
