#ifndef KO_MOMENTREADING_H
#define KO_MOMENTREADING_H

#include "MomentModel.h"
#include "history/LaterChanges.h"

#include <QElapsedTimer>
#include <QTimer>

#include <future>

namespace ko {

class HostNodeDB;

/// Finds out what the database was after a change set, while the user goes on: what was done since is read in
/// portions of a few milliseconds, and taken back in another thread.
class MomentReading : public QObject
{
    Q_OBJECT

public:
    /// The database outlives it.
    MomentReading(HostNodeDB& db, qint64 changeSet, QObject* parent = nullptr);
    ~MomentReading() override;

    /// Begins anew, with what there is now.
    void start();

    /// Of what was done since: how much is read, in thousandths.
    int progress() const;

    /// All that was done since, with what was done after finished(). None if it cannot be read.
    std::optional<QVector<Alteration>> since();

    /// What of that is read already.
    const QVector<Alteration>& known() const { return m_later.all(); }

    /// One node, see Moment::detailsOf(). Empty if it cannot be read.
    QVector<Alteration> detailsOf(const NodeID& id);

signals:
    void progressed();
    void finished(const ko::MomentRows& rows);
    /// It cannot be read, which the database says by itself.
    void failed();

private:
    void readSome();
    bool readChanges(int count);
    bool readNodes();
    void complete();

    HostNodeDB& m_db;
    LaterChanges m_later;
    QTimer m_timer;
    bool m_areChangesRead = false;
    QStringList m_toRead;
    int m_nodes = 0; ///< that were ever to be read
    PresentState::Wanted m_wanted;
    PresentState m_now;
    std::future<void> m_work;
};

} // namespace ko

#endif
