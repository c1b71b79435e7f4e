#include "store/NodeStore.h"

#include "secrets/Vault.h"
#include "store/ChangeWriter.h"
#include "store/DeltaReader.h"
#include "store/HistoryReader.h"
#include "store/HistorySwitch.h"
#include "store/LogChain.h"
#include "store/LogThinning.h"
#include "store/LogVerifier.h"
#include "store/SqliteFile.h"
#include "store/StoreFile.h"
#include "store/StoredSecrets.h"

#include <QDateTime>

namespace ko {

class NodeStore::Private
{
public:
    explicit Private(std::unique_ptr<SqliteStore> opened)
        : connection(std::move(opened))
        , tables(*connection)
        , log(*connection)
        , vault(std::make_shared<Vault>(Keyring::ofInstallation()))
    {
    }

    const std::unique_ptr<SqliteStore> connection;
    NodeTables tables;
    ChangeLog log;
    const std::shared_ptr<Vault> vault;
    qint64 dataVersion = 0;
};

namespace {

ThinnedHistory thinned(SqliteStore& store, const HistoryLimit& limit, const std::function<bool()>& goOn)
{
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    if (!key->sealer.canSeal())
        throw StoreFailure{
            StoreError::make(StoreError::KeyNotKept, store.fileName(), QLatin1String("no key"))};
    ThinnedHistory result;
    LogThinning thinning(store, key->sealer);
    const qint64 last = thinning.last(limit, QDateTime::currentMSecsSinceEpoch());
    auto outcome = last > 0 ? LogThinning::Outcome::More : LogThinning::Outcome::Done;
    while (outcome == LogThinning::Outcome::More && goOn()) {
        Transaction transaction(store, Transaction::Write);
        outcome = thinning.thinSome(last);
        transaction.commit();
        result.lines = thinning.lines();
    }
    result.last = HistoryReader(store).lastThinned();
    result.isAltered = outcome == LogThinning::Outcome::Altered;
    return result;
}

} // namespace

const int NodeStore::MaxProgramLines = NodeTables::MaxProgramLines;

NodeStore::NodeStore(std::unique_ptr<Private> opened)
    : d(std::move(opened))
{
}

NodeStore::~NodeStore() = default;

std::unique_ptr<NodeStore> NodeStore::open(const QString& file, StoreError* error, Check check)
{
    std::unique_ptr<SqliteStore> connection = SqliteStore::open(
        file, error, check == Check::First ? SqliteStore::Check::First : SqliteStore::Check::ByUser);
    if (!connection)
        return nullptr;
    return std::unique_ptr<NodeStore>(new NodeStore(std::make_unique<Private>(std::move(connection))));
}

const QString& NodeStore::fileName() const
{
    return d->connection->fileName();
}

const std::shared_ptr<Vault>& NodeStore::vault() const
{
    return d->vault;
}

StoreError NodeStore::findDamage(const QString& file)
{
    return SqliteStore::findDamage(file);
}

void NodeStore::setSound()
{
    d->connection->setSound();
}

bool NodeStore::isShared()
{
    return d->connection->value("SELECT 1 FROM sqlite_schema WHERE name = 'shared_site'").isValid();
}

QVector<UndoneChange> NodeStore::undoneChanges()
{
    QVector<UndoneChange> result;
    if (!isShared())
        return result;
    const auto causeAt = [](const SqliteStore::Rows& rows, int column) {
        return Cause{rows.text(column),
                     rows.text(column + 1),
                     rows.text(column + 2),
                     rows.number(column + 3),
                     Purposes::fromWord(rows.text(column + 4)),
                     rows.text(column + 5)};
    };
    SqliteStore::Rows rows = d->connection->run(
        "SELECT u.seq, s.seq, s.id, s.user, s.host, s.time, s.purpose, s.subject,"
        " json_extract(g.before, '$.name'), t.id, t.user, t.host, t.time, t.purpose, t.subject"
        " FROM shared_undone u JOIN changes c ON c.seq = u.seq JOIN change_sets s ON s.seq = c.change_set"
        " LEFT JOIN changes g ON g.seq = (SELECT max(seq) FROM changes WHERE id = u.node AND kind = 'N'"
        " AND after IS NULL AND before IS NOT NULL)"
        " LEFT JOIN change_sets t ON t.seq = g.change_set ORDER BY u.seq");
    while (rows.next())
        result.append({rows.number(0), rows.number(1), causeAt(rows, 2), rows.text(8), causeAt(rows, 9)});
    return result;
}

void NodeStore::dismissUndone(const QVector<qint64>& numbers)
{
    Transaction transaction(*d->connection, Transaction::Write);
    for (const qint64 number : numbers)
        d->connection->run("DELETE FROM shared_undone WHERE seq = ?", {number});
    transaction.commit();
}

bool NodeStore::isSealingPending()
{
    return StoredSecrets::isPending(*d->connection);
}

NodeStore::Contents NodeStore::load(const std::function<void(qint64, const PackedSummary&)>& visit)
{
    Contents contents;
    {
        const Transaction transaction(*d->connection, Transaction::Read);
        d->dataVersion = d->connection->dataVersion();
        contents.revision = d->log.revision();
        d->tables.forEachNode(visit);
        contents.relations = d->tables.relations();
        contents.settings = d->tables.settings();
        contents.environments = d->tables.environments();
    }
    d->connection->execute("PRAGMA shrink_memory"); // nobody reads all those pages again
    return contents;
}

std::optional<Delta> NodeStore::news(qint64 revision, const Wanted& wanted, int count)
{
    const qint64 version = d->connection->dataVersion();
    if (version == d->dataVersion)
        return std::nullopt;
    const Transaction transaction(*d->connection, Transaction::Read);
    Delta delta = DeltaReader(d->tables, d->log, wanted).since(revision, count);
    if (!delta.isMore)
        d->dataVersion = version;
    return delta;
}

Delta NodeStore::everything(const Wanted& wanted)
{
    const Transaction transaction(*d->connection, Transaction::Read);
    return DeltaReader(d->tables, d->log, wanted).everything();
}

std::optional<PropertyList> NodeStore::properties(const NodeID& id)
{
    const std::optional<StoredProperties> stored = d->tables.properties(id);
    return stored ? std::make_optional(stored->list) : std::nullopt;
}

void NodeStore::properties(const QStringList& ids,
                           const std::function<void(const NodeID&, const PropertyList&)>& visit)
{
    d->tables.forEachProperties(ids, visit);
}

void NodeStore::column(const QString& key, const std::function<void(const NodeID&, const QVariant&)>& visit)
{
    d->tables.forEachValue(key, visit);
}

QStringList NodeStore::nodesWithMac(const QString& mac)
{
    return d->tables.nodesWithMac(mac);
}

QStringList NodeStore::nodesWithExtension(const QString& extension)
{
    return d->tables.nodesWithExtension(extension);
}

void NodeStore::lookupKeys(const std::function<void(const NodeID&, const QString&)>& visit)
{
    d->tables.forEachLookupKey(visit);
}

NodeStore::Commit NodeStore::commit(qint64 revision, const Wanted& wanted,
                                    const std::function<Batch(const Delta&)>& merge)
{
    Transaction transaction(*d->connection, Transaction::Write);
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    LogChain chain(*d->connection, key->sealer);
    if (hasHistory)
        chain.begin();
    const Batch batch = merge(DeltaReader(d->tables, d->log, wanted).since(revision));
    ChangeWriter writer(d->tables, d->log, *d->vault);
    for (const ChangeSet& set : batch.sets)
        writer.write(set);
    for (const ProgramRow& line : batch.programLines)
        d->tables.addProgramLine(line);
    if (!batch.programLines.isEmpty())
        d->tables.trimProgramLines();
    if (hasHistory)
        chain.end();
    Commit result = {d->log.revision(), writer.places(), writer.missingNodes(), {}, writer.sets()};
    for (const NodeID& source : writer.reordered())
        result.reordered.insert(source, d->tables.relationsFrom(source));
    transaction.commit();
    return result;
}

qint64 NodeStore::newestChangeSet()
{
    return d->connection->value("SELECT max(seq) FROM change_sets").toLongLong();
}

QVector<ChangeSet> NodeStore::changeSets(qint64 after, int count)
{
    const Transaction transaction(*d->connection, Transaction::Read);
    return d->log.sets(after, count);
}

std::optional<ChangeSetRow> NodeStore::changeSetRow(qint64 number)
{
    return HistoryReader(*d->connection).row(number);
}

HistoryPage NodeStore::history(const HistoryFilter& filter, qint64 before, int count)
{
    const Transaction transaction(*d->connection, Transaction::Read);
    return HistoryReader(*d->connection).page(filter, before, count);
}

ChangeSetPart NodeStore::changes(qint64 number, qint64 after, int count)
{
    return d->log.part(number, after, count);
}

ChangeSet NodeStore::changesOf(qint64 number, const QString& id)
{
    return d->log.changesOf(number, id);
}

LaterPart NodeStore::later(qint64 changeSet, qint64 after, int count)
{
    return d->log.later(changeSet, after, count);
}

QVector<ChangeSetRow> NodeStore::silentChangeSets(qint64 before, int count)
{
    return d->log.silentSets(before, count);
}

std::optional<LogReport> NodeStore::verifyLogs(const QString& file, const LogEnd& known,
                                               const std::function<bool(qint64)>& goOn, StoreError* error)
{
    try {
        *error = StoreError();
        SqliteFile reader(file, SqliteFile::ReadOnly);
        StoreFile::checkHeader(file, StoreSchema::latest());
        reader.requireTables();
        if (reader.value("PRAGMA user_version").toInt() < StoreSchema::FirstChained)
            return LogReport();
        const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
        reader.execute("BEGIN"); // one unchanging view
        return LogVerifier(reader, key->sealer, goOn).run(known);
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return std::nullopt;
    }
}

LogEnd NodeStore::endOfLogs(const QString& file)
{
    try {
        SqliteFile reader(file, SqliteFile::ReadOnly);
        const Sealer none;
        return LogChain(reader, none).where();
    } catch (const StoreFailure&) {
        return LogEnd();
    }
}

std::optional<ThinnedHistory> NodeStore::thinHistory(const QString& file, const HistoryLimit& limit,
                                                     const std::function<bool()>& goOn, StoreError* error)
{
    *error = StoreError();
    const std::unique_ptr<SqliteStore> store = SqliteStore::open(file, error, SqliteStore::Check::First);
    if (!store)
        return std::nullopt;
    try {
        return thinned(*store, limit, goOn);
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return std::nullopt;
    }
}

HistoryLimit NodeStore::historyLimit(const QString& file)
{
    try {
        SqliteFile reader(file, SqliteFile::ReadOnly);
        const auto number = [&reader](const char* key) {
            return reader.value("SELECT value FROM settings WHERE key = ?", {QString::fromLatin1(key)})
                .toInt();
        };
        return {number(HistoryLimits::Days), number(HistoryLimits::Megabytes)};
    } catch (const StoreFailure&) {
        return HistoryLimit();
    }
}

QVector<AuditRow> NodeStore::audit(const LogRange& range)
{
    return d->log.audit(range);
}

qint64 NodeStore::auditCount()
{
    return d->log.auditCount();
}

qint64 NodeStore::firstAuditWithChanges()
{
    return d->log.firstAuditWithChanges();
}

QVector<ProgramRow> NodeStore::programLines(const LogRange& range)
{
    return d->tables.programLines(range);
}

qint64 NodeStore::programLineCount()
{
    return d->tables.programLineCount();
}

} // namespace ko
