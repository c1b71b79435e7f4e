#ifndef KO_ICOMPONENT_H
#define KO_ICOMPONENT_H

#include "interfaces/IInterface.h"

namespace ko {

/// A loadable component of the host.
class KO_NODEUI_EXPORT IComponent : public virtual IInterface
{
public:
    ~IComponent() override;

    static const std::string& ID();
};

} // namespace ko

#endif
