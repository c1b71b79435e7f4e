#ifndef KO_NODETABLES_H
#define KO_NODETABLES_H

#include "ko/Environments.h"
#include "model/LogRows.h"
#include "model/PackedSummary.h"
#include "store/SqliteStore.h"

#include <QMap>

#include <functional>

namespace ko {

/// One node as lists need it, with its place in the order of all nodes.
struct NodeRow
{
    qint64 n = 0; ///< 0: there is no such node
    NodeSummary summary;
    QString lookupKey;
};

struct RelationRow
{
    NodeID source;
    NodeID destination;
    ENodeRelationType type;

    bool operator==(const RelationRow& row) const
    {
        return type == row.type && source == row.source && destination == row.destination;
    }
};

/// What other connections look through to learn what changed.
struct ChangeRow
{
    enum Kind : char { NodeChange = 'N', RelationChange = 'R', SettingChange = 'S' };

    Kind kind;
    NodeID id; ///< of the node, or of the source of the relations
};

/// The tables of the store as structures. Everything throws StoreFailure; nothing opens transactions.
class NodeTables
{
public:
    typedef QMap<QString, QString> Settings;

    /// Rows kept in the tables that would grow for ever.
    static constexpr int MaxChanges = 20000;
    static constexpr int MaxProgramLines = 10000;

    explicit NodeTables(SqliteStore& store);

    const QString& fileName() const { return m_store.fileName(); }

    /// All nodes with their numbers, in ascending order of these. One whose identifier is no text, which
    /// only another program can have written, is left out.
    void forEachNode(const std::function<void(qint64 n, const PackedSummary&)>& visit);
    NodeRow node(const NodeID& id);

    /// Identifier and key of all nodes that have a key.
    void forEachLookupKey(const std::function<void(const NodeID&, const QString&)>& visit);

    /// The number of a node, 0 if there is none. Good for the current transaction: to change a node by a
    /// number that was read before may change another one.
    qint64 number(const NodeID& id);

    /// False if the node is gone.
    bool readProperties(const NodeID& id, PropertyList* properties);

    qint64 insertNode(const NodeSummary& summary, const QString& lookupKey);
    void updateNode(qint64 n, const NodeSummary& summary, const QString& lookupKey);
    void removeNode(const NodeID& id);
    /// Adds or replaces; an invalid value removes.
    void setProperty(qint64 n, const QString& name, const QVariant& value);

    QVector<RelationRow> relations();
    QVector<RelationRow> relationsFrom(const NodeID& source);
    void addRelation(const RelationRow& relation);
    void removeRelation(const RelationRow& relation);

    Settings settings();
    void setSetting(const QString& key, const QString& value);
    Environments::List environments();
    void setEnvironments(const Environments::List& list);

    void addAudit(const AuditRow& row);
    QVector<AuditRow> audit(const LogRange& range);
    qint64 auditCount();
    void addProgramLine(const ProgramRow& row);
    QVector<ProgramRow> programLines(const LogRange& range);
    qint64 programLineCount();

    qint64 lastChange();
    /// False if changes after \a seq have been trimmed already.
    bool hasChangesSince(qint64 seq);
    QVector<ChangeRow> changesSince(qint64 seq);
    void addChange(const ChangeRow& change);
    void trimChanges();
    void trimProgramLines();

private:
    SqliteStore& m_store;
};

} // namespace ko

#endif
