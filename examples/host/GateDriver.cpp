#include "GateDriver.h"

#include "GateInspector.h"
#include "MemoryNodeDB.h"

namespace example {

ko::InspectorWidget* GateDriver::createInspectorWidget(ko::NodeHint* hint, unsigned flags)
{
    return new GateInspector(*hint, flags);
}

kom::smart<ko::NodeHint> GateDriver::createNodeHint(ko::ENodeType type)
{
    return kom::makeSmart<MemoryHint>(type);
}

} // namespace example
