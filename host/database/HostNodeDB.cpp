#include "database/HostNodeDB.h"

#include "audit/AuditLog.h"
#include "database/HostSettings.h"
#include "database/NodeCopies.h"
#include "database/StoredLogs.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanner.h"
#include "drivers/NodeTypes.h"
#include "ko/LogQt.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "recording/VolumeProbe.h"
#include "secrets/Secrets.h"

#include <QRandomGenerator>

#include <algorithm>
#include <set>
#include <vector>

namespace ko {

namespace {

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

class HostNodeDB::Private
{
public:
    Private(HostNodeDB& database, std::unique_ptr<NodeStore> opened);

    void start(Check when);
    void storeDefaults();
    kom::smart<const Node> snapshot(NodeRecord* record);
    void announce(const Notices& notices);
    NodeID add(NodeData data);
    void makeRemotePreview(const NodeID& camera);
    void change(const RelationChange& change);

    HostNodeDB& q;
    const std::unique_ptr<NodeStore> store;
    NodeMemory memory;
    ChangeQueue queue;
    HostSettings settings;
    StoredLogs logs;
    AuditLog audit;
    NodeCopies copies;
    std::set<std::string> missingScanners; ///< known to be missing, said once each
    std::unique_ptr<DeviceIntake> intake;
    std::vector<std::unique_ptr<Scanner>> scanners; ///< go first
};

HostNodeDB::Private::Private(HostNodeDB& database, std::unique_ptr<NodeStore> opened)
    : q(database)
    , store(std::move(opened))
    , memory(*store)
    , queue(*store, memory)
    , settings(memory, [this] { queue.schedule(); })
    , logs(*store, memory, queue)
    , audit(logs)
{
}

void HostNodeDB::Private::start(Check when)
{
    QObject::connect(&queue, &ChangeQueue::brought, &q,
                     [this](const Notices& notices) { announce(notices); });
    QObject::connect(&queue, &ChangeQueue::failed, &q, &HostNodeDB::storeFailed);
    QObject::connect(&queue, &ChangeQueue::recovered, &q, &HostNodeDB::storeRecovered);
    QObject::connect(&queue, &ChangeQueue::damaged, &q, &HostNodeDB::storeDamaged);
    QObject::connect(&queue, &ChangeQueue::checked, &q, &HostNodeDB::checked);
    if (when == Check::Behind)
        queue.checkInBackground();
    storeDefaults();
    intake = std::make_unique<DeviceIntake>(q);
    Secrets::setClearAllowed(store->isSealingPending());
    Secrets::setListener([this](StoreError::Kind kind) {
        const bool sealed = kind == StoreError::SealedElsewhere;
        queue.readFailed(StoreError::make(
            kind, store->fileName(),
            QLatin1String(sealed ? "a password cannot be opened" : "a password is not sealed")));
    });
    settings.reload();
    queue.start();
}

/// Of a new database; another process may be making them at the same time.
void HostNodeDB::Private::storeDefaults()
{
    if (!settings.isNew())
        return;
    memory.pending.enter(Cause::now(Purpose::Start));
    StoreError error;
    queue.runAlone([this] { settings.addDefaultEnvironment(); }, &error);
    memory.pending.leave();
    if (error)
        throw StoreFailure{error};
}

std::unique_ptr<HostNodeDB> HostNodeDB::open(const QString& file, StoreError* error, Check check)
{
    qRegisterMetaType<ko::StoreError>("ko::StoreError");
    Secrets::prepare();
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
    : d(new Private(*this, std::move(opened)))
{
    d->start(check);
    VolumeProbe::install();
}

HostNodeDB::~HostNodeDB()
{
    blockSignals(true);
    Secrets::setListener(nullptr);
    d->scanners.clear();
    d->intake.reset();
    d->queue.finish();
}

QString HostNodeDB::fileName() const
{
    return d->store->fileName();
}

// Reading

kom::smart<const Node> HostNodeDB::Private::snapshot(NodeRecord* record)
{
    return record ? queue.reading([&] { return memory.node(*record); }) : kom::smart<const Node>();
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

QString HostNodeDB::lookupHint(const NodeHint& hint) const
{
    const QString key = NodeTypes::lookupKey(NodeTypes::dataOf(hint));
    if (key.isEmpty())
        return QString();
    return d->queue.reading([&] {
        d->memory.readLookupKeys();
        const NodeRecord* record = d->memory.cache.findLookupKey(key);
        return record ? record->summary.id() : QString();
    });
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
    return d->snapshot(record).null() ? nullptr : d->copies.begin(record->data());
}

void HostNodeDB::endUpdateNode(Node* node)
{
    const std::optional<NodeCopies::Edit> edit = d->copies.end(node);
    if (!edit) {
        if (node)
            LogQt::line(LogQt::Error, QLatin1String("endUpdateNode() without its beginUpdateNode()"));
        return;
    }
    NodeRecord* record = d->memory.cache.find(edit->id());
    if (!record) {
        LogQt::line(LogQt::Debug, QLatin1String("A node was removed while it was edited"));
        return;
    }
    if (!d->memory.update(*record, edit->mergedInto(record->data())))
        return;
    d->queue.schedule();
    emit nodeUpdated(edit->id());
    d->makeRemotePreview(edit->id());
}

/// A camera that is reached through the remote preview server has a node with its settings for that.
void HostNodeDB::Private::makeRemotePreview(const NodeID& camera)
{
    const NodeRecord* record = memory.cache.find(camera);
    if (!record || record->summary.type() != IPDeviceType ||
        !record->data().properties.value(PropertyKeys::UseRecordingTransponder).toBool() ||
        !memory.relations.destinations(camera, RecordingTransponderRelation).isEmpty())
        return;
    const NodeData data =
        NodeTypes::remotePreviewOf(record->data(), settings.text(HostSettings::TransponderAddress));
    q.addNodeRelation(camera, add(data), RecordingTransponderRelation);
}

NodeID HostNodeDB::Private::add(NodeData data)
{
    data.id = newNodeId();
    Secrets::seal(data);
    memory.add(data);
    queue.schedule();
    emit q.nodeInserted(data.id);
    return data.id;
}

void HostNodeDB::newNodeHint(const NodeHint& hint)
{
    add(hint);
}

QString HostNodeDB::add(const NodeHint& hint)
{
    return d->add(NodeTypes::dataOf(hint));
}

void HostNodeDB::removeNode(const QString& id)
{
    NodeRecord* record = d->memory.cache.find(id);
    if (!record)
        return;
    const NodeID removed = record->summary.id(); // the caller's may be a part of what goes
    const QStringList previews = d->memory.relations.destinations(removed, RecordingTransponderRelation);
    d->memory.remove(*record);
    d->queue.schedule();
    emit nodeRemoved(removed);
    for (const QString& preview : previews) {
        if (!isDestinationOfNodeRelation(preview, RecordingTransponderRelation))
            removeNode(preview);
    }
}

bool HostNodeDB::apply(const ChangeSet& set)
{
    return d->queue.reading([&] {
        const Notices notices = d->memory.apply(set);
        d->queue.schedule();
        d->announce(notices);
        return true;
    });
}

// Relations

void HostNodeDB::Private::change(const RelationChange& change)
{
    if (!memory.change(change))
        return;
    queue.schedule();
    Notices notices;
    notices.updated(change.relation.source);
    notices.updated(change.relation.destination);
    announce(notices);
}

void HostNodeDB::addNodeRelation(const QString& from, const QString& to, ENodeRelationType type)
{
    if (d->memory.cache.find(from) && d->memory.cache.find(to))
        d->change({{from, to, type}, true});
}

void HostNodeDB::removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type)
{
    d->change({{from, to, type}, false});
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

QString HostNodeDB::globalRecordingFolderPath() const
{
    return d->settings.text(HostSettings::RecordingFolderPath);
}

void HostNodeDB::setGlobalRecordingFolderPath(const QString& path)
{
    d->settings.setText(HostSettings::RecordingFolderPath, path);
}

QString HostNodeDB::defaultRecordingTransponderIP() const
{
    return d->settings.text(HostSettings::TransponderAddress);
}

void HostNodeDB::setDefaultRecordingTransponderIP(const QString& address)
{
    d->settings.setText(HostSettings::TransponderAddress, address);
}

int HostNodeDB::bandwidth() const
{
    return d->settings.bandwidth();
}

void HostNodeDB::setBandwidth(int bandwidth)
{
    d->settings.setText(HostSettings::Bandwidth, QString::number(bandwidth));
}

GlobalNetworkProxy& HostNodeDB::globalProxy()
{
    return d->settings.proxy();
}

Environments& HostNodeDB::environments()
{
    return d->settings.environments();
}

QString HostNodeDB::activeEnvironment() const
{
    return d->settings.activeEnvironment();
}

void HostNodeDB::setActiveEnvironment(const QString& id)
{
    d->settings.setActiveEnvironment(id);
}

// Logs

AuditLog& HostNodeDB::auditLog()
{
    return d->audit;
}

LogStore& HostNodeDB::logStore()
{
    return d->logs;
}

QVector<ChangeSet> HostNodeDB::changeSets(qint64 after, int count)
{
    d->queue.flush();
    return d->queue.reading([&] { return d->store->changeSets(after, count); });
}

// Storing

void HostNodeDB::enter(const Cause& cause)
{
    d->memory.pending.enter(cause);
}

void HostNodeDB::leave()
{
    d->memory.pending.leave();
}

/// Only when somebody asks for it, the key is looked for again: the keychain may in turn ask the user, and
/// runs an event loop.
bool HostNodeDB::flush()
{
    if (d->queue.isKeyMissing() && Secrets::prepareAgain())
        d->settings.reload(); // its password may be readable now
    return d->queue.flush();
}

HostNodeDB::Outcome HostNodeDB::runAlone(const std::function<void()>& work, StoreError* error)
{
    return d->queue.runAlone(work, error);
}

bool HostNodeDB::hasUnstoredChanges() const
{
    return d->memory.pending.hasChanges();
}

QStringList HostNodeDB::unstoredNodes() const
{
    return d->memory.pending.nodes();
}

void HostNodeDB::discardUnstoredChanges()
{
    d->queue.discard();
}

void HostNodeDB::syncForeignChanges()
{
    d->queue.sync();
}

/// Receivers may change the database; what is no longer true is not announced.
void HostNodeDB::Private::announce(const Notices& notices)
{
    if (notices.settings) {
        settings.reload();
        emit q.settingsChanged();
    }
    for (const auto& notice : notices.nodes()) {
        const bool exists = memory.cache.find(notice.second);
        if (notice.first == Notices::Removed && !exists)
            emit q.nodeRemoved(notice.second);
        else if (notice.first == Notices::Inserted && exists)
            emit q.nodeInserted(notice.second);
        else if (notice.first == Notices::Updated && exists)
            emit q.nodeUpdated(notice.second);
    }
}

} // namespace ko
