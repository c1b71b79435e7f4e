#include "database/RelationIndex.h"

#include <limits>

namespace ko {

bool RelationIndex::add(const Relation& relation)
{
    Links& out = m_out[relation.source];
    const Link link{relation.destination, relation.type};
    if (out.contains(link))
        return false;
    out.append(link);
    m_in.emplace(relation.destination, relation.type, relation.source);
    return true;
}

bool RelationIndex::remove(const Relation& relation)
{
    const auto found = m_out.find(relation.source);
    if (found == m_out.end() || !found->removeOne(Link{relation.destination, relation.type}))
        return false;
    if (found->isEmpty())
        m_out.erase(found);
    m_in.erase(Incoming(relation.destination, relation.type, relation.source));
    return true;
}

void RelationIndex::removeNode(const NodeID& id)
{
    replaceFrom(id, QVector<Relation>());
    const QVector<Relation> incoming = relationsTo(id);
    for (const Relation& relation : incoming)
        remove(relation);
}

QVector<Relation> RelationIndex::relationsTo(const NodeID& destination) const
{
    QVector<Relation> result;
    const int least = std::numeric_limits<int>::min();
    for (auto it = m_in.lower_bound(Incoming(destination, least, NodeID()));
         it != m_in.end() && std::get<0>(*it) == destination; ++it)
        result.append({std::get<2>(*it), destination, ENodeRelationType(std::get<1>(*it))});
    return result;
}

bool RelationIndex::contains(const Relation& relation) const
{
    const auto found = m_out.constFind(relation.source);
    return found != m_out.constEnd() && found->contains(Link{relation.destination, relation.type});
}

QVector<Relation> RelationIndex::relationsFrom(const NodeID& source) const
{
    QVector<Relation> result;
    const Links links = m_out.value(source);
    for (const Link& link : links)
        result.append({source, link.other, link.type});
    return result;
}

QVector<Relation> RelationIndex::relationsOf(const NodeID& id) const
{
    return relationsFrom(id) + relationsTo(id);
}

QStringList RelationIndex::replaceFrom(const NodeID& source, const QVector<Relation>& relations)
{
    const Links before = m_out.value(source);
    for (const Link& link : before)
        remove({source, link.other, link.type});
    QStringList changed;
    for (const Relation& relation : relations) {
        add(relation);
        if (!before.contains(Link{relation.destination, relation.type}))
            changed.append(relation.destination);
    }
    const Links after = m_out.value(source);
    for (const Link& link : before) {
        if (!after.contains(link))
            changed.append(link.other);
    }
    return changed;
}

QStringList RelationIndex::destinations(const NodeID& source, ENodeRelationType type) const
{
    QStringList result;
    const Links links = m_out.value(source);
    for (const Link& link : links) {
        if (link.type == type)
            result.append(link.other);
    }
    return result;
}

bool RelationIndex::isDestination(const NodeID& id, ENodeRelationType type) const
{
    const auto found = m_in.lower_bound(Incoming(id, type, NodeID()));
    return found != m_in.end() && std::get<0>(*found) == id && std::get<1>(*found) == type;
}

} // namespace ko
