#ifndef KO_CHANGEWRITER_H
#define KO_CHANGEWRITER_H

#include "store/ChangeLog.h"
#include "store/NodeTables.h"

#include <QHash>
#include <QSet>

#include <atomic>

namespace ko {

class Vault;

/// Writes change sets into the tables and into the log of changes, which thereby has what really changed.
/// Belongs into a transaction that began with a look at what others changed; throws StoreFailure.
class ChangeWriter
{
public:
    /// \a done counts the changes of nodes and relations that were made; another thread may look at it.
    ChangeWriter(NodeTables& tables, ChangeLog& log, Vault& vault, std::atomic<int>& done);

    /// Throws StoreError::KeyNotKept when a password is held in memory for want of a key.
    void write(const ChangeSet& set);

    /// Where the nodes that were added stand now.
    const QHash<NodeID, qint64>& places() const { return m_places; }

    /// Nodes to be changed that the store does not have: a program removed them without a word.
    const QVector<NodeID>& missingNodes() const { return m_missing; }

    /// The sets that changed something, as they are numbered now.
    const QVector<StoredSet>& sets() const { return m_sets; }

    /// Where relations begin that were put between others.
    const QSet<NodeID>& reordered() const { return m_reordered; }

private:
    void addNode(NodeChange change);
    void updateNode(NodeChange change);
    void removeNode(const NodeChange& change);
    void change(const RelationChange& change);
    void change(const SettingChange& change);
    void change(const EnvironmentsChange& change);
    void note(const NodeChange& change, const QString& after = QString());
    void note(const RelationChange& change);
    qint64 number();
    QString sealed(const QString& owner, const QString& key, const QString& text);
    void seal(const NodeID& node, PropertyList* properties);

    NodeTables& m_tables;
    ChangeLog& m_log;
    Vault& m_vault;
    std::atomic<int>& m_done;
    const ChangeSet* m_set = nullptr;
    qint64 m_number = 0;              ///< of the change set; given to the first thing that is changed
    QHash<QString, QString> m_sealed; ///< what was held in memory, to what was stored for it
    QHash<NodeID, qint64> m_places;
    QVector<NodeID> m_missing;
    QSet<NodeID> m_reordered;
    QVector<StoredSet> m_sets;
};

} // namespace ko

#endif
