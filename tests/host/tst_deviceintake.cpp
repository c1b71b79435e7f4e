#include "audit/AuditLog.h"
#include "database/StoredHistory.h"
#include "discovery/DeviceIntake.h"
#include "discovery/NearbyAddresses.h"
#include "discovery/Scanner.h"
#include "discovery/Scanners.h"
#include "discovery/WsDiscovery.h"
#include "drivers/DeviceAddresses.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHint.h"
#include "ko/NodeHintIPDevice.h"
#include "model/NetworkAddress.h"
#include "network/NetworkText.h"
#include "support/HostFixture.h"
#include "support/LogLines.h"
#include "support/OwnTimer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QFile>
#include <QNetworkInterface>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace ko;
using testsupport::LogLines;

namespace {

/// A scanner that finds what the test tells it to.
class FakeScanner : public Scanner
{
public:
    QString name() const override { return QStringLiteral("mDNS"); }
    void start(unsigned interfaces, int limit) override
    {
        starts.append(QStringLiteral("%1 %2").arg(interfaces, 0, 16).arg(limit));
        m_state.phase = ScannerState::Running;
        emit stateChanged();
    }
    void stop() override
    {
        ++stops;
        m_state.phase = ScannerState::Idle;
        emit stateChanged();
    }
    ScannerState state() const override { return m_state; }

    QStringList starts;
    int stops = 0;

private:
    ScannerState m_state;
};

DiscoveredDevice seen(const QString& name, const QString& address, int port = 0,
                      const QString& service = QString(), const QString& mac = QString(),
                      const QString& model = QString())
{
    DiscoveredDevice device;
    device.name = name;
    device.address = address;
    device.port = port;
    device.service = service;
    device.macAddress = mac;
    device.model = model;
    return device;
}

const QLatin1String rtsp("_rtsp._tcp");
const QLatin1String http("_http._tcp");
const QLatin1String axis("_axis-video._tcp");
/// As WS-Discovery tells it.
DiscoveredDevice answered(const QString& identity, const QString& address, int port = 80,
                          const QString& name = QString())
{
    DiscoveredDevice device = seen(name, address, port, QLatin1String(WsDiscovery::Service));
    device.identity = identity;
    return device;
}

const QLatin1String mac1("00:11:22:33:44:55");

long residentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').at(0).toLong();
    }
    return -1;
}

} // namespace

class DeviceIntakeTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_host = std::make_unique<testsupport::HostFixture>(); }
    void cleanup() { m_host.reset(); }

    void textIsCleaned_data();
    void textIsCleaned();
    void addressesAreOfOneHost_data();
    void addressesAreOfOneHost();
    void addressesAreNearby_data();
    void addressesAreNearby();
    void ownNetworksAreNearby();
    void farAddressesAreNotTakenOver();
    void scannersAreCalledByName();
    void deviceBecomesNode();
    void portIsDefaultWhenUnknown();
    void badPortIsLeftOut();
    void badMacIsDropped();
    void longTextsAreCut();
    void markupIsText();
    void credentialsAreNeverTaken();
    void servicesFamiliesAndScannersAreOneNode();
    void allAddressesAreKept();
    void addressSeenLaterIsAdded();
    void knownDeviceLearnsItsAddresses();
    void knownDeviceGetsNoSecondNode_data();
    void knownDeviceGetsNoSecondNode();
    void channelsBehindOneAddressStay();
    void camerasBehindOneAddressAreTwo();
    void threeScannersMakeOneNode();
    void identityJoinsFamiliesAndNotClones();
    void identitiesBehindOneAddressAreTwo();
    void locationIsANameOfLastResort();
    void movedDeviceIsKnownByWhatItTellsAndByWhatIsSeen();
    void sharedMacIsTwoNodes();
    void movedDeviceIsNotedAndNotMoved();
    void macAloneMovesNothing();
    void deviceThatAnswersAtHomeHasNotMoved();
    void returningDeviceWithdrawsTheNote();
    void acceptedChangeIsWrittenAndLogged();
    void staleChangeIsNotAccepted();
    void dismissedChangeStaysAway();
    void removedNodeIsFoundAgainByTheNextScan();
    void floodIsLimitedAndSaidOnce();
    void tenThousandArrive();

private:
    HostNodeDB& db() const { return *m_host->db(); }
    DeviceIntake& intake() const { return Scanners::of(db()).intake(); }
    void feed(const QVector<DiscoveredDevice>& devices)
    {
        intake().take(devices);
        QTRY_VERIFY_WITH_TIMEOUT(intake().isIdle(), 60000);
    }
    QStringList ids() const { return db().nodeIdList(AllNodeTypes); }
    kom::smart<const IPDeviceNode> node(int i) const
    {
        return db().node(ids().value(i)).cast<const IPDeviceNode>();
    }
    QStringList addresses(int i) const { return DeviceAddresses::read(*node(i)); }
    /// A camera of the database with this MAC address and model.
    QString addCamera(const QString& name, const QString& address, const QString& mac,
                      const QString& model = QString())
    {
        const QString id = m_host->add(IPDeviceType, name, address);
        m_host->change(id, [&](Node* node) {
            auto* device = dynamic_cast<IPDeviceNode*>(node);
            device->setMacAddress(MACAddress(mac));
            device->setModel(model);
            device->setUser(QStringLiteral("admin"), QStringLiteral("secret"));
        });
        return id;
    }

    std::unique_ptr<testsupport::HostFixture> m_host;
};

void DeviceIntakeTest::textIsCleaned_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const auto u = [](const char* text) { return QString::fromUtf8(text); };
    QTest::newRow("plain") << u("Gate 3") << u("Gate 3");
    QTest::newRow("blanks") << u("  Gate\t\r\n \xc2\xa0 3 ") << u("Gate 3");
    QTest::newRow("control") << u("Ga\x01te\x1b[31m\x7f") << u("Gate[31m");
    QTest::newRow("nul") << QString::fromUtf8("a\0b", 3) << u("ab");
    QTest::newRow("bidi override") << u("a\xe2\x80\xae"
                                        "gpj.exe\xe2\x80\xac")
                                   << u("agpj.exe");
    QTest::newRow("isolate") << u("a\xe2\x81\xa6"
                                  "b\xe2\x81\xa9")
                             << u("ab");
    QTest::newRow("zero width") << u("a\xe2\x80\x8b\xe2\x80\x8d\xef\xbb\xbf"
                                     "b")
                                << u("ab");
    QTest::newRow("line separator") << u("a\xe2\x80\xa8"
                                         "b")
                                    << u("a b");
    QTest::newRow("half a pair") << u("a") + QChar(0xd83d) + u("b") + QChar(0xdca9) << u("ab");
    QTest::newRow("whole pair") << u("\xf0\x9f\x93\xb7 cam") << u("\xf0\x9f\x93\xb7 cam");
    QTest::newRow("umlaut") << u("T\xc3\xbcr") << u("T\xc3\xbcr");
    QTest::newRow("nothing left") << u("\x01\xe2\x80\x8b ") << QString();
}

void DeviceIntakeTest::textIsCleaned()
{
    QFETCH(QString, text);
    QTEST(NetworkText::cleaned(text, 50), "expected");
}

void DeviceIntakeTest::addressesAreOfOneHost_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const char* const rows[][2] = {
        {"10.0.0.7", "10.0.0.7"},
        {" 10.0.0.7 ", "10.0.0.7"},
        {"::ffff:10.0.0.7", "10.0.0.7"},
        {"FD00:0::1", "fd00::1"},
        {"fe80::1%eth0", "fe80::1%eth0"},
        {"fe80::1%<b>", ""},
        {"0.0.0.0", ""},
        {"255.255.255.255", ""},
        {"224.0.0.251", ""},
        {"ff02::fb", ""},
        {"::", ""},
        {"10.0", ""},
        {"camera.example", ""},
        {"10.0.0.7/24", ""},
        {"", ""},
    };
    for (const auto& row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void DeviceIntakeTest::addressesAreOfOneHost()
{
    QFETCH(QString, text);
    QTEST(NetworkAddress::normalised(text), "expected");
}

void DeviceIntakeTest::addressesAreNearby_data()
{
    QTest::addColumn<bool>("expected");
    const auto rows = [](bool expected, const QStringList& addresses) {
        for (const QString& address : addresses)
            QTest::newRow(qPrintable(address)) << expected;
    };
    rows(true, {"10.0.0.7", "10.255.255.255", "172.16.0.1", "172.31.255.254", "192.168.1.1", "169.254.3.4",
                "100.64.0.1", "100.127.255.254", "fd00::7", "fe80::1%eth0", "fe80::1"});
    // In a network that is attached here, with addresses of its own.
    rows(true, {"203.0.113.1", "203.0.113.126", "2001:db8:1:2::7", "198.51.100.9", "192.0.2.0", "192.0.2.1"});
    rows(false, {"127.0.0.1", "127.8.8.8", "::1", "::", "0.0.0.0", "0.1.2.3", "224.0.0.251", "239.1.1.1",
                 "ff02::fb", "255.255.255.255", "240.0.0.1", "250.1.2.3"});
    rows(false, {"8.8.8.8", "172.32.0.1", "100.128.0.1", "192.169.0.1", "203.0.113.200", "198.51.100.10",
                 "2001:db8:1:3::7", "64:ff9b::7f00:1", "::7f00:1"});
    rows(false, {"203.0.113.127", "10.7.0.255"}); // all hosts of an attached network
}

void DeviceIntakeTest::addressesAreNearby()
{
    QFETCH(bool, expected);
    NearbyAddresses nearby({{QHostAddress("203.0.113.5"), 25},
                            {QHostAddress("198.51.100.9"), 32},
                            {QHostAddress("192.0.2.1"), 31},
                            {QHostAddress("10.7.0.1"), 24},
                            {QHostAddress("127.0.0.1"), 8},
                            {QHostAddress("::1"), 128},
                            {QHostAddress("2001:db8:1:2::1"), 64}});
    const QHostAddress address{QString::fromLatin1(QTest::currentDataTag())};
    QVERIFY(!address.isNull());
    QCOMPARE(nearby.contains(address), expected);
}

void DeviceIntakeTest::ownNetworksAreNearby()
{
    NearbyAddresses nearby;
    NearbyAddresses none{QVector<NearbyAddresses::Network>()};
    const QList<QHostAddress> all = QNetworkInterface::allAddresses();
    for (const QHostAddress& own : all)
        QVERIFY2(nearby.contains(own) != own.isLoopback(), qPrintable(own.toString()));
    QVERIFY(!nearby.contains(QHostAddress("8.8.8.8")));
    QVERIFY(!none.contains(QHostAddress("192.0.2.1")) && none.contains(QHostAddress("10.0.0.1")));
}

void DeviceIntakeTest::farAddressesAreNotTakenOver()
{
    const LogLines log;
    const auto announce = [this] {
        feed({seen("Mine", "127.0.0.1", 80, http), seen("Mine too", "::1", 80, http),
              seen("Reserved", "240.0.0.1", 80, http), seen("Far", "8.8.8.8", 80, http),
              seen("Here", "10.0.0.7", 80, http)});
    };
    announce();
    QCOMPARE(ids().size(), 1);
    QCOMPARE(node(0)->name(), QString("Here"));
    QCOMPARE(log.lines, QStringList("The network scan leaves out announced addresses of other networks, "
                                    "such as 127.0.0.1"));
    announce();
    QCOMPARE(int(log.lines.size()), 1);
    Scanners::of(db()).intake().beginScan();
    announce();
    QCOMPARE(int(log.lines.size()), 2);
    // What a user enters is the user's own matter.
    m_host->add(IPDeviceType, "Mine", "127.0.0.1");
    QCOMPARE(ids().size(), 2);
}

void DeviceIntakeTest::scannersAreCalledByName()
{
    auto owned = std::make_unique<FakeScanner>();
    FakeScanner* scanner = owned.get();
    Scanners::of(db()).add(std::move(owned));
    QCOMPARE(Scanners::of(db()).all(), QList<Scanner*>{scanner});
    db().startScanners("ARP", 0xFFFFFFFF, -1);
    QCOMPARE(scanner->starts, QStringList());
    db().startScanners("mDNS", 0xFFFFFFFF, -1);
    db().startScanners("mDNS", 0xFFFFFFFF, -1);
    QCOMPARE(scanner->starts, QStringList{QStringLiteral("ffffffff -1")});
    emit scanner->found({seen(QStringLiteral("A"), QStringLiteral("10.0.0.7"))});
    KO_TRY_COMPARE(ids().size(), 1);
    db().stopScanners("ARP");
    QCOMPARE(scanner->stops, 0);
    db().stopScanners("mDNS");
    QCOMPARE(scanner->stops, 1);
}

void DeviceIntakeTest::deviceBecomesNode()
{
    QSignalSpy inserted(&db(), SIGNAL(nodeInserted(ko::NodeID)));
    DiscoveredDevice device = seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), 8080, axis,
                                   QStringLiteral("001122334455"), QStringLiteral("M10"));
    device.version = QStringLiteral("5.1");
    feed({device});
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(node(0)->type, IPDeviceType);
    QCOMPARE(node(0)->name(), QStringLiteral("Gate"));
    QCOMPARE(node(0)->address(), QStringLiteral("10.0.0.7"));
    QCOMPARE(node(0)->port(), 8080);
    QCOMPARE(node(0)->model(), QStringLiteral("M10"));
    QCOMPARE(node(0)->version(), QStringLiteral("5.1"));
    QCOMPARE(node(0)->macAddress().toString(true), mac1);
}

void DeviceIntakeTest::portIsDefaultWhenUnknown()
{
    feed({seen(QString(), QStringLiteral("10.0.0.7"))});
    QCOMPARE(node(0)->port(), 80);
    QCOMPARE(node(0)->name(), QStringLiteral("10.0.0.7"));
}

void DeviceIntakeTest::badPortIsLeftOut()
{
    feed({seen(QStringLiteral("A"), QStringLiteral("10.0.0.7"), 65536, rtsp),
          seen(QStringLiteral("B"), QStringLiteral("10.0.0.8"), -1, rtsp),
          seen(QStringLiteral("C"), QStringLiteral("nonsense"), 80, rtsp),
          seen(QStringLiteral("D"), QStringLiteral("10.0.0.9"), 65535, rtsp)});
    QCOMPARE(ids().size(), 1);
    QCOMPARE(node(0)->name(), QStringLiteral("D"));
}

void DeviceIntakeTest::badMacIsDropped()
{
    const char* const macs[] = {"zz:11:22:33:44:55", "00:00:00:00:00:00", "ff:ff:ff:ff:ff:ff",
                                "01:00:5e:00:00:01", "00:11:22"};
    int last = 0;
    for (const char* mac : macs)
        feed({seen(QStringLiteral("A"), QStringLiteral("10.0.0.%1").arg(++last), 80, rtsp,
                   QString::fromLatin1(mac))});
    QCOMPARE(ids().size(), last);
    for (int i = 0; i < last; ++i)
        QVERIFY(node(i)->macAddress().isNull());
}

void DeviceIntakeTest::longTextsAreCut()
{
    DiscoveredDevice device = seen(QString(5000000, QLatin1Char('n')), QStringLiteral("10.0.0.7"));
    device.model = QString(5000000, QLatin1Char('m'));
    device.version = QString(5000000, QLatin1Char('v'));
    device.macAddress = QString(5000000, QLatin1Char('0'));
    device.service = QString(5000000, QLatin1Char('s'));
    feed({device, seen(QStringLiteral("X"), QString(5000000, QLatin1Char('1')))});
    QCOMPARE(ids().size(), 1);
    QCOMPARE(node(0)->name().size(), int(DeviceIntake::NameLength));
    QCOMPARE(node(0)->model().size(), int(DeviceIntake::TextLength));
    QCOMPARE(node(0)->version().size(), int(DeviceIntake::TextLength));
}

void DeviceIntakeTest::markupIsText()
{
    const QString hostile = QStringLiteral("<img src=x>%1%n%s&amp;");
    feed({seen(hostile, QStringLiteral("10.0.0.7"))});
    QCOMPARE(node(0)->name(), hostile);
}

void DeviceIntakeTest::credentialsAreNeverTaken()
{
    LogLines log;
    feed({seen(QStringLiteral("Gate user=root password=pass"), QStringLiteral("10.0.0.7"), 80, http, mac1,
               QStringLiteral("M"))});
    QCOMPARE(node(0)->user(0), QString());
    QCOMPARE(node(0)->password(0), QString());
    QVERIFY2(log.lines.filter(QStringLiteral("pass")).isEmpty(),
             qPrintable(log.lines.join(QLatin1Char('\n'))));
}

void DeviceIntakeTest::servicesFamiliesAndScannersAreOneNode()
{
    const QString name = QStringLiteral("Gate");
    feed({seen(name, QStringLiteral("fe80::1%eth0"), 554, rtsp),
          seen(name, QStringLiteral("10.0.0.7"), 554, rtsp), seen(name, QStringLiteral("fd00::7"), 554, rtsp),
          seen(name, QStringLiteral("10.0.0.7"), 8080, http),
          seen(name + QStringLiteral(" web"), QStringLiteral("10.0.0.7"), 8080, axis, mac1),
          seen(QString(), QStringLiteral("10.0.0.7"))});
    QCOMPARE(ids().size(), 1);
    QCOMPARE(node(0)->address(), QStringLiteral("10.0.0.7"));
    QCOMPARE(node(0)->port(), 8080);
    QCOMPARE(node(0)->macAddress().toString(true), mac1);
    // Later, one by one, from another scanner, and after another start.
    intake().beginScan();
    feed({seen(name, QStringLiteral("fd00::7"), 554, rtsp)});
    feed({seen(QString(), QStringLiteral("10.0.0.7"), 554)});
    QCOMPARE(ids().size(), 1);
}

void DeviceIntakeTest::allAddressesAreKept()
{
    const QString name = QStringLiteral("Gate");
    feed({seen(name, QStringLiteral("fe80::1%eth0"), 80, http, mac1),
          seen(name, QStringLiteral("10.0.0.7"), 80, http, mac1),
          seen(name, QStringLiteral("10.0.1.7"), 80, http, mac1),
          seen(name, QStringLiteral("fd00::7"), 80, http, mac1)});
    QCOMPARE(ids().size(), 1);
    QCOMPARE(addresses(0), QStringList({"10.0.0.7", "10.0.1.7", "fd00::7", "fe80::1%eth0"}));
    QCOMPARE(node(0)->stringProperty("IP", QString()), QStringLiteral("10.0.0.7"));
    QCOMPARE(node(0)->stringProperty("FactoryIP", QString()), QStringLiteral("001122334455"));
}

void DeviceIntakeTest::addressSeenLaterIsAdded()
{
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), 80, http)});
    QCOMPARE(addresses(0), QStringList("10.0.0.7"));
    feed({seen(QStringLiteral("Gate"), QStringLiteral("fd00::7"), 80, http)});
    QCOMPARE(ids().size(), 1);
    QCOMPARE(addresses(0), QStringList({"10.0.0.7", "fd00::7"}));
}

/// And nothing else of it is changed. Where it has moved, what it had of that kind is gone.
void DeviceIntakeTest::knownDeviceLearnsItsAddresses()
{
    const QString id = addCamera(QStringLiteral("Survey"), QStringLiteral("10.0.0.7"), QString());
    const QVector<DiscoveredDevice> found = {
        seen(QStringLiteral("Gate"), QStringLiteral("fd00::7"), 8080, http, mac1, QStringLiteral("C-1")),
        seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), 8080, http, mac1, QStringLiteral("C-1"))};
    feed(found);
    QCOMPARE(ids(), QStringList(id));
    QCOMPARE(addresses(0), QStringList({"10.0.0.7", "fd00::7"}));
    QCOMPARE(node(0)->name(), QStringLiteral("Survey"));
    QCOMPARE(node(0)->port(), 80);
    QVERIFY(node(0)->model().isEmpty() && node(0)->macAddress().isNull());
    QVERIFY(db().flush());
    const qint64 number = db().history().changeSets(0, 1000).last().number;
    feed(found);
    QVERIFY(db().history().changeSets(number, 1000).isEmpty());
}

void DeviceIntakeTest::knownDeviceGetsNoSecondNode_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("found");
    QTest::newRow("same") << QStringLiteral("10.0.0.7") << QStringLiteral("10.0.0.7");
    QTest::newRow("blanks") << QStringLiteral(" 10.0.0.7 ") << QStringLiteral("10.0.0.7");
    QTest::newRow("IPv6") << QStringLiteral("FD00:0:0::7") << QStringLiteral("fd00::7");
}

void DeviceIntakeTest::knownDeviceGetsNoSecondNode()
{
    QFETCH(QString, stored);
    QFETCH(QString, found);
    m_host->add(UrlCameraType, QStringLiteral("Mine"), stored);
    feed({seen(QStringLiteral("Gate"), found, 554, rtsp)}); // the node's port is 80
    QCOMPARE(ids().size(), 1);
    QCOMPARE(node(0)->name(), QStringLiteral("Mine"));
    QCOMPARE(node(0)->port(), 80);
}

void DeviceIntakeTest::channelsBehindOneAddressStay()
{
    const QString address = QStringLiteral("10.0.0.7");
    for (int channel = 1; channel <= 2; ++channel) {
        const auto hint = NodeTypes::driver(ChannelDeviceType)->createNodeHint(ChannelDeviceType);
        auto* device = dynamic_cast<NodeHintIPDevice*>(hint.get());
        device->address = address;
        device->channel = channel;
        QCOMPARE(db().lookupHint(*hint), QString());
        db().newNodeHint(*hint);
        QCOMPARE(db().lookupHint(*hint), ids().constLast());
    }
    QCOMPARE(ids().size(), 2);
    feed({seen(QStringLiteral("Encoder"), address, 80, http), seen(QString(), address)});
    QCOMPARE(ids().size(), 2);
}

void DeviceIntakeTest::camerasBehindOneAddressAreTwo()
{
    const QString address = QStringLiteral("10.0.0.7");
    const QVector<DiscoveredDevice> two = {
        seen(QStringLiteral("One"), address, 8554, rtsp), seen(QStringLiteral("Two"), address, 8555, rtsp),
        seen(QStringLiteral("Two"), address, 8081, http), seen(QStringLiteral("One"), address, 8080, http)};
    feed(two);
    QCOMPARE(ids().size(), 2);
    QCOMPARE(node(0)->port(), 8080);
    QCOMPARE(node(1)->port(), 8081);
    intake().beginScan();
    feed(two);
    QCOMPARE(ids().size(), 2);
}

void DeviceIntakeTest::threeScannersMakeOneNode()
{
    DiscoveredDevice asked = answered("urn:uuid:7", "10.0.0.7", 8000, "Gate (ONVIF)");
    asked.model = "M10";
    feed({seen("Gate", "10.0.0.7", 554, rtsp), asked, seen("", "10.0.0.7", 443, "", mac1),
          seen("Gate", "10.0.0.7", 8080, http)});
    QCOMPARE(ids().size(), 1);
    QCOMPARE(node(0)->name(), QString("Gate"));
    QCOMPARE(node(0)->model(), QString("M10"));
    QCOMPARE(node(0)->port(), 8000); // of the service that it is configured through
    QCOMPARE(node(0)->macAddress().toString(true), QString(mac1));
}

void DeviceIntakeTest::identityJoinsFamiliesAndNotClones()
{
    feed({answered("urn:uuid:7", "10.0.0.7"), answered("urn:uuid:7", "fd00::7"),
          answered("urn:uuid:7", "10.0.0.8"), answered("urn:uuid:7", "fd00::8"),
          answered("urn:uuid:7", "10.0.0.9")});
    QCOMPARE(ids().size(), 3);
    QStringList addresses;
    for (int i = 0; i < 3; ++i)
        addresses.append(node(i)->address());
    addresses.sort();
    QCOMPARE(addresses, (QStringList{"10.0.0.7", "10.0.0.8", "10.0.0.9"}));
}

void DeviceIntakeTest::identitiesBehindOneAddressAreTwo()
{
    feed({answered("urn:uuid:7", "10.0.0.7", 8001, "IPC"), answered("urn:uuid:8", "10.0.0.7", 8002, "IPC"),
          answered("urn:uuid:7", "10.0.0.7", 8001, "IPC")});
    QCOMPARE(ids().size(), 2);
    // One port is one device, whatever it calls itself today.
    feed({answered("urn:uuid:1", "10.0.0.9", 80), answered("urn:uuid:2", "10.0.0.9", 80)});
    QCOMPARE(ids().size(), 3);
}

void DeviceIntakeTest::movedDeviceIsKnownByWhatItTellsAndByWhatIsSeen()
{
    const QString told = mac1;
    const QString neighbour = "00:11:22:33:44:66";
    const auto sighted = [&](const QString& name, const QString& address, bool tells) {
        DiscoveredDevice device = answered("urn:uuid:" + name, address, 80, name);
        device.macAddress = tells ? told : QString();
        device.neighbourMac = neighbour;
        device.neighbourMac.back() = name.back(); // one for each
        return device;
    };
    feed({sighted("Gate1", "10.0.0.7", false), sighted("Gate2", "10.0.0.8", true)});
    QCOMPARE(ids().size(), 2);
    Scanners::of(db()).intake().beginScan();
    feed({sighted("Gate1", "10.0.0.17", false), sighted("Gate2", "10.0.0.18", true)});
    QCOMPARE(ids().size(), 2);
    QCOMPARE(int(intake().addressChanges().size()), 2);
    const QVector<AddressChange> changes = intake().addressChanges();
    for (const AddressChange& change : changes)
        QCOMPARE(change.macAddress, change.name == "Gate2" ? told : QString("00:11:22:33:44:61"));
}

void DeviceIntakeTest::locationIsANameOfLastResort()
{
    DiscoveredDevice device = answered("urn:uuid:7", "10.0.0.7");
    device.location = "Hall 2\x1b[31m " + QString(500, 'x');
    feed({device});
    QVERIFY(node(0)->name().startsWith("Hall 2[31m x"));
    QCOMPARE(int(node(0)->name().size()), int(DeviceIntake::TextLength));
}

void DeviceIntakeTest::sharedMacIsTwoNodes()
{
    feed({seen(QStringLiteral("One"), QStringLiteral("10.0.0.7"), 80, http, mac1),
          seen(QStringLiteral("Two"), QStringLiteral("10.0.0.8"), 80, http, mac1)});
    QCOMPARE(ids().size(), 2);
    feed({seen(QStringLiteral("One"), QStringLiteral("10.0.0.9"), 80, http, mac1)});
    QCOMPARE(ids().size(), 3);
    QCOMPARE(intake().addressChanges().size(), 0);
}

void DeviceIntakeTest::movedDeviceIsNotedAndNotMoved()
{
    const QString id = addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1);
    QSignalSpy changed(&intake(), SIGNAL(addressChangesChanged()));
    const auto moved = seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1);
    feed({moved});
    feed({moved});
    QCOMPARE(ids(), QStringList{id});
    QCOMPARE(node(0)->address(), QStringLiteral("10.0.0.7"));
    QCOMPARE(changed.count(), 1);
    const QVector<AddressChange> changes = intake().addressChanges();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.at(0).nodeId, id);
    QCOMPARE(changes.at(0).name, QStringLiteral("Gate"));
    QCOMPARE(changes.at(0).oldAddress, QStringLiteral("10.0.0.7"));
    QCOMPARE(changes.at(0).newAddress, QStringLiteral("10.0.0.99"));
    QCOMPARE(changes.at(0).macAddress, mac1);
}

void DeviceIntakeTest::macAloneMovesNothing()
{
    addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1, QStringLiteral("M10"));
    feed({seen(QStringLiteral("Other"), QStringLiteral("10.0.0.99"), 80, http, mac1),
          seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.98"), 80, http,
               QStringLiteral("00:11:22:33:44:66"), QStringLiteral("M10"))});
    QCOMPARE(intake().addressChanges().size(), 0);
    QCOMPARE(ids().size(), 3);
}

void DeviceIntakeTest::deviceThatAnswersAtHomeHasNotMoved()
{
    const QString id = addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1);
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), 80, http)});
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1)});
    QCOMPARE(intake().addressChanges().size(), 0);
    QCOMPARE(ids().size(), 2);
    QCOMPARE(db().summary(id).location, QStringLiteral("10.0.0.7"));
}

void DeviceIntakeTest::returningDeviceWithdrawsTheNote()
{
    addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1);
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1)});
    QCOMPARE(intake().addressChanges().size(), 1);
    feed({seen(QString(), QStringLiteral("10.0.0.7"))});
    QCOMPARE(intake().addressChanges().size(), 0);
    QCOMPARE(ids().size(), 2); // so the other one is a device of its own
}

void DeviceIntakeTest::acceptedChangeIsWrittenAndLogged()
{
    const QString id = addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1);
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1)});
    const qint64 logged = db().auditLog().count();
    intake().accept(intake().addressChanges());
    QCOMPARE(intake().addressChanges().size(), 0);
    QCOMPARE(db().summary(id).location, QStringLiteral("10.0.0.99"));
    QCOMPARE(addresses(0), QStringList("10.0.0.99"));
    QCOMPARE(node(0)->user(0), QStringLiteral("admin"));
    QCOMPARE(db().auditLog().count(), logged + 1);
    const auto entries = db().auditLog().entries(0, 1, true);
    QVERIFY(entries.at(0).entry->typeCode() == FourChars("NAdr"));
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1)});
    QCOMPARE(ids().size(), 1);
}

void DeviceIntakeTest::staleChangeIsNotAccepted()
{
    const QString id = addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1);
    feed({seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1)});
    const auto changes = intake().addressChanges();
    m_host->change(
        id, [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setAddress(QStringLiteral("10.0.0.50")); });
    const qint64 logged = db().auditLog().count();
    intake().accept(changes);
    QCOMPARE(db().summary(id).location, QStringLiteral("10.0.0.50"));
    QCOMPARE(db().auditLog().count(), logged);
    intake().accept({{id, QString(), QStringLiteral("10.0.0.50"), QStringLiteral("6.6.6.6"), mac1}});
    QCOMPARE(db().summary(id).location, QStringLiteral("10.0.0.50"));
}

void DeviceIntakeTest::dismissedChangeStaysAway()
{
    addCamera(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), mac1);
    const auto moved = seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.99"), 80, http, mac1);
    feed({moved});
    intake().dismiss(intake().addressChanges());
    QCOMPARE(intake().addressChanges().size(), 0);
    intake().beginScan();
    feed({moved});
    QCOMPARE(intake().addressChanges().size(), 0);
    QCOMPARE(ids().size(), 1);
}

void DeviceIntakeTest::removedNodeIsFoundAgainByTheNextScan()
{
    const auto device = seen(QStringLiteral("Gate"), QStringLiteral("10.0.0.7"), 80, http, mac1);
    feed({device});
    db().removeNode(ids().at(0));
    feed({device});
    QCOMPARE(ids().size(), 0);
    intake().beginScan();
    feed({device});
    QCOMPARE(ids().size(), 1);
}

void DeviceIntakeTest::floodIsLimitedAndSaidOnce()
{
    LogLines log;
    QVector<DiscoveredDevice> flood;
    for (int i = 0; i < DeviceIntake::WaitingLimit + 1000; ++i)
        flood.append(seen(QStringLiteral("x"), QStringLiteral("10.1.%1.%2").arg(i / 200 % 250).arg(i % 200)));
    for (int i = 0; i < 3; ++i)
        intake().take(flood);
    QTRY_VERIFY_WITH_TIMEOUT(intake().isIdle(), 100000);
    QVERIFY(ids().size() <= int(DeviceIntake::DevicesPerScan));
    QCOMPARE(log.lines.filter(QStringLiteral("left out")).size(), 1);
}

void DeviceIntakeTest::tenThousandArrive()
{
    const int count = 10000;
    QVector<DiscoveredDevice> burst;
    for (int i = 0; i < count; ++i)
        burst.append(seen(QStringLiteral("Camera %1").arg(i),
                          QStringLiteral("10.2.%1.%2").arg(i / 250).arg(1 + i % 250), 80, http));
    double longest = 0;
    testsupport::OwnTimer beat;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this,
            [&longest, &beat] { longest = std::max(longest, beat.restart()); });
    long resident[3] = {};
    for (int round = 0; round < 3; ++round) {
        intake().beginScan();
        beat.start();
        heart.start(0);
        feed(burst);
        heart.stop();
        QCOMPARE(ids().size(), count);
        const QStringList all = ids();
        for (const QString& id : all)
            db().removeNode(id);
        db().flush();
        resident[round] = residentKb();
    }
    qInfo("longest stop of the event loop %.1f ms; resident after each clearing %ld, %ld, %ld kB", longest,
          resident[0], resident[1], resident[2]);
    QVERIFY2(longest < 250, qPrintable(QString::number(longest)));
#ifndef KO_SANITIZE // AddressSanitizer keeps for a while what was freed
    QVERIFY(resident[2] < resident[0] + 8192);
#endif
}

KO_TEST_MAIN(DeviceIntakeTest)
#include "tst_deviceintake.moc"
