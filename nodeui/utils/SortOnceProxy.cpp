#include "utils/SortOnceProxy.h"

#include "ko/connect.h"
#include "utils/NaturalOrder.h"

namespace ko {

namespace {

/// From this many on, sorting all takes less time.
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
    ko::connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
                SLOT(readInserted(QModelIndex, int, int)));
    ko::connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this,
                SLOT(aboutToChange(QModelIndex, QModelIndex)));
    QSortFilterProxyModel::setSourceModel(model);
    ko::connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(done()));
    ko::connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this, SLOT(done()));
}

bool SortOnceProxy::isMany(const QModelIndex& parent, int rows) const
{
    return !parent.isValid() && rows >= manyRows && sortColumn() >= 0 && dynamicSortFilter();
}

void SortOnceProxy::suspend()
{
    m_isSuspended = true;
    setDynamicSortFilter(false);
}

void SortOnceProxy::aboutToInsert(const QModelIndex& parent, int first, int last)
{
    if (rowCount() > 0 && isMany(parent, last - first + 1)) // else only the new ones are sorted
        suspend();
}

void SortOnceProxy::readInserted(const QModelIndex& parent, int first, int last)
{
    if (m_isSuspended || isMany(parent, last - first + 1))
        readCells();
}

void SortOnceProxy::aboutToChange(const QModelIndex& first, const QModelIndex& last)
{
    if (!isMany(first.parent(), last.row() - first.row() + 1))
        return;
    suspend();
    readCells();
}

void SortOnceProxy::readCells()
{
    const int count = sourceModel()->rowCount();
    m_cells.reserve(count);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = sourceModel()->index(row, sortColumn());
        const QVariant value = index.data(sortRole());
        const Cell cell = {quintptr(index.internalId()), !value.isValid(), value.toString()};
        m_cells.append(cell);
    }
}

void SortOnceProxy::done()
{
    if (m_isSuspended) {
        m_isSuspended = false;
        setDynamicSortFilter(true);
    }
    m_cells.clear();
}

bool SortOnceProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto isRead = [this](const QModelIndex& index) {
        return index.row() < m_cells.size() && m_cells.at(index.row()).row == quintptr(index.internalId());
    };
    if (!isRead(left) || !isRead(right)) {
        const QVariant first = left.data(sortRole());
        const QVariant second = right.data(sortRole());
        if (first.userType() != QMetaType::QString || second.userType() != QMetaType::QString)
            return QSortFilterProxyModel::lessThan(left, right);
        return compareNaturally(first.toString(), second.toString(), sortCaseSensitivity()) < 0;
    }
    const Cell& first = m_cells.at(left.row());
    const Cell& second = m_cells.at(right.row());
    if (first.isEmpty || second.isEmpty)
        return !first.isEmpty; // what shows nothing comes last
    return compareNaturally(first.text, second.text, sortCaseSensitivity()) < 0;
}

} // namespace ko
