#include "database/HostNodeDBPrivate.h"

#include "ko/LogQt.h"
#include "recording/VolumeProbe.h"
#include "secrets/Vault.h"

namespace ko {

std::unique_ptr<HostNodeDB> HostNodeDB::open(const QString& file, StoreError* error, Check check)
{
    qRegisterMetaType<ko::StoreError>("ko::StoreError");
    Keyring::ofInstallation().prepare();
    std::unique_ptr<NodeStore> store = NodeStore::open(
        file, error, check == Check::First ? NodeStore::Check::First : NodeStore::Check::ByUser);
    if (!store)
        return nullptr;
    try {
        return std::unique_ptr<HostNodeDB>(new HostNodeDB(std::move(store), check));
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
}

HostNodeDB::HostNodeDB(std::unique_ptr<NodeStore> opened, Check check)
    : d(new Private(*this, std::move(opened), check))
{
    d->start(check);
    VolumeProbe::install();
}

HostNodeDB::~HostNodeDB()
{
    blockSignals(true);
    d->store->vault()->setListener(nullptr);
    d->scanning.reset();
    d->queue.finish();
}

bool HostNodeDB::isStoring() const
{
    return d->queue.isStoring();
}

int HostNodeDB::permilleStored() const
{
    return d->queue.permilleStored();
}

HostNodeDB::Private::Private(HostNodeDB& database, std::unique_ptr<NodeStore> opened, Check when)
    : q(database)
    , store(std::move(opened))
    , memory(*store, when == Check::Behind ? std::launch::async : std::launch::deferred,
             [this] {
                 QMetaObject::invokeMethod(
                     &q, [this] { nodesRead(); }, Qt::QueuedConnection);
             })
    , queue(*store, memory)
    , settings(memory, [this] { queue.schedule(); })
    , logs(*store, memory, queue)
    , history(*store, memory, queue)
    , audit(logs)
    , nodes(memory, queue, settings, [this](const Notices& notices) { announce(notices); })
{
}

void HostNodeDB::Private::start(Check when)
{
    QObject::connect(&queue, &ChangeQueue::brought, &q,
                     [this](const Notices& notices) { announce(notices); });
    QObject::connect(&queue, &ChangeQueue::failed, &q, &HostNodeDB::storeFailed);
    QObject::connect(&queue, &ChangeQueue::recovered, &q, &HostNodeDB::storeRecovered);
    QObject::connect(&queue, &ChangeQueue::storing, &q, &HostNodeDB::storing);
    QObject::connect(&queue, &ChangeQueue::damaged, &q, &HostNodeDB::storeDamaged);
    QObject::connect(&queue, &ChangeQueue::checked, &q, [this](const StoreError& error) { tell(error); });
    if (when == Check::Behind) {
        queue.checkInBackground();
    } else {
        memory.takeLoaded();
        memory.requireNodes();
    }
    storeDefaults();
    store->vault()->setClearAllowed(store->isSealingPending());
    store->vault()->setListener([this](StoreError::Kind kind) {
        const bool sealed = kind != StoreError::NotSealed;
        queue.readFailed(StoreError::make(
            kind, store->fileName(),
            QLatin1String(sealed ? "a password cannot be opened" : "a password is not sealed")));
    });
    settings.reload();
    queue.start();
}

void HostNodeDB::Private::nodesRead()
{
    try {
        memory.cache(); // the thread has not quite ended
        memory.requireNodes();
        emit q.loaded();
        memory.takeLoaded(); // nobody wanted it
    } catch (const StoreFailure& failure) {
        tell(failure.error);
    }
}

/// What is damaged may be found twice.
void HostNodeDB::Private::tell(const StoreError& checked)
{
    if (!m_isRefused)
        emit q.checked(checked);
    m_isRefused = m_isRefused || checked;
}

/// Of a new database; another process may be making them at the same time. A copy of a site gets what the
/// site has.
void HostNodeDB::Private::storeDefaults()
{
    if (!settings.isNew() || store->isShared())
        return;
    memory.pending.enter(Cause::now(Purpose::Start), ScopeStoring::Meanwhile);
    StoreError error;
    queue.runAlone([this] { settings.addDefaultEnvironment(); }, &error);
    memory.pending.leave();
    if (error)
        throw StoreFailure{error};
}

/// Receivers may change the database; what is no longer true is not announced.
void HostNodeDB::Private::announce(const Notices& notices)
{
    if (notices.settings) {
        settings.reload();
        emit q.settingsChanged();
    }
    for (const auto& notice : notices.nodes()) {
        const bool exists = memory.cache().find(notice.second);
        if (notice.first == Notices::Removed && !exists)
            emit q.nodeRemoved(notice.second);
        else if (notice.first == Notices::Inserted && exists)
            emit q.nodeInserted(notice.second);
        else if (notice.first == Notices::Updated && exists)
            emit q.nodeUpdated(notice.second);
    }
}

void HostNodeDB::Private::startScanners(const std::string& name, unsigned interfaces, int limit)
{
    const bool found = scanning && scanning->start(name, interfaces, limit);
    if (!found && m_missingScanners.insert(name).second)
        LogQt::line(LogQt::Info, QString::fromLatin1("No scanner named \"%1\" is available in this program")
                                     .arg(QString::fromStdString(name)));
}

void HostNodeDB::Private::beginDraft(const Cause& cause)
{
    m_draft = cause;
    queue.hold(true);
    memory.pending.enter(cause, ScopeStoring::Meanwhile);
}

ChangeSet HostNodeDB::Private::endDraft()
{
    ChangeSet draft = nodes.withdraw(m_draft);
    memory.pending.leave();
    queue.hold(false);
    return draft;
}

/// Only when somebody asks for it, the key is looked for again: the keychain may in turn ask the user, and
/// runs an event loop.
bool HostNodeDB::Private::flush(StoreWait wait)
{
    if (queue.isKeyMissing() && Keyring::ofInstallation().prepareAgain())
        settings.reload(); // its password may be readable now
    return queue.flush(wait);
}

bool HostNodeDB::canStorePasswords() const
{
    return d->store->vault()->canSeal();
}

void HostNodeDB::takeNewKeys()
{
    d->store->vault()->tellAgain();
    d->settings.reload();
    if (d->queue.isKeyMissing())
        d->queue.flush();
}

} // namespace ko
