#include "database/WrittenDevices.h"

#include "drivers/DeviceAddresses.h"
#include "drivers/FactoryExtension.h"
#include "ko/PropertyKeys.h"
#include "model/NetworkAddress.h"

#include <algorithm>

namespace ko {

namespace {

QString extensionOf(const NodeData& device)
{
    return device.properties.value(PropertyKeys::FactoryIP).toString();
}

/// Those that were known at another address are of another place.
bool completeAddresses(PropertyList& properties)
{
    const QString address = NetworkAddress::normalised(properties.value(PropertyKeys::Address).toString());
    const auto known = properties.value(PropertyKeys::IPAddresses).value<kogen::PropertySet>();
    if (address.isEmpty() || DeviceAddresses::fromSet(known).contains(address))
        return false;
    properties.set(PropertyKeys::IPAddresses, QVariant::fromValue(DeviceAddresses::toSet({address})));
    properties.set(PropertyKeys::IP, address);
    return true;
}

} // namespace

WrittenDevices::WrittenDevices(NodeStore& store, NodeMemory& memory)
    : m_store(store)
    , m_memory(memory)
{
}

void WrittenDevices::complete(Notices* notices)
{
    const QVector<NodeID> written = m_memory.pending.writtenDevices;
    if (written.isEmpty())
        return;
    readWaiting(QSet<NodeID>(written.cbegin(), written.cend()));
    for (const NodeID& id : written) {
        NodeRecord* record = m_memory.cache.find(id);
        if (!record || record->snapshot.null())
            continue; // removed since
        NodeData device = record->data();
        const bool hasAddresses = completeAddresses(device.properties);
        const bool hasExtension = completeExtension(device);
        if (!hasAddresses && !hasExtension)
            continue;
        m_memory.amend(*record, device);
        notices->updated(id);
    }
}

/// Who has an extension already keeps it, whoever comes first: there are recordings in the folder of that
/// name.
void WrittenDevices::readWaiting(const QSet<NodeID>& written)
{
    const QStringList ids = m_memory.pending.nodes();
    for (const NodeID& id : ids) {
        const NodeRecord* record = m_memory.cache.find(id);
        if (record && record->snapshot.null())
            continue; // only a relation of it waits
        m_waiting.insert(id);
        const QString extension = record ? extensionOf(record->data()) : QString();
        if (FactoryExtension::isNone(extension) ||
            (written.contains(id) && !m_store.nodesWithExtension(extension).contains(id)))
            continue;
        m_settled.insert(id);
        m_taken.insert(extension);
    }
}

bool WrittenDevices::completeExtension(NodeData& device)
{
    if (m_settled.contains(device.id))
        return false;
    m_settled.insert(device.id);
    const QString stored = extensionOf(device);
    const QString first = FactoryExtension::isNone(stored) ? FactoryExtension::ofDevice(device) : stored;
    if (first.isEmpty())
        return false;
    QString extension;
    for (int number = 1; number <= FactoryExtension::MostAlike && extension.isEmpty(); ++number) {
        const QString candidate = FactoryExtension::numbered(first, number);
        if (isFree(candidate))
            extension = candidate;
    }
    m_taken.insert(extension);
    if (extension == stored)
        return false;
    device.properties.set(PropertyKeys::FactoryIP, extension);
    return true;
}

bool WrittenDevices::isFree(const QString& extension)
{
    if (m_taken.contains(extension))
        return false;
    const QStringList stored = m_store.nodesWithExtension(extension);
    return std::all_of(stored.cbegin(), stored.cend(),
                       [this](const NodeID& id) { return m_waiting.contains(id); });
}

} // namespace ko
