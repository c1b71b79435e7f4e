#ifndef KO_NODETABLES_H
#define KO_NODETABLES_H

#include "model/Delta.h"
#include "store/SqliteStore.h"

#include <functional>

namespace ko {

/// The properties of a node.
struct StoredProperties
{
    qint64 n; ///< its number, good for the current transaction: later another node may have it
    PropertyList list;
};

/// The tables of the store as structures. Everything throws StoreFailure; nothing opens transactions.
class NodeTables
{
public:
    /// Lines of the program log that are kept.
    static constexpr int MaxProgramLines = 10000;

    explicit NodeTables(SqliteStore& store);

    const QString& fileName() const { return m_store.fileName(); }

    /// All nodes with their numbers, in ascending order of these. One whose identifier is not text, which
    /// only another program can have written, is left out.
    void forEachNode(const std::function<void(qint64 n, const PackedSummary&)>& visit);
    /// Without properties.
    NodeRow node(const NodeID& id);
    /// The same of many, in this order.
    QVector<NodeRow> nodes(const QStringList& ids);

    /// Identifier and key of all nodes that have a key.
    void forEachLookupKey(const std::function<void(const NodeID&, const QString&)>& visit);

    /// None if the node is gone.
    std::optional<StoredProperties> properties(const NodeID& id);

    /// Of all these nodes that are there, by one statement for each few hundred.
    void forEachProperties(const QStringList& ids,
                           const std::function<void(const NodeID&, const PropertyList&)>& visit);

    /// One property of all nodes that have it; \a key has no quotation mark.
    void forEachValue(const QString& key, const std::function<void(const NodeID&, const QVariant&)>& visit);

    // By an index.
    QStringList nodesWithMac(const QString& mac);
    QStringList nodesWithExtension(const QString& extension);

    /// \a place is the number that it is to have, unless another node has it; 0 for the next. Returns its
    /// number.
    qint64 insertNode(qint64 place, const PackedSummary& summary, const QString& lookupKey);
    void updateNode(qint64 n, const PackedSummary& summary, const QString& lookupKey);
    /// With its properties and relations.
    void removeNode(qint64 n);
    /// All of a node. Returns them as they are stored.
    QString setProperties(qint64 n, const PropertyList& properties);

    QVector<Relation> relations();
    QVector<Relation> relationsFrom(const NodeID& source);
    /// The same by source, of all of these.
    QHash<NodeID, QVector<Relation>> relationsFrom(const QStringList& sources);
    /// At either end of which the node is, with their places.
    QVector<RelationChange> relationsOf(qint64 n);
    /// Returns its place; 0 if it is there already, or one of its nodes is not. For \a place see
    /// insertNode().
    qint64 addRelation(const Relation& relation, qint64 place);
    /// Returns the place that it had; 0 if it was not there.
    qint64 removeRelation(const Relation& relation);

    Settings settings();
    /// None: there is no such setting.
    std::optional<QString> setting(const QString& key);
    void setSetting(const QString& key, const std::optional<QString>& value);
    Environments::List environments();
    void setEnvironments(const Environments::List& list);

    void addProgramLine(const ProgramRow& row);
    QVector<ProgramRow> programLines(const LogRange& range);
    qint64 programLineCount();
    void trimProgramLines();

private:
    SqliteStore& m_store;
};

} // namespace ko

#endif
