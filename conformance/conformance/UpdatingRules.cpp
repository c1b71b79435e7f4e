#include "conformance/Trial.h"

#include "inspector/InspectorWidget.h"
#include "interfaces/INodeDriverComponent.h"
#include "kogen/Property.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

namespace ko {
namespace conformance {

namespace {

const QLatin1String key("KitText");

QString textOf(const Trial& trial, const QString& id)
{
    const kom::smart<const Node> node = trial.db().node(id);
    return node.null() ? QString() : node->stringProperty(key, QString());
}

void copies(Trial& trial)
{
    const QString id = trial.add();
    const kom::smart<const Node> before = trial.db().node(id);
    Node* copy = trial.db().beginUpdateNode(id, -1);
    if (!trial.expect(copy && !before.null(), QLatin1String("the node cannot be read and updated")))
        return trial.db().endUpdateNode(copy);
    copy->setStringProperty(key, QLatin1String("new"));
    trial.expectEqual(textOf(trial, id), QString(), "a property before endUpdateNode()");
    trial.db().endUpdateNode(copy);
    trial.expectEqual(textOf(trial, id), QString::fromLatin1("new"), "the property after endUpdateNode()");
    trial.expectEqual(before->stringProperty(key, QString()), QString(),
                      "the property of the node that was handed out before");
}

void announced(Trial& trial)
{
    const QString id = trial.add();
    trial.heard();
    QString seen;
    trial.listener = [&](const QString&, const QString& changed) { seen = textOf(trial, changed); };
    trial.change(id, key, QLatin1String("new"));
    trial.expectEqual(trial.heard(), QStringList(QLatin1String("updated ") + id), "what is announced");
    trial.expectEqual(seen, QString::fromLatin1("new"), "what a receiver of nodeUpdated() reads");
}

void unchanged(Trial& trial)
{
    const QString id = trial.add();
    trial.change(id, key, QLatin1String("text"));
    trial.heard();
    trial.change(id, key, QLatin1String("text"));
    trial.db().endUpdateNode(trial.db().beginUpdateNode(id, -1));
    trial.expectEqual(trial.heard(), QStringList(), "what is announced");
}

void ofNothing(Trial& trial)
{
    trial.add();
    trial.heard();
    trial.db().endUpdateNode(nullptr);
    trial.expectEqual(trial.heard(), QStringList(), "what is announced");
}

void ofRemoved(Trial& trial)
{
    const QString id = trial.add();
    Node* copy = trial.db().beginUpdateNode(id, -1);
    trial.db().removeNode(id);
    trial.heard();
    if (copy)
        copy->setStringProperty(key, QLatin1String("new"));
    trial.db().endUpdateNode(copy);
    trial.expectEqual(trial.heard(), QStringList(), "what is announced");
    trial.expect(trial.db().node(id).null(), QLatin1String("the node is there again"));
}

void properties(Trial& trial)
{
    const QString id = trial.add();
    kogen::PropertySet inner;
    inner.insert(kom::makeSmart<kogen::IntProperty>(QLatin1String("Inner"), 7));
    Node* copy = trial.db().beginUpdateNode(id, -1);
    if (!trial.expect(copy, QLatin1String("beginUpdateNode() gives no copy")))
        return;
    copy->setBoolProperty(QLatin1String("KitBool"), true);
    copy->setIntProperty(QLatin1String("KitInt"), -5);
    copy->setStringProperty(key, QString::fromUtf8("T\xc3\xbcr"));
    copy->setFloatProperty(QLatin1String("KitFloat"), 0.5F);
    copy->setPropertySetProperty(QLatin1String("KitSet"), inner);
    copy->addProperty(kogen::IntProperty(QLatin1String("KitAdded"), 3));
    trial.db().endUpdateNode(copy);
    const kom::smart<const Node> node = trial.db().node(id);
    trial.expectEqual(node->boolProperty(QLatin1String("KitBool"), false), true, "a bool");
    trial.expectEqual(node->intProperty(QLatin1String("KitInt"), 0), -5, "an int");
    trial.expectEqual(node->stringProperty(key, QString()), QString::fromUtf8("T\xc3\xbcr"), "a string");
    trial.expect(qFuzzyCompare(node->floatProperty(QLatin1String("KitFloat"), 0), 0.5F),
                 QLatin1String("a float is another one"));
    trial.expect(node->propertySetProperty(QLatin1String("KitSet"), kogen::PropertySet()) == inner,
                 QLatin1String("a set is another one"));
    trial.expectEqual(node->intProperty(QLatin1String("KitAdded"), 0), 3, "an int that was added");
    trial.expectEqual(node->intProperty(key, 9), 9, "the default where the property has another type");
    trial.expectEqual(node->intProperty(QLatin1String("KitAbsent"), 9), 9,
                      "the default of an absent property");
    trial.expect(node->hasProperty(key) && node->properties().contains(key) &&
                     !node->hasProperty(QLatin1String("KitAbsent")),
                 QLatin1String("hasProperty() and properties() do not say which properties there are"));
}

void takesOver(Trial& trial)
{
    const QString id = trial.add();
    trial.change(id, key, QLatin1String("stays"));
    const kom::smart<NodeHint> hint = trial.hint(QLatin1String("New name"));
    Node* copy = trial.db().beginUpdateNode(id, -1);
    if (copy && !hint.null()) {
        hint->setStringProperty(QLatin1String("KitOther"), QLatin1String("comes"));
        copy->takeOverProperties(*hint);
    }
    trial.db().endUpdateNode(copy);
    const kom::smart<const Node> node = trial.db().node(id);
    if (!trial.expect(!node.null(), QLatin1String("there is no node")))
        return;
    trial.expectEqual(node->name(), QString::fromLatin1("New name"), "the name");
    trial.expectEqual(node->stringProperty(QLatin1String("KitOther"), QString()),
                      QString::fromLatin1("comes"), "a property of the hint");
    trial.expectEqual(node->stringProperty(key, QString()), QString::fromLatin1("stays"),
                      "a property that the hint lacks");
}

void editors(Trial& trial)
{
    const QString id = trial.add();
    const kom::smart<const Node> node = trial.db().node(id);
    const kom::smart<NodeHint> hint = trial.hint(QLatin1String("Node"));
    if (node.null() || hint.null())
        return;
    const std::unique_ptr<InspectorWidget> ofNode(node->createInspectorWidget(false, 0));
    if (trial.expect(ofNode != nullptr, QLatin1String("the node has no editor"))) {
        ofNode->ok(); // pages write what a new node has not yet
        trial.heard();
        ofNode->ok();
        trial.expectEqual(trial.heard(), QStringList(), "what is announced after a second OK");
    }
    const std::unique_ptr<InspectorWidget> ofHint(
        trial.db().nodeDriver(trial.host().type)->createInspectorWidget(hint.get(), 0));
    trial.expect(ofHint != nullptr, QLatin1String("the hint has no editor"));
}

void readOnlyEditor(Trial& trial)
{
    const QString id = trial.add();
    const kom::smart<const Node> node = trial.db().node(id);
    if (node.null())
        return;
    const std::unique_ptr<InspectorWidget> editor(node->createInspectorWidget(true, 0));
    if (!trial.expect(editor != nullptr, QLatin1String("the node has no read-only editor")))
        return;
    const QList<QLineEdit*> fields = editor->findChildren<QLineEdit*>();
    for (const QLineEdit* field : fields) {
        // The library's page of pan/tilt heads leaves its field of numbers open.
        const bool isNumber = qobject_cast<const QAbstractSpinBox*>(field->parent());
        trial.expect(isNumber || field->isReadOnly() || !field->isEnabled(),
                     QString::fromLatin1("the field \"%1\" can be written in").arg(field->objectName()));
    }
}

} // namespace

QVector<TriedRule> updatingRules()
{
    return {
        {{"updating.copy",
          "a change is seen after endUpdateNode(), and not in nodes that were handed out before"},
         copies},
        {{"updating.announced", "endUpdateNode() emits nodeUpdated() once, and receivers read what is new"},
         announced},
        {{"updating.unchanged", "nothing is announced when nothing differs"}, unchanged},
        {{"updating.nothing", "endUpdateNode() of a null pointer does nothing"}, ofNothing},
        {{"updating.removed", "the copy of a node that is gone is given back without a trace"}, ofRemoved},
        {{"updating.properties",
          "properties of all types are kept; absent ones, or of another type, give the default"},
         properties},
        {{"updating.takeover",
          "takeOverProperties() brings name and properties of a hint and leaves the others"},
         takesOver},
        {{"editing.editors", "nodes and hints have editors; what was written is not written again"}, editors},
        {{"editing.readonly", "in a read-only editor no text can be written"}, readOnlyEditor},
    };
}

} // namespace conformance
} // namespace ko
