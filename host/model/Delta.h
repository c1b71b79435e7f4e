#ifndef KO_DELTA_H
#define KO_DELTA_H

#include "model/ChangeSet.h"

#include <QHash>

#include <optional>

namespace ko {

/// One node as the store has it.
struct NodeRow
{
    NodeID id;
    qint64 place = 0; ///< in the order of age; 0: there is no such node
    PackedSummary summary;
    QString lookupKey;
    std::optional<PropertyList> properties; ///< none: nobody asked for them
};

/// What the store has now of all that others changed since some revision, or of everything: read in one go,
/// so that a failure leaves memory as it is.
struct Delta
{
    qint64 revision = 0;
    bool everything = false; ///< every node is here, but no look-up key
    bool isMore = false;     ///< something came after that revision already
    QVector<NodeRow> nodes;
    QHash<NodeID, QVector<Relation>> relations; ///< by source: all that start there now
    bool hasSettings = false;
    Settings settings;
    Environments::List environments;
};

} // namespace ko

#endif
