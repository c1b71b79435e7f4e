#include "database/HostNodeDB.h"

#include "audit/AuditLog.h"
#include "audit/LogStore.h"
#include "database/NodeMemory.h"
#include "database/ProxySettings.h"
#include "database/StoreWriter.h"
#include "database/StoredEnvironments.h"
#include "database/StoredNode.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanner.h"
#include "drivers/NodeTypes.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/LogQt.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "recording/VolumeProbe.h"
#include "secrets/Secrets.h"
#include "secrets/StoredSecrets.h"

#include <QRandomGenerator>
#include <QScopedValueRollback>
#include <QTimer>
#include <QUuid>

#include <algorithm>
#include <future>
#include <set>
#include <unordered_map>
#include <vector>

namespace ko {

namespace {

constexpr int PollInterval = 200;      // ms; how soon changes of other processes are seen
constexpr int RetryInterval = 5000;    // ms; between tries to store what could not be stored
constexpr int ProgramLineDelay = 1000; // ms; a line of the program log alone is worth no commit at once

constexpr char ActiveEnvironment[] = "environment.active";
constexpr char RecordingFolderPath[] = "recording.globalFolderPath";
constexpr char TransponderAddress[] = "recording.defaultTransponderAddress";
constexpr char Bandwidth[] = "bandwidth";

/// 16 characters, of which 75 bits are random: unique among processes that do not know of each other.
/// Begins with a letter and holds no character that a spreadsheet, a URL or a file name would mind.
NodeID newNodeId()
{
    static constexpr char alphabet[] = "abcdefghijkmnpqrstuvwxyz23456789";
    quint64 random[2];
    QRandomGenerator::system()->fillRange(random);
    NodeID id(16, QLatin1Char('n'));
    for (int i = 1; i < id.size(); ++i)
        id[i] = QLatin1Char(alphabet[random[i / 8] >> 5 * (i % 8) & 31]);
    return id;
}

} // namespace

class HostNodeDB::Private : public LogStore
{
public:
    explicit Private(std::unique_ptr<SqliteStore> openedStore);

    void start(HostNodeDB* database, Check when);
    void checkBehind();
    void waitForCheck();
    void finish();

    // LogStore
    void append(const AuditRow& row) override;
    void append(const ProgramRow& row) override;
    QVector<AuditRow> auditRows(const LogRange& range) override;
    qint64 auditCount() override;
    QVector<ProgramRow> programRows(const LogRange& range) override;
    qint64 programCount() override;

    kom::smart<const Node> snapshot(NodeRecord* record);
    bool readLookupKeys();
    StoreState readState(const StoreQuery& query);
    StoreState readForeignChanges();
    void announce(const Notices& notices);
    void scheduleFlush();
    bool flush();
    bool storeAfter(const std::function<void()>& work, StoreError* error);
    void lookForKey();
    bool writeFailed(const StoreError& error);
    void written(const StoreWriter& writer, qint64 lastChange, Notices* notices);
    void readFailed(const StoreError& error);
    template <class Read>
    auto reading(Read read) -> decltype(read());

    void createDefaultEnvironment();
    void settingsTaken();
    void set(const QString& key, const QString& value);
    QString get(const char* key) const { return memory.settings.value(QLatin1String(key)); }
    void proxyChanged();
    void environmentsChanged();
    void environmentRemoved(const QString& id);
    NodeID insert(NodeData data);
    void makeRemotePreview(const NodeID& camera);
    void changeRelation(const RelationRow& relation, bool add);

    struct Copy
    {
        std::unique_ptr<Node> node;
        NodeData base; ///< what the copy was made from
    };

    HostNodeDB* q = nullptr;
    const std::unique_ptr<SqliteStore> store;
    NodeTables tables;
    NodeMemory memory;
    StoredEnvironments environments;
    GlobalNetworkProxy proxy;
    AuditLog audit;
    std::unordered_map<const Node*, Copy> copies;
    std::set<std::string> missingScanners; ///< known to be missing, said once each
    std::unique_ptr<DeviceIntake> intake;
    std::vector<std::unique_ptr<Scanner>> scanners; ///< go first
    qint64 dataVersion = 0;
    QTimer poll;
    QTimer retry;
    QTimer programLineTimer;
    std::shared_future<StoreError> check; ///< of the file, when that goes on in the background
    bool flushScheduled = false;
    bool isAlone = false; ///< within runAlone()
    bool failing = false;
    bool keyMissing = false; ///< which is why it fails
    QString lastDamage;
};

HostNodeDB::Private::Private(std::unique_ptr<SqliteStore> openedStore)
    : store(std::move(openedStore))
    , tables(*store)
    , environments([this] { environmentsChanged(); }, [this](const QString& id) { environmentRemoved(id); })
    , audit(*this)
{
    {
        const Transaction transaction(*store, Transaction::Read);
        dataVersion = store->dataVersion();
        memory.load(tables);
    }
    store->execute(QLatin1String("PRAGMA shrink_memory")); // nobody reads all those pages a second time
}

void HostNodeDB::Private::start(HostNodeDB* database, Check when)
{
    q = database;
    if (when == Check::Behind)
        checkBehind();
    createDefaultEnvironment();
    intake = std::make_unique<DeviceIntake>(*q);
    Secrets::setClearAllowed(memory.settings.contains(QLatin1String(StoredSecrets::Pending)));
    Secrets::setListener([this](StoreError::Kind kind) {
        const bool sealed = kind == StoreError::SealedElsewhere;
        readFailed(StoreError::make(
            kind, store->fileName(),
            QLatin1String(sealed ? "a password cannot be opened" : "a password is not sealed")));
    });
    settingsTaken();
    QObject::connect(&proxy, &GlobalNetworkProxy::globalProxyDataChanged, q, [this] { proxyChanged(); });
    QObject::connect(&poll, &QTimer::timeout, q, &HostNodeDB::syncForeignChanges);
    retry.setSingleShot(true);
    QObject::connect(&retry, &QTimer::timeout, q, [this] { flush(); });
    programLineTimer.setSingleShot(true);
    QObject::connect(&programLineTimer, &QTimer::timeout, q, [this] { flush(); });
    poll.start(PollInterval);
}

/// Stores what waits and lets go of the file, which stays as it is when it was found damaged.
void HostNodeDB::Private::finish()
{
    try {
        waitForCheck();
        flush();
    } catch (const StoreFailure& failure) {
        LogQt::line(LogQt::Error, QString::fromLatin1("Not stored: %1").arg(failure.error.detail));
    }
}

void HostNodeDB::Private::checkBehind()
{
    check = std::async(std::launch::async, [this, file = store->fileName()] {
        StoreError error = SqliteStore::findDamage(file);
        QMetaObject::invokeMethod(
            q, [this, error] { emit q->checked(error); }, Qt::QueuedConnection);
        return error;
    });
}

/// Throws what a check in the background has found.
void HostNodeDB::Private::waitForCheck()
{
    if (!check.valid())
        return;
    if (check.get())
        throw StoreFailure{check.get()};
    store->setSound();
}

/// A new database has one environment; another process may be making it at the same time.
void HostNodeDB::Private::createDefaultEnvironment()
{
    if (!memory.environments.isEmpty() || memory.settings.contains(QLatin1String(ActiveEnvironment)))
        return;
    waitForCheck();
    Transaction transaction(*store, Transaction::Write);
    if (tables.environments().isEmpty()) {
        const QString id = QUuid::createUuid().toString();
        tables.setEnvironments({{id, HostNodeDB::tr("Default")}});
        tables.setSetting(QLatin1String(ActiveEnvironment), id);
    }
    memory.environments = tables.environments();
    memory.settings = tables.settings();
    transaction.commit();
}

std::unique_ptr<HostNodeDB> HostNodeDB::open(const QString& file, StoreError* error, Check check)
{
    qRegisterMetaType<ko::StoreError>("ko::StoreError");
    Secrets::prepare();
    std::unique_ptr<SqliteStore> store = SqliteStore::open(
        file, error, check == Check::First ? SqliteStore::Check::First : SqliteStore::Check::ByUser);
    if (!store)
        return nullptr;
    try {
        auto d = std::make_unique<Private>(std::move(store));
        return std::unique_ptr<HostNodeDB>(new HostNodeDB(std::move(d), check));
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
}

HostNodeDB::HostNodeDB(std::unique_ptr<Private> opened, Check check)
    : d(std::move(opened))
{
    d->start(this, check);
    VolumeProbe::install();
}

HostNodeDB::~HostNodeDB()
{
    blockSignals(true);
    Secrets::setListener(nullptr);
    d->scanners.clear();
    d->intake.reset();
    d->finish();
}

QString HostNodeDB::fileName() const
{
    return d->store->fileName();
}

// Reading

/// What \a read gives, or an empty result after the failure was made known.
template <class Read>
auto HostNodeDB::Private::reading(Read read) -> decltype(read())
{
    try {
        return read();
    } catch (const StoreFailure& failure) {
        readFailed(failure.error);
        return decltype(read())();
    }
}

void HostNodeDB::Private::readFailed(const StoreError& error)
{
    if (error.kind == StoreError::Locked || error.detail == lastDamage)
        return;
    lastDamage = error.detail;
    LogQt::line(LogQt::Error, QString::fromLatin1("Reading the node database failed: %1").arg(error.detail));
    QMetaObject::invokeMethod(
        q, [this, error] { emit q->storeDamaged(error); }, Qt::QueuedConnection);
}

kom::smart<const Node> HostNodeDB::Private::snapshot(NodeRecord* record)
{
    if (!record || !record->snapshot.null())
        return record ? record->snapshot : kom::smart<const Node>();
    return reading([this, record] {
        NodeData data;
        data.id = record->summary.id();
        data.type = record->summary.type();
        data.name = record->summary.name();
        // False: another process removed it, which will be announced.
        if (tables.readProperties(data.id, &data.properties))
            memory.setData(*record, data);
        return record->snapshot;
    });
}

kom::smart<const Node> HostNodeDB::node(const QString& id) const
{
    return d->snapshot(d->memory.cache.find(id));
}

QVector<NodeSummary> HostNodeDB::summaries() const
{
    QVector<NodeSummary> result;
    result.reserve(d->memory.cache.count());
    for (const auto& entry : d->memory.cache)
        result.append(entry.second.summary.unpacked());
    return result;
}

NodeSummary HostNodeDB::summary(const QString& id) const
{
    const NodeRecord* record = d->memory.cache.find(id);
    return record ? record->summary.unpacked() : NodeSummary();
}

QStringList HostNodeDB::nodeIdList(ENodeType type) const
{
    if (type == AllNodeTypes)
        return d->memory.cache.ids();
    QStringList ids;
    for (const auto& entry : d->memory.cache) {
        if (entry.second.summary.type() == type)
            ids.append(entry.second.summary.id());
    }
    return ids;
}

bool HostNodeDB::Private::readLookupKeys()
{
    NodeCache& cache = memory.cache;
    if (cache.lookupReady())
        return true;
    return reading([this, &cache] {
        tables.forEachLookupKey([&cache](const NodeID& id, const QString& key) {
            if (NodeRecord* record = cache.find(id))
                cache.setLookupKey(*record, NodeTypes::lookupKeyToday(key));
        });
        for (auto it = memory.pending.nodes.begin(); it != memory.pending.nodes.end(); ++it) {
            if (NodeRecord* record = cache.find(it.key()))
                cache.setLookupKey(*record, NodeTypes::lookupKey(record->data()));
        }
        cache.setLookupReady();
        return true;
    });
}

QString HostNodeDB::lookupHint(const NodeHint& hint) const
{
    const QString key = NodeTypes::lookupKey(NodeTypes::dataOf(hint));
    if (key.isEmpty() || !d->readLookupKeys())
        return QString();
    const NodeRecord* record = d->memory.cache.findLookupKey(key);
    return record ? record->summary.id() : QString();
}

// Types

QString HostNodeDB::readableNodeTypeName(ENodeType type) const
{
    return NodeTypes::readableName(type);
}

NodeDB::TypeNames HostNodeDB::readableNodeTypeNames(const QList<ENodeType>* types, bool sorted) const
{
    TypeNames names;
    QList<ENodeType> offered = types ? *types : NodeTypes::all();
    if (!types) // whatever comes first by its name, a dialog that adds begins with it
        offered.erase(std::remove_if(offered.begin(), offered.end(),
                                     [](ENodeType type) { return !NodeTypes::canBeAdded(type); }),
                      offered.end());
    for (const ENodeType type : offered)
        names.append({type, NodeTypes::readableName(type)});
    if (sorted)
        std::stable_sort(names.begin(), names.end(), [](const auto& a, const auto& b) {
            return QString::localeAwareCompare(a.second, b.second) < 0;
        });
    return names;
}

kom::smart<INodeDriverComponent> HostNodeDB::nodeDriver(ENodeType type) const
{
    return NodeTypes::driver(type);
}

// Changing nodes

Node* HostNodeDB::beginUpdateNode(const QString& id, int)
{
    syncForeignChanges();
    NodeRecord* record = d->memory.cache.find(id);
    if (d->snapshot(record).null())
        return nullptr;
    Private::Copy copy;
    copy.base = record->data();
    copy.node = NodeTypes::createNode(copy.base);
    Node* node = copy.node.get();
    d->copies.emplace(node, std::move(copy));
    return node;
}

void HostNodeDB::endUpdateNode(Node* node)
{
    const auto found = d->copies.find(node);
    if (found == d->copies.end()) {
        if (node)
            LogQt::line(LogQt::Error, QLatin1String("endUpdateNode() without its beginUpdateNode()"));
        return;
    }
    const Private::Copy copy = std::move(found->second);
    d->copies.erase(found);
    const NodeData edited = dynamic_cast<const StoredNode&>(*copy.node).nodeData();
    NodeRecord* record = d->memory.cache.find(copy.base.id);
    if (!record) {
        LogQt::line(LogQt::Debug, QLatin1String("A node was removed while it was edited"));
        return;
    }
    // What the user changed, on top of what others changed meanwhile.
    const NodeData current = record->data();
    NodeData merged = current;
    if (edited.name != copy.base.name)
        merged.name = edited.name;
    const auto changes = PropertyList::difference(copy.base.properties, edited.properties);
    for (const PropertyList::Entry& change : changes)
        merged.properties.set(change.name, change.value);
    const auto difference = PropertyList::difference(current.properties, merged.properties);
    const bool renamed = merged.name != current.name;
    if (difference.isEmpty() && !renamed)
        return;
    d->memory.setData(*record, merged);
    d->memory.pending.nodeUpdated(merged.id, difference, renamed);
    d->scheduleFlush();
    emit nodeUpdated(merged.id);
    d->makeRemotePreview(merged.id);
}

/// A camera that is reached through the remote preview server has a node with its settings for that.
void HostNodeDB::Private::makeRemotePreview(const NodeID& camera)
{
    const NodeRecord* record = memory.cache.find(camera);
    if (!record || record->summary.type() != IPDeviceType ||
        !record->data().properties.value(PropertyKeys::UseRecordingTransponder).toBool() ||
        !memory.relations.destinations(camera, RecordingTransponderRelation).isEmpty())
        return;
    const NodeData data = NodeTypes::remotePreviewOf(record->data(), get(TransponderAddress));
    q->addNodeRelation(camera, insert(data), RecordingTransponderRelation);
}

NodeID HostNodeDB::Private::insert(NodeData data)
{
    data.id = newNodeId();
    StoredSecrets::seal(data);
    NodeRecord& record = memory.cache.append(PackedSummary(NodeTypes::summaryOf(data)));
    record.context = data.context;
    memory.setData(record, data);
    memory.pending.nodeInserted(data.id);
    scheduleFlush();
    emit q->nodeInserted(data.id);
    return data.id;
}

void HostNodeDB::newNodeHint(const NodeHint& hint)
{
    d->insert(NodeTypes::dataOf(hint));
}

void HostNodeDB::removeNode(const QString& id)
{
    NodeRecord* record = d->memory.cache.find(id);
    if (!record)
        return;
    const NodeID removed = record->summary.id(); // the caller's may be a part of what goes
    const bool stored = record->isStored();
    const QStringList previews = d->memory.relations.destinations(removed, RecordingTransponderRelation);
    d->memory.removeNode(*record);
    if (stored)
        d->memory.pending.nodeRemoved(removed);
    d->scheduleFlush();
    emit nodeRemoved(removed);
    for (const QString& preview : previews) {
        if (!isDestinationOfNodeRelation(preview, RecordingTransponderRelation))
            removeNode(preview);
    }
}

// Relations

void HostNodeDB::Private::changeRelation(const RelationRow& relation, bool add)
{
    if (!(add ? memory.relations.add(relation) : memory.relations.remove(relation)))
        return;
    memory.pending.relations.append({add, relation});
    scheduleFlush();
    Notices notices;
    notices.updated(relation.source);
    notices.updated(relation.destination);
    announce(notices);
}

void HostNodeDB::addNodeRelation(const QString& from, const QString& to, ENodeRelationType type)
{
    if (d->memory.cache.find(from) && d->memory.cache.find(to))
        d->changeRelation({from, to, type}, true);
}

void HostNodeDB::removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type)
{
    d->changeRelation({from, to, type}, false);
}

QStringList HostNodeDB::relatedNodes(const QString& id, ENodeRelationType type) const
{
    return d->memory.relations.destinations(id, type);
}

bool HostNodeDB::isDestinationOfNodeRelation(const QString& id, ENodeRelationType type) const
{
    return d->memory.relations.isDestination(id, type);
}

// Scanners

void HostNodeDB::addScanner(std::unique_ptr<Scanner> scanner)
{
    d->intake->attach(*scanner);
    d->scanners.push_back(std::move(scanner));
}

QList<Scanner*> HostNodeDB::scanners() const
{
    QList<Scanner*> all;
    for (const auto& scanner : d->scanners)
        all.append(scanner.get());
    return all;
}

DeviceIntake& HostNodeDB::deviceIntake()
{
    return *d->intake;
}

void HostNodeDB::startScanners(const std::string& name, unsigned interfaces, int limit)
{
    bool found = false;
    for (const auto& scanner : d->scanners) {
        if (scanner->name().toStdString() != name)
            continue;
        found = true;
        if (scanner->state().phase == ScannerState::Running)
            continue;
        d->intake->beginScan();
        scanner->start(interfaces, limit);
    }
    if (!found && d->missingScanners.insert(name).second)
        LogQt::line(LogQt::Info, QString::fromLatin1("No scanner named \"%1\" is available in this program")
                                     .arg(QString::fromStdString(name)));
}

void HostNodeDB::stopScanners(const std::string& name)
{
    for (const auto& scanner : d->scanners) {
        if (scanner->name().toStdString() == name)
            scanner->stop();
    }
}

// Settings

void HostNodeDB::Private::set(const QString& key, const QString& value)
{
    if (memory.setSetting(key, value))
        scheduleFlush();
}

QString HostNodeDB::globalRecordingFolderPath() const
{
    return d->get(RecordingFolderPath);
}

void HostNodeDB::setGlobalRecordingFolderPath(const QString& path)
{
    d->set(QLatin1String(RecordingFolderPath), path);
}

QString HostNodeDB::defaultRecordingTransponderIP() const
{
    return d->get(TransponderAddress);
}

void HostNodeDB::setDefaultRecordingTransponderIP(const QString& address)
{
    d->set(QLatin1String(TransponderAddress), address);
}

int HostNodeDB::bandwidth() const
{
    bool isSet = false;
    const int bandwidth = d->get(Bandwidth).toInt(&isSet);
    return isSet ? bandwidth : int(FastLocal);
}

void HostNodeDB::setBandwidth(int bandwidth)
{
    d->set(QLatin1String(Bandwidth), QString::number(bandwidth));
}

GlobalNetworkProxy& HostNodeDB::globalProxy()
{
    return d->proxy;
}

void HostNodeDB::Private::proxyChanged()
{
    // Also called when the settings of another process are taken over: then nothing differs.
    GlobalNetworkProxy untouched;
    ProxySettings::toProxy(NodeTables::Settings(), untouched);
    const NodeTables::Settings defaults = ProxySettings::fromProxy(untouched, NodeTables::Settings());
    const NodeTables::Settings values = ProxySettings::fromProxy(proxy, memory.settings);
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (memory.settings.value(it.key(), defaults.value(it.key())) != it.value())
            set(it.key(), it.value());
    }
}

Environments& HostNodeDB::environments()
{
    return d->environments;
}

void HostNodeDB::Private::environmentsChanged()
{
    memory.environments = environments.getList();
    memory.pending.environments = memory.environments;
    scheduleFlush();
}

void HostNodeDB::Private::environmentRemoved(const QString& id)
{
    if (get(ActiveEnvironment) == id)
        set(QLatin1String(ActiveEnvironment), q->activeEnvironment());
}

/// The first one stands in for one that is gone.
QString HostNodeDB::activeEnvironment() const
{
    const QString active = d->get(ActiveEnvironment);
    if (d->environments.contains(active) || d->memory.environments.isEmpty())
        return d->environments.contains(active) ? active : QString();
    return d->memory.environments.first().first;
}

void HostNodeDB::setActiveEnvironment(const QString& id)
{
    if (d->environments.contains(id))
        d->set(QLatin1String(ActiveEnvironment), id);
}

/// Brings the objects that were handed out up to what is in memory.
void HostNodeDB::Private::settingsTaken()
{
    environments.reload(memory.environments);
    ProxySettings::toProxy(memory.settings, proxy);
}

// Logs

AuditLog& HostNodeDB::auditLog()
{
    return d->audit;
}

LogStore& HostNodeDB::logStore()
{
    return *d;
}

void HostNodeDB::Private::append(const AuditRow& row)
{
    memory.pending.audit.append(row);
    scheduleFlush();
}

void HostNodeDB::Private::append(const ProgramRow& row)
{
    QVector<ProgramRow>& lines = memory.pending.programLines;
    if (lines.size() >= NodeTables::MaxProgramLines)
        lines.removeFirst(); // the store cannot be written, and would not keep it either
    lines.append(row);
    if (!programLineTimer.isActive())
        programLineTimer.start(ProgramLineDelay);
}

QVector<AuditRow> HostNodeDB::Private::auditRows(const LogRange& range)
{
    flush();
    return reading([&] { return tables.audit(range); });
}

qint64 HostNodeDB::Private::auditCount()
{
    flush();
    return reading([&] { return tables.auditCount(); });
}

QVector<ProgramRow> HostNodeDB::Private::programRows(const LogRange& range)
{
    flush();
    return reading([&] { return tables.programLines(range); });
}

qint64 HostNodeDB::Private::programCount()
{
    flush();
    return reading([&] { return tables.programLineCount(); });
}

// Storing

/// A queued call runs before the event loop waits again, whatever else is in the queue; what is posted
/// before it goes into the same commit.
void HostNodeDB::Private::scheduleFlush()
{
    if (flushScheduled)
        return;
    flushScheduled = true;
    QMetaObject::invokeMethod(
        q,
        [this] {
            flushScheduled = false;
            flush();
        },
        Qt::QueuedConnection);
}

bool HostNodeDB::Private::flush()
{
    if (memory.pending.isEmpty() || isAlone)
        return true;
    StoreError error;
    return storeAfter(nullptr, &error) || writeFailed(error);
}

HostNodeDB::Outcome HostNodeDB::runAlone(const std::function<void()>& work, StoreError* error)
{
    bool hasRun = false;
    const auto noteAndRun = [&] {
        hasRun = true;
        work();
    };
    if (d->storeAfter(noteAndRun, error))
        return Outcome::Stored;
    if (!hasRun)
        return Outcome::NotRun;
    d->writeFailed(*error);
    return Outcome::NotStored;
}

/// Stores what waits after \a work, if there is any, has added to it.
bool HostNodeDB::Private::storeAfter(const std::function<void()>& work, StoreError* error)
{
    Notices notices;
    *error = StoreError();
    try {
        waitForCheck();
        Transaction transaction(*store, Transaction::Write);
        // Now nobody else can write, so what is brought in here is what is written upon.
        notices = memory.take(readForeignChanges());
        if (work) {
            const QScopedValueRollback<bool> alone(isAlone, true);
            announce(std::exchange(notices, Notices()));
            work();
        }
        StoreWriter writer(tables, memory.cache);
        writer.write(memory.pending);
        const qint64 lastChange = tables.lastChange();
        transaction.commit();
        written(writer, lastChange, &notices);
    } catch (const StoreFailure& failure) {
        *error = failure.error;
    }
    announce(notices);
    if (failing && !*error) {
        failing = false;
        emit q->storeRecovered();
    }
    return !*error;
}

void HostNodeDB::Private::written(const StoreWriter& writer, qint64 lastChange, Notices* notices)
{
    for (const auto& inserted : writer.insertedNodes())
        memory.cache.setStored(*inserted.first, inserted.second);
    memory.pending = PendingChanges();
    memory.lastChange = lastChange;
    retry.stop();
    programLineTimer.stop();
    for (const NodeID& id : writer.missingNodes()) {
        memory.removeNode(*memory.cache.find(id));
        notices->removed(id);
    }
}

/// Only when somebody asks for it: the keychain may in turn ask the user, and runs an event loop.
void HostNodeDB::Private::lookForKey()
{
    if (failing && keyMissing && Secrets::prepareAgain())
        settingsTaken(); // its password may be readable now
}

bool HostNodeDB::Private::writeFailed(const StoreError& error)
{
    if (!failing)
        LogQt::line(LogQt::Error,
                    QString::fromLatin1("Writing the node database failed: %1").arg(error.detail));
    failing = true;
    keyMissing = error.kind == StoreError::KeyNotKept;
    retry.start(RetryInterval);
    emit q->storeFailed(error);
    return false;
}

bool HostNodeDB::flush()
{
    d->lookForKey();
    return d->flush();
}

bool HostNodeDB::hasUnstoredChanges() const
{
    return d->memory.pending.hasChanges();
}

QStringList HostNodeDB::unstoredNodes() const
{
    const PendingChanges& pending = d->memory.pending;
    QStringList ids;
    for (const NodeID& id : pending.order) {
        if (pending.nodes.contains(id))
            ids.append(id);
    }
    for (const PendingChanges::RelationChange& change : pending.relations)
        ids.append(change.relation.source);
    ids.removeDuplicates();
    return ids;
}

void HostNodeDB::discardUnstoredChanges()
{
    const PendingChanges dropped = std::exchange(d->memory.pending, PendingChanges());
    StoreQuery query;
    query.everything = true;
    query.settings = true;
    Notices notices;
    try {
        const Transaction transaction(*d->store, Transaction::Read);
        notices = d->memory.take(d->readState(query));
    } catch (const StoreFailure& failure) {
        d->memory.pending = dropped;
        d->readFailed(failure.error);
        return;
    }
    d->memory.pending.programLines = dropped.programLines; // they tell why
    d->failing = false;
    d->retry.stop();
    d->announce(notices);
}

// Changes of other processes

StoreState HostNodeDB::Private::readState(const StoreQuery& query)
{
    return StoreState::read(tables, query, [this](const NodeID& id) {
        const NodeRecord* record = memory.cache.find(id);
        return record && !record->snapshot.null();
    });
}

/// What this process stored itself lies before memory.lastChange.
StoreState HostNodeDB::Private::readForeignChanges()
{
    return readState(StoreQuery::changesSince(tables, memory.lastChange));
}

void HostNodeDB::syncForeignChanges()
{
    if (d->isAlone)
        return;
    Notices notices;
    try {
        const qint64 version = d->store->dataVersion();
        if (version == d->dataVersion)
            return;
        const Transaction transaction(*d->store, Transaction::Read);
        notices = d->memory.take(d->readForeignChanges());
        d->dataVersion = version;
    } catch (const StoreFailure& failure) {
        d->readFailed(failure.error);
    }
    d->announce(notices);
}

/// Receivers may change the database; what is no longer true is not announced.
void HostNodeDB::Private::announce(const Notices& notices)
{
    if (notices.settings) {
        settingsTaken();
        emit q->settingsChanged();
    }
    for (const auto& notice : notices.nodes()) {
        const bool exists = memory.cache.find(notice.second);
        if (notice.first == Notices::Removed && !exists)
            emit q->nodeRemoved(notice.second);
        else if (notice.first == Notices::Inserted && exists)
            emit q->nodeInserted(notice.second);
        else if (notice.first == Notices::Updated && exists)
            emit q->nodeUpdated(notice.second);
    }
}

} // namespace ko
