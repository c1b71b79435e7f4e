#ifndef KO_INTERFACESTUB_H
#define KO_INTERFACESTUB_H

#include "interfaces/IInterface.h"

namespace ko {

/// A query root and nothing else.
class KO_NODEUI_EXPORT InterfaceStub : public virtual IInterface
{
public:
    ~InterfaceStub() override;
};

} // namespace ko

#endif
