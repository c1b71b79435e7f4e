#ifndef KO_NODEHINT_H
#define KO_NODEHINT_H

#include "ko/PropertyAccess.h"
#include "ko/Types.h"

namespace ko {

/// Description of a node that does not exist yet.
///
/// A node driver makes it, pages fill it, NodeDB::newNodeHint() turns it into a node.
class KO_PLATFORM_EXPORT NodeHint : public PropertyAccess
{
public:
    /// Name of the node to be; empty for an unnamed node.
    virtual QString name() const = 0;
    virtual void setName(const QString& name) = 0;

    ENodeType type;

    /// Set by whoever asks for the node, handed back as Node::creationContext(); never dereferenced.
    void* context = nullptr;

protected:
    explicit NodeHint(ENodeType nodeType);
};

} // namespace ko

#endif
