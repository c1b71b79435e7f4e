#include "dialogs/GenericNodeViewer.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "utils/Retranslation.h"

#include "ui_GenericNodeViewer.h"

#include <QKeyEvent>

namespace ko {

GenericNodeViewer::GenericNodeViewer(const QString& id, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_ui(new Ui::GenericNodeViewer)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this, id] {
        retranslateForm(*m_ui, this);
        showType(id);
    });

    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (node.null())
        return;
    showType(id);
    m_ui->nodeNameLineEdit->setText(node->name());

    const kogen::PropertySet& properties = node->properties();
    m_ui->propertyTableWidget->setRowCount(properties.count());
    int row = 0;
    for (const auto& entry : properties) {
        const kogen::BaseProperty& property = *entry.second;
        const QString texts[] = {property.typeName(), property.propertyName(), property.value().toString()};
        for (int column = 0; column < 3; ++column)
            m_ui->propertyTableWidget->setItem(row, column, new QTableWidgetItem(texts[column]));
        ++row;
    }
    m_ui->propertyTableWidget->resizeColumnsToContents();
}

GenericNodeViewer::~GenericNodeViewer() = default;

void GenericNodeViewer::showType(const QString& id)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (!node.null())
        m_ui->nodeTypeLineEdit->setText(NodeDB::getDB()->readableNodeTypeName(node->type));
}

void GenericNodeViewer::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        m_ui->closeButton->click();
    else
        QWidget::keyPressEvent(event);
}

} // namespace ko
