#ifndef KO_STOREDNODE_H
#define KO_STOREDNODE_H

#include "model/NodeData.h"

namespace ko {

/// What every node of this host also is: a face over its NodeData.
class KO_HOST_EXPORT StoredNode
{
public:
    virtual ~StoredNode();

    /// The data as they are now; for a writable copy, with what was written so far.
    virtual NodeData nodeData() const = 0;
};

} // namespace ko

#endif
