#ifndef KO_ROWHEIGHTDELEGATE_H
#define KO_ROWHEIGHTDELEGATE_H

#include "PlatformExport.h"

#include <QStyledItemDelegate>

class QAbstractItemModel;

namespace ko {

/// Gives every row one height, in pixels, however small its content is; larger content is not cut.
class KO_PLATFORM_EXPORT RowHeightDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// With a \a model only its rows take the height; null means those of any model.
    RowHeightDelegate(int rowHeight, QAbstractItemModel* model, QObject* parent);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const int m_rowHeight;
    QAbstractItemModel* const m_model;
};

} // namespace ko

#endif
