#ifndef KO_NEARBYADDRESSES_H
#define KO_NEARBYADDRESSES_H

#include "HostExport.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QPair>
#include <QVector>

namespace ko {

/// Which addresses a device may have that is only announced: anybody can announce any, and a node's address
/// is where its password goes.
///
/// Those that cannot lie elsewhere on the Internet (private, shared, link-local, unique local ones), and
/// those of the networks that this computer is attached to. Never loopback, multicast, broadcast and reserved
/// ones.
class KO_HOST_EXPORT NearbyAddresses
{
public:
    typedef QPair<QHostAddress, int> Network; ///< address and length of the prefix

    /// Looks at the interfaces, again when that was some seconds ago.
    NearbyAddresses() = default;

    /// As if the computer were attached to these and no others.
    explicit NearbyAddresses(const QVector<Network>& attached);

    bool contains(const QHostAddress& address);

private:
    void look();

    bool m_looks = true;
    QElapsedTimer m_sinceLook;
    QVector<Network> m_attached;
};

} // namespace ko

#endif
