#ifndef KO_KNOWNADDRESSES_H
#define KO_KNOWNADDRESSES_H

#include "database/HostNodeDB.h"

#include <QMultiHash>
#include <QObject>
#include <QSet>

class QElapsedTimer;

namespace ko {

/// Which devices of the database have an IP address or a MAC address, kept up to date.
///
/// Addresses are in memory. MAC addresses are not: they are read in slices, once something asks.
class KnownAddresses : public QObject
{
    Q_OBJECT

public:
    explicit KnownAddresses(HostNodeDB& db);

    QStringList nodesAt(const QString& address);

    /// To be asked when readMacs() was true.
    QStringList nodesWithMac(const QString& mac) const { return m_byMac.values(mac); }

    /// Reads on until \a clock shows \a limit ms; true when everything is read.
    bool readMacs(const QElapsedTimer& clock, int limit);

private slots:
    void nodeChanged(ko::NodeID id);
    void nodeRemoved(ko::NodeID id);

private:
    void addAddress(const NodeSummary& summary);
    void forget(const QString& id);

    HostNodeDB& m_db;
    bool m_addressesRead = false;
    bool m_macsWanted = false;
    QMultiHash<QString, QString> m_byAddress;
    QHash<QString, QString> m_addressOf;
    QMultiHash<QString, QString> m_byMac;
    QHash<QString, QString> m_macOf;
    QSet<QString> m_unread;
};

} // namespace ko

#endif
