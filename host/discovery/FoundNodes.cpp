#include "discovery/FoundNodes.h"

#include "database/HostNodeDB.h"
#include "discovery/SightedDevices.h"
#include "drivers/DeviceAddresses.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"

#include <algorithm>

namespace ko {

namespace {

/// What the user finds it by when it does not call itself anything.
QString nameOf(const SightedDevice& device, const QString& address)
{
    const QStringList words = {device.name, device.model, device.location, address};
    return *std::find_if(words.begin(), words.end(), [](const QString& word) { return !word.isEmpty(); });
}

} // namespace

FoundNodes::FoundNodes(HostNodeDB& db)
    : m_db(db)
{
}

kom::smart<NodeHint> FoundNodes::hint(const SightedDevice& device, const QString& address, int port) const
{
    auto hint = m_db.nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    auto* description = dynamic_cast<NodeHintIPDevice*>(hint.get());
    hint->setName(nameOf(device, address));
    description->address = address;
    if (port > 0)
        description->port = port;
    description->model = device.model;
    description->version = device.version;
    description->macAddress = MACAddress(device.macs().value(0));
    DeviceAddresses::write(*hint, DeviceAddresses::merged(QStringList(), device.addresses));
    return hint;
}

void FoundNodes::refresh(const SightedDevice& device)
{
    const auto node = m_db.node(device.nodeId).cast<const IPDeviceNode>();
    if (node.null())
        return;
    const QStringList known = DeviceAddresses::read(*node);
    const QStringList seen = DeviceAddresses::merged(known, device.addresses);
    if (seen == known)
        return;
    Node* copy = m_db.beginUpdateNode(device.nodeId, -1);
    if (copy)
        DeviceAddresses::write(*copy, seen);
    m_db.endUpdateNode(copy);
}

} // namespace ko
