#include "CheckReportModel.h"

#include "model/SearchText.h"

#include <QColor>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>

namespace ko {

namespace {

enum Column { NameColumn, AddressColumn, StateColumn, ReasonColumn, TimeColumn, ColumnCount };

const char* const titles[] = {
    QT_TRANSLATE_NOOP("CheckReportModel", "Name"),  QT_TRANSLATE_NOOP("CheckReportModel", "Address"),
    QT_TRANSLATE_NOOP("CheckReportModel", "State"), QT_TRANSLATE_NOOP("CheckReportModel", "Reason"),
    QT_TRANSLATE_NOOP("CheckReportModel", "Time"),
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

CheckReportModel::CheckReportModel(const States& results, const NodeOf& nodeOf, QObject* parent)
    : QAbstractTableModel(parent)
    , m_results(results)
    , m_nodeOf(nodeOf)
    , m_troubled(inOrder(cameras(true)))
    , m_cameras(m_troubled)
{
    for (const CameraState& state : m_results)
        ++m_counts[state.state];
}

QVector<CheckedCamera> CheckReportModel::cameras(bool areTroubled) const
{
    QVector<CheckedCamera> cameras;
    for (auto result = m_results.begin(); result != m_results.end(); ++result) {
        if ((result->state != DeviceReport::Answers) != areTroubled)
            continue;
        const NodeSummary node = m_nodeOf(result.key());
        if (!node.id.isEmpty())
            cameras.append({node.id, node.name, node.location, result.value()});
    }
    return cameras;
}

/// Those that answer are put in order when somebody wants to see them: there may be thousands.
void CheckReportModel::showAll(bool all)
{
    beginResetModel();
    m_cameras = all ? m_troubled + inOrder(cameras(false)) : m_troubled;
    endResetModel();
}

QList<QStringList> CheckReportModel::table() const
{
    QStringList header;
    for (const char* title : titles)
        header.append(tr(title));
    QList<QStringList> table = {header};
    for (int row = 0; row < m_cameras.size(); ++row) {
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
        return camera.state.reason.text();
    default:
        return QLocale().toString(camera.state.time.toLocalTime(), QLocale::ShortFormat);
    }
}

int CheckReportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_cameras.size());
}

int CheckReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant CheckReportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_cameras.size())
        return QVariant();
    const CheckedCamera& shown = camera(index.row());
    if (role == Qt::DisplayRole)
        return text(shown, index.column()).replace(QLatin1Char('\n'), QLatin1Char(' '));
    if (role == Qt::ToolTipRole && index.column() == ReasonColumn)
        return QStringLiteral("<span>%1</span>").arg(shown.state.reason.text().toHtmlEscaped());
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
