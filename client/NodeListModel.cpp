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

NodeListModel::Entry NodeListModel::entryOf(const NodeSummary& node) const
{
    Entry entry;
    entry.summary = node;
    entry.nameKey = SearchText::sortKey(node.name);
    entry.columnKey =
        m_sortColumn == NameColumn ? entry.nameKey : SearchText::sortKey(cell(node, m_sortColumn));
    return entry;
}

int NodeListModel::compareKeys(Slot a, Slot b) const
{
    const Entry& first = m_nodes[size_t(a)];
    const Entry& second = m_nodes[size_t(b)];
    const int order = first.columnKey.compare(second.columnKey);
    return order != 0 || m_sortColumn == NameColumn ? order : first.nameKey.compare(second.nameKey);
}

bool NodeListModel::less(Slot a, Slot b) const
{
    const int order = m_sortOrder == Qt::AscendingOrder ? compareKeys(a, b) : compareKeys(b, a);
    return order != 0 ? order < 0 : a < b; // a total order, so that a node is found where it must stand
}

/// Where a node stands in \a rows, or would stand.
int NodeListModel::find(const Slots& rows, Slot slot) const
{
    const auto inOrder = [this](Slot a, Slot b) { return less(a, b); };
    return int(std::lower_bound(rows.begin(), rows.end(), slot, inOrder) - rows.begin());
}

/// Where a node belongs that still stands at \a from but has a new key: its row after the move.
int NodeListModel::findAgain(const Slots& rows, Slot slot, int from) const
{
    const auto inOrder = [this](Slot a, Slot b) { return less(a, b); };
    const auto old = rows.begin() + from;
    const auto before = std::lower_bound(rows.begin(), old, slot, inOrder);
    if (before != old)
        return int(before - rows.begin());
    return int(std::lower_bound(old + 1, rows.end(), slot, inOrder) - rows.begin()) - 1;
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
    // Not ==, which in Qt 6 hands the null pointers of two empty lists to memcmp().
    if (std::equal(rows.begin(), rows.end(), m_shown.begin(), m_shown.end()))
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
    sortAll();
    m_shown = filtered(m_sorted);
    prepareHaystacks();
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
    m_nodes[size_t(slot)] = entryOf(node);
    m_slotOf.insert(node.id, slot);
    return slot;
}

void NodeListModel::replace(Slot slot, const NodeSummary& node)
{
    const bool marked = m_nodes[size_t(slot)].marked;
    m_nodes[size_t(slot)] = entryOf(node);
    m_nodes[size_t(slot)].marked = marked;
}

void NodeListModel::apply(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    const bool folders = changesFolders(changed, removed);
    if (changed.size() + removed.size() >= manyChanges) {
        applyMany(changed, removed);
    } else {
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
    if (folders)
        recordingTextsChanged();
}

void NodeListModel::insertOne(const NodeSummary& node)
{
    const Slot slot = addNode(node);
    m_sorted.insert(find(m_sorted, slot), slot);
    if (!matches(slot))
        return;
    const int row = find(m_shown, slot);
    beginInsertRows(QModelIndex(), row, row);
    m_shown.insert(row, slot);
    endInsertRows();
}

void NodeListModel::removeOne(Slot slot)
{
    const QString id = m_nodes[size_t(slot)].summary.id;
    const int row = rowOf(id);
    if (row >= 0) {
        beginRemoveRows(QModelIndex(), row, row);
        m_shown.remove(row);
        endRemoveRows();
    }
    m_sorted.remove(find(m_sorted, slot));
    m_slotOf.remove(id);
    m_nodes[size_t(slot)] = Entry();
    m_free.append(slot);
}

void NodeListModel::updateOne(Slot slot, const NodeSummary& node)
{
    const int row = rowOf(node.id);
    const int place = find(m_sorted, slot);
    replace(slot, node);
    m_sorted.move(place, findAgain(m_sorted, slot, place));
    if (row >= 0 && matches(slot)) {
        moveShown(slot, row, findAgain(m_shown, slot, row));
    } else if (row >= 0) {
        beginRemoveRows(QModelIndex(), row, row);
        m_shown.remove(row);
        endRemoveRows();
    } else if (matches(slot)) {
        const int to = find(m_shown, slot);
        beginInsertRows(QModelIndex(), to, to);
        m_shown.insert(to, slot);
        endInsertRows();
    }
}

void NodeListModel::moveShown(Slot slot, int from, int to)
{
    if (to != from) {
        beginMoveRows(QModelIndex(), from, from, QModelIndex(), to > from ? to + 1 : to);
        m_shown.move(from, to);
        endMoveRows();
    }
    Q_ASSERT(m_shown.at(to) == slot);
    Q_UNUSED(slot);
    emit dataChanged(index(to, 0), index(to, ColumnCount - 1));
}

void NodeListModel::applyMany(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    beginResetModel();
    std::vector<bool> touched(m_nodes.size() + size_t(changed.size()));
    for (const QString& id : removed) {
        const auto found = m_slotOf.find(id);
        if (found == m_slotOf.end())
            continue;
        touched[size_t(*found)] = true;
        m_nodes[size_t(*found)] = Entry();
        m_free.append(*found);
        m_slotOf.erase(found);
    }
    Slots moving;
    for (const NodeSummary& node : changed) {
        const auto found = m_slotOf.constFind(node.id);
        const Slot slot = found == m_slotOf.constEnd() ? addNode(node) : *found;
        touched[size_t(slot)] = true;
        replace(slot, node);
        moving.append(slot);
    }
    std::sort(moving.begin(), moving.end(), [this](Slot a, Slot b) { return less(a, b); });
    moving.erase(std::unique(moving.begin(), moving.end()), moving.end());
    putInPlace(m_sorted, touched, moving);
    putInPlace(m_shown, touched, filtered(moving));
    prepareHaystacks();
    endResetModel();
}

/// Takes what was \a touched out of \a rows and puts \a sorted into them.
void NodeListModel::putInPlace(Slots& rows, const std::vector<bool>& touched, const Slots& sorted)
{
    const auto inOrder = [this](Slot a, Slot b) { return less(a, b); };
    const auto isTouched = [&touched](Slot slot) { return touched[size_t(slot)]; };
    const auto end = std::remove_if(rows.begin(), rows.end(), isTouched);
    Slots merged(int(end - rows.begin()) + int(sorted.size()));
    auto to = merged.begin();
    auto from = rows.begin();
    for (const Slot slot : sorted) {
        const auto next = std::lower_bound(from, end, slot, inOrder);
        to = std::copy(from, next, to);
        *to++ = slot;
        from = next;
    }
    std::copy(from, end, to);
    rows.swap(merged);
}

/// Whether cameras that record into a folder will show something else.
bool NodeListModel::changesFolders(const QVector<NodeSummary>& changed, const QStringList& removed) const
{
    const auto known = [this](const QString& id) {
        const auto found = m_slotOf.constFind(id);
        return found == m_slotOf.constEnd() ? NodeSummary() : m_nodes[size_t(*found)].summary;
    };
    const auto moves = [&known](const NodeSummary& node) {
        const NodeSummary before = known(node.id);
        return before.type == RecordingFolderType && before.location != node.location;
    };
    const auto goes = [&known](const QString& id) { return known(id).type == RecordingFolderType; };
    return std::any_of(changed.begin(), changed.end(), moves) ||
           std::any_of(removed.begin(), removed.end(), goes);
}

void NodeListModel::recordingTextsChanged()
{
    for (Entry& entry : m_nodes)
        entry.haystack = QString();
    prepareHaystacks();
    if (m_sortColumn == RecordingColumn)
        sortRows(RecordingColumn, m_sortOrder);
    if (!m_words.isEmpty())
        refilter(false);
    if (!m_shown.isEmpty())
        emit dataChanged(index(0, RecordingColumn), index(int(m_shown.size()) - 1, RecordingColumn));
}

void NodeListModel::prepareHaystacks()
{
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
    const int row = find(m_shown, *found);
    return row < m_shown.size() && m_shown.at(row) == *found ? row : -1;
}

void NodeListModel::setMarked(const QItemSelection& rows)
{
    for (Entry& entry : m_nodes)
        entry.marked = false;
    for (const QItemSelectionRange& range : rows) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            m_nodes[size_t(m_shown.at(row))].marked = true;
    }
}

QItemSelection NodeListModel::marked() const
{
    const auto isMarked = [this](Slot slot) { return m_nodes[size_t(slot)].marked; };
    QItemSelection selection;
    const auto begin = m_shown.begin();
    for (auto first = std::find_if(begin, m_shown.end(), isMarked); first != m_shown.end();) {
        const auto end = std::find_if_not(first, m_shown.end(), isMarked);
        selection.append(
            QItemSelectionRange(index(int(first - begin), 0), index(int(end - begin) - 1, ColumnCount - 1)));
        first = std::find_if(end, m_shown.end(), isMarked);
    }
    return selection;
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
        // Rows are one line high; a name may hold line breaks.
        return cell(shown, index.column()).replace(QLatin1Char('\n'), QLatin1Char(' '));
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
    if (column >= 0 && column < ColumnCount && (column != m_sortColumn || order != m_sortOrder))
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

    const bool reversed = column == m_sortColumn && order != m_sortOrder;
    m_sortColumn = column;
    m_sortOrder = order;
    if (reversed) {
        reverse();
    } else {
        makeColumnKeys();
        sortAll();
    }
    std::vector<bool> isShown(m_nodes.size());
    for (const Slot slot : std::as_const(m_shown))
        isShown[size_t(slot)] = true;
    std::copy_if(m_sorted.cbegin(), m_sorted.cend(), m_shown.begin(),
                 [&isShown](Slot slot) { return isShown[size_t(slot)]; });

    QModelIndexList after;
    after.reserve(before.size());
    for (int i = 0; i < before.size(); ++i)
        after.append(index(find(m_shown, slotsBefore.at(i)), before.at(i).column()));
    changePersistentIndexList(before, after);
    emit layoutChanged(QList<QPersistentModelIndex>(), QAbstractItemModel::VerticalSortHint);
}

void NodeListModel::makeColumnKeys()
{
    QHash<QString, QString> shared; // types and recordings are the same for many nodes
    for (const Slot slot : std::as_const(m_sorted)) {
        Entry& entry = m_nodes[size_t(slot)];
        if (m_sortColumn == NameColumn) {
            entry.columnKey = entry.nameKey;
        } else if (m_sortColumn == AddressColumn) {
            entry.columnKey = SearchText::sortKey(entry.summary.location);
        } else {
            QString& key = shared[cell(entry.summary, m_sortColumn)];
            if (key.isNull())
                key = SearchText::sortKey(cell(entry.summary, m_sortColumn));
            entry.columnKey = key;
        }
    }
}

void NodeListModel::sortAll()
{
    std::sort(m_sorted.begin(), m_sorted.end());
    sortStably(&Entry::nameKey);
    if (m_sortColumn != NameColumn)
        sortStably(&Entry::columnKey);
    if (m_sortOrder == Qt::DescendingOrder)
        reverse();
}

void NodeListModel::sortStably(QString Entry::*key)
{
    struct Row
    {
        quint64 start;
        Slot slot;
    };
    const auto keyOf = [this, key](Slot slot) -> const QString& { return m_nodes[size_t(slot)].*key; };
    int same = m_sorted.isEmpty() ? 0 : int(keyOf(m_sorted.first()).size());
    for (const Slot slot : std::as_const(m_sorted))
        same = SearchText::sameStart(keyOf(m_sorted.first()), keyOf(slot), same);
    std::vector<Row> rows;
    rows.reserve(size_t(m_sorted.size()));
    for (const Slot slot : std::as_const(m_sorted))
        rows.push_back({SearchText::startNumber(keyOf(slot), same), slot});
    std::stable_sort(rows.begin(), rows.end(), [&keyOf](const Row& a, const Row& b) {
        return a.start != b.start ? a.start < b.start : keyOf(a.slot) < keyOf(b.slot);
    });
    std::transform(rows.begin(), rows.end(), m_sorted.begin(), [](const Row& row) { return row.slot; });
}

/// Turns the order around; nodes with the same keys stay in their order among themselves.
void NodeListModel::reverse()
{
    std::reverse(m_sorted.begin(), m_sorted.end());
    for (auto run = m_sorted.begin(); run != m_sorted.end();) {
        const auto end = std::find_if(run + 1, m_sorted.end(),
                                      [this, run](Slot slot) { return compareKeys(*run, slot) != 0; });
        std::reverse(run, end);
        run = end;
    }
}

} // namespace ko
