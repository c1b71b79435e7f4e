#include "model/ChangeSet.h"

#include <algorithm>
#include <utility>

namespace ko {

bool ChangeSet::hasChanges() const
{
    return !nodes.isEmpty() || !relations.isEmpty() || !settings.isEmpty() || environments;
}

ChangeSet ChangeSet::inverse() const
{
    ChangeSet result;
    result.nodes = nodes;
    std::reverse(result.nodes.begin(), result.nodes.end());
    for (NodeChange& change : result.nodes)
        std::swap(change.before, change.after);
    result.relations = relations;
    std::reverse(result.relations.begin(), result.relations.end());
    for (RelationChange& change : result.relations)
        change.isAdded = !change.isAdded;
    result.settings = settings;
    for (SettingChange& change : result.settings)
        std::swap(change.before, change.after);
    if (environments)
        result.environments = EnvironmentsChange{environments->after, environments->before};
    return result;
}

} // namespace ko
