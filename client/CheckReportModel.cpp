#include "CheckReportModel.h"

#include "SearchText.h"

#include <QColor>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>

namespace ko {

namespace {

enum Column { NameColumn, AddressColumn, StateColumn, ReasonColumn, TimeColumn, ColumnCount };

const char* const titles[] = {
    QT_TRANSLATE_NOOP("ko::CheckReportModel", "Name"),  QT_TRANSLATE_NOOP("ko::CheckReportModel", "Address"),
    QT_TRANSLATE_NOOP("ko::CheckReportModel", "State"), QT_TRANSLATE_NOOP("ko::CheckReportModel", "Reason"),
    QT_TRANSLATE_NOOP("ko::CheckReportModel", "Time"),
};

/// "Camera 2" before "Camera 10".
QVector<CheckedCamera> inOrder(const QVector<CheckedCamera>& cameras)
{
    struct Key
    {
        int rank;
        QString name;
        int place;
    };
    std::vector<Key> keys;
    keys.reserve(size_t(cameras.size()));
    for (int i = 0; i < cameras.size(); ++i)
        keys.push_back({int(CameraStates::all().indexOf(cameras.at(i).state.state)),
                        SearchText::sortKey(cameras.at(i).name), i});
    std::sort(keys.begin(), keys.end(), [](const Key& a, const Key& b) {
        return std::tie(a.rank, a.name, a.place) < std::tie(b.rank, b.name, b.place);
    });
    QVector<CheckedCamera> sorted;
    sorted.reserve(cameras.size());
    for (const Key& key : keys)
        sorted.append(cameras.at(key.place));
    return sorted;
}

} // namespace

CheckReportModel::CheckReportModel(const QVector<CheckedCamera>& cameras, QObject* parent)
    : QAbstractTableModel(parent)
    , m_cameras(inOrder(cameras))
    , m_troubled(int(cameras.size()) - countOf(DeviceReport::Answers))
    , m_shown(m_troubled)
{
}

void CheckReportModel::showAll(bool all)
{
    beginResetModel();
    m_shown = all ? int(m_cameras.size()) : m_troubled;
    endResetModel();
}

int CheckReportModel::countOf(DeviceReport::State state) const
{
    return int(std::count_if(m_cameras.begin(), m_cameras.end(),
                             [state](const CheckedCamera& camera) { return camera.state.state == state; }));
}

QList<QStringList> CheckReportModel::table() const
{
    QStringList header;
    for (const char* title : titles)
        header.append(tr(title));
    QList<QStringList> table = {header};
    for (int row = 0; row < m_shown; ++row) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column)
            cells.append(text(camera(row), column));
        table.append(cells);
    }
    return table;
}

QString CheckReportModel::text(const CheckedCamera& camera, int column)
{
    switch (column) {
    case NameColumn:
        return camera.name;
    case AddressColumn:
        return camera.address;
    case StateColumn:
        return CameraStates::text(camera.state.state);
    case ReasonColumn:
        return camera.state.reason;
    default:
        return QLocale().toString(camera.state.time.toLocalTime(), QLocale::ShortFormat);
    }
}

int CheckReportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown;
}

int CheckReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant CheckReportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_shown)
        return QVariant();
    const CheckedCamera& shown = camera(index.row());
    if (role == Qt::DisplayRole)
        return text(shown, index.column()).replace(QLatin1Char('\n'), QLatin1Char(' '));
    if (role == Qt::ToolTipRole && index.column() == ReasonColumn)
        return QStringLiteral("<span>%1</span>").arg(shown.state.reason.toHtmlEscaped());
    if (role != Qt::ForegroundRole || index.column() != StateColumn)
        return QVariant();
    const QColor color = CameraStates::color(shown.state.state, QGuiApplication::palette());
    return color.isValid() ? QVariant(color) : QVariant();
}

QVariant CheckReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle && section >= 0 && section < ColumnCount ? QVariant(tr(titles[section])) : QVariant();
}

} // namespace ko
