#include "client/AsClient.h"
#include "support/ExecArguments.h"
#include "support/HostFixture.h"

#include "Application.h"
#include "audit/AuditLog.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QThread>

#include <csignal>
#include <cstdio>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ko;

namespace {

/// A program in a folder of its own that may leave a core dump as large as it likes.
class DumpableProcess
{
public:
    explicit DumpableProcess(const QStringList& command)
    {
        const testsupport::ExecArguments arguments(command);
        const QByteArray folder = QFile::encodeName(m_folder.path());
        m_pid = ::fork();
        if (m_pid == 0) {
            rlimit limit;
            if (::getrlimit(RLIMIT_CORE, &limit) == 0) {
                limit.rlim_cur = limit.rlim_max;
                ::setrlimit(RLIMIT_CORE, &limit);
            }
            if (::chdir(folder.constData()) == 0)
                ::execv(arguments.program(), arguments.data());
            ::_exit(127);
        }
    }
    Q_DISABLE_COPY(DumpableProcess)
    ~DumpableProcess()
    {
        if (m_pid > 0 && !m_ended) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
        }
    }

    /// Whether the process aborts, and with a dump.
    bool abort(bool* dumped)
    {
        if (m_pid <= 0) // that would be all processes
            return false;
        int status = 0;
        ::kill(m_pid, SIGABRT);
        m_ended = ::waitpid(m_pid, &status, 0) == m_pid;
        *dumped = m_ended && (WCOREDUMP(status) || !QDir(m_folder.path()).isEmpty());
        return m_ended && WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
    }

private:
    const QTemporaryDir m_folder;
    pid_t m_pid;
    bool m_ended = false;
};

/// How one call of the program ended.
struct Call
{
    int exitCode = -1;
    QString said;
    QString complained;
};

} // namespace

/// The program as scripts and administrators call it, in a process of its own, without a window.
class tst_Application : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void help_data();
    void help();
    void version();
    void toolkitOptionsWithAWindow_data();
    void toolkitOptionsWithAWindow();
    void toolkitOptionsWithoutAWindow();
    void wrongUsage_data();
    void wrongUsage();
    void importAndExport();
    void importTwiceAddsNothing();
    void badLinesAreNamed();
    void foreignTextsDoNotSteerTheTerminal();
    void importOnAFullDisk_data();
    void importOnAFullDisk();
    void namesThatAreNoText_data();
    void namesThatAreNoText();
    void badLists_data();
    void badLists();
    void refusedListMakesNoDatabase_data();
    void refusedListMakesNoDatabase();
    void exportWithoutPasswords();
    void exportIsItsOwnersAlone();
    void exportIntoAMissingFolder();
    void badDatabases_data();
    void badDatabases();
    void lockedDatabase();
    void damageFoundWithTheWindowOpen();
    void noCoreDump();
    void backupAndRestore();
    void severalTasks();
    void failedBackupEndsIt();
    void exportToStandardOutput();
    void exportAppended();
    void restoreOfNothing();

private:
    static Call call(const QStringList& arguments, int kilobytes = 0);
    static Call run(const QString& program, const QStringList& arguments);
    int devices();
    Call onDatabase(const QStringList& arguments)
    {
        return call(QStringList{"--db", m_database} + arguments);
    }
    QString write(const char* name, const QByteArray& content);
    static QByteArray contentOf(const QString& file);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_database;
};

void tst_Application::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_database = m_folder->filePath("nodes.kodb");
}

/// With \a kilobytes no file can become larger than that.
Call tst_Application::call(const QStringList& arguments, int kilobytes)
{
    const QString limit = QString("ulimit -f %1; trap '' XFSZ; exec \"$0\" \"$@\"").arg(2 * kilobytes);
    const QStringList command =
        QStringList{QCoreApplication::applicationFilePath(), testsupport::clientArgument} + arguments;
    return kilobytes > 0 ? run("/bin/sh", QStringList{"-c", limit} + command)
                         : run(command.at(0), command.mid(1));
}

Call tst_Application::run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    Call result;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.exitCode = process.exitCode();
    result.said = QString::fromLocal8Bit(process.readAllStandardOutput());
    result.complained = QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

int tst_Application::devices()
{
    StoreError error;
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(m_database, &error);
    return db ? int(db->summaries().size()) : -1;
}

QString tst_Application::write(const char* name, const QByteArray& content)
{
    QFile file(m_folder->filePath(QLatin1String(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", name);
    return file.fileName();
}

QByteArray tst_Application::contentOf(const QString& file)
{
    QFile reader(file);
    return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray();
}

void tst_Application::help_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option : {"--help", "--help-all", "-h"})
        QTest::newRow(option) << option;
}

void tst_Application::help()
{
    QFETCH(QString, option);
    const Call result = onDatabase({option});
    QCOMPARE(result.exitCode, 0);
    for (const char* option :
         {"--db", "--import", "--export", "--without-passwords", "--backup", "--restore"})
        QVERIFY2(result.said.contains(QLatin1String(option)), option);
    QVERIFY(!QFile::exists(m_database));
}

void tst_Application::version()
{
    const Call result = call({"--version"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.said.startsWith("koclient "));
}

void tst_Application::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList("--unknown");
    QTest::newRow("no value") << QStringList("--import");
    QTest::newRow("no option") << QStringList("file.csv");
    for (const char* option : {"--db", "--import", "--export", "--backup", "--restore"})
        QTest::newRow(qPrintable(QString("nothing after %1").arg(option))) << QStringList({option, ""});
    QTest::newRow("nothing after the sign") << QStringList("--export=");
}

void tst_Application::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const Call result = onDatabase(arguments);
    QCOMPARE(result.exitCode, int(Application::WrongUsage));
    QVERIFY(!result.complained.isEmpty());
    QVERIFY(!QFile::exists(m_database));
}

void tst_Application::toolkitOptionsWithAWindow_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("heard");
    // The toolkit names a style that it does not know.
    QTest::newRow("one dash") << QStringList({"-style", "no-such-style"}) << "no-such-style";
    QTest::newRow("two dashes") << QStringList({"--style", "no-such-style"}) << "no-such-style";
    QTest::newRow("equals") << QStringList("-style=no-such-style") << "no-such-style";
    QTest::newRow("platform") << QStringList({"-platform", "minimal"}) << QString();
}

void tst_Application::toolkitOptionsWithAWindow()
{
    QFETCH(QStringList, options);
    QFETCH(QString, heard);
    m_database = write("no.kodb", QByteArray(1000, 'x')); // which it says before it asks what to do
    QProcess client;
    client.start(QCoreApplication::applicationFilePath(),
                 QStringList({testsupport::clientArgument, "--db", m_database}) + options);
    QString complained;
    const bool isHeard = QTest::qWaitFor(
        [&] {
            complained += QString::fromLocal8Bit(client.readAllStandardError());
            return complained.contains("no.kodb") && complained.contains(heard);
        },
        20000);
    QVERIFY2(isHeard, qPrintable(complained));
    QCOMPARE(client.state(), QProcess::Running);
    client.kill();
    QVERIFY(client.waitForFinished());
}

void tst_Application::toolkitOptionsWithoutAWindow()
{
    const QString list = write("in.csv", "name,address\nGate,10.0.0.1\n");
    const Call result = onDatabase({"--import", list, "-platform", "xcb"});
    QCOMPARE(result.exitCode, int(Application::WrongUsage));
    QVERIFY2(result.complained.contains("-platform"), qPrintable(result.complained));
    QVERIFY(!QFile::exists(m_database));
}

void tst_Application::importAndExport()
{
    const QString survey = QStringLiteral(KO_SOURCE_DIR "/examples/survey.csv");
    const Call imported = onDatabase({"--import", survey});
    QCOMPARE(imported.exitCode, 0);
    QVERIFY2(imported.said.contains("40 added"), qPrintable(imported.said));
    const QString list = m_folder->filePath("out.csv");
    QCOMPARE(onDatabase({"--export", list}).exitCode, 0);
    // The list written from the list that was written is the same.
    m_database = m_folder->filePath("second.kodb");
    QCOMPARE(onDatabase({"--import", list}).exitCode, 0);
    const QString again = m_folder->filePath("again.csv");
    QCOMPARE(onDatabase({"--export", again}).exitCode, 0);
    QCOMPARE(contentOf(again), contentOf(list));
}

void tst_Application::importTwiceAddsNothing()
{
    const QString list = write("in.csv", "name,address\nGate,10.0.0.1\nYard,10.0.0.2\n");
    QVERIFY(onDatabase({"--import", list}).said.contains("2 added"));
    const Call again = onDatabase({"--import", list});
    QCOMPARE(again.exitCode, 0);
    QVERIFY2(again.said.contains("0 added, 0 updated, 2 unchanged"), qPrintable(again.said));
}

void tst_Application::badLinesAreNamed()
{
    const QString list =
        write("in.csv", "name,address,port\nGate,10.0.0.1,80\nYard,10.0.0.2,many\nDock,10.0.0.3,80\n");
    const Call result = onDatabase({"--import", list});
    QCOMPARE(result.exitCode, int(Application::SomeLinesBad));
    QVERIFY2(result.complained.contains("line 3:"), qPrintable(result.complained));
    QVERIFY(!result.complained.contains("many")); // it could be a password in the wrong column
    QVERIFY(result.said.contains("2 added"));
    QVERIFY(result.said.contains("1 line with errors"));
}

void tst_Application::foreignTextsDoNotSteerTheTerminal()
{
    const QString list = write("in\x1b[2J.csv", "name,address,\x1b]0;owned\x07,a\xe2\x80\xae"
                                                "b,port\n"
                                                "Gate,10.0.0.1,,,x\n");
    const Call result = onDatabase({"--import", list});
    QCOMPARE(result.exitCode, int(Application::SomeLinesBad));
    QVERIFY2(result.complained.contains("\"\\x1b]0;owned\\x07\""), qPrintable(result.complained));
    QVERIFY(result.complained.contains("\"a\\u202eb\""));
    QVERIFY(result.complained.contains("in\\x1b[2J.csv, line 2"));
    for (const Call& call : {result, onDatabase({"--import", list + "\x1b[31m"}),
                             onDatabase({"--export", m_folder->filePath("no\nthing\x1b/x")}),
                             onDatabase({"--un\x1bknown"}), onDatabase({"\x1b[31m"})}) {
        QVERIFY(!call.complained.isEmpty());
        QVERIFY(!call.complained.contains('\x1b') && !call.complained.contains('\x07'));
        QVERIFY(!call.said.contains('\x1b'));
    }
}

void tst_Application::importOnAFullDisk_data()
{
    QTest::addColumn<int>("kilobytes");
    QTest::addColumn<bool>("storesSome");
    QTest::newRow("nothing fits") << 33 << false; // the index of the journal has 32
    QTest::newRow("something fits") << 1000 << true;
}

/// A limit to the size of files is to the database what a full disk is; the journal reaches it first.
void tst_Application::importOnAFullDisk()
{
    QFETCH(int, kilobytes);
    QFETCH(bool, storesSome);
    const int count = 4000;
    QByteArray lines = "name,address\n";
    for (int i = 0; i < count; ++i)
        lines += QStringLiteral("Camera %1,10.1.%2.%3\n").arg(i).arg(i / 200).arg(i % 200).toLatin1();
    const QString list = write("in.csv", lines);
    QCOMPARE(onDatabase({"--import", write("first.csv", "name,address\nGate,10.0.0.1\n")}).exitCode, 0);

    QElapsedTimer clock;
    clock.start();
    const Call result = call({"--db", m_database, "--import", list}, kilobytes);
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    const int stored = devices() - 1;
    QVERIFY2((stored > 0) == storesSome, qPrintable(result.said + result.complained));
    QVERIFY(stored < count);
    QVERIFY2(result.said.startsWith(QString("%1 added, 0 updated, 0 unchanged").arg(stored)),
             qPrintable(result.said));
    QVERIFY2(result.complained.contains("The import has stopped"), qPrintable(result.complained));
    QCOMPARE(result.exitCode, int(storesSome ? Application::SomeLinesBad : Application::Failed));

    const Call again = onDatabase({"--import", list});
    QVERIFY2(
        again.said.startsWith(QString("%1 added, 0 updated, %2 unchanged").arg(count - stored).arg(stored)),
        qPrintable(again.said));
}

void tst_Application::namesThatAreNoText_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option :
         {"--import ", "--import=", "--export ", "--backup ", "--restore ", "--db ", "--db="})
        QTest::newRow(option) << option;
}

/// The toolkit's own decoding gives the name of another file.
void tst_Application::namesThatAreNoText()
{
    QFETCH(QString, option);
    QCOMPARE(onDatabase({"--import", write("first.csv", "name,address\nGate,10.0.0.1\n")}).exitCode, 0);
    const QByteArray name = QFile::encodeName(m_folder->filePath("in")) + "\xff.csv";
    const QByteArray other = QFile::encodeName(m_folder->filePath("in")) + "\xef\xbf\xbd.csv";
    FILE* list = std::fopen(name.constData(), "w");
    QVERIFY(list && std::fputs("name,address\nYard,10.0.0.2\n", list) > 0);
    std::fclose(list);
    const auto removal = qScopeGuard([&name] { ::unlink(name.constData()); }); // the toolkit can't

    const QString script = "exec \"$0\" " + QString(testsupport::clientArgument) + " --db \"$1\" " + option +
                           "\"$(printf '%s/in\\377.csv' \"$2\")\"";
    const Call result =
        run("/bin/sh", {"-c", script, QCoreApplication::applicationFilePath(), m_database, m_folder->path()});
    QVERIFY(::access(other.constData(), F_OK) != 0);
    if (option.startsWith("--import")) {
        QVERIFY2(result.said.startsWith("1 added"), qPrintable(result.said + result.complained));
        QCOMPARE(result.exitCode, 0);
        StoreError error;
        const auto db = HostNodeDB::open(m_database, &error);
        QVERIFY(db->auditLog().entries(0, 1, true).front().entry->text().contains("from in\\xff.csv:"));
    } else {
        QVERIFY2(result.complained.contains("in\\xff.csv\" cannot be used"), qPrintable(result.complained));
        QCOMPARE(result.exitCode, int(Application::Failed));
        QCOMPARE(devices(), 1);
    }
}

void tst_Application::badLists_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no column that is known") << QByteArray("a,b\n1,2\n");
    QTest::newRow("binary") << QByteArray(100000, '\xfe');
    QTest::newRow("huge line") << QByteArray("name,address\n") + QByteArray(3000000, 'x');
}

void tst_Application::badLists()
{
    QFETCH(QByteArray, content);
    const Call result = onDatabase({"--import", write("in.csv", content)});
    QCOMPARE(result.exitCode, int(Application::Failed));
    QVERIFY(!result.complained.isEmpty());
    QVERIFY(result.said.contains("0 added"));
}

void tst_Application::refusedListMakesNoDatabase_data()
{
    badLists_data();
    QTest::newRow("missing") << QByteArray("-");
}

void tst_Application::refusedListMakesNoDatabase()
{
    QFETCH(QByteArray, content);
    const QString list = content == "-" ? m_folder->filePath("missing.csv") : write("in.csv", content);
    const QStringList before = QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    const Call result = onDatabase({"--import", list});
    QCOMPARE(result.exitCode, int(Application::Failed));
    QVERIFY(result.said.contains("0 added"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
}

void tst_Application::exportWithoutPasswords()
{
    const QByteArray secret = "s3cret-of-the-gate";
    onDatabase(
        {"--import", write("in.csv", "name,address,user,password\nGate,10.0.0.1,admin," + secret + "\n")});
    const QString with = m_folder->filePath("with.csv");
    const QString without = m_folder->filePath("without.csv");
    QCOMPARE(onDatabase({"--export", with}).exitCode, 0);
    QCOMPARE(onDatabase({"--export", without, "--without-passwords"}).exitCode, 0);
    QVERIFY(contentOf(with).contains(secret));
    QVERIFY(!contentOf(without).contains(secret));
    QVERIFY(contentOf(without).contains("admin"));
}

void tst_Application::exportIsItsOwnersAlone()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const QString list = m_folder->filePath("out.csv");
    const mode_t before = ::umask(0);
    const int exitCode = onDatabase({"--export", list}).exitCode;
    ::umask(before);
    QCOMPARE(exitCode, 0);
    for (const QString& file : {list, m_database}) {
        struct stat info;
        QCOMPARE(::stat(QFile::encodeName(file).constData(), &info), 0);
        QCOMPARE(int(info.st_mode & 0077), 0);
    }
}

void tst_Application::exportIntoAMissingFolder()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const Call result = onDatabase({"--export", m_folder->filePath("missing/out.csv")});
    QCOMPARE(result.exitCode, int(Application::Failed));
    QVERIFY(!result.complained.isEmpty());
}

void tst_Application::badDatabases_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("name,address\n");
    QTest::newRow("half a header") << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("another program's") << QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\0');
}

void tst_Application::badDatabases()
{
    QFETCH(QByteArray, content);
    m_database = write("nodes.kodb", content);
    const Call result = onDatabase({"--export", m_folder->filePath("out.csv")});
    QCOMPARE(result.exitCode, int(Application::NoDatabase));
    QVERIFY(result.complained.contains(m_database));
    QCOMPARE(contentOf(m_database), content);
    QVERIFY(!QFile::exists(m_folder->filePath("out.csv")));
}

void tst_Application::lockedDatabase()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    {
        QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "other");
        other.setDatabaseName(m_database);
        QVERIFY(other.open());
        QVERIFY(QSqlQuery(other).exec("BEGIN IMMEDIATE"));
        const Call result = onDatabase({"--import", write("more.csv", "name,address\nYard,10.0.0.2\n")});
        QCOMPARE(result.exitCode, int(Application::NoDatabase));
        QVERIFY2(result.complained.contains("held by another program"), qPrintable(result.complained));
        other.close();
    }
    QSqlDatabase::removeDatabase("other");
    QVERIFY(onDatabase({"--import", m_folder->filePath("more.csv")}).said.contains("1 added"));
}

/// The damaged page is one that the list of the window does not need.
void tst_Application::damageFoundWithTheWindowOpen()
{
    QCOMPARE(onDatabase({"--import", QStringLiteral(KO_SOURCE_DIR "/examples/survey.csv")}).exitCode, 0);
    const QByteArray sound = contentOf(m_database);
    const int page = 4096;
    StoreError error;
    for (int at = int(sound.size()) - page; at > 0; at -= page) {
        write("nodes.kodb", QByteArray(sound).replace(at, page, QByteArray(page, '\xa5')));
        if (HostNodeDB::open(m_database, &error, HostNodeDB::Check::Behind))
            break;
    }
    QVERIFY(!error);
    QProcess client;
    client.start(QCoreApplication::applicationFilePath(), {testsupport::clientArgument, "--db", m_database});
    QByteArray complained;
    QVERIFY(QTest::qWaitFor(
        [&] {
            complained += client.readAllStandardError();
            return complained.contains("damaged");
        },
        20000));
    QCOMPARE(client.state(), QProcess::Running); // and asks what to do
    client.kill();
    QVERIFY(client.waitForFinished());
    QCOMPARE(contentOf(m_database).size(), sound.size());
}

void tst_Application::noCoreDump()
{
    bool dumped = false;
    {
        DumpableProcess other({QStringLiteral("/bin/sleep"), QStringLiteral("60")});
        QThread::msleep(200); // it must have become the other program
        QVERIFY(other.abort(&dumped));
    }
    if (!dumped) {
        QTest::qSkip("this system writes no core dumps", __FILE__, __LINE__);
        return;
    }
    onDatabase({"--import", write("in.csv", "name,address,password\nGate,10.0.0.1,s3cret\n")});
    const QString inUse = m_database + QStringLiteral("-wal");
    QVERIFY(!QFile::exists(inUse));
    DumpableProcess client({QStringLiteral(KO_KOCLIENT), QStringLiteral("--db"), m_database});
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(inUse); }, 20000));
    QVERIFY(client.abort(&dumped));
    QVERIFY(!dumped);
}

void tst_Application::backupAndRestore()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const QString backup = m_folder->filePath("backup.kodb");
    QCOMPARE(onDatabase({"--backup", backup}).exitCode, 0);
    onDatabase({"--import", write("more.csv", "name,address\nYard,10.0.0.2\n")});
    QCOMPARE(onDatabase({"--restore", backup}).exitCode, 0);
    const Call result = onDatabase({"--import", m_folder->filePath("more.csv")});
    QVERIFY2(result.said.contains("1 added"), qPrintable(result.said));
}

/// Each is done, in this order, and none in silence not.
void tst_Application::severalTasks()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const QString backup = m_folder->filePath("backup.kodb");
    const QString more = write("more.csv", "name,address\nYard,10.0.0.2\n");
    const Call result =
        onDatabase({"--backup", backup, "--import", more, "--export", m_folder->filePath("out.csv")});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.said.contains("1 added") && result.said.contains("2 written"), qPrintable(result.said));
    QCOMPARE(devices(), 2);
    m_database = backup;
    QCOMPARE(devices(), 1);
}

void tst_Application::failedBackupEndsIt()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const QString more = write("more.csv", "name,address\nYard,10.0.0.2\n");
    QCOMPARE(onDatabase({"--backup", m_database, "--import", more}).exitCode, int(Application::Failed));
    QCOMPARE(devices(), 1);
}

void tst_Application::exportToStandardOutput()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const Call result = onDatabase({"--export", "/dev/stdout"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.said.count("Gate"), 1);
    QVERIFY(!result.said.contains("written")); // a line of another table
    QVERIFY(result.complained.contains("1 written"));
}

/// What is there already stays, as with any program whose output is appended.
void tst_Application::exportAppended()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const QString out = write("out.txt", "before\n");
    const QString script = QString("exec \"$0\" \"$@\" >> '%1'").arg(out);
    const Call result =
        run("/bin/sh", {"-c", script, QCoreApplication::applicationFilePath(), testsupport::clientArgument,
                        "--db", m_database, "--export", "/dev/stdout"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(contentOf(out).startsWith("before\n"));
    QVERIFY(contentOf(out).contains("Gate"));
}

void tst_Application::restoreOfNothing()
{
    onDatabase({"--import", write("in.csv", "name,address\nGate,10.0.0.1\n")});
    const Call result = onDatabase({"--restore", m_folder->filePath("missing")});
    QCOMPARE(result.exitCode, int(Application::Failed));
    QVERIFY(result.complained.contains("missing"));
    QVERIFY(onDatabase({"--import", m_folder->filePath("in.csv")}).said.contains("1 unchanged"));
}

int main(int argc, char** argv)
{
    return testsupport::runTestOrClient<tst_Application>(argc, argv);
}

#include "tst_application.moc"
