#include "StoreTesting.h"
#include "support/TestMain.h"

#include "exchange/CameraSurvey.h"

#include <QProcess>

using namespace ko;
using namespace testsupport;

/// To look whether a node is there and to add it is one step, also for several programs.
class TestRunAlone : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void othersCannotWriteMeanwhile();
    void whatOthersDidIsSeenFirst();
    void nothingIsStoredWithin();
    void notRunWhileOthersHold();
    void twoImportsOfOneList();

private:
    bool canBeWritten();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
};

/// One of several that import at once; run in a process of its own.
static int importList(const QString& file)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    if (!db)
        return 1;
    std::printf("ready\n");
    std::fflush(stdout);
    std::getchar(); // all begin together
    const CameraSurvey::ImportResult result = CameraSurvey::importCameras(file + QLatin1String(".csv"));
    std::printf("%d\n", result.added);
    return result.error.isEmpty() && result.badLines.isEmpty() ? 0 : 2;
}

void TestRunAlone::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
}

bool TestRunAlone::canBeWritten()
{
    const QString name = QLatin1String("writer");
    bool begun = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), name);
        database.setConnectOptions(QLatin1String("QSQLITE_BUSY_TIMEOUT=0"));
        database.setDatabaseName(m_file);
        begun = database.open() && QSqlQuery(database).exec(QLatin1String("BEGIN IMMEDIATE"));
    }
    QSqlDatabase::removeDatabase(name);
    return begun;
}

void TestRunAlone::othersCannotWriteMeanwhile()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    bool within = true;
    const auto work = [&] {
        within = canBeWritten();
        addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    };
    QVERIFY(canBeWritten());
    QCOMPARE(db->runAlone(work, &m_error), HostNodeDB::Outcome::Stored);
    QVERIFY(!within);
    QVERIFY(canBeWritten());
    QVERIFY(!db->hasUnstoredChanges());
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT name FROM nodes")).toString(), QLatin1String("Gate"));
}

void TestRunAlone::whatOthersDidIsSeenFirst()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const auto hint = db->nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    dynamic_cast<NodeHintIPDevice&>(*hint).address = QLatin1String("10.0.0.1");
    QVERIFY(db->lookupHint(*hint).isEmpty());
    {
        // As another program's; there is one host in each.
        PlainSql other(m_file);
        addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
        QVERIFY(db->flush());
        const QString lookup = other.run(QLatin1String("SELECT lookup FROM nodes")).toString();
        db->removeNode(db->nodeIdList(AllNodeTypes).constFirst());
        QVERIFY(db->flush());
        other.run(QString::fromLatin1("INSERT INTO nodes (id, type, name, location, recording, lookup)"
                                      " VALUES ('other', 2, 'Gate', '10.0.0.1', -1, '%1')")
                      .arg(lookup));
        other.run(QLatin1String("INSERT INTO changes (kind, id) VALUES ('N', 'other')"));
    }
    QString found;
    QSignalSpy inserted(db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    int announced = 0;
    const auto work = [&] {
        announced = inserted.count();
        found = db->lookupHint(*hint);
    };
    QCOMPARE(db->runAlone(work, &m_error), HostNodeDB::Outcome::Stored);
    QCOMPARE(found, QLatin1String("other"));
    QCOMPARE(announced, 1);
}

void TestRunAlone::nothingIsStoredWithin()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const auto work = [&] {
        const QString id = addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
        QVERIFY(db->flush()); // waits for the end
        QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 0);
        setText(*db, id, "Model", QLatin1String("8M"));
        db->syncForeignChanges();
    };
    QCOMPARE(db->runAlone(work, &m_error), HostNodeDB::Outcome::Stored);
    QCOMPARE(
        PlainSql(m_file).run(QLatin1String("SELECT value FROM properties WHERE key = 'Model'")).toString(),
        QLatin1String("8M"));
}

void TestRunAlone::notRunWhileOthersHold()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QSignalSpy failed(db.get(), &HostNodeDB::storeFailed);
    PlainSql other(m_file);
    other.run(QLatin1String("BEGIN IMMEDIATE"));
    bool ran = false;
    QCOMPARE(db->runAlone([&ran] { ran = true; }, &m_error), HostNodeDB::Outcome::NotRun);
    QVERIFY(!ran);
    QCOMPARE(m_error.kind, StoreError::Locked);
    QCOMPARE(failed.count(), 0);
    other.run(QLatin1String("ROLLBACK"));
    QCOMPARE(db->runAlone([&ran] { ran = true; }, &m_error), HostNodeDB::Outcome::Stored);
    QVERIFY(ran);
}

void TestRunAlone::twoImportsOfOneList()
{
    enum { Lines = 400, Programs = 3 };
    openDatabase(m_file).reset();
    QFile list(m_file + QLatin1String(".csv"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address\n");
    for (int i = 0; i < Lines; ++i) // every second one is found by its name
        list.write("Camera " + QByteArray::number(i) +
                   (i % 2 ? ",10.0." + QByteArray::number(i / 250) + '.' + QByteArray::number(i % 250)
                          : QByteArray(",")) +
                   '\n');
    list.close();
    std::vector<std::unique_ptr<QProcess>> programs;
    for (int i = 0; i < Programs; ++i) {
        programs.push_back(std::make_unique<QProcess>());
        programs.back()->start(QCoreApplication::applicationFilePath(), {QLatin1String("import"), m_file});
        QVERIFY(programs.back()->waitForReadyRead());
        programs.back()->readAll();
    }
    for (const auto& program : programs)
        program->write("\n");
    int added = 0;
    for (const auto& program : programs) {
        QVERIFY(program->waitForFinished());
        QCOMPARE(program->exitCode(), 0);
        added += program->readAll().trimmed().toInt();
    }
    QCOMPARE(added, int(Lines));
    PlainSql plain(m_file);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), int(Lines));
    QCOMPARE(plain.run(QLatin1String("SELECT count(DISTINCT name) FROM nodes")).toInt(), int(Lines));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepareApplication();
    if (argc == 3 && QByteArray(argv[1]) == "import")
        return importList(QFile::decodeName(argv[2]));
    TestRunAlone test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_runalone.moc"
