#include "interfaces/ISupportsNonBlockingIOInterface.h"

namespace ko {

ISupportsNonBlockingIOInterface::~ISupportsNonBlockingIOInterface() = default;

} // namespace ko
