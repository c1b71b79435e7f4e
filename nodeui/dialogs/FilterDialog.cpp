#include "dialogs/FilterDialog.h"

#include "ko/NodeDB.h"
#include "utils/Retranslation.h"

#include "ui_FilterDialog.h"

namespace ko {

FilterDialog::FilterDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(new Ui::FilterDialog)
{
    m_ui->setupUi(this);
    const NodeDB::TypeNames types = NodeDB::getDB()->readableNodeTypeNames(nullptr, true);
    for (const auto& type : types) {
        QListWidgetItem* item = new QListWidgetItem(type.second, m_ui->listWidget);
        item->setCheckState(Qt::Checked);
    }
    onLanguageChange(this, [this, types] {
        m_ui->retranslateUi(this);
        for (int row = 0; row < types.size(); ++row)
            m_ui->listWidget->item(row)->setText(NodeDB::getDB()->readableNodeTypeName(types.at(row).first));
    });
}

FilterDialog::~FilterDialog() = default;

} // namespace ko
