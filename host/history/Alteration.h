#ifndef KO_ALTERATION_H
#define KO_ALTERATION_H

#include "model/PresentState.h"

namespace ko {

/// One thing that a change set changed: what a user sees in one line, and puts back.
struct KO_HOST_EXPORT Alteration
{
    enum Kind {
        Node, ///< came or went, with all its properties and relations
        Name,
        Property,
        RelationTo,
        Setting,
        EnvironmentList
    };

    qint64 changeSet = 0; ///< its number
    Kind kind = Node;
    NodeID node;                   ///< empty for settings and environments; of a relation its source
    ENodeType type = AllNodeTypes; ///< of the node, of one that came or went; else not known
    QString name;                  ///< of the node at that time; empty for relations
    QString key;                   ///< of a property or a setting
    Relation relation = {};
    qint64 place = 0; ///< of a node or a relation that came or went

    /// An invalid value is of what is not there. Of a node or a relation true; environments are in the
    /// form of Alterations::value().
    QVariant before;
    QVariant after;
    PropertyList properties; ///< of a node that came or went: all

    bool isAddition() const { return !before.isValid(); }
    bool isRemoval() const { return !after.isValid(); }

    /// The same for all that happens to one thing, different for different things.
    QString thing() const;
};

namespace Alterations {

/// In the order in which the change set has them; a node may be there twice if it was stored in parts.
KO_HOST_EXPORT QVector<Alteration> of(const ChangeSet& set);

/// Those of \a all that are among \a things, with the relations of the nodes that came or went among them.
KO_HOST_EXPORT QVector<Alteration> selected(const QVector<Alteration>& all, const QSet<QString>& things);

/// What must be known of the present to put them back.
KO_HOST_EXPORT PresentState::Wanted wanted(const QVector<Alteration>& alterations);

/// A list of environments as a value of an alteration, and back.
KO_HOST_EXPORT QVariant value(const Environments::List& list);
KO_HOST_EXPORT Environments::List environments(const QVariant& value);

/// Whether both are the same, or none.
KO_HOST_EXPORT bool isSame(const QVariant& a, const QVariant& b);

} // namespace Alterations

} // namespace ko

Q_DECLARE_TYPEINFO(ko::Alteration, Q_MOVABLE_TYPE);

#endif
