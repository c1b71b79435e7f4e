#include "ko/IPDeviceNode.h"

namespace ko {

IPDeviceNode::IPDeviceNode(ENodeType nodeType)
    : Node(nodeType)
{
}

} // namespace ko
