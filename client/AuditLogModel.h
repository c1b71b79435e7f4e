#ifndef KO_AUDITLOGMODEL_H
#define KO_AUDITLOGMODEL_H

#include <QAbstractTableModel>
#include <QDateTime>
#include <QVector>

namespace ko {

class AuditLog;

/// The audit log, newest first, read page by page as the view asks for more.
class AuditLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, UserColumn, TitleColumn, TextColumn, ColumnCount };

    /// The log outlives the model; entries logged later are not shown.
    explicit AuditLogModel(AuditLog& log, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    struct Row
    {
        QString cells[ColumnCount];
    };

    AuditLog& m_log;
    const qint64 m_count;
    QVector<Row> m_rows;
};

} // namespace ko

#endif
