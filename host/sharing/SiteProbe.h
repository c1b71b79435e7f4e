#ifndef KO_SITEPROBE_H
#define KO_SITEPROBE_H

#include "sharing/SiteConnection.h"

#include <QObject>

#include <thread>

namespace ko {

/// Asks a site once, in a thread of its own, what it is. Ends it when it goes.
class KO_HOST_EXPORT SiteProbe : public QObject
{
    Q_OBJECT

public:
    enum class Way {
        Look,
        Prepare ///< makes the tables of a site first, if there are none
    };

    explicit SiteProbe(const QString& address, Way way = Way::Look);
    ~SiteProbe() override;

signals:
    /// Once. \a greeting says something only without a failure.
    void done(const ko::SiteGreeting& greeting, const ko::SharingFailure& failure);

private:
    void run(const QString& address, Way way);

    SiteConnection m_connection;
    std::thread m_thread; ///< destroyed first
};

} // namespace ko

#endif
