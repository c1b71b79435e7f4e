#include "database/ChangeQueue.h"

#include "database/WrittenDevices.h"
#include "ko/LogQt.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include <limits>
#include <utility>

namespace ko {

namespace {

constexpr int PollInterval = 200;   // ms; how soon changes of other processes are seen
constexpr int RetryInterval = 5000; // ms; between tries to store what could not be stored
constexpr int LineDelay = 1000;     // ms; until a line of the program log is stored
constexpr int ChangesAtOnce = 250;  // of other processes, read together
constexpr int TurnTime = 8;         // ms; for them in one turn of the event loop

} // namespace

ChangeQueue::ChangeQueue(NodeStore& store, NodeMemory& memory)
    : m_store(store)
    , m_memory(memory)
{
    connect(&m_poll, &QTimer::timeout, this, &ChangeQueue::syncSome);
    for (QTimer* timer : {&m_retry, &m_lineTimer}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &ChangeQueue::flush);
    }
}

void ChangeQueue::checkInBackground()
{
    m_check = std::async(std::launch::async, [this, file = m_store.fileName()] {
        StoreError error = NodeStore::findDamage(file);
        QMetaObject::invokeMethod(
            this, [this, error] { emit checked(error); }, Qt::QueuedConnection);
        return error;
    });
}

/// Throws what a check in the background has found.
void ChangeQueue::waitForCheck()
{
    if (!m_check.valid())
        return;
    if (m_check.get())
        throw StoreFailure{m_check.get()};
    m_store.setSound();
}

void ChangeQueue::start()
{
    m_poll.start(PollInterval);
}

void ChangeQueue::finish()
{
    blockSignals(true);
    StoreError error;
    if (!m_memory.pending.isEmpty() && !storeAfter(nullptr, &error))
        LogQt::line(LogQt::Error, QString::fromLatin1("Not stored: %1").arg(error.detail));
    if (m_check.valid())
        m_check.wait();
}

/// A queued call runs before the event loop waits again, whatever else is in the queue; what is posted
/// before it goes into the same commit.
void ChangeQueue::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_scheduled = false;
            flush();
            m_memory.pending.endTurn();
        },
        Qt::QueuedConnection);
}

void ChangeQueue::hold(bool isHeld)
{
    m_isHeld = isHeld;
    if (!isHeld && !m_memory.pending.isEmpty())
        schedule();
}

void ChangeQueue::scheduleLine()
{
    if (!m_lineTimer.isActive())
        m_lineTimer.start(LineDelay);
}

bool ChangeQueue::flush()
{
    if (m_memory.pending.isEmpty() || m_isAlone || m_isHeld)
        return true;
    StoreError error;
    return storeAfter(nullptr, &error) || writeFailed(error);
}

StoreOutcome ChangeQueue::runAlone(const std::function<void()>& work, StoreError* error)
{
    if (m_isHeld) { // as if another program had it
        *error = StoreError::make(StoreError::Locked, m_store.fileName(), QLatin1String("held"));
        return StoreOutcome::NotRun;
    }
    bool hasRun = false;
    const auto noteAndRun = [&] {
        hasRun = true;
        work();
    };
    if (storeAfter(noteAndRun, error))
        return StoreOutcome::Stored;
    if (!hasRun)
        return StoreOutcome::NotRun;
    writeFailed(*error);
    return StoreOutcome::NotStored;
}

/// Stores what waits after \a work, if there is any, has added to it.
bool ChangeQueue::storeAfter(const std::function<void()>& work, StoreError* error)
{
    Notices notices;
    QVector<StoredSet> sets;
    *error = StoreError();
    try {
        waitForCheck();
        const NodeStore::Commit commit = m_store.commit(
            m_memory.revision, wanted(), [&](const Delta& delta) { return merge(delta, work, &notices); });
        m_memory.stored(commit, &notices);
        sets = commit.sets;
        m_retry.stop();
        m_lineTimer.stop();
    } catch (const StoreFailure& failure) {
        *error = failure.error;
    }
    emit brought(notices);
    if (!sets.isEmpty())
        emit stored(sets);
    if (m_failing && !*error) {
        m_failing = false;
        emit recovered();
    }
    return !*error;
}

/// Nobody else can write now, so what is brought in here is what is written upon.
NodeStore::Batch ChangeQueue::merge(const Delta& delta, const std::function<void()>& work, Notices* notices)
{
    *notices = m_memory.take(delta);
    if (work) {
        const QScopedValueRollback<bool> alone(m_isAlone, true);
        emit brought(std::exchange(*notices, Notices()));
        work();
    }
    WrittenDevices(m_store, m_memory).complete(notices);
    return {m_memory.pending.sets(), m_memory.pending.programLines};
}

bool ChangeQueue::writeFailed(const StoreError& error)
{
    if (!m_failing)
        LogQt::line(LogQt::Error,
                    QString::fromLatin1("Writing the node database failed: %1").arg(error.detail));
    m_failing = true;
    m_keyMissing = error.kind == StoreError::KeyNotKept;
    m_retry.start(RetryInterval);
    emit failed(error);
    return false;
}

void ChangeQueue::readFailed(const StoreError& error)
{
    if (error.kind == StoreError::Locked || error.detail == m_lastDamage)
        return;
    m_lastDamage = error.detail;
    LogQt::line(LogQt::Error, QString::fromLatin1("Reading the node database failed: %1").arg(error.detail));
    QMetaObject::invokeMethod(
        this, [this, error] { emit damaged(error); }, Qt::QueuedConnection);
}

void ChangeQueue::discard()
{
    const PendingChanges dropped = m_memory.pending;
    m_memory.pending.clear();
    Notices notices;
    try {
        notices = m_memory.take(m_store.everything(wanted()));
    } catch (const StoreFailure& failure) {
        m_memory.pending = dropped;
        readFailed(failure.error);
        return;
    }
    m_memory.pending.programLines = dropped.programLines; // they tell why
    m_failing = false;
    m_retry.stop();
    emit brought(notices);
}

void ChangeQueue::sync()
{
    take(std::numeric_limits<int>::max());
}

/// The rest in the next turns, so that the user can go on meanwhile.
void ChangeQueue::syncSome()
{
    QElapsedTimer clock;
    clock.start();
    bool isMore = true;
    while (isMore && !clock.hasExpired(TurnTime))
        isMore = take(ChangesAtOnce);
    m_poll.start(isMore ? 0 : PollInterval);
}

/// Returns whether there is more.
bool ChangeQueue::take(int changes)
{
    if (m_isAlone)
        return false;
    return reading([this, changes] {
        // What this process stored itself lies before the revision.
        const std::optional<Delta> delta = m_store.news(m_memory.revision, wanted(), changes);
        if (delta)
            emit brought(m_memory.take(*delta));
        return delta && delta->isMore;
    });
}

/// The properties of nodes of which they are in memory.
NodeStore::Wanted ChangeQueue::wanted() const
{
    return [this](const NodeID& id) {
        const NodeRecord* record = m_memory.cache.find(id);
        return record && record->contents;
    };
}

} // namespace ko
