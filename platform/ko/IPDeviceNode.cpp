#include "ko/IPDeviceNode.h"

#include "ko/NodeDB.h"

namespace ko {

IPDeviceNode::IPDeviceNode(ENodeType nodeType)
    : Node(nodeType)
{
}

kom::smart<const IPDeviceNode> deviceNode(const QString& nodeId)
{
    return NodeDB::getDB()->node(nodeId).cast<const IPDeviceNode>();
}

} // namespace ko
