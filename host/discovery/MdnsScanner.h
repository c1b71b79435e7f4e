#ifndef KO_MDNSSCANNER_H
#define KO_MDNSSCANNER_H

#include "discovery/SessionScanner.h"
#include "ko/TrContext.h"

namespace ko {

/// "mDNS": listens through the Avahi daemon for the services in ServiceTypes.h, on all interfaces, IPv4
/// and IPv6. When the daemon is missing or goes away, the scanner says so once, waits for it and begins
/// again. It is never done; stop() makes it Cancelled.
///
/// A daemon that hangs blocks calls for up to 25 seconds. stop() and the destructor do not wait for that, but
/// what is started next does, for all scanners of the process, and is Unavailable until then.
class KO_HOST_EXPORT MdnsScanner : public SessionScanner
{
    Q_OBJECT
    KO_TR_CONTEXT(MdnsScanner)

public:
    using SessionScanner::SessionScanner;

    QString name() const override;

protected:
    std::shared_ptr<ScanSession> begin(const ScanSession::Take& take, unsigned interfaces,
                                       int limit) override;
    void explain(ScannerState& state, int error) override;
};

} // namespace ko

#endif
