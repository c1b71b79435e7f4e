#ifndef KO_MOMENTDETAILSMODEL_H
#define KO_MOMENTDETAILSMODEL_H

#include "history/HistoryWords.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>

namespace ko {

/// What one node was at a moment, beside what it is now.
class MomentDetailsModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(MomentDetailsModel)

public:
    enum Column { WhatColumn, ThenColumn, NowColumn, ColumnCount };

    explicit MomentDetailsModel(const HistoryWords& words, QObject* parent = nullptr);

    /// See Moment::detailsOf(). \a known, which only becomes longer, names nodes that are gone.
    void setDetails(const QVector<Alteration>& details, const QVector<Alteration>& known);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const Alteration& detail, int column) const;

    HistoryWords m_words;
    int m_learned = 0; ///< of what names nodes
    QVector<Alteration> m_details;
};

} // namespace ko

#endif
