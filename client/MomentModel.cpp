#include "MomentModel.h"

#include "drivers/NodeTypes.h"
#include "ko/OutsideText.h"
#include "model/SearchText.h"

#include <QFont>

#include <algorithm>

namespace ko {

namespace {

bool isBefore(const MomentRows::Row& a, const MomentRows::Row& b, int column)
{
    switch (column) {
    case MomentModel::TypeColumn:
        return a.of.node.type < b.of.node.type;
    case MomentModel::AddressColumn:
        return a.addressKey < b.addressKey;
    case MomentModel::DifferenceColumn:
        return a.of.difference < b.of.difference;
    default:
        return a.nameKey < b.nameKey;
    }
}

} // namespace

MomentRows::MomentRows(const Moment& moment)
    : others(moment.others)
    , unknown(moment.unknown)
{
    rows.reserve(moment.nodes.size());
    for (const MomentNode& node : moment.nodes) {
        const QString name = SearchText::folded(node.node.name);
        const QString address = SearchText::folded(node.node.location);
        const QLatin1Char group(NodeTypes::isDevice(node.node.type) ? '0' : '1'); // as in the main list
        rows.append({node, group + SearchText::sortKey(name), SearchText::sortKey(address),
                     name + QLatin1Char('\n') + address});
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.nameKey < b.nameKey; });
}

int MomentRows::nodeCount() const
{
    return int(std::count_if(rows.begin(), rows.end(),
                             [](const Row& row) { return row.of.difference != MomentNode::Added; }));
}

int MomentRows::differing() const
{
    return int(std::count_if(rows.begin(), rows.end(),
                             [](const Row& row) { return row.of.difference != MomentNode::Same; }));
}

void MomentModel::setRows(const MomentRows& rows)
{
    beginResetModel();
    m_all = rows;
    if (m_column != NameColumn || m_order != Qt::AscendingOrder)
        order(); // else they come so
    filter();
    endResetModel();
}

void MomentModel::setFilter(const QString& search, bool onlyDifferent)
{
    beginResetModel();
    m_search = NodeSearch(search, {});
    m_onlyDifferent = onlyDifferent;
    filter();
    endResetModel();
}

void MomentModel::order()
{
    std::stable_sort(m_all.rows.begin(), m_all.rows.end(), [this](const auto& a, const auto& b) {
        return m_order == Qt::AscendingOrder ? isBefore(a, b, m_column) : isBefore(b, a, m_column);
    });
}

void MomentModel::filter()
{
    m_shown.clear();
    for (int i = 0; i < m_all.rows.size(); ++i) {
        const MomentRows::Row& row = m_all.rows.at(i);
        const bool isWanted =
            m_onlyDifferent ? row.of.difference != MomentNode::Same : row.of.difference != MomentNode::Added;
        if (isWanted && m_search.matches(row.text))
            m_shown.append(i);
    }
}

void MomentModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_column = column;
    m_order = order;
    this->order();
    filter();
    endResetModel();
}

int MomentModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int MomentModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString MomentModel::text(const MomentNode& node, int column) const
{
    switch (column) {
    case NameColumn:
        return node.node.name;
    case TypeColumn:
        return NodeTypes::readableName(node.node.type);
    case AddressColumn:
        return node.node.location;
    default:
        return node.difference == MomentNode::Changed   ? tr("Changed")
               : node.difference == MomentNode::Removed ? tr("Removed")
               : node.difference == MomentNode::Added   ? tr("Added")
                                                        : QString();
    }
}

QVariant MomentModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const MomentNode& shown = node(index.row());
    if (role == Qt::FontRole && shown.difference != MomentNode::Same) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    const QString cell = OutsideText::visible(text(shown, index.column()));
    return role == Qt::DisplayRole ? cell : QString(QLatin1String("<p>") + cell.toHtmlEscaped());
}

QVariant MomentModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const titles[] = {
        QT_TRANSLATE_NOOP("MomentModel", "Name"), QT_TRANSLATE_NOOP("MomentModel", "Type"),
        QT_TRANSLATE_NOOP("MomentModel", "Address"), QT_TRANSLATE_NOOP("MomentModel", "Since Then")};
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle && section >= 0 && section < ColumnCount ? QVariant(tr(titles[section])) : QVariant();
}

} // namespace ko
