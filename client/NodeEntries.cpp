#include "NodeEntries.h"

#include "drivers/NodeTypes.h"
#include "model/SearchText.h"

#include <algorithm>

namespace ko {

namespace {

const int nameColumn = 0;
const size_t preparedAtOnce = 1000;

bool isDevice(const NodeSummary& node)
{
    return !node.id.isEmpty() && NodeTypes::isDevice(node.type);
}

/// The folders of a hundred cameras would stand before the first camera: their names begin with a slash.
QString nameKeyOf(const NodeSummary& node)
{
    return QChar(isDevice(node) ? 1 : 2) + SearchText::sortKey(node.name);
}

} // namespace

NodeEntries::NodeEntries(CellText text, int columns)
    : m_text(std::move(text))
    , m_columns(columns)
{
}

NodeEntries::Content NodeEntries::contentOf(const QVector<NodeSummary>& nodes)
{
    Content content;
    content.entries.reserve(size_t(nodes.size()));
    content.slotOf.reserve(nodes.size());
    content.byName.reserve(nodes.size());
    for (const NodeSummary& node : nodes) {
        const Slot slot = Slot(content.entries.size());
        content.slotOf.insert(node.id, slot);
        content.byName.append(slot);
        content.devices += int(isDevice(node));
        const QString key = nameKeyOf(node);
        content.entries.push_back({node, key, key, false, QString()});
    }
    sortStably(content.entries, content.byName, &Entry::nameKey);
    return content;
}

NodeEntries::Slots NodeEntries::setContent(Content content)
{
    m_entries = std::move(content.entries);
    m_free.clear();
    m_slotOf = std::move(content.slotOf);
    m_devices = content.devices;
    m_prepared = 0;
    if (m_column != nameColumn) {
        for (Entry& entry : m_entries)
            entry.columnKey = columnKey(entry);
    }
    return inOrder(std::move(content.byName));
}

NodeEntries::Slot NodeEntries::put(const NodeSummary& node)
{
    Slot slot = slotOf(node.id);
    if (slot < 0) {
        slot = m_free.isEmpty() ? slotCount() : m_free.takeLast();
        if (slot == slotCount())
            m_entries.emplace_back();
        m_slotOf.insert(node.id, slot);
    }
    Entry& entry = m_entries[size_t(slot)];
    m_devices += int(isDevice(node)) - int(isDevice(entry.node));
    entry.node = node;
    entry.nameKey = nameKeyOf(node);
    entry.columnKey = columnKey(entry);
    entry.lines = QString();
    m_prepared = std::min(m_prepared, size_t(slot));
    return slot;
}

void NodeEntries::remove(Slot slot)
{
    m_devices -= int(isDevice(node(slot)));
    m_slotOf.remove(node(slot).id);
    m_entries[size_t(slot)] = Entry();
    m_free.append(slot);
}

QString NodeEntries::columnKey(const Entry& entry) const
{
    return m_column == nameColumn ? entry.nameKey : SearchText::sortKey(m_text(entry.node, m_column));
}

void NodeEntries::setOrder(int column, Qt::SortOrder order)
{
    m_order = order;
    if (column == m_column)
        return;
    m_column = column;
    for (Entry& entry : m_entries)
        entry.columnKey = columnKey(entry);
}

bool NodeEntries::less(Slot a, Slot b) const
{
    if (m_order == Qt::DescendingOrder)
        std::swap(a, b);
    const Entry& first = entry(a);
    const Entry& second = entry(b);
    int order = first.columnKey.compare(second.columnKey);
    if (order == 0 && m_column != nameColumn)
        order = first.nameKey.compare(second.nameKey);
    return order != 0 ? order < 0 : a < b;
}

void NodeEntries::sort(Slots& rows) const
{
    std::sort(rows.begin(), rows.end(), [this](Slot a, Slot b) { return less(a, b); });
}

NodeEntries::Slots NodeEntries::sorted() const
{
    Slots rows;
    rows.reserve(count());
    for (const Slot slot : m_slotOf)
        rows.append(slot);
    std::sort(rows.begin(), rows.end());
    sortStably(m_entries, rows, &Entry::nameKey);
    return inOrder(std::move(rows));
}

/// Of rows that are sorted by name.
NodeEntries::Slots NodeEntries::inOrder(Slots rows) const
{
    if (m_column != nameColumn)
        sortStably(m_entries, rows, &Entry::columnKey);
    if (m_order == Qt::DescendingOrder)
        std::reverse(rows.begin(), rows.end());
    return rows;
}

/// By numbers made of the first characters in which the keys differ: few need the whole key, and a hundred
/// thousand nodes take a third of the time.
void NodeEntries::sortStably(const Entries& entries, Slots& rows, QString Entry::*key)
{
    struct Row
    {
        quint64 start;
        Slot slot;
    };
    const auto keyOf = [&entries, key](Slot slot) -> const QString& { return entries[size_t(slot)].*key; };
    int same = rows.isEmpty() ? 0 : int(keyOf(rows.first()).size());
    for (const Slot slot : std::as_const(rows))
        same = SearchText::sameStart(keyOf(rows.first()), keyOf(slot), same);
    std::vector<Row> numbered;
    numbered.reserve(size_t(rows.size()));
    for (const Slot slot : std::as_const(rows))
        numbered.push_back({SearchText::startNumber(keyOf(slot), same), slot});
    std::stable_sort(numbered.begin(), numbered.end(), [&keyOf](const Row& a, const Row& b) {
        return a.start != b.start ? a.start < b.start : keyOf(a.slot) < keyOf(b.slot);
    });
    std::transform(numbered.begin(), numbered.end(), rows.begin(), [](const Row& row) { return row.slot; });
}

int NodeEntries::place(const Slots& rows, Slot slot) const
{
    const auto inOrder = [this](Slot a, Slot b) { return less(a, b); };
    return int(std::lower_bound(rows.begin(), rows.end(), slot, inOrder) - rows.begin());
}

int NodeEntries::placeOfMoved(const Slots& rows, int row) const
{
    const auto inOrder = [this](Slot a, Slot b) { return less(a, b); };
    const auto at = rows.begin() + row;
    const auto before = std::lower_bound(rows.begin(), at, *at, inOrder);
    if (before != at)
        return int(before - rows.begin());
    return int(std::lower_bound(at + 1, rows.end(), *at, inOrder) - rows.begin()) - 1;
}

void NodeEntries::putInPlace(Slots& rows, const std::vector<bool>& touched, const Slots& sorted) const
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

bool NodeEntries::changesFolders(const QVector<NodeSummary>& changed, const QStringList& removed) const
{
    const auto known = [this](const QString& id) {
        const Slot slot = slotOf(id);
        return slot < 0 ? NodeSummary() : node(slot);
    };
    const auto moves = [&known](const NodeSummary& node) {
        const NodeSummary before = known(node.id);
        return before.type == RecordingFolderType && before.location != node.location;
    };
    const auto goes = [&known](const QString& id) { return known(id).type == RecordingFolderType; };
    return std::any_of(changed.begin(), changed.end(), moves) ||
           std::any_of(removed.begin(), removed.end(), goes);
}

const QString& NodeEntries::lines(const Entry& entry) const
{
    if (entry.lines.isNull())
        entry.lines = linesNow(entry.node);
    return entry.lines;
}

QString NodeEntries::linesNow(const NodeSummary& node) const
{
    QString lines;
    for (int column = 0; column < m_columns; ++column)
        lines.append(m_text(node, column)).append(QLatin1Char('\n'));
    return SearchText::folded(lines);
}

bool NodeEntries::matches(Slot slot, const NodeSearch& search) const
{
    return search.isEmpty() || search.matches(lines(entry(slot)));
}

void NodeEntries::forgetTexts(int column)
{
    for (Entry& entry : m_entries) {
        entry.lines = QString();
        if (column == m_column)
            entry.columnKey = columnKey(entry);
    }
    m_prepared = 0;
}

void NodeEntries::forgetTexts(const QString& id)
{
    const Slot slot = slotOf(id);
    if (slot < 0)
        return;
    m_entries[size_t(slot)].lines = QString();
    m_prepared = std::min(m_prepared, size_t(slot));
}

bool NodeEntries::isShownBy(const NodeSummary& node) const
{
    const Slot slot = slotOf(node.id);
    return slot >= 0 && entry(slot).node == node && !entry(slot).lines.isNull() &&
           entry(slot).lines == linesNow(node);
}

bool NodeEntries::prepareSome() const
{
    const size_t end = std::min(m_prepared + preparedAtOnce, m_entries.size());
    for (; m_prepared < end; ++m_prepared)
        lines(m_entries[m_prepared]);
    return m_prepared < m_entries.size();
}

} // namespace ko
