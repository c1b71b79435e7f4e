#ifndef KO_MOMENTMODEL_H
#define KO_MOMENTMODEL_H

#include "NodeSearch.h"
#include "history/Moment.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>

namespace ko {

/// A moment as a list shows it: in the order of the names, ready to be searched. Made by any thread.
struct MomentRows
{
    struct Row
    {
        MomentNode of;
        QString nameKey; ///< by which rows are sorted
        QString addressKey;
        QString text; ///< folded, for the search
    };

    MomentRows() = default;
    explicit MomentRows(const Moment& moment);

    /// How many nodes there were, and how many of all differ from what there is now.
    int nodeCount() const;
    int differing() const;

    QVector<Row> rows;
    QVector<Alteration> others; ///< see Moment
    int unknown = 0;            ///< likewise
};

/// The nodes that there were at a moment, and in what they differ from those of now.
class MomentModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(MomentModel)

public:
    enum Column { NameColumn, TypeColumn, AddressColumn, DifferenceColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setRows(const MomentRows& rows);
    const MomentRows& all() const { return m_all; }

    /// Which are shown; see NodeSearch. Nodes that were not there are shown among those that differ only.
    void setFilter(const QString& search, bool onlyDifferent);

    const MomentNode& node(int row) const { return m_all.rows.at(m_shown.at(row)).of; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    QString text(const MomentNode& node, int column) const;
    void order();
    void filter();

    MomentRows m_all;
    QVector<int> m_shown; ///< of all
    NodeSearch m_search;
    bool m_onlyDifferent = false;
    int m_column = NameColumn;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};

} // namespace ko

#endif
