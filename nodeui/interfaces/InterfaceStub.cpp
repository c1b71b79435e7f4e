#include "interfaces/InterfaceStub.h"

namespace ko {

InterfaceStub::~InterfaceStub() = default;

} // namespace ko
