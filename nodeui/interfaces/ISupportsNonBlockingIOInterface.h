#ifndef KO_ISUPPORTSNONBLOCKINGIOINTERFACE_H
#define KO_ISUPPORTSNONBLOCKINGIOINTERFACE_H

#include "interfaces/IInterface.h"

namespace ko {

/// Non-blocking input and output.
class KO_NODEUI_EXPORT ISupportsNonBlockingIOInterface : public virtual IInterface
{
public:
    ~ISupportsNonBlockingIOInterface() override;
};

} // namespace ko

#endif
