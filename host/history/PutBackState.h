#ifndef KO_PUTBACKSTATE_H
#define KO_PUTBACKSTATE_H

#include "database/RelationIndex.h"
#include "history/PutBack.h"

namespace ko {

/// What there would be while change sets are taken back, the newest first. What cannot be taken back is noted
/// and left out.
class PutBackState
{
public:
    PutBackState(const PresentState& now, const QStringList& noted);

    /// All of one change set that is to be taken back.
    void takeBack(const QVector<Alteration>& alterations);

    /// Of what could not be taken back, by its place among all that were given: why.
    const QHash<int, PutBackLine::State>& refused() const { return m_refused; }

    bool hasNode(const NodeID& id) const { return m_nodes.contains(id); }
    const NodeData& node(const NodeID& id) const { return *m_nodes.constFind(id); }
    /// Also one of which only that was asked.
    bool isThere(const NodeID& id) const { return hasNode(id) || m_ends.contains(id); }

    /// What a thing is, see Alteration; of all but nodes.
    QVariant value(const Alteration& of) const;

    /// Where a node or a relation was that comes back.
    qint64 place(const Alteration& of) const { return m_places.value(of.thing()); }

private:
    void refuse(int index, PutBackLine::State state) { m_refused.insert(index, state); }
    void bringBack(int index, const Alteration& alteration);
    void setBack(int index, const Alteration& alteration);
    void bringBackRelation(int index, const Alteration& alteration);
    void takeOutRelation(int index, const Alteration& alteration);
    QSet<NodeID> takeOutNodes(int first, const QVector<Alteration>& alterations);
    bool isAsAdded(const Alteration& alteration) const;
    void setValue(const Alteration& of, const QVariant& value);

    QHash<NodeID, NodeData> m_nodes;
    QSet<NodeID> m_ends;
    RelationIndex m_relations;
    Settings m_settings;
    QVariant m_environments;
    const QStringList m_noted;
    int m_taken = 0; ///< this many alterations
    QHash<int, PutBackLine::State> m_refused;
    QHash<QString, qint64> m_places;
};

} // namespace ko

#endif
