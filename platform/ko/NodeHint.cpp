#include "ko/NodeHint.h"

namespace ko {

NodeHint::NodeHint(ENodeType nodeType)
    : type(nodeType)
{
}

} // namespace ko
