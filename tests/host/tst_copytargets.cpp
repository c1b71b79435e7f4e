#include "StoreTesting.h"
#include "support/TestMain.h"

#include "exchange/CameraSurvey.h"
#include "store/StoreBackup.h"

#include <QDir>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

using namespace ko;
using namespace testsupport;

/// Where a backup and a list may go: never over a database that is used, with its log, or over what is no
/// file.
class TestCopyTargets : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void newFile();
    void databaseItself_data();
    void databaseItself();
    void databaseInUse();
    void databaseThatACrashLeft();
    void databaseNobodyUses();
    void logWithoutDatabase();
    void otherFiles_data();
    void otherFiles();
    void listOverADatabase_data();
    void listOverADatabase();
    void listIntoAStream();
    void listIntoAPipeNobodyReads();
    void listIntoADevice();

private:
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QString nullDevice() const;
    void makeDatabase(const QString& file, const QString& prefix, int cameras);
    QStringList camerasIn(const QString& file);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
};

void TestCopyTargets::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = path("nodes.kodb");
    makeDatabase(m_file, QLatin1String("new"), 3);
}

void TestCopyTargets::makeDatabase(const QString& file, const QString& prefix, int cameras)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    for (int i = 0; i < cameras; ++i)
        addCamera(*db, prefix + QString::number(i), QString::fromLatin1("10.0.0.%1").arg(i));
    QVERIFY(db->flush());
}

QStringList TestCopyTargets::camerasIn(const QString& file)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    QStringList names;
    const QVector<NodeSummary> all = db ? db->summaries() : QVector<NodeSummary>();
    for (const NodeSummary& node : all)
        names.append(node.name);
    return names;
}

/// One of our own for who could replace that of the system.
QString TestCopyTargets::nullDevice() const
{
    const QString own = path("null");
    return ::mknod(QFile::encodeName(own).constData(), S_IFCHR | 0600, makedev(1, 3)) == 0
               ? own
               : QString(QLatin1String("/dev/null"));
}

void TestCopyTargets::newFile()
{
    QVERIFY(StoreBackup::write(m_file, path("copy"), &m_error));
    QCOMPARE(camerasIn(path("copy")).size(), 3);
}

void TestCopyTargets::databaseItself_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("name") << "nodes.kodb";
    QTest::newRow("detour") << "folder/../nodes.kodb";
    QTest::newRow("symbolic link") << "symbolic";
    QTest::newRow("hard link") << "hard";
}

void TestCopyTargets::databaseItself()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("folder")));
    QVERIFY(QFile::link(QLatin1String("nodes.kodb"), path("symbolic")));
    QCOMPARE(::link(QFile::encodeName(m_file).constData(), QFile::encodeName(path("hard")).constData()), 0);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    addCamera(*db, QLatin1String("waiting"), QLatin1String("10.0.1.1"));
    QVERIFY(db->flush()); // in the log
    const QByteArray before = digest(m_file);
    QVERIFY(!StoreBackup::write(m_file, m_folder->filePath(name), &m_error));
    QCOMPARE(m_error.kind, StoreError::SameFile);
    QCOMPARE(digest(m_file), before);
    QVERIFY(!StoreBackup::restore(m_folder->filePath(name), m_file, &m_error));
    QCOMPARE(m_error.kind, StoreError::SameFile);
    QCOMPARE(db->summaries().size(), 4);
}

void TestCopyTargets::databaseInUse()
{
    const QString target = path("other.kodb");
    makeDatabase(target, QLatin1String("old"), 2);
    const std::unique_ptr<HostNodeDB> db = openDatabase(target);
    addCamera(*db, QLatin1String("waiting"), QLatin1String("10.0.1.1"));
    QVERIFY(db->flush());
    QVERIFY(!StoreBackup::write(m_file, target, &m_error));
    QCOMPARE(m_error.kind, StoreError::Locked);
    addCamera(*db, QLatin1String("later"), QLatin1String("10.0.1.2"));
    QVERIFY(db->flush());
    QCOMPARE(PlainSql(target).run(QLatin1String("SELECT group_concat(name) FROM nodes")).toString(),
             QLatin1String("old0,old1,waiting,later"));
}

/// SQLite would bring its log into whatever stands in its place.
void TestCopyTargets::databaseThatACrashLeft()
{
    const QString used = path("used.kodb");
    const QString target = path("crashed.kodb");
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(used);
        for (int i = 0; i < 100; ++i)
            addCamera(*db, QLatin1String("old"), QString::fromLatin1("10.0.2.%1").arg(i));
        QVERIFY(db->flush());
        QVERIFY(QFile::copy(used, target));
        QVERIFY(QFile::copy(used + QLatin1String("-wal"), target + QLatin1String("-wal")));
    }
    QVERIFY2(StoreBackup::write(m_file, target, &m_error), qPrintable(m_error.detail));
    for (const char* end : {"-wal", "-shm", "-journal"})
        QVERIFY2(!QFile::exists(target + QLatin1String(end)), end);
    QVERIFY(StoreBackup::verify(target, &m_error));
    QCOMPARE(camerasIn(target),
             QStringList({QLatin1String("new0"), QLatin1String("new1"), QLatin1String("new2")}));
}

void TestCopyTargets::databaseNobodyUses()
{
    const QString target = path("other.kodb");
    makeDatabase(target, QLatin1String("old"), 200);
    ::chmod(QFile::encodeName(target).constData(), 0644);
    QVERIFY(StoreBackup::write(m_file, target, &m_error));
    QCOMPARE(QDir(m_folder->path()).entryList({QLatin1String("other.kodb?*")}, QDir::Files), QStringList());
    struct stat info = {};
    QCOMPARE(::stat(QFile::encodeName(target).constData(), &info), 0);
    QCOMPARE(int(info.st_mode & 0777), 0600);
    QCOMPARE(camerasIn(target).size(), 3);
}

void TestCopyTargets::logWithoutDatabase()
{
    const QString target = path("gone.kodb");
    QFile log(target + QLatin1String("-wal"));
    QVERIFY(log.open(QIODevice::WriteOnly) && log.write("anything") == 8);
    log.close();
    QVERIFY(!StoreBackup::write(m_file, target, &m_error));
    QCOMPARE(m_error.kind, StoreError::Emptied);
    QVERIFY(!QFile::exists(target));
}

void TestCopyTargets::otherFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("error");
    QTest::newRow("text") << "text" << int(StoreError::NotADatabase);
    QTest::newRow("pipe") << "pipe" << int(StoreError::NotAFile);
    QTest::newRow("socket") << "socket" << int(StoreError::NotAFile);
    QTest::newRow("device") << "device" << int(StoreError::NotAFile);
    QTest::newRow("folder") << "folder" << int(StoreError::NotAFile);
}

void TestCopyTargets::otherFiles()
{
    QFETCH(QString, kind);
    QFETCH(int, error);
    QString target = m_folder->filePath(kind);
    const QByteArray path = QFile::encodeName(target);
    if (kind == QLatin1String("text")) {
        QFile file(target);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("notes") == 5);
    } else if (kind == QLatin1String("pipe")) {
        QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    } else if (kind == QLatin1String("socket")) {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        QCOMPARE(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ::close(socket);
    } else if (kind == QLatin1String("device")) {
        target = nullDevice();
    } else {
        QVERIFY(QDir().mkdir(target));
    }
    struct stat before = {};
    struct stat after = {};
    QCOMPARE(::stat(QFile::encodeName(target).constData(), &before), 0);
    QVERIFY(!StoreBackup::write(m_file, target, &m_error));
    QCOMPARE(int(m_error.kind), error);
    QVERIFY(!StoreBackup::restore(target, m_file, &m_error)); // nor are they read, which may never end
    QVERIFY(!HostNodeDB::open(target, &m_error));
    QCOMPARE(::stat(QFile::encodeName(target).constData(), &after), 0);
    QCOMPARE(after.st_mode, before.st_mode);
    QCOMPARE(after.st_size, before.st_size);
}

void TestCopyTargets::listOverADatabase_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the open one") << "nodes.kodb";
    QTest::newRow("its log") << "nodes.kodb-wal";
    QTest::newRow("its index") << "nodes.kodb-shm";
    QTest::newRow("through a link") << "link";
    QTest::newRow("another one") << "other.kodb";
}

void TestCopyTargets::listOverADatabase()
{
    QFETCH(QString, name);
    makeDatabase(path("other.kodb"), QLatin1String("other"), 1);
    QVERIFY(QFile::link(QLatin1String("nodes.kodb"), path("link")));
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString target = m_folder->filePath(name);
    const QByteArray before = digest(target);
    const auto result = CameraSurvey::exportCameras(target, CameraSurvey::Passwords::Write);
    QVERIFY2(result.error.contains(QLatin1String("database")), qPrintable(result.error));
    QCOMPARE(digest(target), before);
    QCOMPARE(db->summaries().size(), 3);
}

void TestCopyTargets::listIntoAStream()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QByteArray pipe = QFile::encodeName(path("pipe"));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    const auto result = CameraSurvey::exportCameras(path("pipe"), CameraSurvey::Passwords::Write);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.written, 3);
    char text[10000];
    const auto size = ::read(reader, text, sizeof text);
    ::close(reader);
    QVERIFY(QByteArray(text, int(qMax<qint64>(0, size))).contains("new2"));
    QVERIFY(!QFileInfo(path("pipe")).isFile());
}

void TestCopyTargets::listIntoAPipeNobodyReads()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const auto result = CameraSurvey::exportCameras(path("pipe"), CameraSurvey::Passwords::Write);
    QVERIFY(!result.error.isEmpty());
}

void TestCopyTargets::listIntoADevice()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString device = nullDevice();
    const auto result = CameraSurvey::exportCameras(device, CameraSurvey::Passwords::Write);
    QCOMPARE(result.error, QString());
    struct stat info = {};
    QCOMPARE(::stat(QFile::encodeName(device).constData(), &info), 0);
    QVERIFY(S_ISCHR(info.st_mode));
}

KO_TEST_MAIN(TestCopyTargets)

#include "tst_copytargets.moc"
