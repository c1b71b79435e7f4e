#include "support/TestMain.h"

#include "ko/LogQt.h"
#include "ko/MutexLocker.h"

#include <QProcess>
#include <QSemaphore>
#include <QStringList>

#include <atomic>
#include <thread>

using ko::LogQt;

namespace {

const char childArgument[] = "--write-line";

struct Sink : ko::LogSink
{
    QStringList lines;
    bool wasLocked = true;

    void write(int level, const QString& line) override
    {
        lines.append(QString("%1:%2").arg(level).arg(line));
        // Asked by another thread: to ask for a mutex that one holds oneself is undefined.
        std::thread([this] {
            if (LogQt::instance().mutex()->tryLock()) {
                LogQt::instance().mutex()->unlock();
                wasLocked = false;
            }
        }).join();
    }
};

struct SlowSink : ko::LogSink
{
    QSemaphore entered;
    QSemaphore release;
    std::atomic<bool> done{false};

    void write(int, const QString&) override
    {
        entered.release();
        release.acquire();
        done = true;
    }
};

struct OverlapSink : ko::LogSink
{
    std::atomic<int> writing{0};
    int lines = 0;
    bool overlapped = false;

    void write(int, const QString&) override
    {
        overlapped = overlapped || ++writing != 1;
        ++lines;
        --writing;
    }
};

} // namespace

class tst_LogQt : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        LogQt::instance().setSink(nullptr);
        LogQt::instance().setLevel(LogQt::Info);
    }

    void levels();
    void lineComparesLevels_data();
    void lineComparesLevels();
    void writeDoesNotCompare();
    void lineHoldsTheMutex();
    void linesOfThreadsDoNotMix();
    void setSinkWaits();
    void withoutSink();
    void mutexLocker();
};

void tst_LogQt::levels()
{
    QCOMPARE(int(LogQt::Debug), 0);
    QCOMPARE(int(LogQt::Info), 1);
    QCOMPARE(int(LogQt::Warning), 2);
    QCOMPARE(int(LogQt::Error), 3);
    QCOMPARE(LogQt::instance().level(), int(LogQt::Info));
    QCOMPARE(&LogQt::instance(), &LogQt::instance());
}

void tst_LogQt::lineComparesLevels_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QStringList>("written");
    QTest::newRow("debug") << 0 << QStringList({"0:d", "1:i", "2:w", "3:e"});
    QTest::newRow("info") << 1 << QStringList({"1:i", "2:w", "3:e"});
    QTest::newRow("warning") << 2 << QStringList({"2:w", "3:e"});
    QTest::newRow("error") << 3 << QStringList("3:e");
    QTest::newRow("none") << 4 << QStringList();
}

void tst_LogQt::lineComparesLevels()
{
    QFETCH(int, level);
    Sink sink;
    LogQt::instance().setSink(&sink);
    LogQt::instance().setLevel(level);
    LogQt::line(LogQt::Debug, "d");
    LogQt::line(LogQt::Info, "i");
    LogQt::line(LogQt::Warning, "w");
    LogQt::line(LogQt::Error, "e");
    QTEST(sink.lines, "written");
}

void tst_LogQt::writeDoesNotCompare()
{
    Sink sink;
    LogQt::instance().setSink(&sink);
    LogQt::instance().setLevel(LogQt::Error);
    {
        ko::MutexLocker locker(LogQt::instance().mutex());
        LogQt::instance().write(LogQt::Debug, "d");
    }
    QCOMPARE(sink.lines, QStringList("0:d"));
}

void tst_LogQt::lineHoldsTheMutex()
{
    Sink sink;
    LogQt::instance().setSink(&sink);
    LogQt::line(LogQt::Error, "e");
    QVERIFY(sink.wasLocked);
    QVERIFY(LogQt::instance().mutex()->tryLock()); // and gives it back
    LogQt::instance().mutex()->unlock();
}

void tst_LogQt::linesOfThreadsDoNotMix()
{
    OverlapSink sink;
    LogQt::instance().setSink(&sink);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([] {
            for (int n = 0; n < 500; ++n)
                LogQt::line(LogQt::Warning, "w");
        });
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(sink.lines, 2000);
    QVERIFY(!sink.overlapped);
}

void tst_LogQt::setSinkWaits()
{
    SlowSink sink;
    LogQt::instance().setSink(&sink);
    std::thread writer([] { LogQt::line(LogQt::Error, "e"); });
    sink.entered.acquire();
    std::atomic<bool> doneWhenTakenBack{false};
    std::thread owner([&] {
        LogQt::instance().setSink(nullptr);
        doneWhenTakenBack = sink.done.load();
    });
    QTest::qWait(50); // time for the owner to go wrong
    sink.release.release();
    writer.join();
    owner.join();
    QVERIFY(doneWhenTakenBack);
}

void tst_LogQt::withoutSink()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList(childArgument));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardError()), QString("100 %s\n"));
    QVERIFY(process.readAllStandardOutput().isEmpty());
}

void tst_LogQt::mutexLocker()
{
    QMutex mutex;
    {
        ko::MutexLocker locker(&mutex);
        bool locked = false;
        std::thread([&] { locked = mutex.tryLock(); }).join();
        QVERIFY(!locked);
    }
    QVERIFY(mutex.tryLock());
    mutex.unlock();
}

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], childArgument) == 0) {
        LogQt::line(LogQt::Debug, "too low");
        LogQt::line(LogQt::Error, "100 %s");
        return 0;
    }
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    tst_LogQt test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logqt.moc"
