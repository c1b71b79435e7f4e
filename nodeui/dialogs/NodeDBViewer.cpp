#include "dialogs/NodeDBViewer.h"

#include "dialogs/GenericNodeViewer.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"
#include "utils/Retranslation.h"

#include "ui_NodeDBViewer.h"

#include <QKeyEvent>
#include <QSortFilterProxyModel>

namespace ko {

namespace {

enum ViewerColumn { SymbolCell, NameCell, TypeCell, CellCount };

} // namespace

NodeDBViewer::ViewerModel::ViewerModel(kom::smart<NodeView> view, QObject* parent)
    : NodeViewModel(view, parent)
{
}

int NodeDBViewer::ViewerModel::columnCount(const QModelIndex&) const
{
    return CellCount;
}

QVariant NodeDBViewer::ViewerModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const kom::smart<NodeViewEntry> entry = view()->entryFromInternalId(unsigned(index.internalId()));
    if (entry.null() || !entry->isNode())
        return QVariant();
    const NodeID& id = static_cast<const NodeEntry*>(entry.get())->id();
    if (index.column() == SymbolCell && role == Qt::DecorationRole) {
        const kom::smart<const Node> node = NodeDB::getDB()->node(id);
        return node.null() ? QVariant() : QVariant(node->icon());
    }
    NodeBrief brief;
    if (role != Qt::DisplayRole || !NodeDB::getDB()->getBrief(id, &brief))
        return QVariant();
    if (index.column() == NameCell)
        return brief.name;
    return index.column() == TypeCell ? QVariant(NodeDB::getDB()->readableNodeTypeName(brief.type))
                                      : QVariant();
}

QVariant NodeDBViewer::ViewerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case SymbolCell:
        return NodeViewModel::tr("Symbol");
    case NameCell:
        return NodeViewModel::tr("Name");
    case TypeCell:
        return NodeViewModel::tr("Node type");
    default:
        return QVariant();
    }
}

Qt::ItemFlags NodeDBViewer::ViewerModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

NodeDBViewer::NodeDBViewer(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::NodeDBViewer)
    , m_view(kom::makeSmart<NodeView>(QLatin1String("NodeDBOverview")))
    , m_model(new ViewerModel(m_view, nullptr))
    , m_proxy(new QSortFilterProxyModel)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
    m_proxy->setSourceModel(m_model);
    m_ui->nodesTableView->setModel(m_proxy);

    ko::connect(NodeDB::getDB(), SIGNAL(nodeInserted(ko::NodeID)), m_view.get(), SLOT(addNode(ko::NodeID)));
    ko::connect(m_ui->nodesTableView, SIGNAL(doubleClicked(QModelIndex)), this,
                SLOT(openPropertyWindow(QModelIndex)));

    m_view->fill(NodeDB::getDB()->nodeIdList(AllNodeTypes));
}

NodeDBViewer::~NodeDBViewer() = default;

void NodeDBViewer::keyPressEvent(QKeyEvent* event)
{
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        close();
    else if (opens && m_ui->nodesTableView->hasFocus())
        openPropertyWindow(m_ui->nodesTableView->currentIndex());
    else
        QWidget::keyPressEvent(event);
}

void NodeDBViewer::openPropertyWindow(const QModelIndex index)
{
    const kom::smart<NodeEntry> node = m_model->entry(m_proxy->mapToSource(index)).cast<NodeEntry>();
    if (node.null())
        return;
    GenericNodeViewer* viewer = new GenericNodeViewer(node->id(), this);
    viewer->show();
}

} // namespace ko
