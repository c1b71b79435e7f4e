#include "MomentDetailsModel.h"

#include "ko/OutsideText.h"

#include <QFont>

namespace ko {

MomentDetailsModel::MomentDetailsModel(const HistoryWords& words, QObject* parent)
    : QAbstractTableModel(parent)
    , m_words(words)
{
}

void MomentDetailsModel::setDetails(const QVector<Alteration>& details, const QVector<Alteration>& known)
{
    beginResetModel();
    for (; m_learned < known.size(); ++m_learned) {
        if (known.at(m_learned).kind == Alteration::Node)
            m_words.learn(known.at(m_learned));
    }
    m_details = details;
    endResetModel();
}

int MomentDetailsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_details.size());
}

int MomentDetailsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString MomentDetailsModel::text(const Alteration& detail, int column) const
{
    if (column == WhatColumn)
        return m_words.what(detail);
    // A password is shown to be another one, but neither of both.
    const bool isSame = Alterations::isSame(detail.before, detail.after);
    if (column == ThenColumn || isSame)
        return m_words.before(detail, column == ThenColumn ? detail.before : detail.after);
    return m_words.after(detail, detail.after);
}

QVariant MomentDetailsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Alteration& detail = m_details.at(index.row());
    if (role == Qt::FontRole && !Alterations::isSame(detail.before, detail.after)) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    const QString cell = OutsideText::visible(text(detail, index.column()));
    return role == Qt::DisplayRole ? cell : QString(QLatin1String("<p>") + cell.toHtmlEscaped());
}

QVariant MomentDetailsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const titles[] = {QT_TRANSLATE_NOOP("MomentDetailsModel", "What"),
                                         QT_TRANSLATE_NOOP("MomentDetailsModel", "Then"),
                                         QT_TRANSLATE_NOOP("MomentDetailsModel", "Now")};
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle && section >= 0 && section < ColumnCount ? QVariant(tr(titles[section])) : QVariant();
}

} // namespace ko
