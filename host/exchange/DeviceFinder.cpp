#include "exchange/DeviceFinder.h"

#include "exchange/SurveyText.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/OutsideText.h"
#include "model/NetworkAddress.h"

namespace ko {

namespace {

/// Whether what the row says of \a column is also true of the device, or nothing is said.
bool agrees(const SurveyRow& row, SurveyColumn column, const IPDeviceNode& node)
{
    return !row.has(column) || row.value(column) == SurveyFields::all()[size_t(column)].read(node);
}

QString onlyOne(QStringList ids, const char* severalReason, QString* reason)
{
    ids.removeDuplicates();
    if (ids.size() > 1)
        *reason = SurveyText::tr(severalReason);
    return ids.size() == 1 ? ids.first() : QString();
}

} // namespace

DeviceFinder::DeviceFinder(std::function<QVector<Known>()> devices)
    : m_devices(std::move(devices))
{
}

QString DeviceFinder::find(const SurveyRow& row, const NodeHint& hint, QString* reason)
{
    return row.has(SurveyColumn::Address) ? findByAddress(row, hint, reason) : findByName(row, reason);
}

void DeviceFinder::added(const QString& id, const SurveyRow& row)
{
    m_known.insert(id);
    if (!row.has(SurveyColumn::Address))
        m_addedByName.insert(row.value(SurveyColumn::Name), id);
}

QString DeviceFinder::findByAddress(const SurveyRow& row, const NodeHint& hint, QString* reason)
{
    QString id = NodeDB::getDB()->lookupHint(hint);
    if (!id.isEmpty()) {
        m_known.insert(id);
        return id;
    }
    const bool typeIsKnown = row.has(SurveyColumn::Type) || row.has(SurveyColumn::Channel);
    const bool channelIsKnown = row.has(SurveyColumn::Channel) || hint.type != ChannelDeviceType;
    if (row.has(SurveyColumn::Port) && typeIsKnown && channelIsKnown)
        return QString();

    readDevices();
    QStringList ids;
    const QStringList candidates = m_byAddress.values(NetworkAddress::key(row.value(SurveyColumn::Address)));
    for (const QString& candidate : candidates) {
        const auto node = deviceNode(candidate);
        if (!node.null() && !m_known.contains(candidate) &&
            NetworkAddress::key(node->address()) == NetworkAddress::key(row.value(SurveyColumn::Address)) &&
            (!typeIsKnown || node->type == hint.type) && agrees(row, SurveyColumn::Port, *node) &&
            agrees(row, SurveyColumn::Channel, *node))
            ids.append(candidate);
    }
    return onlyOne(
        ids,
        QT_TRANSLATE_NOOP("CameraSurvey", "several devices have this address; give type, port and channel"),
        reason);
}

QString DeviceFinder::findByName(const SurveyRow& row, QString* reason)
{
    readDevices();
    const QString name = row.value(SurveyColumn::Name);
    QStringList withAddress;
    QStringList without;
    if (m_addedByName.contains(name))
        without.append(m_addedByName.value(name));
    const QStringList candidates = m_byName.values(name);
    for (const QString& candidate : candidates) {
        const auto node = deviceNode(candidate);
        if (node.null() || m_known.contains(candidate) || OutsideText::fit(node->name()) != name)
            continue;
        (node->address().isEmpty() ? without : withAddress).append(candidate);
    }
    return onlyOne(without.isEmpty() ? withAddress : without,
                   QT_TRANSLATE_NOOP("CameraSurvey", "several devices have this name; give the address"),
                   reason);
}

void DeviceFinder::changed(const QString& id)
{
    const auto node = m_isRead ? deviceNode(id) : kom::smart<const IPDeviceNode>();
    if (!node.null())
        insert({id, node->name(), node->address()});
}

void DeviceFinder::insert(const Known& device)
{
    m_byName.insert(OutsideText::fit(device.name), device.id); // as names in a survey are
    m_byAddress.insert(NetworkAddress::key(device.address), device.id);
}

void DeviceFinder::readDevices()
{
    if (m_isRead)
        return;
    m_isRead = true;
    const QVector<Known> devices = m_devices();
    for (const Known& device : devices)
        insert(device);
}

} // namespace ko
