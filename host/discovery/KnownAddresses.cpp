#include "discovery/KnownAddresses.h"

#include "drivers/NodeTypes.h"
#include "model/NetworkAddress.h"

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

void KnownAddresses::nodeChanged(ko::NodeID id)
{
    if (!m_addressesRead)
        return;
    forget(id);
    addAddress(m_db.summary(id));
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
}

} // namespace ko
