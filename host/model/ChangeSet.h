#ifndef KO_CHANGESET_H
#define KO_CHANGESET_H

#include "ko/Environments.h"
#include "model/Cause.h"
#include "model/LogRows.h"
#include "model/PackedSummary.h"
#include "model/Relation.h"

#include <QMap>

#include <optional>

namespace ko {

typedef QMap<QString, QString> Settings;

/// What a node held before or after a change.
struct NodeValues
{
    QString name;
    /// Of a node that is there before and after, those that differ; one that is missing is not there.
    PropertyList properties;
};

/// One node, before and after.
struct NodeChange
{
    NodeID id;
    ENodeType type = AllNodeTypes;
    qint64 place = 0;                 ///< among all nodes, in the order of their age; 0: after all others
    std::optional<NodeValues> before; ///< none: it was not there
    std::optional<NodeValues> after;  ///< none: it is there no more

    // What follows from the values that it has now, for lists and look-ups. Not a part of the change.
    PackedSummary summary;
    QString lookupKey;

    bool isAdded() const { return !before && after; }
    bool isRemoved() const { return before && !after; }
    bool isUpdated() const { return before && after; }
};

struct RelationChange
{
    Relation relation;
    bool isAdded = true;
    qint64 place = 0; ///< among all relations, in the order of their age; 0: after all others
};

/// A text that is missing before or after means that the setting was not there.
struct SettingChange
{
    QString key;
    std::optional<QString> before;
    std::optional<QString> after;
};

struct EnvironmentsChange
{
    Environments::List before;
    Environments::List after;
};

/// What a change set is known by once it is stored.
struct StoredSet
{
    qint64 number;
    Cause cause;
};

/// What was confirmed at once, as a value: whoever applies it and then its inverse() has what was before.
///
/// Passwords are sealed in it.
struct KO_HOST_EXPORT ChangeSet
{
    qint64 number = 0; ///< given by the store, in the order in which they were stored; 0: not stored
    Cause cause;
    QVector<NodeChange> nodes; ///< in the order of their first change; no node twice
    QVector<RelationChange> relations;
    QVector<SettingChange> settings;
    std::optional<EnvironmentsChange> environments;
    QVector<AuditRow> audit;

    /// Whether it changes anything; entries of the audit log alone do not.
    bool hasChanges() const;
    bool isEmpty() const { return audit.isEmpty() && !hasChanges(); }

    /// What takes it back, without cause and audit entries.
    ChangeSet inverse() const;
};

} // namespace ko

#endif
