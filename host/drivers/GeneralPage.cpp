#include "drivers/GeneralPage.h"

#include "drivers/FormLayout.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

#include <QLabel>
#include <QLineEdit>

namespace ko {

GeneralPage::GeneralPage(QWidget* parent)
    : QWidget(parent)
    , m_nameLineEdit(new QLineEdit(this))
{
    setObjectName(QLatin1String("generalPage"));
    m_nameLineEdit->setObjectName(QLatin1String("nameLineEdit"));
    QLabel* caption = FormLayout(this).addRow(QString(), m_nameLineEdit);
    setTranslated(this, [caption] { caption->setText(tr("Name:")); });
    connect(m_nameLineEdit, &QLineEdit::textEdited, this, &GeneralPage::nameEdited);
}

void GeneralPage::init(const QString& nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (!node.null())
        m_nameLineEdit->setText(node->name());
}

void GeneralPage::init(const NodeHint* hint)
{
    m_nameLineEdit->setText(hint->name());
    m_named = !hint->name().isEmpty();
}

void GeneralPage::accept(Node* node)
{
    if (node)
        storeField(*node, PropertyKeys::Name, m_nameLineEdit);
}

void GeneralPage::accept(NodeHint* hint)
{
    hint->setName(m_nameLineEdit->text());
}

void GeneralPage::setReadOnly(bool readOnly)
{
    setFieldReadOnly(m_nameLineEdit, readOnly);
}

void GeneralPage::proposeName(const QString& name)
{
    if (!m_named)
        m_nameLineEdit->setText(name);
}

void GeneralPage::nameEdited(const QString& name)
{
    m_named = !name.isEmpty();
}

} // namespace ko
