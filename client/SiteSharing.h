#ifndef KO_SITESHARING_H
#define KO_SITESHARING_H

#include "sharing/SharingWorker.h"

#include <QDateTime>

#include <memory>

namespace ko {

class HostNodeDB;

/// Shares the database of a window with its site as long as it lives, and keeps in mind how that goes. The
/// database is read-only when its user may only read the site.
class SiteSharing : public QObject
{
    Q_OBJECT

public:
    /// \a db, on a copy of the site at \a address, outlives it.
    SiteSharing(HostNodeDB& db, const QString& address);

    const QString& address() const { return m_address; }
    const SharingState& state() const { return m_state; }
    const QDateTime& since() const { return m_since; } ///< when that kind of state began

    /// Begins anew, when something may be different now.
    void tryAgain();

    /// The present copy is given up for a new one, which whoever runs the window makes.
    void askForNewCopy();

    /// What lists and look-ups need of a node. From any thread.
    static void describe(const NodeData& data, NodeSummary* summary, QString* lookupKey);

signals:
    void changed();
    void newCopyWanted();

private:
    void take(const SharingState& state);

    HostNodeDB& m_db;
    const QString m_address;
    SharingState m_state;
    QDateTime m_since = QDateTime::currentDateTime();
    std::unique_ptr<SharingWorker> m_worker;
};

} // namespace ko

#endif
