#include "conformance/Trial.h"

namespace ko {
namespace conformance {

namespace {

const ENodeRelationType kind = RecordingFolderRelation;

void directed(Trial& trial)
{
    const QString from = trial.add();
    const QString to = trial.add();
    NodeDB& db = trial.db();
    trial.expectEqual(db.relatedNodes(from, kind), QStringList(), "what is related at first");
    db.addNodeRelation(from, to, kind);
    trial.expectEqual(db.relatedNodes(from, kind), QStringList(to), "what is related");
    trial.expectEqual(db.relatedNodes(to, kind), QStringList(), "what is related in the other direction");
    trial.expectEqual(db.isDestinationOfNodeRelation(to, kind), true, "whether the one is a destination");
    trial.expectEqual(db.isDestinationOfNodeRelation(from, kind), false,
                      "whether the other is a destination");
    trial.expectEqual(db.relatedNodes(from, RecordingTransponderRelation), QStringList(),
                      "what is related by another kind of relation");
    trial.expectEqual(db.isDestinationOfNodeRelation(to, RecordingTransponderRelation), false,
                      "whether it is a destination of another kind of relation");
}

void once(Trial& trial)
{
    const QString from = trial.add();
    const QString to = trial.add();
    NodeDB& db = trial.db();
    db.addNodeRelation(from, to, kind);
    db.addNodeRelation(from, to, kind);
    trial.expectEqual(db.relatedNodes(from, kind), QStringList(to), "what is related after adding it twice");
    db.removeNodeRelation(from, to, kind);
    trial.expectEqual(db.relatedNodes(from, kind), QStringList(), "what is related after removing it once");
    trial.expectEqual(db.isDestinationOfNodeRelation(to, kind), false, "whether it is still a destination");
}

void others(Trial& trial)
{
    const QString from = trial.add();
    const QString to = trial.add();
    NodeDB& db = trial.db();
    db.addNodeRelation(from, to, kind);
    db.removeNodeRelation(to, from, kind);
    db.removeNodeRelation(from, to, RecordingTransponderRelation);
    db.removeNodeRelation(from, from, kind);
    trial.expectEqual(db.relatedNodes(from, kind), QStringList(to), "what is related");
}

void order(Trial& trial)
{
    const QString from = trial.add();
    QStringList added;
    for (int i = 0; i < 3; ++i)
        added.prepend(trial.add());
    for (const QString& to : added)
        trial.db().addNodeRelation(from, to, kind);
    trial.expectEqual(trial.db().relatedNodes(from, kind), added, "what is related");
}

} // namespace

QVector<TriedRule> relationRules()
{
    return {
        {{"relations.directed", "a relation leads from one node to another and is of one kind"}, directed},
        {{"relations.once", "a relation that is there is not added again"}, once},
        {{"relations.others", "removing a relation that is not there leaves the others"}, others},
        {{"relations.order", "related nodes are given in the order in which the relations were made"}, order},
    };
}

} // namespace conformance
} // namespace ko
