#ifndef KO_IINTERFACE_H
#define KO_IINTERFACE_H

#include "NodeUIExport.h"

#include <string>

namespace ko {

/// Root of the interfaces through which a host's components are reached.
///
/// A component derives virtually from the interfaces it implements and so holds one IInterface. To
/// answer for them by identifier it overrides the non-const getInterface(); the const one follows.
class KO_NODEUI_EXPORT IInterface
{
public:
    virtual ~IInterface();

    /// The interface with this identifier (compared exactly), or null.
    virtual const void* getInterface(const std::string& id) const;
    virtual void* getInterface(const std::string& id);

    static const std::string& ID();
};

} // namespace ko

#endif
