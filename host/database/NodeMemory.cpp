#include "database/NodeMemory.h"

#include "drivers/NodeTypes.h"

namespace ko {

void Notices::add(Kind kind, const NodeID& id)
{
    if (kind == Updated && m_known.contains(id))
        return;
    m_known.insert(id);
    m_nodes.append({kind, id});
}

void NodeMemory::load(NodeTables& tables)
{
    lastChange = tables.lastChange();
    tables.forEachNode([this](qint64 n, const PackedSummary& summary) { cache.insertStored(n, summary); });
    const QVector<RelationRow> rows = tables.relations();
    for (const RelationRow& relation : rows)
        relations.add(relation);
    settings = tables.settings();
    environments = tables.environments();
}

Notices NodeMemory::take(const StoreState& state)
{
    Notices notices;
    for (const StoreState::NodeState& node : state.nodes)
        takeNode(node, !state.everything, &notices);
    if (state.everything) {
        removeMissing(state, &notices);
        cache.clearLookup(); // its keys were not read
    }
    takeRelations(state, &notices);
    if (state.hasSettings)
        takeSettings(state, &notices);
    lastChange = state.lastChange;
    return notices;
}

void NodeMemory::takeNode(const StoreState::NodeState& node, bool always, Notices* notices)
{
    NodeRecord* record = cache.find(node.id);
    if (!node.row.n) {
        if (record && !pending.inserts(node.id)) {
            removeNode(*record);
            notices->removed(node.id);
        }
        return;
    }
    if (pending.removes(node.id))
        return;
    if (!record) {
        NodeRecord& added = cache.insertStored(node.row.n, PackedSummary(node.row.summary));
        if (cache.lookupReady())
            cache.setLookupKey(added, node.row.lookupKey);
        notices->inserted(node.id);
    } else if (takeRow(*record, node) || always) {
        notices->updated(node.id);
    }
}

bool NodeMemory::takeRow(NodeRecord& record, const StoreState::NodeState& node)
{
    const PackedSummary before = record.summary;
    if (record.order != node.row.n)
        cache.setStored(record, node.row.n);
    if (!node.properties) {
        record.summary = PackedSummary(node.row.summary);
        if (cache.lookupReady())
            cache.setLookupKey(record, node.row.lookupKey);
        return record.summary != before;
    }
    const PropertyList properties = record.data().properties;
    NodeData data;
    data.id = node.id;
    data.type = node.row.summary.type;
    data.name = node.row.summary.name;
    data.properties = *node.properties;
    pending.applyTo(data, before.name());
    setData(record, data);
    return record.summary != before || !PropertyList::difference(properties, data.properties).isEmpty();
}

void NodeMemory::removeMissing(const StoreState& state, Notices* notices)
{
    QSet<NodeID> stored;
    stored.reserve(state.nodes.size());
    for (const StoreState::NodeState& node : state.nodes)
        stored.insert(node.id);
    QVector<NodeRecord*> missing;
    for (auto& entry : cache) {
        const NodeID id = entry.second.summary.id();
        if (!stored.contains(id) && !pending.inserts(id))
            missing.append(&entry.second);
    }
    for (NodeRecord* record : missing) {
        notices->removed(record->summary.id());
        removeNode(*record);
    }
}

void NodeMemory::takeRelations(const StoreState& state, Notices* notices)
{
    QStringList sources = state.relations.keys();
    if (state.everything)
        sources += relations.sources();
    sources.removeDuplicates();
    for (const NodeID& source : std::as_const(sources)) {
        QVector<RelationRow> rows = state.relations.value(source);
        pending.applyTo(rows, source);
        const QStringList changed = relations.replaceFrom(source, rows);
        if (changed.isEmpty())
            continue;
        notices->updated(source);
        for (const NodeID& destination : changed)
            notices->updated(destination);
    }
}

void NodeMemory::takeSettings(const StoreState& state, Notices* notices)
{
    NodeTables::Settings merged = state.settings;
    for (auto it = pending.settings.begin(); it != pending.settings.end(); ++it)
        merged.insert(it.key(), it.value());
    const Environments::List list = pending.environments ? *pending.environments : state.environments;
    notices->settings = merged != settings || list != environments;
    settings = merged;
    environments = list;
}

void NodeMemory::setData(NodeRecord& record, NodeData data)
{
    data.context = record.context;
    data.hasContext = record.context != nullptr;
    record.summary = PackedSummary(NodeTypes::summaryOf(data));
    record.snapshot = kom::smart<const Node>(std::shared_ptr<const Node>(NodeTypes::createNode(data)));
    if (cache.lookupReady())
        cache.setLookupKey(record, NodeTypes::lookupKey(data));
}

void NodeMemory::removeNode(NodeRecord& record)
{
    const NodeID id = record.summary.id();
    relations.removeNode(id);
    pending.drop(id);
    cache.remove(record);
}

bool NodeMemory::setSetting(const QString& key, const QString& value)
{
    const auto found = settings.constFind(key);
    if (found != settings.constEnd() && *found == value)
        return false;
    settings.insert(key, value);
    pending.settings.insert(key, value);
    return true;
}

} // namespace ko
