#ifndef EXAMPLE_GATEDRIVER_H
#define EXAMPLE_GATEDRIVER_H

#include "interfaces/INodeDriverComponent.h"

namespace example {

const ko::ENodeType GateType = ko::ENodeType(100);

/// Makes hints and editors of new gates.
class GateDriver : public ko::INodeDriverComponent
{
public:
    ko::InspectorWidget* createInspectorWidget(ko::NodeHint* hint, unsigned flags) override;
    kom::smart<ko::NodeHint> createNodeHint(ko::ENodeType type) override;
};

} // namespace example

#endif
