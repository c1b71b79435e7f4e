#include "Workloads.h"
#include "ko/Environments.h"
#include "store/NodeStore.h"
#include "store/StoreBackup.h"
#include "support/Soak.h"
#include "support/TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <cstdio>

#include <utime.h>

using namespace ko;
using namespace testsupport;

namespace {

/// Does the steps of a workload without end, and says the number of each one that is stored.
class Worker : public QObject
{
public:
    Worker(std::unique_ptr<HostNodeDB> db, std::unique_ptr<Workload> workload)
        : m_db(std::move(db))
        , m_workload(std::move(workload))
        , m_number(m_workload->stored(*m_db).least)
    {
        next();
    }

private:
    void next()
    {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (!m_workload->step(*m_db, ++m_number))
                    qFatal("step %d could not be done", m_number);
                QMetaObject::invokeMethod(
                    this, [this] { confirm(); }, Qt::QueuedConnection);
            },
            Qt::QueuedConnection);
    }

    /// The event loop has come round; this call was put into its queue after the one that stores.
    void confirm()
    {
        std::printf("%d\n", m_number);
        std::fflush(stdout);
        next();
    }

    const std::unique_ptr<HostNodeDB> m_db;
    const std::unique_ptr<Workload> m_workload;
    int m_number;
};

} // namespace

class TestDurability : public QObject
{
    Q_OBJECT

private slots:
    void confirmedStepsSurviveKills_data();
    void confirmedStepsSurviveKills();
    void firstStartSurvivesKills();
    void migrationSurvivesKills();
    void changesAreStoredAtTheEnd();

private:
    static void start(QProcess& process, const QString& workload, const QString& file);
    static void forgetDrafts(const QString& folder);
    static void expectSealedCopies(const QString& folder);
};

void TestDurability::start(QProcess& process, const QString& workload, const QString& file)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String("--work"), workload, file});
    QVERIFY(process.waitForStarted());
}

void TestDurability::confirmedStepsSurviveKills_data()
{
    QTest::addColumn<int>("lives");
    QTest::newRow("edits") << soakOr(80, 16);
    QTest::newRow("imports") << soakOr(70, 8);
    QTest::newRow("mass assignments") << soakOr(70, 8);
    QTest::newRow("put-backs") << soakOr(70, 8);
}

void TestDurability::confirmedStepsSurviveKills()
{
    QFETCH(int, lives);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const std::unique_ptr<Workload> workload = makeWorkload(name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    workload->prepare(*openDatabase(file));
    int confirmed = 0;
    int unconfirmed = 0;
    int cut = 0;
    LogEnd known;
    for (int life = 0; life < lives; ++life) {
        QProcess worker;
        start(worker, name, file);
        const int atLeast = life % 4; // some are killed before they have confirmed anything
        QElapsedTimer timer;
        timer.start();
        while (atLeast > 0 && !worker.canReadLine() && timer.elapsed() < 20000)
            worker.waitForReadyRead(1000);
        QThread::msleep(QRandomGenerator::global()->bounded(60));
        worker.kill();
        QVERIFY(worker.waitForFinished());
        QCOMPARE(worker.exitStatus(), QProcess::CrashExit);
        const QList<QByteArray> lines = worker.readAllStandardOutput().split('\n');
        for (const QByteArray& line : lines)
            confirmed = qMax(confirmed, line.toInt());
        QVERIFY(isSound(file));
        StoreError error;
        const std::optional<LogReport> log = NodeStore::verifyLogs(
            file, known, [](qint64) { return true; }, &error);
        QVERIFY2(log, qPrintable(error.detail));
        QVERIFY2(log->findings.isEmpty(), qPrintable(log->findings.value(0).text()));
        known = log->end;
        const std::unique_ptr<HostNodeDB> db = openDatabase(file);
        QVERIFY(db);
        const Stored stored = workload->stored(*db);
        QVERIFY2(stored.least >= confirmed && stored.most <= confirmed + 1,
                 qPrintable(QString::fromLatin1("confirmed %1, stored %2 to %3")
                                .arg(confirmed)
                                .arg(stored.least)
                                .arg(stored.most)));
        QVERIFY(stored.least == stored.most || !workload->isOneTurn());
        unconfirmed += stored.least == confirmed ? 0 : 1;
        cut += stored.least == stored.most ? 0 : 1;
        confirmed = stored.least;
    }
    QVERIFY2(confirmed > lives / 2, qPrintable(QString::number(confirmed)));
    qInfo("%d lives, %d steps; %d kills came between a commit and its confirmation, %d between the commits "
          "of a step",
          lives, confirmed, unconfirmed, cut);
}

void TestDurability::firstStartSurvivesKills()
{
    const int lives = soakOr(20, 10);
    for (int life = 0; life < lives; ++life) {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QLatin1String("nodes.db"));
        QProcess worker;
        start(worker, QLatin1String("edits"), file);
        QElapsedTimer timer;
        timer.start();
        while (!QFile::exists(file) && timer.elapsed() < 20000)
            QThread::usleep(100);
        QThread::usleep(QRandomGenerator::global()->bounded(3000));
        worker.kill();
        QVERIFY(worker.waitForFinished());
        const std::unique_ptr<HostNodeDB> db = openDatabase(file);
        QVERIFY(db && Edits().stored(*db).least >= 0);
        QCOMPARE(db->environments().getList().count(), 1);
    }
}

/// As if the drafts that the killed program left had been there for long.
void TestDurability::forgetDrafts(const QString& folder)
{
    const QFileInfoList drafts = QDir(folder).entryInfoList({QLatin1String("*.new-*")}, QDir::Files);
    for (const QFileInfo& draft : drafts) {
        const struct utimbuf longAgo = {1, 1};
        QCOMPARE(::utime(QFile::encodeName(draft.filePath()).constData(), &longAgo), 0);
    }
}

/// No half copy has the name of a good one, and no file but the original holds a password that can be read.
void TestDurability::expectSealedCopies(const QString& folder)
{
    const QFileInfoList files = QDir(folder).entryInfoList({QLatin1String("nodes.db*")}, QDir::Files);
    for (const QFileInfo& info : files) {
        StoreError error;
        QVERIFY2(!info.fileName().contains(QLatin1String(".new-")), qPrintable(info.fileName()));
        if (info.fileName().contains(QLatin1String(".backup-v")))
            QVERIFY2(StoreBackup::verify(info.filePath(), &error),
                     qPrintable(info.fileName() + error.detail));
        QFile file(info.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(!file.readAll().contains("in the clear"), qPrintable(info.fileName()));
    }
}

void TestDurability::migrationSurvivesKills()
{
    const int cameras = 30000;
    const int lives = soakOr(60, 10);
    const QTemporaryDir folder;
    const QString original = folder.filePath(QLatin1String("original.db"));
    makeOldDatabase(original, cameras);
    PlainSql(original).run(QLatin1String("INSERT INTO properties SELECT n, 'Password', 0, 'in the clear'"
                                         " FROM nodes WHERE n % 100 = 0"));
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    int old = 0;
    for (int life = 0; life < lives; ++life) {
        QVERIFY(QFile::copy(original, file));
        QProcess worker;
        start(worker, QLatin1String("edits"), file);
        QElapsedTimer timer;
        timer.start();
        const QStringList backup = {QFileInfo(file).fileName() + QLatin1String(".backup*")};
        while (QDir(folder.path()).entryList(backup).isEmpty() && timer.elapsed() < 20000)
            QThread::usleep(100);
        QThread::usleep(QRandomGenerator::global()->bounded(life % 2 == 0 ? 40000 : 400000));
        worker.kill();
        QVERIFY(worker.waitForFinished());
        QVERIFY(isSound(file));
        const int version = wholeVersion(file, cameras);
        QVERIFY(version >= 1);
        old += version == 1 ? 1 : 0;
        forgetDrafts(folder.path());
        QVERIFY(openDatabase(file));
        expectSealedCopies(folder.path());
        removeDatabase(file);
    }
    qInfo("%d of %d kills came before the commit of the migration", old, lives);
}

void TestDurability::changesAreStoredAtTheEnd()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    const QString id = addCamera(*openDatabase(file), QLatin1String("a"), QLatin1String("10.0.0.1"));
    QCOMPARE(openDatabase(file)->nodeIdList(AllNodeTypes), QStringList(id));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--work")) {
        std::unique_ptr<Workload> workload = makeWorkload(arguments.value(2));
        std::unique_ptr<HostNodeDB> db = openDatabase(arguments.value(3));
        if (!db || !workload)
            return 1;
        QApplication::setQuitOnLastWindowClosed(false); // a dialog comes and goes with each step
        const Worker worker(std::move(db), std::move(workload));
        return QApplication::exec();
    }
    testsupport::prepareApplication();
    TestDurability test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_durability.moc"
