#include "pages/PageTools.h"

#include "ko/NodeDB.h"

namespace ko {

kom::smart<const IPDeviceNode> deviceNode(const QString& nodeId)
{
    return NodeDB::getDB()->node(nodeId).cast<const IPDeviceNode>();
}

} // namespace ko
