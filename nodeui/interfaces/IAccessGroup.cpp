#include "interfaces/IAccessGroup.h"

namespace ko {

IAccessGroup::~IAccessGroup() = default;

const char* IAccessGroup::ID()
{
    return "ko::IAccessGroup";
}

} // namespace ko
