#include "database/PendingChanges.h"

#include "database/PurposeOf.h"

#include <algorithm>
#include <numeric>

namespace ko {

namespace {

bool isNothing(const NodeChange& change)
{
    if (!change.isUpdated())
        return !change.before && !change.after;
    return change.before->name == change.after->name && change.before->properties.count() == 0 &&
           change.after->properties.count() == 0;
}

/// Without what is the same before and after. As long as it waits it counts: others may change it.
void simplify(NodeChange& change)
{
    if (!change.isUpdated())
        return;
    const PropertyList before = change.before->properties;
    const PropertyList after = change.after->properties;
    for (const PropertyList::Entry& entry : before) {
        if (!PropertyList::sameValue(entry.value, after.value(entry.name)))
            continue;
        change.before->properties.set(entry.name, QVariant());
        change.after->properties.set(entry.name, QVariant());
    }
}

/// Notes that a property of a node that is there before and after became \a value; \a before is what it was
/// before that, of which an earlier change may know better.
void setProperty(NodeChange& change, const QString& name, const QVariant& before, const QVariant& value)
{
    if (!change.before->properties.contains(name) && !change.after->properties.contains(name))
        change.before->properties.set(name, before);
    change.after->properties.set(name, value);
}

void setProperties(NodeChange& change, const PropertyList& before,
                   const QVector<PropertyList::Entry>& difference)
{
    for (const PropertyList::Entry& entry : difference) {
        if (change.isAdded())
            change.after->properties.set(entry.name, entry.value);
        else
            setProperty(change, entry.name, before.value(entry.name), entry.value);
    }
}

} // namespace

PendingChanges::Making& PendingChanges::current()
{
    if (m_scopes.isEmpty() && !m_turn)
        m_turn = Cause::now(Purpose::Edit);
    const Cause& cause = m_scopes.isEmpty() ? *m_turn : m_scopes.last().cause;
    // Only the last one: between two changes of one set another one may have changed the same node.
    if (m_making.size() == m_storing.making || m_making.back().set.cause.id != cause.id) {
        m_making.push_back({ChangeSet(), {}, {}, {}, !m_scopes.isEmpty()});
        m_making.back().set.cause = cause;
    }
    return m_making.back();
}

NodeChange* PendingChanges::changeOf(const NodeID& id)
{
    Making& making = current();
    const auto found = making.at.constFind(id);
    return found == making.at.constEnd() ? nullptr : &making.set.nodes[*found];
}

void PendingChanges::append(const NodeChange& change)
{
    Making& making = current();
    making.at.insert(change.id, int(making.set.nodes.size()));
    making.set.nodes.append(change);
}

void PendingChanges::clear()
{
    beginStoring();
    endStoring();
}

void PendingChanges::beginStoring()
{
    m_storing = {m_making.size(), int(programLines.size()), int(writtenDevices.size())};
}

void PendingChanges::endStoring()
{
    m_making.erase(m_making.begin(), m_making.begin() + std::ptrdiff_t(m_storing.making));
    programLines.remove(0, m_storing.lines);
    writtenDevices.remove(0, m_storing.devices);
    cancelStoring();
}

void PendingChanges::cancelStoring()
{
    m_storing = {};
}

bool PendingChanges::isWithinWhole() const
{
    return std::any_of(m_scopes.begin(), m_scopes.end(),
                       [](const Scope& scope) { return scope.storing == ScopeStoring::AtEnd; });
}

int PendingChanges::count() const
{
    return std::accumulate(m_making.begin(), m_making.end(), 0, [](int sum, const Making& making) {
        return sum + int(making.set.nodes.size() + making.set.relations.size());
    });
}

void PendingChanges::nodeAdded(const NodeChange& change)
{
    append(change);
}

void PendingChanges::nodeUpdated(NodeChange change, const NodeData& before, const NodeData& after)
{
    const auto difference = PropertyList::difference(before.properties, after.properties);
    if (difference.isEmpty() && before.name == after.name)
        return;
    NodeChange* known = changeOf(change.id);
    if (!known) {
        change.before = NodeValues{before.name, PropertyList()};
        change.after = change.before;
        append(change);
        known = changeOf(change.id);
    }
    if (before.name != after.name)
        current().renamed.insert(change.id);
    known->summary = change.summary;
    known->lookupKey = change.lookupKey;
    known->after->name = after.name;
    setProperties(*known, before.properties, difference);
}

void PendingChanges::nodeRemoved(const NodeID& id, ENodeType type)
{
    NodeChange* known = changeOf(id);
    if (known && known->isAdded()) {
        known->after.reset();
        current().at.remove(id);
        return;
    }
    NodeChange removal;
    removal.id = id;
    removal.type = type;
    removal.before = NodeValues(); // the store knows it
    if (known)
        *known = removal;
    else
        append(removal);
}

void PendingChanges::relationChanged(const RelationChange& change)
{
    Making& making = current();
    QVector<RelationChange>& relations = making.set.relations;
    // One that was added and goes again was never there; one that went and comes again has another place.
    const auto isOpposite = [&change](const RelationChange& other) {
        return other.isAdded && other.relation == change.relation;
    };
    if (change.isAdded) {
        making.newlyRelated.insert(change.relation.source);
    } else if (making.newlyRelated.contains(change.relation.source)) {
        const auto added = std::find_if(relations.begin(), relations.end(), isOpposite);
        if (added != relations.end()) {
            relations.erase(added);
            return;
        }
    }
    relations.append(change);
}

void PendingChanges::settingChanged(const SettingChange& change)
{
    QVector<SettingChange>& settings = current().set.settings;
    const auto known = std::find_if(settings.begin(), settings.end(), [&change](const SettingChange& other) {
        return other.key == change.key;
    });
    if (known == settings.end())
        settings.append(change);
    else
        known->after = change.after;
}

void PendingChanges::environmentsChanged(const EnvironmentsChange& change)
{
    std::optional<EnvironmentsChange>& environments = current().set.environments;
    if (environments)
        environments->after = change.after;
    else
        environments = change;
}

void PendingChanges::logged(const AuditRow& row)
{
    current().set.audit.append(row);
}

void PendingChanges::logged(const ProgramRow& row, int most)
{
    if (programLines.size() - m_storing.lines >= most)
        programLines.removeAt(m_storing.lines); // the store cannot be written, and would not keep it either
    programLines.append(row);
}

QVector<ChangeSet> PendingChanges::sets() const
{
    QVector<ChangeSet> result;
    for (const Making& making : m_making) {
        const ChangeSet set = setOf(making);
        if (!set.isEmpty())
            result.append(set);
    }
    return result;
}

ChangeSet PendingChanges::setOf(const Making& making)
{
    ChangeSet set = making.set;
    std::for_each(set.nodes.begin(), set.nodes.end(), simplify);
    set.nodes.erase(std::remove_if(set.nodes.begin(), set.nodes.end(), isNothing), set.nodes.end());
    if (!making.hasPurpose)
        set.cause.purpose = PurposeOf::changeSet(set);
    return set;
}

QVector<ChangeSet> PendingChanges::setsOf(const Cause& cause) const
{
    QVector<ChangeSet> result;
    for (const Making& making : m_making) {
        if (making.set.cause.id == cause.id)
            result.append(setOf(making));
    }
    return result;
}

void PendingChanges::drop(const Cause& cause)
{
    m_making.erase(std::remove_if(m_making.begin(), m_making.end(),
                                  [&cause](const Making& making) { return making.set.cause.id == cause.id; }),
                   m_making.end());
}

bool PendingChanges::adds(const NodeID& id) const
{
    bool result = false;
    for (const Making& making : m_making) {
        const auto found = making.at.constFind(id);
        if (found == making.at.constEnd())
            continue;
        const NodeChange& change = making.set.nodes.at(*found);
        result = change.isAdded() || (result && !change.isRemoved());
    }
    return result;
}

bool PendingChanges::removes(const NodeID& id) const
{
    bool result = false;
    for (const Making& making : m_making) {
        const auto found = making.at.constFind(id);
        if (found != making.at.constEnd())
            result = making.set.nodes.at(*found).isRemoved();
    }
    return result;
}

bool PendingChanges::changes(const NodeID& id, const QString& property) const
{
    return std::any_of(m_making.begin(), m_making.end(), [&](const Making& making) {
        const auto found = making.at.constFind(id);
        if (found == making.at.constEnd())
            return false;
        const NodeChange& change = making.set.nodes.at(*found);
        return !change.isUpdated() || change.before->properties.contains(property) ||
               change.after->properties.contains(property);
    });
}

void PendingChanges::drop(const NodeID& id)
{
    for (Making& making : m_making) {
        const auto found = making.at.constFind(id);
        if (found == making.at.constEnd())
            continue;
        NodeChange& change = making.set.nodes[*found];
        change.before.reset();
        change.after.reset();
        making.at.remove(id);
    }
}

void PendingChanges::applyTo(NodeData& data)
{
    for (Making& making : m_making) {
        const auto found = making.at.constFind(data.id);
        if (found == making.at.constEnd() || !making.set.nodes.at(*found).isUpdated())
            continue;
        NodeChange& change = making.set.nodes[*found];
        const bool renamed = making.renamed.contains(data.id);
        const PropertyList before = change.before->properties;
        const PropertyList after = change.after->properties;
        const NodeData stored = data;
        change.before = NodeValues{stored.name, PropertyList()};
        data.name = renamed ? change.after->name : stored.name;
        change.after = NodeValues{data.name, PropertyList()};
        for (const PropertyList* list : {&before, &after}) {
            for (const PropertyList::Entry& entry : *list) {
                const QVariant value = after.value(entry.name);
                setProperty(change, entry.name, stored.properties.value(entry.name), value);
                data.properties.set(entry.name, value);
            }
        }
    }
}

bool PendingChanges::amend(const NodeID& id, const PropertyList& before, const PropertyList& after)
{
    const auto last = std::find_if(m_making.rbegin(), m_making.rend(),
                                   [&id](const Making& making) { return making.at.contains(id); });
    const bool isBeingStored = m_making.rend() - last <= std::ptrdiff_t(m_storing.making);
    if (isBeingStored || last->set.nodes.at(last->at.value(id)).isRemoved())
        return false;
    setProperties(last->set.nodes[last->at.value(id)], before, PropertyList::difference(before, after));
    return true;
}

void PendingChanges::show(const NodeID& id, const PackedSummary& summary, const QString& lookupKey)
{
    for (Making& making : m_making) {
        const auto found = making.at.constFind(id);
        if (found == making.at.constEnd())
            continue;
        making.set.nodes[*found].summary = summary;
        making.set.nodes[*found].lookupKey = lookupKey;
    }
}

void PendingChanges::applyTo(QVector<Relation>& rows, const NodeID& source) const
{
    const auto drop = [&rows](const auto& matches) {
        rows.erase(std::remove_if(rows.begin(), rows.end(), matches), rows.end());
    };
    for (const Making& making : m_making) {
        for (const RelationChange& change : making.set.relations) {
            if (change.relation.source != source)
                continue;
            drop([&change](const Relation& row) { return row == change.relation; });
            if (change.isAdded)
                rows.append(change.relation);
        }
    }
    drop([this](const Relation& row) { return removes(row.source) || removes(row.destination); });
}

void PendingChanges::applyTo(Settings& settings, Environments::List& environments) const
{
    for (const Making& making : m_making) {
        for (const SettingChange& change : making.set.settings) {
            if (change.after)
                settings.insert(change.key, *change.after);
            else
                settings.remove(change.key);
        }
        if (making.set.environments)
            environments = making.set.environments->after;
    }
}

QStringList PendingChanges::nodes() const
{
    QStringList ids;
    for (const Making& making : m_making) {
        for (const NodeChange& change : making.set.nodes) {
            if (!isNothing(change))
                ids.append(change.id);
        }
        for (const RelationChange& change : making.set.relations)
            ids.append(change.relation.source);
    }
    ids.removeDuplicates();
    return ids;
}

} // namespace ko
