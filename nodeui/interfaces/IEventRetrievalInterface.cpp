#include "interfaces/IEventRetrievalInterface.h"

namespace ko {

IEventRetrievalInterface::~IEventRetrievalInterface() = default;

} // namespace ko
