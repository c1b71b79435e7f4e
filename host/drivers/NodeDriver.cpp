#include "drivers/NodeDriver.h"

#include "drivers/HostHint.h"
#include "drivers/NodeInspector.h"
#include "drivers/NodeTypes.h"

namespace ko {

void* NodeDriver::getInterface(const std::string& id)
{
    if (id == INodeDriverComponent::ID())
        return static_cast<INodeDriverComponent*>(this);
    if (id == ICanBeLocalized::ID())
        return static_cast<ICanBeLocalized*>(this);
    return INodeDriverComponent::getInterface(id);
}

InspectorWidget* NodeDriver::createInspectorWidget(NodeHint* hint, unsigned flags)
{
    return hint ? createHintInspector(*hint, flags) : nullptr;
}

kom::smart<NodeHint> NodeDriver::createNodeHint(ENodeType type)
{
    if (!NodeTypes::canBeAdded(type))
        return kom::smart<NodeHint>();
    if (NodeTypes::isDevice(type))
        return kom::makeSmart<DeviceHint>(type);
    return kom::makeSmart<PlainHint>(type);
}

} // namespace ko
