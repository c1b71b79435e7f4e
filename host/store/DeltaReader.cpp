#include "store/DeltaReader.h"

#include <QHash>

namespace ko {

DeltaReader::DeltaReader(NodeTables& tables, ChangeLog& log, const Wanted& wanted)
    : m_tables(tables)
    , m_log(log)
    , m_wanted(wanted)
{
}

Delta DeltaReader::since(qint64 revision, int count)
{
    const std::optional<ChangeLog::Rows> changes = m_log.since(revision, count);
    if (!changes)
        return everything();
    Delta delta;
    delta.revision = changes->revision;
    delta.isMore = changes->isMore;
    QStringList nodes;
    QStringList sources;
    for (const ChangeLog::Row& change : changes->rows) {
        if (change.kind == ChangeLog::NodeKind)
            nodes.append(change.id);
        else if (change.kind == ChangeLog::RelationKind)
            sources.append(change.id);
        else
            delta.hasSettings = true;
    }
    nodes.removeDuplicates();
    sources.removeDuplicates();
    delta.nodes = m_tables.nodes(nodes);
    delta.relations = m_tables.relationsFrom(sources);
    readProperties(&delta);
    if (delta.hasSettings)
        readSettings(&delta);
    return delta;
}

Delta DeltaReader::everything()
{
    Delta delta;
    delta.revision = m_log.revision();
    delta.everything = true;
    m_tables.forEachNode([&delta](qint64 place, const PackedSummary& summary) {
        NodeRow row;
        row.id = summary.id();
        row.place = place;
        row.summary = summary;
        delta.nodes.append(row);
    });
    const QVector<Relation> relations = m_tables.relations();
    for (const Relation& relation : relations)
        delta.relations[relation.source].append(relation);
    readProperties(&delta);
    readSettings(&delta);
    return delta;
}

void DeltaReader::readProperties(Delta* delta)
{
    QStringList ids;
    QHash<NodeID, NodeRow*> rows;
    for (NodeRow& row : delta->nodes) {
        if (!row.place || !m_wanted(row.id))
            continue;
        ids.append(row.id);
        rows.insert(row.id, &row);
    }
    m_tables.forEachProperties(ids, [&rows](const NodeID& id, const PropertyList& properties) {
        rows.value(id)->properties = properties;
    });
}

void DeltaReader::readSettings(Delta* delta)
{
    delta->hasSettings = true;
    delta->settings = m_tables.settings();
    delta->environments = m_tables.environments();
}

} // namespace ko
