#include "ko/Node.h"

namespace ko {

PropertyAccess::~PropertyAccess() = default;

Node::Node(ENodeType nodeType)
    : type(nodeType)
{
}

} // namespace ko
