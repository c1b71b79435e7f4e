#include "history/Moment.h"

#include "database/RelationIndex.h"
#include "devices/KnownDevice.h"
#include "drivers/NodeTypes.h"
#include "history/PutBack.h"

#include <algorithm>

namespace ko {

namespace {

typedef QHash<NodeID, QVector<PutBackLine>> LinesOfNodes;

/// As it was before what \a lines tell.
NodeData before(NodeData node, const QVector<PutBackLine>& lines)
{
    for (const PutBackLine& line : lines) {
        if (line.what.kind == Alteration::Name)
            node.name = line.what.before.toString();
        else if (line.what.kind == Alteration::Property)
            node.properties.set(line.what.key, line.what.before);
    }
    return node;
}

const PutBackLine* nodeLine(const QVector<PutBackLine>& lines)
{
    const auto found = std::find_if(lines.begin(), lines.end(), [](const PutBackLine& line) {
        return line.what.kind == Alteration::Node;
    });
    return found == lines.end() ? nullptr : &*found;
}

MomentNode momentNode(const NodeSummary& node, const QVector<PutBackLine>& lines, const PresentState& now)
{
    if (nodeLine(lines)) // it is there now, so it was not
        return {node, MomentNode::Added};
    const auto data = now.nodes.constFind(node.id);
    const bool hasValues = data != now.nodes.constEnd(); // else only its relations differ
    return {hasValues ? NodeTypes::summaryOf(before(*data, lines)) : node, MomentNode::Changed};
}

NodeData removedNode(const Alteration& what)
{
    NodeData data;
    data.id = what.node;
    data.type = what.type;
    data.name = what.name;
    data.properties = what.properties;
    return data;
}

/// The values of one node then and now, as alterations.
class Details
{
public:
    Details(const NodeID& id, const PutBack& putBack, const PresentState& now)
    {
        for (const PutBackLine& line : putBack.lines) {
            if (line.state == PutBackLine::Possible && line.what.node == id)
                m_lines.append(line);
        }
        const auto found = now.nodes.constFind(id);
        m_isThere = found != now.nodes.constEnd();
        const PutBackLine* whole = nodeLine(m_lines);
        m_wasThere = whole ? whole->what.before.isValid() : m_isThere;
        m_now = m_isThere ? *found : whole ? removedNode(whole->what) : NodeData();
        m_then = whole ? m_now : before(m_now, m_lines);
    }

    QVector<Alteration> values() const
    {
        QVector<Alteration> values = {value(Alteration::Name, QString(), m_then.name, m_now.name)};
        PropertyList all = m_now.properties;
        for (const PropertyList::Entry& entry : m_then.properties)
            all.set(entry.name, entry.value);
        for (const PropertyList::Entry& entry : std::as_const(all))
            values.append(value(Alteration::Property, entry.name, m_then.properties.value(entry.name),
                                m_now.properties.value(entry.name)));
        return values;
    }

private:
    Alteration value(Alteration::Kind kind, const QString& key, const QVariant& then,
                     const QVariant& now) const
    {
        Alteration value;
        value.kind = kind;
        value.node = m_now.id;
        value.type = m_now.type;
        value.name = m_then.name;
        value.key = key;
        value.before = m_wasThere ? then : QVariant();
        value.after = m_isThere ? now : QVariant();
        return value;
    }

    QVector<PutBackLine> m_lines;
    NodeData m_now;
    NodeData m_then;
    bool m_isThere = false;
    bool m_wasThere = false;
};

Alteration linkOf(const Relation& relation, bool was, bool is)
{
    Alteration link;
    link.kind = Alteration::RelationTo;
    link.node = relation.source;
    link.relation = relation;
    link.before = was ? QVariant(true) : QVariant();
    link.after = is ? QVariant(true) : QVariant();
    return link;
}

/// The relations then and now, as alterations; those that came or went with one of their nodes, too.
QVector<Alteration> relations(const PutBack& putBack, const PresentState& now)
{
    QVector<Alteration> list;
    const ChangeSet back = putBack.changeSet();
    QSet<NodeID> came; // since
    for (const NodeChange& change : back.nodes) {
        if (change.isRemoved())
            came.insert(change.id);
    }
    RelationIndex going;
    for (const RelationChange& change : back.relations) {
        if (change.isAdded)
            list.append(linkOf(change.relation, true, false));
        else
            going.add(change.relation);
    }
    RelationIndex seen; // a relation may be given twice, for either end
    for (const Relation& relation : now.relations) {
        if (seen.add(relation))
            list.append(linkOf(relation,
                               !going.contains(relation) && !came.contains(relation.source) &&
                                   !came.contains(relation.destination),
                               true));
    }
    return list;
}

} // namespace

Moment::Moment(const QVector<Alteration>& since, const PresentState& now, const QVector<NodeSummary>& current)
{
    const PutBack putBack(since, now, KnownDevice::keys());
    LinesOfNodes lines;
    QVector<NodeSummary> gone;
    for (const PutBackLine& line : putBack.lines) {
        const Alteration& what = line.what;
        if (line.state != PutBackLine::Possible)
            unknown += line.state == PutBackLine::AsBefore ? 0 : 1;
        else if (what.kind == Alteration::Setting || what.kind == Alteration::EnvironmentList)
            others.append(what);
        else
            lines[what.node].append(line);
        if (line.state == PutBackLine::Possible && what.kind == Alteration::Node && what.before.isValid())
            gone.append(NodeTypes::summaryOf(removedNode(what)));
    }
    QSet<NodeID> related; // to others than then
    const QVector<Alteration> links = relations(putBack, now);
    for (const Alteration& link : links) {
        if (link.isAddition() || link.isRemoval())
            related.insert(link.node);
    }
    nodes.reserve(current.size() + gone.size());
    for (const NodeSummary& node : current) {
        const bool isSame = !lines.contains(node.id) && !related.contains(node.id);
        nodes.append(isSame ? MomentNode{node, MomentNode::Same}
                            : momentNode(node, lines.value(node.id), now));
    }
    for (const NodeSummary& node : std::as_const(gone))
        nodes.append({node, MomentNode::Removed});
}

QVector<Alteration> Moment::detailsOf(const NodeID& id, const QVector<Alteration>& since,
                                      const PresentState& now)
{
    QVector<Alteration> values;
    RelationIndex then; // they came and went as they are noted, whatever became of the nodes at their ends
    for (const Relation& relation : now.relations)
        then.add(relation);
    for (auto alteration = since.crbegin(); alteration != since.crend(); ++alteration) {
        if (alteration->node != id)
            continue;
        if (alteration->kind != Alteration::RelationTo)
            values.prepend(*alteration);
        else if (alteration->isAddition())
            then.remove(alteration->relation);
        else
            then.add(alteration->relation);
    }
    PresentState alone = now;
    alone.relations.clear(); // which keep no node
    QVector<Alteration> details = Details(id, PutBack(values, alone, KnownDevice::keys()), alone).values();
    RelationIndex today;
    for (const Relation& relation : now.relations) {
        if (relation.source == id && today.add(relation))
            details.append(linkOf(relation, then.contains(relation), true));
    }
    const QVector<Relation> was = then.relationsFrom(id);
    for (const Relation& relation : was) {
        if (!today.contains(relation))
            details.append(linkOf(relation, true, false));
    }
    return details;
}

} // namespace ko
