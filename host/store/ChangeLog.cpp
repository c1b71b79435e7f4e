#include "store/ChangeLog.h"

#include "store/ChangeCoding.h"

#include <algorithm>
#include <limits>

namespace ko {

namespace {

AuditRow auditRow(const SqliteStore::Rows& rows)
{
    return {rows.number(0),          rows.number(1), rows.text(2),  rows.text(3),
            quint32(rows.number(4)), rows.text(5),   rows.number(6)};
}

/// The columns id, time, user, host, purpose and subject, after the first one.
Cause causeOf(const SqliteStore::Rows& rows)
{
    return {rows.text(1), rows.text(3), rows.text(4), rows.number(2), Purposes::fromWord(rows.text(5)),
            rows.text(6)};
}

std::optional<QString> settingOf(const QString& text)
{
    return text.isNull() ? std::nullopt : std::make_optional(text);
}

/// Adds what one row of the table of changes says.
void take(ChangeSet* set, ChangeLog::Kind kind, const QString& id, const QString& before,
          const QString& after)
{
    if (kind == ChangeLog::NodeKind) {
        NodeChange change;
        change.id = id;
        change.before = ChangeCoding::nodeValues(before, &change);
        change.after = ChangeCoding::nodeValues(after, &change);
        set->nodes.append(change);
    } else if (kind == ChangeLog::RelationKind) {
        set->relations.append(ChangeCoding::relationChange(id, before, after));
    } else if (kind == ChangeLog::SettingKind) {
        set->settings.append({id, settingOf(before), settingOf(after)});
    } else if (kind == ChangeLog::EnvironmentsKind) {
        if (!set->environments) // else stored in parts
            set->environments = EnvironmentsChange{ChangeCoding::environments(before), {}};
        set->environments->after = ChangeCoding::environments(after);
    }
}

void take(ChangeSet* set, SqliteStore::Rows& rows)
{
    while (rows.next()) {
        const QString kind = rows.text(0);
        if (!kind.isEmpty())
            take(set, ChangeLog::Kind(kind.at(0).toLatin1()), rows.text(1), rows.text(2), rows.text(3));
    }
}

} // namespace

ChangeLog::ChangeLog(SqliteStore& store)
    : m_store(store)
{
}

qint64 ChangeLog::revision()
{
    const qint64 last = m_store.value("SELECT seq FROM sqlite_sequence WHERE name = 'changes'").toLongLong();
    return qBound<qint64>(0, last, std::numeric_limits<qint64>::max() - 1); // another program's may be any
}

std::optional<ChangeLog::Rows> ChangeLog::since(qint64 revision, int count)
{
    const qint64 last = this->revision();
    Rows result = {{}, last, false};
    if (last == revision)
        return result;
    // A log that was cut off lacks its oldest rows.
    if (last - revision > MaxRead ||
        !m_store.value("SELECT 1 FROM changes WHERE seq = ?", {revision + 1}).isValid())
        return std::nullopt;
    SqliteStore::Rows rows = m_store.run(
        "SELECT kind, id, seq FROM changes WHERE seq > ? ORDER BY seq LIMIT ?", {revision, count});
    int read = 0;
    for (; rows.next(); ++read) {
        const QString kind = rows.text(0);
        if (kind == QLatin1Char(EverythingKind))
            return std::nullopt;
        if (!kind.isEmpty())
            result.rows.append({Kind(kind.at(0).toLatin1()), rows.text(1)});
        result.revision = rows.number(2);
    }
    result.isMore = read == count && result.revision < last;
    if (!result.isMore)
        result.revision = last;
    return result;
}

qint64 ChangeLog::find(const Cause& cause)
{
    return m_store.value("SELECT seq FROM change_sets WHERE id = ?", {cause.id}).toLongLong();
}

qint64 ChangeLog::numberOf(const Cause& cause)
{
    const qint64 found = find(cause);
    if (found != 0)
        return found;
    return m_store
        .run("INSERT INTO change_sets (id, time, user, host, purpose, subject) VALUES (?, ?, ?, ?, ?, ?)",
             {cause.id, cause.time, cause.user, cause.station, Purposes::word(cause.purpose), cause.subject})
        .insertedId();
}

qint64 ChangeLog::add(qint64 changeSet, const Row& row, const QString& before, const QString& after)
{
    return m_store
        .run("INSERT INTO changes (kind, id, change_set, before, after) VALUES (?, ?, ?, ?, ?)",
             {QString(QLatin1Char(row.kind)), row.id, changeSet ? SqlValue(changeSet) : SqlValue(),
              SqlValue::nullable(before), SqlValue::nullable(after)})
        .insertedId();
}

QVector<ChangeSet> ChangeLog::sets(qint64 after, int count)
{
    QVector<ChangeSet> result;
    {
        SqliteStore::Rows rows = m_store.run("SELECT seq, id, time, user, host, purpose, subject"
                                             " FROM change_sets WHERE seq > ? ORDER BY seq LIMIT ?",
                                             {after, count});
        while (rows.next()) {
            ChangeSet set;
            set.number = rows.number(0);
            set.cause = causeOf(rows);
            result.append(set);
        }
    }
    for (ChangeSet& set : result) {
        readChanges(&set);
        readAudit(&set);
    }
    return result;
}

void ChangeLog::readChanges(ChangeSet* set)
{
    SqliteStore::Rows rows = m_store.run(
        "SELECT kind, id, before, after FROM changes WHERE change_set = ? ORDER BY seq", {set->number});
    take(set, rows);
}

ChangeSetPart ChangeLog::part(qint64 number, qint64 after, int count)
{
    ChangeSetPart part;
    part.set.number = number;
    part.after = after;
    int read = 0;
    SqliteStore::Rows rows = m_store.run("SELECT kind, id, before, after, seq FROM changes"
                                         " WHERE change_set = ? AND seq > ? ORDER BY seq LIMIT ?",
                                         {number, after, count});
    for (; rows.next(); ++read) {
        const QString kind = rows.text(0);
        if (!kind.isEmpty())
            take(&part.set, Kind(kind.at(0).toLatin1()), rows.text(1), rows.text(2), rows.text(3));
        part.after = rows.number(4);
    }
    part.isAtEnd = read < count;
    return part;
}

ChangeSet ChangeLog::changesOf(qint64 number, const QString& id)
{
    ChangeSet set;
    set.number = number;
    SqliteStore::Rows rows = m_store.run("SELECT kind, id, before, after FROM changes"
                                         " WHERE id = ? AND change_set = ? ORDER BY seq",
                                         {id, number});
    take(&set, rows);
    return set;
}

/// By their own numbers, since the changes of two change sets may be mixed.
LaterPart ChangeLog::later(qint64 changeSet, qint64 after, int count)
{
    LaterPart part;
    const qint64 first = m_store
                             .value("SELECT seq FROM changes WHERE change_set > ? ORDER BY change_set, seq"
                                    " LIMIT 1",
                                    {changeSet})
                             .toLongLong();
    part.after = std::max(after, first - 1);
    if (first == 0)
        return part;
    SqliteStore::Rows rows = m_store.run("SELECT kind, id, before, after, seq, change_set FROM changes"
                                         " WHERE seq > ? AND +change_set > ? ORDER BY seq LIMIT ?",
                                         {part.after, changeSet, count});
    int read = 0;
    for (; rows.next(); ++read) {
        if (part.sets.isEmpty() || part.sets.last().number != rows.number(5)) {
            ChangeSet set;
            set.number = rows.number(5);
            part.sets.append(set);
        }
        const QString kind = rows.text(0);
        if (!kind.isEmpty())
            take(&part.sets.last(), Kind(kind.at(0).toLatin1()), rows.text(1), rows.text(2), rows.text(3));
        part.after = rows.number(4);
    }
    part.remaining = read < count ? 0 : std::max<qint64>(0, revision() - part.after);
    return part;
}

void ChangeLog::readAudit(ChangeSet* set)
{
    SqliteStore::Rows rows = m_store.run("SELECT seq, time, user, host, code, data, change_set FROM audit"
                                         " WHERE change_set = ? ORDER BY seq",
                                         {set->number});
    while (rows.next())
        set->audit.append(auditRow(rows));
}

QVector<ChangeSetRow> ChangeLog::silentSets(qint64 before, int count)
{
    QVector<ChangeSetRow> result;
    SqliteStore::Rows rows = m_store.run(
        "SELECT seq, id, time, user, host, purpose, subject,"
        " (SELECT count(DISTINCT id) FROM changes WHERE change_set = s.seq AND kind = 'N'),"
        " (SELECT coalesce(after, before) FROM changes WHERE change_set = s.seq AND kind = 'N' LIMIT 1)"
        " FROM change_sets s WHERE seq < ?"
        " AND NOT EXISTS (SELECT 1 FROM audit WHERE change_set = s.seq) ORDER BY seq DESC LIMIT ?",
        {before, count});
    while (rows.next()) {
        NodeChange first;
        const std::optional<NodeValues> values = ChangeCoding::nodeValues(rows.text(8), &first);
        result.append(
            {rows.number(0), causeOf(rows), int(rows.number(7)), values ? values->name : QString()});
    }
    return result;
}

void ChangeLog::addAudit(qint64 changeSet, const AuditRow& row)
{
    m_store.run("INSERT INTO audit (time, user, host, code, data, change_set) VALUES (?, ?, ?, ?, ?, ?)",
                {row.time, row.user, row.host, qint64(row.code), row.data,
                 changeSet ? SqlValue(changeSet) : SqlValue()});
}

QVector<AuditRow> ChangeLog::audit(const LogRange& range)
{
    QVector<AuditRow> result;
    const std::initializer_list<SqlValue> limits = {range.count, range.skip};
    SqliteStore::Rows rows =
        range.newestFirst ? m_store.run("SELECT seq, time, user, host, code, data, change_set FROM audit"
                                        " ORDER BY seq DESC LIMIT ? OFFSET ?",
                                        limits)
                          : m_store.run("SELECT seq, time, user, host, code, data, change_set FROM audit"
                                        " ORDER BY seq LIMIT ? OFFSET ?",
                                        limits);
    while (rows.next())
        result.append(auditRow(rows));
    return result;
}

qint64 ChangeLog::auditCount()
{
    return m_store.value("SELECT count(*) FROM audit").toLongLong();
}

/// By the index of those that have one.
qint64 ChangeLog::firstAuditWithChanges()
{
    return m_store
        .value("SELECT seq FROM audit WHERE change_set IS NOT NULL ORDER BY change_set, seq LIMIT 1")
        .toLongLong();
}

} // namespace ko
