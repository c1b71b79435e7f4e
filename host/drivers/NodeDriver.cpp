#include "drivers/NodeDriver.h"

#include "drivers/HostHint.h"
#include "drivers/NodeInspector.h"
#include "drivers/OwnNodeType.h"

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
    kom::smart<NodeHint> hint = NodeTypes::isDevice(type)
                                    ? kom::smart<NodeHint>(kom::makeSmart<DeviceHint>(type))
                                    : kom::smart<NodeHint>(kom::makeSmart<PlainHint>(type));
    if (const OwnNodeType* own = NodeTypes::ownType(type)) {
        for (const NodeProperty& property : own->properties) // its pages show what a hint has
            hint->addProperty(*PropertyList::toProperty(property.key, property.value));
    }
    return hint;
}

} // namespace ko
