#include "database/HostNodeDB.h"
#include "dialogs/NodeOverviewDialog.h"
#include "discovery/ArpScanner.h"
#include "discovery/DeviceIntake.h"
#include "discovery/MdnsScanner.h"
#include "discovery/Scanners.h"
#include "discovery/WsDiscoveryScanner.h"
#include "support/HostFixture.h"
#include "support/LogLines.h"
#include "support/ModalAnswer.h"
#include "support/NetworkNamespaces.h"
#include "support/Patience.h"
#include "support/ProcessResources.h"
#include "support/TestMain.h"

#include <QAction>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>

using namespace ko;
using testsupport::child;
using testsupport::NetworkNamespaces;
using testsupport::ProcessResources;

namespace {

const int Prefix = 27; // of the cable's network, so that a sweep is short

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
    void init();
    void cleanup();

    void bonjourFindsWhatIsAnnounced();
    void wsDiscoveryFindsWhatAnswers();
    void hostileMatches();
    void arpAsksForNamesAndModels();
    void arpFindsWhatListens();
    void bothScansMakeOneNode();
    void hostileAnnouncements();
    void sharedMacIsNoKey();
    void movedCamerasStayWhereTheyAre();
    void camerasAreFoundInAStorm();
    void buttonsOnAndOff();
    void closedWhileScansRun();
    void burstOfDevices();

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

void tst_Scans::init()
{
    m_network = std::make_unique<NetworkNamespaces>();
    m_host = std::make_unique<testsupport::HostFixture>();
    Scanners::of(*m_host->db()).add(std::make_unique<MdnsScanner>());
    Scanners::of(*m_host->db()).add(std::make_unique<ArpScanner>());
    Scanners::of(*m_host->db()).add(std::make_unique<WsDiscoveryScanner>());
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
    bool isUp = m_network->connectSite(Prefix);
    for (int i = 0; i < addresses && isUp; ++i)
        isUp = m_network->addSiteAddress(QStringLiteral("10.99.0.%1").arg(10 + i), Prefix);
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
    KO_NEED_NETWORKS();
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
    KO_TRY_COMPARE(rows(), 3);
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

/// Without the daemons, so that nothing is announced by mDNS.
void tst_Scans::wsDiscoveryFindsWhatAnswers()
{
    KO_NEED_NETWORKS();
    QVERIFY(m_network->connectSite(Prefix));
    for (int i = 0; i < 12; ++i)
        QVERIFY(m_network->addSiteAddress(QStringLiteral("10.99.0.%1").arg(10 + i), Prefix));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("12"), QStringLiteral("--model"),
                      QStringLiteral("KS-9")}));
    press("bonjourButton");
    KO_TRY_COMPARE(rows(), 12);
    const QVector<NodeSummary> nodes = m_host->db()->summaries();
    for (const NodeSummary& node : nodes) {
        kom::smart<const Node> holder;
        const IPDeviceNode* camera = device(*m_host->db(), node.id, holder);
        QVERIFY(camera);
        QVERIFY(camera->name().startsWith(QLatin1String("Camera ")));
        QCOMPARE(camera->model(), QStringLiteral("KS-9"));
        QCOMPARE(camera->port(), 8080);
        QVERIFY(!camera->macAddress().isNull()); // the system's own knowledge
    }
    QTest::qWait(1500);
    QCOMPARE(rows(), 12);
}

/// Each tells of places of others too, and sends spoilt messages.
void tst_Scans::hostileMatches()
{
    KO_NEED_NETWORKS();
    const testsupport::LogLines log;
    QVERIFY(m_network->connectSite(Prefix));
    for (int i = 0; i < 6; ++i)
        QVERIFY(m_network->addSiteAddress(QStringLiteral("10.99.0.%1").arg(10 + i), Prefix));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("6"), QStringLiteral("--hostile")}));
    press("bonjourButton");
    KO_TRY_COMPARE(rows(), 6);
    QTest::qWait(1500);
    QCOMPARE(rows(), 6);
    const QStringList where = places();
    for (const QString& place : where)
        QVERIFY2(place.startsWith(QLatin1String("10.99.0.1")), qPrintable(place));
    const QStringList all = names();
    for (const QString& name : all)
        QVERIFY2(std::all_of(name.begin(), name.end(),
                             [](QChar c) { return c.isPrint() && c.category() != QChar::Other_Format; }),
                 qPrintable(name));
    QVERIFY(!all.filter(QStringLiteral("<b>Gate</b>")).isEmpty()); // text, and nothing but text
    QVERIFY(log.lines.filter(QStringLiteral("kosim-secret")).isEmpty());
}

void tst_Scans::arpAsksForNamesAndModels()
{
    KO_NEED_NETWORKS();
    QVERIFY(m_network->connectSite(Prefix));
    QVERIFY(m_network->addSiteAddress(QStringLiteral("10.99.0.10"), Prefix));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("1"), QStringLiteral("--http-port"),
                      QStringLiteral("8899"), QStringLiteral("--port"), QStringLiteral("8900")}));
    press("arpButton");
    KO_TRY_COMPARE(rows(), 1);
    QCOMPARE(names(), QStringList(QStringLiteral("Camera 1")));
    QCOMPARE(places(), QStringList(QStringLiteral("10.99.0.10")));
}

void tst_Scans::arpFindsWhatListens()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("3"), QStringLiteral("--no-announce")}));
    press("bonjourButton");
    QTest::qWait(2000);
    QCOMPARE(rows(), 0); // they do not announce themselves
    press("arpButton");
    KO_TRY_COMPARE(rows(), 3);
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
    KO_NEED_NETWORKS();
    QVERIFY(startSite(2));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("2")}));
    press("arpButton");
    press("bonjourButton");
    KO_TRY_COMPARE(rows(), 2);
    Scanner* arp = Scanners::of(*m_host->db()).all().at(1);
    QCOMPARE(arp->name(), QStringLiteral("ARP"));
    QTRY_COMPARE_WITH_TIMEOUT(int(arp->state().phase), int(ScannerState::Done), 60000);
    KO_TRY_VERIFY(Scanners::of(*m_host->db()).all().at(0)->state().done >= 4);
    QTest::qWait(1500);
    QCOMPARE(rows(), 2);
}

void tst_Scans::hostileAnnouncements()
{
    KO_NEED_NETWORKS();
    const testsupport::LogLines log;
    QVERIFY(startSite(6));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("6"), QStringLiteral("--hostile")}));
    press("bonjourButton");
    KO_TRY_COMPARE(rows(), 6);
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
    KO_NEED_NETWORKS();
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("3"), QStringLiteral("--shared-mac")}));
    press("bonjourButton");
    KO_TRY_COMPARE(rows(), 3);
    QCOMPARE(names(), (QStringList{QStringLiteral("Camera 1"), QStringLiteral("Camera 2"),
                                   QStringLiteral("Camera 3")}));
}

void tst_Scans::movedCamerasStayWhereTheyAre()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite(2));
    QProcess* site = simulate({QStringLiteral("--cameras"), QStringLiteral("1"), QStringLiteral("--moving"),
                               QStringLiteral("--move-interval"), QStringLiteral("11")});
    QVERIFY(site);
    press("bonjourButton");
    KO_TRY_COMPARE(rows(), 1);
    QCOMPARE(places(), QStringList(QStringLiteral("10.99.0.10")));
    press("bonjourButton"); // within one scan two addresses are two devices
    QByteArray said;
    KO_TRY_VERIFY((said += site->readAllStandardOutput()).contains("at 10.99.0.11"));
    QTest::qWait(2500); // daemons remember a withdrawn address for a second
    press("bonjourButton");
    DeviceIntake& intake = Scanners::of(*m_host->db()).intake();
    KO_TRY_COMPARE(int(intake.addressChanges().size()), 1);
    QCOMPARE(intake.addressChanges().at(0).oldAddress, QStringLiteral("10.99.0.10"));
    QCOMPARE(intake.addressChanges().at(0).newAddress, QStringLiteral("10.99.0.11"));
    QCOMPARE(places(), QStringList(QStringLiteral("10.99.0.10")));
    QCOMPARE(rows(), 1);
}

void tst_Scans::camerasAreFoundInAStorm()
{
    KO_NEED_NETWORKS();
    const testsupport::LogLines log;
    QVERIFY(startSite(3));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("3"), QStringLiteral("--storm"),
                      QStringLiteral("300")}));
    press("bonjourButton");
    const auto isFound = [&] {
        return places().contains(QStringLiteral("10.99.0.12")) &&
               Scanners::of(*m_host->db()).all().at(0)->state().done > 300;
    };
    KO_TRY_VERIFY(isFound());
    QVERIFY(names().contains(QStringLiteral("Camera 3")));
    QVERIFY2(log.lines.size() <= 2, qPrintable(log.lines.join(QLatin1Char('\n'))));
}

void tst_Scans::buttonsOnAndOff()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite(1));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("1")}));
    const auto pressBoth = [this] {
        press("bonjourButton");
        press("arpButton");
    };
    pressBoth();
    KO_TRY_COMPARE(rows(), 1);
    pressBoth();
    QTest::qWait(500); // threads end by themselves
    const ProcessResources before;
    for (int i = 0; i < 100; ++i) {
        pressBoth();
        QTest::qWait(i % 10 * 10);
        pressBoth();
    }
    KO_TRY_COMPARE(ProcessResources().threads, before.threads);
    KO_TRY_COMPARE(ProcessResources().descriptors, before.descriptors);
    QCOMPARE(rows(), 1); // neither cleared nor doubled
    const QList<Scanner*> scanners = Scanners::of(*m_host->db()).all();
    for (const Scanner* scanner : scanners)
        QCOMPARE(int(scanner->state().phase), int(ScannerState::Cancelled));
}

void tst_Scans::closedWhileScansRun()
{
    KO_NEED_NETWORKS();
    QVERIFY(startSite(1));
    QVERIFY(simulate({QStringLiteral("--cameras"), QStringLiteral("1")}));
    const ProcessResources before;
    press("bonjourButton");
    press("arpButton");
    QVERIFY(ProcessResources().threads > before.threads);
    m_dialog->close();
    m_dialog.reset();
    const QList<Scanner*> scanners = Scanners::of(*m_host->db()).all();
    QCOMPARE(int(scanners.at(0)->state().phase), int(ScannerState::Running)); // they go on
    KO_TRY_COMPARE(int(m_host->db()->summaries().size()), 1);
    m_host->db()->startScanners("ARP", 0xFFFFFFFF, -1);
    m_host.reset(); // in the middle of both
    KO_TRY_VERIFY(ProcessResources().threads <= before.threads);
    KO_TRY_VERIFY(ProcessResources().descriptors <= before.descriptors);
}

void tst_Scans::burstOfDevices()
{
    const int Count = 10000;
    QVector<DiscoveredDevice> burst;
    for (int i = 0; i < Count; ++i) {
        DiscoveredDevice device;
        device.name = QStringLiteral("Camera %1").arg(i);
        device.address = QStringLiteral("10.1.%1.%2").arg(i / 200).arg(1 + i % 200);
        device.port = 80;
        device.service = QStringLiteral("_http._tcp");
        burst.append(device);
    }
    HostNodeDB& db = *m_host->db();
    QVector<qint64> bytes;
    for (int round = 0; round < 3; ++round) {
        Scanners::of(db).intake().beginScan();
        emit Scanners::of(db).all().at(0)->found(burst);
        QTRY_COMPARE_WITH_TIMEOUT(rows(), Count, 10 * testsupport::Patience); // the disk takes most of it
        child<QAction>(m_dialog.get(), "actionRemove_all")->trigger();
        QCOMPARE(rows(), 0);
        const QVector<NodeSummary> nodes = db.summaries();
        QCOMPARE(int(nodes.size()), Count);
        for (const NodeSummary& node : nodes)
            db.removeNode(node.id);
        QVERIFY(db.flush());
        KO_TRY_VERIFY(Scanners::of(db).intake().isIdle());
        bytes.append(testsupport::heapInUse());
    }
    // The first round fills what is kept for later, such as the store's cache.
    const qint64 growth = bytes.last() - bytes.at(1);
    QVERIFY2(growth < Count * 10, qPrintable(QString::number(growth)));
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
