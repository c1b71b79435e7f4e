#include "interfaces/INodeDriverComponent.h"

namespace ko {

INodeDriverComponent::~INodeDriverComponent() = default;

const char* INodeDriverComponent::ID()
{
    return "ko::INodeDriverComponent";
}

} // namespace ko
