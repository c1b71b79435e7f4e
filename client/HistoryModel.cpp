#include "HistoryModel.h"

#include "audit/ChangeSetTitle.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>

namespace ko {

namespace {

constexpr int Page = 100; // rows; more than a window shows
constexpr int Budget = 5; // ms for a portion
constexpr int LargestPortion = 4096;

} // namespace

HistoryModel::HistoryModel(StoredHistory& history, QObject* parent)
    : QAbstractTableModel(parent)
    , m_history(history)
{
    connect(&m_timer, &QTimer::timeout, this, &HistoryModel::look);
}

void HistoryModel::setFilter(const HistoryFilter& filter, qint64 before)
{
    beginResetModel();
    m_filter = filter;
    m_rows.clear();
    m_before = before;
    m_isAtEnd = false;
    endResetModel();
    m_wanted = 0;
    lookFor(Page);
    look(); // what is found at once is there at once
}

void HistoryModel::lookFor(int rows)
{
    m_wanted = qMax(m_wanted, rows);
    if (m_timer.isActive())
        return;
    m_timer.start(0);
    emit lookingChanged();
}

void HistoryModel::look()
{
    QElapsedTimer clock;
    clock.start();
    const HistoryPage page = m_history.page(m_filter, m_before, m_portion);
    const qint64 took = clock.elapsed();
    if (took < Budget)
        m_portion = qMin(LargestPortion, m_portion * 2);
    else if (took > 2 * Budget)
        m_portion = qMax(1, m_portion / 2);
    m_isAtEnd = page.isAtEnd;
    m_before = page.before;
    if (!page.rows.isEmpty()) {
        beginInsertRows(QModelIndex(), rowCount(), rowCount() + int(page.rows.size()) - 1);
        m_rows += page.rows;
        endInsertRows();
    }
    if (m_timer.isActive() && (m_isAtEnd || rowCount() >= m_wanted)) {
        m_timer.stop();
        emit lookingChanged();
    }
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int HistoryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    if (index.isValid() && role == Qt::TextAlignmentRole && index.column() == NodesColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return QVariant();
    const ChangeSetRow& row = m_rows.at(index.row());
    switch (index.column()) {
    case TimeColumn:
        return QDateTime::fromMSecsSinceEpoch(row.cause.time).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    case UserColumn:
        return OutsideText::visible(row.cause.user);
    case StationColumn:
        return OutsideText::visible(row.cause.station);
    case TitleColumn: {
        const QString title = OutsideText::visible(ChangeSetTitle::of(row));
        return role == Qt::ToolTipRole ? QString(QLatin1String("<p>") + title.toHtmlEscaped()) : title;
    }
    default:
        return row.nodes > 0 ? QLocale().toString(row.nodes) : QString();
    }
}

QString HistoryModel::title(int column)
{
    static const char* const titles[] = {
        QT_TRANSLATE_NOOP("HistoryModel", "Time"), QT_TRANSLATE_NOOP("HistoryModel", "User"),
        QT_TRANSLATE_NOOP("HistoryModel", "Station"), QT_TRANSLATE_NOOP("HistoryModel", "What was done"),
        QT_TRANSLATE_NOOP("HistoryModel", "Nodes")};
    return tr(titles[column]);
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle && section >= 0 && section < ColumnCount ? QVariant(title(section)) : QVariant();
}

bool HistoryModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && !m_isAtEnd && !m_timer.isActive();
}

void HistoryModel::fetchMore(const QModelIndex& parent)
{
    if (canFetchMore(parent))
        lookFor(rowCount() + Page);
}

} // namespace ko
