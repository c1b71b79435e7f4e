#ifndef KO_SORTONCEPROXY_H
#define KO_SORTONCEPROXY_H

#include <QSortFilterProxyModel>
#include <QVector>

namespace ko {

/// Puts many rows that are inserted together, or change, in order by one sort of all. The toolkit's own looks
/// for the place of each and moves all that follow, which takes a time that grows with the square.
///
/// Compares texts naturally. The toolkit asks the model for each comparison; here it is asked once for each
/// row.
class SortOnceProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SortOnceProxy(QObject* parent = nullptr);
    ~SortOnceProxy() override;

    void setSourceModel(QAbstractItemModel* model) override;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private slots:
    void aboutToInsert(const QModelIndex& parent, int first, int last);
    void readInserted(const QModelIndex& parent, int first, int last);
    void aboutToChange(const QModelIndex& first, const QModelIndex& last);
    void done();

private:
    bool isMany(const QModelIndex& parent, int rows) const;
    void suspend();
    void readCells();

    bool m_isSuspended = false;
    struct Cell
    {
        quintptr row; ///< the id of its index: not a row of a list further down
        bool isEmpty;
        QString text;
    };
    QVector<Cell> m_cells; ///< by source row, of the column that is sorted by; empty: to be asked for
};

} // namespace ko

#endif
