#ifndef KO_IACCESSGROUP_H
#define KO_IACCESSGROUP_H

#include "interfaces/IInterface.h"

namespace ko {

/// A group of users with the same rights.
class KO_NODEUI_EXPORT IAccessGroup : public virtual IInterface
{
public:
    ~IAccessGroup() override;

    static const char* ID();
};

} // namespace ko

#endif
