#include "ko/NodeHintIPDevice.h"

namespace ko {

NodeHintIPDevice::NodeHintIPDevice(ENodeType nodeType)
    : NodeHint(nodeType)
{
}

} // namespace ko
