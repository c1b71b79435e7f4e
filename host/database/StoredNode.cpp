#include "database/StoredNode.h"

namespace ko {

StoredNode::~StoredNode() = default;

} // namespace ko
