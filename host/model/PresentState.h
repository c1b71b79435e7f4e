#ifndef KO_PRESENTSTATE_H
#define KO_PRESENTSTATE_H

#include "model/ChangeSet.h"
#include "model/NodeData.h"

#include <QHash>
#include <QSet>

namespace ko {

/// What there is now of some nodes, and of the settings: a value. Passwords are sealed.
struct PresentState
{
    /// Of which nodes what is wanted.
    struct Wanted
    {
        QSet<NodeID> values;  ///< name and properties
        QSet<NodeID> ends;    ///< only whether it is there
        QSet<NodeID> sources; ///< what begins there
        QSet<NodeID> related; ///< what begins or ends there
    };

    QHash<NodeID, NodeData> nodes; ///< those that are there
    QSet<NodeID> ends;             ///< likewise
    QVector<Relation> relations;
    Settings settings;
    Environments::List environments;
};

} // namespace ko

#endif
