#include "ko/Environments.h"

namespace ko {

Environments::~Environments() = default;

} // namespace ko
