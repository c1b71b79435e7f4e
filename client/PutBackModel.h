#ifndef KO_PUTBACKMODEL_H
#define KO_PUTBACKMODEL_H

#include "history/HistoryWords.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>

namespace ko {

/// What can be put back, with a tick for each line that is to be; what cannot is there with the reason, and
/// disabled.
class PutBackModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(PutBackModel)

public:
    enum Column { NodeColumn, WhatColumn, NowColumn, ThenColumn, ReasonColumn, ColumnCount };

    PutBackModel(const PutBack& putBack, const HistoryWords& words, QObject* parent = nullptr);

    const PutBack& putBack() const { return m_putBack; }
    int possible() const { return m_possible; }
    int ticked() const { return m_ticked; }
    void tickAll(bool isTicked);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const QModelIndex& index) const;
    const PutBackLine& line(int row) const { return m_putBack.lines.at(row); }

    PutBack m_putBack;
    HistoryWords m_words;
    int m_possible = 0;
    int m_ticked = 0;
};

} // namespace ko

#endif
