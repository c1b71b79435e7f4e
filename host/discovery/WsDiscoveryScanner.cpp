#include "discovery/WsDiscoveryScanner.h"

#include "discovery/WsDiscoverySession.h"
#include "ko/LogQt.h"

namespace ko {

WsDiscoveryScanner::WsDiscoveryScanner(QObject* parent, quint16 port)
    : SessionScanner(parent)
    , m_port(port)
{
}

QString WsDiscoveryScanner::name() const
{
    return QLatin1String("mDNS");
}

QString WsDiscoveryScanner::title() const
{
    return QLatin1String("WS-Discovery");
}

std::shared_ptr<ScanSession> WsDiscoveryScanner::begin(const ScanSession::Take& take, unsigned interfaces,
                                                       int limit)
{
    const auto session = std::make_shared<WsDiscoverySession>(*this, take, interfaces, limit, m_port);
    session->begin();
    return session;
}

void WsDiscoveryScanner::explain(ScannerState& state, int error)
{
    if (error != 0)
        LogQt::line(LogQt::Warning,
                    QString::fromLatin1("WS-Discovery waits for a network that takes multicast: %1")
                        .arg(qt_error_string(error)));
    if (state.phase == ScannerState::Unavailable)
        state.reason = {"WsDiscoveryScanner",
                        QT_TRANSLATE_NOOP("WsDiscoveryScanner", "no network supports multicast")};
}

} // namespace ko
