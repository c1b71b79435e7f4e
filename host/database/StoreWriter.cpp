#include "database/StoreWriter.h"

#include "drivers/NodeTypes.h"
#include "secrets/Secrets.h"

namespace ko {

StoreWriter::StoreWriter(NodeTables& tables, const NodeCache& cache)
    : m_tables(tables)
    , m_cache(cache)
{
}

void StoreWriter::write(const PendingChanges& pending)
{
    for (const NodeID& id : pending.order) {
        const auto change = pending.nodes.find(id);
        if (change != pending.nodes.end())
            writeNode(id, *change);
    }
    for (const PendingChanges::RelationChange& change : pending.relations)
        writeRelation(change);
    for (auto it = pending.settings.begin(); it != pending.settings.end(); ++it)
        m_tables.setSetting(it.key(),
                            sealed(QLatin1String(Secrets::Settings), it.key(), it.value()).toString());
    if (pending.environments)
        m_tables.setEnvironments(*pending.environments);
    if (pending.environments || !pending.settings.isEmpty())
        note(ChangeRow::SettingChange, NodeID());
    for (const AuditRow& row : pending.audit)
        m_tables.addAudit(row);
    for (const ProgramRow& row : pending.programLines)
        m_tables.addProgramLine(row);
    if (!pending.programLines.isEmpty())
        m_tables.trimProgramLines();
    if (m_noted)
        m_tables.trimChanges();
}

void StoreWriter::writeNode(const NodeID& id, const PendingChanges::Change& change)
{
    if (change.kind == PendingChanges::Change::Insert)
        insertNode(m_cache.find(id));
    else if (change.kind == PendingChanges::Change::Update)
        updateNode(*m_cache.find(id), change);
    else
        m_tables.removeNode(id);
    note(ChangeRow::NodeChange, id);
}

void StoreWriter::insertNode(NodeRecord* record)
{
    const NodeData data = record->data();
    const qint64 n = m_tables.insertNode(record->summary.unpacked(), NodeTypes::lookupKey(data));
    for (const PropertyList::Entry& entry : data.properties)
        m_tables.setProperty(n, entry.name, sealed(data.id, entry.name, entry.value));
    m_inserted.append({record, n});
}

void StoreWriter::updateNode(const NodeRecord& record, const PendingChanges::Change& change)
{
    const NodeID id = record.summary.id();
    const qint64 n = m_tables.number(id);
    if (n == 0) { // removed by a program that did not say so
        m_missing.append(id);
        return;
    }
    m_tables.updateNode(n, record.summary.unpacked(), NodeTypes::lookupKey(record.data()));
    for (auto it = change.properties.begin(); it != change.properties.end(); ++it)
        m_tables.setProperty(n, it.key(), sealed(id, it.key(), it.value()));
}

QVariant StoreWriter::sealed(const QString& owner, const QString& key, const QVariant& value) const
{
    if (value.userType() != QMetaType::QString)
        return value;
    const std::optional<QString> text = Secrets::toStore(owner, key, value.toString());
    if (!text)
        throw StoreFailure{
            StoreError::make(StoreError::KeyNotKept, m_tables.fileName(), QLatin1String("no key"))};
    return *text;
}

void StoreWriter::writeRelation(const PendingChanges::RelationChange& change)
{
    if (change.add)
        m_tables.addRelation(change.relation);
    else
        m_tables.removeRelation(change.relation);
    note(ChangeRow::RelationChange, change.relation.source);
}

void StoreWriter::note(ChangeRow::Kind kind, const NodeID& id)
{
    m_tables.addChange({kind, id});
    m_noted = true;
}

} // namespace ko
