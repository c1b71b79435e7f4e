#include "interfaces/IRequiresExplicitStartupAndShutdown.h"

namespace ko {

IRequiresExplicitStartupAndShutdown::~IRequiresExplicitStartupAndShutdown() = default;

const char* IRequiresExplicitStartupAndShutdown::ID()
{
    return "ko::IRequiresExplicitStartupAndShutdown";
}

} // namespace ko
