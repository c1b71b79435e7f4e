#ifndef KO_SHAREDMANAGERS_H
#define KO_SHAREDMANAGERS_H

#include "HostExport.h"

#include <QNetworkProxy>
#include <QStringList>

#include <memory>

class QNetworkAccessManager;
class QUrl;

namespace ko {

/// The toolkit's managers for HTTP, of which each starts a thread, waits for it when it goes, and keeps
/// connections open for two minutes: a few devices share one, so that many are checked with neither a thread
/// nor an idle connection for each.
///
/// To be used in one thread.
class KO_HOST_EXPORT SharedManagers
{
public:
    enum Limits { MostSharing = 8 /* devices */ };

    /// Never one that \a device has had, since on a connection that is still open no certificate is shown.
    /// It goes with the last that holds it.
    std::shared_ptr<QNetworkAccessManager> managerFor(const QUrl& device, const QNetworkProxy& proxy);

private:
    std::shared_ptr<QNetworkAccessManager> m_manager;
    QStringList m_devices; ///< that have it
};

} // namespace ko

#endif
