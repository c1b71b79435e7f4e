#include "discovery/KnownAddresses.h"

#include "drivers/NodeTypes.h"
#include "ko/IPDeviceNode.h"
#include "model/NetworkAddress.h"

#include <QElapsedTimer>

namespace ko {

KnownAddresses::KnownAddresses(HostNodeDB& db)
    : m_db(db)
{
    connect(&db, &NodeDB::nodeInserted, this, &KnownAddresses::nodeChanged);
    connect(&db, &NodeDB::nodeUpdated, this, &KnownAddresses::nodeChanged);
    connect(&db, &NodeDB::nodeRemoved, this, &KnownAddresses::nodeRemoved);
}

QStringList KnownAddresses::nodesAt(const QString& address)
{
    if (!m_addressesRead) {
        m_addressesRead = true;
        const QVector<NodeSummary> summaries = m_db.summaries();
        for (const NodeSummary& summary : summaries)
            addAddress(summary);
    }
    return m_byAddress.values(NetworkAddress::key(address));
}

bool KnownAddresses::readMacs(const QElapsedTimer& clock, int limit)
{
    if (!m_macsWanted) {
        m_macsWanted = true;
        const QStringList ids = m_db.nodeIdList(AllNodeTypes);
        m_unread = QSet<QString>(ids.begin(), ids.end());
    }
    while (!m_unread.isEmpty() && !clock.hasExpired(limit)) {
        const QString id = *m_unread.constBegin();
        m_unread.erase(m_unread.begin());
        const auto node = m_db.node(id).cast<const IPDeviceNode>();
        if (node.null() || node->macAddress().isNull())
            continue;
        const QString mac = node->macAddress().toString(true);
        m_byMac.insert(mac, id);
        m_macOf.insert(id, mac);
    }
    return m_unread.isEmpty();
}

void KnownAddresses::nodeChanged(ko::NodeID id)
{
    if (!m_addressesRead && !m_macsWanted)
        return;
    forget(id);
    const NodeSummary summary = m_db.summary(id);
    if (!NodeTypes::isDevice(summary.type) || summary.id.isEmpty())
        return;
    if (m_macsWanted)
        m_unread.insert(id);
    if (m_addressesRead)
        addAddress(summary);
}

void KnownAddresses::addAddress(const NodeSummary& summary)
{
    if (!NodeTypes::isDevice(summary.type) || summary.location.isEmpty())
        return;
    const QString key = NetworkAddress::key(summary.location);
    m_byAddress.insert(key, summary.id);
    m_addressOf.insert(summary.id, key);
}

void KnownAddresses::nodeRemoved(ko::NodeID id)
{
    forget(id);
}

void KnownAddresses::forget(const QString& id)
{
    m_byAddress.remove(m_addressOf.take(id), id);
    m_byMac.remove(m_macOf.take(id), id);
    m_unread.remove(id);
}

} // namespace ko
