#ifndef KO_RELATIONINDEX_H
#define KO_RELATIONINDEX_H

#include "model/Relation.h"

#include <QHash>
#include <QVector>

#include <set>
#include <tuple>

namespace ko {

/// The relations between nodes, found from either end.
class RelationIndex
{
public:
    /// False if it is there already.
    bool add(const Relation& relation);
    /// False if it is not there.
    bool remove(const Relation& relation);
    void removeNode(const NodeID& id);

    /// Makes \a relations, all of which start at \a source, the only ones that do. Returns the
    /// destinations of those that came or went.
    QStringList replaceFrom(const NodeID& source, const QVector<Relation>& relations);

    QStringList destinations(const NodeID& source, ENodeRelationType type) const;
    bool isDestination(const NodeID& id, ENodeRelationType type) const;
    bool contains(const Relation& relation) const;
    QVector<Relation> relationsFrom(const NodeID& source) const;
    /// At either end.
    QVector<Relation> relationsOf(const NodeID& id) const;
    QStringList sources() const { return m_out.keys(); }

private:
    struct Link
    {
        NodeID other;
        ENodeRelationType type;

        bool operator==(const Link& link) const { return type == link.type && other == link.other; }
    };
    typedef QVector<Link> Links;
    typedef std::tuple<NodeID, int, NodeID> Incoming; ///< destination, type, source

    QVector<Relation> relationsTo(const NodeID& destination) const;

    QHash<NodeID, Links> m_out;
    // All cameras may record to one folder, so this end is searched, not walked.
    std::set<Incoming> m_in;
};

} // namespace ko

#endif
