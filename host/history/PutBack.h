#ifndef KO_PUTBACK_H
#define KO_PUTBACK_H

#include "history/Alteration.h"

#include <QStringList>

namespace ko {

/// One thing that was to be put back: what it is now, what it was before the change, what it became by it.
struct PutBackLine
{
    enum State {
        Possible,
        AsBefore, ///< it is already as it was before
        Changed,  ///< it was changed since, and is left to whoever did that
        Removed,  ///< the node is gone, or one end of the relation
        InUse     ///< the node came by the change, and others use it now
    };

    /// Where it is possible: what it was before the first of the changes, and what it is now.
    Alteration what;
    QVariant now; ///< as Alteration::before
    State state = Possible;
    bool isTicked = true; ///< to be put back, if possible
};

/// Puts back what was changed, as far as it was not changed since: a value made of values. Everything that is
/// done after a moment, put back together, is the state of that moment.
class KO_HOST_EXPORT PutBack
{
public:
    PutBack() = default;

    /// \a alterations of one or more change sets, \a now with all of Alterations::wanted(). A node may be
    /// taken out again though properties differ that are in \a noted: those that the program keeps there for
    /// itself.
    PutBack(const QVector<Alteration>& alterations, const PresentState& now,
            const QStringList& noted = QStringList());

    /// In the order of the alterations, each thing once where it can be put back.
    QVector<PutBackLine> lines;

    /// Does what is ticked. Without a cause.
    ChangeSet changeSet() const;

    /// What is ticked and possible.
    QVector<PutBackLine> chosen() const;

    /// What it was made of.
    const QVector<Alteration>& alterations() const { return m_alterations; }

private:
    QVector<Alteration> m_alterations;
    QVector<RelationChange> m_followers; ///< that come back with a node
};

} // namespace ko

#endif
