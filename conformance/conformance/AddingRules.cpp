#include "conformance/Trial.h"

namespace ko {
namespace conformance {

namespace {

void announced(Trial& trial)
{
    bool wasThere = false;
    trial.listener = [&](const QString&, const QString& id) { wasThere = !trial.db().node(id).null(); };
    const QString id = trial.add();
    if (id.isEmpty())
        return;
    trial.expectEqual(trial.heard(), QStringList(QLatin1String("inserted ") + id), "what is announced");
    trial.expect(wasThere, QLatin1String("the node was not there yet when it was announced"));
}

void content(Trial& trial)
{
    const kom::smart<NodeHint> hint = trial.hint(QLatin1String("North gate"));
    if (hint.null())
        return;
    hint->setStringProperty(QLatin1String("KitText"), QLatin1String("text"));
    trial.db().newNodeHint(*hint);
    const QString id = trial.heard().value(0).section(QLatin1Char(' '), 1);
    const kom::smart<const Node> node = trial.db().node(id);
    if (!trial.expect(!node.null(), QLatin1String("there is no node")))
        return;
    trial.expectEqual(node->id(), id, "its id");
    trial.expectEqual(int(node->type), int(trial.host().type), "its type");
    trial.expectEqual(node->name(), QString::fromLatin1("North gate"), "its name");
    trial.expectEqual(node->stringProperty(QLatin1String("Name"), QString()), node->name(),
                      "its property \"Name\"");
    trial.expectEqual(node->stringProperty(QLatin1String("KitText"), QString()), QString::fromLatin1("text"),
                      "a property of the hint");
}

void context(Trial& trial)
{
    const kom::smart<NodeHint> hint = trial.hint(QLatin1String("Node"));
    if (hint.null())
        return;
    int marker = 0;
    hint->context = &marker;
    trial.db().newNodeHint(*hint);
    const kom::smart<const Node> node = trial.db().node(trial.heard().value(0).section(QLatin1Char(' '), 1));
    if (!trial.expect(!node.null(), QLatin1String("there is no node")))
        return;
    trial.expect(node->hasCreationContext() && node->creationContext() == &marker,
                 QLatin1String("the node does not give back the pointer that its hint carried"));
}

void ids(Trial& trial)
{
    const QString first = trial.add();
    const QString second = trial.add();
    trial.expect(!first.isEmpty() && first != second, QLatin1String("two nodes have one id"));
    trial.db().removeNode(second);
    trial.expect(trial.add() != second, QLatin1String("the id of a node that is gone is given to another"));
}

void order(Trial& trial)
{
    QStringList added;
    for (int i = 0; i < 12; ++i) // so many that an order by text would be another
        added.append(trial.add(QString::fromLatin1("Node %1").arg(12 - i)));
    const NodeDB& db = trial.db();
    trial.expectEqual(db.nodeIdList(trial.host().type), added, "the list of the type");
    trial.expectEqual(db.nodeIdList(AllNodeTypes), added, "the list of all");
    trial.expectEqual(db.nodeIdList(ENodeType(987654)), QStringList(), "the list of an unknown type");
    db.node(added.value(3));
    trial.change(added.value(3), QLatin1String("KitText"), QLatin1String("new"));
    trial.expectEqual(db.nodeIdList(trial.host().type), added, "the list after an update");
}

void brief(Trial& trial)
{
    const QString id = trial.add(QLatin1String("North gate"));
    NodeBrief brief;
    if (!trial.expect(trial.db().getBrief(id, &brief), QLatin1String("getBrief() does not know the node")))
        return;
    trial.expectEqual(brief.name, QString::fromLatin1("North gate"), "the name in brief");
    trial.expectEqual(int(brief.type), int(trial.host().type), "the type in brief");
}

void lookup(Trial& trial)
{
    const kom::smart<NodeHint> described = trial.hint(QLatin1String("North gate"));
    const kom::smart<NodeHint> another = trial.hint(QLatin1String("South gate"));
    if (described.null() || another.null())
        return;
    trial.expectEqual(trial.db().lookupHint(*described), QString(), "the node of a hint that is not added");
    trial.db().newNodeHint(*described);
    const QString id = trial.heard().value(0).section(QLatin1Char(' '), 1);
    trial.expectEqual(trial.db().lookupHint(*described), trial.host().isFoundAgain ? id : QString(),
                      "the node of the hint");
    trial.expectEqual(trial.db().lookupHint(*another), QString(), "the node of another hint");
}

void callsBack(Trial& trial)
{
    trial.listener = [&trial](const QString& kind, const QString& id) {
        if (kind == QLatin1String("inserted"))
            trial.change(id, QLatin1String("KitText"), QLatin1String("called back"));
    };
    const QString id = trial.add();
    trial.listener = nullptr;
    const kom::smart<const Node> node = trial.db().node(id);
    if (!trial.expect(!node.null(), QLatin1String("there is no node")))
        return;
    trial.expectEqual(node->stringProperty(QLatin1String("KitText"), QString()),
                      QString::fromLatin1("called back"), "what a receiver of nodeInserted() wrote");
    trial.expectEqual(trial.heard(),
                      QStringList({QLatin1String("inserted ") + id, QLatin1String("updated ") + id}),
                      "what is announced");
}

} // namespace

QVector<TriedRule> addingRules()
{
    return {
        {{"adding.announced",
          "newNodeHint() emits nodeInserted() once, before it returns; the node is there"},
         announced},
        {{"adding.content", "a new node has type, name and properties of its hint"}, content},
        {{"adding.context", "a new node gives back the context pointer of its hint"}, context},
        {{"adding.ids", "each node has an id of its own, which no other gets later"}, ids},
        {{"adding.order", "lists give the nodes of a type, or all, oldest first"}, order},
        {{"adding.brief", "getBrief() says what the node says"}, brief},
        {{"adding.lookup", "lookupHint() gives the node that a hint describes, and nothing for another"},
         lookup},
        {{"adding.receivers", "a receiver of nodeInserted() may change the node"}, callsBack},
    };
}

} // namespace conformance
} // namespace ko
