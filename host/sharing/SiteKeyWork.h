#ifndef KO_SITEKEYWORK_H
#define KO_SITEKEYWORK_H

#include "sharing/SiteConnection.h"
#include "sharing/SiteKeyTask.h"

#include <QObject>

#include <thread>

namespace ko {

/// Does something with the keys of a site in a thread of its own. What is under way when it goes is cut off,
/// but for a passphrase that is being looked at, which takes up to a second.
class KO_HOST_EXPORT SiteKeyWork : public QObject
{
    Q_OBJECT

public:
    SiteKeyWork(const QString& address, const SiteKeyTask& task, QObject* parent = nullptr);
    ~SiteKeyWork() override;

signals:
    /// Once.
    void done(const ko::SiteKeyOutcome& outcome);

private:
    void run(const QString& address, const SiteKeyTask& task);

    SiteConnection m_connection;
    std::thread m_thread; ///< destroyed first
};

} // namespace ko

#endif
