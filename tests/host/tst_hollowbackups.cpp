#include "StoreTesting.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "store/StoreBackup.h"

#include <QDir>
#include <QElapsedTimer>

#include <sqlite3.h>

using namespace ko;
using namespace testsupport;

namespace {

const char endless[] = "WITH RECURSIVE e(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM e)";

} // namespace

/// Databases whose every page is sound and whose tables are not ours: they are neither opened nor restored,
/// and nothing in them runs.
class TestHollowBackups : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void neverRestored_data();
    void neverRestored();
    void neverOpened_data();
    void neverOpened();
    void whatAnAdministratorAdds();
    void numbersThatOtherNodesHad();

private:
    void spoil(const QString& file, const QByteArray& sql);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    QString m_backup;
    StoreError m_error;
};

void TestHollowBackups::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    m_backup = m_folder->filePath(QLatin1String("backup.kodb"));
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString camera = addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    db->addNodeRelation(camera,
                        addNode(*db, RecordingFolderType, QLatin1String("folder"), QLatin1String("/mnt")),
                        RecordingFolderRelation);
    QVERIFY(db->flush());
    QVERIFY(StoreBackup::write(m_file, m_backup, &m_error));
}

/// Past QtSql, which takes one statement at a time.
void TestHollowBackups::spoil(const QString& file, const QByteArray& sql)
{
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(file).constData(), &handle), SQLITE_OK);
    char* message = nullptr;
    sqlite3_exec(handle, sql.constData(), nullptr, nullptr, &message);
    const QByteArray error(message);
    sqlite3_free(message);
    sqlite3_close(handle);
    QCOMPARE(error, QByteArray());
}

void TestHollowBackups::neverRestored_data()
{
    neverOpened_data();
    QTest::newRow("one table more") << QByteArray("CREATE TABLE more (x)") << int(StoreError::OtherTables);
    QTest::newRow("one view more") << QByteArray("CREATE VIEW more AS SELECT * FROM nodes")
                                   << int(StoreError::OtherTables);
    QTest::newRow("property of no node")
        << QByteArray("PRAGMA foreign_keys = OFF; UPDATE node_properties SET node = node + 99")
        << int(StoreError::Damaged);
    QTest::newRow("relation of no node")
        << QByteArray("PRAGMA foreign_keys = OFF; UPDATE relations SET source = 99")
        << int(StoreError::Damaged);
}

void TestHollowBackups::neverRestored()
{
    QFETCH(QByteArray, sql);
    QFETCH(int, kind);
    spoil(m_backup, sql);
    const QByteArray before = digest(m_file);
    const QByteArray backupBefore = digest(m_backup);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!StoreBackup::restore(m_backup, m_file, &m_error));
    QVERIFY2(int(m_error.kind) == kind, qPrintable(m_error.detail));
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(digest(m_file), before);
    QCOMPARE(digest(m_backup), backupBefore);
    QCOMPARE(openDatabase(m_file)->summaries().size(), 2);
}

void TestHollowBackups::neverOpened_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<int>("kind");
    const int kind = StoreError::OtherTables;
    QTest::newRow("no tables")
        << QByteArray("PRAGMA foreign_keys = OFF; DROP TABLE nodes; DROP TABLE node_properties;"
                      "DROP TABLE relations; DROP TABLE settings; DROP TABLE environments;"
                      "DROP TABLE audit; DROP TABLE program_log; DROP TABLE changes")
        << kind;
    QTest::newRow("a table less") << QByteArray("DROP TABLE audit") << kind;
    QTest::newRow("an index less") << QByteArray("DROP INDEX nodes_lookup") << kind;
    QTest::newRow("an endless view")
        << QByteArray("PRAGMA foreign_keys = OFF; DROP TABLE settings; CREATE VIEW settings AS ") + endless +
               " SELECT x AS key, x AS value FROM e"
        << kind;
    QTest::newRow("an endless trigger") << QByteArray("CREATE TRIGGER t AFTER INSERT ON changes BEGIN "
                                                      "INSERT INTO settings ") +
                                               endless + " SELECT x, x FROM e; END"
                                        << kind;
    QTest::newRow("a trigger that removes")
        << QByteArray("CREATE TRIGGER t AFTER UPDATE ON nodes BEGIN DELETE FROM nodes; END") << kind;
    QTest::newRow("another column") << QByteArray("ALTER TABLE nodes ADD COLUMN more") << kind;
    QTest::newRow("no constraint") << QByteArray("PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql ="
                                                 " replace(sql, 'NOT NULL', '') WHERE name = 'relations'")
                                   << kind;
}

void TestHollowBackups::neverOpened()
{
    QFETCH(QByteArray, sql);
    QFETCH(int, kind);
    spoil(m_file, sql);
    const QByteArray before = digest(m_file);
    QElapsedTimer clock;
    clock.start();
    for (const auto check : {HostNodeDB::Check::First, HostNodeDB::Check::Behind})
        QVERIFY(!HostNodeDB::open(m_file, &m_error, check));
    QVERIFY2(int(m_error.kind) == kind, qPrintable(m_error.detail));
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(digest(m_file), before);
}

/// Nothing of it is read or run by this program.
void TestHollowBackups::whatAnAdministratorAdds()
{
    spoil(m_file, "CREATE VIEW report AS SELECT name, location FROM nodes; CREATE TABLE notes (text);"
                  "CREATE INDEX by_name ON nodes (name); ANALYZE");
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db);
    addCamera(*db, QLatin1String("Door"), QLatin1String("10.0.0.2"));
    QVERIFY(db->flush());
}

/// A backup of another database gives the same numbers to other nodes.
void TestHollowBackups::numbersThatOtherNodesHad()
{
    const QString other = m_folder->filePath(QLatin1String("other.kodb"));
    QString door;
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(other);
        door = addCamera(*db, QLatin1String("Door"), QLatin1String("10.0.0.2"));
        setText(*db, door, "Model", QLatin1String("of the door"));
        QVERIFY(db->flush());
    }
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QStringList before = db->nodeIdList(AllNodeTypes);
    QSignalSpy removed(db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    QVERIFY2(StoreBackup::restore(other, m_file, &m_error), qPrintable(m_error.detail));
    KO_TRY_COMPARE(removed.count(), int(before.size()));
    QCOMPARE(db->nodeIdList(AllNodeTypes), QStringList(door));
    QCOMPARE(text(*db, door, "Model"), QLatin1String("of the door"));
    setText(*db, door, "Model", QLatin1String("changed"));
    const QString added = addCamera(*db, QLatin1String("added"), QLatin1String("10.0.0.3"));
    QVERIFY(db->flush());
    QCOMPARE(PlainSql(m_file)
                 .run(QString::fromLatin1("SELECT group_concat(id) FROM (SELECT id FROM nodes ORDER BY n)"))
                 .toString(),
             door + QLatin1Char(',') + added);
}

KO_TEST_MAIN(TestHollowBackups)

#include "tst_hollowbackups.moc"
