#ifndef KO_IERRORINFO_H
#define KO_IERRORINFO_H

#include "interfaces/IInterface.h"

namespace ko {

/// A component that tells its last error.
class KO_NODEUI_EXPORT IErrorInfo : public virtual IInterface
{
public:
    ~IErrorInfo() override;

    static const char* ID();
};

} // namespace ko

#endif
