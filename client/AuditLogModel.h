#ifndef KO_AUDITLOGMODEL_H
#define KO_AUDITLOGMODEL_H

#include "audit/AuditRecord.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>
#include <QVector>

#include <array>
#include <deque>
#include <vector>

namespace ko {

class AuditLog;

/// The audit log, and what was done without an entry in it; newest first, read page by page as the view asks
/// for more.
class AuditLogModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(AuditLogModel)

public:
    enum Column { TimeColumn, UserColumn, TitleColumn, TextColumn, ColumnCount };

    /// The log outlives the model; entries logged later are not shown.
    explicit AuditLogModel(AuditLog& log, QObject* parent = nullptr);

    /// With which an entry was written; 0: none.
    qint64 changeSetAt(int row) const { return m_rows.at(row).changeSet; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    struct Row
    {
        std::array<QString, ColumnCount> cells;
        qint64 changeSet;
    };

    /// One of the two, read up to some place.
    struct Source
    {
        std::deque<AuditRecord> waiting; ///< read, not shown yet
        bool isAtEnd = false;
    };

    void read();
    static void take(Source* source, std::vector<AuditRecord> page);
    Row nextRow();

    AuditLog& m_log;
    const qint64 m_count; ///< of the entries
    qint64 m_read = 0;    ///< of these
    qint64 m_before;      ///< number of the change set that was read last
    Source m_entries;
    Source m_silent;
    QVector<Row> m_rows;
};

} // namespace ko

#endif
