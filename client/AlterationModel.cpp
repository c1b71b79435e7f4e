#include "AlterationModel.h"

#include "database/StoredHistory.h"
#include "ko/OutsideText.h"

namespace ko {

namespace {

constexpr int Page = 200; // changes

} // namespace

AlterationModel::AlterationModel(StoredHistory& history, const HistoryWords& words, QObject* parent)
    : QAbstractTableModel(parent)
    , m_history(history)
    , m_words(words)
{
}

void AlterationModel::setChangeSets(const QVector<qint64>& numbers)
{
    beginResetModel();
    m_numbers.clear(); // a view asks for more while it is told
    m_after = 0;
    m_rows.clear();
    endResetModel();
    m_numbers = numbers;
    fetchMore(QModelIndex());
}

int AlterationModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int AlterationModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString AlterationModel::text(const HistoryWords& words, const Alteration& alteration, int column)
{
    switch (column) {
    case NodeColumn:
        return words.owner(alteration);
    case WhatColumn:
        return words.what(alteration);
    case BeforeColumn:
        return words.before(alteration, alteration.before);
    default:
        return words.after(alteration, alteration.after);
    }
}

QVariant AlterationModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return QVariant();
    const QString cell = OutsideText::visible(text(m_words, m_rows.at(index.row()), index.column()));
    return role == Qt::DisplayRole ? cell : QString(QLatin1String("<p>") + cell.toHtmlEscaped());
}

QString AlterationModel::title(int column)
{
    static const char* const titles[] = {
        QT_TRANSLATE_NOOP("AlterationModel", "Node"), QT_TRANSLATE_NOOP("AlterationModel", "What"),
        QT_TRANSLATE_NOOP("AlterationModel", "Before"), QT_TRANSLATE_NOOP("AlterationModel", "After")};
    return tr(titles[column]);
}

QVariant AlterationModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle && section >= 0 && section < ColumnCount ? QVariant(title(section)) : QVariant();
}

bool AlterationModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && !m_numbers.isEmpty();
}

/// Some more of the first change set that is not read to its end.
QVector<Alteration> AlterationModel::read()
{
    if (!m_node.isEmpty())
        return Alterations::of(m_history.changesOf(m_numbers.takeFirst(), m_node).value_or(ChangeSet()));
    const ChangeSetPart part = m_history.changes(m_numbers.first(), m_after, Page);
    m_after = part.isAtEnd ? 0 : part.after;
    if (part.isAtEnd)
        m_numbers.removeFirst();
    return Alterations::of(part.set);
}

void AlterationModel::fetchMore(const QModelIndex& parent)
{
    QVector<Alteration> rows;
    while (canFetchMore(parent) && rows.size() < Page)
        rows += read();
    for (const Alteration& alteration : std::as_const(rows))
        m_words.learn(alteration);
    if (rows.isEmpty())
        return;
    beginInsertRows(QModelIndex(), rowCount(), rowCount() + int(rows.size()) - 1);
    m_rows += rows;
    endInsertRows();
}

} // namespace ko
