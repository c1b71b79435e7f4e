#ifndef KO_RELATION_H
#define KO_RELATION_H

#include "ko/Types.h"

namespace ko {

/// That one node uses another, for instance a camera its recording folder.
struct Relation
{
    NodeID source;
    NodeID destination;
    ENodeRelationType type;
};

inline bool operator==(const Relation& a, const Relation& b)
{
    return a.type == b.type && a.source == b.source && a.destination == b.destination;
}

} // namespace ko

#endif
