#ifndef KO_WSDISCOVERYSCANNER_H
#define KO_WSDISCOVERYSCANNER_H

#include "discovery/SessionScanner.h"
#include "ko/TrContext.h"

namespace ko {

/// Started as "mDNS", since it too finds what announces itself: asks by WS-Discovery over each interface that
/// is up and takes multicast (IPv4), repeated as the standard says, and anew each minute, and listens for
/// devices that greet. It is never done; stop() makes it Cancelled. Without such an interface it is
/// Unavailable, says so once in the log, and goes on when there is one.
///
/// What it reports is what devices say of themselves; anybody on the network can say it.
class KO_HOST_EXPORT WsDiscoveryScanner : public SessionScanner
{
    Q_OBJECT
    KO_TR_CONTEXT(WsDiscoveryScanner)

public:
    explicit WsDiscoveryScanner(QObject* parent = nullptr, quint16 port = 3702);

    QString name() const override;
    QString title() const override;

protected:
    std::shared_ptr<ScanSession> begin(const ScanSession::Take& take, unsigned interfaces,
                                       int limit) override;
    void explain(ScannerState& state, int error) override;

private:
    const quint16 m_port;
};

} // namespace ko

#endif
