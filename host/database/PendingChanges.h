#ifndef KO_PENDINGCHANGES_H
#define KO_PENDINGCHANGES_H

#include "store/NodeTables.h"

#include <QHash>
#include <QMap>
#include <QVector>

#include <optional>

namespace ko {

/// What memory has and the store has not yet, with several changes of one thing made one.
struct PendingChanges
{
    struct Change
    {
        enum Kind { Insert, Update, Remove };

        Kind kind = Update;
        bool renamed = false;
        QMap<QString, QVariant> properties; ///< of an update; removed ones stand with an invalid value
    };

    struct RelationChange
    {
        bool add;
        RelationRow relation;
    };

    /// Nodes in the order in which they were first changed; one that is no longer in the hash is to be
    /// passed over.
    QVector<NodeID> order;
    QHash<NodeID, Change> nodes;
    QVector<RelationChange> relations;
    NodeTables::Settings settings;
    std::optional<Environments::List> environments;
    QVector<AuditRow> audit;
    QVector<ProgramRow> programLines;

    bool isEmpty() const { return programLines.isEmpty() && !hasChanges(); }

    /// Anything but lines of the program log.
    bool hasChanges() const;

    void nodeInserted(const NodeID& id);
    void nodeUpdated(const NodeID& id, const QVector<PropertyList::Entry>& difference, bool renamed);
    /// Of a node that the store knows.
    void nodeRemoved(const NodeID& id);

    /// The update that waits for a node, or null.
    const Change* updateOf(const NodeID& id) const;
    bool inserts(const NodeID& id) const;
    bool removes(const NodeID& id) const;

    /// Forgets what waits for a node.
    void drop(const NodeID& id) { nodes.remove(id); }

    /// Changes \a data, read from the store, as the waiting update will; \a name is the node's in memory.
    void applyTo(NodeData& data, const QString& name) const;

    /// Changes \a rows, the stored relations from \a source, as what waits will.
    void applyTo(QVector<RelationRow>& rows, const NodeID& source) const;
};

} // namespace ko

#endif
