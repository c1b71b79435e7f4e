#include "store/NodeStore.h"

#include "secrets/Vault.h"
#include "store/DeltaReader.h"
#include "store/HistoryReader.h"
#include "store/LogChain.h"
#include "store/LogThinning.h"
#include "store/LogVerifier.h"
#include "store/SqliteFile.h"
#include "store/StoreFile.h"
#include "store/StoreWriting.h"
#include "store/StoredSecrets.h"

namespace ko {

namespace {

struct View
{
    explicit View(std::unique_ptr<SqliteStore> opened)
        : connection(std::move(opened))
        , tables(*connection)
        , log(*connection)
    {
    }

    const std::unique_ptr<SqliteStore> connection;
    NodeTables tables;
    ChangeLog log;
};

} // namespace

class NodeStore::Private
{
public:
    explicit Private(std::unique_ptr<SqliteStore> opened)
        : own(std::move(opened))
        , file(own.connection->fileName())
        , vault(std::make_shared<Vault>(Keyring::ofInstallation()))
    {
    }

    /// To read with: while another thread writes, what was there before.
    View& view()
    {
        if (writing.expired()) {
            m_beside.reset();
            return own;
        }
        if (!m_beside)
            m_beside.emplace(SqliteStore::openBeside(file));
        return *m_beside;
    }

    View own;
    const QString file;
    const std::shared_ptr<Vault> vault;
    std::weak_ptr<StoreWriting> writing;
    qint64 dataVersion = 0;

private:
    std::optional<View> m_beside;
};

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
    std::unique_ptr<NodeStore> store(new NodeStore(std::make_unique<Private>(std::move(connection))));
    try {
        if (store->isShared())
            store->d->vault->setSite(
                store->d->own.connection->value("SELECT id FROM shared_site").toString());
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
    return store;
}

const QString& NodeStore::fileName() const
{
    return d->file;
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
    d->own.connection->setSound();
}

bool NodeStore::isShared()
{
    return d->view().connection->value("SELECT 1 FROM sqlite_schema WHERE name = 'shared_site'").isValid();
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
    SqliteStore::Rows rows = d->view().connection->run(
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
    SqliteStore& connection = *d->own.connection;
    Transaction transaction(connection, Transaction::Write);
    for (const qint64 number : numbers)
        connection.run("DELETE FROM shared_undone WHERE seq = ?", {number});
    transaction.commit();
}

bool NodeStore::isSealingPending()
{
    return StoredSecrets::isPending(*d->view().connection);
}

NodeStore::Contents NodeStore::load()
{
    const Transaction transaction(*d->own.connection, Transaction::Read);
    d->dataVersion = d->own.connection->dataVersion();
    return {d->own.log.revision(), d->own.tables.settings(), d->own.tables.environments()};
}

QVector<Relation> NodeStore::readNodes(const QString& file,
                                       const std::function<void(qint64, const PackedSummary&)>& visit)
{
    View view(SqliteStore::openBeside(file));
    const Transaction transaction(*view.connection, Transaction::Read);
    view.tables.forEachNode(visit);
    return view.tables.relations();
}

NodeRow NodeStore::node(const NodeID& id)
{
    return d->view().tables.node(id);
}

QVector<Relation> NodeStore::relationsFrom(const NodeID& id)
{
    return d->view().tables.relationsFrom(id);
}

std::optional<Delta> NodeStore::news(qint64 revision, const Wanted& wanted, int count)
{
    View& own = d->own;
    const qint64 version = own.connection->dataVersion();
    if (version == d->dataVersion)
        return std::nullopt;
    const Transaction transaction(*own.connection, Transaction::Read);
    Delta delta = DeltaReader(own.tables, own.log, wanted).since(revision, count);
    if (!delta.isMore)
        d->dataVersion = version;
    return delta;
}

Delta NodeStore::everything(const Wanted& wanted)
{
    const Transaction transaction(*d->own.connection, Transaction::Read);
    return DeltaReader(d->own.tables, d->own.log, wanted).everything();
}

std::optional<PropertyList> NodeStore::properties(const NodeID& id)
{
    const std::optional<StoredProperties> stored = d->view().tables.properties(id);
    return stored ? std::make_optional(stored->list) : std::nullopt;
}

void NodeStore::properties(const QStringList& ids,
                           const std::function<void(const NodeID&, const PropertyList&)>& visit)
{
    d->view().tables.forEachProperties(ids, visit);
}

void NodeStore::column(const QString& key, const std::function<void(const NodeID&, const QVariant&)>& visit)
{
    d->view().tables.forEachValue(key, visit);
}

QStringList NodeStore::nodesWithMac(const QString& mac)
{
    return d->view().tables.nodesWithMac(mac);
}

QStringList NodeStore::nodesWithExtension(const QString& extension)
{
    return d->view().tables.nodesWithExtension(extension);
}

void NodeStore::lookupKeys(const std::function<void(const NodeID&, const QString&)>& visit)
{
    d->view().tables.forEachLookupKey(visit);
}

NodeStore::Commit NodeStore::commit(qint64 revision, const Wanted& wanted, const Merge& merge)
{
    return begin(revision, wanted, merge)->run();
}

std::shared_ptr<StoreWriting> NodeStore::begin(qint64 revision, const Wanted& wanted, const Merge& merge)
{
    View& own = d->own;
    auto writing = std::make_shared<StoreWriting>(*own.connection, own.tables, own.log, *d->vault);
    writing->setBatch(merge(DeltaReader(own.tables, own.log, wanted).since(revision)));
    d->writing = writing;
    return writing;
}

qint64 NodeStore::newestChangeSet()
{
    return d->view().connection->value("SELECT max(seq) FROM change_sets").toLongLong();
}

QVector<ChangeSet> NodeStore::changeSets(qint64 after, int count)
{
    View& view = d->view();
    const Transaction transaction(*view.connection, Transaction::Read);
    return view.log.sets(after, count);
}

std::optional<ChangeSetRow> NodeStore::changeSetRow(qint64 number)
{
    return HistoryReader(*d->view().connection).row(number);
}

HistoryPage NodeStore::history(const HistoryFilter& filter, qint64 before, int count)
{
    SqliteStore& connection = *d->view().connection;
    const Transaction transaction(connection, Transaction::Read);
    return HistoryReader(connection).page(filter, before, count);
}

LastChangesPart NodeStore::lastChanges(qint64 after, int count)
{
    SqliteStore& connection = *d->view().connection;
    const Transaction transaction(connection, Transaction::Read);
    return HistoryReader(connection).lastChanges(after, count);
}

QVector<LastChange> NodeStore::lastChanges(const QStringList& nodes)
{
    SqliteStore& connection = *d->view().connection;
    const Transaction transaction(connection, Transaction::Read);
    return HistoryReader(connection).lastChanges(nodes);
}

ChangeSetPart NodeStore::changes(qint64 number, qint64 after, int count)
{
    return d->view().log.part(number, after, count);
}

ChangeSet NodeStore::changesOf(qint64 number, const QString& id)
{
    return d->view().log.changesOf(number, id);
}

LaterPart NodeStore::later(qint64 changeSet, qint64 after, int count)
{
    return d->view().log.later(changeSet, after, count);
}

QVector<ChangeSetRow> NodeStore::silentChangeSets(qint64 before, int count)
{
    return d->view().log.silentSets(before, count);
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
        return LogThinning::thin(*store, limit, goOn);
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
    return d->view().log.audit(range);
}

qint64 NodeStore::auditCount()
{
    return d->view().log.auditCount();
}

qint64 NodeStore::firstAuditWithChanges()
{
    return d->view().log.firstAuditWithChanges();
}

QVector<ProgramRow> NodeStore::programLines(const LogRange& range)
{
    return d->view().tables.programLines(range);
}

qint64 NodeStore::programLineCount()
{
    return d->view().tables.programLineCount();
}

} // namespace ko
