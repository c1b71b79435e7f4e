#include "discovery/MdnsScanner.h"
#include "discovery/MdnsTxt.h"
#include "support/LogLines.h"
#include "support/NetworkNamespaces.h"
#include "support/OwnTimer.h"
#include "support/Patience.h"
#include "support/ProcessResources.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <memory>

#include <net/if.h>

using namespace ko;
using testsupport::LogLines;
using testsupport::NetworkNamespaces;
using testsupport::ProcessResources;

namespace {

bool launch(QProcess& process, const QString& program, const QStringList& arguments)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return process.waitForStarted();
}

void end(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(5000))
        process.kill();
    process.waitForFinished();
}

/// A process that takes part in nothing for a while, but is still there.
class StoppedProcess
{
public:
    explicit StoppedProcess(const QProcess& process)
        : m_id(pid_t(process.processId()))
    {
        ::kill(m_id, SIGSTOP);
    }
    Q_DISABLE_COPY(StoppedProcess)
    ~StoppedProcess() { goOn(); }
    void goOn() const { ::kill(m_id, SIGCONT); }

private:
    const pid_t m_id;
};

const char scanArgument[] = "--scan-and-end";
const int Instant = 100; // ms

} // namespace

class MdnsScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void txtRecords_data();
    void txtRecords();
    void missingBusIsSaidOnce();
    void devicesAreFound();
    void daemonComesAndGoes();
    void limitAndInterfaces();
    void onAndOffLeavesNothing();
    void daemonThatHangsHoldsNobodyUp();
    void programEndsWhileTheDaemonHangs();

private:
    bool startBus();
    bool startDaemon();
    bool publish(QProcess& publisher, const QString& name, int port, const QStringList& txt = QStringList());

    QProcess m_bus;
    QProcess m_daemon;
};

void MdnsScannerTest::cleanup()
{
    end(m_daemon);
    end(m_bus);
}

bool MdnsScannerTest::startBus()
{
    QFile::remove(QStringLiteral("/run/dbus/system_bus_socket"));
    return launch(m_bus, QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--config-file=/run/bus.conf"), QStringLiteral("--nofork"),
                   QStringLiteral("--nopidfile")}) &&
           QTest::qWaitFor([] { return QFile::exists(QStringLiteral("/run/dbus/system_bus_socket")); }, 5000);
}

bool MdnsScannerTest::startDaemon()
{
    QFile file(QStringLiteral("/run/avahi-test.conf"));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("[server]\nallow-interfaces=lo\nuse-ipv4=yes\nuse-ipv6=yes\n[publish]\n"
               "disable-user-service-publishing=no\n");
    file.close();
    return launch(m_daemon, QStringLiteral("avahi-daemon"),
                  {QStringLiteral("--no-drop-root"), QStringLiteral("--no-chroot"), QStringLiteral("-f"),
                   file.fileName()});
}

bool MdnsScannerTest::publish(QProcess& publisher, const QString& name, int port, const QStringList& txt)
{
    for (int attempt = 0; attempt < 20; ++attempt) {
        if (launch(
                publisher, QStringLiteral("avahi-publish"),
                QStringList{QStringLiteral("-s"), name, QStringLiteral("_rtsp._tcp"), QString::number(port)} +
                    txt) &&
            !publisher.waitForFinished(500))
            return true;
    }
    return false;
}

void MdnsScannerTest::txtRecords_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("mac");
    const QString none;
    QTest::newRow("model") << QByteArray("model=M10") << QStringLiteral("M10") << none << none;
    QTest::newRow("upper case") << QByteArray("MacAddress=001122334455") << none << none
                                << QStringLiteral("001122334455");
    QTest::newRow("version") << QByteArray("version=5=1") << none << QStringLiteral("5=1") << none;
    QTest::newRow("no value") << QByteArray("model") << none << none << none;
    QTest::newRow("no key") << QByteArray("=model") << none << none << none;
    QTest::newRow("user") << QByteArray("user=root") << none << none << none;
    QTest::newRow("password") << QByteArray("password=pass") << none << none << none;
    QTest::newRow("binary") << QByteArray("\xff\xfe\x00=\x01", 5) << none << none << none;
}

void MdnsScannerTest::txtRecords()
{
    QFETCH(QByteArray, entry);
    DiscoveredDevice device;
    readMdnsTxt(entry, device);
    QTEST(device.model, "model");
    QTEST(device.version, "version");
    QTEST(device.macAddress, "mac");
    QCOMPARE(device.name, QString());
}

void MdnsScannerTest::missingBusIsSaidOnce()
{
    KO_NEED_NETWORKS();
    LogLines log;
    MdnsScanner scanner;
    scanner.start(0xFFFFFFFF, -1);
    QCOMPARE(int(scanner.state().phase), int(ScannerState::Running));
    KO_TRY_COMPARE(int(scanner.state().phase), int(ScannerState::Unavailable));
    QVERIFY(!scanner.state().reason.isEmpty());
    QTest::qWait(4500); // two more attempts
    QCOMPARE(log.lines.size(), 1);
    scanner.stop();
    QCOMPARE(int(scanner.state().phase), int(ScannerState::Cancelled));
}

void MdnsScannerTest::devicesAreFound()
{
    KO_NEED_NETWORKS();
    LogLines log;
    QVERIFY(startBus() && startDaemon());
    QProcess publisher;
    QVERIFY(publish(publisher, QStringLiteral("Gate"), 8554,
                    {QStringLiteral("model=M10"), QStringLiteral("mac=00:11:22:33:44:55"),
                     QStringLiteral("password=hidden")}));
    MdnsScanner scanner;
    QVector<DiscoveredDevice> found;
    connect(&scanner, &Scanner::found, this,
            [&found](const QVector<DiscoveredDevice>& some) { found += some; });
    scanner.start(0xFFFFFFFF, -1);
    KO_TRY_VERIFY(!found.isEmpty());
    QCOMPARE(found.at(0).name, QStringLiteral("Gate"));
    QCOMPARE(found.at(0).port, 8554);
    QCOMPARE(found.at(0).service, QStringLiteral("_rtsp._tcp"));
    QCOMPARE(found.at(0).model, QStringLiteral("M10"));
    QCOMPARE(found.at(0).macAddress, QStringLiteral("00:11:22:33:44:55"));
    QVERIFY(!found.at(0).address.isEmpty());
    KO_TRY_VERIFY(scanner.state().done >= 1);
    scanner.stop();
    const int count = int(found.size());
    QTest::qWait(300);
    QCOMPARE(int(found.size()), count);
    found.clear();
    scanner.start(0xFFFFFFFF, -1); // and again
    KO_TRY_VERIFY(!found.isEmpty());
    QVERIFY(log.lines.filter(QStringLiteral("hidden")).isEmpty());
    end(publisher);
}

void MdnsScannerTest::daemonComesAndGoes()
{
    KO_NEED_NETWORKS();
    LogLines log;
    QVERIFY(startBus());
    MdnsScanner scanner;
    QVector<DiscoveredDevice> found;
    connect(&scanner, &Scanner::found, this,
            [&found](const QVector<DiscoveredDevice>& some) { found += some; });
    scanner.start(0xFFFFFFFF, -1);
    for (int round = 0; round < 2; ++round) {
        QTRY_COMPARE_WITH_TIMEOUT(int(scanner.state().phase), int(ScannerState::Unavailable), 40000);
        QVERIFY(startDaemon());
        QProcess publisher;
        QVERIFY(publish(publisher, QStringLiteral("Gate"), 8554));
        KO_TRY_VERIFY(!found.isEmpty());
        KO_TRY_COMPARE(int(scanner.state().phase), int(ScannerState::Running));
        end(publisher);
        end(m_daemon);
        found.clear();
    }
    KO_TRY_COMPARE(int(scanner.state().phase), int(ScannerState::Unavailable));
    QCOMPARE(scanner.state().reason.text(), QStringLiteral("the Avahi daemon is not running"));
    end(m_bus); // the bus itself goes
    QTest::qWait(2500);
    QCOMPARE(int(scanner.state().phase), int(ScannerState::Unavailable));
    QCOMPARE(log.lines.size(), 3);
}

void MdnsScannerTest::limitAndInterfaces()
{
    KO_NEED_NETWORKS();
    QVERIFY(startBus() && startDaemon());
    QProcess publishers[2];
    QVERIFY(publish(publishers[0], QStringLiteral("One"), 8554));
    QVERIFY(publish(publishers[1], QStringLiteral("Two"), 8555));
    MdnsScanner scanner;
    QVector<DiscoveredDevice> found;
    connect(&scanner, &Scanner::found, this,
            [&found](const QVector<DiscoveredDevice>& some) { found += some; });
    scanner.start(0xFFFFFFFF, 1);
    KO_TRY_VERIFY(scanner.state().done >= 2);
    QCOMPARE(int(found.size()), 1);
    scanner.stop();
    found.clear();
    scanner.start(~(1u << (if_nametoindex("lo") - 1)), -1);
    QTest::qWait(2000);
    QCOMPARE(int(found.size()), 0);
    for (QProcess& publisher : publishers)
        end(publisher);
}

void MdnsScannerTest::onAndOffLeavesNothing()
{
    if (NetworkNamespaces::missing().isEmpty())
        QVERIFY(startBus() && startDaemon());
    MdnsScanner scanner;
    scanner.start(0xFFFFFFFF, -1);
    QTest::qWait(500);
    scanner.stop();
    QTest::qWait(500); // its thread ends by itself
    const ProcessResources before;
    for (int i = 0; i < 100; ++i) {
        scanner.start(0xFFFFFFFF, -1);
        QTest::qWait(i % 10 * 3);
        scanner.stop();
    }
    KO_TRY_VERIFY(ProcessResources() == before);
}

void MdnsScannerTest::daemonThatHangsHoldsNobodyUp()
{
    KO_NEED_NETWORKS();
    const LogLines log;
    QVERIFY(startBus() && startDaemon());
    QProcess publisher;
    QVERIFY(publish(publisher, QStringLiteral("Gate"), 8554));
    const ProcessResources before;
    const StoppedProcess stopped(m_daemon);
    double longest = 0;
    auto scanner = std::make_unique<MdnsScanner>();
    for (int i = 0; i < 20; ++i) {
        scanner->start(0xFFFFFFFF, -1);
        QTest::qWait(i == 0 ? 500 : 20);
        const testsupport::OwnTimer clock;
        scanner->stop();
        if (i % 5 == 4)
            scanner = std::make_unique<MdnsScanner>();
        longest = qMax(longest, clock.elapsed());
    }
    QVERIFY2(longest < Instant, qPrintable(QString::number(longest)));
    // The first waits for its answer; the others did not even ask.
    KO_TRY_COMPARE(ProcessResources().threads, before.threads + 1);

    QVector<DiscoveredDevice> found;
    connect(scanner.get(), &Scanner::found, this,
            [&found](const QVector<DiscoveredDevice>& some) { found += some; });
    scanner->start(0xFFFFFFFF, -1);
    KO_TRY_COMPARE(int(scanner->state().phase), int(ScannerState::Unavailable));
    QCOMPARE(scanner->state().reason.text(), QStringLiteral("the Avahi daemon does not answer"));
    stopped.goOn();
    KO_TRY_VERIFY(!found.isEmpty());
    KO_TRY_COMPARE(int(scanner->state().phase), int(ScannerState::Running));
    scanner.reset();
    KO_TRY_COMPARE(ProcessResources().threads, before.threads);
    KO_TRY_VERIFY(ProcessResources().descriptors <= before.descriptors); // that of the publisher may close
    QCOMPARE(log.lines, QStringList());
    end(publisher);
}

void MdnsScannerTest::programEndsWhileTheDaemonHangs()
{
    KO_NEED_NETWORKS();
    QVERIFY(startBus() && startDaemon());
    QProcess publisher;
    QVERIFY(publish(publisher, QStringLiteral("Gate"), 8554)); // now the daemon is on the bus
    const StoppedProcess stopped(m_daemon);
    QProcess program;
    QVERIFY(launch(program, QCoreApplication::applicationFilePath(), {QLatin1String(scanArgument)}));
    QVERIFY(program.waitForReadyRead()); // it is about to end
    QElapsedTimer clock;
    clock.start();
    QVERIFY(program.waitForFinished());
    QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    stopped.goOn();
    end(publisher);
}

/// Scans for a moment, in a process of its own.
static int scanAndEnd()
{
    MdnsScanner scanner;
    scanner.start(0xFFFFFFFF, -1);
    QTest::qWait(500);
    std::puts("enough");
    std::fflush(stdout);
    return 0;
}

int main(int argc, char** argv)
{
    NetworkNamespaces::enter(argv);
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    if (argc > 1 && QByteArray(argv[1]) == scanArgument)
        return scanAndEnd();
    MdnsScannerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_mdnsscanner.moc"
