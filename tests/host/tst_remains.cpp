#include "StoreTesting.h"
#include "support/TestMain.h"

#include "store/SqliteStore.h"
#include "store/StoreBackup.h"

#include <QDir>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

using namespace ko;
using namespace testsupport;

/// What lies beside a database: traces that tell it is not a new one, what killed programs left, links to it,
/// and files that others may read.
class TestRemains : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void emptiedBesideItsLog_data();
    void emptiedBesideItsLog();
    void goneBesideItsBackups();
    void restoredOverWhatIsGone();
    void emptyAndAlone();
    void damagedBehindALink();
    void linkToWhatIsNotThere();
    void namesThatLookLikeAddresses_data();
    void namesThatLookLikeAddresses();
    void readableForAll_data();
    void readableForAll();
    void draftsOfKilledPrograms();

private:
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QStringList files() const;
    void write(const QString& name, const QByteArray& content);
    void makeDatabase(int cameras);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
};

void TestRemains::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = path("nodes.kodb");
}

void TestRemains::write(const QString& name, const QByteArray& content)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QStringList TestRemains::files() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}

void TestRemains::makeDatabase(int cameras)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    for (int i = 0; i < cameras; ++i)
        addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.0.0.%1").arg(i));
    QVERIFY(db->flush());
}

void TestRemains::emptiedBesideItsLog_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("empty") << true;
    QTest::newRow("gone") << false;
}

/// SQLite deletes the log of an empty database: all that was not in the file itself would be lost.
void TestRemains::emptiedBesideItsLog()
{
    QFETCH(bool, exists);
    const QString used = path("used.kodb");
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(used);
        addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
        QVERIFY(db->flush());
        QVERIFY(QFile::copy(used + QLatin1String("-wal"), m_file + QLatin1String("-wal")));
    }
    if (exists)
        write(m_file, QByteArray());
    const QStringList before = files();
    const QByteArray log = digest(m_file + QLatin1String("-wal"));
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QCOMPARE(m_error.kind, StoreError::Emptied);
    QCOMPARE(files(), before);
    QCOMPARE(digest(m_file + QLatin1String("-wal")), log);
}

void TestRemains::goneBesideItsBackups()
{
    makeDatabase(2);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    QVERIFY(QFile::remove(m_file));
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QCOMPARE(m_error.kind, StoreError::Emptied);
    QVERIFY(!QFile::exists(m_file));
}

void TestRemains::restoredOverWhatIsGone()
{
    makeDatabase(2);
    const QString backup = StoreBackup::add(m_file, &m_error);
    QVERIFY(QFile::remove(m_file));
    write(m_file + QLatin1String("-wal"), "the last that is known");
    QVERIFY2(StoreBackup::restore(backup, m_file, &m_error), qPrintable(m_error.detail));
    QCOMPARE(openDatabase(m_file)->summaries().size(), 2);
    const QStringList aside =
        QDir(m_folder->path()).entryList({QLatin1String("*.damaged-*-wal")}, QDir::Files);
    QCOMPARE(aside.size(), 1); // who knows what can still be made of it
}

void TestRemains::emptyAndAlone()
{
    write(m_file, QByteArray());
    QVERIFY(QDir().mkpath(StoreBackup::folderOf(m_file))); // of backups that are gone
    QVERIFY(openDatabase(m_file));
}

/// SQLite looks for the log beside the file, and so must we: what is left as it is must not be written to.
void TestRemains::damagedBehindALink()
{
    const QString used = path("used.kodb");
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("data")));
    const QString real = path("data/real.kodb");
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(used);
        for (int i = 0; i < 200; ++i)
            addCamera(*db, QLatin1String("Gate"), QString::fromLatin1("10.0.0.%1").arg(i));
        QVERIFY(db->flush());
    }
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(used);
        addCamera(*db, QLatin1String("new"), QLatin1String("10.0.1.1"));
        QVERIFY(db->flush());
        QVERIFY(QFile::copy(used, real));
        QVERIFY(QFile::copy(used + QLatin1String("-wal"), real + QLatin1String("-wal")));
    }
    QFile file(real);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(6000, '\xa5'));
    file.close();
    QVERIFY(QFile::link(QLatin1String("data/real.kodb"), m_file));
    const QByteArray before = digest(real);
    const QByteArray log = digest(real + QLatin1String("-wal"));
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QCOMPARE(m_error.kind, StoreError::Damaged);
    QCOMPARE(digest(real), before);
    QCOMPARE(digest(real + QLatin1String("-wal")), log);
}

void TestRemains::linkToWhatIsNotThere()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("data")));
    QVERIFY(QFile::link(path("data/real.kodb"), m_file));
    makeDatabase(1);
    QVERIFY(QFile::exists(path("data/real.kodb")));
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    QVERIFY(QFile::exists(path("data/real.kodb.backups")));
}

void TestRemains::namesThatLookLikeAddresses_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("memory") << "file:x?mode=memory";
    QTest::newRow("read only") << "file:x?mode=ro";
    QTest::newRow("percent") << "file:%41.kodb";
    QTest::newRow("SQLite's own") << ":memory:";
}

void TestRemains::namesThatLookLikeAddresses()
{
    QFETCH(QString, name);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    m_file = name;
    makeDatabase(3);
    const int stored = int(openDatabase(name)->summaries().size());
    StoreBackup::write(name, QLatin1String("file:copy?mode=memory"), &m_error);
    QDir::setCurrent(before);
    QCOMPARE(stored, 3);
    QStringList expected = {name, QLatin1String("file:copy?mode=memory")};
    expected.sort();
    QStringList found = files();
    found.sort();
    QCOMPARE(found, expected);
    QVERIFY(QFileInfo(m_folder->path() + QLatin1Char('/') + name).size() > 0);
}

void TestRemains::readableForAll_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("expected");
    QTest::newRow("for all") << 0644 << 0600;
    QTest::newRow("for a group that reads") << 0640 << 0600;
    QTest::newRow("shared in a group") << 0660 << 0660;
    QTest::newRow("written by all") << 0666 << 0660;
}

void TestRemains::readableForAll()
{
    QFETCH(int, mode);
    QFETCH(int, expected);
    makeDatabase(1);
    QCOMPARE(::chmod(QFile::encodeName(m_file).constData(), mode_t(mode)), 0);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    addCamera(*db, QLatin1String("Gate"), QLatin1String("10.0.1.1"));
    QVERIFY(db->flush());
    for (const char* end : {"", "-wal", "-shm"}) {
        struct stat info = {};
        QCOMPARE(::stat(QFile::encodeName(m_file + QLatin1String(end)).constData(), &info), 0);
        QCOMPARE(int(info.st_mode & 0777), expected);
    }
}

void TestRemains::draftsOfKilledPrograms()
{
    makeDatabase(1);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    const QString folder = StoreBackup::folderOf(m_file) + QLatin1Char('/');
    const QString draft = QLatin1String(".new-20260101T000000000Z");
    const QStringList old = {m_file + draft, m_file + draft + QLatin1String("-journal"),
                             m_file + QLatin1String(".backup-v2-20260101T000000Z") + draft,
                             folder + QLatin1String("20260101T000000000Z.kodb") + draft};
    const QString young = m_file + QLatin1String(".new-20260202T000000000Z");
    const QString held = m_file + QLatin1String(".new-20260303T000000000Z");
    const QString other = m_file + QLatin1String(".new-notes");
    const QStringList all = old + QStringList{young, held, other};
    for (const QString& name : all) {
        write(name, "half");
        const struct utimbuf longAgo = {1, 1};
        if (name != young)
            ::utime(QFile::encodeName(name).constData(), &longAgo);
    }
    QFile holder(held);
    QVERIFY(holder.open(QIODevice::ReadOnly));
    QCOMPARE(::flock(holder.handle(), LOCK_EX), 0);
    QVERIFY(openDatabase(m_file));
    for (const QString& name : old)
        QVERIFY2(!QFile::exists(name), qPrintable(name));
    for (const QString& name : {young, held, other})
        QVERIFY2(QFile::exists(name), qPrintable(name));
    QCOMPARE(StoreBackup::backups(m_file).size(), 1);
}

KO_TEST_MAIN(TestRemains)

#include "tst_remains.moc"
