#include "dialogs/NodeDialog.h"

#include "dialogs/EnvironmentDialog.h"
#include "dialogs/NetworkProxyDialog.h"
#include "inspector/InspectorWidget.h"
#include "ko/Environments.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"
#include "utils/WindowTitle.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ko {

namespace {

/// What joins the window later is last in its tab order; this puts the buttons after it again. All at once,
/// because their box is a stop that hands the focus on, and must stay before them.
void moveToEndOfTabOrder(QDialogButtonBox* buttons)
{
    QLayout* const layout = buttons->parentWidget()->layout();
    buttons->setParent(nullptr); // leaves the order with everything in it
    layout->addWidget(buttons);
    buttons->show();
}

} // namespace

NodeDialog::NodeDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
}

NodeDialog::~NodeDialog() = default;

void NodeDialog::setEnvironmentRow(QLabel* label, QComboBox* comboBox, QPushButton* proxyButton,
                                   unsigned flags)
{
    setEnvironmentComboBox(comboBox);
    if (flags & EnvironmentControls) {
        setEnvironmentMenu();
        onLanguageChange(comboBox, [comboBox] { // whose last entry is no environment
            comboBox->setItemText(comboBox->count() - 1, tr("Edit Environments..."));
        });
        ko::connect(comboBox, SIGNAL(currentIndexChanged(int)), this, SLOT(environmentChanged(int)));
        ko::connect(proxyButton, SIGNAL(clicked()), this, SLOT(editProxy()));
        return;
    }
    label->hide();
    comboBox->hide();
    proxyButton->hide();
}

void NodeDialog::embed(InspectorWidget* inspector, QWidget* container, QDialogButtonBox* buttons)
{
    setInspector(inspector);
    inspector->setParent(container);
    QVBoxLayout* layout = new QVBoxLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(inspector);
    if (container->isVisible()) { // a dialog that is open already does not show what joins it
        inspector->show();
        layout->activate();
    }
    moveToEndOfTabOrder(buttons);
}

void NodeDialog::setTitle(const QString& pattern, const QString& name)
{
    setWindowTitle(pattern.arg(inWindowTitle(name)));
}

void NodeDialog::setEnvironmentMenu()
{
    if (!m_environmentComboBox)
        return;
    const bool wereBlocked = m_environmentComboBox->blockSignals(true);
    m_environmentComboBox->clear();
    const QString active = NodeDB::getDB()->activeEnvironment();
    const Environments::List environments = NodeDB::getDB()->environments().getList();
    for (const Environments::List::value_type& environment : environments) {
        m_environmentComboBox->addItem(environment.second, environment.first);
        if (environment.first == active)
            m_environmentComboBox->setCurrentIndex(m_environmentComboBox->count() - 1);
    }
    if (m_environmentComboBox->count() > 0)
        m_environmentComboBox->insertSeparator(m_environmentComboBox->count());
    m_environmentComboBox->addItem(tr("Edit Environments..."));
    m_environmentComboBox->blockSignals(wereBlocked);
}

void NodeDialog::selectActiveEnvironment()
{
    const int index = m_environmentComboBox->findData(NodeDB::getDB()->activeEnvironment());
    if (index < 0)
        return;
    const bool wereBlocked = m_environmentComboBox->blockSignals(true);
    m_environmentComboBox->setCurrentIndex(index);
    m_environmentComboBox->blockSignals(wereBlocked);
}

void NodeDialog::environmentChanged(int index)
{
    if (!m_environmentComboBox)
        return;
    const QString environment = m_environmentComboBox->itemData(index).toString();
    if (!environment.isEmpty()) {
        NodeDB::getDB()->setActiveEnvironment(environment);
        if (m_inspector) // there is none for a type whose driver delivers no hint
            m_inspector->updateNode();
        return;
    }
    selectActiveEnvironment();
    EnvironmentDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted && dialog.dirty())
        setEnvironmentMenu();
}

void NodeDialog::editProxy()
{
    if (!m_environmentComboBox)
        return;
    NetworkProxyDialog dialog(this, dialogFlags(false));
    dialog.exec();
}

} // namespace ko
