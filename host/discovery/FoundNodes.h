#ifndef KO_FOUNDNODES_H
#define KO_FOUNDNODES_H

#include "kom/smart.h"

#include <QString>

namespace ko {

class HostNodeDB;
class NodeHint;
struct SightedDevice;

/// What is found of devices, as nodes.
class FoundNodes
{
public:
    /// The database outlives it.
    explicit FoundNodes(HostNodeDB& db);

    /// The device at one of its addresses; a \a port of 0 is not known.
    kom::smart<NodeHint> hint(const SightedDevice& device, const QString& address, int port) const;

    /// Writes into the node of \a device at which addresses it was seen; all else of it is the user's.
    void refresh(const SightedDevice& device);

private:
    HostNodeDB& m_db;
};

} // namespace ko

#endif
