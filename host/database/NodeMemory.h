#ifndef KO_NODEMEMORY_H
#define KO_NODEMEMORY_H

#include "database/NodeCache.h"
#include "database/PendingChanges.h"
#include "database/RelationIndex.h"
#include "database/StoreState.h"

#include <QSet>

namespace ko {

/// What is to be announced, in its order.
class Notices
{
public:
    enum Kind { Inserted, Updated, Removed };
    typedef QVector<QPair<Kind, NodeID>> Nodes;

    void inserted(const NodeID& id) { add(Inserted, id); }
    void updated(const NodeID& id) { add(Updated, id); }
    void removed(const NodeID& id) { add(Removed, id); }

    const Nodes& nodes() const { return m_nodes; }
    bool settings = false;

private:
    void add(Kind kind, const NodeID& id);

    Nodes m_nodes;
    QSet<NodeID> m_known;
};

/// The database as this process sees it: what was read from the store, with what waits to be written
/// already done.
class NodeMemory
{
public:
    NodeCache cache;
    RelationIndex relations;
    NodeTables::Settings settings;
    Environments::List environments;
    PendingChanges pending;
    qint64 lastChange = 0; ///< number of the last change of the store that is in here

    /// Fills an empty memory. Belongs into a transaction.
    void load(NodeTables& tables);

    /// Brings in what the store has now. A node that is said to have changed is announced also when
    /// nothing is seen to differ, since its properties may not have been read; not so when everything was
    /// looked at.
    Notices take(const StoreState& state);

    /// The node from now on; name and properties are those of \a data.
    void setData(NodeRecord& record, NodeData data);

    /// Takes the node with its relations out of memory.
    void removeNode(NodeRecord& record);

    /// Notes the setting as to be written. False if it is the same already.
    bool setSetting(const QString& key, const QString& value);

private:
    void takeNode(const StoreState::NodeState& node, bool always, Notices* notices);
    bool takeRow(NodeRecord& record, const StoreState::NodeState& node);
    void removeMissing(const StoreState& state, Notices* notices);
    void takeRelations(const StoreState& state, Notices* notices);
    void takeSettings(const StoreState& state, Notices* notices);
};

} // namespace ko

#endif
