#include "AuditLogModel.h"

#include "audit/AuditLog.h"
#include "ko/OutsideText.h"

#include <QLocale>

namespace ko {

namespace {

const qint64 pageSize = 500;

} // namespace

AuditLogModel::AuditLogModel(AuditLog& log, QObject* parent)
    : QAbstractTableModel(parent)
    , m_log(log)
    , m_count(log.count())
{
}

int AuditLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int AuditLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant AuditLogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return QVariant();
    return m_rows.at(index.row()).cells[index.column()];
}

QVariant AuditLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case UserColumn:
        return tr("User");
    case TitleColumn:
        return tr("What");
    case TextColumn:
        return tr("Text");
    default:
        return QVariant();
    }
}

bool AuditLogModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && m_rows.size() < m_count;
}

void AuditLogModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    // What was logged since the model was made stands before its first row.
    const qint64 newer = m_log.count() - m_count;
    const std::vector<AuditRecord> records =
        m_log.entries(newer + m_rows.size(), qMin(pageSize, m_count - m_rows.size()), true);
    if (records.empty())
        return;
    beginInsertRows(QModelIndex(), int(m_rows.size()), int(m_rows.size() + int(records.size()) - 1));
    for (const AuditRecord& record : records) {
        const QString time = record.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        const QString user =
            record.host.isEmpty() ? record.user : QStringLiteral("%1 (%2)").arg(record.user, record.host);
        // A line break would hide what follows it here, and make a second entry of it where it is copied to.
        m_rows.append(Row{{time, OutsideText::visible(user), OutsideText::visible(record.entry->title()),
                           OutsideText::visible(record.entry->text())}});
    }
    endInsertRows();
}

} // namespace ko
