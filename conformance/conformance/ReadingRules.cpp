#include "conformance/Trial.h"

#include "interfaces/INodeDriverComponent.h"

#include <algorithm>

namespace ko {
namespace conformance {

namespace {

const QString& nobody()
{
    static const QString id = QLatin1String("no node has this id");
    return id;
}

const ENodeType noType = ENodeType(987654);

void isRegistered(Trial& trial)
{
    trial.expect(NodeDB::getDB() == &trial.db(), QLatin1String("NodeDB::getDB() is another database"));
}

void unknownId(Trial& trial)
{
    const QString known = trial.add();
    trial.heard();
    NodeDB& db = trial.db();
    for (const QString& id : {nobody(), QString()}) {
        trial.expect(db.node(id).null(), QLatin1String("node() gives a node for an unknown id"));
        NodeBrief brief;
        brief.name = QLatin1String("as it was");
        trial.expect(!db.getBrief(id, &brief), QLatin1String("getBrief() knows an unknown id"));
        trial.expectEqual(brief.name, QString::fromLatin1("as it was"), "the brief of an unknown id");
        Node* copy = db.beginUpdateNode(id, -1);
        trial.expect(!copy, QLatin1String("beginUpdateNode() gives a copy for an unknown id"));
        db.endUpdateNode(copy);
        db.removeNode(id);
    }
    trial.expectEqual(trial.heard(), QStringList(), "what is announced");
    trial.expect(!db.node(known).null(), QLatin1String("removing an unknown id removed a node"));
}

void drivers(Trial& trial)
{
    const kom::smart<INodeDriverComponent> driver = trial.db().nodeDriver(trial.host().type);
    if (!trial.expect(!driver.null(), QLatin1String("there is no driver of the type")))
        return;
    const kom::smart<NodeHint> hint = driver->createNodeHint(trial.host().type);
    if (trial.expect(!hint.null(), QLatin1String("the driver of the type makes no hint")))
        trial.expectEqual(int(hint->type), int(trial.host().type), "the type of its hint");
    trial.expect(trial.db().nodeDriver(noType).null(), QLatin1String("an unknown type has a driver"));
}

void typeNames(Trial& trial)
{
    NodeDB& db = trial.db();
    const ENodeType type = trial.host().type;
    const QString name = db.readableNodeTypeName(type);
    trial.expect(!name.isEmpty(), QLatin1String("the type has no name"));
    for (const bool sorted : {false, true}) {
        const NodeDB::TypeNames names = db.readableNodeTypeNames(nullptr, sorted);
        trial.expect(names.contains(qMakePair(type, name)),
                     QLatin1String("the type is not offered by the name that it has"));
        if (sorted)
            trial.expect(std::is_sorted(names.begin(), names.end(),
                                        [](const NodeDB::TypeNames::value_type& a,
                                           const NodeDB::TypeNames::value_type& b) {
                                            return QString::localeAwareCompare(a.second, b.second) < 0;
                                        }),
                         QLatin1String("the names are not sorted"));
    }
}

void chosenTypes(Trial& trial)
{
    QList<ENodeType> wanted;
    const NodeDB::TypeNames all = trial.db().readableNodeTypeNames(nullptr, true);
    for (const auto& offered : all)
        wanted.prepend(offered.first);
    QList<ENodeType> given;
    const NodeDB::TypeNames chosen = trial.db().readableNodeTypeNames(&wanted, false);
    for (const auto& named : chosen)
        given.append(named.first);
    trial.expect(given == wanted,
                 QLatin1String("the types are others than were asked for, or in another order"));
}

} // namespace

QVector<TriedRule> readingRules()
{
    return {
        {{"database.registered", "NodeDB::getDB() is the database that is alive"}, isRegistered},
        {{"reading.unknown", "an unknown id gives a null handle, a null pointer or nothing, and no signal"},
         unknownId},
        {{"types.driver", "a type has a driver that makes hints of the type; an unknown one has none"},
         drivers},
        {{"types.names", "a type that can be added is offered by its name; sorted means by name"}, typeNames},
        {{"types.chosen", "of the types that are asked for, each is given, in their order"}, chosenTypes},
    };
}

} // namespace conformance
} // namespace ko
