#include "dialogs/NodeOverviewDialog.h"

#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "dialogs/FilterDialog.h"
#include "ko/NodeDB.h"
#include "ko/NodeViewModel.h"
#include "ko/connect.h"
#include "utils/Retranslation.h"
#include "utils/SortOnceProxy.h"

#include "ui_NodeOverviewDialog.h"

namespace ko {

NodeOverviewDialog::NodeOverviewDialog(QWidget* parent)
    : QDialog(parent)
    , m_view(kom::makeSmart<NodeView>(QLatin1String("NodeOverview")))
    , m_ui(new Ui::NodeOverviewDialog)
{
    ko::connect(NodeDB::getDB(), SIGNAL(nodeInserted(ko::NodeID)), m_view.get(), SLOT(addNode(ko::NodeID)));
    m_model.reset(new NodeViewModel(m_view, nullptr));
    m_proxy.reset(new SortOnceProxy);
    m_proxy->setSourceModel(m_model.data());
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
    // Nodes stand in the order in which they arrive until a header is clicked.
    m_ui->nodesTreeView->sortByColumn(-1, Qt::AscendingOrder);
    m_ui->nodesTreeView->setModel(m_proxy.data());
    m_ui->okButton->setDefault(true);
    m_ui->okButton->setAutoDefault(true);

    ko::connect(m_ui->bonjourButton, SIGNAL(toggled(bool)), this, SLOT(bonjourScan(bool)));
    ko::connect(m_ui->arpButton, SIGNAL(toggled(bool)), this, SLOT(arpScan(bool)));
    ko::connect(m_ui->addButton, SIGNAL(clicked()), this, SLOT(add()));
    ko::connect(m_ui->editButton, SIGNAL(clicked()), this, SLOT(edit()));
    ko::connect(m_ui->nodesTreeView->selectionModel(),
                SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this, SLOT(selectionChanged()));
    ko::connect(m_ui->filterButton, SIGNAL(clicked()), this, SLOT(filter()));
    ko::connect(m_ui->okButton, SIGNAL(clicked()), this, SLOT(accept()));
    ko::connect(m_ui->cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
    createContextMenu();
}

// The view goes last; a scanner left on goes on.
NodeOverviewDialog::~NodeOverviewDialog() = default;

void NodeOverviewDialog::createContextMenu()
{
    const struct
    {
        QAction* action;
        bool enabled;
        QObject* receiver;
        const char* slot;
    } actions[] = {
        {m_ui->actionSelect_all, true, m_ui->nodesTreeView, SLOT(selectAll())},
        {m_ui->actionAdd, true, this, SLOT(add())},
        {m_ui->actionEdit, false, this, SLOT(edit())},
        {m_ui->actionRemove, false, this, SLOT(remove())},
        {m_ui->actionRemove_selected, false, this, SLOT(remove_selected())},
        {m_ui->actionRemove_all, true, this, SLOT(remove_all())},
    };
    m_ui->nodesTreeView->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const auto& entry : actions) {
        m_ui->nodesTreeView->addAction(entry.action);
        entry.action->setEnabled(entry.enabled);
        ko::connect(entry.action, SIGNAL(triggered()), entry.receiver, entry.slot);
    }
}

QModelIndexList NodeOverviewDialog::selectedRows() const
{
    return m_ui->nodesTreeView->selectionModel()->selectedRows(0);
}

NodeID NodeOverviewDialog::nodeAt(const QModelIndex& proxyIndex) const
{
    const kom::smart<NodeEntry> node = m_model->entry(m_proxy->mapToSource(proxyIndex)).cast<NodeEntry>();
    return node.null() ? NodeID() : node->id();
}

QStringList NodeOverviewDialog::nodesAt(const QModelIndexList& proxyIndexes) const
{
    QStringList ids;
    for (const QModelIndex& index : proxyIndexes) {
        const NodeID id = nodeAt(index);
        if (!id.isEmpty())
            ids.append(id);
    }
    return ids;
}

void NodeOverviewDialog::selectionChanged()
{
    const int count = int(selectedRows().size());
    m_ui->editButton->setEnabled(count == 1);
    m_ui->actionEdit->setEnabled(count == 1);
    m_ui->actionRemove->setEnabled(count == 1);
    m_ui->actionRemove_selected->setEnabled(count >= 1);
}

void NodeOverviewDialog::add()
{
    AddNodeDialog dialog(this, this, nullptr, true, NodeDialog::FromList);
    dialog.exec();
}

void NodeOverviewDialog::edit()
{
    const QModelIndexList rows = selectedRows();
    const NodeID id = rows.size() == 1 ? nodeAt(rows.first()) : NodeID();
    if (id.isEmpty())
        return;
    EditNodeDialog dialog(id, this, false, NodeDialog::FromList, nullptr);
    dialog.exec();
}

void NodeOverviewDialog::remove()
{
    if (selectedRows().size() == 1)
        remove_selected();
}

void NodeOverviewDialog::remove_selected()
{
    // Told apart first: removing a row moves the others.
    const QStringList ids = nodesAt(selectedRows());
    for (const QString& id : ids)
        m_view->removeNode(id, false);
}

void NodeOverviewDialog::remove_all()
{
    m_view->removeAll();
}

void NodeOverviewDialog::filter()
{
    FilterDialog dialog(this);
    dialog.exec();
}

void NodeOverviewDialog::bonjourScan(bool on)
{
    scan("mDNS", on);
}

void NodeOverviewDialog::arpScan(bool on)
{
    scan("ARP", on);
}

void NodeOverviewDialog::scan(const char* scanner, bool on)
{
    if (on)
        NodeDB::getDB()->startScanners(scanner, 0xFFFFFFFF, -1);
    else
        NodeDB::getDB()->stopScanners(scanner);
}

void NodeOverviewDialog::accept()
{
    m_selected = nodesAt(selectedRows());
    QDialog::accept();
}

} // namespace ko
