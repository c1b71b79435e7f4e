#ifndef KO_ALTERATIONMODEL_H
#define KO_ALTERATIONMODEL_H

#include "history/HistoryWords.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>

namespace ko {

class StoredHistory;

/// What some change sets changed, before and after; read as a view asks for more.
class AlterationModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(AlterationModel)

public:
    enum Column { NodeColumn, WhatColumn, BeforeColumn, AfterColumn, ColumnCount };

    /// The history outlives the model.
    AlterationModel(StoredHistory& history, const HistoryWords& words, QObject* parent = nullptr);

    void setChangeSets(const QVector<qint64>& numbers);

    /// From the next change sets on only what they changed of one node, with the relations that begin there.
    void setNode(const NodeID& id) { m_node = id; }

    const Alteration& alteration(int row) const { return m_rows.at(row); }

    static QString title(int column);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

    /// A cell of the table, for any alteration that \a words know.
    static QString text(const HistoryWords& words, const Alteration& alteration, int column);

private:
    QVector<Alteration> read();

    StoredHistory& m_history;
    HistoryWords m_words;
    NodeID m_node;             ///< empty: of all
    QVector<qint64> m_numbers; ///< that are not read to their end
    qint64 m_after = 0;        ///< in the first of these
    QVector<Alteration> m_rows;
};

} // namespace ko

#endif
