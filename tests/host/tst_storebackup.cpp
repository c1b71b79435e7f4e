#include "StoreTesting.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "store/BackupKeeper.h"
#include "store/SqliteStore.h"
#include "store/StoreBackup.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTimer>

#include <chrono>
#include <future>

#include <sys/stat.h>

using namespace ko;
using namespace testsupport;

class tst_StoreBackup : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void backupHoldsWhatIsThere();
    void backupIsItsOwnersAlone();
    void backupWhileAnotherProcessWrites();
    void backupWhileThisProcessWrites();
    void failedBackupLeavesTheOldOne_data();
    void failedBackupLeavesTheOldOne();
    void restoreWhileOpen();
    void restoreKeepsThePresent();
    void restoreOfAnOlderVersion();
    void restoreRefusesBadBackups_data();
    void restoreRefusesBadBackups();
    void restoreOverADamagedDatabase();
    void restoreIntoANewPlace();
    void lockedDatabaseStaysAsItIs();
    void oldBackupsGo();
    void newestGoodSkipsBadOnes();
    void keeperMakesOneADay();
    void keeperTellsFailures();
    void networkFileSystems();

private:
    void makeDatabase(int cameras);
    int camerasIn(const QString& file) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
};

/// Adds cameras until it is killed, each in a transaction of its own; run in a process of its own.
static int addWithoutEnd(const QString& file)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    for (int i = 0;; ++i) {
        addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.1.0.%1").arg(i));
        db->flush();
        if (i == 0) {
            std::printf("running\n");
            std::fflush(stdout);
        }
    }
}

void tst_StoreBackup::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
}

void tst_StoreBackup::makeDatabase(int cameras)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    for (int i = 0; i < cameras; ++i)
        addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.0.%1.1").arg(i));
    QVERIFY(db->flush());
}

int tst_StoreBackup::camerasIn(const QString& file) const
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    return db ? int(db->nodeIdList(IPDeviceType).size()) : -1;
}

void tst_StoreBackup::backupHoldsWhatIsThere()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString first = addCamera(*db, QLatin1String("first"), QLatin1String("10.0.0.1"));
    const QString second = addCamera(*db, QLatin1String("second"), QLatin1String("10.0.0.2"));
    db->addNodeRelation(first, second, RecordingFolderRelation);
    db->setBandwidth(SlowRemote);
    QVERIFY(db->flush());
    const QString target = m_folder->filePath(QLatin1String("copy.kodb"));
    QVERIFY2(StoreBackup::write(m_file, target, &m_error), qPrintable(m_error.detail));
    QVERIFY(!QFile::exists(target + QLatin1String("-wal")));

    const std::unique_ptr<HostNodeDB> copy = openDatabase(target);
    QCOMPARE(copy->nodeIdList(AllNodeTypes), QStringList({first, second}));
    QCOMPARE(copy->node(second)->name(), QLatin1String("second"));
    QCOMPARE(copy->relatedNodes(first, RecordingFolderRelation), QStringList(second));
    QCOMPARE(copy->bandwidth(), int(SlowRemote));
}

void tst_StoreBackup::backupIsItsOwnersAlone()
{
    makeDatabase(1);
    const mode_t before = ::umask(0);
    const QString backup = StoreBackup::add(m_file, &m_error);
    ::umask(before);
    QVERIFY2(!backup.isEmpty(), qPrintable(m_error.message));
    struct stat info;
    QCOMPARE(::stat(QFile::encodeName(backup).constData(), &info), 0);
    QCOMPARE(int(info.st_mode & 0777), 0600);
    QCOMPARE(::stat(QFile::encodeName(StoreBackup::folderOf(m_file)).constData(), &info), 0);
    QCOMPARE(int(info.st_mode & 0777), 0700);
    QCOMPARE(QDir(StoreBackup::folderOf(m_file)).entryList(QDir::Files).size(), 1); // no drafts left
}

void tst_StoreBackup::backupWhileAnotherProcessWrites()
{
    makeDatabase(200);
    QProcess writer;
    writer.start(QCoreApplication::applicationFilePath(), {QLatin1String("--add-without-end"), m_file});
    while (!writer.canReadLine())
        QVERIFY(writer.waitForReadyRead(20000));
    int before = 200;
    for (int i = 0; i < 5; ++i) {
        const QString backup = StoreBackup::add(m_file, &m_error);
        QVERIFY2(!backup.isEmpty(), qPrintable(m_error.message + m_error.detail));
        QVERIFY(StoreBackup::verify(backup, &m_error));
        const int cameras = camerasIn(backup);
        QVERIFY(cameras > before);
        before = cameras;
    }
    writer.kill();
    QVERIFY(writer.waitForFinished());
    QCOMPARE(StoreBackup::backups(m_file).size(), 5);
}

void tst_StoreBackup::backupWhileThisProcessWrites()
{
    makeDatabase(2);
    PlainSql(m_file).run(
        QLatin1String("WITH RECURSIVE numbers (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM"
                      " numbers WHERE i < 60) INSERT INTO properties (node, key, type, value)"
                      " SELECT 1, 'long' || i, 0, printf('%.*c', 1000000, 'x') FROM numbers"));
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString id = db->nodeIdList(IPDeviceType).value(1);
    const QString target = m_folder->filePath(QLatin1String("copy.kodb"));
    int writes = 0;
    QTimer writer;
    connect(&writer, &QTimer::timeout, this, [&] {
        setText(*db, id, "Name", QString::number(++writes));
        QVERIFY(db->flush());
    });
    writer.start(20);
    QTRY_VERIFY(writes > 0);
    QElapsedTimer clock;
    clock.start();
    std::future<bool> backup =
        std::async(std::launch::async, [&] { return StoreBackup::write(m_file, target, &m_error); });
    const auto hasEnded = [&backup] {
        return backup.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(), 20000);
    qInfo("%d writes, %lld ms", writes, clock.elapsed());
    writer.stop();
    QVERIFY2(backup.get(), qPrintable(m_error.detail));
    QVERIFY(StoreBackup::verify(target, &m_error));
}

void tst_StoreBackup::failedBackupLeavesTheOldOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("this is no database");
    QTest::newRow("nothing") << QByteArray();
}

void tst_StoreBackup::failedBackupLeavesTheOldOne()
{
    QFETCH(QByteArray, content);
    const QString target = m_folder->filePath(QLatin1String("copy.kodb"));
    makeDatabase(3);
    QVERIFY(StoreBackup::write(m_file, target, &m_error));
    const QByteArray before = digest(target);
    QFile bad(m_folder->filePath(QLatin1String("bad.kodb")));
    QVERIFY(bad.open(QIODevice::WriteOnly));
    bad.write(content);
    bad.close();
    const QStringList files = QDir(m_folder->path()).entryList(QDir::Files);
    QVERIFY(!StoreBackup::write(bad.fileName(), target, &m_error));
    QCOMPARE(m_error.kind, StoreError::NotADatabase);
    QVERIFY(!StoreBackup::write(m_folder->filePath(QLatin1String("missing")), target, &m_error));
    QCOMPARE(m_error.kind, StoreError::CannotOpen);
    QVERIFY(!StoreBackup::write(m_file, m_folder->filePath(QLatin1String("missing/copy")), &m_error));
    QCOMPARE(m_error.kind, StoreError::CannotOpen);
    QCOMPARE(digest(target), before);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), files);
}

void tst_StoreBackup::restoreWhileOpen()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString kept = addCamera(*db, QLatin1String("kept"), QLatin1String("10.0.0.1"));
    const QString gone = addCamera(*db, QLatin1String("gone"), QLatin1String("10.0.0.2"));
    QVERIFY(db->flush());
    const QString backup = StoreBackup::add(m_file, &m_error);
    setText(*db, kept, "Name", QLatin1String("changed"));
    db->removeNode(gone);
    const QString added = addCamera(*db, QLatin1String("added"), QLatin1String("10.0.0.3"));
    QVERIFY(db->flush());

    QSignalSpy inserted(db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    QSignalSpy removed(db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    QSignalSpy updated(db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    QVERIFY2(StoreBackup::restore(backup, m_file, &m_error), qPrintable(m_error.detail));
    QTRY_COMPARE_WITH_TIMEOUT(inserted.count(), 1, 2000);
    QCOMPARE(inserted.at(0).at(0).toString(), gone);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(0).toString(), added);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(db->node(kept)->name(), QLatin1String("kept"));
    QCOMPARE(db->node(gone)->name(), QLatin1String("gone"));

    // Life goes on, and numbers of nodes that were there after the backup are not given again.
    const QString next = addCamera(*db, QLatin1String("next"), QLatin1String("10.0.0.4"));
    setText(*db, kept, "Name", QLatin1String("changed again"));
    QVERIFY(db->flush());
    PlainSql plain(m_file);
    QCOMPARE(plain.run(QLatin1String("SELECT max(n) FROM nodes")).toInt(), 4);
    QCOMPARE(plain.run(QLatin1String("PRAGMA integrity_check")).toString(), QLatin1String("ok"));
    QCOMPARE(db->nodeIdList(AllNodeTypes), QStringList({kept, gone, next}));
}

void tst_StoreBackup::restoreKeepsThePresent()
{
    makeDatabase(2);
    const QString backup = m_folder->filePath(QLatin1String("copy.kodb"));
    QVERIFY(StoreBackup::write(m_file, backup, &m_error));
    makeDatabase(3); // five now
    QVERIFY(StoreBackup::restore(backup, m_file, &m_error));
    QCOMPARE(camerasIn(m_file), 2);
    const QVector<StoreBackup::Backup> kept = StoreBackup::backups(m_file);
    QCOMPARE(kept.size(), 1);
    QVERIFY(StoreBackup::restore(kept.at(0).file, m_file, &m_error));
    QCOMPARE(camerasIn(m_file), 5);
}

void tst_StoreBackup::restoreOfAnOlderVersion()
{
    const QString old = m_folder->filePath(QLatin1String("old.kodb"));
    SqliteStore::open(old, &m_error, SqliteStore::Check::First, 1).reset();
    QVERIFY(!m_error);
    PlainSql(old).run(QLatin1String("INSERT INTO nodes (id, type, name, location, recording, lookup)"
                                    " VALUES ('a', 2, 'old', '', 0, '')"));
    PlainSql(old).run(QLatin1String("PRAGMA wal_checkpoint(TRUNCATE)"));
    const QByteArray before = digest(old);
    makeDatabase(2);
    QVERIFY2(StoreBackup::restore(old, m_file, &m_error), qPrintable(m_error.detail));
    QCOMPARE(PlainSql(m_file).run(QLatin1String("PRAGMA user_version")).toInt(), StoreSchema::latest());
    QCOMPARE(camerasIn(m_file), 1);
    QCOMPARE(digest(old), before);
}

void tst_StoreBackup::restoreRefusesBadBackups_data()
{
    QTest::addColumn<QString>("spoilt");
    QTest::addColumn<int>("kind");
    QTest::newRow("no database") << "text" << int(StoreError::NotADatabase);
    QTest::newRow("damaged") << "damaged" << int(StoreError::Damaged);
    QTest::newRow("newer") << "newer" << int(StoreError::NewerVersion);
    QTest::newRow("missing") << "missing" << int(StoreError::CannotOpen);
}

void tst_StoreBackup::restoreRefusesBadBackups()
{
    QFETCH(QString, spoilt);
    QFETCH(int, kind);
    makeDatabase(200);
    const QString backup = StoreBackup::add(m_file, &m_error);
    QFile file(backup);
    if (spoilt == QLatin1String("missing"))
        QVERIFY(file.remove());
    else if (spoilt == QLatin1String("newer"))
        PlainSql(backup).run(QLatin1String("PRAGMA user_version = 99"));
    else {
        QVERIFY(file.open(QIODevice::ReadWrite));
        if (spoilt == QLatin1String("damaged"))
            file.seek(file.size() / 2);
        file.write(QByteArray(6000, 'x'));
        file.close();
    }
    const QByteArray before = digest(m_file);
    QVERIFY(!StoreBackup::restore(backup, m_file, &m_error));
    QCOMPARE(int(m_error.kind), kind);
    QCOMPARE(digest(m_file), before);
    QCOMPARE(StoreBackup::backups(m_file).size(), spoilt == QLatin1String("missing") ? 0 : 1);
}

void tst_StoreBackup::restoreOverADamagedDatabase()
{
    makeDatabase(200);
    const QString backup = StoreBackup::add(m_file, &m_error);
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(6000, 'x'));
    file.close();
    const QByteArray damaged = digest(m_file);
    QVERIFY2(StoreBackup::restore(backup, m_file, &m_error), qPrintable(m_error.detail));
    QCOMPARE(camerasIn(m_file), 200);
    const QStringList aside =
        QDir(m_folder->path()).entryList({QLatin1String("nodes.kodb.damaged-*")}, QDir::Files);
    QCOMPARE(aside.size(), 1);
    QCOMPARE(digest(m_folder->filePath(aside.at(0))), damaged);
}

void tst_StoreBackup::restoreIntoANewPlace()
{
    makeDatabase(4);
    const QString other = m_folder->filePath(QLatin1String("other.kodb"));
    QVERIFY2(StoreBackup::restore(m_file, other, &m_error), qPrintable(m_error.detail));
    QCOMPARE(camerasIn(other), 4);
    struct stat info;
    QCOMPARE(::stat(QFile::encodeName(other).constData(), &info), 0);
    QCOMPARE(int(info.st_mode & 0777), 0600);
}

void tst_StoreBackup::lockedDatabaseStaysAsItIs()
{
    makeDatabase(2);
    const QString backup = StoreBackup::add(m_file, &m_error);
    makeDatabase(1);
    {
        PlainSql lock(m_file);
        lock.run(QLatin1String("BEGIN IMMEDIATE"));
        QVERIFY(!StoreBackup::restore(backup, m_file, &m_error));
        QCOMPARE(m_error.kind, StoreError::Locked);
        lock.run(QLatin1String("ROLLBACK"));
    }
    QCOMPARE(camerasIn(m_file), 3);
}

void tst_StoreBackup::oldBackupsGo()
{
    makeDatabase(1);
    QVERIFY(QDir().mkpath(StoreBackup::folderOf(m_file)));
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const int days : {0, 1, 59, 61, 400}) {
        QFile file(StoreBackup::folderOf(m_file) + QLatin1Char('/') +
                   now.addDays(-days).toString(QLatin1String("yyyyMMdd'T'HHmmsszzz'Z'")) +
                   QLatin1String(".kodb"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QFile other(StoreBackup::folderOf(m_file) + QLatin1String("/notes.kodb"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    StoreBackup::removeOld(m_file, 60);
    QCOMPARE(StoreBackup::backups(m_file).size(), 3);
    QVERIFY(StoreBackup::backups(m_file).at(0).time > StoreBackup::backups(m_file).at(1).time);
    StoreBackup::removeOld(m_file, -1); // all of them are older
    QCOMPARE(StoreBackup::backups(m_file).size(), 1);
    QVERIFY(QFile::exists(other.fileName()));
}

void tst_StoreBackup::newestGoodSkipsBadOnes()
{
    QCOMPARE(StoreBackup::newestGood(m_file), QString());
    makeDatabase(200);
    const QString good = StoreBackup::add(m_file, &m_error);
    const QString bad = StoreBackup::add(m_file, &m_error);
    QFile file(bad);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(6000, 'x'));
    file.close();
    QCOMPARE(StoreBackup::newestGood(m_file), good);
}

void tst_StoreBackup::keeperMakesOneADay()
{
    makeDatabase(1);
    BackupKeeper keeper(m_file);
    QSignalSpy made(&keeper, &BackupKeeper::made);
    keeper.makeNow();
    keeper.makeNow(); // one is being made
    QVERIFY(made.wait(testsupport::Patience));
    QCOMPARE(made.count(), 1);
    QCOMPARE(StoreBackup::backups(m_file).size(), 1);
    QCOMPARE(made.at(0).at(0).toString(), StoreBackup::backups(m_file).at(0).file);
}

void tst_StoreBackup::keeperTellsFailures()
{
    BackupKeeper keeper(m_folder->filePath(QLatin1String("missing.kodb")));
    QSignalSpy failed(&keeper, &BackupKeeper::failed);
    keeper.makeNow();
    QVERIFY(failed.wait(testsupport::Patience));
    QCOMPARE(failed.at(0).at(0).value<StoreError>().kind, StoreError::CannotOpen);
}

void tst_StoreBackup::networkFileSystems()
{
    for (const char* type : {"nfs", "nfs4", "cifs", "smb3", "9p", "fuse.sshfs"})
        QVERIFY(StoreFile::isNetworkFileSystem(type));
    for (const char* type : {"ext4", "xfs", "btrfs", "tmpfs", "overlay", "vfat", "fuseblk", ""})
        QVERIFY(!StoreFile::isNetworkFileSystem(type));
    QVERIFY(!StoreFile::isOnNetwork(m_file));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    if (argc == 3 && QByteArray(argv[1]) == "--add-without-end")
        return addWithoutEnd(QString::fromLocal8Bit(argv[2]));
    tst_StoreBackup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_storebackup.moc"
