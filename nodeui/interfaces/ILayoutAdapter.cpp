#include "interfaces/ILayoutAdapter.h"

namespace ko {

ILayoutAdapter::~ILayoutAdapter() = default;

} // namespace ko
