#include "utils/SortOnceProxy.h"

#include "ko/connect.h"

namespace ko {

namespace {

/// From so many on, sorting all takes less time.
const int manyRows = 1000;

} // namespace

SortOnceProxy::SortOnceProxy(QObject* parent)
    : QSortFilterProxyModel(parent)
{
}

SortOnceProxy::~SortOnceProxy() = default;

/// Heard before the toolkit's proxy hears of the rows, and after it has taken them.
void SortOnceProxy::setSourceModel(QAbstractItemModel* model)
{
    if (sourceModel())
        sourceModel()->disconnect(this);
    ko::connect(model, SIGNAL(rowsAboutToBeInserted(QModelIndex, int, int)), this,
                SLOT(aboutToInsert(QModelIndex, int, int)));
    ko::connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this,
                SLOT(aboutToChange(QModelIndex, QModelIndex)));
    QSortFilterProxyModel::setSourceModel(model);
    ko::connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(done()));
    ko::connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this, SLOT(done()));
}

void SortOnceProxy::aboutToInsert(const QModelIndex& parent, int first, int last)
{
    if (rowCount(mapFromSource(parent)) > 0) // else only the new ones are sorted
        wait(last - first + 1);
}

void SortOnceProxy::aboutToChange(const QModelIndex& first, const QModelIndex& last)
{
    wait(last.row() - first.row() + 1);
}

void SortOnceProxy::wait(int rows)
{
    m_isWaiting = rows >= manyRows && sortColumn() >= 0 && dynamicSortFilter();
    if (m_isWaiting)
        setDynamicSortFilter(false);
}

void SortOnceProxy::done()
{
    if (!m_isWaiting)
        return;
    m_isWaiting = false;
    setDynamicSortFilter(true);
}

} // namespace ko
