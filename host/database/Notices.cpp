#include "database/Notices.h"

namespace ko {

void Notices::add(Kind kind, const NodeID& id)
{
    if (kind == Updated && m_known.contains(id))
        return;
    m_known.insert(id);
    m_nodes.append({kind, id});
}

} // namespace ko
