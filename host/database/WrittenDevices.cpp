#include "database/WrittenDevices.h"

#include "drivers/DeviceAddresses.h"
#include "drivers/FactoryExtension.h"
#include "ko/PropertyKeys.h"
#include "model/NetworkAddress.h"
#include "model/NumberedTexts.h"

#include <algorithm>

namespace ko {

namespace {

QString textOf(const NodeRecord& record, const QString& key)
{
    return record.contents->properties.value(key).toString();
}

/// The address of the node, if it is not among those that are known of it.
QString missingAddress(const NodeRecord& record)
{
    const QString address = textOf(record, PropertyKeys::Address);
    if (address == textOf(record, PropertyKeys::IP))
        return QString();
    const QString normalised = NetworkAddress::normalised(address);
    const QVariant known = record.contents->properties.value(PropertyKeys::IPAddresses);
    const bool isKnown = NumberedTexts::fromSet(known.value<kogen::PropertySet>()).contains(normalised);
    return isKnown ? QString() : normalised;
}

/// What was known at another address is of another place.
void setAddress(PropertyList& properties, const QString& address)
{
    properties.set(PropertyKeys::IPAddresses, QVariant::fromValue(DeviceAddresses::toSet({address})));
    properties.set(PropertyKeys::IP, address);
}

} // namespace

WrittenDevices::WrittenDevices(NodeStore& store, NodeMemory& memory)
    : m_store(store)
    , m_memory(memory)
{
}

void WrittenDevices::prepare(NodeData& device)
{
    const auto value = [&device](const QString& key) { return device.properties.value(key); };
    const QString address = NetworkAddress::normalised(value(PropertyKeys::Address).toString());
    if (!address.isEmpty() && !value(PropertyKeys::IPAddresses).isValid())
        setAddress(device.properties, address);
    const QString extension = FactoryExtension::ofChannel(value(PropertyKeys::MacAddress).toString(),
                                                          value(PropertyKeys::Channel).toInt());
    if (!extension.isEmpty() && FactoryExtension::isNone(value(PropertyKeys::FactoryIP).toString()))
        device.properties.set(PropertyKeys::FactoryIP, extension);
}

void WrittenDevices::complete(Notices* notices)
{
    const QVector<NodeID> written = m_memory.pending.writtenDevices;
    if (written.isEmpty())
        return;
    readWaiting(QSet<NodeID>(written.cbegin(), written.cend()));
    for (const NodeID& id : written) {
        NodeRecord* record = m_memory.cache().find(id);
        if (!record || !record->contents || m_settled.contains(id))
            continue; // removed since, or seen to
        m_settled.insert(id);
        const QString address = missingAddress(*record);
        const QString extension = extensionFor(*record);
        const bool isExtended = extension != textOf(*record, PropertyKeys::FactoryIP);
        if (address.isEmpty() && !isExtended)
            continue;
        NodeData device = record->data();
        if (!address.isEmpty())
            setAddress(device.properties, address);
        if (isExtended)
            device.properties.set(PropertyKeys::FactoryIP,
                                  extension.isEmpty() ? QVariant() : QVariant(extension));
        m_memory.amend(*record, device);
        notices->updated(id);
    }
}

/// A device that has an extension already keeps it, whichever comes first: there are recordings in the folder
/// of that name.
void WrittenDevices::readWaiting(const QSet<NodeID>& written)
{
    const QStringList ids = m_memory.pending.nodes();
    for (const NodeID& id : ids) {
        const NodeRecord* record = m_memory.cache().find(id);
        if (record && !record->contents)
            continue; // only a relation of it waits
        m_waiting.insert(id);
        const QString extension = record ? textOf(*record, PropertyKeys::FactoryIP) : QString();
        if (FactoryExtension::isNone(extension) ||
            (written.contains(id) && m_memory.pending.changes(id, PropertyKeys::FactoryIP) &&
             !m_store.nodesWithExtension(extension).contains(id)))
            continue;
        m_kept.insert(id);
        m_taken.insert(extension);
    }
}

QString WrittenDevices::extensionFor(const NodeRecord& record)
{
    QString stored = textOf(record, PropertyKeys::FactoryIP);
    if (m_kept.contains(record.summary.id()))
        return stored;
    const QString made =
        FactoryExtension::ofChannel(textOf(record, PropertyKeys::MacAddress),
                                    record.contents->properties.value(PropertyKeys::Channel).toInt());
    const QString first = FactoryExtension::isNone(stored) ? made : stored;
    if (first.isEmpty())
        return stored;
    for (int number = 1; number <= FactoryExtension::MostAlike; ++number) {
        QString candidate = FactoryExtension::numbered(first, number);
        if (isFree(candidate)) {
            m_taken.insert(candidate);
            return candidate;
        }
    }
    return QString();
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
