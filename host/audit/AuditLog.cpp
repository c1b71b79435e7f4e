#include "audit/AuditLog.h"

#include "audit/ChangeSetLogEntry.h"
#include "audit/GenericLogEntry.h"
#include "audit/LogStore.h"
#include "inspector/NodeChangeLogEntry.h"
#include "ko/LogEntryFactory.h"
#include "model/Redaction.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace ko {

namespace {

FourChars fourChars(const QString& text)
{
    quint32 value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | quint8(i < text.size() ? text.at(i).toLatin1() : ' ');
    return FourChars(value);
}

std::unique_ptr<LogEntry> genericEntry(FourChars code, const QJsonObject& values)
{
    GenericLogEntry::Values list;
    for (auto it = values.begin(); it != values.end(); ++it)
        list.append({fourChars(it.key()), it.value().toString()});
    return std::make_unique<GenericLogEntry>(code, list);
}

std::unique_ptr<LogEntry> rebuilt(const AuditRow& row)
{
    const FourChars code(row.code);
    const QJsonObject values = QJsonDocument::fromJson(row.data.toUtf8()).object();
    std::unique_ptr<LogEntry> entry = logEntryFactory().create(code);
    if (!entry)
        return genericEntry(code, values);
    for (LogValue* value : entry->values())
        value->fromString(values.value(value->key().toString()).toString());
    return entry;
}

} // namespace

AuditLog::AuditLog(LogStore& store)
    : m_store(store)
    , m_user(Cause::currentUser())
    , m_host(Cause::currentStation())
{
}

void AuditLog::log(const LogEntry& entry)
{
    QJsonObject values;
    for (const LogValue* value : entry.values())
        values.insert(value->key().toString(), Redaction::redacted(value->toString()));
    AuditRow row;
    row.time = QDateTime::currentMSecsSinceEpoch();
    row.user = m_user;
    row.host = m_host;
    row.code = entry.typeCode().value();
    row.data = QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
    m_store.append(row);
}

std::vector<AuditRecord> AuditLog::entries(qint64 from, qint64 count, bool newestFirst) const
{
    std::vector<AuditRecord> records;
    const QVector<AuditRow> rows = m_store.auditRows({from, count, newestFirst});
    const quint32 edit = NodeChangeLogEntry(QString()).typeCode().value();
    const qint64 firstTied = m_store.firstAuditWithChanges(); // older ones may have changed anything
    records.reserve(std::size_t(rows.size()));
    for (const AuditRow& row : rows) {
        const bool changedNothing =
            row.code == edit && row.changeSet == 0 && firstTied > 0 && row.seq > firstTied;
        records.push_back({row.seq, QDateTime::fromMSecsSinceEpoch(row.time, Qt::UTC), row.user, row.host,
                           FourChars(row.code), rebuilt(row), row.changeSet, changedNothing});
    }
    return records;
}

std::vector<AuditRecord> AuditLog::silentChanges(qint64 before, int count) const
{
    std::vector<AuditRecord> records;
    const QVector<ChangeSetRow> rows = m_store.silentChangeSets(before, count);
    for (const ChangeSetRow& row : rows) {
        auto entry = std::make_unique<ChangeSetLogEntry>(row);
        const FourChars code = entry->typeCode();
        records.push_back({row.number, QDateTime::fromMSecsSinceEpoch(row.cause.time, Qt::UTC),
                           row.cause.user, row.cause.station, code, std::move(entry), row.number});
    }
    return records;
}

qint64 AuditLog::count() const
{
    return m_store.auditCount();
}

} // namespace ko
