#ifndef KO_CHANGEQUEUE_H
#define KO_CHANGEQUEUE_H

#include "database/FileCheck.h"
#include "database/NodeMemory.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <future>

namespace ko {

class StoreWriting;

/// Brings what waits in memory to the store, and what others stored to memory, at the right times: what
/// changes in one turn of the event loop is on disk before the event loop waits again. A large amount is
/// stored by another thread, and so is what comes while the file is looked through: isStoring() meanwhile.
class ChangeQueue : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the queue.
    ChangeQueue(NodeStore& store, NodeMemory& memory);

    /// Looks through the file in another thread; nothing is written before that has ended, nor after it has
    /// found something.
    void checkInBackground();

    /// Looks for changes of others from now on.
    void start();

    /// While it is held, nothing is stored.
    void hold(bool isHeld);

    /// Something waits.
    void schedule();
    /// A line of the program log waits, which alone is worth no commit at once.
    void scheduleLine();

    /// False when storing failed. Waits for a thread that stores.
    bool flush(StoreWait wait = StoreWait::Blocking);

    /// Something is on its way to the disk, or waits for the check of the file, and the event loop goes on.
    bool isStoring() const { return m_writing || (m_waitsForCheck && m_memory.pending.hasChanges()); }
    /// How much of it is done, of 1000.
    int permilleStored() const;
    /// Waits until the thread is done.
    void endStoring();

    /// Runs \a work while nobody else can change the database, and stores what it changed.
    StoreOutcome runAlone(const std::function<void()>& work, StoreError* error,
                          StoreWait wait = StoreWait::Blocking);

    /// The last attempt failed for want of a key of the passwords.
    bool isKeyMissing() const { return m_failing && m_keyMissing; }

    /// Goes back to what is stored.
    void discard();

    /// Takes in all that others stored since the last look.
    void sync();

    /// What \a read gives, or an empty result after the failure was made known.
    template <class Read>
    auto reading(Read read) -> decltype(read())
    {
        try {
            return read();
        } catch (const StoreFailure& failure) {
            readFailed(failure.error);
            return decltype(read())();
        }
    }

    /// Takes in some, and the rest in the next turns.
    void syncSome();

    /// Makes a failure known, each different one once.
    void readFailed(const StoreError& error);

    /// Stores what waits, unless the file is damaged; tells nobody.
    void finish();

signals:
    void brought(const ko::Notices& notices);
    /// This process stored them, or more of them.
    void stored(const QVector<ko::StoredSet>& sets);
    void failed(const ko::StoreError& error);
    void recovered();
    /// isStoring() changed.
    void storing();
    void damaged(const ko::StoreError& error);
    void checked(const ko::StoreError& error);

private:
    bool take(int changes);
    void storeScheduled();
    bool isMuch() const;
    void storeInThread();
    std::shared_ptr<StoreWriting> begin(const std::function<void()>& work, Notices* notices,
                                        StoreError* error);
    void run(const std::shared_ptr<StoreWriting>& writing, const Notices& notices);
    void waitInEventLoop(const std::function<bool()>& isOver);
    void endOthers(StoreWait wait);
    void setWaitsForCheck(bool waits);
    void endStoringIfDone();
    void took(const NodeStore::Commit& commit, Notices* notices);
    void told(const StoreError& error, const Notices& notices, const QVector<StoredSet>& sets);
    bool storeAfter(const std::function<void()>& work, StoreError* error, StoreWait wait);
    NodeStore::Batch merge(const Delta& delta, const std::function<void()>& work, Notices* notices);
    bool writeFailed(const StoreError& error);
    NodeStore::Wanted wanted() const;

    NodeStore& m_store;
    NodeMemory& m_memory;
    QTimer m_poll;
    QTimer m_retry;
    QTimer m_lineTimer;
    FileCheck m_check;
    struct Stored
    {
        StoreError error;
        NodeStore::Commit commit;
    };
    std::shared_ptr<StoreWriting> m_writing; ///< while a thread is at it
    std::future<Stored> m_stored;
    std::function<void(const StoreError&)> m_waiting; ///< of the caller who waits for the thread
    bool m_waitsForCheck = false;
    bool m_scheduled = false;
    bool m_isAlone = false; ///< within runAlone()
    bool m_isHeld = false;
    bool m_failing = false;
    bool m_keyMissing = false; ///< which is why it fails
    QString m_lastDamage;
};

} // namespace ko

#endif
