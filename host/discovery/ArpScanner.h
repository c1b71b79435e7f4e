#ifndef KO_ARPSCANNER_H
#define KO_ARPSCANNER_H

#include "discovery/Scanner.h"

#include <memory>

namespace ko {

/// "ARP": looks at every address of the directly attached IPv4 networks, one network after the other, and
/// reports the hosts that answer at a usual port of cameras (see ArpSweepPorts for which one), with their
/// MAC address. Takes no privilege. Of a network larger than /22 only the part around the own address is
/// looked at; the state's text and one line in the log say so.
class KO_HOST_EXPORT ArpScanner : public Scanner
{
    Q_OBJECT

public:
    explicit ArpScanner(QObject* parent = nullptr);
    ~ArpScanner() override;

    QString name() const override;
    void start(unsigned interfaces, int limit) override;
    void stop() override;
    ScannerState state() const override;

private:
    class Worker;

    void arrived(int run, const QVector<DiscoveredDevice>& devices, const ScannerState& state);
    void setState(const ScannerState& state);

    std::unique_ptr<Worker> m_worker;
    ScannerState m_state;
    int m_run = 0; ///< what is still on its way from an earlier run is not reported
};

} // namespace ko

#endif
