#include "discovery/ArpScanner.h"
#include "discovery/ArpSweep.h"
#include "discovery/ArpSweepPorts.h"
#include "discovery/ArpSweepRange.h"
#include "discovery/NeighbourTable.h"
#include "support/LogLines.h"
#include "support/NetworkNamespaces.h"
#include "support/OwnTimer.h"
#include "support/Patience.h"
#include "support/ProcessResources.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

#include <linux/neighbour.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netinet/in.h>

using namespace ko;
using testsupport::LogLines;
using testsupport::NetworkNamespaces;
using testsupport::ProcessResources;

namespace {

const char Listener[] = R"(
import socket, sys, threading
held = []
for word in sys.argv[1:]:
    address, port = word.split(":")
    s = socket.socket()
    s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    s.bind((address, int(port)))
    s.listen(50)
    held.append(s)
print("listening", flush=True)
threading.Event().wait()
)";

quint32 ip(const char* text)
{
    return QHostAddress(QLatin1String(text)).toIPv4Address();
}

template <class T>
QByteArray bytesOf(const T& value)
{
    return QByteArray(reinterpret_cast<const char*>(&value), int(sizeof value));
}

QByteArray attribute(int type, const QByteArray& value)
{
    rtattr header = {};
    header.rta_type = ushort(type);
    header.rta_len = ushort(sizeof header + size_t(value.size()));
    return bytesOf(header) + value + QByteArray((4 - value.size() % 4) % 4, '\0');
}

QByteArray message(int type, const QByteArray& content)
{
    nlmsghdr header = {};
    header.nlmsg_type = quint16(type);
    header.nlmsg_len = quint32(sizeof header + size_t(content.size()));
    return bytesOf(header) + content;
}

QByteArray neighbour(int state, const char* address, const QByteArray& mac, int interface = 3,
                     int family = AF_INET)
{
    ndmsg header = {};
    header.ndm_family = quint8(family);
    header.ndm_ifindex = interface;
    header.ndm_state = quint16(state);
    QByteArray content = bytesOf(header) + attribute(NDA_DST, bytesOf(htonl(ip(address))));
    if (!mac.isEmpty())
        content += attribute(NDA_LLADDR, mac);
    return message(RTM_NEWNEIGH, content);
}

const QByteArray& mac()
{
    static const QByteArray bytes = QByteArray::fromHex("020000000001");
    return bytes;
}

} // namespace

class ArpScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void completeEntries_data();
    void completeEntries();
    void severalMessages();
    void foreignEntries();
    void errorsAreBad();
    void everyCutIsSurvived();
    void randomBytesAreSurvived();
    void lyingLengths();
    void ranges_data();
    void ranges();
    void rangeTexts();
    void portTable();

    void nothingAttached();
    void tableOfTheSystem();
    void hostsAreFound();
    void webPortsComeFirst();
    void stopsAtOnce();
    void limitIsKept();
    void interfacesAreChosen();
    void largeNetworkIsCutAndSaid();
    void neverMoreInFlight();
    void onAndOffLeavesNothing();

private:
    bool startSite(const QStringList& listening, int prefix = 28);
    bool scan(unsigned interfaces = 0xFFFFFFFF, int limit = -1);
    QStringList foundText() const;

    std::unique_ptr<NetworkNamespaces> m_network;
    std::unique_ptr<ArpScanner> m_scanner;
    QVector<DiscoveredDevice> m_found;
};

void ArpScannerTest::init()
{
    m_network = std::make_unique<NetworkNamespaces>();
    m_scanner = std::make_unique<ArpScanner>();
    m_found.clear();
    connect(m_scanner.get(), &Scanner::found, this,
            [this](const QVector<DiscoveredDevice>& some) { m_found += some; });
}

void ArpScannerTest::cleanup()
{
    m_scanner.reset();
    m_network.reset();
    if (NetworkNamespaces::missing().isEmpty()) // the cable goes a moment after the site
        KO_TRY_COMPARE(if_nametoindex("here0"), 0u);
}

void ArpScannerTest::completeEntries_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("complete");
    QTest::addColumn<bool>("failed");
    QTest::newRow("none") << NUD_NONE << false << false;
    QTest::newRow("incomplete") << NUD_INCOMPLETE << false << false;
    QTest::newRow("reachable") << NUD_REACHABLE << true << false;
    QTest::newRow("stale") << NUD_STALE << true << false;
    QTest::newRow("delay") << NUD_DELAY << true << false;
    QTest::newRow("probe") << NUD_PROBE << true << false;
    QTest::newRow("failed") << NUD_FAILED << false << true;
    QTest::newRow("no arp") << NUD_NOARP << false << false;
    QTest::newRow("permanent") << NUD_PERMANENT << true << false;
}

void ArpScannerTest::completeEntries()
{
    QFETCH(int, state);
    QVector<Neighbour> all;
    QCOMPARE(NeighbourTable::parse(neighbour(state, "10.0.0.7", mac()), all), NeighbourTable::More);
    QCOMPARE(int(all.size()), 1);
    QCOMPARE(all.at(0).address, ip("10.0.0.7"));
    QCOMPARE(all.at(0).interface, 3);
    QTEST(!all.at(0).macAddress.isEmpty(), "complete");
    QTEST(all.at(0).failed, "failed");
}

void ArpScannerTest::severalMessages()
{
    QVector<Neighbour> all;
    const QByteArray two =
        neighbour(NUD_STALE, "10.0.0.1", mac()) + neighbour(NUD_REACHABLE, "10.0.0.2", mac());
    QCOMPARE(NeighbourTable::parse(two, all), NeighbourTable::More);
    QCOMPARE(NeighbourTable::parse(neighbour(NUD_STALE, "10.0.0.3", mac()) + message(NLMSG_DONE, "\0\0\0\0") +
                                       neighbour(NUD_STALE, "10.0.0.4", mac()),
                                   all),
             NeighbourTable::Complete);
    QCOMPARE(int(all.size()), 3); // nothing behind the end
    QCOMPARE(all.at(2).macAddress, mac());
}

void ArpScannerTest::foreignEntries()
{
    QVector<Neighbour> all;
    NeighbourTable::parse(neighbour(NUD_STALE, "10.0.0.1", mac(), 3, AF_INET6), all);
    NeighbourTable::parse(neighbour(NUD_STALE, "10.0.0.1", mac(), 0), all);
    NeighbourTable::parse(neighbour(NUD_STALE, "10.0.0.1", mac(), -5), all);
    NeighbourTable::parse(neighbour(NUD_STALE, "0.0.0.0", mac()), all);
    NeighbourTable::parse(message(RTM_NEWLINK, QByteArray(40, '\1')), all);
    QCOMPARE(int(all.size()), 0);
    NeighbourTable::parse(neighbour(NUD_STALE, "10.0.0.1", mac() + mac()), all); // no Ethernet
    NeighbourTable::parse(neighbour(NUD_STALE, "10.0.0.1", QByteArray()), all);
    QCOMPARE(int(all.size()), 2);
    QVERIFY(all.at(0).macAddress.isEmpty() && all.at(1).macAddress.isEmpty());
}

void ArpScannerTest::errorsAreBad()
{
    QVector<Neighbour> all;
    QCOMPARE(NeighbourTable::parse(QByteArray(), all), NeighbourTable::Bad);
    QCOMPARE(NeighbourTable::parse(message(NLMSG_ERROR, QByteArray(20, '\0')), all), NeighbourTable::Bad);
    QCOMPARE(NeighbourTable::parse(QByteArray(5, '\0'), all), NeighbourTable::Bad);
}

void ArpScannerTest::everyCutIsSurvived()
{
    const QByteArray whole =
        neighbour(NUD_STALE, "10.0.0.1", mac()) + neighbour(NUD_REACHABLE, "10.0.0.2", mac());
    const int one = int(whole.size()) / 2;
    for (int length = 0; length < int(whole.size()); ++length) {
        QVector<Neighbour> all;
        // A copy of exactly this length, so that a sanitizer sees the first byte that is read beyond it.
        const NeighbourTable::Reply reply = NeighbourTable::parse(QByteArray(whole.constData(), length), all);
        QCOMPARE(reply, length == one ? NeighbourTable::More : NeighbourTable::Bad);
        QCOMPARE(int(all.size()), length < one ? 0 : 1);
    }
}

void ArpScannerTest::randomBytesAreSurvived()
{
    QRandomGenerator random(1);
    const QByteArray good = neighbour(NUD_STALE, "10.0.0.1", mac()) + message(NLMSG_DONE, "\0\0\0\0");
    for (int i = 0; i < 20000; ++i) {
        QByteArray bad = good;
        for (int change = 0; change < 3; ++change)
            bad[int(random.bounded(int(bad.size())))] = char(random.bounded(256));
        QVector<Neighbour> all;
        NeighbourTable::parse(bad, all);
        QVERIFY(all.size() <= 1);
        QVERIFY(all.isEmpty() || all.at(0).macAddress.isEmpty() || all.at(0).macAddress.size() == 6);
    }
}

void ArpScannerTest::lyingLengths()
{
    for (quint32 length : {0u, 1u, 15u, 17u, 0x7fffffffu, 0xffffffffu}) {
        QByteArray bad = neighbour(NUD_STALE, "10.0.0.1", mac());
        std::copy_n(reinterpret_cast<const char*>(&length), sizeof length, bad.data());
        QVector<Neighbour> all;
        QCOMPARE(NeighbourTable::parse(bad, all), NeighbourTable::Bad);
        QCOMPARE(int(all.size()), 0);
    }
    for (ushort length : {0, 3, 200, 0xffff}) { // of the address; without it the entry says nothing
        QByteArray bad = neighbour(NUD_STALE, "10.0.0.1", mac());
        std::copy_n(reinterpret_cast<const char*>(&length), sizeof length,
                    bad.data() + sizeof(nlmsghdr) + sizeof(ndmsg));
        QVector<Neighbour> all;
        NeighbourTable::parse(bad, all);
        QCOMPARE(int(all.size()), 0);
    }
}

void ArpScannerTest::ranges_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<int>("size");
    QTest::newRow("/24") << "10.0.0.9"
                         << "255.255.255.0"
                         << "10.0.0.1"
                         << "10.0.0.254" << 254;
    QTest::newRow("/22") << "10.0.5.9"
                         << "255.255.252.0"
                         << "10.0.4.1"
                         << "10.0.7.254" << 1022;
    QTest::newRow("/16, inside") << "10.0.5.9"
                                 << "255.255.0.0"
                                 << "10.0.4.0"
                                 << "10.0.7.255" << 1024;
    QTest::newRow("/16, its begin") << "10.0.0.9"
                                    << "255.255.0.0"
                                    << "10.0.0.1"
                                    << "10.0.3.255" << 1023;
    QTest::newRow("/16, its end") << "10.0.255.9"
                                  << "255.255.0.0"
                                  << "10.0.252.0"
                                  << "10.0.255.254" << 1023;
    QTest::newRow("/8") << "10.200.5.9"
                        << "255.0.0.0"
                        << "10.200.4.0"
                        << "10.200.7.255" << 1024;
    QTest::newRow("/30") << "10.0.0.9"
                         << "255.255.255.252"
                         << "10.0.0.9"
                         << "10.0.0.10" << 2;
    QTest::newRow("/31") << "10.0.0.9"
                         << "255.255.255.254"
                         << "10.0.0.8"
                         << "10.0.0.9" << 2;
    QTest::newRow("the highest") << "255.255.255.9"
                                 << "255.255.255.0"
                                 << "255.255.255.1"
                                 << "255.255.255.254" << 254;
    QTest::newRow("/32") << "10.0.0.9"
                         << "255.255.255.255"
                         << ""
                         << "" << 0;
    QTest::newRow("no mask") << "10.0.0.9"
                             << "0.0.0.0"
                             << ""
                             << "" << 0;
    QTest::newRow("a mask with holes") << "10.0.0.9"
                                       << "255.0.255.0"
                                       << ""
                                       << "" << 0;
}

void ArpScannerTest::ranges()
{
    QFETCH(QString, own);
    QFETCH(QString, mask);
    QFETCH(int, size);
    const ArpSweepRange range =
        ArpSweepRange::around(QHostAddress(own).toIPv4Address(), QHostAddress(mask).toIPv4Address());
    QCOMPARE(range.size(), size);
    QCOMPARE(range.isEmpty(), size == 0);
    if (size == 0)
        return;
    QTEST(QHostAddress(range.first).toString(), "first");
    QTEST(QHostAddress(range.last).toString(), "last");
}

void ArpScannerTest::rangeTexts()
{
    ArpSweepRange range = ArpSweepRange::around(ip("10.0.0.9"), ip("255.255.255.0"));
    range.interfaceName = QStringLiteral("eth0");
    QCOMPARE(range.text(), QStringLiteral("eth0, 10.0.0.0/24"));
    QVERIFY(!range.isPart());
    range = ArpSweepRange::around(ip("10.1.5.9"), ip("255.255.0.0"));
    range.interfaceName = QStringLiteral("eth0");
    QCOMPARE(range.text(), QStringLiteral("eth0, 10.1.4.0/22 of 10.1.0.0/16"));
    QVERIFY(range.isPart());
}

void ArpScannerTest::portTable()
{
    const int* begin = ArpSweepPorts::ports();
    const int* end = begin + ArpSweepPorts::PortCount;
    for (int port : {80, 443, 554, 8080, 8554})
        QVERIFY2(std::count(begin, end, port) == 1, qPrintable(QString::number(port)));
    QVERIFY(std::find(begin, end, 443) < std::find(begin, end, 554));
}

bool ArpScannerTest::startSite(const QStringList& listening, int prefix)
{
    if (!m_network->connectSite(prefix)) {
        qWarning("%s", qPrintable(m_network->error()));
        return false;
    }
    QStringList addresses;
    for (const QString& place : listening)
        addresses.append(place.section(QLatin1Char(':'), 0, 0));
    addresses.removeDuplicates();
    addresses.removeAll(QStringLiteral("10.99.0.2"));
    for (const QString& address : std::as_const(addresses)) {
        if (!m_network->addSiteAddress(address, prefix))
            return false;
    }
    QProcess* listener =
        m_network->launch(NetworkNamespaces::Site, QStringLiteral("python3"),
                          QStringList{QStringLiteral("-c"), QLatin1String(Listener)} + listening);
    return QTest::qWaitFor([listener] { return listener->canReadLine(); }, 10000);
}

bool ArpScannerTest::scan(unsigned interfaces, int limit)
{
    m_scanner->start(interfaces, limit);
    return QTest::qWaitFor([this] { return m_scanner->state().phase != ScannerState::Running; }, 60000);
}

QStringList ArpScannerTest::foundText() const
{
    QStringList texts;
    for (const DiscoveredDevice& device : m_found)
        texts.append(QStringLiteral("%1:%2").arg(device.address).arg(device.port));
    texts.sort();
    return texts;
}

void ArpScannerTest::nothingAttached()
{
    KO_NEED_NETWORKS();
    QSignalSpy changes(m_scanner.get(), SIGNAL(stateChanged()));
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Idle));
    m_scanner->start(0xFFFFFFFF, -1);
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Running));
    KO_TRY_COMPARE(int(m_scanner->state().phase), int(ScannerState::Unavailable));
    QVERIFY(!m_scanner->state().reason.isEmpty());
    QCOMPARE(int(changes.count()), 2);
}

void ArpScannerTest::tableOfTheSystem()
{
    KO_NEED_NETWORKS();
    QVERIFY(m_network->connectSite());
    for (int i = 10; i < 210; ++i) {
        const QString address = QStringLiteral("10.99.0.%1").arg(i);
        QVERIFY(m_network->run(NetworkNamespaces::Here, QStringLiteral("ip"),
                               {QStringLiteral("neigh"), QStringLiteral("add"), address,
                                QStringLiteral("lladdr"), QStringLiteral("02:00:00:00:00:07"),
                                QStringLiteral("dev"), NetworkNamespaces::hereInterface()}));
    }
    QVector<Neighbour> all;
    QVERIFY(NeighbourTable::read(all));
    const int index = int(if_nametoindex("here0"));
    const auto isOurs = [index](const Neighbour& entry) {
        return entry.interface == index && entry.macAddress == QByteArray::fromHex("020000000007");
    };
    QCOMPARE(int(std::count_if(all.constBegin(), all.constEnd(), isOurs)), 200);
}

void ArpScannerTest::hostsAreFound()
{
    KO_NEED_NETWORKS();
    // Another one has an address and no camera's port, and the next only an unusual one.
    QVERIFY(startSite({QStringLiteral("10.99.0.2:554"), QStringLiteral("10.99.0.3:8554"),
                       QStringLiteral("10.99.0.4:22"), QStringLiteral("10.99.0.14:80")}));
    m_scanner->start(0xFFFFFFFF, -1);
    KO_TRY_COMPARE(m_scanner->state().where.text(), QStringLiteral("here0, 10.99.0.0/28"));
    QCOMPARE(m_scanner->state().total, 14);
    KO_TRY_COMPARE(int(m_scanner->state().phase), int(ScannerState::Done));
    QCOMPARE(m_scanner->state().done, 14);
    const QStringList all = {QStringLiteral("10.99.0.14:80"), QStringLiteral("10.99.0.2:554"),
                             QStringLiteral("10.99.0.3:8554")};
    QCOMPARE(foundText(), all);
    QFile file(QStringLiteral("/proc/net/arp"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(m_found.at(0).macAddress.size() == 17 &&
            file.readAll().contains(m_found.at(0).macAddress.toLatin1()));
    QVERIFY(m_found.at(0).service.isEmpty());

    m_found.clear();
    QVERIFY(scan()); // again
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Done));
    QCOMPARE(foundText(), all);
}

void ArpScannerTest::webPortsComeFirst()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite({QStringLiteral("10.99.0.2:554"), QStringLiteral("10.99.0.2:8443"),
                       QStringLiteral("10.99.0.2:8554"), QStringLiteral("10.99.0.3:8080"),
                       QStringLiteral("10.99.0.3:443"), QStringLiteral("10.99.0.3:554")}));
    QVERIFY(scan());
    QCOMPARE(foundText(), (QStringList{QStringLiteral("10.99.0.2:8443"), QStringLiteral("10.99.0.3:8080")}));
}

void ArpScannerTest::stopsAtOnce()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite({QStringLiteral("10.99.0.2:554")}, 24));
    m_scanner->start(0xFFFFFFFF, -1);
    KO_TRY_COMPARE(int(m_found.size()), 1);
    const testsupport::OwnTimer clock;
    m_scanner->stop();
    QVERIFY2(clock.elapsed() < 200, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Cancelled));
    QSignalSpy changes(m_scanner.get(), SIGNAL(stateChanged()));
    m_found.clear();
    QTest::qWait(500);
    QCOMPARE(int(changes.count()), 0);
    QCOMPARE(int(m_found.size()), 0);
    m_scanner->stop();
    QCOMPARE(int(changes.count()), 0);
    m_scanner->start(0xFFFFFFFF, -1);
    KO_TRY_COMPARE(int(m_found.size()), 1);
}

void ArpScannerTest::limitIsKept()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite(
        {QStringLiteral("10.99.0.2:554"), QStringLiteral("10.99.0.3:554"), QStringLiteral("10.99.0.4:554")}));
    QVERIFY(scan(0xFFFFFFFF, 2));
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Done));
    QCOMPARE(int(m_found.size()), 2);
}

void ArpScannerTest::interfacesAreChosen()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite({QStringLiteral("10.99.0.2:554")}));
    const unsigned bit = 1u << (if_nametoindex("here0") - 1);
    QVERIFY(scan(~bit));
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Unavailable));
    QVERIFY(scan(bit));
    QCOMPARE(int(m_scanner->state().phase), int(ScannerState::Done));
    QCOMPARE(int(m_found.size()), 1);
}

void ArpScannerTest::largeNetworkIsCutAndSaid()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite({QStringLiteral("10.99.0.2:554"), QStringLiteral("10.99.0.200:554")}, 16));
    LogLines log;
    m_scanner->start(0xFFFFFFFF, -1);
    KO_TRY_COMPARE(int(m_found.size()), 2);
    QCOMPARE(m_scanner->state().where.text(), QStringLiteral("here0, 10.99.0.0/22 of 10.99.0.0/16"));
    QCOMPARE(m_scanner->state().total, 1023);
    QVERIFY(m_scanner->state().done > 0 && m_scanner->state().done < 1023);
    QCOMPARE(int(log.lines.filter(QStringLiteral("10.99.0.0/22 of 10.99.0.0/16")).size()), 1);
}

void ArpScannerTest::neverMoreInFlight()
{
    KO_NEED_NETWORKS();
    QVERIFY(m_network->connectSite());
    m_scanner->start(0xFFFFFFFF, -1);
    int most = 0;
    for (int i = 0; i < 300 && m_scanner->state().phase == ScannerState::Running; ++i) {
        QTest::qWait(20);
        QVector<Neighbour> all;
        QVERIFY(NeighbourTable::read(all));
        most = std::max(most, int(std::count_if(all.constBegin(), all.constEnd(), [](const Neighbour& entry) {
                            return entry.macAddress.isEmpty() && !entry.failed;
                        })));
    }
    QVERIFY2(most <= ArpSweep::MostInFlight, qPrintable(QString::number(most)));
    QVERIFY(most > 0); // the looks fell into the sweep
}

void ArpScannerTest::onAndOffLeavesNothing()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite({QStringLiteral("10.99.0.2:554")}));
    QVERIFY(scan(0xFFFFFFFF, 1));
    const ProcessResources before;
    for (int i = 0; i < 100; ++i) {
        m_scanner->start(0xFFFFFFFF, -1);
        QTest::qWait(i % 10 * 10);
        m_scanner->stop();
    }
    QVERIFY(ProcessResources() == before);
}

int main(int argc, char** argv)
{
    NetworkNamespaces::enter(argv);
    QCoreApplication app(argc, argv);
    ArpScannerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_arpscanner.moc"
