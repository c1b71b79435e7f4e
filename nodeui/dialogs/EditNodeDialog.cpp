#include "dialogs/EditNodeDialog.h"

#include "inspector/InspectorWidget.h"
#include "inspector/LayoutListPage.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"
#include "utils/WindowTitle.h"

#include "ui_EditNodeDialog.h"

#include <QTabWidget>

namespace ko {

namespace {

/// Deletes a button, but not while \a box knows it: in Qt 4.8 the box would go on using it.
void removeFrom(QDialogButtonBox* box, QAbstractButton* button)
{
    box->removeButton(button);
    delete button;
}

} // namespace

EditNodeDialog::EditNodeDialog(const QString& id, QWidget* parent, bool readOnly, unsigned flags,
                               const ILayoutAdapter* layoutAdapter)
    : NodeDialog(parent, dialogFlags(false) & ~Qt::WindowMinimizeButtonHint)
    , m_ui(new Ui::EditNodeDialog)
{
    m_ui->setupUi(this);
    QPushButton* okButton = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    okButton->setDefault(true);
    okButton->setAutoDefault(true);
    if (readOnly) {
        for (const QDialogButtonBox::StandardButton which :
             {QDialogButtonBox::Apply, QDialogButtonBox::Cancel})
            removeFrom(m_ui->buttonBox, m_ui->buttonBox->button(which));
    }
    showTitle(id);
    onLanguageChange(this, [this, id] {
        retranslateForm(*m_ui, this);
        showTitle(id);
    });
    setEnvironmentRow(m_ui->environmentLabel, m_ui->environmentComboBox, m_ui->proxyPushButton, flags);
    setInspectorWidget(id, readOnly, flags, layoutAdapter);
    adjustSize();
}

EditNodeDialog::~EditNodeDialog() = default;

void EditNodeDialog::showTitle(const QString& id)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (!node.null())
        setTitle(tr("Properties of %1"), calledInTitles(*node));
}

void EditNodeDialog::setInspectorWidget(const QString& id, bool readOnly, unsigned flags,
                                        const ILayoutAdapter* layoutAdapter)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (node.null())
        return;
    InspectorWidget* inspector = node->createInspectorWidget(readOnly, flags);
    if (!inspector)
        return;
    embed(inspector, m_ui->containerWidget, m_ui->buttonBox);
    ko::connect(m_ui->buttonBox, SIGNAL(accepted()), inspector, SLOT(ok()));
    if (!readOnly) {
        ko::connect(m_ui->buttonBox->button(QDialogButtonBox::Apply), SIGNAL(clicked()), inspector,
                    SLOT(ok()));
        ko::connect(m_ui->buttonBox->button(QDialogButtonBox::Cancel), SIGNAL(clicked()), inspector,
                    SLOT(cancel()));
    }
    inspector->setFocus(Qt::OtherFocusReason);
    if (flags & FillLayoutLists)
        fillLayoutLists(layoutAdapter);
}

void EditNodeDialog::fillLayoutLists(const ILayoutAdapter* layoutAdapter)
{
    const QTabWidget* tabs = findChild<QTabWidget*>(QLatin1String("tabWidget"));
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        const QWidget* tab = tabs->widget(i);
        if (tab->objectName() != QLatin1String(LayoutListPage::TabName))
            continue;
        LayoutListPage* page =
            dynamic_cast<LayoutListPage*>(tab->findChild<QWidget*>(QLatin1String(LayoutListPage::Name)));
        if (!page)
            continue;
        page->fillLayoutComboBox(layoutAdapter);
        page->fillAudioPathIdComboBox();
    }
}

} // namespace ko
