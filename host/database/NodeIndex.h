#ifndef KO_NODEINDEX_H
#define KO_NODEINDEX_H

#include "ko/Types.h"

#include <vector>

namespace ko {

struct NodeRecord;

/// Finds records by the identifiers of their nodes, with eight to sixteen bytes for each (a hash table with
/// linear probing that keeps no keys of its own).
class NodeIndex
{
public:
    /// Null when there is none.
    NodeRecord* find(const NodeID& id) const;

    /// Makes room for this many.
    void reserve(size_t count);

    /// The identifier must not be in the index.
    void insert(NodeRecord* record);
    void remove(const NodeRecord* record);

private:
    void put(NodeRecord* record);
    void resize(size_t size);

    std::vector<NodeRecord*> m_table; ///< its size is a power of two, or 0
    size_t m_count = 0;
};

} // namespace ko

#endif
