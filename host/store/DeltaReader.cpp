#include "store/DeltaReader.h"

#include <QSet>

namespace ko {

DeltaReader::DeltaReader(NodeTables& tables, ChangeLog& log, const Wanted& wanted)
    : m_tables(tables)
    , m_log(log)
    , m_wanted(wanted)
{
}

Delta DeltaReader::since(qint64 revision)
{
    const std::optional<QVector<ChangeLog::Row>> changes = m_log.since(revision);
    if (!changes)
        return everything();
    Delta delta;
    delta.revision = m_log.revision();
    QSet<NodeID> nodes;
    for (const ChangeLog::Row& change : *changes) {
        if (change.kind == ChangeLog::NodeKind) {
            if (!nodes.contains(change.id))
                delta.nodes.append(m_tables.node(change.id));
            nodes.insert(change.id);
        } else if (change.kind == ChangeLog::RelationKind) {
            if (!delta.relations.contains(change.id))
                delta.relations.insert(change.id, m_tables.relationsFrom(change.id));
        } else {
            delta.hasSettings = true;
        }
    }
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
    for (NodeRow& row : delta->nodes) {
        if (row.place && m_wanted(row.id))
            row.properties = m_tables.properties(row.id);
    }
}

void DeltaReader::readSettings(Delta* delta)
{
    delta->hasSettings = true;
    delta->settings = m_tables.settings();
    delta->environments = m_tables.environments();
}

} // namespace ko
