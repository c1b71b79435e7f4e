#include "interfaces/ICanBeLocalized.h"

namespace ko {

ICanBeLocalized::~ICanBeLocalized() = default;

const std::string& ICanBeLocalized::ID()
{
    static const std::string id("ko::ICanBeLocalized");
    return id;
}

} // namespace ko
