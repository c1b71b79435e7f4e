#include "dialogs/AddNodeDialog.h"

#include "inspector/InspectorWidget.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/LogQt.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include "ui_AddNodeDialog.h"

namespace ko {

AddNodeDialog::AddNodeDialog(void* context, QWidget* parent, const QList<ENodeType>* types, bool sorted,
                             unsigned flags)
    : NodeDialog(parent, dialogFlags(false) & ~Qt::WindowMinimizeButtonHint)
    , m_context(context)
    , m_ui(new Ui::AddNodeDialog)
    , m_flags(flags)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslate(); });
    QPushButton* okButton = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    okButton->setDefault(true);
    okButton->setAutoDefault(true);
    fillTypes(types, sorted);
    setEnvironmentRow(m_ui->environmentLabel, m_ui->environmentComboBox, m_ui->proxyPushButton, flags);
    setInspectorFromIndex(m_ui->nodeTypeComboBox->currentIndex());
    if (m_ui->nodeTypeComboBox->count() < 2) {
        m_ui->nodeTypeComboBox->hide();
        m_ui->nodeTypeLabel->hide();
    }
    ko::connect(m_ui->nodeTypeComboBox, SIGNAL(currentIndexChanged(int)), this,
                SLOT(setInspectorFromIndex(int)));
    ko::connect(m_ui->buttonBox, SIGNAL(accepted()), this, SLOT(ok()));
    ko::connect(NodeDB::getDB(), SIGNAL(nodeInserted(ko::NodeID)), this, SLOT(nodeAdded(ko::NodeID)));
    // A letter that is meant for the name must not switch the environment.
    if (InspectorWidget* inspector = m_ui->containerWidget->findChild<InspectorWidget*>())
        inspector->setFocus(Qt::OtherFocusReason);
}

AddNodeDialog::~AddNodeDialog()
{
    removeInspector(); // it must not outlive the hint
}

void AddNodeDialog::fillTypes(const QList<ENodeType>* types, bool sorted)
{
    const NodeDB::TypeNames names = NodeDB::getDB()->readableNodeTypeNames(types, sorted);
    for (const NodeDB::TypeNames::value_type& type : names)
        m_ui->nodeTypeComboBox->addItem(QIcon(), type.second, int(type.first));
}

void AddNodeDialog::setInspectorFromIndex(int index)
{
    if (index < 0)
        return; // no type is offered
    const ENodeType type = ENodeType(m_ui->nodeTypeComboBox->itemData(index).toInt());
    createInspector(type);
    adjustSize();
    showTitle();
}

void AddNodeDialog::showTitle()
{
    const ENodeType type =
        ENodeType(m_ui->nodeTypeComboBox->itemData(m_ui->nodeTypeComboBox->currentIndex()).toInt());
    setTitle(tr("Add %1"), NodeDB::getDB()->readableNodeTypeName(type));
}

void AddNodeDialog::retranslate()
{
    retranslateForm(*m_ui, this);
    QComboBox* types = m_ui->nodeTypeComboBox;
    for (int i = 0; i < types->count(); ++i)
        types->setItemText(i, NodeDB::getDB()->readableNodeTypeName(ENodeType(types->itemData(i).toInt())));
    if (types->currentIndex() >= 0)
        showTitle();
}

void AddNodeDialog::removeInspector()
{
    setInspector(nullptr);
    const QList<InspectorWidget*> inspectors = m_ui->containerWidget->findChildren<InspectorWidget*>();
    for (InspectorWidget* inspector : inspectors) {
        delete m_ui->containerWidget->layout();
        inspector->setParent(nullptr);
        delete inspector;
    }
    m_ui->containerWidget->updateGeometry();
}

void AddNodeDialog::createInspector(ENodeType type)
{
    const kom::smart<INodeDriverComponent> driver = NodeDB::getDB()->nodeDriver(type);
    if (driver.null())
        return;
    removeInspector();
    m_hint = driver->createNodeHint(type);
    if (m_hint.null()) {
        LogQt::line(LogQt::Warning, QLatin1String("Node driver could not deliver node hint!"));
        return;
    }
    m_hint->context = m_context;
    InspectorWidget* inspector = driver->createInspectorWidget(m_hint.get(), m_flags);
    if (!inspector)
        return;
    embed(inspector, m_ui->containerWidget, m_ui->buttonBox);
    ko::connect(m_ui->buttonBox, SIGNAL(rejected()), inspector, SLOT(cancel()));
}

void AddNodeDialog::ok()
{
    const QList<InspectorWidget*> inspectors = m_ui->containerWidget->findChildren<InspectorWidget*>();
    if (inspectors.isEmpty())
        return;
    inspectors.first()->ok();
    NodeDB::getDB()->newNodeHint(*m_hint);
}

void AddNodeDialog::nodeAdded(ko::NodeID id)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (!node.null() && node->hasCreationContext() && node->creationContext() == m_context)
        m_nodeId = id;
}

} // namespace ko
