#include "AuditLogModel.h"

#include "audit/AuditLog.h"
#include "ko/OutsideText.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace ko {

namespace {

const qint64 pageSize = 500;

} // namespace

AuditLogModel::AuditLogModel(AuditLog& log, QObject* parent)
    : QAbstractTableModel(parent)
    , m_log(log)
    , m_count(log.count())
    , m_before(std::numeric_limits<qint64>::max())
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
    return m_rows.at(index.row()).cells.at(std::size_t(index.column()));
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
    const auto isExhausted = [](const Source& source) { return source.isAtEnd && source.waiting.empty(); };
    return !parent.isValid() && !(isExhausted(m_entries) && isExhausted(m_silent));
}

void AuditLogModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    QVector<Row> rows;
    for (read(); rows.size() < pageSize && !(m_entries.waiting.empty() && m_silent.waiting.empty()); read())
        rows.append(nextRow());
    if (rows.isEmpty())
        return;
    beginInsertRows(QModelIndex(), int(m_rows.size()), int(m_rows.size() + rows.size()) - 1);
    m_rows += rows;
    endInsertRows();
}

/// Whichever was used up.
void AuditLogModel::read()
{
    if (m_entries.waiting.empty() && !m_entries.isAtEnd) {
        // What was logged since the model was made comes before its first row.
        const qint64 newer = m_log.count() - m_count;
        take(&m_entries, m_log.entries(newer + m_read, qMin(pageSize, m_count - m_read), true));
        m_read += qint64(m_entries.waiting.size());
    }
    if (m_silent.waiting.empty() && !m_silent.isAtEnd) {
        take(&m_silent, m_log.silentChanges(m_before, int(pageSize)));
        if (!m_silent.isAtEnd)
            m_before = m_silent.waiting.back().seq;
    }
}

void AuditLogModel::take(Source* source, std::vector<AuditRecord> page)
{
    source->isAtEnd = page.empty();
    std::move(page.begin(), page.end(), std::back_inserter(source->waiting));
}

/// The later one of the next two.
AuditLogModel::Row AuditLogModel::nextRow()
{
    const bool isSilent =
        m_entries.waiting.empty() ||
        (!m_silent.waiting.empty() && m_silent.waiting.front().time > m_entries.waiting.front().time);
    std::deque<AuditRecord>& source = (isSilent ? m_silent : m_entries).waiting;
    const AuditRecord record = std::move(source.front());
    source.pop_front();
    const QString time = record.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const QString user =
        record.host.isEmpty() ? record.user : QStringLiteral("%1 (%2)").arg(record.user, record.host);
    // A line break would hide what follows it here, and make a second entry of it where it is copied to.
    const QString title = OutsideText::visible(record.entry->title());
    return {{time, OutsideText::visible(user),
             record.changedNothing ? tr("%1 (nothing was changed)").arg(title) : title,
             OutsideText::visible(record.entry->text())},
            record.changeSet};
}

} // namespace ko
