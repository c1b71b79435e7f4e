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

    /// What is known of the key of the passwords; its \c site is empty as long as the server was not seen.
    const SiteKeyOutcome& key() const { return m_key; }
    /// Whether the key is not here, and the user can do something about it.
    bool needsPassphrase() const;
    /// The key is here now, or is another one.
    void takeNewKey();

    /// Begins anew, when something may be different now.
    void tryAgain();

    /// The present copy is given up for a new one, which whoever runs the window makes.
    void askForNewCopy();

    /// What lists and look-ups need of a node. From any thread.
    static void describe(const NodeData& data, NodeSummary* summary, QString* lookupKey);

signals:
    void changed();
    void newCopyWanted();
    /// Once, and again when the site got another key.
    void passphraseWanted();

private:
    void take(const SharingState& state);
    void takeKey(const SiteKeyOutcome& seen);

    HostNodeDB& m_db;
    const QString m_address;
    SharingState m_state;
    SiteKeyOutcome m_key;
    QString m_wanted; ///< what was asked for last
    QDateTime m_since = QDateTime::currentDateTime();
    std::unique_ptr<SharingWorker> m_worker;
};

} // namespace ko

#endif
