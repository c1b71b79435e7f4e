#include "EditSeveralDialog.h"

#include "LayoutAdapter.h"
#include "NameList.h"
#include "WindowSize.h"
#include "database/HostNodeDB.h"
#include "drivers/SharedEditor.h"
#include "ko/Node.h"
#include "ko/dialogFlags.h"
#include "utils/LongWork.h"
#include "utils/Retranslation.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace ko {

namespace {

struct Change
{
    NodeID node;
    QVector<PropertyList::Entry> properties;
};

void apply(HostNodeDB& db, const Change& change)
{
    Node* node = db.beginUpdateNode(change.node, -1);
    for (const PropertyList::Entry& entry : change.properties) {
        if (node)
            node->addProperty(*PropertyList::toProperty(entry.name, entry.value));
    }
    db.endUpdateNode(node);
}

} // namespace

EditSeveralDialog::EditSeveralDialog(HostNodeDB& db, ENodeType type, const QStringList& nodes,
                                     QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_db(db)
    , m_nodes(nodes)
    , m_hint(new QLabel(this))
    , m_editor([&] {
        const LayoutAdapter layouts;
        return new SharedEditor(type, nodes, &layouts, this);
    }())
{
    setObjectName(QStringLiteral("EditSeveralDialog"));
    m_hint->setObjectName(QStringLiteral("hintLabel"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{m_hint, m_editor, buttons})
        layout->addWidget(part);
    layout->setStretchFactor(m_editor, 1);
    connect(buttons, &QDialogButtonBox::accepted, this, &EditSeveralDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &EditSeveralDialog::reject);
    setTranslated(this, [this] { retranslate(); });
    resizeWithinScreen(*this, sizeHint());
    m_editor->focusFirstField();
}

void EditSeveralDialog::retranslate()
{
    const int count = int(m_nodes.size());
    setWindowTitle(tr("Edit %n Nodes", nullptr, count));
    QStringList names;
    for (const QString& id : m_nodes)
        names.append(m_db.summary(id).name);
    m_hint->setText(
        tr("What you change here changes in all of these. What is not the same in all of them is shown "
           "as different, and stays unless you change it.") +
        QStringLiteral("\n\n") + listOfNames(names));
}

/// All is worked out before anything is changed, so that whoever ends it has changed nothing.
void EditSeveralDialog::accept()
{
    QVector<Change> changes;
    LongWork work(windowTitle(), tr("Looking at what changes..."), int(m_nodes.size()), this);
    if (m_editor->isTouched()) {
        for (const QString& id : m_nodes) {
            if (!work.goOn())
                return;
            changes.append({id, m_editor->changesOf(id)});
        }
    }
    for (const Change& change : std::as_const(changes)) {
        if (!change.properties.isEmpty())
            apply(m_db, change);
    }
    QDialog::accept();
}

} // namespace ko
