#ifndef KO_PENDINGCHANGES_H
#define KO_PENDINGCHANGES_H

#include "model/ChangeScope.h"
#include "model/ChangeSet.h"
#include "model/NodeData.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

namespace ko {

/// What memory has and the store has not yet: change sets in the making, with several changes of one thing
/// made one.
class PendingChanges
{
public:
    QVector<ProgramRow> programLines;

    /// The devices that were added or edited, in that order; see WrittenDevices.
    QVector<NodeID> writtenDevices;

    bool isEmpty() const { return programLines.isEmpty() && !hasChanges(); }

    /// Anything but lines of the program log.
    bool hasChanges() const { return !m_making.empty(); }

    /// Everything is stored, or given up.
    void clear();

    /// The sets as they are to be stored, in their order.
    QVector<ChangeSet> sets() const;

    /// What waits is being stored now: it stays as it is, and what is changed from now on goes into other
    /// sets.
    void beginStoring();
    /// What waited then is stored.
    void endStoring();
    /// It waits again, as if nobody had tried.
    void cancelStoring();

    /// How many nodes and relations the sets change; of some, several times.
    int count() const;

    /// What is changed from now on belongs to \a cause, until leave(). May be nested.
    void enter(const Cause& cause, ScopeStoring storing) { m_scopes.append({cause, storing}); }
    void leave() { m_scopes.removeLast(); }
    /// What there is may not be stored before it is left.
    bool isWithinWhole() const;

    /// What is changed after this without a cause is another change set than what was changed before.
    void endTurn() { m_turn.reset(); }

    /// What was done under \a cause, as it would be stored: several, where something else was done in
    /// between.
    QVector<ChangeSet> setsOf(const Cause& cause) const;
    /// Forgets it.
    void drop(const Cause& cause);

    // What is done to the current set.
    void nodeAdded(const NodeChange& change);
    /// Nothing if they do not differ. \a change has the identifier, the type and what follows from \a after.
    void nodeUpdated(NodeChange change, const NodeData& before, const NodeData& after);
    void nodeRemoved(const NodeID& id, ENodeType type);
    void relationChanged(const RelationChange& change);
    void settingChanged(const SettingChange& change);
    void environmentsChanged(const EnvironmentsChange& change);
    void logged(const AuditRow& row);

    /// Only the newest \a most lines wait.
    void logged(const ProgramRow& row, int most);

    /// Notes that the properties of a node differ, as a part of what was done to it last. False when nothing
    /// waits of it.
    bool amend(const NodeID& id, const PropertyList& before, const PropertyList& after);

    /// What follows from the values that applyTo() gave a node.
    void show(const NodeID& id, const PackedSummary& summary, const QString& lookupKey);

    bool adds(const NodeID& id) const;
    bool removes(const NodeID& id) const;
    /// Whether this property of a node that is there may be another one than the store has.
    bool changes(const NodeID& id, const QString& property) const;

    /// Forgets what waits for a node that others removed.
    void drop(const NodeID& id);

    /// Changes \a data, as others have stored it now, as what waits will, and takes it for what was before.
    void applyTo(NodeData& data);
    /// The same for the stored relations from \a source.
    void applyTo(QVector<Relation>& rows, const NodeID& source) const;
    /// The same for the stored settings.
    void applyTo(Settings& settings, Environments::List& environments) const;

    /// The nodes of which something waits, removed ones included.
    QStringList nodes() const;

private:
    struct Making
    {
        ChangeSet set;
        QHash<NodeID, int> at; ///< where a node stands in the set
        QSet<NodeID> renamed;
        QSet<NodeID> newlyRelated; ///< sources of relations that it adds
        bool hasPurpose;           ///< else it follows from what is changed
    };

    static ChangeSet setOf(const Making& making);
    Making& current();
    NodeChange* changeOf(const NodeID& id);
    void append(const NodeChange& change);

    std::vector<Making> m_making;
    /// How much of it, of the lines and of the devices is being stored, from the beginning.
    struct
    {
        std::size_t making = 0;
        int lines = 0;
        int devices = 0;
    } m_storing;
    struct Scope
    {
        Cause cause;
        ScopeStoring storing;
    };
    QVector<Scope> m_scopes;
    std::optional<Cause> m_turn;
};

} // namespace ko

#endif
