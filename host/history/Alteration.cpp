#include "history/Alteration.h"

#include "store/ChangeCoding.h"

namespace ko {

namespace {

QVariant settingValue(const std::optional<QString>& text)
{
    return text ? QVariant(text->isNull() ? QString::fromLatin1("") : *text) : QVariant();
}

Alteration begun(const ChangeSet& set, Alteration::Kind kind)
{
    Alteration alteration;
    alteration.changeSet = set.number;
    alteration.kind = kind;
    return alteration;
}

/// Of a node that came or went: one, of one that was edited: one for each property.
void append(QVector<Alteration>* list, const ChangeSet& set, const NodeChange& change)
{
    Alteration alteration = begun(set, Alteration::Node);
    alteration.node = change.id;
    alteration.type = change.type;
    alteration.name = (change.after ? change.after : change.before)->name;
    if (!change.isUpdated()) {
        alteration.place = change.place;
        alteration.before = change.before ? QVariant(true) : QVariant();
        alteration.after = change.after ? QVariant(true) : QVariant();
        alteration.properties = (change.after ? change.after : change.before)->properties;
        list->append(alteration);
        return;
    }
    if (change.before->name != change.after->name) {
        alteration.kind = Alteration::Name;
        alteration.before = settingValue(change.before->name);
        alteration.after = settingValue(change.after->name);
        list->append(alteration);
    }
    alteration.kind = Alteration::Property;
    const auto properties = PropertyList::difference(change.before->properties, change.after->properties);
    for (const PropertyList::Entry& entry : properties) {
        alteration.key = entry.name;
        alteration.before = change.before->properties.value(entry.name);
        alteration.after = entry.value;
        list->append(alteration);
    }
}

} // namespace

QString Alteration::thing() const
{
    const QChar separator(0x1f);
    QString text = QString::number(kind) + separator + node + separator + key;
    if (kind == RelationTo)
        text += relation.destination + separator + QString::number(relation.type);
    return text;
}

namespace Alterations {

QVector<Alteration> of(const ChangeSet& set)
{
    QVector<Alteration> list;
    for (const NodeChange& change : set.nodes) {
        if (change.before || change.after)
            append(&list, set, change);
    }
    for (const RelationChange& change : set.relations) {
        Alteration alteration = begun(set, Alteration::RelationTo);
        alteration.node = change.relation.source;
        alteration.relation = change.relation;
        alteration.place = change.place;
        (change.isAdded ? alteration.after : alteration.before) = true;
        list.append(alteration);
    }
    for (const SettingChange& change : set.settings) {
        Alteration alteration = begun(set, Alteration::Setting);
        alteration.key = change.key;
        alteration.before = settingValue(change.before);
        alteration.after = settingValue(change.after);
        list.append(alteration);
    }
    if (set.environments) {
        Alteration alteration = begun(set, Alteration::EnvironmentList);
        alteration.before = value(set.environments->before);
        alteration.after = value(set.environments->after);
        list.append(alteration);
    }
    return list;
}

QVector<Alteration> selected(const QVector<Alteration>& all, const QSet<QString>& things)
{
    QSet<NodeID> whole;
    for (const Alteration& alteration : all) {
        if (alteration.kind == Alteration::Node && things.contains(alteration.thing()))
            whole.insert(alteration.node);
    }
    QVector<Alteration> selected;
    for (const Alteration& alteration : all) {
        const Relation& relation = alteration.relation;
        const bool follows = alteration.kind == Alteration::RelationTo &&
                             (whole.contains(relation.source) || whole.contains(relation.destination));
        if (follows || things.contains(alteration.thing()))
            selected.append(alteration);
    }
    return selected;
}

PresentState::Wanted wanted(const QVector<Alteration>& alterations)
{
    PresentState::Wanted wanted;
    for (const Alteration& alteration : alterations) {
        if (alteration.kind == Alteration::RelationTo) {
            wanted.sources.insert(alteration.relation.source);
            wanted.ends.insert(alteration.relation.source);
            wanted.ends.insert(alteration.relation.destination);
        } else if (!alteration.node.isEmpty()) {
            wanted.values.insert(alteration.node);
            if (alteration.kind == Alteration::Node)
                wanted.related.insert(alteration.node);
        }
    }
    return wanted;
}

QVariant value(const Environments::List& list)
{
    return ChangeCoding::text(list);
}

Environments::List environments(const QVariant& value)
{
    return ChangeCoding::environments(value.toString());
}

bool isSame(const QVariant& a, const QVariant& b)
{
    return a.isValid() == b.isValid() && (!a.isValid() || PropertyList::sameValue(a, b));
}

} // namespace Alterations

} // namespace ko
