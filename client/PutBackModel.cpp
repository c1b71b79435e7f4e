#include "PutBackModel.h"

#include "ko/OutsideText.h"

namespace ko {

PutBackModel::PutBackModel(const PutBack& putBack, const HistoryWords& words, QObject* parent)
    : QAbstractTableModel(parent)
    , m_putBack(putBack)
    , m_words(words)
{
    const QVector<Alteration>& alterations = putBack.alterations();
    for (const Alteration& alteration : alterations)
        m_words.learn(alteration);
    for (const PutBackLine& line : putBack.lines)
        m_possible += line.state == PutBackLine::Possible ? 1 : 0;
    m_ticked = int(putBack.chosen().size());
}

void PutBackModel::tickAll(bool isTicked)
{
    for (PutBackLine& line : m_putBack.lines)
        line.isTicked = isTicked;
    m_ticked = isTicked ? m_possible : 0;
    if (rowCount() > 0)
        emit dataChanged(index(0, NodeColumn), index(rowCount() - 1, NodeColumn));
}

int PutBackModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_putBack.lines.size());
}

int PutBackModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString PutBackModel::text(const QModelIndex& index) const
{
    const PutBackLine& shown = line(index.row());
    switch (index.column()) {
    case NodeColumn:
        return m_words.owner(shown.what);
    case WhatColumn:
        return m_words.what(shown.what);
    case NowColumn:
        return m_words.before(shown.what, shown.now);
    case ThenColumn:
        return m_words.after(shown.what,
                             shown.state == PutBackLine::Possible ? shown.what.before : shown.now);
    default:
        return HistoryWords::reason(shown.state);
    }
}

QVariant PutBackModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return OutsideText::visible(text(index));
    if (role == Qt::ToolTipRole) // cells are cut; markup in a name stays text
        return QString(QLatin1String("<p>") + OutsideText::visible(text(index)).toHtmlEscaped());
    if (role == Qt::CheckStateRole && index.column() == NodeColumn) {
        const PutBackLine& shown = line(index.row());
        return shown.isTicked && shown.state == PutBackLine::Possible ? Qt::Checked : Qt::Unchecked;
    }
    return QVariant();
}

bool PutBackModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || !(flags(index) & Qt::ItemIsUserCheckable))
        return false;
    bool& isTicked = m_putBack.lines[index.row()].isTicked;
    const bool before = isTicked;
    isTicked = value.toInt() == Qt::Checked;
    m_ticked += int(isTicked) - int(before);
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags PutBackModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    // One that cannot be put back can be selected and read, but has nothing to tick.
    if (line(index.row()).state != PutBackLine::Possible)
        return Qt::ItemIsSelectable | (index.column() == ReasonColumn ? Qt::ItemIsEnabled : Qt::NoItemFlags);
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == NodeColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant PutBackModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const titles[] = {
        QT_TRANSLATE_NOOP("PutBackModel", "Node"), QT_TRANSLATE_NOOP("PutBackModel", "What"),
        QT_TRANSLATE_NOOP("PutBackModel", "Now"), QT_TRANSLATE_NOOP("PutBackModel", "Will become"),
        QT_TRANSLATE_NOOP("PutBackModel", "Why not")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QVariant();
    return tr(titles[section]);
}

} // namespace ko
