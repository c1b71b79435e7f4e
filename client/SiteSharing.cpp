#include "SiteSharing.h"

#include "KnownSites.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "drivers/NodeTypes.h"

namespace ko {

SiteSharing::SiteSharing(HostNodeDB& db, const QString& address)
    : m_db(db)
    , m_address(address)
{
    const bool mayWrite = KnownSites::find(address).mayWrite;
    m_db.setReadOnly(!mayWrite);
    m_state.rights = mayWrite ? SharingState::MayWrite : SharingState::MayRead;
    tryAgain();
}

void SiteSharing::tryAgain()
{
    m_worker.reset();
    m_worker = std::make_unique<SharingWorker>(m_db.fileName(), m_address, &SiteSharing::describe);
    connect(m_worker.get(), &SharingWorker::stateChanged, this, &SiteSharing::take);
    connect(m_worker.get(), &SharingWorker::received, &m_db, &HostNodeDB::syncSomeForeignChanges);
    connect(&m_db.history(), &StoredHistory::stored, m_worker.get(), &SharingWorker::wake);
}

void SiteSharing::askForNewCopy()
{
    emit newCopyWanted();
}

void SiteSharing::describe(const NodeData& data, NodeSummary* summary, QString* lookupKey)
{
    *summary = NodeTypes::summaryOf(data);
    *lookupKey = NodeTypes::lookupKey(data);
}

/// As long as the site has not been asked, what it said last holds.
void SiteSharing::take(const SharingState& state)
{
    if (state.kind != m_state.kind)
        m_since = QDateTime::currentDateTime();
    const SharingState::Rights before = m_state.rights;
    m_state = state;
    if (state.rights == SharingState::UnknownRights) {
        m_state.rights = before;
    } else if (state.rights != before) {
        KnownSites::Site site = KnownSites::find(m_address);
        site.mayWrite = state.rights == SharingState::MayWrite;
        KnownSites::remember(site);
        m_db.setReadOnly(!site.mayWrite);
    }
    emit changed();
}

} // namespace ko
