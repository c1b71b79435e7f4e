#include "discovery/SessionScanner.h"

#include <utility>

namespace ko {

SessionScanner::SessionScanner(QObject* parent)
    : Scanner(parent)
{
}

SessionScanner::~SessionScanner()
{
    if (m_session)
        m_session->stop();
}

void SessionScanner::start(unsigned interfaces, int limit)
{
    if (m_session)
        return;
    m_session = begin([this](const ScanReport& report) { take(report); }, interfaces, limit);
    ScannerState state;
    state.phase = ScannerState::Running;
    explain(state, 0);
    setState(state);
}

void SessionScanner::stop()
{
    if (!m_session)
        return;
    std::exchange(m_session, nullptr)->stop();
    ScannerState state = m_state;
    state.phase = ScannerState::Cancelled;
    state.reason = {};
    setState(state);
}

void SessionScanner::explain(ScannerState&, int) {}

void SessionScanner::take(const ScanReport& report)
{
    const std::shared_ptr<ScanSession> session = m_session;
    ScannerState state = report.state;
    explain(state, report.error);
    if (!report.devices.isEmpty())
        emit found(report.devices);
    if (session != m_session) // a receiver stopped it
        return;
    if (report.isLast)
        std::exchange(m_session, nullptr)->stop();
    setState(state);
}

void SessionScanner::setState(const ScannerState& state)
{
    m_state = state;
    emit stateChanged();
}

} // namespace ko
