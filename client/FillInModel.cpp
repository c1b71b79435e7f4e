#include "FillInModel.h"

#include "ko/OutsideText.h"

#include <algorithm>

namespace ko {

void FillInModel::setRows(const QVector<FillInRow>& rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

bool FillInModel::hasTicked() const
{
    return std::any_of(m_rows.cbegin(), m_rows.cend(), [](const FillInRow& row) { return row.isTicked; });
}

void FillInModel::tickSet(bool isTicked)
{
    for (FillInRow& row : m_rows)
        row.isTicked = row.fact.isSet ? isTicked : row.isTicked;
    if (!m_rows.isEmpty())
        emit dataChanged(index(0, CameraColumn), index(rowCount() - 1, CameraColumn));
}

int FillInModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int FillInModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString FillInModel::text(const QModelIndex& index) const
{
    const FillInRow& row = m_rows.at(index.row());
    switch (index.column()) {
    case CameraColumn:
        return row.name;
    case WhatColumn:
        return NodeFacts::title(row.fact.key);
    case NowColumn:
        return NodeFacts::text(row.fact.before);
    default:
        return NodeFacts::text(row.fact.after);
    }
}

QVariant FillInModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return OutsideText::visible(text(index));
    if (role == Qt::ToolTipRole) // cells are cut; markup of a device stays text
        return QString(QLatin1String("<p>") + OutsideText::visible(text(index)).toHtmlEscaped());
    if (role == Qt::CheckStateRole && index.column() == CameraColumn)
        return m_rows.at(index.row()).isTicked ? Qt::Checked : Qt::Unchecked;
    return QVariant();
}

bool FillInModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != CameraColumn)
        return false;
    m_rows[index.row()].isTicked = value.toInt() == Qt::Checked;
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags FillInModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == CameraColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant FillInModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case CameraColumn:
        return tr("Camera");
    case WhatColumn:
        return tr("What");
    case NowColumn:
        return tr("Now");
    case ThenColumn:
        return tr("Then");
    default:
        return QVariant();
    }
}

} // namespace ko
