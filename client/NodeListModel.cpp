#include "NodeListModel.h"

#include "SearchText.h"
#include "drivers/NodeTypes.h"

#include <QTimerEvent>

#include <algorithm>
#include <numeric>

namespace ko {

namespace {

/// From so many changes on, putting everything in order again is cheaper than row by row.
const int manyChanges = 64;

/// So many haystacks take about a millisecond.
const size_t preparedAtOnce = 1000;

/// Whether what passes the new words passed the old ones too.
bool isNarrower(const QStringList& words, const QStringList& oldWords)
{
    return std::all_of(oldWords.begin(), oldWords.end(), [&words](const QString& old) {
        return std::any_of(words.begin(), words.end(),
                           [&old](const QString& word) { return word.contains(old); });
    });
}

} // namespace

NodeListModel::NodeListModel(RecordingText recordingText, QObject* parent)
    : QAbstractTableModel(parent)
    , m_recordingText(std::move(recordingText))
{
}

QString NodeListModel::cell(const NodeSummary& node, int column) const
{
    switch (column) {
    case NameColumn:
        return node.name;
    case TypeColumn:
        return NodeTypes::readableName(node.type);
    case AddressColumn:
        return node.location;
    default:
        return m_recordingText(node);
    }
}

QString NodeListModel::keyOf(const NodeSummary& node) const
{
    const QString name = SearchText::sortKey(node.name);
    if (m_sortColumn == NameColumn)
        return name;
    return SearchText::sortKey(cell(node, m_sortColumn)) + QChar(0) + name;
}

bool NodeListModel::less(Slot a, Slot b) const
{
    const QString& first = m_nodes[size_t(a)].sortKey;
    const QString& second = m_nodes[size_t(b)].sortKey;
    const int order = m_sortOrder == Qt::AscendingOrder ? first.compare(second) : second.compare(first);
    return order != 0 ? order < 0 : a < b; // a total order, so that a node is found where it must stand
}

NodeListModel::Slots::const_iterator NodeListModel::find(const Slots& rows, Slot slot) const
{
    return std::lower_bound(rows.begin(), rows.end(), slot, [this](Slot a, Slot b) { return less(a, b); });
}

const QString& NodeListModel::haystack(const Entry& entry) const
{
    if (entry.haystack.isNull()) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column)
            cells.append(cell(entry.summary, column));
        entry.haystack = SearchText::folded(cells.join(QLatin1Char('\n')));
    }
    return entry.haystack;
}

bool NodeListModel::matches(Slot slot) const
{
    const Entry& entry = m_nodes[size_t(slot)];
    if (m_type != AllNodeTypes && entry.summary.type != m_type)
        return false;
    if (m_words.isEmpty())
        return true;
    const QString& text = haystack(entry);
    return std::all_of(m_words.begin(), m_words.end(),
                       [&text](const QString& word) { return text.contains(word); });
}

void NodeListModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_preparing.timerId()) {
        QAbstractTableModel::timerEvent(event);
        return;
    }
    const size_t end = std::min(m_prepared + preparedAtOnce, m_nodes.size());
    for (; m_prepared < end; ++m_prepared)
        haystack(m_nodes[m_prepared]);
    if (m_prepared == m_nodes.size())
        m_preparing.stop();
}

NodeListModel::Slots NodeListModel::filtered(const Slots& candidates) const
{
    Slots passed;
    passed.reserve(candidates.size());
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(passed),
                 [this](Slot slot) { return matches(slot); });
    return passed;
}

void NodeListModel::show(const Slots& rows)
{
    if (rows == m_shown)
        return;
    beginResetModel();
    m_shown = rows;
    endResetModel();
}

void NodeListModel::refilter(bool narrower)
{
    show(filtered(narrower ? m_shown : m_sorted));
}

void NodeListModel::setNodes(const QVector<NodeSummary>& nodes)
{
    beginResetModel();
    m_nodes.clear();
    m_free.clear();
    m_slotOf.clear();
    m_slotOf.reserve(int(nodes.size()));
    m_nodes.reserve(size_t(nodes.size()));
    for (const NodeSummary& node : nodes)
        addNode(node);
    m_sorted.resize(int(m_nodes.size()));
    std::iota(m_sorted.begin(), m_sorted.end(), 0);
    std::sort(m_sorted.begin(), m_sorted.end(), [this](Slot a, Slot b) { return less(a, b); });
    forgetHaystacks();
    m_shown = filtered(m_sorted);
    endResetModel();
}

NodeListModel::Slot NodeListModel::addNode(const NodeSummary& node)
{
    Slot slot = int(m_nodes.size());
    if (m_free.isEmpty()) {
        m_nodes.push_back(Entry());
    } else {
        slot = m_free.takeLast();
    }
    m_nodes[size_t(slot)] = Entry{node, keyOf(node), QString()};
    m_slotOf.insert(node.id, slot);
    return slot;
}

void NodeListModel::apply(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    if (changed.size() + removed.size() >= manyChanges) {
        rebuild(changed, removed);
        return;
    }
    for (const QString& id : removed) {
        const auto found = m_slotOf.constFind(id);
        if (found != m_slotOf.constEnd())
            removeOne(*found);
    }
    for (const NodeSummary& node : changed) {
        const auto found = m_slotOf.constFind(node.id);
        if (found == m_slotOf.constEnd())
            insertOne(node);
        else
            updateOne(*found, node);
    }
}

void NodeListModel::insertOne(const NodeSummary& node)
{
    const Slot slot = addNode(node);
    m_sorted.insert(int(find(m_sorted, slot) - m_sorted.constBegin()), slot);
    showAgain(slot, -1);
}

void NodeListModel::removeOne(Slot slot)
{
    const int row = rowOf(m_nodes[size_t(slot)].summary.id);
    if (row >= 0) {
        beginRemoveRows(QModelIndex(), row, row);
        m_shown.remove(row);
        endRemoveRows();
    }
    m_sorted.remove(int(find(m_sorted, slot) - m_sorted.constBegin()));
    m_slotOf.remove(m_nodes[size_t(slot)].summary.id);
    m_nodes[size_t(slot)] = Entry();
    m_free.append(slot);
}

void NodeListModel::updateOne(Slot slot, const NodeSummary& node)
{
    Entry& entry = m_nodes[size_t(slot)];
    const bool folderMoved = node.type == RecordingFolderType && node.location != entry.summary.location;
    const int from = rowOf(node.id);
    m_sorted.remove(int(find(m_sorted, slot) - m_sorted.constBegin()));
    entry = Entry{node, keyOf(node), QString()};
    m_sorted.insert(int(find(m_sorted, slot) - m_sorted.constBegin()), slot);
    showAgain(slot, from);
    if (folderMoved)
        forgetHaystacks(); // cameras that record there show the folder's path
}

void NodeListModel::showAgain(Slot slot, int from)
{
    Slots others = m_shown;
    if (from >= 0)
        others.remove(from);
    const int to = int(find(others, slot) - others.constBegin());
    if (!matches(slot)) {
        if (from < 0)
            return;
        beginRemoveRows(QModelIndex(), from, from);
        m_shown = others;
        endRemoveRows();
        return;
    }
    others.insert(to, slot);
    if (from < 0) {
        beginInsertRows(QModelIndex(), to, to);
        m_shown = others;
        endInsertRows();
        return;
    }
    if (to != from) {
        beginMoveRows(QModelIndex(), from, from, QModelIndex(), to > from ? to + 1 : to);
        m_shown = others;
        endMoveRows();
    }
    emit dataChanged(index(to, 0), index(to, ColumnCount - 1));
}

void NodeListModel::rebuild(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    beginResetModel();
    for (const QString& id : removed) {
        const auto found = m_slotOf.find(id);
        if (found == m_slotOf.end())
            continue;
        m_nodes[size_t(*found)] = Entry();
        m_free.append(*found);
        m_slotOf.erase(found);
    }
    for (const NodeSummary& node : changed) {
        const auto found = m_slotOf.constFind(node.id);
        if (found == m_slotOf.constEnd())
            addNode(node);
        else
            m_nodes[size_t(*found)] = Entry{node, keyOf(node), QString()};
    }
    m_sorted.clear();
    m_sorted.reserve(int(m_slotOf.size()));
    for (const Slot slot : std::as_const(m_slotOf))
        m_sorted.append(slot);
    std::sort(m_sorted.begin(), m_sorted.end(), [this](Slot a, Slot b) { return less(a, b); });
    forgetHaystacks();
    m_shown = filtered(m_sorted);
    endResetModel();
}

void NodeListModel::forgetHaystacks()
{
    for (Entry& entry : m_nodes)
        entry.haystack = QString();
    m_prepared = 0;
    m_preparing.start(0, this);
}

void NodeListModel::setSearch(const QString& text)
{
    const QStringList words = SearchText::folded(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    const bool narrower = isNarrower(words, m_words);
    m_words = words;
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

int NodeListModel::rowOf(const QString& id) const
{
    const auto found = m_slotOf.constFind(id);
    if (found == m_slotOf.constEnd())
        return -1;
    const auto position = find(m_shown, *found);
    return position != m_shown.constEnd() && *position == *found ? int(position - m_shown.constBegin()) : -1;
}

int NodeListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int NodeListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant NodeListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_shown.size())
        return QVariant();
    const NodeSummary& shown = node(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cell(shown, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(NodeTypes::icon(shown.type)) : QVariant();
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
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Name");
    case TypeColumn:
        return tr("Type");
    case AddressColumn:
        return tr("Address");
    case RecordingColumn:
        return tr("Recording");
    default:
        return QVariant();
    }
}

void NodeListModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= ColumnCount || (column == m_sortColumn && order == m_sortOrder))
        return;
    emit layoutAboutToBeChanged(QList<QPersistentModelIndex>(), QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    Slots slotsBefore;
    for (const QModelIndex& index : before)
        slotsBefore.append(m_shown.at(index.row()));

    if (column != m_sortColumn) {
        m_sortColumn = column;
        for (const Slot slot : std::as_const(m_sorted))
            m_nodes[size_t(slot)].sortKey = keyOf(m_nodes[size_t(slot)].summary);
    }
    m_sortOrder = order;
    const auto inOrder = [this](Slot a, Slot b) { return less(a, b); };
    std::sort(m_sorted.begin(), m_sorted.end(), inOrder);
    if (m_shown.size() == m_sorted.size())
        m_shown = m_sorted;
    else
        std::sort(m_shown.begin(), m_shown.end(), inOrder);

    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i) {
        const int row = int(find(m_shown, slotsBefore.at(i)) - m_shown.constBegin());
        after.append(index(row, before.at(i).column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged(QList<QPersistentModelIndex>(), QAbstractItemModel::VerticalSortHint);
}

} // namespace ko
