#include "interfaces/IComponent.h"

namespace ko {

IComponent::~IComponent() = default;

const std::string& IComponent::ID()
{
    static const std::string id("ko::IComponent");
    return id;
}

} // namespace ko
