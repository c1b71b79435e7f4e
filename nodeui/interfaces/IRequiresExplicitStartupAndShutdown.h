#ifndef KO_IREQUIRESEXPLICITSTARTUPANDSHUTDOWN_H
#define KO_IREQUIRESEXPLICITSTARTUPANDSHUTDOWN_H

#include "NodeUIExport.h"

namespace ko {

/// A component that must be started and stopped explicitly.
class KO_NODEUI_EXPORT IRequiresExplicitStartupAndShutdown
{
public:
    virtual ~IRequiresExplicitStartupAndShutdown();

    static const char* ID();
};

} // namespace ko

#endif
