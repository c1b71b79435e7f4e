#ifndef KO_NOTICES_H
#define KO_NOTICES_H

#include "ko/Types.h"

#include <QPair>
#include <QSet>
#include <QVector>

namespace ko {

/// What is to be announced, in its order.
class Notices
{
public:
    enum Kind { Inserted, Updated, Removed };
    typedef QVector<QPair<Kind, NodeID>> Nodes;

    void inserted(const NodeID& id) { add(Inserted, id); }
    void updated(const NodeID& id) { add(Updated, id); }
    void removed(const NodeID& id) { add(Removed, id); }

    const Nodes& nodes() const { return m_nodes; }
    bool settings = false;

private:
    void add(Kind kind, const NodeID& id);

    Nodes m_nodes;
    QSet<NodeID> m_known;
};

} // namespace ko

#endif
