#ifndef KO_NODEDATA_H
#define KO_NODEDATA_H

#include "ko/Types.h"
#include "model/PropertyList.h"

namespace ko {

/// Everything the database keeps for one node. A value; the properties are implicitly shared.
///
/// The name is kept apart from the other properties, although nodes show it as the property "Name".
struct NodeData
{
    NodeID id;
    ENodeType type = AllNodeTypes;
    QString name;
    PropertyList properties;
    void* context = nullptr; ///< of the hint, in the process that created the node; not stored
    bool hasContext = false;
};

/// What lists show of a node; kept in memory for all nodes.
struct NodeSummary
{
    NodeID id;
    ENodeType type = AllNodeTypes;
    QString name;
    QString location;        ///< a device's address, a folder's path, else empty
    int recordingUsage = -1; ///< "RecordingStorageUsage" of a node that has it, else -1
};

inline bool operator==(const NodeSummary& a, const NodeSummary& b)
{
    return a.id == b.id && a.type == b.type && a.name == b.name && a.location == b.location &&
           a.recordingUsage == b.recordingUsage;
}
inline bool operator!=(const NodeSummary& a, const NodeSummary& b)
{
    return !(a == b);
}

} // namespace ko

Q_DECLARE_TYPEINFO(ko::NodeSummary, Q_MOVABLE_TYPE);

#endif
