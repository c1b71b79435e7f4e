#include "store/SqliteStore.h"

#include "secrets/Keyring.h"
#include "store/DraftFile.h"
#include "store/LogChain.h"
#include "store/StoreBackup.h"
#include "store/StoreFile.h"
#include "store/StoredSecrets.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace ko {

std::unique_ptr<SqliteStore> SqliteStore::open(const QString& file, StoreError* error, Check check,
                                               int version)
{
    Opening opening;
    opening.check = check;
    opening.version = version;
    return open(file, error, opening);
}

std::unique_ptr<SqliteStore> SqliteStore::open(const QString& file, StoreError* error, const Opening& opening)
{
    try {
        *error = StoreError();
        return openOrThrow(StoreFile::resolved(file), opening);
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
}

std::unique_ptr<SqliteStore> SqliteStore::openOrThrow(const QString& file, const Opening& opening)
{
    if (!opening.mayBeEmptied && StoreBackup::isEmptied(file))
        throw StoreFailure{StoreError::make(StoreError::Emptied, file, QLatin1String("a log or backups"))};
    const bool created = StoreFile::create(file);
    try {
        checkFile(file, opening);
        std::unique_ptr<SqliteStore> store(new SqliteStore(file, ReadWrite));
        store->prepare(opening);
        StoreFile::keepPrivate(file);
        DraftFile::removeLeftovers(file, StoreBackup::folderOf(file));
        return store;
    } catch (const StoreFailure&) {
        // Whoever opened the file meanwhile has written to it.
        if (created && QFileInfo(file).size() == 0)
            QFile::remove(file);
        throw;
    }
}

std::unique_ptr<SqliteStore> SqliteStore::openBeside(const QString& file)
{
    return std::unique_ptr<SqliteStore>(new SqliteStore(file, ReadOnly));
}

SqliteStore::SqliteStore(const QString& file, Mode mode)
    : SqliteFile(file, mode)
{
}

void SqliteStore::checkFile(const QString& file, const Opening& opening)
{
    StoreFile::check(file, opening.version);
    // What a crash left in the write-ahead log would go into the file when the last connection closes,
    // unless that may only read.
    const bool hasLog = QFile::exists(file + QLatin1String("-wal"));
    SqliteStore probe(file, hasLog ? ReadOnly : ReadWrite);
    const int found = probe.userVersion();
    if (found > opening.version)
        throw StoreFailure{StoreError::make(StoreError::NewerVersion, file, QLatin1String("in its log"))};
    probe.checkTables(found);
    const bool hasLogMode = probe.value("PRAGMA journal_mode").toString() == QLatin1String("wal");
    const bool writesAtOnce = !hasLogMode || found < opening.version || StoredSecrets::isPending(probe);
    if (opening.check == Check::First || writesAtOnce)
        probe.findDamage();
}

void SqliteStore::checkTables(int version)
{
    int result = 0;
    const QString difference = StoreSchema::difference(handle(), version, StoreSchema::Extent::Ours, &result);
    if (result != 0)
        throw StoreFailure{StoreError::make(kindOf(result), fileName(), QLatin1String("its tables"))};
    if (!difference.isEmpty())
        throw StoreFailure{StoreError::make(StoreError::OtherTables, fileName(), difference)};
}

void SqliteStore::setSound()
{
    setCheckpointOnClose(handle(), true);
}

StoreError SqliteStore::findDamage(const QString& file)
{
    try {
        SqliteStore(file, ReadOnly).findDamage();
        return StoreError();
    } catch (const StoreFailure& failure) {
        return failure.error;
    }
}

void SqliteStore::findDamage()
{
    const QString result = value("PRAGMA quick_check(1)").toString();
    if (result != QLatin1String("ok"))
        throw StoreFailure{StoreError::make(StoreError::Damaged, fileName(), result)};
}

void SqliteStore::prepare(const Opening& opening)
{
    const int version = opening.version;
    const bool hasLog = QFileInfo(fileName() + QLatin1String("-wal")).size() > 0;
    setCheckpointOnClose(handle(), opening.check == Check::First || !hasLog);
    execute("PRAGMA foreign_keys = ON");
    if (userVersion() == 0)
        create(version);
    execute("PRAGMA journal_mode = WAL");
    execute("PRAGMA synchronous = FULL");
    const int found = userVersion();
    if (found < version)
        migrate(found, opening);
    StoredSecrets::sealPending(*this);
    const Transaction attempt(*this, Transaction::Write); // finds out now whether writing is possible
}

void SqliteStore::create(int version)
{
    // Before the write-ahead log is switched on, so that the header of the file tells whose it is from
    // the first commit on.
    Transaction transaction(*this, Transaction::Exclusive);
    if (userVersion() != 0)
        return; // another process was faster
    execute("PRAGMA application_id = " + QByteArray::number(StoreSchema::ApplicationId));
    applySteps(0, version);
    transaction.commit();
}

void SqliteStore::migrate(int from, const Opening& opening)
{
    const QString copy = opening.keepsCopy ? backUp(from) : QString();
    const auto removeCopy = [&copy] {
        if (!copy.isEmpty())
            QFile::remove(copy);
    };
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    try {
        Transaction transaction(*this, Transaction::Write);
        if (userVersion() == from) {
            applySteps(from, opening.version);
            if (opening.version >= StoreSchema::FirstChained) // what there is may take seconds
                LogChain(*this, key->sealer).begin();
            transaction.commit();
            return;
        }
    } catch (const StoreFailure&) {
        removeCopy(); // nothing has changed, and the next try makes its own
        throw;
    }
    removeCopy(); // another process has migrated, and kept its own
}

/// A copy gets its name when it is whole and its passwords are sealed.
QString SqliteStore::backUp(int version)
{
    const QString time = QDateTime::currentDateTimeUtc().toString(QLatin1String("yyyyMMdd'T'HHmmss'Z'"));
    const QString name = QString::fromLatin1("%1.backup-v%2-%3").arg(fileName()).arg(version).arg(time);
    for (int i = 1;; ++i) {
        QString copy = i == 1 ? name : name + QString::fromLatin1("-%1").arg(i);
        DraftFile draft(copy);
        run("VACUUM INTO ?", {draft.name()});
        if (version < StoreSchema::FirstSealed && Keyring::ofInstallation().isKept()) {
            SqliteStore saved(draft.name(), ReadWrite);
            StoredSecrets::seal(saved);
        }
        if (draft.publish())
            return copy;
    }
}

int SqliteStore::userVersion()
{
    return value("PRAGMA user_version").toInt();
}

void SqliteStore::applySteps(int from, int to)
{
    for (int version = from; version < to; ++version) {
        const QVector<const char*> statements = StoreSchema::stepFrom(version);
        for (const char* statement : statements)
            execute(statement);
    }
    execute("PRAGMA user_version = " + QByteArray::number(to));
}

qint64 SqliteStore::dataVersion()
{
    return value("PRAGMA data_version").toLongLong();
}

Transaction::Transaction(SqliteStore& store, Kind kind)
    : m_store(store)
{
    if (kind == Read)
        store.run("BEGIN");
    else if (kind == Write)
        store.run("BEGIN IMMEDIATE");
    else
        store.run("BEGIN EXCLUSIVE");
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_store.run("ROLLBACK");
    } catch (const StoreFailure&) {
        // SQLite has rolled back by itself, as it does after some errors.
    }
}

void Transaction::commit()
{
    m_store.run("COMMIT");
    m_open = false;
}

} // namespace ko
