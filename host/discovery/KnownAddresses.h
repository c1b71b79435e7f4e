#ifndef KO_KNOWNADDRESSES_H
#define KO_KNOWNADDRESSES_H

#include "database/HostNodeDB.h"

#include <QMultiHash>
#include <QObject>

namespace ko {

/// Which devices of the database have an IP address, kept up to date.
class KnownAddresses : public QObject
{
    Q_OBJECT

public:
    explicit KnownAddresses(HostNodeDB& db);

    QStringList nodesAt(const QString& address);

private slots:
    void nodeChanged(ko::NodeID id);
    void nodeRemoved(ko::NodeID id);

private:
    void addAddress(const NodeSummary& summary);
    void forget(const QString& id);

    HostNodeDB& m_db;
    bool m_addressesRead = false;
    QMultiHash<QString, QString> m_byAddress;
    QHash<QString, QString> m_addressOf;
};

} // namespace ko

#endif
