#include "StoreTesting.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <QDir>
#include <QProcess>

#include <csignal>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ko;
using namespace testsupport;

/// Files that must not be opened, and disks that do not take what is written: each is told in words and
/// left byte for byte as it was.
class TestBadFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void otherKindsOfFile_data();
    void otherKindsOfFile();
    void databaseOfAnotherProgram();
    void databaseOfAnotherProgramInUse();
    void cutOffFile();
    void damagedPages();
    void damagedPagesAfterACrash();
    void newerVersion();
    void newerVersionAfterACrash();
    void missingFolder();
    void folderInsteadOfAFile();
    void writeProtected_data();
    void writeProtected();
    void lockedByAnotherProgram_data();
    void lockedByAnotherProgram();
    void lockedWhileInUse();
    void damageFoundWhileReading();
    void damageFoundBehind();
    void soundFileCheckedBehind();
    void fullDiskWhileInUse();
    void fullDiskAtTheFirstStart();
    void fullDiskAtALaterStart();
    void limitedFileWhileInUse();

private:
    void makeDatabase(int cameras);
    void expectRefused(StoreError::Kind kind);
    void spoil(const QString& file, qint64 from, qint64 count);
    QStringList files() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    QString m_mounted;
};

/// Opens a database as a user without special rights and says what happened; run in a process of its own.
static int openAsNobody(const QString& file)
{
    if (::geteuid() == 0 && ::setuid(65534) != 0)
        return 100;
    StoreError error;
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error);
    return db ? 50 : int(error.kind);
}

void TestBadFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.db"));
}

void TestBadFiles::cleanup()
{
    if (!m_mounted.isEmpty())
        ::umount(QFile::encodeName(m_mounted).constData());
    m_mounted.clear();
}

void TestBadFiles::makeDatabase(int cameras)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db);
    for (int i = 0; i < cameras; ++i)
        addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.0.0.%1").arg(i));
    QVERIFY(db->flush());
}

QStringList TestBadFiles::files() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}

void TestBadFiles::expectRefused(StoreError::Kind kind)
{
    const QByteArray before = digest(m_file);
    const QStringList filesBefore = files();
    StoreError error;
    QVERIFY(!HostNodeDB::open(m_file, &error));
    QVERIFY(!NodeDB::getDB());
    QVERIFY2(error.kind == kind, qPrintable(error.message + QLatin1String(" - ") + error.detail));
    QVERIFY(error.message.contains(QDir::toNativeSeparators(m_file)));
    QVERIFY(error.message.count(QLatin1Char('.')) >= 2); // what happened, and what to do
    QCOMPARE(digest(m_file), before);
    QCOMPARE(files(), filesBefore);
}

void TestBadFiles::spoil(const QString& file, qint64 from, qint64 count)
{
    QFile writer(file);
    QVERIFY(writer.open(QIODevice::ReadWrite));
    writer.seek(from);
    QCOMPARE(writer.write(QByteArray(int(count), '\xa5')), count);
}

void TestBadFiles::otherKindsOfFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("name;address\nGate;10.0.0.1\n");
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("zeros") << QByteArray(8192, '\0');
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16).append(4096, 'x');
    QTest::newRow("nearly") << QByteArray("SQLite format 2\0", 16).append(4096, 'x');
    QTest::newRow("huge line") << QByteArray(5000000, 'x');
}

void TestBadFiles::otherKindsOfFile()
{
    QFETCH(QByteArray, content);
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();
    expectRefused(StoreError::NotADatabase);
}

void TestBadFiles::databaseOfAnotherProgram()
{
    PlainSql(m_file).run(QLatin1String("CREATE TABLE nodes (id, name)"));
    expectRefused(StoreError::OtherProgram);
}

void TestBadFiles::databaseOfAnotherProgramInUse()
{
    PlainSql plain(m_file);
    plain.run(QLatin1String("PRAGMA journal_mode = WAL"));
    plain.run(QLatin1String("PRAGMA application_id = 7"));
    plain.run(QLatin1String("CREATE TABLE nodes (id, name)"));
    expectRefused(StoreError::OtherProgram);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 0);
}

void TestBadFiles::cutOffFile()
{
    makeDatabase(200);
    const qint64 size = QFileInfo(m_file).size();
    QVERIFY(size > 20000);
    QVERIFY(QFile::resize(m_file, size / 2 / 4096 * 4096));
    expectRefused(StoreError::Damaged);
    QVERIFY(QFile::resize(m_file, 50));
    expectRefused(StoreError::Damaged);
}

void TestBadFiles::damagedPages()
{
    makeDatabase(200);
    spoil(m_file, QFileInfo(m_file).size() / 2, 6000);
    expectRefused(StoreError::Damaged);
}

/// The log of a crash would go into the file if it were opened for writing.
void TestBadFiles::damagedPagesAfterACrash()
{
    makeDatabase(200);
    const QString crashed = m_folder->filePath(QLatin1String("crashed.db"));
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        addCamera(*db, QLatin1String("new"), QLatin1String("10.0.1.1"));
        QVERIFY(db->flush());
        QVERIFY(QFile::copy(m_file, crashed));
        QVERIFY(QFile::copy(m_file + QLatin1String("-wal"), crashed + QLatin1String("-wal")));
    }
    m_file = crashed;
    spoil(m_file, QFileInfo(m_file).size() / 2, 6000);
    const QByteArray before = digest(m_file);
    const QByteArray logBefore = digest(m_file + QLatin1String("-wal"));
    StoreError error;
    QVERIFY(!HostNodeDB::open(m_file, &error));
    QCOMPARE(error.kind, StoreError::Damaged);
    QCOMPARE(digest(m_file), before);
    QCOMPARE(digest(m_file + QLatin1String("-wal")), logBefore);
}

void TestBadFiles::newerVersion()
{
    makeDatabase(3);
    PlainSql(m_file).run(QLatin1String("PRAGMA user_version = 99"));
    expectRefused(StoreError::NewerVersion);
}

void TestBadFiles::newerVersionAfterACrash()
{
    makeDatabase(3);
    const QString crashed = m_folder->filePath(QLatin1String("crashed.db"));
    {
        PlainSql plain(m_file);
        plain.run(QLatin1String("PRAGMA user_version = 99"));
        QVERIFY(QFile::copy(m_file, crashed));
        QVERIFY(QFile::copy(m_file + QLatin1String("-wal"), crashed + QLatin1String("-wal")));
    }
    m_file = crashed;
    const QByteArray before = digest(m_file);
    StoreError error;
    QVERIFY(!HostNodeDB::open(m_file, &error));
    QCOMPARE(error.kind, StoreError::NewerVersion);
    QCOMPARE(digest(m_file), before);
}

void TestBadFiles::missingFolder()
{
    m_file = m_folder->filePath(QLatin1String("missing/nodes.db"));
    expectRefused(StoreError::CannotOpen);
    QCOMPARE(files(), QStringList());
}

void TestBadFiles::folderInsteadOfAFile()
{
    QVERIFY(QDir().mkpath(m_file));
    expectRefused(StoreError::NotAFile);
}

void TestBadFiles::writeProtected_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<int>("expected");
    QTest::newRow("file") << true << 0777 << 0444 << int(StoreError::ReadOnly);
    QTest::newRow("folder") << true << 0555 << 0666 << int(StoreError::ReadOnly);
    QTest::newRow("no file in the folder") << false << 0555 << 0 << int(StoreError::ReadOnly);
    QTest::newRow("unreadable file") << true << 0777 << 0 << int(StoreError::CannotOpen);
    QTest::newRow("unreadable folder") << true << 0 << 0666 << int(StoreError::ReadOnly);
    QTest::newRow("nothing protected") << true << 0777 << 0666 << 50;
}

void TestBadFiles::writeProtected()
{
    QFETCH(bool, exists);
    QFETCH(int, folderMode);
    QFETCH(int, fileMode);
    QFETCH(int, expected);
    if (exists) {
        makeDatabase(3);
        QCOMPARE(::chmod(QFile::encodeName(m_file).constData(), mode_t(fileMode)), 0);
    }
    const QByteArray folder = QFile::encodeName(m_folder->path());
    const QByteArray before = digest(m_file);
    QCOMPARE(::chmod(folder.constData(), mode_t(folderMode)), 0);
    const int result = QProcess::execute(QCoreApplication::applicationFilePath(),
                                         {QLatin1String("--open-as-nobody"), m_file});
    QCOMPARE(::chmod(folder.constData(), 0700), 0);
    QCOMPARE(result, expected);
    if (expected != 50) {
        QCOMPARE(digest(m_file), before);
        QCOMPARE(files(), exists ? QStringList(QLatin1String("nodes.db")) : QStringList());
    }
}

void TestBadFiles::lockedByAnotherProgram_data()
{
    QTest::addColumn<QString>("lock");
    QTest::newRow("writing") << "BEGIN IMMEDIATE";
    QTest::newRow("exclusive") << "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE";
}

void TestBadFiles::lockedByAnotherProgram()
{
    QFETCH(QString, lock);
    makeDatabase(3);
    PlainSql plain(m_file);
    const QStringList statements = lock.split(QLatin1String("; "));
    for (const QString& statement : statements)
        plain.run(statement);
    const QByteArray before = digest(m_file);
    StoreError error;
    QVERIFY(!HostNodeDB::open(m_file, &error));
    QCOMPARE(error.kind, StoreError::Locked);
    QCOMPARE(digest(m_file), before);
    plain.run(QLatin1String("ROLLBACK"));
    if (statements.count() == 1) {
        const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        QVERIFY(db);
        QCOMPARE(db->summaries().count(), 3);
    }
}

void TestBadFiles::lockedWhileInUse()
{
    makeDatabase(1);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString id = db->nodeIdList(AllNodeTypes).first();
    QSignalSpy failed(db.get(), SIGNAL(storeFailed(ko::StoreError)));
    QSignalSpy recovered(db.get(), SIGNAL(storeRecovered()));
    {
        PlainSql plain(m_file);
        plain.run(QLatin1String("BEGIN IMMEDIATE"));
        setText(*db, id, "Name", QLatin1String("first"));
        QVERIFY(!db->flush());
        setText(*db, id, "Address", QLatin1String("10.9.9.9"));
        QVERIFY(!db->flush());
        QCOMPARE(failed.count(), 2);
        plain.run(QLatin1String("ROLLBACK"));
    }
    setText(*db, id, "Model", QLatin1String("M"));
    QVERIFY(db->flush()); // takes the earlier ones along
    QCOMPARE(recovered.count(), 1);
    const QString stored = PlainSql(m_file)
                               .run(QLatin1String("SELECT name || ' ' || location || ' ' || value FROM nodes "
                                                  "JOIN properties ON node = n WHERE key = 'Model'"))
                               .toString();
    QCOMPARE(stored, QLatin1String("first 10.9.9.9 M"));
}

void TestBadFiles::damageFoundWhileReading()
{
    makeDatabase(2000);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QSignalSpy damaged(db.get(), SIGNAL(storeDamaged(ko::StoreError)));
    const qint64 size = QFileInfo(m_file).size();
    spoil(m_file, size / 4, size / 2);
    const QByteArray before = digest(m_file);
    int missing = 0;
    const QStringList ids = db->nodeIdList(AllNodeTypes);
    QCOMPARE(ids.count(), 2000);
    for (const QString& id : ids)
        missing += db->node(id).null() ? 1 : 0;
    QVERIFY(missing > 0);
    KO_TRY_VERIFY(damaged.count() > 0);
    QCOMPARE(damaged.at(0).at(0).value<StoreError>().kind, StoreError::Damaged);
    QCOMPARE(digest(m_file), before);
}

/// A damaged page that opening does not read: it is found while the database is in use, and from then on, or
/// rather from the beginning, nothing is written.
void TestBadFiles::damageFoundBehind()
{
    makeDatabase(2000);
    const QString sound = m_file;
    std::unique_ptr<HostNodeDB> db;
    for (qint64 at = QFileInfo(sound).size() - 4096; !db && at > 0; at -= 4096) {
        m_file = m_folder->filePath(QString::fromLatin1("spoiled-%1.db").arg(at));
        QVERIFY(QFile::copy(sound, m_file));
        spoil(m_file, at, 4096);
        StoreError error;
        db = HostNodeDB::open(m_file, &error, HostNodeDB::Check::Behind);
        QVERIFY(db || error.kind == StoreError::Damaged);
    }
    QVERIFY(db);
    const QByteArray before = digest(m_file);
    QSignalSpy checked(db.get(), SIGNAL(checked(ko::StoreError)));
    QSignalSpy failed(db.get(), SIGNAL(storeFailed(ko::StoreError)));
    addCamera(*db, QLatin1String("new"), QLatin1String("10.0.1.1"));
    QVERIFY(!db->flush()); // the check had no time yet
    QCOMPARE(failed.at(0).at(0).value<StoreError>().kind, StoreError::Damaged);
    KO_TRY_COMPARE(checked.count(), 1);
    QCOMPARE(checked.at(0).at(0).value<StoreError>().kind, StoreError::Damaged);
    db.reset();
    QCOMPARE(digest(m_file), before);
    expectRefused(StoreError::Damaged);
}

void TestBadFiles::soundFileCheckedBehind()
{
    for (const int cameras : {0, 2000}) {
        makeDatabase(cameras);
        StoreError error;
        std::unique_ptr<HostNodeDB> db = HostNodeDB::open(m_file, &error, HostNodeDB::Check::Behind);
        QVERIFY(db);
        QSignalSpy checked(db.get(), SIGNAL(checked(ko::StoreError)));
        addCamera(*db, QLatin1String("new"), QLatin1String("10.0.1.1"));
        QVERIFY(db->flush());
        KO_TRY_COMPARE(checked.count(), 1);
        QVERIFY(!checked.at(0).at(0).value<StoreError>());
        db.reset();
        QVERIFY(QFile::remove(m_file));
    }
    StoreError error; // a file that is only made now
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(m_file, &error, HostNodeDB::Check::Behind);
    QVERIFY(db && db->activeEnvironment().size() > 0);
}

/// A small disk of its own where that is allowed, else no test of it: limitedFileWhileInUse() remains.
static bool mountSmallDisk(const QString& folder)
{
    return ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=1m") == 0;
}

static void fillDisk(const QString& folder, int leave)
{
    QFile filler(folder + QLatin1String("/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    filler.resize(filler.size() - leave);
}

void TestBadFiles::fullDiskWhileInUse()
{
    if (!mountSmallDisk(m_folder->path())) {
        QVERIFY2(::geteuid() != 0, "root could not mount a small disk");
        return;
    }
    m_mounted = m_folder->path();
    makeDatabase(1);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString id = db->nodeIdList(AllNodeTypes).first();
    fillDisk(m_mounted, 0);
    QSignalSpy failed(db.get(), SIGNAL(storeFailed(ko::StoreError)));
    QSignalSpy recovered(db.get(), SIGNAL(storeRecovered()));
    setText(*db, id, "Name", QString(20000, QLatin1Char('n')));
    const QString added = addCamera(*db, QLatin1String("added"), QLatin1String("10.0.0.2"));
    QVERIFY(!db->flush());
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).value<StoreError>().kind, StoreError::DiskFull);
    QCOMPARE(db->node(id)->name().size(), 20000);
    QVERIFY(db->hasUnstoredChanges());
    QVERIFY(QFile::remove(m_mounted + QLatin1String("/filler")));
    QVERIFY(db->flush());
    QCOMPARE(recovered.count(), 1);
    PlainSql plain(m_file);
    QCOMPARE(plain.run(QLatin1String("SELECT length(name) FROM nodes ORDER BY n")).toInt(), 20000);
    QCOMPARE(plain.run(QLatin1String("SELECT id FROM nodes ORDER BY n DESC")).toString(), added);
    QCOMPARE(plain.run(QLatin1String("PRAGMA integrity_check")).toString(), QLatin1String("ok"));
}

void TestBadFiles::fullDiskAtTheFirstStart()
{
    if (!mountSmallDisk(m_folder->path())) {
        QVERIFY2(::geteuid() != 0, "root could not mount a small disk");
        return;
    }
    m_mounted = m_folder->path();
    for (int leave = 0; leave <= 40960; leave += 8192) {
        fillDisk(m_mounted, leave);
        StoreError error;
        QVERIFY(!HostNodeDB::open(m_file, &error));
        QCOMPARE(error.kind, StoreError::DiskFull);
        QCOMPARE(files().filter(QLatin1String("nodes")), QStringList());
        QVERIFY(QFile::remove(m_mounted + QLatin1String("/filler")));
    }
    QVERIFY(openDatabase(m_file));
}

/// The write-ahead log's index finds no room, which SQLite reports as an I/O error.
void TestBadFiles::fullDiskAtALaterStart()
{
    if (!mountSmallDisk(m_folder->path())) {
        QVERIFY2(::geteuid() != 0, "root could not mount a small disk");
        return;
    }
    m_mounted = m_folder->path();
    makeDatabase(3);
    fillDisk(m_mounted, 0);
    const QByteArray before = digest(m_file);
    StoreError error;
    QVERIFY(!HostNodeDB::open(m_file, &error));
    QCOMPARE(error.kind, StoreError::DiskFull);
    QCOMPARE(digest(m_file), before);
    QVERIFY(QFile::remove(m_mounted + QLatin1String("/filler")));
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db);
    QCOMPARE(db->summaries().count(), 3);
}

/// Changes more than a file may hold; run in a process of its own, since the limit is the process's.
static int writeBeyondLimit(const QString& file)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    const QString id = addCamera(*db, QLatin1String("small"), QLatin1String("10.0.0.1"));
    if (!db->flush())
        return 1;
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight = {200000, RLIM_INFINITY};
    if (::setrlimit(RLIMIT_FSIZE, &tight) != 0)
        return 2;
    setText(*db, id, "Model", QString(1000000, QLatin1Char('m')));
    if (db->flush() || !db->hasUnstoredChanges() || text(*db, id, "Model").size() != 1000000)
        return 3;
    const rlimit wide = {RLIM_INFINITY, RLIM_INFINITY};
    if (::setrlimit(RLIMIT_FSIZE, &wide) != 0)
        return 4;
    return db->flush() && !db->hasUnstoredChanges() ? 50 : 5;
}

void TestBadFiles::limitedFileWhileInUse()
{
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(),
                               {QLatin1String("--write-beyond-limit"), m_file}),
             50);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db);
    QCOMPARE(text(*db, db->nodeIdList(AllNodeTypes).first(), "Model").size(), 1000000);
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--open-as-nobody"))
        return openAsNobody(arguments.value(2));
    if (arguments.value(1) == QLatin1String("--write-beyond-limit"))
        return writeBeyondLimit(arguments.value(2));
    testsupport::prepareApplication();
    TestBadFiles test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_badfiles.moc"
