#include "StoreTesting.h"
#include "support/FileLockLines.h"
#include "support/TestMain.h"

#include "store/FileLocks.h"
#include "store/StoreBackup.h"

#include <QProcess>

#include <fcntl.h>
#include <unistd.h>

using namespace ko;
using namespace testsupport;

/// What this process holds of a database it holds until SQLite lets go of it.
class TestFileLocks : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void areKept();
    void outliveOtherDescriptors_data();
    void outliveOtherDescriptors();
    void outliveABackup();
    void outliveAnotherConnection();
    void goWithTheLastConnection();
    void writingAfterReading();
    void meetLocksOfOtherPrograms();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

/// Holds SQLite's lock for writing as any other program does, by POSIX, until it is ended.
static int holdWriteLock(const QString& file)
{
    const int index = ::open(QFile::encodeName(file + QLatin1String("-shm")).constData(), O_RDWR);
    struct flock range = {};
    range.l_type = F_WRLCK;
    range.l_whence = SEEK_SET;
    range.l_start = 120; // the place that SQLite's documentation of the format gives
    range.l_len = 1;
    if (index < 0 || ::fcntl(index, F_SETLK, &range) != 0)
        return 1;
    std::printf("held\n");
    std::fflush(stdout);
    ::pause();
    return 0;
}

/// Whether another program could believe that nobody uses the database; run in a process of its own.
static int takeAlone(const QString& file)
{
    const QString name = QLatin1String("alone");
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), name);
    database.setConnectOptions(QLatin1String("QSQLITE_BUSY_TIMEOUT=0"));
    database.setDatabaseName(file);
    if (!database.open())
        return 1;
    QSqlQuery query(database);
    query.exec(QLatin1String("PRAGMA locking_mode = EXCLUSIVE"));
    return query.exec(QLatin1String("BEGIN EXCLUSIVE")) && query.exec(QLatin1String("COMMIT")) ? 50 : 60;
}

static int runSelf(const char* role, const QString& file)
{
    return QProcess::execute(QCoreApplication::applicationFilePath(), {QLatin1String(role), file});
}

void TestFileLocks::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
}

void TestFileLocks::areKept()
{
    QVERIFY(FileLocks::areKept());
}

void TestFileLocks::outliveOtherDescriptors_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("database") << QString();
    QTest::newRow("log") << "-wal";
    QTest::newRow("index of the log") << "-shm";
}

void TestFileLocks::outliveOtherDescriptors()
{
    QFETCH(QString, end);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    QVERIFY(db->flush());
    const QStringList before = lockLines(m_file);
    QVERIFY(!before.isEmpty());
    {
        QFile file(m_file + end);
        QVERIFY(file.open(QIODevice::ReadOnly));
    }
    QCOMPARE(lockLines(m_file), before);
    QCOMPARE(runSelf("alone", m_file), 60);
}

void TestFileLocks::outliveABackup()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QStringList before = lockLines(m_file);
    StoreError error;
    QVERIFY(!StoreBackup::add(m_file, &error).isEmpty());
    QVERIFY(StoreBackup::verify(m_file, &error));
    QCOMPARE(lockLines(m_file), before);
    QCOMPARE(runSelf("alone", m_file), 60);
}

void TestFileLocks::outliveAnotherConnection()
{
    std::unique_ptr<PlainSql> first = std::make_unique<PlainSql>(m_file);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    first->run(QLatin1String("SELECT count(*) FROM nodes"));
    first.reset();
    QVERIFY(!lockLines(m_file).isEmpty());
    QCOMPARE(runSelf("alone", m_file), 60);
}

void TestFileLocks::goWithTheLastConnection()
{
    for (int i = 0; i < 3; ++i) {
        std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        QVERIFY(db);
        QCOMPARE(runSelf("alone", m_file), 60);
        db.reset();
        QCOMPARE(lockLines(m_file), QStringList());
        QCOMPARE(runSelf("alone", m_file), 50);
    }
}

/// The first descriptor of the file is one that may only read.
void TestFileLocks::writingAfterReading()
{
    openDatabase(m_file).reset();
    const QString name = QLatin1String("reader");
    {
        QSqlDatabase reader = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), name);
        reader.setConnectOptions(QLatin1String("QSQLITE_OPEN_READONLY"));
        reader.setDatabaseName(m_file);
        QVERIFY(reader.open());
        QSqlQuery query(reader);
        QVERIFY(query.exec(QLatin1String("SELECT count(*) FROM nodes")) && query.next());
        const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        QVERIFY(db);
        addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
        QVERIFY(db->flush());
        QVERIFY(query.exec(QLatin1String("SELECT count(*) FROM nodes")) && query.next());
        QCOMPARE(query.value(0).toInt(), 1);
    }
    QSqlDatabase::removeDatabase(name);
    QCOMPARE(lockLines(m_file), QStringList());
}

void TestFileLocks::meetLocksOfOtherPrograms()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {QLatin1String("hold"), m_file});
    QVERIFY(other.waitForReadyRead());
    addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    QVERIFY(!db->flush());
    other.kill();
    other.waitForFinished();
    QVERIFY(db->flush());
}

int main(int argc, char** argv)
{
    if (argc == 3 && QByteArray(argv[1]) == "hold")
        return holdWriteLock(QFile::decodeName(argv[2]));
    if (argc == 3 && QByteArray(argv[1]) == "alone") {
        QCoreApplication application(argc, argv);
        return takeAlone(QFile::decodeName(argv[2]));
    }
    QApplication application(argc, argv);
    prepareApplication();
    TestFileLocks test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_filelocks.moc"
