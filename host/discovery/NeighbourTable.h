#ifndef KO_NEIGHBOURTABLE_H
#define KO_NEIGHBOURTABLE_H

#include "HostExport.h"

#include <QByteArray>
#include <QVector>

namespace ko {

/// An IPv4 address that the system has tried to resolve on one of its links.
struct Neighbour
{
    int interface = 0;     ///< index
    quint32 address = 0;   ///< in host byte order
    QByteArray macAddress; ///< six bytes; empty when the entry is not complete
    bool failed = false;   ///< nobody answered
};

/// The system's neighbour table, read through netlink. Takes no privilege.
namespace NeighbourTable {

enum Reply {
    More,     ///< another datagram follows
    Complete, ///< that was the last one
    Bad       ///< not understood, or an error
};

/// Appends what is in the table now. False when the system does not tell; errno then says why when no
/// socket could be had.
KO_HOST_EXPORT bool read(QVector<Neighbour>& neighbours);

/// Appends the IPv4 neighbours of one datagram of the answer. Reads nothing beyond what the lengths in it
/// allow; entries that make no sense are passed over.
KO_HOST_EXPORT Reply parse(const QByteArray& datagram, QVector<Neighbour>& neighbours);

} // namespace NeighbourTable

} // namespace ko

#endif
