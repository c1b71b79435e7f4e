#include "database/HostNodeDB.h"

#include "database/HostNodeDBPrivate.h"
#include "drivers/NodeTypes.h"
#include "ko/NodeHint.h"

namespace ko {

QString HostNodeDB::fileName() const
{
    return d->store->fileName();
}

// Reading

kom::smart<const Node> HostNodeDB::node(const QString& id) const
{
    return d->nodes.node(id);
}

void HostNodeDB::readAhead(const QStringList& ids) const
{
    d->queue.reading([&] { d->memory.readAhead(ids); });
}

bool HostNodeDB::getBrief(const QString& id, NodeBrief* brief) const
{
    return d->memory.getBrief(id, brief);
}

bool HostNodeDB::isLoaded() const
{
    return d->memory.isLoaded();
}

QVector<NodeSummary> HostNodeDB::summaries() const
{
    return d->memory.cache().summaries();
}

std::function<QVector<NodeSummary>()> HostNodeDB::takeLoadedSummaries()
{
    return [packed = d->memory.takeLoaded()] {
        QVector<NodeSummary> result;
        result.reserve(int(packed.size()));
        for (const PackedSummary& summary : packed)
            result.append(summary.unpacked());
        return result;
    };
}

NodeSummary HostNodeDB::summary(const QString& id) const
{
    return d->queue.reading([&] { return d->memory.summary(id); });
}

QStringList HostNodeDB::nodeIdList(ENodeType type) const
{
    return d->memory.cache().ids(type);
}

QStringList HostNodeDB::nodesWithMac(const QString& mac) const
{
    return d->queue.reading([&] { return d->memory.nodesWithMac(mac); });
}

void HostNodeDB::column(const QString& key, const Visit& visit) const
{
    d->queue.reading([&] { d->memory.column(key, visit); });
}

QString HostNodeDB::lookupHint(const NodeHint& hint) const
{
    const QString key = NodeTypes::lookupKey(NodeTypes::described(hint));
    return d->queue.reading([&] { return d->memory.nodeWithLookupKey(key); });
}

// Types

QString HostNodeDB::readableNodeTypeName(ENodeType type) const
{
    return NodeTypes::readableName(type);
}

NodeDB::TypeNames HostNodeDB::readableNodeTypeNames(const QList<ENodeType>* types, bool sorted) const
{
    return NodeTypes::readableNames(types, sorted);
}

kom::smart<INodeDriverComponent> HostNodeDB::nodeDriver(ENodeType type) const
{
    return NodeTypes::driver(type);
}

// Changing nodes

Node* HostNodeDB::beginUpdateNode(const QString& id, int)
{
    return d->nodes.begin(id);
}

void HostNodeDB::endUpdateNode(Node* node)
{
    d->nodes.end(node);
}

void HostNodeDB::newNodeHint(const NodeHint& hint)
{
    add(hint);
}

QString HostNodeDB::add(const NodeHint& hint)
{
    return d->nodes.add(NodeTypes::dataOf(hint));
}

void HostNodeDB::removeNode(const QString& id)
{
    d->nodes.remove(id);
}

bool HostNodeDB::apply(const ChangeSet& set)
{
    return d->nodes.apply(set);
}

void HostNodeDB::beginDraft(const Cause& cause)
{
    d->beginDraft(cause);
}

ChangeSet HostNodeDB::endDraft()
{
    return d->endDraft();
}

void HostNodeDB::addNodeRelation(const QString& from, const QString& to, ENodeRelationType type)
{
    d->nodes.change({{from, to, type}, true});
}

void HostNodeDB::removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type)
{
    d->nodes.change({{from, to, type}, false});
}

QStringList HostNodeDB::relatedNodes(const QString& id, ENodeRelationType type) const
{
    return d->queue.reading([&] { return d->memory.relatedNodes(id, type); });
}

bool HostNodeDB::isDestinationOfNodeRelation(const QString& id, ENodeRelationType type) const
{
    return d->memory.relations().isDestination(id, type);
}

// Scanners

Scanning* HostNodeDB::scanning() const
{
    return d->scanning.get();
}

void HostNodeDB::setScanning(std::unique_ptr<Scanning> scanning)
{
    d->scanning = std::move(scanning);
}

void HostNodeDB::startScanners(const std::string& name, unsigned interfaces, int limit)
{
    if (!isReadOnly()) // what they find is stored
        d->startScanners(name, interfaces, limit);
}

void HostNodeDB::stopScanners(const std::string& name)
{
    if (d->scanning)
        d->scanning->stop(name);
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

StoredHistory& HostNodeDB::history()
{
    return d->history;
}

NodeEditors& HostNodeDB::editors()
{
    return d->editors;
}

// Storing

void HostNodeDB::enter(const Cause& cause, ScopeStoring storing)
{
    d->memory.pending.enter(cause, storing);
}

void HostNodeDB::leave()
{
    d->memory.pending.leave();
    if (!d->memory.pending.isEmpty())
        d->queue.schedule();
}

bool HostNodeDB::flush(StoreWait wait)
{
    return d->flush(wait);
}

HostNodeDB::Outcome HostNodeDB::runAlone(const std::function<void()>& work, StoreError* error, StoreWait wait)
{
    return d->queue.runAlone(work, error, wait);
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

void HostNodeDB::syncSomeForeignChanges()
{
    d->queue.syncSome();
}

bool HostNodeDB::isReadOnly() const
{
    return d->memory.isReadOnly;
}

void HostNodeDB::setReadOnly(bool readOnly)
{
    d->memory.isReadOnly = readOnly;
}

} // namespace ko
