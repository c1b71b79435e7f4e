#include "database/PendingChanges.h"

#include <algorithm>

namespace ko {

bool PendingChanges::hasChanges() const
{
    return !nodes.isEmpty() || !relations.isEmpty() || !settings.isEmpty() || environments ||
           !audit.isEmpty();
}

void PendingChanges::nodeInserted(const NodeID& id)
{
    order.append(id);
    nodes[id].kind = Change::Insert;
}

void PendingChanges::nodeUpdated(const NodeID& id, const QVector<PropertyList::Entry>& difference,
                                 bool renamed)
{
    auto found = nodes.find(id);
    if (found == nodes.end()) {
        order.append(id);
        found = nodes.insert(id, Change());
    }
    if (found->kind != Change::Update)
        return; // a node to be inserted is written as it is then
    found->renamed = found->renamed || renamed;
    for (const PropertyList::Entry& entry : difference)
        found->properties.insert(entry.name, entry.value);
}

void PendingChanges::nodeRemoved(const NodeID& id)
{
    order.append(id);
    nodes[id] = Change();
    nodes[id].kind = Change::Remove;
}

const PendingChanges::Change* PendingChanges::updateOf(const NodeID& id) const
{
    const auto found = nodes.find(id);
    return found == nodes.end() || found->kind != Change::Update ? nullptr : &*found;
}

bool PendingChanges::inserts(const NodeID& id) const
{
    const auto found = nodes.find(id);
    return found != nodes.end() && found->kind == Change::Insert;
}

bool PendingChanges::removes(const NodeID& id) const
{
    const auto found = nodes.find(id);
    return found != nodes.end() && found->kind == Change::Remove;
}

void PendingChanges::applyTo(NodeData& data, const QString& name) const
{
    const Change* update = updateOf(data.id);
    if (!update)
        return;
    if (update->renamed)
        data.name = name;
    for (auto it = update->properties.begin(); it != update->properties.end(); ++it)
        data.properties.set(it.key(), it.value());
}

void PendingChanges::applyTo(QVector<RelationRow>& rows, const NodeID& source) const
{
    const auto drop = [&rows](const auto& matches) {
        rows.erase(std::remove_if(rows.begin(), rows.end(), matches), rows.end());
    };
    for (const RelationChange& change : relations) {
        if (change.relation.source != source)
            continue;
        drop([&change](const RelationRow& row) { return row == change.relation; });
        if (change.add)
            rows.append(change.relation);
    }
    drop([this](const RelationRow& row) { return removes(row.source) || removes(row.destination); });
}

} // namespace ko
