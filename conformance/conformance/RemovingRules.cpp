#include "conformance/Trial.h"

namespace ko {
namespace conformance {

namespace {

void announced(Trial& trial)
{
    const QString id = trial.add();
    const QString other = trial.add();
    const kom::smart<const Node> handle = trial.db().node(id);
    trial.heard();
    bool wasThere = true;
    trial.listener = [&](const QString&, const QString& gone) { wasThere = !trial.db().node(gone).null(); };
    trial.db().removeNode(id);
    trial.expectEqual(trial.heard(), QStringList(QLatin1String("removed ") + id), "what is announced");
    trial.expect(!wasThere, QLatin1String("the node was still there when it was announced"));
    trial.expectEqual(trial.db().nodeIdList(AllNodeTypes), QStringList(other), "the list of all");
    if (trial.expect(!handle.null(), QLatin1String("the node could not be read")))
        trial.expectEqual(handle->name(), QString::fromLatin1("Node"), "the name in a handle of before");
}

void again(Trial& trial)
{
    const QString id = trial.add();
    trial.db().removeNode(id);
    trial.heard();
    trial.db().removeNode(id);
    trial.expectEqual(trial.heard(), QStringList(), "what is announced");
}

void withRelations(Trial& trial)
{
    const QString from = trial.add();
    const QString middle = trial.add();
    const QString to = trial.add();
    NodeDB& db = trial.db();
    db.addNodeRelation(from, middle, RecordingFolderRelation);
    db.addNodeRelation(middle, to, RecordingFolderRelation);
    db.removeNode(middle);
    trial.expectEqual(db.relatedNodes(from, RecordingFolderRelation), QStringList(),
                      "what leads to the node");
    trial.expectEqual(db.relatedNodes(middle, RecordingFolderRelation), QStringList(),
                      "what leads from the node");
    trial.expect(!db.isDestinationOfNodeRelation(to, RecordingFolderRelation),
                 QLatin1String("a node is still the destination of one that is gone"));
}

} // namespace

QVector<TriedRule> removingRules()
{
    return {
        {{"removing.announced", "removeNode() emits nodeRemoved() once, when the node is gone"}, announced},
        {{"removing.again", "what is gone is not removed again"}, again},
        {{"removing.relations", "the relations of a node go with it, in both directions"}, withRelations},
    };
}

} // namespace conformance
} // namespace ko
