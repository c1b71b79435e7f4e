#ifndef KO_FILLINMODEL_H
#define KO_FILLINMODEL_H

#include "DeviceFilling.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>

namespace ko {

/// What devices told, with a tick for each row that is to be stored.
class FillInModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(FillInModel)

public:
    enum Column { CameraColumn, WhatColumn, NowColumn, ThenColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setRows(const QVector<FillInRow>& rows);
    const QVector<FillInRow>& rows() const { return m_rows; }

    bool hasTicked() const;

    /// Ticks those that would replace what somebody may have chosen.
    void tickSet(bool isTicked);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const QModelIndex& index) const;

    QVector<FillInRow> m_rows;
};

} // namespace ko

#endif
