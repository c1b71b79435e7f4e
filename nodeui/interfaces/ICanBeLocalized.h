#ifndef KO_ICANBELOCALIZED_H
#define KO_ICANBELOCALIZED_H

#include "interfaces/IInterface.h"

namespace ko {

/// A component with translatable texts.
class KO_NODEUI_EXPORT ICanBeLocalized : public virtual IInterface
{
public:
    ~ICanBeLocalized() override;

    static const std::string& ID();
};

} // namespace ko

#endif
