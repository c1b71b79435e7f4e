#ifndef KO_MOMENT_H
#define KO_MOMENT_H

#include "history/Alteration.h"

namespace ko {

/// A node in the list of those that there were at a moment.
struct MomentNode
{
    enum Difference {
        Same,
        Changed, ///< since
        Removed, ///< since
        Added    ///< since: it was not there
    };

    NodeSummary node; ///< as it was then; of one that came since as it is now
    Difference difference = Same;
};

/// What there was at a moment beside what there is now: a value made of values, by any thread. What there was
/// is what all that was done since, put back together, leaves.
struct KO_HOST_EXPORT Moment
{
    Moment() = default;

    /// Undoes \a since in \a now, which has all of Alterations::wanted(). \a nodes are all that there are
    /// now.
    Moment(const QVector<Alteration>& since, const PresentState& now, const QVector<NodeSummary>& nodes);

    QVector<MomentNode> nodes; ///< oldest first, then those that went since

    /// Settings and environments that differ: before is what there was then, after what there is now.
    QVector<Alteration> others;

    /// How many things the history and the present disagree on: what they were at the moment is not known.
    int unknown = 0;

    /// The name, the properties and the relations that begin at one node: before is what there was then,
    /// after what there is now, of which \a now must have this node with its relations.
    static QVector<Alteration> detailsOf(const NodeID& id, const QVector<Alteration>& since,
                                         const PresentState& now);
};

} // namespace ko

#endif
