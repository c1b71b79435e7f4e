#ifndef KO_MDNSSCANNER_H
#define KO_MDNSSCANNER_H

#include "discovery/Scanner.h"

#include <memory>

namespace ko {

/// "mDNS": listens through the Avahi daemon for the services in ServiceTypes.h, on all interfaces, IPv4
/// and IPv6. When the daemon is missing or goes away, the scanner says so once, waits for it and begins
/// again. It is never done; stop() makes it Cancelled.
class KO_HOST_EXPORT MdnsScanner : public Scanner
{
    Q_OBJECT

public:
    explicit MdnsScanner(QObject* parent = nullptr);
    ~MdnsScanner() override;

    QString name() const override;
    void start(unsigned interfaces, int limit) override;
    void stop() override;
    ScannerState state() const override;

private:
    class Worker;

    void setState(const ScannerState& state);

    std::unique_ptr<Worker> m_worker;
    ScannerState m_state;
    int m_run = 0; ///< what is still on its way from an earlier run is not reported
};

} // namespace ko

#endif
