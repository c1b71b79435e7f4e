#include "ko/NodeViewModel.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"

#include <QMimeData>

namespace ko {

namespace {

/// Microseconds that a sorted proxy and its view take for another row.
int timeOfARow(int rows)
{
    return 5 + rows / 500;
}

} // namespace

NodeViewModel::NodeViewModel(kom::smart<NodeView> view, QObject* parent)
    : QAbstractItemModel(parent)
    , m_view(view)
    , m_rootRows(view->root().count())
{
    ko::connect(&m_frame, SIGNAL(due()), this, SLOT(tellWaiting()));
    const NodeView* source = m_view.get();
    ko::connect(source, SIGNAL(entriesAboutToBeInserted(uint, int, int)), this,
                SLOT(entriesAboutToBeInserted(uint, int, int)));
    ko::connect(source, SIGNAL(entriesInserted()), this, SLOT(entriesInserted()));
    ko::connect(source, SIGNAL(entryAboutToBeRemoved(uint, int)), this,
                SLOT(entryAboutToBeRemoved(uint, int)));
    ko::connect(source, SIGNAL(entryRemoved()), this, SLOT(entryRemoved()));
    ko::connect(source, SIGNAL(aboutToBeCleared()), this, SLOT(aboutToBeCleared()));
    ko::connect(source, SIGNAL(cleared()), this, SLOT(cleared()));
    ko::connect(NodeDB::getDB(), SIGNAL(nodeUpdated(ko::NodeID)), this, SLOT(nodeChanged(ko::NodeID)));
    ko::connect(NodeDB::getDB(), SIGNAL(nodeRemoved(ko::NodeID)), this, SLOT(nodeChanged(ko::NodeID)));
}

NodeViewModel::~NodeViewModel() = default;

kom::smart<NodeViewEntry> NodeViewModel::entry(const QModelIndex& index) const
{
    if (!index.isValid())
        return kom::smart<NodeViewEntry>();
    return m_view->entryFromInternalId(unsigned(index.internalId()));
}

const NodeViewEntry* NodeViewModel::shownAt(const QModelIndex& index) const
{
    return index.isValid() ? m_view->findEntry(unsigned(index.internalId())) : nullptr;
}

const SubViewEntry* NodeViewModel::list(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return &m_view->root();
    return parent.column() == 0 ? dynamic_cast<const SubViewEntry*>(shownAt(parent)) : nullptr;
}

QModelIndex NodeViewModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column < 0 || column >= columnCount(parent) || row < 0 || row >= NodeViewModel::rowCount(parent))
        return QModelIndex();
    return createIndex(row, column, list(parent)->internalIdAt(row));
}

QModelIndex NodeViewModel::parent(const QModelIndex& child) const
{
    const NodeViewEntry* childEntry = shownAt(child);
    const SubViewEntry* parent = childEntry ? m_view->parentOf(*childEntry) : nullptr;
    return parent ? indexOf(*parent, 0) : QModelIndex();
}

int NodeViewModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_rootRows;
    const SubViewEntry* entries = list(parent);
    return entries ? entries->count() : 0;
}

int NodeViewModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

QVariant NodeViewModel::data(const QModelIndex& index, int role) const
{
    const NodeViewEntry* shown = shownAt(index);
    if (!shown)
        return QVariant();
    if (!shown->isNode()) {
        const bool named = index.column() == NameColumn && (role == Qt::DisplayRole || role == Qt::EditRole);
        return named ? QVariant(static_cast<const SubViewEntry*>(shown)->name()) : QVariant();
    }
    // A sorted list reads the same cells again and again.
    const NodeEntry* entry = static_cast<const NodeEntry*>(shown);
    if (role == Qt::DecorationRole && index.column() == NameColumn) {
        const kom::smart<const Node> node = NodeDB::getDB()->node(entry->id());
        return node.null() ? QVariant() : QVariant(node->icon());
    }
    if (role != Qt::DisplayRole)
        return QVariant();
    if (!entry->m_shown) {
        NodeBrief brief;
        if (!NodeDB::getDB()->getBrief(entry->id(), &brief))
            return QVariant();
        entry->m_shown = std::make_unique<NodeBrief>(brief);
    }
    const NodeBrief& brief = *entry->m_shown;
    switch (index.column()) {
    case NameColumn:
        return brief.name;
    case TypeColumn:
        return NodeDB::getDB()->readableNodeTypeName(brief.type);
    case AddressColumn:
        return brief.isDevice ? QVariant(brief.address) : QVariant();
    default:
        return QVariant();
    }
}

bool NodeViewModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const kom::smart<SubViewEntry> renamed = entry(index).cast<SubViewEntry>();
    if (renamed.null() || index.column() != NameColumn || role != Qt::EditRole)
        return false;
    m_view->renameSubView(*renamed, value.toString());
    emit dataChanged(index, index);
    return true;
}

QVariant NodeViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Name");
    case TypeColumn:
        return tr("Type");
    case AddressColumn:
        return tr("Address");
    default:
        return QVariant();
    }
}

Qt::ItemFlags NodeViewModel::flags(const QModelIndex& index) const
{
    const NodeViewEntry* shown = shownAt(index);
    if (!shown)
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (shown->isNode())
        return flags | Qt::ItemIsDragEnabled;
    return index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

QString NodeViewModel::mimeType()
{
    return QLatin1String("application/x-ko-nodeids");
}

QStringList NodeViewModel::mimeTypes() const
{
    return QStringList(mimeType());
}

QMimeData* NodeViewModel::mimeData(const QModelIndexList& indexes) const
{
    QStringList ids;
    for (const QModelIndex& index : indexes) {
        const kom::smart<NodeEntry> node = entry(index).cast<NodeEntry>();
        if (index.column() == 0 && !node.null())
            ids.append(node->id());
    }
    if (ids.isEmpty())
        return nullptr;
    QMimeData* data = new QMimeData;
    data->setData(mimeType(), ids.join(QString(QLatin1Char('\n'))).toUtf8());
    return data;
}

void NodeViewModel::entriesAboutToBeInserted(unsigned listId, int first, int last)
{
    m_told = Nothing;
    if (listId == m_view->root().internalId()) {
        if (first == m_rootRows && m_frame.isNow(timeOfARow(m_rootRows)))
            m_told = InRoot;
    } else if (isShown(*m_view->findEntry(listId))) {
        m_told = InList;
    }
    if (m_told != Nothing)
        beginInsertRows(indexOfList(listId), first, last);
}

void NodeViewModel::entriesInserted()
{
    if (m_told == InRoot)
        m_rootRows = m_view->root().count();
    if (m_told != Nothing)
        endInsertRows();
}

void NodeViewModel::tellWaiting()
{
    tellChanges();
    tellAppended();
}

void NodeViewModel::tellAppended()
{
    const int count = m_view->root().count();
    if (count == m_rootRows)
        return;
    beginInsertRows(QModelIndex(), m_rootRows, count - 1);
    m_rootRows = count;
    endInsertRows();
}

void NodeViewModel::entryAboutToBeRemoved(unsigned listId, int row)
{
    m_told = Nothing;
    if (listId == m_view->root().internalId())
        m_told = row < m_rootRows ? InRoot : Nothing;
    else if (isShown(*m_view->findEntry(listId)))
        m_told = InList;
    if (m_told != Nothing)
        beginRemoveRows(indexOfList(listId), row, row);
}

void NodeViewModel::entryRemoved()
{
    if (m_told == InRoot)
        --m_rootRows;
    if (m_told != Nothing)
        endRemoveRows();
}

void NodeViewModel::aboutToBeCleared()
{
    beginResetModel();
}

void NodeViewModel::cleared()
{
    m_rootRows = 0;
    endResetModel();
}

void NodeViewModel::nodeChanged(ko::NodeID id)
{
    const QList<kom::smart<NodeEntry>> entries = m_view->entriesOf(id);
    for (const kom::smart<NodeEntry>& changed : entries) {
        changed->m_shown.reset();
        const QModelIndex index = indexOf(*changed, 0);
        if (!index.isValid())
            continue; // it is read when it is told
        if (m_frame.isNow(timeOfARow(m_rootRows)))
            tellChanged(index.row(), index.row(), index.parent());
        else
            m_changed.append(changed->internalId());
    }
}

void NodeViewModel::tellChanged(int firstRow, int lastRow, const QModelIndex& parent)
{
    emit dataChanged(index(firstRow, 0, parent), index(lastRow, columnCount(parent) - 1, parent));
}

/// In the view's own list as one range, which may hold rows that did not change.
void NodeViewModel::tellChanges()
{
    int first = m_rootRows;
    int last = -1;
    QList<unsigned> changed;
    changed.swap(m_changed);
    for (const unsigned internalId : std::as_const(changed)) {
        const NodeViewEntry* entry = m_view->findEntry(internalId);
        const QModelIndex index = entry ? indexOf(*entry, 0) : QModelIndex();
        if (index.parent().isValid()) {
            tellChanged(index.row(), index.row(), index.parent());
        } else if (index.isValid()) {
            first = qMin(first, index.row());
            last = qMax(last, index.row());
        }
    }
    if (last >= 0)
        tellChanged(first, last, QModelIndex());
}

/// Invalid if it is not shown yet.
QModelIndex NodeViewModel::indexOf(const NodeViewEntry& entry, int column) const
{
    if (!isShown(entry))
        return QModelIndex();
    return createIndex(m_view->parentOf(entry)->rowOf(entry), column, entry.internalId());
}

QModelIndex NodeViewModel::indexOfList(unsigned listId) const
{
    const NodeViewEntry* entry = m_view->findEntry(listId);
    return entry ? indexOf(*entry, 0) : QModelIndex();
}

bool NodeViewModel::isShown(const NodeViewEntry& entry) const
{
    const SubViewEntry* parent = m_view->parentOf(entry);
    if (parent == &m_view->root())
        return parent->rowOf(entry) < m_rootRows;
    return parent && isShown(*parent);
}

} // namespace ko
