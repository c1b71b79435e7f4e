#include "database/ChangeQueue.h"

#include "database/WrittenDevices.h"
#include "ko/LogQt.h"
#include "store/StoreWriting.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QScopedValueRollback>

#include <chrono>
#include <limits>
#include <utility>

namespace ko {

namespace {

constexpr int PollInterval = 200;   // ms; how soon changes of other processes are seen
constexpr int RetryInterval = 5000; // ms; between tries to store what could not be stored
constexpr int LineDelay = 1000;     // ms; until a line of the program log is stored
constexpr int ChangesAtOnce = 250;  // of other processes, read together
constexpr int TurnTime = 8;         // ms; for them in one turn of the event loop
constexpr int StoredAtOnce = 300; // changes; more are stored by a thread, since they take longer than a frame

} // namespace

ChangeQueue::ChangeQueue(NodeStore& store, NodeMemory& memory)
    : m_store(store)
    , m_memory(memory)
{
    connect(&m_poll, &QTimer::timeout, this, &ChangeQueue::syncSome);
    for (QTimer* timer : {&m_retry, &m_lineTimer}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &ChangeQueue::storeScheduled);
    }
}

void ChangeQueue::checkInBackground()
{
    m_check.start(m_store.fileName(), this, [this](const StoreError& error) {
        emit checked(error);
        if (m_waitsForCheck)
            storeScheduled();
    });
}

void ChangeQueue::start()
{
    m_poll.start(PollInterval);
}

void ChangeQueue::finish()
{
    blockSignals(true);
    endStoring();
    StoreError error;
    if (!m_memory.pending.isEmpty() && !storeAfter(nullptr, &error, StoreWait::Blocking))
        LogQt::line(LogQt::Error, QString::fromLatin1("Not stored: %1").arg(error.detail));
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
            storeScheduled();
            m_memory.pending.endTurn();
        },
        Qt::QueuedConnection);
}

void ChangeQueue::storeScheduled()
{
    if (m_writing || m_isAlone || m_isHeld || m_memory.pending.isWithinWhole())
        return; // they look themselves afterwards
    const bool waits = !m_memory.pending.isEmpty() && m_check.isRunning();
    if (!waits && isMuch())
        storeInThread();
    else if (!waits)
        flush();
    setWaitsForCheck(waits);
}

bool ChangeQueue::isMuch() const
{
    return m_memory.pending.count() > StoredAtOnce;
}

void ChangeQueue::setWaitsForCheck(bool waits)
{
    if (waits || m_waitsForCheck) {
        m_waitsForCheck = waits;
        emit storing();
    }
}

void ChangeQueue::storeInThread()
{
    Notices notices;
    StoreError error;
    if (const auto writing = begin(nullptr, &notices, &error)) {
        run(writing, notices);
    } else {
        emit brought(notices);
        writeFailed(error);
    }
}

/// A commit of what waits after \a work, if there is any, has added to it; none after a failure.
std::shared_ptr<StoreWriting> ChangeQueue::begin(const std::function<void()>& work, Notices* notices,
                                                 StoreError* error)
{
    *error = StoreError();
    try {
        m_check.pass(m_store);
        m_memory.requireNodes();
        return m_store.begin(m_memory.revision, wanted(),
                             [&](const Delta& delta) { return merge(delta, work, notices); });
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
}

/// In a thread, while the event loop goes on.
void ChangeQueue::run(const std::shared_ptr<StoreWriting>& writing, const Notices& notices)
{
    m_writing = writing;
    m_memory.pending.beginStoring();
    m_stored = std::async(std::launch::async, [this, writing = writing.get()] {
        Stored result;
        try {
            result.commit = writing->run();
        } catch (const StoreFailure& failure) {
            result.error = failure.error;
        }
        QMetaObject::invokeMethod(this, &ChangeQueue::endStoringIfDone, Qt::QueuedConnection);
        return result;
    });
    emit storing();
    emit brought(notices);
}

/// If the program ends meanwhile, it has not ended when this returns.
void ChangeQueue::waitInEventLoop(const std::function<bool()>& isOver)
{
    QEventLoop loop;
    const auto look = [&] {
        if (isOver())
            loop.quit();
    };
    connect(this, &ChangeQueue::storing, &loop, look);
    connect(this, &ChangeQueue::checked, &loop, look);
    while (!isOver() && loop.exec(QEventLoop::ExcludeUserInputEvents) == 0) {
    }
}

/// Called when a thread is about to end; somebody may have waited for it already, and another one be at it.
void ChangeQueue::endStoringIfDone()
{
    if (m_writing && m_stored.wait_for(std::chrono::milliseconds(1)) == std::future_status::ready)
        endStoring();
    else if (m_writing)
        QMetaObject::invokeMethod(this, &ChangeQueue::endStoringIfDone, Qt::QueuedConnection);
}

void ChangeQueue::endStoring()
{
    if (!m_writing)
        return;
    const Stored result = m_stored.get();
    m_writing.reset();
    Notices notices;
    if (result.error)
        m_memory.pending.cancelStoring();
    else
        took(result.commit, &notices);
    told(result.error, notices, result.commit.sets);
    if (m_waiting)
        std::exchange(m_waiting, nullptr)(result.error);
    else if (result.error)
        writeFailed(result.error);
    if (!result.error && !m_memory.pending.isEmpty())
        schedule();
    emit storing();
}

int ChangeQueue::permilleStored() const
{
    return m_writing && m_writing->total() > 0 ? int(qint64(m_writing->done()) * 1000 / m_writing->total())
                                               : 0;
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

bool ChangeQueue::flush(StoreWait wait)
{
    if (m_isAlone || m_isHeld)
        return true;
    endOthers(wait);
    if (m_memory.pending.isEmpty())
        return true;
    StoreError error;
    return storeAfter(nullptr, &error, wait) || writeFailed(error);
}

StoreOutcome ChangeQueue::runAlone(const std::function<void()>& work, StoreError* error, StoreWait wait)
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
    endOthers(wait);
    if (storeAfter(noteAndRun, error, wait))
        return StoreOutcome::Stored;
    if (!hasRun)
        return StoreOutcome::NotRun;
    writeFailed(*error);
    return StoreOutcome::NotStored;
}

/// Waits for a thread that stores, and for the check of the file.
void ChangeQueue::endOthers(StoreWait wait)
{
    if (wait == StoreWait::InEventLoop) {
        setWaitsForCheck(m_check.isRunning());
        waitInEventLoop([this] { return !m_writing && !m_check.isRunning(); });
        setWaitsForCheck(false);
    }
    endStoring();
}

/// Stores what waits after \a work, if there is any, has added to it.
bool ChangeQueue::storeAfter(const std::function<void()>& work, StoreError* error, StoreWait wait)
{
    Notices notices;
    const auto writing = begin(work, &notices, error);
    if (writing && wait == StoreWait::InEventLoop && isMuch()) {
        bool isOver = false;
        m_waiting = [&](const StoreError& outcome) {
            *error = outcome;
            isOver = true;
        };
        run(writing, notices);
        waitInEventLoop([&isOver] { return isOver; });
        endStoring();
        return !*error;
    }
    QVector<StoredSet> sets;
    if (writing) {
        try {
            const NodeStore::Commit commit = writing->run();
            m_memory.pending.beginStoring();
            took(commit, &notices);
            sets = commit.sets;
        } catch (const StoreFailure& failure) {
            *error = failure.error;
        }
    }
    told(*error, notices, sets);
    return !*error;
}

void ChangeQueue::took(const NodeStore::Commit& commit, Notices* notices)
{
    m_memory.stored(commit, notices);
    m_retry.stop();
    m_lineTimer.stop();
}

/// What became of storing.
void ChangeQueue::told(const StoreError& error, const Notices& notices, const QVector<StoredSet>& sets)
{
    emit brought(notices);
    if (!sets.isEmpty())
        emit stored(sets);
    if (m_failing && !error) {
        m_failing = false;
        emit recovered();
    }
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
    m_keyMissing = error.kind == StoreError::KeyNotKept || error.kind == StoreError::SiteKeyMissing;
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
    endStoring();
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
    if (m_isAlone || m_writing)
        return false; // nobody else can have stored anything
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
        const NodeRecord* record = m_memory.cache().find(id);
        return record && record->contents;
    };
}

} // namespace ko
