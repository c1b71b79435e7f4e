#include "drivers/ViewNodesModel.h"

#include "drivers/NodeTypes.h"
#include "ko/NodeDB.h"
#include "ko/OutsideText.h"

#include <QCoreApplication>
#include <QMimeData>

#include <algorithm>

namespace ko {

namespace {

const char dragFormat[] = "application/x-konodeui-viewnodes"; ///< the process and identifiers, a line each

QString here()
{
    return QString::number(QCoreApplication::applicationPid());
}

} // namespace

ViewNodesModel::ViewNodesModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

void ViewNodesModel::setNodes(const QStringList& ids)
{
    m_all.clear();
    m_all.reserve(int(ids.size()));
    for (const QString& id : ids) {
        NodeBrief brief; // for which no node is read
        if (NodeDB::getDB()->getBrief(id, &brief))
            m_all.append({id, OutsideText::visible(brief.name), brief.address, brief.type});
    }
    show();
}

void ViewNodesModel::setFilter(const QString& text)
{
    m_filter = text;
    show();
}

void ViewNodesModel::show()
{
    beginResetModel();
    m_rows.clear();
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(m_rows), [this](const Row& row) {
        return row.name.contains(m_filter, Qt::CaseInsensitive) ||
               row.address.contains(m_filter, Qt::CaseInsensitive);
    });
    endResetModel();
}

QStringList ViewNodesModel::idsAt(const QModelIndexList& rows) const
{
    QVector<int> numbers;
    for (const QModelIndex& index : rows)
        numbers.append(index.row());
    std::sort(numbers.begin(), numbers.end()); // the order in which they were selected means nothing
    QStringList ids;
    for (const int number : std::as_const(numbers))
        ids.append(idAt(number));
    return ids;
}

int ViewNodesModel::rowOf(const QString& id) const
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&id](const Row& row) { return row.id == id; });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

int ViewNodesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ViewNodesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.name.isEmpty() ? row.address : row.name;
    case Qt::DecorationRole:
        return NodeTypes::icon(row.type);
    case Qt::ToolTipRole: // which would take markup in a name for rich text
        return QStringLiteral("<span>%1</span>").arg(row.address.toHtmlEscaped());
    case NodeIdRole:
        return row.id;
    default:
        return QVariant();
    }
}

Qt::ItemFlags ViewNodesModel::flags(const QModelIndex& index) const
{
    // Between two, and after the last one.
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled
                           : Qt::ItemFlags(Qt::ItemIsDropEnabled);
}

QStringList ViewNodesModel::mimeTypes() const
{
    return {QLatin1String(dragFormat)};
}

QMimeData* ViewNodesModel::mimeData(const QModelIndexList& indexes) const
{
    auto* data = new QMimeData;
    const QStringList lines = QStringList(here()) + idsAt(indexes);
    data->setData(QLatin1String(dragFormat), lines.join(QLatin1Char('\n')).toUtf8());
    return data;
}

bool ViewNodesModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                  const QModelIndex& parent)
{
    QStringList lines =
        QString::fromUtf8(data->data(QLatin1String(dragFormat))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (action == Qt::IgnoreAction || parent.isValid() || lines.size() < 2 || lines.takeFirst() != here())
        return false;
    emit dropped(lines, row < 0 ? rowCount() : row);
    return true;
}

} // namespace ko
