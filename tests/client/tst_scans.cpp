#include "database/HostNodeDB.h"
#include "dialogs/NodeOverviewDialog.h"
#include "discovery/ArpScanner.h"
#include "discovery/DeviceIntake.h"
#include "discovery/MdnsScanner.h"
#include "support/HostFixture.h"
#include "support/LogLines.h"
#include "support/ModalAnswer.h"
#include "support/NetworkNamespaces.h"
#include "support/ProcessResources.h"
#include "support/TestMain.h"

#include <QAction>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>

#include <malloc.h>

using namespace ko;
using testsupport::child;
using testsupport::NetworkNamespaces;
using testsupport::ProcessResources;

namespace {

const int Patience = 30000; // ms

const IPDeviceNode* device(HostNodeDB& db, const QString& id, kom::smart<const Node>& holder)
{
    holder = db.node(id);
    return dynamic_cast<const IPDeviceNode*>(holder.get());
}

} // namespace

/// The way of a camera from a real network to a node, through the buttons of the dialog.
class tst_Scans : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void bonjourFindsWhatIsAnnounced();
    void arpFindsWhatListens();
    void bothScansMakeOneNode();
    void hostileAnnouncements();
    void sharedMacIsNoKey();
    void movedCamerasStayWhereTheyAre();
    void stormHidesNothing();
    void buttonsOnAndOff();
    void dialogGoesDuringTheScan();
    void burstArrivesAndLeavesNothing();

private:
    bool startSite(int addresses);
    QProcess* simulate(const QStringList& options);
    void press(const char* button)
    {
        QTest::mouseClick(child<QPushButton>(m_dialog.get(), button), Qt::LeftButton);
    }
    int rows() const { return child<QTreeView>(m_dialog.get(), "nodesTreeView")->model()->rowCount(); }
    QStringList places() const;
    QStringList names() const;

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<NetworkNamespaces> m_network;
    std::unique_ptr<NodeOverviewDialog> m_dialog;
};

void tst_Scans::initTestCase()
{
    KO_NEED_NETWORKS();
}

void tst_Scans::init()
{
    m_network = std::make_unique<NetworkNamespaces>();
    m_host = std::make_unique<testsupport::HostFixture>();
    m_host->db()->addScanner(std::make_unique<MdnsScanner>());
    m_host->db()->addScanner(std::make_unique<ArpScanner>());
    m_dialog = std::make_unique<NodeOverviewDialog>();
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

void tst_Scans::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    m_network.reset();
}

/// Cameras have addresses of their own from 10.99.0.10 on; 10.99.0.2 is the machine they run on.
bool tst_Scans::startSite(int addresses)
{
    bool isUp = m_network->connectSite();
    for (int i = 0; i < addresses && isUp; ++i)
        isUp = m_network->addSiteAddress(QStringLiteral("10.99.0.%1").arg(10 + i));
    isUp = isUp && m_network->startDaemons();
    if (!isUp)
        qWarning("%s", qPrintable(m_network->error()));
    return isUp;
}

QProcess* tst_Scans::simulate(const QStringList& options)
{
    QProcess* site = m_network->launch(
        NetworkNamespaces::Site, QStringLiteral(KO_KOSIM),
        QStringList{QStringLiteral("--address-base"), QStringLiteral("10.99.0.10")} + options);
    QByteArray said;
    const bool isReady = QTest::qWaitFor(
        [site, &said] {
            said += site->readAllStandardOutput();
            return said.contains("ready: ");
        },
        10000);
    if (!isReady)
        qWarning("kosim says: %s", said.constData());
    return isReady ? site : nullptr;
}

QStringList tst_Scans::places() const
{
    QStringList places;
    const QVector<NodeSummary> nodes = m_host->db()->summaries();
    for (const NodeSummary& node : nodes)
        places.append(node.location);
    places.sort();
    return places;
}

QStringList tst_Scans::names() const
{
    QStringList names;
    const QVector<NodeSummary> nodes = m_host->db()->summaries();
    for (const NodeSummary& node : nodes)
        names.append(node.name);
    names.sort();
    return names;
}

void tst_Scans::bonjourFindsWhatIsAnnounced()
{
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("2"), QStringLiteral("--model"),
                      QStringLiteral("KS-9")}));
    // A host of its own: the machine's name stands for all addresses that it has.
    const QString host = QStringLiteral("gate.local");
    m_network->launch(NetworkNamespaces::Site, QStringLiteral("avahi-publish"),
                      {QStringLiteral("-a"), QStringLiteral("-R"), host, QStringLiteral("10.99.0.12")});
    m_network->launch(NetworkNamespaces::Site, QStringLiteral("avahi-publish"),
                      {QStringLiteral("-s"), QStringLiteral("-H"), host, QStringLiteral("Gate"),
                       QStringLiteral("_rtsp._tcp"), QStringLiteral("554"), QStringLiteral("model=G1")});
    QTest::qWait(1000);
    QCOMPARE(rows(), 0);
    press("bonjourButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 3, Patience);
    QTest::qWait(1500); // no device twice, in spite of its services and address families
    QCOMPARE(rows(), 3);
    QCOMPARE(names(),
             (QStringList{QStringLiteral("Camera 1"), QStringLiteral("Camera 2"), QStringLiteral("Gate")}));
    QCOMPARE(places(), (QStringList{QStringLiteral("10.99.0.10"), QStringLiteral("10.99.0.11"),
                                    QStringLiteral("10.99.0.12")}));

    child<QTreeView>(m_dialog.get(), "nodesTreeView")->selectAll();
    press("okButton");
    QCOMPARE(int(m_dialog->selected().size()), 3);
    int models = 0;
    for (const QString& id : m_dialog->selected()) {
        kom::smart<const Node> holder;
        const IPDeviceNode* camera = device(*m_host->db(), id, holder);
        QVERIFY(camera);
        models += camera->model() == QLatin1String("KS-9") ? 1 : 0;
    }
    QCOMPARE(models, 2);
}

void tst_Scans::arpFindsWhatListens()
{
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("3"), QStringLiteral("--no-announce")}));
    press("bonjourButton");
    QTest::qWait(2000);
    QCOMPARE(rows(), 0); // they do not announce themselves
    press("arpButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 3, Patience);
    QCOMPARE(places(), (QStringList{QStringLiteral("10.99.0.10"), QStringLiteral("10.99.0.11"),
                                    QStringLiteral("10.99.0.12")}));
    const QVector<NodeSummary> nodes = m_host->db()->summaries();
    kom::smart<const Node> holder;
    const IPDeviceNode* camera = device(*m_host->db(), nodes.at(0).id, holder);
    QVERIFY(camera);
    QCOMPARE(camera->port(), 8080);
}

void tst_Scans::bothScansMakeOneNode()
{
    QVERIFY(startSite(2));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("2")}));
    press("arpButton");
    press("bonjourButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 2, Patience);
    Scanner* arp = m_host->db()->scanners().at(1);
    QCOMPARE(arp->name(), QStringLiteral("ARP"));
    QTRY_COMPARE_WITH_TIMEOUT(int(arp->state().phase), int(ScannerState::Done), 60000);
    QTRY_VERIFY(m_host->db()->scanners().at(0)->state().done >= 4);
    QTest::qWait(1500);
    QCOMPARE(rows(), 2);
}

void tst_Scans::hostileAnnouncements()
{
    const testsupport::LogLines log;
    QVERIFY(startSite(6));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("6"), QStringLiteral("--hostile")}));
    press("bonjourButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 6, Patience);
    const QStringList all = names();
    for (const QString& name : all) {
        QVERIFY(!name.isEmpty() && name.size() <= DeviceIntake::NameLength);
        QVERIFY2(std::all_of(name.begin(), name.end(),
                             [](QChar c) { return c.isPrint() && c.category() != QChar::Other_Format; }),
                 qPrintable(name));
    }
    QVERIFY(!all.filter(QStringLiteral("<b>Gate</b>")).isEmpty()); // text, and nothing but text
    const QVector<NodeSummary> nodes = m_host->db()->summaries();
    for (const NodeSummary& node : nodes) {
        kom::smart<const Node> holder;
        const IPDeviceNode* camera = device(*m_host->db(), node.id, holder);
        QVERIFY(camera);
        QVERIFY(camera->user(0) != QLatin1String("admin") &&
                camera->password(0) != QLatin1String("kosim-secret"));
        QVERIFY(camera->model().size() <= DeviceIntake::TextLength);
    }
    QVERIFY(log.lines.filter(QStringLiteral("kosim-secret")).isEmpty());
}

void tst_Scans::sharedMacIsNoKey()
{
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("3"), QStringLiteral("--shared-mac")}));
    press("bonjourButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 3, Patience);
    QCOMPARE(names(), (QStringList{QStringLiteral("Camera 1"), QStringLiteral("Camera 2"),
                                   QStringLiteral("Camera 3")}));
}

void tst_Scans::movedCamerasStayWhereTheyAre()
{
    QVERIFY(startSite(2));
    QProcess* site = simulate({QStringLiteral("--cameras"), QStringLiteral("1"), QStringLiteral("--moving"),
                               QStringLiteral("--move-interval"), QStringLiteral("15")});
    QVERIFY(site);
    press("bonjourButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 1, Patience);
    QCOMPARE(places(), QStringList(QStringLiteral("10.99.0.10")));
    press("bonjourButton"); // within one scan two addresses are two devices
    QByteArray said;
    QTRY_VERIFY_WITH_TIMEOUT((said += site->readAllStandardOutput()).contains("at 10.99.0.11"), Patience);
    QTest::qWait(3000); // the old address is known for one second more, the new one comes after a probe
    press("bonjourButton");
    DeviceIntake& intake = m_host->db()->deviceIntake();
    QTRY_COMPARE_WITH_TIMEOUT(int(intake.addressChanges().size()), 1, 9000);
    QCOMPARE(intake.addressChanges().at(0).oldAddress, QStringLiteral("10.99.0.10"));
    QCOMPARE(intake.addressChanges().at(0).newAddress, QStringLiteral("10.99.0.11"));
    QCOMPARE(places(), QStringList(QStringLiteral("10.99.0.10")));
    QCOMPARE(rows(), 1);
}

void tst_Scans::stormHidesNothing()
{
    const testsupport::LogLines log;
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("3"), QStringLiteral("--storm"),
                      QStringLiteral("300")}));
    press("bonjourButton");
    QTRY_VERIFY_WITH_TIMEOUT(places().contains(QStringLiteral("10.99.0.12")) &&
                                 m_host->db()->scanners().at(0)->state().done > 300,
                             Patience);
    QVERIFY(names().contains(QStringLiteral("Camera 3")));
    QVERIFY2(log.lines.size() <= 2, qPrintable(log.lines.join(QLatin1Char('\n'))));
}

void tst_Scans::buttonsOnAndOff()
{
    QVERIFY(startSite(1));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("1")}));
    const QList<Scanner*> scanners = m_host->db()->scanners();
    ProcessResources before;
    for (int i = 0; i < 100; ++i) {
        for (int press = 0; press < 2; ++press) { // on and off
            this->press("bonjourButton");
            this->press("arpButton");
            QTest::qWait(i % 10 * 5);
        }
        if (i == 0)
            before = ProcessResources(); // with what is made once
    }
    for (const Scanner* scanner : scanners)
        QCOMPARE(int(scanner->state().phase), int(ScannerState::Cancelled));
    QVERIFY(ProcessResources() == before);
    press("bonjourButton");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 1, Patience);
}

void tst_Scans::dialogGoesDuringTheScan()
{
    QVERIFY(startSite(1));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("1")}));
    const QList<Scanner*> scanners = m_host->db()->scanners();
    ProcessResources before;
    for (int i = 0; i < 10; ++i) {
        press("bonjourButton");
        press("arpButton");
        QTest::qWait(i * 20);
        m_dialog = std::make_unique<NodeOverviewDialog>();
        m_dialog->show();
        for (Scanner* scanner : scanners) {
            QCOMPARE(int(scanner->state().phase), int(ScannerState::Running)); // others may want it
            scanner->stop();
        }
        if (i == 0)
            before = ProcessResources();
    }
    QVERIFY(ProcessResources() == before);
}

/// What the scanners hand over in one go.
void tst_Scans::burstArrivesAndLeavesNothing()
{
    DeviceIntake& intake = m_host->db()->deviceIntake();
    const auto burst = [&](int count) {
        QVector<DiscoveredDevice> devices;
        for (int i = 0; i < count; ++i) {
            DiscoveredDevice device;
            device.name = QStringLiteral("Camera %1").arg(i);
            device.address = QStringLiteral("10.1.%1.%2").arg(i / 250).arg(i % 250 + 1);
            device.port = 80;
            device.service = QStringLiteral("_http._tcp");
            devices.append(device);
        }
        intake.beginScan();
        intake.take(devices);
        QVERIFY(QTest::qWaitFor([&] { return intake.isIdle() && rows() == count; }, 4 * Patience));
        const QStringList ids = m_host->db()->nodeIdList(AllNodeTypes);
        for (const QString& id : ids)
            m_host->db()->removeNode(id);
        child<QAction>(m_dialog.get(), "actionRemove_all")->trigger();
        QVERIFY(m_host->db()->flush());
        QCOMPARE(rows(), 0);
    };
    burst(10000);
    const size_t first = mallinfo2().uordblks;
    burst(10000);
    const size_t second = mallinfo2().uordblks;
    QVERIFY2(double(second) < 1.01 * double(first),
             qPrintable(QStringLiteral("%1, then %2 bytes").arg(first).arg(second)));
}

int main(int argc, char** argv)
{
    NetworkNamespaces::enter(argv);
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    tst_Scans test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_scans.moc"
