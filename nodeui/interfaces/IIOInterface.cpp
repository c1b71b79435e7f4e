#include "interfaces/IIOInterface.h"

namespace ko {

const unsigned IIOInterface::ReadableMode;
const unsigned IIOInterface::WritableMode;
const unsigned IIOInterface::SynchronousMode;

IIOInterface::~IIOInterface() = default;

} // namespace ko
