#include "history/PutBackState.h"

#include <algorithm>

namespace ko {

namespace {

/// What came by some change set, and is to go.
struct Arrivals
{
    QHash<NodeID, int> came; ///< to the number of the alteration
    QSet<NodeID> going;      ///< of these
    RelationIndex joined;    ///< by the same change set

    /// Whether \a relation may go: it came with the change set, and so did no node that stays.
    bool mayGo(const Relation& relation) const
    {
        const auto stays = [this](const NodeID& id) { return came.contains(id) && !going.contains(id); };
        return !stays(relation.source) && !stays(relation.destination) && joined.contains(relation);
    }
};

} // namespace

PutBackState::PutBackState(const PresentState& now, const QStringList& noted)
    : m_nodes(now.nodes)
    , m_ends(now.ends)
    , m_settings(now.settings)
    , m_environments(Alterations::value(now.environments))
    , m_noted(noted)
{
    for (const Relation& relation : now.relations)
        m_relations.add(relation);
}

QVariant PutBackState::value(const Alteration& of) const
{
    switch (of.kind) {
    case Alteration::Node:
        return hasNode(of.node) ? QVariant(true) : QVariant();
    case Alteration::Name:
        return hasNode(of.node) ? QVariant(node(of.node).name) : QVariant();
    case Alteration::Property:
        return hasNode(of.node) ? node(of.node).properties.value(of.key) : QVariant();
    case Alteration::RelationTo:
        return m_relations.contains(of.relation) ? QVariant(true) : QVariant();
    case Alteration::Setting: {
        const auto found = m_settings.constFind(of.key);
        return found == m_settings.constEnd() ? QVariant() : QVariant(*found);
    }
    case Alteration::EnvironmentList:
        return m_environments;
    }
    return QVariant();
}

void PutBackState::setValue(const Alteration& of, const QVariant& value)
{
    if (of.kind == Alteration::Name)
        m_nodes[of.node].name = value.toString();
    else if (of.kind == Alteration::Property)
        m_nodes[of.node].properties.set(of.key, value);
    else if (of.kind == Alteration::EnvironmentList)
        m_environments = value;
    else if (value.isValid())
        m_settings.insert(of.key, value.toString());
    else
        m_settings.remove(of.key);
}

/// Backwards; but a relation can only come back to nodes that are there, and what came can only go once it is
/// as it came.
void PutBackState::takeBack(const QVector<Alteration>& alterations)
{
    const int first = m_taken;
    const int count = int(alterations.size());
    m_taken += count;
    for (int i = count - 1; i >= 0; --i) {
        const Alteration& alteration = alterations.at(i);
        if (alteration.kind == Alteration::Node && alteration.isRemoval())
            bringBack(first + i, alteration);
        else if (alteration.kind != Alteration::Node && alteration.kind != Alteration::RelationTo)
            setBack(first + i, alteration);
    }
    const QSet<NodeID> came = takeOutNodes(first, alterations);
    for (int i = count - 1; i >= 0; --i) {
        const Alteration& alteration = alterations.at(i);
        if (alteration.kind == Alteration::RelationTo && alteration.isAddition() &&
            !came.contains(alteration.relation.source) && !came.contains(alteration.relation.destination))
            takeOutRelation(first + i, alteration);
    }
    for (int i = 0; i < count; ++i) {
        if (alterations.at(i).kind == Alteration::RelationTo && alterations.at(i).isRemoval())
            bringBackRelation(first + i, alterations.at(i));
    }
}

void PutBackState::bringBack(int index, const Alteration& alteration)
{
    if (hasNode(alteration.node))
        return refuse(index, PutBackLine::AsBefore);
    NodeData data;
    data.id = alteration.node;
    data.type = alteration.type;
    data.name = alteration.name;
    data.properties = alteration.properties;
    m_nodes.insert(data.id, data);
    m_places.insert(alteration.thing(), alteration.place);
}

void PutBackState::setBack(int index, const Alteration& alteration)
{
    if (!alteration.node.isEmpty() && !hasNode(alteration.node))
        return refuse(index, PutBackLine::Removed);
    const QVariant now = value(alteration);
    if (Alterations::isSame(now, alteration.after))
        setValue(alteration, alteration.before);
    else
        refuse(index,
               Alterations::isSame(now, alteration.before) ? PutBackLine::AsBefore : PutBackLine::Changed);
}

/// Returns the nodes that came by these, whether they go or not: their relations go or stay with them. A
/// node stays when something else is related to it; then what is related to it by the same change set
/// stays, too, and so on.
QSet<NodeID> PutBackState::takeOutNodes(int first, const QVector<Alteration>& alterations)
{
    Arrivals arrivals;
    for (int i = 0; i < alterations.size(); ++i) {
        const Alteration& alteration = alterations.at(i);
        if (alteration.kind == Alteration::RelationTo && alteration.isAddition())
            arrivals.joined.add(alteration.relation);
        if (alteration.kind != Alteration::Node || !alteration.isAddition())
            continue;
        arrivals.came.insert(alteration.node, first + i);
        if (!hasNode(alteration.node))
            refuse(first + i, PutBackLine::AsBefore);
        else if (!isAsAdded(alteration))
            refuse(first + i, PutBackLine::Changed);
        else
            arrivals.going.insert(alteration.node);
    }
    bool isSettled = false;
    while (!isSettled) {
        isSettled = true;
        const QSet<NodeID> going = arrivals.going;
        for (const NodeID& id : going) {
            const QVector<Relation> relations = m_relations.relationsOf(id);
            if (std::all_of(relations.begin(), relations.end(),
                            [&](const Relation& relation) { return arrivals.mayGo(relation); }))
                continue;
            arrivals.going.remove(id);
            refuse(arrivals.came.value(id), PutBackLine::InUse);
            isSettled = false;
        }
    }
    for (const NodeID& id : std::as_const(arrivals.going)) {
        m_relations.removeNode(id);
        m_nodes.remove(id);
        m_ends.remove(id);
    }
    const QList<NodeID> came = arrivals.came.keys();
    return QSet<NodeID>(came.begin(), came.end());
}

bool PutBackState::isAsAdded(const Alteration& alteration) const
{
    const NodeData& data = node(alteration.node);
    const auto differences = PropertyList::difference(alteration.properties, data.properties);
    return data.name == alteration.name &&
           std::all_of(differences.begin(), differences.end(),
                       [this](const PropertyList::Entry& entry) { return m_noted.contains(entry.name); });
}

void PutBackState::takeOutRelation(int index, const Alteration& alteration)
{
    if (!m_relations.remove(alteration.relation))
        refuse(index, PutBackLine::AsBefore);
}

void PutBackState::bringBackRelation(int index, const Alteration& alteration)
{
    const Relation& relation = alteration.relation;
    if (!isThere(relation.source) || !isThere(relation.destination))
        refuse(index, PutBackLine::Removed);
    else if (!m_relations.add(relation))
        refuse(index, PutBackLine::AsBefore);
    else
        m_places.insert(alteration.thing(), alteration.place);
}

} // namespace ko
