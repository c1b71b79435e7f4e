#ifndef KO_IIOINTERFACE_H
#define KO_IIOINTERFACE_H

#include "interfaces/ISupportsNonBlockingIOInterface.h"

namespace ko {

/// Input and output.
class KO_NODEUI_EXPORT IIOInterface : public virtual ISupportsNonBlockingIOInterface,
                                      public virtual IInterface
{
public:
    ~IIOInterface() override;

    /// Bits of an open mode.
    static const unsigned ReadableMode = 1;
    static const unsigned WritableMode = 2;
    static const unsigned SynchronousMode = 4;
};

} // namespace ko

#endif
