#ifndef KO_SORTONCEPROXY_H
#define KO_SORTONCEPROXY_H

#include <QSortFilterProxyModel>

namespace ko {

/// Puts many rows that are inserted together, or change, in order by one sort of all. The toolkit's own looks
/// for the place of each and moves all that follow, which takes a time that grows with the square.
class SortOnceProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SortOnceProxy(QObject* parent = nullptr);
    ~SortOnceProxy() override;

    void setSourceModel(QAbstractItemModel* model) override;

private slots:
    void aboutToInsert(const QModelIndex& parent, int first, int last);
    void aboutToChange(const QModelIndex& first, const QModelIndex& last);
    void done();

private:
    void wait(int rows);

    bool m_isWaiting = false;
};

} // namespace ko

#endif
