#include "database/StoreState.h"

namespace ko {

namespace {

template <class T>
void appendOnce(QVector<T>& list, QSet<T>& seen, const T& value)
{
    if (seen.contains(value))
        return;
    seen.insert(value);
    list.append(value);
}

} // namespace

StoreQuery StoreQuery::changesSince(NodeTables& tables, qint64 change)
{
    StoreQuery query;
    if (!tables.hasChangesSince(change)) {
        query.everything = true;
        query.settings = true;
        return query;
    }
    QSet<NodeID> nodes;
    QSet<NodeID> sources;
    const QVector<ChangeRow> changes = tables.changesSince(change);
    for (const ChangeRow& row : changes) {
        if (row.kind == ChangeRow::NodeChange)
            appendOnce(query.nodes, nodes, row.id);
        else if (row.kind == ChangeRow::RelationChange)
            appendOnce(query.relationSources, sources, row.id);
        else if (row.kind == ChangeRow::SettingChange)
            query.settings = true;
    }
    return query;
}

StoreState StoreState::read(NodeTables& tables, const StoreQuery& query,
                            const std::function<bool(const NodeID&)>& needsProperties)
{
    StoreState state;
    state.lastChange = tables.lastChange();
    state.everything = query.everything;
    if (query.everything) {
        tables.forEachNode([&state](qint64 n, const PackedSummary& packed) {
            const NodeSummary summary = packed.unpacked();
            state.nodes.append({summary.id, {n, summary, QString()}, std::nullopt});
        });
        const QVector<RelationRow> relations = tables.relations();
        for (const RelationRow& relation : relations)
            state.relations[relation.source].append(relation);
    } else {
        for (const NodeID& id : query.nodes)
            state.nodes.append({id, tables.node(id), std::nullopt});
        for (const NodeID& source : query.relationSources)
            state.relations.insert(source, tables.relationsFrom(source));
    }
    for (NodeState& node : state.nodes) {
        if (node.row.n && needsProperties(node.id)) {
            node.properties.emplace();
            tables.readProperties(node.id, &*node.properties);
        }
    }
    state.hasSettings = query.settings;
    if (query.settings) {
        state.settings = tables.settings();
        state.environments = tables.environments();
    }
    return state;
}

} // namespace ko
