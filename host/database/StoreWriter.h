#ifndef KO_STOREWRITER_H
#define KO_STOREWRITER_H

#include "database/NodeCache.h"
#include "database/PendingChanges.h"

namespace ko {

/// Writes what waits into the tables, with a note of each change for the other processes. Belongs into a
/// transaction that began with a look at what the others changed; changes nothing in memory.
class StoreWriter
{
public:
    StoreWriter(NodeTables& tables, const NodeCache& cache);

    /// Throws StoreError::KeyNotKept when a password is held in memory for want of a key.
    void write(const PendingChanges& pending);

    /// The numbers of the nodes that write() inserted; to be given to the cache after the commit.
    const QVector<QPair<NodeRecord*, qint64>>& insertedNodes() const { return m_inserted; }

    /// Nodes to be changed that the store does not have.
    const QVector<NodeID>& missingNodes() const { return m_missing; }

private:
    void writeNode(const NodeID& id, const PendingChanges::Change& change);
    void insertNode(NodeRecord* record);
    void updateNode(const NodeRecord& record, const PendingChanges::Change& change);
    void writeRelation(const PendingChanges::RelationChange& change);
    QVariant sealed(const QString& owner, const QString& key, const QVariant& value) const;
    void note(ChangeRow::Kind kind, const NodeID& id);

    NodeTables& m_tables;
    const NodeCache& m_cache;
    QVector<QPair<NodeRecord*, qint64>> m_inserted;
    QVector<NodeID> m_missing;
    bool m_noted = false;
};

} // namespace ko

#endif
