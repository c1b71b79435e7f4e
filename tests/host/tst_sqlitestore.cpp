#include "StoreTesting.h"
#include "store/PropertyCoding.h"
#include "store/SqliteStore.h"
#include "support/TestMain.h"

#include <QDateTime>
#include <QDir>

#include <limits>

#include <sys/stat.h>

using namespace ko;
using namespace testsupport;

class TestSqliteStore : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void newFileIsOurs();
    void commitsAreOnDisk();
    void transactionIsRolledBackUnlessCommitted();
    void failedStatementIsToldWithoutItsValues();
    void statementsMayBeRunAgain();
    void otherConnectionsAreNoticed();
    void foreignKeysHold();
    void secondWriterWaitsAndGivesUp();
    void openingTwiceKeepsWhatIsThere();
    void emptyFileBecomesADatabase();
    void oldVersionIsMigratedAndACopyKept();
    void propertiesComeTogether();
    void failedMigrationLeavesTheOldVersion();
    void filesAreForTheirOwnerOnly();

private:
    std::unique_ptr<SqliteStore> open(int version = StoreSchema::latest());
    QStringList backups() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
};

void TestSqliteStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.db"));
}

std::unique_ptr<SqliteStore> TestSqliteStore::open(int version)
{
    return SqliteStore::open(m_file, &m_error, SqliteStore::Check::First, version);
}

QStringList TestSqliteStore::backups() const
{
    return QDir(m_folder->path()).entryList({QLatin1String("*.backup*")}, QDir::Files, QDir::Name);
}

template <class Call>
static StoreError errorOf(Call call)
{
    try {
        call();
    } catch (const StoreFailure& failure) {
        return failure.error;
    }
    return StoreError();
}

static int mode(const QString& file)
{
    struct stat info;
    return ::stat(QFile::encodeName(file).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

void TestSqliteStore::newFileIsOurs()
{
    const std::unique_ptr<SqliteStore> store = open();
    QVERIFY(store);
    QVERIFY(!m_error);
    QCOMPARE(store->fileName(), m_file);
    QCOMPARE(store->value("PRAGMA user_version").toInt(), StoreSchema::latest());
    QCOMPARE(store->value("PRAGMA application_id").toUInt(), StoreSchema::ApplicationId);
    QCOMPARE(store->value("PRAGMA journal_mode").toString(), QLatin1String("wal"));
    QCOMPARE(store->value("PRAGMA synchronous").toInt(), 2);
    QCOMPARE(store->value("SELECT count(*) FROM nodes").toInt(), 0);
    QCOMPARE(backups(), QStringList());
}

void TestSqliteStore::commitsAreOnDisk()
{
    const std::unique_ptr<SqliteStore> store = open();
    Transaction transaction(*store, Transaction::Write);
    store->run("INSERT INTO settings VALUES (?, ?)", {QLatin1String("key"), QLatin1String("value")});
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT count(*) FROM settings")).toInt(), 0);
    transaction.commit();
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT value FROM settings")).toString(),
             QLatin1String("value"));
}

void TestSqliteStore::transactionIsRolledBackUnlessCommitted()
{
    const std::unique_ptr<SqliteStore> store = open();
    for (const Transaction::Kind kind : {Transaction::Read, Transaction::Write, Transaction::Exclusive}) {
        {
            const Transaction transaction(*store, kind);
            store->run("INSERT INTO settings VALUES ('a', 'b')");
            QCOMPARE(store->value("SELECT count(*) FROM settings").toInt(), 1);
        }
        QCOMPARE(store->value("SELECT count(*) FROM settings").toInt(), 0);
    }
}

void TestSqliteStore::failedStatementIsToldWithoutItsValues()
{
    const std::unique_ptr<SqliteStore> store = open();
    const QVector<SqlValue> values = {QLatin1String("key"), QLatin1String("s3cret")};
    store->run("INSERT INTO settings VALUES (?, ?)", values);
    const StoreError error = errorOf([&] { store->run("INSERT INTO settings VALUES (?, ?)", values); });
    QCOMPARE(error.kind, StoreError::Other);
    QVERIFY(!error.detail.isEmpty());
    QVERIFY(error.message.contains(QDir::toNativeSeparators(m_file)));
    QVERIFY(!(error.message + error.detail).contains(QLatin1String("s3cret")));
    QVERIFY(errorOf([&] { store->run("SELECT nonsense FROM nowhere"); }));
    QVERIFY(errorOf([&] { store->execute("nonsense"); }));
    // The store goes on.
    QCOMPARE(store->value("SELECT count(*) FROM settings").toInt(), 1);
}

void TestSqliteStore::statementsMayBeRunAgain()
{
    const std::unique_ptr<SqliteStore> store = open();
    for (int i = 0; i < 10; ++i)
        store->run("INSERT INTO settings VALUES (?, ?)", {QString::number(i), QString::number(i * i)});
    for (int i = 0; i < 10; ++i) {
        SqliteStore::Rows rows =
            store->run("SELECT value, key FROM settings WHERE key >= ? ORDER BY key", {QString::number(i)});
        QVERIFY(rows.next()); // and the rest is not read
        QCOMPARE(rows.number(0), qint64(i * i));
        QCOMPARE(rows.text(1), QString::number(i));
    }
    QVERIFY(!store->value("SELECT 1 FROM settings WHERE key = 'none'").isValid());
}

void TestSqliteStore::otherConnectionsAreNoticed()
{
    const std::unique_ptr<SqliteStore> first = open();
    const std::unique_ptr<SqliteStore> second = open();
    const qint64 before = first->dataVersion();
    first->run("INSERT INTO settings VALUES ('a', 'own')");
    QCOMPARE(first->dataVersion(), before);
    second->run("INSERT INTO settings VALUES ('b', 'foreign')");
    QVERIFY(first->dataVersion() != before);
}

void TestSqliteStore::foreignKeysHold()
{
    const std::unique_ptr<SqliteStore> store = open();
    QVERIFY(errorOf([&] { store->run("INSERT INTO node_properties VALUES (7, '{}', '', '')"); }));
    store->run("INSERT INTO nodes VALUES (7, 'id', 2, '', '', -1, '')");
    store->run("INSERT INTO node_properties VALUES (7, '{}', '', '')");
    store->run("DELETE FROM nodes");
    QCOMPARE(store->value("SELECT count(*) FROM node_properties").toInt(), 0);
}

void TestSqliteStore::secondWriterWaitsAndGivesUp()
{
    const std::unique_ptr<SqliteStore> first = open();
    const std::unique_ptr<SqliteStore> second = open();
    const Transaction held(*first, Transaction::Write);
    QElapsedTimer timer;
    timer.start();
    const StoreError error = errorOf([&] { const Transaction refused(*second, Transaction::Write); });
    QCOMPARE(error.kind, StoreError::Locked);
    QVERIFY(timer.elapsed() > SqliteStore::BusyTimeout / 2);
    QVERIFY(timer.elapsed() < SqliteStore::BusyTimeout * 2);
    const Transaction reading(*second, Transaction::Read); // readers are not kept out
    QCOMPARE(second->value("SELECT count(*) FROM nodes").toInt(), 0);
}

void TestSqliteStore::openingTwiceKeepsWhatIsThere()
{
    open()->run("INSERT INTO settings VALUES ('a', 'b')");
    QCOMPARE(open()->value("SELECT value FROM settings").toString(), QLatin1String("b"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(QLatin1String("nodes.db")));
}

void TestSqliteStore::emptyFileBecomesADatabase()
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(open());
    QCOMPARE(open()->value("PRAGMA user_version").toInt(), StoreSchema::latest());
}

void TestSqliteStore::oldVersionIsMigratedAndACopyKept()
{
    open(1)->run("INSERT INTO nodes VALUES (7, 'id', 2, 'old', '', -1, '')");
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    {
        const std::unique_ptr<SqliteStore> store = open();
        QVERIFY(store);
        QCOMPARE(store->value("PRAGMA user_version").toInt(), StoreSchema::latest());
        QCOMPARE(store->value("SELECT name FROM nodes").toString(), QLatin1String("old"));
        QCOMPARE(store
                     ->value("SELECT count(*) FROM sqlite_master WHERE type = 'index' AND name IN "
                             "('nodes_lookup', 'relations_destination')")
                     .toInt(),
                 2);
    }
    QCOMPARE(backups().count(), 1);
    const QString prefix = QLatin1String("nodes.db.backup-v1-");
    QVERIFY(backups().constFirst().startsWith(prefix));
    QDateTime time = QDateTime::fromString(backups().constFirst().mid(prefix.size()),
                                           QLatin1String("yyyyMMdd'T'HHmmss'Z'"));
    time.setTimeSpec(Qt::UTC);
    QVERIFY(time >= before && time <= QDateTime::currentDateTimeUtc());
    // The copy is a database of the old version, which can be opened in its turn.
    m_file = m_folder->filePath(backups().constFirst());
    QCOMPARE(mode(m_file), 0600);
    QCOMPARE(open(1)->value("SELECT name FROM nodes").toString(), QLatin1String("old"));
    QCOMPARE(open(1)->value("PRAGMA user_version").toInt(), 1);
}

void TestSqliteStore::propertiesComeTogether()
{
    {
        const std::unique_ptr<SqliteStore> old = open(StoreSchema::FirstPropertyObjects - 1);
        old->run("INSERT INTO nodes VALUES (7, 'all', 2, '', '', -1, ''), (8, 'none', 2, '', '', -1, '')");
        old->run("INSERT INTO properties VALUES (7, 'MACAddress', 0, '00:00:5E:00:53:01'),"
                 " (7, 'FactoryIP', 0, '10_0_0_1'), (7, 'Port', 2, -2147483648), (7, 'UseSSL', 1, 1),"
                 " (7, 'Speed', 3, CAST(? AS REAL)), (7, 'None', 3, 'nan'), (7, 'Endless', 3, '-inf'), (7, "
                 "'Empty', 0, ''),"
                 " (7, 'Set', 4, '{\"a\":[4,{\"b\":[2,5]}]}'),"
                 // What only another program writes.
                 " (7, 'bytes', 0, x'00ff'), (7, 'nothing', 0, NULL), (7, 'huge', 3, 9e999), (7, 'broken', "
                 "4, '{'),"
                 " (7, 'text', 0, CAST(x'61ff62' AS TEXT))",
                 {QString::number(0.1F, 'g', 17)});
        old->run("INSERT INTO properties VALUES (7, ?, 0, ?)",
                 {QString::fromUtf8("Größe \"\\\n"), QString::fromUtf8("\"\\\u0001\n日本")});
    }
    const std::unique_ptr<SqliteStore> store = open();
    QVERIFY(store);
    const auto stored = [&store](const char* sql) {
        return *PropertyCoding::listFromText(store->value(sql).toString().toStdString());
    };
    QCOMPARE(stored("SELECT properties FROM node_properties WHERE node = 8").count(), 0);
    const PropertyList list = stored("SELECT properties FROM node_properties WHERE node = 7");
    QCOMPARE(list.count(), 15);
    const auto is = [&list](const char* key, const QVariant& value) {
        return PropertyList::sameValue(list.value(QString::fromUtf8(key)), value);
    };
    QVERIFY(is("MACAddress", "00:00:5E:00:53:01"));
    QVERIFY(is("Port", std::numeric_limits<int>::min()));
    QVERIFY(is("UseSSL", true));
    QVERIFY(is("Speed", 0.1F));
    QVERIFY(is("None", std::numeric_limits<float>::quiet_NaN()));
    QVERIFY(is("Endless", -std::numeric_limits<float>::infinity()));
    QVERIFY(is("Empty", QString::fromLatin1("")));
    const kogen::PropertySet set = list.value(QLatin1String("Set")).value<kogen::PropertySet>();
    const kogen::PropertySet inner = set.begin()->second->value().value<kogen::PropertySet>();
    QCOMPARE(inner.begin()->second->value(), QVariant(5));
    QVERIFY(is("text", QString::fromUtf8("a\uFFFDb")));
    QVERIFY(is("Größe \"\\\n", QString::fromUtf8("\"\\\u0001\n日本")));
    for (const char* spoiled : {"bytes", "nothing", "huge", "broken"})
        QVERIFY(list.contains(QLatin1String(spoiled)));
    QCOMPARE(store->value("SELECT mac || ' ' || extension FROM node_properties WHERE node = 7").toString(),
             QLatin1String("00:00:5E:00:53:01 10_0_0_1"));
    QCOMPARE(store->value("SELECT mac || extension FROM node_properties WHERE node = 8").toString(),
             QLatin1String(""));
}

void TestSqliteStore::failedMigrationLeavesTheOldVersion()
{
    open(1)->run("CREATE TABLE nodes_lookup (in_the_way)");
    const QByteArray before = digest(m_file);
    QVERIFY(!open());
    QVERIFY(m_error);
    QCOMPARE(digest(m_file), before);
    QCOMPARE(backups(), QStringList());
    QCOMPARE(open(1)->value("PRAGMA user_version").toInt(), 1);
    open(1)->run("DROP TABLE nodes_lookup");
    QVERIFY(open());
    QCOMPARE(backups().count(), 1);
}

void TestSqliteStore::filesAreForTheirOwnerOnly()
{
    const mode_t old = ::umask(0);
    const std::unique_ptr<SqliteStore> store = open(1);
    store->run("INSERT INTO settings VALUES ('a', 'b')");
    const QStringList files = QDir(m_folder->path()).entryList(QDir::Files);
    ::umask(0777);
    m_file = m_folder->filePath(QLatin1String("other.db"));
    QVERIFY(open(1));
    ::umask(old);
    QCOMPARE(files.count(), 3); // with the log and its index
    for (const QString& file : files)
        QCOMPARE(mode(m_folder->filePath(file)), 0600);
    QCOMPARE(mode(m_file), 0600);
}

KO_TEST_MAIN(TestSqliteStore)
#include "tst_sqlitestore.moc"
