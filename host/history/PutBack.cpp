#include "history/PutBack.h"

#include "history/PutBackState.h"

#include <algorithm>

namespace ko {

namespace {

/// The lines of what differs between now and then.
class Differences
{
public:
    Differences(const PutBackState& now, const PutBackState& then)
        : m_now(now)
        , m_then(then)
    {
    }

    bool comesBack(const NodeID& id) const { return !m_now.isThere(id) && m_then.isThere(id); }

    /// Of the thing that \a alteration is about; none if it was done.
    QVector<PutBackLine> linesOf(const Alteration& alteration)
    {
        if (m_done.contains(alteration.thing()))
            return {};
        m_done.insert(alteration.thing());
        if (alteration.kind == Alteration::Node)
            return linesOfNode(alteration);
        if (alteration.kind == Alteration::RelationTo)
            return isPartOfNode(alteration.relation) ? QVector<PutBackLine>() : lineOf(alteration);
        const NodeID& node = alteration.node;
        const bool isOfNode = !node.isEmpty() && !(m_now.hasNode(node) && m_then.hasNode(node));
        return isOfNode ? QVector<PutBackLine>() : lineOf(alteration);
    }

private:
    bool isPartOfNode(const Relation& relation) const
    {
        return m_now.isThere(relation.source) != m_then.isThere(relation.source) ||
               m_now.isThere(relation.destination) != m_then.isThere(relation.destination);
    }

    QVector<PutBackLine> lineOf(const Alteration& alteration) const
    {
        PutBackLine line;
        line.what = alteration;
        line.what.before = m_then.value(alteration);
        line.what.after = line.now = m_now.value(alteration);
        line.what.place = m_then.place(alteration);
        if (Alterations::isSame(line.what.before, line.now))
            return {};
        return {line};
    }

    QVector<PutBackLine> linesOfNode(const Alteration& alteration)
    {
        const NodeID& id = alteration.node;
        QVector<PutBackLine> lines = lineOf(alteration);
        for (PutBackLine& line : lines) {
            const NodeData& data = (m_then.hasNode(id) ? m_then : m_now).node(id);
            line.what.type = data.type;
            line.what.name = data.name;
            line.what.properties = data.properties;
        }
        return lines.isEmpty() && m_now.hasNode(id) ? linesOfValues(alteration) : lines;
    }

    /// Of a node that went and came again otherwise.
    QVector<PutBackLine> linesOfValues(Alteration alteration)
    {
        alteration.kind = Alteration::Name;
        QVector<PutBackLine> lines = linesOf(alteration);
        alteration.kind = Alteration::Property;
        const auto properties = PropertyList::difference(m_now.node(alteration.node).properties,
                                                         m_then.node(alteration.node).properties);
        for (const PropertyList::Entry& entry : properties) {
            alteration.key = entry.name;
            lines += linesOf(alteration);
        }
        return lines;
    }

    const PutBackState& m_now;
    const PutBackState& m_then;
    QSet<QString> m_done;
};

NodeChange changeOfNode(const Alteration& what)
{
    NodeChange change;
    change.id = what.node;
    change.type = what.type;
    change.place = what.place;
    const NodeValues values{what.name, what.properties};
    if (what.before.isValid())
        change.after = values;
    else
        change.before = values;
    return change;
}

/// Node by node, however many of its properties change.
class NodeChanges
{
public:
    void add(const Alteration& what)
    {
        const auto known = m_at.constFind(what.node);
        NodeChange* change = known == m_at.constEnd() ? nullptr : &m_changes[*known];
        if (!change) {
            m_at.insert(what.node, int(m_changes.size()));
            m_changes.append(NodeChange());
            change = &m_changes.last();
            change->id = what.node;
            change->type = what.type;
            change->before = change->after = NodeValues();
        }
        if (what.kind == Alteration::Name) {
            change->before->name = what.after.toString();
            change->after->name = what.before.toString();
        } else {
            change->before->properties.set(what.key, what.after);
            change->after->properties.set(what.key, what.before);
        }
    }

    const QVector<NodeChange>& changes() const { return m_changes; }

private:
    QVector<NodeChange> m_changes;
    QHash<NodeID, int> m_at;
};

std::optional<QString> settingOf(const QVariant& value)
{
    return value.isValid() ? std::make_optional(value.toString()) : std::nullopt;
}

void add(ChangeSet* set, const Alteration& what)
{
    if (what.kind == Alteration::Node)
        set->nodes.append(changeOfNode(what));
    else if (what.kind == Alteration::RelationTo)
        set->relations.append({what.relation, what.before.isValid(), what.place});
    else if (what.kind == Alteration::Setting)
        set->settings.append({what.key, settingOf(what.after), settingOf(what.before)});
    else if (what.kind == Alteration::EnvironmentList)
        set->environments =
            EnvironmentsChange{Alterations::environments(what.after), Alterations::environments(what.before)};
}

} // namespace

PutBack::PutBack(const QVector<Alteration>& alterations, const PresentState& now, const QStringList& noted)
    : m_alterations(alterations)
{
    QVector<Alteration> sorted = alterations;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.changeSet > b.changeSet; });
    const PutBackState present(now, noted);
    PutBackState then(now, noted);
    for (auto begin = sorted.cbegin(); begin != sorted.cend();) {
        const auto end = std::find_if(
            begin, sorted.cend(), [begin](const auto& other) { return other.changeSet != begin->changeSet; });
        then.takeBack(QVector<Alteration>(begin, end));
        begin = end;
    }
    Differences differences(present, then);
    for (int i = 0; i < sorted.size(); ++i) {
        const Alteration& alteration = sorted.at(i);
        const auto refused = then.refused().constFind(i);
        if (refused != then.refused().constEnd())
            lines.append({alteration, present.value(alteration), *refused, false});
        else
            lines += differences.linesOf(alteration);
        const Relation& relation = alteration.relation;
        if (alteration.kind == Alteration::RelationTo && alteration.isRemoval() &&
            then.value(alteration).isValid() &&
            (differences.comesBack(relation.source) || differences.comesBack(relation.destination)))
            m_followers.append({relation, true, then.place(alteration)});
    }
}

QVector<PutBackLine> PutBack::chosen() const
{
    QVector<PutBackLine> chosen;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(chosen), [](const PutBackLine& line) {
        return line.isTicked && line.state == PutBackLine::Possible;
    });
    return chosen;
}

ChangeSet PutBack::changeSet() const
{
    ChangeSet set;
    NodeChanges edits;
    QSet<NodeID> left; // where they are
    for (const PutBackLine& line : lines) {
        const Alteration& what = line.what;
        if (line.state != PutBackLine::Possible)
            continue;
        if (!line.isTicked)
            left += what.kind == Alteration::Node ? QSet<NodeID>{what.node} : QSet<NodeID>();
        else if (what.kind == Alteration::Name || what.kind == Alteration::Property)
            edits.add(what);
        else
            add(&set, what);
    }
    set.nodes += edits.changes();
    for (const RelationChange& change : m_followers) {
        if (!left.contains(change.relation.source) && !left.contains(change.relation.destination))
            set.relations.append(change);
    }
    return set;
}

} // namespace ko
