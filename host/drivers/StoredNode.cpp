#include "drivers/StoredNode.h"

namespace ko {

StoredNode::~StoredNode() = default;

} // namespace ko
