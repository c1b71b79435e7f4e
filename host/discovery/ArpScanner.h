#ifndef KO_ARPSCANNER_H
#define KO_ARPSCANNER_H

#include "discovery/SessionScanner.h"
#include "ko/TrContext.h"

namespace ko {

/// "ARP": looks at every address of the directly attached IPv4 networks, one network after the other, and
/// reports the hosts that answer at a usual port of cameras (see ArpSweepPorts for which one), with their
/// MAC address. Each host that is there is also asked by WS-Discovery what it is. Takes no privilege. Of a
/// network larger than /22 only the part around the own address is looked at; the state's text and one line
/// in the log say so.
class KO_HOST_EXPORT ArpScanner : public SessionScanner
{
    Q_OBJECT
    KO_TR_CONTEXT(ArpScanner)

public:
    /// \a discoveryPort is where hosts are asked by WS-Discovery.
    explicit ArpScanner(QObject* parent = nullptr, quint16 discoveryPort = 3702);

    QString name() const override;

protected:
    std::shared_ptr<ScanSession> begin(const ScanSession::Take& take, unsigned interfaces,
                                       int limit) override;

private:
    const quint16 m_discoveryPort;
};

} // namespace ko

#endif
