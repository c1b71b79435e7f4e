#include "interfaces/IInterface.h"

namespace ko {

IInterface::~IInterface() = default;

const void* IInterface::getInterface(const std::string& id) const
{
    return const_cast<IInterface*>(this)->getInterface(id);
}

void* IInterface::getInterface(const std::string& id)
{
    return id == IInterface::ID() ? this : nullptr;
}

const std::string& IInterface::ID()
{
    static const std::string id("ko::IInterface");
    return id;
}

} // namespace ko
