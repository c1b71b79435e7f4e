#include "interfaces/IStorageObject.h"

namespace ko {

IStorageObject::~IStorageObject() = default;

} // namespace ko
