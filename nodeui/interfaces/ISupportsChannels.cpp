#include "interfaces/ISupportsChannels.h"

namespace ko {

ISupportsChannels::~ISupportsChannels() = default;

const char* ISupportsChannels::ID()
{
    return "ko::ISupportsChannels";
}

} // namespace ko
