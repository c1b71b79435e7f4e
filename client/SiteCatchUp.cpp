#include "SiteCatchUp.h"

#include "SiteSharing.h"
#include "sharing/SharingWorker.h"

#include <QTimer>

namespace ko {

SiteCatchUp::SiteCatchUp(const QString& file, const QString& address, int patience)
    : m_file(file)
    , m_address(address)
    , m_patience(patience)
{
}

SiteCatchUp::End SiteCatchUp::run(const std::function<void(const SharingState&)>& show)
{
    QTimer away;
    away.setSingleShot(true);
    connect(&away, &QTimer::timeout, this, [this] { end(End::Away); });
    SharingWorker worker(m_file, m_address, &SiteSharing::describe);
    connect(&worker, &SharingWorker::stateChanged, this, [&](const SharingState& state) {
        m_state = state;
        show(state);
        if (state.kind == SharingState::UpToDate)
            end(End::UpToDate);
        else if (state.kind == SharingState::Refused)
            end(End::Refused);
        else if (state.kind != SharingState::Away)
            away.stop();
        else if (m_patience >= 0 && !away.isActive())
            away.start(m_patience);
    });
    m_loop.exec();
    return m_end;
}

void SiteCatchUp::cancel()
{
    end(End::Cancelled);
}

void SiteCatchUp::end(End how)
{
    m_end = how;
    m_loop.quit();
}

} // namespace ko
