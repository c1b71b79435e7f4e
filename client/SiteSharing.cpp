#include "SiteSharing.h"

#include "KnownSites.h"
#include "database/HostNodeDB.h"
#include "database/NodeEditors.h"
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
    connect(m_worker.get(), &SharingWorker::keySeen, this, &SiteSharing::takeKey);
    connect(m_worker.get(), &SharingWorker::received, &m_db, &HostNodeDB::syncSomeForeignChanges);
    connect(&m_db.history(), &StoredHistory::stored, m_worker.get(), &SharingWorker::wake);
    NodeEditors& editors = m_db.editors();
    connect(m_worker.get(), &SharingWorker::editorsSeen, &editors, &NodeEditors::setOthers);
    const auto tell = [&editors, worker = m_worker.get()] {
        worker->setOpen(editors.written(), editors.isAnyOpen());
    };
    connect(&editors, &NodeEditors::openChanged, m_worker.get(), tell);
    tell();
    editors.setOthers({}); // as long as the site was not asked
}

bool SiteSharing::needsPassphrase() const
{
    const SiteKeyRecord& record = m_key.record;
    return !m_key.site.isEmpty() && !m_key.isHere && record.hasTables && (record.hasKey() || record.mayMake);
}

/// Passwords may be being sealed with it already, which goes on; a site that is away is looked for at once.
void SiteSharing::takeNewKey()
{
    m_db.takeNewKeys();
    if (m_state.kind == SharingState::UpToDate || m_state.kind == SharingState::CatchingUp)
        m_worker->takeNewKey();
    else
        tryAgain();
}

void SiteSharing::takeKey(const SiteKeyOutcome& seen)
{
    const bool isOther = seen.isHere && !m_key.isHere;
    m_key = seen;
    if (isOther)
        m_db.takeNewKeys();
    emit changed();
    const QString wanted = needsPassphrase() ? QLatin1Char('>') + seen.record.name : QString();
    if (wanted == m_wanted)
        return;
    m_wanted = wanted;
    if (!wanted.isEmpty())
        emit passphraseWanted();
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
