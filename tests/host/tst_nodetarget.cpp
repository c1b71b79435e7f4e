#include "devices/NodeTarget.h"

#include "StoreTesting.h"
#include "devices/ClearPassword.h"
#include "devices/KnownDevice.h"
#include "exchange/CameraSurvey.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/GlobalNetworkProxy.h"
#include "support/HostFixture.h"
#include "support/TestMain.h"

using namespace ko;

namespace {

DeviceIdentity identity(const QString& serial, const QString& endpoint, const QString& realm,
                        const QByteArray& certificate)
{
    DeviceIdentity identity;
    identity.serial = serial;
    identity.endpoint = endpoint;
    identity.realm = realm;
    identity.certificate = certificate;
    return identity;
}

QStringList texts(const DeviceIdentity& identity)
{
    return {identity.serial, identity.endpoint, identity.realm, QString::fromLatin1(identity.certificate)};
}

} // namespace

class tst_NodeTarget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.reset(); }

    void onlyDevicesWithAnAddress();
    void nodeSaysWhereItIs();
    void channelIsThatOfTheNode();
    void clearPasswordIsOfOnePlace();
    void wayToTheNode_data();
    void wayToTheNode();
    void passwordThatCannotBeOpened();
    void firstIdentityIsRemembered();
    void otherDeviceTakesThePlace();
    void identityStaysInThisHost();

private:
    kom::smart<const IPDeviceNode> device() const { return deviceNode(m_camera); }
    void change(const std::function<void(IPDeviceNode&)>& change)
    {
        m_host->change(m_camera, [&](Node* node) { change(dynamic_cast<IPDeviceNode&>(*node)); });
    }

    std::unique_ptr<testsupport::HostFixture> m_host;
    QString m_camera;
};

void tst_NodeTarget::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_camera = m_host->add(IPDeviceType, "Gate", "cam.example.org");
}

void tst_NodeTarget::onlyDevicesWithAnAddress()
{
    const auto isTarget = [this](const QString& id) { return NodeTarget::isOf(m_host->db()->summary(id)); };
    QVERIFY(isTarget(m_camera));
    QVERIFY(isTarget(m_host->add(ChannelDeviceType, "Recorder", "10.0.0.1")));
    QVERIFY(!isTarget(m_host->add(IPDeviceType, "Without", " ")));
    QVERIFY(!isTarget(m_host->add(ViewType, "View")));
    QVERIFY(!isTarget(m_host->add(RecordingFolderType, "Folder")));
    QVERIFY(!isTarget("none"));
}

void tst_NodeTarget::nodeSaysWhereItIs()
{
    const GlobalNetworkProxy& global = m_host->db()->globalProxy();
    change([](IPDeviceNode& node) {
        node.setAddress(" cam.example.org ");
        node.setPort(8443);
        node.setUseSSL(true);
        node.setUser("admin", "secret");
    });
    DeviceTarget target = NodeTarget::of(*device(), global);
    QCOMPARE(target.id, m_camera);
    QCOMPARE(target.address, QString("cam.example.org"));
    QCOMPARE(target.port, 8443);
    QVERIFY(target.useSSL);
    QCOMPARE(target.user, QString("admin"));
    QCOMPARE(target.password, QString("secret"));
    QVERIFY(!target.allowsBasic && !target.wantsAllFacts);
    for (const bool ssl : {true, false}) {
        change([ssl](IPDeviceNode& node) {
            node.setPort(0);
            node.setUseSSL(ssl);
        });
        target = NodeTarget::of(*device(), global);
        QCOMPARE(target.port, ssl ? 443 : 80);
    }
}

void tst_NodeTarget::channelIsThatOfTheNode()
{
    const GlobalNetworkProxy& global = m_host->db()->globalProxy();
    QCOMPARE(NodeTarget::of(*device(), global).channel, 1);
    const QString recorder = m_host->add(ChannelDeviceType, "Recorder", "10.0.0.1");
    m_host->change(recorder, [](Node* node) { dynamic_cast<ISupportsChannels*>(node)->setChannel(3); });
    QCOMPARE(NodeTarget::of(*deviceNode(recorder), global).channel, 3);
}

void tst_NodeTarget::clearPasswordIsOfOnePlace()
{
    const auto isAllowed = [this] {
        return NodeTarget::of(*device(), m_host->db()->globalProxy()).allowsBasic;
    };
    QVERIFY(!isAllowed());
    change([](IPDeviceNode& node) { ClearPassword::allow(node); });
    QVERIFY(isAllowed());
    change([](IPDeviceNode& node) { node.setStringProperty("Name", "Other"); });
    QVERIFY(isAllowed());
    change([](IPDeviceNode& node) { node.setPort(81); });
    QVERIFY(!isAllowed());
    change([](IPDeviceNode& node) { ClearPassword::allow(node); });
    change([](IPDeviceNode& node) { node.setAddress("other.example.org"); });
    QVERIFY(!isAllowed());
}

void tst_NodeTarget::wayToTheNode_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("global");
    QTest::addColumn<QString>("exceptions");
    QTest::addColumn<QString>("way");

    QTest::newRow("straight") << ""
                              << ""
                              << ""
                              << "";
    QTest::newRow("the application's") << ""
                                       << "proxy"
                                       << ""
                                       << "proxy";
    QTest::newRow("an exception") << ""
                                  << "proxy"
                                  << "10.*; *.example.org"
                                  << "";
    QTest::newRow("another exception") << ""
                                       << "proxy"
                                       << "*.example.com"
                                       << "proxy";
    QTest::newRow("its own") << "own"
                             << ""
                             << ""
                             << "own";
    QTest::newRow("its own instead of the application's") << "own"
                                                          << "proxy"
                                                          << ""
                                                          << "own";
    QTest::newRow("exceptions are the application's") << "own"
                                                      << "proxy"
                                                      << "*"
                                                      << "own";
    QTest::newRow("on and empty") << " "
                                  << "proxy"
                                  << ""
                                  << "proxy";
    QTest::newRow("both on and empty") << " "
                                       << " "
                                       << ""
                                       << "";
}

void tst_NodeTarget::wayToTheNode()
{
    QFETCH(QString, own);
    QFETCH(QString, global);
    QFETCH(QString, exceptions);
    QFETCH(QString, way);
    const auto set = [](NetworkProxy& proxy, const QString& address, int port) {
        proxy.setProxyAddress(address, port);
        proxy.setProxyUser("user of " + address, "password of " + address);
        proxy.setUseProxy(!address.isEmpty());
    };
    GlobalNetworkProxy& application = m_host->db()->globalProxy();
    set(application, global, 8080);
    application.setExceptions(exceptions, ';');
    change([&](IPDeviceNode& node) { set(node.proxy(), own, 3128); });
    const QNetworkProxy proxy = NodeTarget::of(*device(), application).proxy;
    QCOMPARE(proxy.type(), way.isEmpty() ? QNetworkProxy::NoProxy : QNetworkProxy::HttpProxy);
    QCOMPARE(proxy.hostName(), way);
    if (way.isEmpty())
        return;
    QCOMPARE(int(proxy.port()), way == "own" ? 3128 : 8080);
    QCOMPARE(proxy.user(), "user of " + way);
    QCOMPARE(proxy.password(), "password of " + way);
}

void tst_NodeTarget::passwordThatCannotBeOpened()
{
    change([](IPDeviceNode& node) { node.setUser("admin", QString()); });
    QVERIFY(!NodeTarget::hasUnreadPassword(*device()));
    change([](IPDeviceNode& node) { node.setUser("admin", "secret"); });
    QVERIFY(!NodeTarget::hasUnreadPassword(*device()));
    m_host->db()->flush();
    testsupport::PlainSql(m_host->fileName())
        .run("UPDATE properties SET value = 'foreign' WHERE key = 'Password'");
    m_host->reopen();
    QVERIFY(NodeTarget::hasUnreadPassword(*device()));
}

void tst_NodeTarget::firstIdentityIsRemembered()
{
    QCOMPARE(texts(KnownDevice::of(*device())), QStringList({"", "", "", ""}));
    QVERIFY(!KnownDevice::hasNews(*device(), DeviceIdentity()));

    const DeviceIdentity first = identity("S1", "e1", "", "");
    QVERIFY(KnownDevice::hasNews(*device(), first));
    change([&](IPDeviceNode& node) { KnownDevice::remember(node, first); });
    m_host->reopen();
    QCOMPARE(texts(KnownDevice::of(*device())), texts(first));
    QCOMPARE(texts(NodeTarget::of(*device(), m_host->db()->globalProxy()).known), texts(first));
    QVERIFY(!KnownDevice::hasNews(*device(), first));

    // What it did not tell before is added, what differs is not taken.
    const DeviceIdentity second = identity("S2", "e1", "realm", "abcd");
    QVERIFY(!KnownDevice::hasNews(*device(), identity("S2", "e2", "", "")));
    QVERIFY(KnownDevice::hasNews(*device(), second));
    change([&](IPDeviceNode& node) { KnownDevice::remember(node, second); });
    QCOMPARE(texts(KnownDevice::of(*device())), QStringList({"S1", "e1", "realm", "abcd"}));
}

void tst_NodeTarget::otherDeviceTakesThePlace()
{
    change([](IPDeviceNode& node) { KnownDevice::remember(node, identity("S1", "e1", "r1", "aa")); });
    change([](IPDeviceNode& node) { KnownDevice::replace(node, identity("", "e2", "", "")); });
    QCOMPARE(texts(KnownDevice::of(*device())), QStringList({"", "e2", "", ""}));
    QVERIFY(KnownDevice::hasNews(*device(), identity("S2", "", "", "")));
}

void tst_NodeTarget::identityStaysInThisHost()
{
    change([](IPDeviceNode& node) {
        KnownDevice::remember(node, identity("secret-serial", "secret-endpoint", "secret-realm", "5ec4e7"));
        ClearPassword::allow(node);
    });
    QTemporaryDir folder;
    const QString name = folder.filePath("cameras.csv");
    const auto result = CameraSurvey::exportCameras(name, CameraSurvey::Passwords::Write);
    QCOMPARE(result.written, 1);
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains("cam.example.org"));
    QVERIFY2(!content.contains("secret-") && !content.contains("5ec4e7"), content.constData());
    QVERIFY2(!content.contains("ClearPassword") && !content.contains("cam.example.org 80"),
             content.constData());
}

KO_TEST_MAIN(tst_NodeTarget)
#include "tst_nodetarget.moc"
