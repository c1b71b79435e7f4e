#ifndef KO_NODEDRIVER_H
#define KO_NODEDRIVER_H

#include "interfaces/INodeDriverComponent.h"

namespace ko {

/// The driver of every type of this host; what differs between types stands in NodeTypes' table.
class NodeDriver : public INodeDriverComponent
{
public:
    using INodeDriverComponent::getInterface;
    void* getInterface(const std::string& id) override;

    InspectorWidget* createInspectorWidget(NodeHint* hint, unsigned flags) override;
    kom::smart<NodeHint> createNodeHint(ENodeType type) override;
};

} // namespace ko

#endif
