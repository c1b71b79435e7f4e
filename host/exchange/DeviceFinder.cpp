#include "exchange/DeviceFinder.h"

#include "database/HostNodeDB.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHint.h"
#include "ko/OutsideText.h"

#include <QCoreApplication>

namespace ko {

namespace {

QString say(const char* text)
{
    return QCoreApplication::translate("ko::CameraSurvey", text);
}

QString addressKey(const QString& address)
{
    return address.trimmed().toLower();
}

kom::smart<const IPDeviceNode> device(const QString& id)
{
    return NodeDB::getDB()->node(id).cast<const IPDeviceNode>();
}

/// Whether what the row says of \a column is also true of the device, or nothing is said.
bool agrees(const SurveyRow& row, SurveyColumn column, const IPDeviceNode& node)
{
    return !row.has(column) || row.value(column) == SurveyFields::field(int(column)).read(node);
}

QString onlyOne(QStringList ids, const char* severalReason, QString* reason)
{
    ids.removeDuplicates();
    if (ids.size() > 1)
        *reason = say(severalReason);
    return ids.size() == 1 ? ids.first() : QString();
}

} // namespace

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
    const QStringList candidates = m_byAddress.values(addressKey(row.value(SurveyColumn::Address)));
    for (const QString& candidate : candidates) {
        const auto node = device(candidate);
        if (!node.null() && !m_known.contains(candidate) &&
            addressKey(node->address()) == addressKey(row.value(SurveyColumn::Address)) &&
            (!typeIsKnown || node->type == hint.type) && agrees(row, SurveyColumn::Port, *node) &&
            agrees(row, SurveyColumn::Channel, *node))
            ids.append(candidate);
    }
    return onlyOne(ids,
                   QT_TRANSLATE_NOOP("ko::CameraSurvey",
                                     "several devices have this address; give type, port and channel"),
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
        const auto node = device(candidate);
        if (node.null() || m_known.contains(candidate) || OutsideText::fit(node->name()) != name)
            continue;
        (node->address().isEmpty() ? without : withAddress).append(candidate);
    }
    return onlyOne(without.isEmpty() ? withAddress : without,
                   QT_TRANSLATE_NOOP("ko::CameraSurvey", "several devices have this name; give the address"),
                   reason);
}

void DeviceFinder::changed(const QString& id)
{
    const auto node = m_isRead ? device(id) : kom::smart<const IPDeviceNode>();
    if (!node.null())
        insert(id, node->name(), node->address());
}

/// What else is still here of a device does no harm: find() looks at it again.
void DeviceFinder::insert(const QString& id, const QString& name, const QString& address)
{
    m_byName.insert(OutsideText::fit(name), id); // as names in a survey are
    m_byAddress.insert(addressKey(address), id);
}

void DeviceFinder::readDevices()
{
    if (m_isRead)
        return;
    m_isRead = true;
    // Summaries are in memory; without them every node has to be looked at once.
    if (const auto* db = qobject_cast<HostNodeDB*>(NodeDB::getDB())) {
        const QVector<NodeSummary> summaries = db->summaries();
        for (const NodeSummary& summary : summaries)
            insert(summary.id, summary.name, summary.location);
        return;
    }
    const QStringList ids = NodeDB::getDB()->nodeIdList(AllNodeTypes);
    for (const QString& id : ids) {
        const auto node = device(id);
        if (!node.null())
            insert(id, node->name(), node->address());
    }
}

} // namespace ko
