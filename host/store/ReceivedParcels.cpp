#include "store/ReceivedParcels.h"

#include "store/ChangeCoding.h"

namespace ko {

ReceivedParcels::ReceivedParcels(SqliteStore& store, NodeTables& tables, SharedParcels& parcels)
    : m_store(store)
    , m_tables(tables)
    , m_log(store)
    , m_parcels(parcels)
{
}

bool ReceivedParcels::write(const SharedParcel& parcel)
{
    if (!m_parcels.add(parcel))
        return false;
    qint64 changeSet = 0;
    for (const SharedLine& line : parcel.lines) {
        if (!line.isDone)
            continue;
        if (changeSet == 0)
            changeSet = m_log.numberOf(parcel.cause);
        const qint64 row =
            m_log.add(changeSet, {ChangeLog::Kind(line.kind), line.id}, line.before, line.after);
        setNumber(row, changeSet, line.line, parcel.number);
    }
    return true;
}

bool ReceivedParcels::take(const SharedParcel& parcel, SharedTables& shared)
{
    if (!m_parcels.add(parcel))
        return false;
    qint64 changeSet = m_log.find(parcel.cause);
    bool isNew = true; // else it is in the history of this desk as it was done here
    for (const SharedLine& line : parcel.lines)
        isNew = isNew && (line.line == 0 || changeSet == 0 || rowOf(changeSet, line.line) == 0);
    for (const SharedLine& line : parcel.lines) {
        const qint64 known = line.line != 0 && changeSet != 0 ? rowOf(changeSet, line.line) : 0;
        if (known != 0)
            setNumber(known, changeSet, line.line, parcel.number);
        if (!line.isDone && known != 0 && known == line.line)
            noteUndone(line);
        if (!line.isDone)
            continue;
        const bool isChanged = shared.apply(line);
        const ChangeLog::Row row = {ChangeLog::Kind(line.kind), line.id};
        if (known == 0 && (isNew || line.line != 0)) {
            if (changeSet == 0)
                changeSet = m_log.numberOf(parcel.cause);
            const qint64 added = m_log.add(changeSet, row, line.before, line.after);
            setNumber(added, changeSet, line.line, parcel.number);
        } else if (isChanged) {
            note(row);
        }
    }
    return true;
}

/// What the site did not do because it is so already is as the user wanted it. Of this desk alone: a line has
/// the number that it had where it was made.
void ReceivedParcels::noteUndone(const SharedLine& line)
{
    QStringList wanted;
    if (line.kind == ChangeLog::NodeKind && !line.before.isNull() && !line.after.isNull())
        wanted.append(line.id);
    if (line.kind == ChangeLog::RelationKind && line.before.isNull())
        wanted << line.id
               << ChangeCoding::relationChange(line.id, line.before, line.after).relation.destination;
    for (const QString& node : std::as_const(wanted)) {
        if (m_tables.node(node).place == 0) {
            m_store.run("INSERT OR IGNORE INTO shared_undone (seq, node) VALUES (?, ?)", {line.line, node});
            return;
        }
    }
}

/// Where in the table of changes a line is; 0: it is not. What was done at this desk has its own number as
/// line.
qint64 ReceivedParcels::rowOf(qint64 changeSet, qint64 line)
{
    const QVariant received =
        m_store.value("SELECT seq FROM shared_lines WHERE change_set = ? AND line = ?", {changeSet, line});
    if (received.isValid())
        return received.toLongLong();
    return m_store
        .value("SELECT seq FROM changes c WHERE seq = ? AND change_set = ?"
               " AND NOT EXISTS (SELECT 1 FROM shared_lines s WHERE s.seq = c.seq)",
               {line, changeSet})
        .toLongLong();
}

void ReceivedParcels::setNumber(qint64 row, qint64 changeSet, qint64 line, qint64 number)
{
    m_store.run("INSERT INTO shared_lines (seq, change_set, line, number) VALUES (?, ?, ?, ?)"
                " ON CONFLICT (seq) DO UPDATE SET number = excluded.number",
                {row, changeSet, line == 0 ? SqlValue() : SqlValue(line), number});
}

void ReceivedParcels::note(const ChangeLog::Row& row)
{
    m_store.run("INSERT INTO changes (kind, id) VALUES (?, ?)", {QString(QLatin1Char(row.kind)), row.id});
}

} // namespace ko
