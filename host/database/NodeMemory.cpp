#include "database/NodeMemory.h"

#include "drivers/NodeTypes.h"
#include "ko/PropertyKeys.h"

namespace ko {

namespace {

/// With what lists and look-ups need of \a data; without values.
NodeChange changeOf(const NodeData& data)
{
    NodeChange change;
    change.id = data.id;
    change.type = data.type;
    change.summary = PackedSummary(NodeTypes::summaryOf(data));
    change.lookupKey = NodeTypes::lookupKey(data);
    return change;
}

} // namespace

NodeMemory::NodeMemory(NodeStore& store, std::launch when, const std::function<void()>& loaded)
    : m_store(store)
{
    NodeStore::Contents contents = store.load(); // first: what is newer comes again
    revision = contents.revision;
    settings = std::move(contents.settings);
    environments = std::move(contents.environments);
    m_loading = std::make_unique<NodeLoading>(store.fileName(), when, loaded);
}

bool NodeMemory::isLoaded() const
{
    if (m_loading && m_loading->isEnded())
        finishLoading();
    return !m_loading;
}

void NodeMemory::finishLoading() const
{
    const std::unique_ptr<NodeLoading> loading = std::move(m_loading);
    try {
        m_nodes = loading->take();
    } catch (const StoreFailure& failure) {
        m_loadingFailure = failure.error;
    }
}

void NodeMemory::requireNodes() const
{
    if (m_loadingFailure)
        throw StoreFailure{m_loadingFailure};
}

NodeSummary NodeMemory::summary(const NodeID& id) const
{
    if (!isLoaded())
        return m_store.node(id).summary.unpacked();
    const NodeRecord* record = cache().find(id);
    return record ? record->summary.unpacked() : NodeSummary();
}

QStringList NodeMemory::relatedNodes(const NodeID& id, ENodeRelationType type) const
{
    if (isLoaded())
        return relations().destinations(id, type);
    QStringList nodes;
    const QVector<Relation> stored = m_store.relationsFrom(id);
    for (const Relation& relation : stored) {
        if (relation.type == type)
            nodes.append(relation.destination);
    }
    return nodes;
}

bool NodeMemory::getBrief(const NodeID& id, NodeBrief* brief) const
{
    const NodeRecord* record = cache().find(id);
    if (!record)
        return false;
    const NodeSummary summary = record->summary.unpacked();
    const bool isDevice = NodeTypes::isDevice(summary.type);
    *brief = NodeBrief{summary.type, summary.name, isDevice, isDevice ? summary.location : QString()};
    return true;
}

bool NodeMemory::read(NodeRecord& record)
{
    if (record.contents)
        return true;
    NodeData data = record.data();
    const std::optional<PropertyList> properties = m_store.properties(data.id);
    if (!properties)
        return false; // another process removed it, which will be announced
    data.properties = *properties;
    setData(record, data);
    return true;
}

void NodeMemory::readAhead(const QStringList& ids)
{
    const auto isMissing = [this](const NodeID& id) {
        const NodeRecord* record = cache().find(id);
        return record && !record->contents;
    };
    QStringList missing;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(missing), isMissing);
    m_store.properties(missing, [this](const NodeID& id, const PropertyList& properties) {
        NodeRecord* record = cache().find(id);
        NodeData data = record->data();
        data.properties = properties;
        setData(*record, data);
    });
}

QString NodeMemory::nodeWithLookupKey(const QString& key)
{
    if (key.isEmpty())
        return QString();
    readLookupKeys();
    const NodeRecord* record = cache().findLookupKey(key);
    return record ? record->summary.id() : QString();
}

/// Once.
void NodeMemory::readLookupKeys()
{
    if (cache().lookupReady())
        return;
    m_store.lookupKeys([this](const NodeID& id, const QString& key) {
        if (NodeRecord* record = cache().find(id))
            cache().setLookupKey(*record, NodeTypes::lookupKeyToday(key));
    });
    const QStringList changed = pending.nodes();
    for (const NodeID& id : changed) {
        NodeRecord* record = cache().find(id);
        if (record && record->contents) // else only a relation of it waits
            cache().setLookupKey(*record, NodeTypes::lookupKey(record->data()));
    }
    cache().setLookupReady();
}

QStringList NodeMemory::nodesWithMac(const QString& mac)
{
    QStringList ids = m_store.nodesWithMac(mac);
    const QStringList waiting = pending.nodes();
    for (const NodeID& id : waiting) {
        const NodeRecord* record = cache().find(id);
        if (record && !record->contents)
            continue; // only a relation of it waits
        ids.removeAll(id);
        if (record && record->data().properties.value(PropertyKeys::MacAddress).toString() == mac)
            ids.append(id);
    }
    return ids;
}

void NodeMemory::column(const QString& key, const std::function<void(const NodeID&, const QVariant&)>& visit)
{
    const QStringList nodes = pending.nodes();
    QSet<NodeID> waiting;
    for (const NodeID& id : nodes) {
        const NodeRecord* record = cache().find(id);
        if (record && !record->contents)
            continue; // only a relation of it waits
        waiting.insert(id);
        const QVariant value = record ? record->contents->properties.value(key) : QVariant();
        if (value.isValid())
            visit(id, value);
    }
    m_store.column(key, [&](const NodeID& id, const QVariant& value) {
        if (!waiting.contains(id))
            visit(id, value);
    });
}

// What others changed

Notices NodeMemory::take(const Delta& delta)
{
    Notices notices;
    for (const NodeRow& row : delta.nodes)
        takeNode(row, !delta.everything, &notices);
    if (delta.everything) {
        removeMissing(delta, &notices);
        cache().clearLookup(); // its keys were not read
    }
    takeRelations(delta, &notices);
    if (delta.hasSettings)
        takeSettings(delta, &notices);
    revision = delta.revision;
    return notices;
}

void NodeMemory::takeNode(const NodeRow& row, bool always, Notices* notices)
{
    NodeRecord* record = cache().find(row.id);
    if (!row.place) {
        if (record && !pending.adds(row.id)) {
            forget(*record);
            notices->removed(row.id);
        }
        return;
    }
    if (pending.removes(row.id))
        return;
    if (!record) {
        NodeRecord& added = cache().insertStored(row.place, row.summary);
        if (cache().lookupReady())
            cache().setLookupKey(added, row.lookupKey);
        notices->inserted(row.id);
    } else if (takeRow(*record, row) || always) {
        notices->updated(row.id);
    }
}

bool NodeMemory::takeRow(NodeRecord& record, const NodeRow& row)
{
    const PackedSummary before = record.summary;
    if (record.order != row.place)
        cache().setStored(record, row.place);
    if (!row.properties) {
        record.summary = row.summary;
        if (cache().lookupReady())
            cache().setLookupKey(record, row.lookupKey);
        return record.summary != before;
    }
    const PropertyList properties = record.data().properties;
    NodeData data;
    data.id = row.id;
    data.type = row.summary.type();
    data.name = row.summary.name();
    data.properties = *row.properties;
    pending.applyTo(data);
    setData(record, data);
    pending.show(row.id, record.summary, NodeTypes::lookupKey(data));
    return record.summary != before || !PropertyList::difference(properties, data.properties).isEmpty();
}

void NodeMemory::removeMissing(const Delta& delta, Notices* notices)
{
    QSet<NodeID> stored;
    stored.reserve(delta.nodes.size());
    for (const NodeRow& row : delta.nodes)
        stored.insert(row.id);
    QVector<NodeRecord*> missing;
    for (auto& entry : cache()) {
        const NodeID id = entry.second.summary.id();
        if (!stored.contains(id) && !pending.adds(id))
            missing.append(&entry.second);
    }
    for (NodeRecord* record : missing) {
        notices->removed(record->summary.id());
        forget(*record);
    }
}

void NodeMemory::takeRelations(const Delta& delta, Notices* notices)
{
    QStringList sources = delta.relations.keys();
    if (delta.everything)
        sources += relations().sources();
    sources.removeDuplicates();
    for (const NodeID& source : std::as_const(sources)) {
        QVector<Relation> rows = delta.relations.value(source);
        pending.applyTo(rows, source);
        const QStringList changed = relations().replaceFrom(source, rows);
        if (changed.isEmpty())
            continue;
        notices->updated(source);
        for (const NodeID& destination : changed)
            notices->updated(destination);
    }
}

void NodeMemory::takeSettings(const Delta& delta, Notices* notices)
{
    Settings merged = delta.settings;
    Environments::List list = delta.environments;
    pending.applyTo(merged, list);
    notices->settings = merged != settings || list != environments;
    settings = merged;
    environments = list;
}

/// Of a node that is gone from the store.
void NodeMemory::forget(NodeRecord& record)
{
    const NodeID id = record.summary.id();
    relations().removeNode(id);
    pending.drop(id);
    cache().remove(record);
}

void NodeMemory::stored(const NodeStore::Commit& commit, Notices* notices)
{
    pending.endStoring();
    revision = commit.revision;
    for (auto it = commit.places.begin(); it != commit.places.end(); ++it) {
        if (NodeRecord* record = cache().find(it.key()))
            cache().setStored(*record, it.value());
    }
    for (auto it = commit.reordered.begin(); it != commit.reordered.end(); ++it) {
        QVector<Relation> rows = it.value();
        pending.applyTo(rows, it.key());
        relations().replaceFrom(it.key(), rows);
    }
    for (const NodeID& id : commit.missingNodes) {
        if (NodeRecord* record = cache().find(id)) {
            forget(*record);
            notices->removed(id);
        }
    }
}

// What is changed here

void NodeMemory::add(const NodeData& data, qint64 place)
{
    NodeChange change = changeOf(data);
    change.place = place;
    change.after = NodeValues{data.name, data.properties};
    NodeRecord& record = cache().append(change.summary);
    setData(record, data);
    record.contents->context = data.context; // nobody has the node yet
    pending.nodeAdded(change);
}

bool NodeMemory::update(NodeRecord& record, const NodeData& data)
{
    const NodeData before = record.data();
    if (before.name == data.name && PropertyList::difference(before.properties, data.properties).isEmpty())
        return false;
    setData(record, data);
    pending.nodeUpdated(changeOf(data), before, data);
    return true;
}

void NodeMemory::amend(NodeRecord& record, const NodeData& data)
{
    const NodeData before = record.data();
    setData(record, data);
    if (!pending.amend(data.id, before.properties, data.properties))
        pending.nodeUpdated(changeOf(data), before, data);
}

void NodeMemory::remove(NodeRecord& record)
{
    const NodeID id = record.summary.id();
    pending.nodeRemoved(id, record.summary.type());
    relations().removeNode(id);
    cache().remove(record);
}

bool NodeMemory::change(const RelationChange& change)
{
    if (!(change.isAdded ? relations().add(change.relation) : relations().remove(change.relation)))
        return false;
    pending.relationChanged(change);
    return true;
}

bool NodeMemory::setSetting(const QString& key, const std::optional<QString>& value)
{
    const auto found = settings.constFind(key);
    const auto before = found == settings.constEnd() ? std::nullopt : std::make_optional(*found);
    if (before == value)
        return false;
    pending.settingChanged({key, before, value});
    if (value)
        settings.insert(key, *value);
    else
        settings.remove(key);
    return true;
}

void NodeMemory::setEnvironments(const Environments::List& list)
{
    pending.environmentsChanged({environments, list});
    environments = list;
}

/// The properties of \a record were read: those of \a data, which has everything else from there.
void NodeMemory::setData(NodeRecord& record, const NodeData& data)
{
    record.summary = PackedSummary(NodeTypes::summaryOf(data));
    if (!record.contents)
        record.contents = std::make_unique<NodeRecord::Contents>();
    record.contents->properties = data.properties;
    record.contents->node.reset(); // what was handed out does not change
    if (cache().lookupReady())
        cache().setLookupKey(record, NodeTypes::lookupKey(data));
}

} // namespace ko
