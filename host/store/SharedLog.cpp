#include "store/SharedLog.h"

#include "secrets/Keyring.h"
#include "store/ChangeCoding.h"
#include "store/LogChain.h"
#include "store/ReceivedParcels.h"
#include "store/SharedPasswords.h"
#include "store/StoredSecrets.h"
#include "store/WaitingRows.h"

#include <QSet>

namespace ko {

namespace {

const int mostLinesOfAParcel = 200;
const int linesAtOnce = 100; // in one transaction, for which a user who stores something waits

// What a large transaction writes and has no room in memory goes to SQLite's log, where each row looks for
// its pages again, in a time that grows with the log.
const char roomForCopy[] = "PRAGMA cache_size = -262144"; // KiB
const char usualRoom[] = "PRAGMA cache_size = -2000";

// What is written here is at the site, too, and comes again if power fails before it is on the disk. Nothing
// tells so of a copy that is complete.
const char lessSafe[] = "PRAGMA synchronous = NORMAL";
const char safe[] = "PRAGMA synchronous = FULL";

/// What no two lines of a parcel may both be about.
QString thingOf(const SharedLine& line)
{
    QString thing = QLatin1Char(line.kind) + line.id;
    if (line.kind != ChangeLog::RelationKind)
        return thing;
    const Relation relation = ChangeCoding::relationChange(line.id, line.before, line.after).relation;
    return thing + QLatin1Char(' ') + relation.destination + QLatin1Char(' ') +
           QString::number(relation.type);
}

SharedLine lineOf(const SqliteStore::Rows& rows)
{
    return {rows.number(2), rows.text(3).at(0).toLatin1(), rows.text(4), rows.text(5), rows.text(6), false};
}

Cause causeOf(const SqliteStore::Rows& rows)
{
    return {rows.text(7), rows.text(9), rows.text(10), rows.number(8), Purposes::fromWord(rows.text(11)),
            rows.text(12)};
}

} // namespace

class SharedLog::Private
{
public:
    Private(std::unique_ptr<SqliteStore> opened, const Describe& describing)
        : connection(std::move(opened))
        , tables(*connection)
        , parcels(*connection)
        , received(*connection, tables, parcels)
        , waiting(*connection)
        , describe(describing)
    {
    }

    typedef QVector<SharedParcel>::const_iterator Parcels;
    Receipt receiveSome(Parcels* next, Parcels end, const std::optional<Cursor>& sent);
    qint64 position() { return connection->value("SELECT position FROM shared_site").toLongLong(); }
    const std::unique_ptr<SqliteStore> connection;
    NodeTables tables;
    SharedParcels parcels;
    ReceivedParcels received;
    WaitingRows waiting;
    const Describe describe;
};

SharedLog::SharedLog(std::unique_ptr<Private> opened)
    : d(std::move(opened))
{
}

SharedLog::~SharedLog() = default;

std::unique_ptr<SharedLog> SharedLog::open(const QString& file, const Describe& describe, StoreError* error)
{
    std::unique_ptr<SqliteStore> connection = SqliteStore::open(file, error);
    if (!connection)
        return nullptr;
    try {
        connection->execute(lessSafe);
        Transaction transaction(*connection, Transaction::Write);
        for (const char* statement : StoreSchema::sharingStatements())
            connection->execute(statement);
        connection->execute("INSERT OR IGNORE INTO shared_site (one, id, position) VALUES (1, '', 0)");
        transaction.commit();
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
    return std::unique_ptr<SharedLog>(
        new SharedLog(std::make_unique<Private>(std::move(connection), describe)));
}

QString SharedLog::site()
{
    return d->connection->value("SELECT id FROM shared_site").toString();
}

void SharedLog::setSite(const QString& site)
{
    d->connection->run("UPDATE shared_site SET id = ? WHERE id = ''", {site});
}

qint64 SharedLog::position()
{
    return d->position();
}

qint64 SharedLog::dataVersion()
{
    return d->connection->dataVersion();
}

bool SharedLog::isReplaced()
{
    return d->connection->value("SELECT 1 FROM changes WHERE kind = 'A' AND id = '' LIMIT 1").isValid();
}

qint64 SharedLog::waitingLines()
{
    return d->waiting.count();
}

bool SharedLog::isEmpty()
{
    return !d->connection->value("SELECT 1 FROM changes UNION ALL SELECT 1 FROM nodes LIMIT 1").isValid();
}

bool SharedLog::hasPasswords()
{
    return d->connection
        ->value("SELECT 1 FROM changes WHERE instr(before, 'sealed1:') OR instr(after, 'sealed1:') LIMIT 1")
        .isValid();
}

bool SharedLog::hasClearPasswords()
{
    return StoredSecrets::isPending(*d->connection);
}

bool SharedLog::isTold()
{
    return !d->connection
                ->value("SELECT 1 FROM nodes n WHERE NOT EXISTS (SELECT 1 FROM changes c WHERE c.id = n.id"
                        " AND c.kind = 'N' AND c.before IS NULL)"
                        " UNION ALL SELECT 1 FROM settings s WHERE NOT EXISTS (SELECT 1 FROM changes c"
                        " WHERE c.id = s.key AND c.kind = 'S')"
                        " UNION ALL SELECT 1 FROM environments WHERE NOT EXISTS (SELECT 1 FROM changes c"
                        " WHERE c.id = '' AND c.kind = 'E') LIMIT 1")
                .isValid();
}

std::optional<qint64> SharedLog::forEachRow(const VisitRow& visit)
{
    const Transaction transaction(*d->connection, Transaction::Read);
    if (d->waiting.areAfter(Cursor()))
        return std::nullopt;
    const qint64 position = this->position();
    const auto visitAll = [&visit](SharedTable table, SqliteStore::Rows rows) {
        bool goesOn = true;
        while (goesOn && rows.next())
            goesOn = visit(table, {rows.number(0), rows.text(1).toUtf8()});
        return goesOn;
    };
    visitAll(SharedTable::Nodes,
             d->connection->run("SELECT n, json_array(n, id, type, name, json(coalesce(properties, '{}')))"
                                " FROM nodes LEFT JOIN node_properties ON node = n ORDER BY n")) &&
        visitAll(SharedTable::Relations,
                 d->connection->run("SELECT r.seq, json_array(r.seq, a.id, b.id, r.type) FROM relations r"
                                    " JOIN nodes a ON a.n = r.source JOIN nodes b ON b.n = r.destination"
                                    " ORDER BY r.seq")) &&
        visitAll(
            SharedTable::Rest,
            d->connection->run("SELECT 1, json_array((SELECT json_group_object(key, value) FROM settings),"
                               " (SELECT json_group_array(json_array(id, name)) FROM"
                               " (SELECT id, name FROM environments ORDER BY position)))"));
    return position;
}

QVector<SharedParcel> SharedLog::waiting(Cursor* cursor, int lines)
{
    QVector<SharedParcel> parcels;
    QSet<QString> things;
    const SharedPasswords passwords(site());
    SqliteStore::Rows rows = d->waiting.after(*cursor);
    while (lines-- > 0 && rows.next()) {
        const SharedLine line = passwords.toSend(lineOf(rows));
        const Cause cause = causeOf(rows);
        const QString thing = thingOf(line);
        const bool fits = !parcels.isEmpty() && parcels.constLast().cause.id == cause.id &&
                          parcels.constLast().lines.size() < mostLinesOfAParcel && !things.contains(thing);
        if (!fits) {
            parcels.append({0, QString(), cause, {}, {}, {}});
            things.clear();
        }
        things.insert(thing);
        parcels.last().lines.append(line);
        *cursor = {rows.number(0), rows.number(1)};
    }
    return parcels;
}

SharedLog::Receipt SharedLog::receive(const QVector<SharedParcel>& parcels, const std::optional<Cursor>& sent)
{
    Receipt receipt = Receipt::Taken;
    for (auto next = parcels.begin(); next != parcels.end() && receipt == Receipt::Taken;) {
        receipt = d->receiveSome(&next, parcels.end(), sent);
        SqliteFile::letOthersIn();
    }
    return receipt;
}

SharedLog::Receipt SharedLog::Private::receiveSome(Parcels* next, Parcels end,
                                                   const std::optional<Cursor>& sent)
{
    Transaction transaction(*connection, Transaction::Write);
    if (sent && waiting.areAfter(*sent))
        return Receipt::SomethingWaits;
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    LogChain chain(*connection, key->sealer);
    chain.begin();
    SharedTables shared(*connection, tables, describe);
    qint64 position = this->position();
    for (int lines = 0; *next != end && lines < linesAtOnce; ++*next) {
        const SharedParcel& parcel = **next;
        if (parcel.number <= position)
            continue;
        if (parcel.number != position + 1)
            return Receipt::Gap;
        if (!received.take(parcel, shared))
            return Receipt::Rewritten;
        position = parcel.number;
        lines += int(parcel.lines.size());
    }
    QSet<QString> noted;
    for (const ChangeLog::Row& row : shared.touched()) {
        const int known = int(noted.size());
        noted.insert(QLatin1Char(row.kind) + row.id);
        if (noted.size() > known)
            received.note(row);
    }
    connection->run("UPDATE shared_site SET position = ?", {position});
    chain.end();
    transaction.commit();
    return Receipt::Taken;
}

SharedLog::Receipt SharedLog::takeCopy(const std::function<bool(const VisitParcel&)>& history,
                                       const std::function<bool(const VisitRow&)>& state)
{
    d->connection->execute(roomForCopy);
    d->connection->execute(safe);
    Transaction transaction(*d->connection, Transaction::Write);
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    LogChain chain(*d->connection, key->sealer);
    chain.begin();
    SharedTables shared(*d->connection, d->tables, d->describe);
    qint64 position = 0;
    bool isFollowing = true;
    const bool hasHistory = history([&](const SharedParcel& parcel) {
        isFollowing = parcel.number == ++position && d->received.write(parcel);
        return isFollowing;
    });
    if (!isFollowing)
        return Receipt::Rewritten;
    const auto take = [&shared](SharedTable table, const SharedRow& row) {
        shared.insert(table, row);
        return true;
    };
    if (!hasHistory || !state(take))
        return Receipt::Incomplete;
    d->connection->run("UPDATE shared_site SET position = ?", {position});
    chain.end();
    transaction.commit();
    d->connection->execute(usualRoom);
    d->connection->execute(lessSafe);
    d->connection->execute("PRAGMA shrink_memory");
    return Receipt::Taken;
}

QVector<KnownParcel> SharedLog::known(int count, qint64 before)
{
    return d->parcels.newest(count, before);
}

bool SharedLog::agrees(const QVector<SharedParcel>& parcels, qint64 position, int asked)
{
    return d->parcels.agree(parcels, position, asked);
}

bool SharedLog::agrees(const KnownParcel& parcel)
{
    Transaction transaction(*d->connection, Transaction::Write);
    const bool isSame = d->parcels.agree(parcel);
    transaction.commit();
    return isSame;
}

void SharedLog::goBack(qint64 number)
{
    Transaction transaction(*d->connection, Transaction::Write);
    d->connection->run("UPDATE shared_lines SET number = -number WHERE number > ? AND line IS NOT NULL",
                       {number});
    d->parcels.removeAfter(number);
    d->connection->run("UPDATE shared_site SET position = ?", {number});
    transaction.commit();
}

} // namespace ko
