#include "discovery/MdnsScanner.h"

#include "discovery/MdnsSession.h"
#include "ko/LogQt.h"

#include <avahi-common/error.h>

#include <utility>

namespace ko {

MdnsScanner::MdnsScanner(QObject* parent)
    : Scanner(parent)
{
}

MdnsScanner::~MdnsScanner()
{
    if (m_session)
        m_session->stop();
}

QString MdnsScanner::name() const
{
    return QLatin1String("mDNS");
}

void MdnsScanner::start(unsigned interfaces, int limit)
{
    if (m_session)
        return;
    m_session = MdnsSession::begin(
        *this, [this](const MdnsReport& report) { take(report); }, interfaces, limit);
    ScannerState state;
    state.phase = ScannerState::Running;
    setState(state);
}

void MdnsScanner::stop()
{
    if (!m_session)
        return;
    std::exchange(m_session, nullptr)->stop();
    ScannerState state = m_state;
    state.phase = ScannerState::Cancelled;
    state.reason.clear();
    setState(state);
}

ScannerState MdnsScanner::state() const
{
    return m_state;
}

void MdnsScanner::take(const MdnsReport& report)
{
    const std::shared_ptr<MdnsSession> session = m_session;
    if (report.error != 0)
        LogQt::line(LogQt::Warning, QString::fromLatin1("The mDNS scan waits for the Avahi daemon: %1")
                                        .arg(QString::fromUtf8(avahi_strerror(report.error))));
    if (!report.devices.isEmpty())
        emit found(report.devices);
    if (session != m_session) // a receiver stopped it
        return;
    ScannerState state = report.state;
    const bool isMissing = report.error == AVAHI_ERR_NO_DAEMON || report.error == AVAHI_ERR_DISCONNECTED;
    if (state.phase == ScannerState::Unavailable)
        state.reason =
            isMissing ? tr("the Avahi daemon is not running") : tr("the Avahi daemon does not answer");
    setState(state);
}

void MdnsScanner::setState(const ScannerState& state)
{
    m_state = state;
    m_state.where = tr("all interfaces");
    emit stateChanged();
}

} // namespace ko
