#include "drivers/SharedEditor.h"

#include "drivers/NodeTypes.h"
#include "drivers/PageFields.h"
#include "drivers/PageStack.h"
#include "drivers/StoredNode.h"
#include "inspector/LayoutListPage.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "secrets/Secrets.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

/// Tells one node from the others.
bool isOfOneNode(const QWidget& field)
{
    return qobject_cast<const QListWidget*>(&field) || PageFields::ofOneNode().contains(field.objectName());
}

QVector<PageSpec> sharedPagesOf(ENodeType type)
{
    QVector<PageSpec> pages = pagesOf(type);
    pages.erase(std::remove_if(pages.begin(), pages.end(),
                               [](const PageSpec& page) {
                                   return qstrcmp(page.tab, "recordings") == 0 ||
                                          qstrcmp(page.tab, "nodes") == 0;
                               }),
                pages.end());
    return pages;
}

/// Sealed, one password looks different in each node.
QVariant comparable(const Node& node, const PropertyList::Entry& entry)
{
    return Secrets::isSecret(entry.name) ? node.stringProperty(entry.name, QString()) : entry.value;
}

PropertyList propertiesOf(const Node& node)
{
    const auto* stored = dynamic_cast<const StoredNode*>(&node);
    const PropertyList all = stored ? stored->nodeData().properties : PropertyList();
    PropertyList result;
    for (const PropertyList::Entry& entry : all)
        result.set(entry.name, comparable(node, entry));
    return result;
}

/// Few nodes that show by themselves all that differs among \a nodes: the first one, and for each property
/// one that has it otherwise.
QStringList witnesses(const QStringList& nodes)
{
    NodeDB* db = NodeDB::getDB();
    QStringList result;
    PropertyList first;
    QSet<QString> seen;
    for (const QString& id : nodes) {
        const kom::smart<const Node> node = db->node(id);
        if (node.null())
            continue;
        const PropertyList properties = propertiesOf(*node);
        if (result.isEmpty()) {
            first = properties;
            result.append(id);
            continue;
        }
        const auto differences = PropertyList::difference(first, properties);
        const int before = int(seen.size());
        for (const PropertyList::Entry& entry : differences)
            seen.insert(entry.name);
        if (int(seen.size()) > before)
            result.append(id);
    }
    return result;
}

/// A page of its own for \a node, with what the one that is \a shown offers to choose from.
std::unique_ptr<InspectorPage> pageOf(const NodeID& node, const PageSpec& spec, const InspectorPage& shown,
                                      QWidget* parent)
{
    std::unique_ptr<InspectorPage> page = spec.create(parent);
    page->init(node);
    page->fillLike(shown);
    return page;
}

/// What \a page makes of the node.
PropertyList accepted(InspectorPage& page, const Node& node)
{
    const std::unique_ptr<Node> copy =
        NodeTypes::createNode(dynamic_cast<const StoredNode&>(node).nodeData());
    page.accept(copy.get());
    return dynamic_cast<const StoredNode&>(*copy).nodeData().properties;
}

/// What \a from shows.
void enter(QWidget* field, const QWidget& from)
{
    auto* choice = qobject_cast<QComboBox*>(field);
    const auto* chosen = qobject_cast<const QComboBox*>(&from);
    if (!choice || !chosen)
        setField(field, fieldValue(&from));
    else if (chosen->currentData().isValid())
        choice->setCurrentIndex(choice->findData(chosen->currentData()));
    else
        choice->setCurrentIndex(chosen->currentIndex());
}

} // namespace

SharedEditor::SharedEditor(ENodeType type, const QStringList& nodes, const ILayoutAdapter* layouts,
                           QWidget* parent)
    : QWidget(parent)
    , m_stack(new PageStack(sharedPagesOf(type), this))
{
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    NodeDB::getDB()->readAhead(nodes);
    const QStringList different = witnesses(nodes);
    m_stack->visit([&](const PageSpec&, InspectorPage& page) {
        page.init(different.value(0));
        if (auto* lists = dynamic_cast<LayoutListPage*>(page.widget())) {
            lists->fillLayoutComboBox(layouts);
            lists->fillAudioPathIdComboBox();
        }
        prepare(*page.widget());
    });
    findDifferent(different.mid(1));
}

/// Its buttons do what they do with one node.
void SharedEditor::prepare(const QWidget& page)
{
    const QList<QAbstractButton*> buttons = page.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (!button->isCheckable())
            button->setEnabled(false);
    }
    const QList<QWidget*> fields = PageFields::of(&page);
    for (QWidget* field : fields) {
        m_shown.insert(field, PageFields::value(field));
        if (isOfOneNode(*field))
            field->setEnabled(false);
        else if (const auto* text = qobject_cast<const QLineEdit*>(field))
            connect(text, &QLineEdit::textEdited, this, [this, field] { showEmptied(field); });
    }
}

void SharedEditor::findDifferent(const QStringList& nodes)
{
    m_stack->visit([&](const PageSpec& spec, InspectorPage& shown) {
        QSet<QWidget*> different;
        const QList<QWidget*> fields = PageFields::of(shown.widget());
        for (const QString& id : nodes) {
            QWidget nursery;
            const std::unique_ptr<InspectorPage> other = pageOf(id, spec, shown, &nursery);
            for (QWidget* field : fields) {
                const auto* same = other->widget()->findChild<QWidget*>(field->objectName());
                if (same && PageFields::value(same) != m_shown.value(field))
                    different.insert(field);
            }
        }
        for (QWidget* field : std::as_const(different)) {
            const QSignalBlocker blocker(field); // what depends on it stays as it is
            showDifferent(field);
        }
        for (QWidget* field : fields)
            m_shown.insert(field, PageFields::value(field));
    });
}

void SharedEditor::showDifferent(QWidget* field)
{
    if (auto* text = qobject_cast<QLineEdit*>(field)) {
        text->clear();
        setTranslated(text, [this, text] {
            text->setPlaceholderText(m_typed.contains(text) ? tr("(empty)") : tr("(different)"));
        });
    } else if (auto* box = qobject_cast<QCheckBox*>(field)) {
        box->setTristate(true);
        box->setCheckState(Qt::PartiallyChecked);
    } else if (auto* number = qobject_cast<QSpinBox*>(field)) {
        number->setMinimum(number->minimum() - 1);
        number->setValue(number->minimum());
        setTranslated(number, [number] { number->setSpecialValueText(tr("(different)")); });
    } else if (auto* choice = qobject_cast<QComboBox*>(field)) {
        choice->setCurrentIndex(-1);
        setTranslated(choice, [choice] { choice->setPlaceholderText(tr("(different)")); });
    } else if (auto* option = qobject_cast<QRadioButton*>(field)) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

/// What was typed and taken out again is an empty text for all of them.
void SharedEditor::showEmptied(QWidget* field)
{
    m_typed.insert(field);
    auto* text = qobject_cast<QLineEdit*>(field);
    if (!text->placeholderText().isEmpty())
        text->setPlaceholderText(tr("(empty)"));
}

bool SharedEditor::isTouched(const QWidget* field) const
{
    if (!field->isEnabled())
        return false;
    const auto* box = qobject_cast<const QCheckBox*>(field);
    if (box && box->checkState() == Qt::PartiallyChecked)
        return false;
    const auto* option = qobject_cast<const QRadioButton*>(field);
    if (option && !option->isChecked())
        return false; // the one that is checked instead tells all
    return m_typed.contains(field) || PageFields::value(field) != m_shown.value(field) ||
           (box && box->isTristate());
}

void SharedEditor::focusFirstField()
{
    bool isFound = false;
    m_stack->visit([&isFound](const PageSpec&, InspectorPage& page) {
        const QList<QWidget*> fields = PageFields::of(page.widget());
        const auto first = std::find_if(fields.begin(), fields.end(),
                                        [](const QWidget* field) { return field->isEnabled(); });
        if (!isFound && first != fields.end())
            (*first)->setFocus(Qt::TabFocusReason);
        isFound = isFound || first != fields.end();
    });
}

bool SharedEditor::isTouched() const
{
    return std::any_of(m_shown.keyBegin(), m_shown.keyEnd(),
                       [this](const QWidget* field) { return isTouched(field); });
}

QVector<PropertyList::Entry> SharedEditor::changesOf(const NodeID& id) const
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    QVector<PropertyList::Entry> changes;
    if (node.null())
        return changes;
    m_stack->visit([&](const PageSpec& spec, InspectorPage& shown) {
        QList<QWidget*> touched = PageFields::of(shown.widget());
        touched.erase(std::remove_if(touched.begin(), touched.end(),
                                     [this](const QWidget* field) { return !isTouched(field); }),
                      touched.end());
        if (touched.isEmpty())
            return;
        QWidget nursery;
        const std::unique_ptr<InspectorPage> page = pageOf(id, spec, shown, &nursery);
        const PropertyList before = accepted(*page, *node);
        for (const QWidget* field : std::as_const(touched)) {
            QWidget* own = page->widget()->findChild<QWidget*>(field->objectName());
            if (own && own->isEnabledTo(page->widget()))
                enter(own, *field);
        }
        changes += PropertyList::difference(before, accepted(*page, *node));
    });
    return changes;
}

} // namespace ko
