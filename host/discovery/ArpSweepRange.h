#ifndef KO_ARPSWEEPRANGE_H
#define KO_ARPSWEEPRANGE_H

#include "HostExport.h"

#include <QString>
#include <QVector>

namespace ko {

/// The addresses of one directly attached IPv4 network that a sweep looks at. All in host byte order.
struct KO_HOST_EXPORT ArpSweepRange
{
    enum {
        ShortestPrefix = 22 ///< of a larger network only these 1022 addresses around the own one
    };

    int interface = 0; ///< index
    QString interfaceName;
    quint32 ownAddress = 0;
    quint32 first = 0;
    quint32 last = 0; ///< below first when there is nobody to look for
    int prefix = 32;  ///< of what is looked at
    int networkPrefix = 32;

    bool isEmpty() const { return last < first; }
    bool isPart() const { return prefix != networkPrefix; }
    int size() const { return isEmpty() ? 0 : int(last - first + 1); }

    /// Such as "eth0, 10.0.0.0/24", or "eth0, 10.1.4.0/22 of 10.1.0.0/16".
    QString text() const;

    /// What to look at around \a ownAddress in the network that \a mask gives; interface and name are not
    /// set. Empty for a mask with holes.
    static ArpSweepRange around(quint32 ownAddress, quint32 mask);

    /// Those of the interfaces that are up and whose neighbours are found by their address: no loopback,
    /// no point-to-point links. \a interfaces as in Scanner::start(); each network once.
    static QVector<ArpSweepRange> attached(unsigned interfaces);
};

} // namespace ko

#endif
