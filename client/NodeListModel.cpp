#include "NodeListModel.h"

#include "drivers/NodeTypes.h"

#include <QTimerEvent>

#include <algorithm>

namespace ko {

namespace {

/// From this many changes on, putting everything in order again is cheaper than row by row.
const int manyChanges = 64;

} // namespace

NodeListModel::NodeListModel(RecordingText recordingText, QObject* parent)
    : QAbstractTableModel(parent)
    , m_columns(std::move(recordingText))
    , m_entries([this](const NodeSummary& node, int column) { return m_columns.text(node, column); },
                m_columns.count())
{
}

bool NodeListModel::passes(Slot slot) const
{
    return (m_type == AllNodeTypes || m_entries.node(slot).type == m_type) &&
           (!m_filter || m_filter(m_entries.node(slot))) && m_entries.matches(slot, m_search);
}

void NodeListModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_preparing.timerId())
        QAbstractTableModel::timerEvent(event);
    else if (!m_entries.prepareSome())
        m_preparing.stop();
}

NodeListModel::Slots NodeListModel::filtered(const Slots& candidates) const
{
    if (m_type == AllNodeTypes && !m_filter && m_search.isEmpty())
        return candidates;
    Slots passed;
    passed.reserve(candidates.size());
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(passed),
                 [this](Slot slot) { return passes(slot); });
    return passed;
}

void NodeListModel::refilter(bool narrower)
{
    const Slots rows = filtered(narrower ? m_shown : m_sorted);
    // Not ==, which in Qt 6 hands the null pointers of two empty lists to memcmp().
    if (std::equal(rows.begin(), rows.end(), m_shown.begin(), m_shown.end()))
        return;
    beginResetModel();
    m_shown = rows;
    endResetModel();
}

void NodeListModel::setContent(NodeEntries::Content content)
{
    beginResetModel();
    m_sorted = m_entries.setContent(std::move(content));
    m_shown = filtered(m_sorted);
    m_preparing.start(0, this);
    endResetModel();
}

void NodeListModel::apply(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    const bool folders = m_entries.changesFolders(changed, removed);
    QVector<NodeSummary> differing;
    std::copy_if(changed.begin(), changed.end(), std::back_inserter(differing),
                 [this](const NodeSummary& node) { return !m_entries.isShownBy(node); });
    put(differing, removed);
    for (const QString& id : removed)
        m_columns.forget(id);
    if (folders)
        textsChanged(RecordingColumn);
}

void NodeListModel::put(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    if (changed.size() + removed.size() >= manyChanges)
        applyMany(changed, removed);
    else
        applyOneByOne(changed, removed);
}

void NodeListModel::applyOneByOne(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    for (const QString& id : removed) {
        const Slot slot = m_entries.slotOf(id);
        if (slot >= 0)
            removeOne(slot);
    }
    for (const NodeSummary& node : changed) {
        const Slot slot = m_entries.slotOf(node.id);
        if (slot < 0)
            insertOne(node);
        else
            updateOne(slot, node);
    }
}

void NodeListModel::showRow(Slot slot)
{
    const int row = m_entries.place(m_shown, slot);
    beginInsertRows(QModelIndex(), row, row);
    m_shown.insert(row, slot);
    endInsertRows();
}

void NodeListModel::hideRow(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
    m_shown.remove(row);
    endRemoveRows();
}

void NodeListModel::insertOne(const NodeSummary& node)
{
    const Slot slot = m_entries.put(node);
    m_sorted.insert(m_entries.place(m_sorted, slot), slot);
    if (passes(slot))
        showRow(slot);
}

void NodeListModel::removeOne(Slot slot)
{
    const int row = rowOf(m_entries.node(slot).id);
    if (row >= 0)
        hideRow(row);
    m_sorted.remove(m_entries.place(m_sorted, slot));
    m_entries.remove(slot);
}

void NodeListModel::updateOne(Slot slot, const NodeSummary& node)
{
    const int row = rowOf(node.id);
    m_sorted.remove(m_entries.place(m_sorted, slot));
    m_entries.put(node);
    m_sorted.insert(m_entries.place(m_sorted, slot), slot);
    const bool shows = passes(slot);
    if (row >= 0 && shows) {
        moveRow(row, m_entries.placeOfMoved(m_shown, row));
    } else if (row >= 0) {
        hideRow(row);
    } else if (shows) {
        showRow(slot);
    }
}

/// \a to is the row after the move.
void NodeListModel::moveRow(int from, int to)
{
    if (to != from) {
        beginMoveRows(QModelIndex(), from, from, QModelIndex(), to > from ? to + 1 : to);
        m_shown.move(from, to);
        endMoveRows();
    }
    emit dataChanged(index(to, 0), index(to, columnCount() - 1));
}

void NodeListModel::applyMany(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    beginResetModel();
    std::vector<bool> touched(size_t(m_entries.slotCount() + int(changed.size())));
    for (const QString& id : removed) {
        const Slot slot = m_entries.slotOf(id);
        if (slot < 0)
            continue;
        touched[size_t(slot)] = true;
        m_entries.remove(slot);
    }
    Slots moving;
    for (const NodeSummary& node : changed) {
        const Slot slot = m_entries.put(node);
        touched[size_t(slot)] = true;
        moving.append(slot);
    }
    m_entries.sort(moving);
    moving.erase(std::unique(moving.begin(), moving.end()), moving.end());
    m_entries.putInPlace(m_sorted, touched, moving);
    m_entries.putInPlace(m_shown, touched, filtered(moving));
    m_preparing.start(0, this);
    endResetModel();
}

void NodeListModel::textsChanged(int column)
{
    m_entries.forgetTexts(column);
    m_preparing.start(0, this);
    if (m_entries.sortColumn() == column)
        sortRows(column, m_entries.sortOrder());
    if (!m_search.isEmpty())
        refilter(false);
    if (!m_shown.isEmpty())
        emit dataChanged(index(0, column), index(int(m_shown.size()) - 1, column));
}

void NodeListModel::retranslate()
{
    m_columns.retranslate();
    for (const int column : {TypeColumn, RecordingColumn, StateColumn})
        textsChanged(column);
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void NodeListModel::fill(int column, const ListColumns::Texts& texts)
{
    m_columns.fill(column, texts);
    textsChanged(column);
}

void NodeListModel::empty(int column)
{
    m_columns.empty(column);
    textsChanged(column);
}

void NodeListModel::setText(int column, const QString& id, const QString& text)
{
    m_columns.setText(column, id, text);
    m_entries.forgetTexts(id);
}

CameraState NodeListModel::stateOf(const QString& id) const
{
    const Slot slot = m_entries.slotOf(id);
    return slot < 0 ? CameraState() : m_columns.state(m_entries.node(slot));
}

void NodeListModel::setStates(const QHash<QString, CameraState>& states)
{
    QVector<NodeSummary> nodes;
    for (auto state = states.begin(); state != states.end(); ++state) {
        const Slot slot = m_entries.slotOf(state.key());
        if (slot < 0)
            continue;
        nodes.append(m_entries.node(slot));
        m_columns.setState(nodes.last().id, state.value());
    }
    if (!m_search.isEmpty() || m_entries.sortColumn() == StateColumn)
        put(nodes, {});
    else
        stateCellsChanged(nodes);
}

/// Nothing moves, comes or goes.
void NodeListModel::stateCellsChanged(const QVector<NodeSummary>& nodes)
{
    int first = rowCount();
    int last = -1;
    for (const NodeSummary& node : nodes) {
        m_entries.forgetTexts(node.id);
        const int row = rowOf(node.id);
        if (row < 0)
            continue;
        first = std::min(first, row);
        last = std::max(last, row);
    }
    m_preparing.start(0, this);
    if (last >= 0)
        emit dataChanged(index(first, StateColumn), index(last, StateColumn));
}

void NodeListModel::setSearch(const QString& text)
{
    const NodeSearch search(text, m_columns.fields());
    if (search == m_search)
        return;
    const bool narrower = search.isWithin(m_search);
    m_search = search;
    refilter(narrower);
}

void NodeListModel::setTypeFilter(ENodeType type)
{
    if (type == m_type)
        return;
    const bool narrower = m_type == AllNodeTypes;
    m_type = type;
    refilter(narrower);
}

QStringList NodeListModel::firstIds(int count) const
{
    QStringList ids;
    for (int i = 0; i < std::min(count, int(m_sorted.size())); ++i)
        ids.append(m_entries.node(m_sorted.at(i)).id);
    return ids;
}

int NodeListModel::rowOf(const QString& id) const
{
    const Slot slot = m_entries.slotOf(id);
    if (slot < 0)
        return -1;
    const int row = m_entries.place(m_shown, slot);
    return row < m_shown.size() && m_shown.at(row) == slot ? row : -1;
}

void NodeListModel::setMarked(const QItemSelection& rows)
{
    for (const Slot slot : std::as_const(m_sorted))
        m_entries.setMarked(slot, false);
    for (const QItemSelectionRange& range : rows) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            m_entries.setMarked(m_shown.at(row), true);
    }
}

QItemSelection NodeListModel::marked() const
{
    const auto isMarked = [this](Slot slot) { return m_entries.isMarked(slot); };
    QItemSelection selection;
    const auto begin = m_shown.begin();
    for (auto first = std::find_if(begin, m_shown.end(), isMarked); first != m_shown.end();) {
        const auto end = std::find_if_not(first, m_shown.end(), isMarked);
        selection.append(QItemSelectionRange(index(int(first - begin), 0),
                                             index(int(end - begin) - 1, columnCount() - 1)));
        first = std::find_if(end, m_shown.end(), isMarked);
    }
    return selection;
}

QVariant NodeListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_shown.size())
        return QVariant();
    const NodeSummary& shown = node(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return m_entries.text(m_shown.at(index.row()), index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(NodeTypes::icon(shown.type)) : QVariant();
    case Qt::ForegroundRole:
    case Qt::ToolTipRole:
        return m_columns.decoration(shown, index.column(), role);
    case NodeIdRole:
        return shown.id;
    case NodeTypeRole:
        return int(shown.type);
    default:
        return QVariant();
    }
}

QVariant NodeListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle && section >= 0 && section < columnCount() ? QVariant(m_columns.title(section))
                                                              : QVariant();
}

void NodeListModel::sort(int column, Qt::SortOrder order)
{
    const bool isNew = column != m_entries.sortColumn() || order != m_entries.sortOrder();
    if (column >= 0 && column < columnCount() && isNew)
        sortRows(column, order);
}

void NodeListModel::sortRows(int column, Qt::SortOrder order)
{
    emit layoutAboutToBeChanged(QList<QPersistentModelIndex>(), QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    Slots slotsBefore;
    slotsBefore.reserve(int(before.size()));
    for (const QModelIndex& index : before)
        slotsBefore.append(m_shown.at(index.row()));

    const bool turned = column == m_entries.sortColumn() && order != m_entries.sortOrder();
    m_entries.setOrder(column, order);
    if (turned)
        std::reverse(m_sorted.begin(), m_sorted.end());
    else
        m_sorted = m_entries.sorted();
    std::vector<bool> isShown(size_t(m_entries.slotCount()));
    for (const Slot slot : std::as_const(m_shown))
        isShown[size_t(slot)] = true;
    std::copy_if(m_sorted.cbegin(), m_sorted.cend(), m_shown.begin(),
                 [&isShown](Slot slot) { return isShown[size_t(slot)]; });

    QModelIndexList after;
    after.reserve(before.size());
    for (int i = 0; i < before.size(); ++i)
        after.append(index(m_entries.place(m_shown, slotsBefore.at(i)), before.at(i).column()));
    changePersistentIndexList(before, after);
    emit layoutChanged(QList<QPersistentModelIndex>(), QAbstractItemModel::VerticalSortHint);
}

} // namespace ko
