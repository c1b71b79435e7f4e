#ifndef KO_STORESTATE_H
#define KO_STORESTATE_H

#include "store/NodeTables.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <optional>

namespace ko {

/// Which parts of the store are to be looked at again.
struct StoreQuery
{
    bool everything = false;
    QVector<NodeID> nodes;
    QVector<NodeID> relationSources;
    bool settings = false;

    /// Asks for everything if \a change lies too far back.
    static StoreQuery changesSince(NodeTables& tables, qint64 change);
};

/// What was found there: read in one go, so that a failure leaves memory as it is.
struct StoreState
{
    struct NodeState
    {
        NodeID id;
        NodeRow row; ///< n is 0 where the node is gone
        std::optional<PropertyList> properties;
    };

    qint64 lastChange = 0;
    bool everything = false;
    QVector<NodeState> nodes;
    QHash<NodeID, QVector<RelationRow>> relations; ///< by source, for each source asked for
    bool hasSettings = false;
    NodeTables::Settings settings;
    Environments::List environments;

    /// Belongs into a transaction. \a needsProperties tells of which nodes.
    static StoreState read(NodeTables& tables, const StoreQuery& query,
                           const std::function<bool(const NodeID&)>& needsProperties);
};

} // namespace ko

#endif
