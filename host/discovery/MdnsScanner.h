#ifndef KO_MDNSSCANNER_H
#define KO_MDNSSCANNER_H

#include "discovery/Scanner.h"

#include <memory>

namespace ko {

class MdnsSession;
struct MdnsReport;

/// "mDNS": listens through the Avahi daemon for the services in ServiceTypes.h, on all interfaces, IPv4
/// and IPv6. When the daemon is missing or goes away, the scanner says so once, waits for it and begins
/// again. It is never done; stop() makes it Cancelled.
///
/// A daemon that hangs blocks calls for up to 25 seconds. stop() and the destructor do not wait for that, but
/// what is started next does, for all scanners of the process, and is Unavailable until then.
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
    void take(const MdnsReport& report);
    void setState(const ScannerState& state);

    std::shared_ptr<MdnsSession> m_session;
    ScannerState m_state;
};

} // namespace ko

#endif
