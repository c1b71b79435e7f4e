#include "ko/RowHeightDelegate.h"

namespace ko {

RowHeightDelegate::RowHeightDelegate(int rowHeight, QAbstractItemModel* model, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_rowHeight(rowHeight)
    , m_model(model)
{
}

QSize RowHeightDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (m_model && index.model() != m_model)
        return size;
    return QSize(size.width(), qMax(size.height(), m_rowHeight));
}

} // namespace ko
