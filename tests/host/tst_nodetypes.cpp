#include "support/TestMain.h"

#include "drivers/NodeTypes.h"
#include "drivers/StoredNode.h"
#include "interfaces/INodeDriverComponent.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"
#include "kogen/Property.h"

using namespace ko;

class tst_NodeTypes : public QObject
{
    Q_OBJECT

private slots:
    void typesAreNamedAndHaveIcons_data();
    void typesAreNamedAndHaveIcons();
    void unknownTypeIsPlainAndHasNoDriver();
    void driverMakesHintsOnlyOfTypesThatCanBeAdded();
    void driverAnswersItsInterfaces();
    void deviceDataAreProperties();
    void deviceProxyIsStoredOnlyWhenUsed();
    void nameAndTypeAreProperties();
    void getterOfAnotherTypeGivesTheDefault();
    void onlyChannelDevicesSupportChannels();
    void newNodesCarryWhatPagesOffer();
    void takingOverAHintKeepsTheRest();
    void lookupKeys_data();
    void lookupKeys();
    void summaries();

private:
    static NodeData device(const QString& address, int port, ENodeType type = IPDeviceType, int channel = 0);
};

NodeData tst_NodeTypes::device(const QString& address, int port, ENodeType type, int channel)
{
    NodeData data;
    data.id = QLatin1String("id");
    data.type = type;
    data.properties.set(QLatin1String("Address"), address);
    data.properties.set(QLatin1String("Port"), port);
    if (channel)
        data.properties.set(QLatin1String("Channel"), channel);
    return data;
}

void tst_NodeTypes::typesAreNamedAndHaveIcons_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDevice");
    QTest::addColumn<bool>("canBeAdded");
    QTest::newRow("folder") << 0 << "Recording Folder" << false << true;
    QTest::newRow("view") << 1 << "View" << false << true;
    QTest::newRow("camera") << 2 << "IP Camera" << true << true;
    QTest::newRow("url camera") << 3 << "URL Camera" << true << true;
    QTest::newRow("channel device") << 5 << "Multi-Channel Device" << true << true;
    QTest::newRow("recorder") << 11 << "Internal Recorder" << false << true;
    QTest::newRow("transponder") << 12 << "Remote Preview Server" << false << false;
}

void tst_NodeTypes::typesAreNamedAndHaveIcons()
{
    QFETCH(int, type);
    const ENodeType nodeType = ENodeType(type);
    QVERIFY(NodeTypes::all().contains(nodeType));
    QTEST(NodeTypes::readableName(nodeType), "name");
    QTEST(NodeTypes::isDevice(nodeType), "isDevice");
    QTEST(NodeTypes::canBeAdded(nodeType), "canBeAdded");
    QVERIFY(!NodeTypes::icon(nodeType).pixmap(16).isNull());
    QVERIFY(!NodeTypes::driver(nodeType).null());

    NodeData data;
    data.type = nodeType;
    const std::unique_ptr<Node> node = NodeTypes::createNode(data);
    QCOMPARE(node->type, nodeType);
    QTEST(dynamic_cast<IPDeviceNode*>(node.get()) != nullptr, "isDevice");
}

void tst_NodeTypes::unknownTypeIsPlainAndHasNoDriver()
{
    const ENodeType unknown = ENodeType(77);
    QVERIFY(NodeTypes::driver(unknown).null());
    QVERIFY(!NodeTypes::canBeAdded(unknown));
    QCOMPARE(NodeTypes::readableName(unknown), QString("Node of type 77"));
    QVERIFY(!NodeTypes::icon(unknown).pixmap(16).isNull());
    NodeData data;
    data.type = unknown;
    data.name = QLatin1String("from a newer client");
    QCOMPARE(NodeTypes::createNode(data)->name(), data.name);
}

void tst_NodeTypes::driverMakesHintsOnlyOfTypesThatCanBeAdded()
{
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        const kom::smart<NodeHint> hint = NodeTypes::driver(type)->createNodeHint(type);
        QCOMPARE(!hint.null(), NodeTypes::canBeAdded(type));
        if (hint.null())
            continue;
        QCOMPARE(hint->type, type);
        QVERIFY(hint->name().isEmpty());
        QVERIFY(!hint->context);
        QCOMPARE(!hint.cast<NodeHintIPDevice>().null(), NodeTypes::isDevice(type));
    }
}

void tst_NodeTypes::driverAnswersItsInterfaces()
{
    const kom::smart<INodeDriverComponent> driver = NodeTypes::driver(IPDeviceType);
    IInterface* root = driver.get();
    QCOMPARE(root->getInterface(INodeDriverComponent::ID()), static_cast<void*>(driver.get()));
    QVERIFY(root->getInterface(IInterface::ID()));
    const IInterface* constRoot = root;
    QCOMPARE(constRoot->getInterface(INodeDriverComponent::ID()), static_cast<const void*>(driver.get()));
    QVERIFY(!root->getInterface("ko::IErrorInfo"));
    QVERIFY(!root->getInterface(std::string()));
}

void tst_NodeTypes::deviceDataAreProperties()
{
    const std::unique_ptr<Node> node = NodeTypes::createNode(device(QLatin1String("10.0.0.5"), 8080));
    auto* camera = dynamic_cast<IPDeviceNode*>(node.get());
    QCOMPARE(camera->address(), QString("10.0.0.5"));
    QCOMPARE(camera->port(), 8080);
    QCOMPARE(camera->bandwidth(), -1);
    QCOMPARE(camera->controlMode(), -1);
    QVERIFY(camera->macAddress().isNull());

    camera->setUser(QLatin1String("root"), QString::fromUtf8("p@#!^/:%ß"));
    camera->setCredentialsEntered(true);
    camera->setUseSSL(true);
    camera->setModel(QLatin1String("M1"));
    camera->setVersion(QLatin1String("2.0"));
    camera->setBandwidth(SlowLocal);
    camera->setControlMode(ImageMode);
    camera->setMacAddress(MACAddress(QLatin1String("00-11-22-aa-bb-cc")));
    const std::unique_ptr<Node> again =
        NodeTypes::createNode(dynamic_cast<StoredNode*>(node.get())->nodeData());
    auto* stored = dynamic_cast<IPDeviceNode*>(again.get());
    QCOMPARE(stored->user(0), QString("root"));
    QCOMPARE(stored->password(1), QString::fromUtf8("p@#!^/:%ß"));
    QVERIFY(stored->boolProperty(QLatin1String("CredentialsEntered"), false));
    QVERIFY(stored->useSSL());
    QCOMPARE(stored->model(), QString("M1"));
    QCOMPARE(stored->version(), QString("2.0"));
    QCOMPARE(stored->bandwidth(), int(SlowLocal));
    QCOMPARE(stored->controlMode(), int(ImageMode));
    QCOMPARE(stored->stringProperty(QLatin1String("MACAddress"), QString()), QString("00:11:22:AA:BB:CC"));
}

void tst_NodeTypes::deviceProxyIsStoredOnlyWhenUsed()
{
    const std::unique_ptr<Node> node = NodeTypes::createNode(device(QLatin1String("a"), 80));
    auto* camera = dynamic_cast<IPDeviceNode*>(node.get());
    camera->proxy(); // asked for, not changed
    QVERIFY(!node->hasProperty(QLatin1String("ProxyAddress")));
    QVERIFY(!node->properties().contains(QLatin1String("ProxyAddress")));

    camera->proxy().setProxyAddress(QLatin1String("proxy"), 3128);
    camera->proxy().setUseProxy(true);
    QCOMPARE(node->stringProperty(QLatin1String("ProxyAddress"), QString()), QString("proxy"));
    QVERIFY(node->properties().contains(QLatin1String("ProxyPort")));
    const std::unique_ptr<Node> again =
        NodeTypes::createNode(dynamic_cast<StoredNode*>(node.get())->nodeData());
    QVERIFY(static_cast<const IPDeviceNode*>(again.get())->proxy() == camera->proxy());

    node->setIntProperty(QLatin1String("ProxyPort"), 1080);
    QCOMPARE(camera->proxy().proxyPort(), 1080);
    QCOMPARE(camera->proxy().proxyAddress(), QString("proxy"));
}

void tst_NodeTypes::nameAndTypeAreProperties()
{
    NodeData data = device(QLatin1String("a"), 80);
    data.name = QLatin1String("Gate");
    const std::unique_ptr<Node> node = NodeTypes::createNode(data);
    QCOMPARE(node->stringProperty(QLatin1String("Name"), QString()), QString("Gate"));
    QCOMPARE(node->intProperty(QLatin1String("NodeType"), 0), 2);
    node->setStringProperty(QLatin1String("Name"), QLatin1String("Yard"));
    node->setIntProperty(QLatin1String("NodeType"), 11);
    QCOMPARE(node->name(), QString("Yard"));
    QCOMPARE(node->intProperty(QLatin1String("NodeType"), 0), 2);
    const NodeData stored = dynamic_cast<StoredNode*>(node.get())->nodeData();
    QCOMPARE(stored.name, QString("Yard"));
    QVERIFY(!stored.properties.contains(QLatin1String("Name")));
    QVERIFY(node->properties().contains(QLatin1String("Name")));
}

void tst_NodeTypes::getterOfAnotherTypeGivesTheDefault()
{
    const std::unique_ptr<Node> node = NodeTypes::createNode(device(QLatin1String("a"), 80));
    QCOMPARE(node->stringProperty(QLatin1String("Port"), QLatin1String("none")), QString("none"));
    QCOMPARE(node->intProperty(QLatin1String("Address"), 7), 7);
    QCOMPARE(node->boolProperty(QLatin1String("Port"), true), true);
    QCOMPARE(node->floatProperty(QLatin1String("Port"), 0.5f), 0.5f);
    node->setFloatProperty(QLatin1String("Rate"), 12.5f);
    QCOMPARE(node->floatProperty(QLatin1String("Rate"), 0.0f), 12.5f);
    kogen::PropertySet addresses;
    addresses.insert(kom::makeSmart<kogen::StringProperty>(QLatin1String("0"), QLatin1String("10.0.0.1")));
    node->setPropertySetProperty(QLatin1String("IPAddresses"), addresses);
    QVERIFY(node->propertySetProperty(QLatin1String("IPAddresses"), kogen::PropertySet()) == addresses);
}

void tst_NodeTypes::onlyChannelDevicesSupportChannels()
{
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        NodeData data;
        data.type = type;
        const std::unique_ptr<Node> node = NodeTypes::createNode(data);
        auto* channels = dynamic_cast<ISupportsChannels*>(node.get());
        QCOMPARE(channels != nullptr, type == ChannelDeviceType);
        if (!channels)
            continue;
        QCOMPARE(channels->channel(), 1);
        channels->setChannel(3);
        QCOMPARE(node->intProperty(QLatin1String("Channel"), 0), 3);
    }
}

void tst_NodeTypes::newNodesCarryWhatPagesOffer()
{
    const kom::smart<NodeHint> hint = NodeTypes::driver(UrlCameraType)->createNodeHint(UrlCameraType);
    int context = 0;
    hint->setName(QLatin1String("Roof"));
    hint->context = &context;
    hint->setIntProperty(QLatin1String("SmoothDisplay"), 2);
    hint.cast<NodeHintIPDevice>()->address = QLatin1String("cam.example.org");
    const NodeData data = NodeTypes::dataOf(*hint);
    QCOMPARE(data.name, QString("Roof"));
    QVERIFY(data.id.isEmpty());
    QCOMPARE(data.context, static_cast<void*>(&context));
    QVERIFY(data.hasContext);
    QCOMPARE(data.properties.value(QLatin1String("Address")), QVariant(QLatin1String("cam.example.org")));
    QCOMPARE(data.properties.value(QLatin1String("SmoothDisplay")), QVariant(2)); // not the default
    for (const char* key : {"InfoFile", "PreferredLayout", "AudioPathID", "UrlPTZZommIn"})
        QCOMPARE(data.properties.value(QLatin1String(key)), QVariant(QString()));
    QVERIFY(!NodeTypes::described(*hint).properties.contains(QLatin1String("InfoFile")));
}

void tst_NodeTypes::takingOverAHintKeepsTheRest()
{
    NodeData data;
    data.type = RecordingFolderType;
    data.name = QLatin1String("old");
    data.properties.set(QLatin1String("User"), QLatin1String("installer"));
    data.properties.set(QLatin1String("Path"), QLatin1String("/old"));
    const std::unique_ptr<Node> folder = NodeTypes::createNode(data);
    const kom::smart<NodeHint> hint =
        NodeTypes::driver(RecordingFolderType)->createNodeHint(RecordingFolderType);
    hint->setName(QLatin1String("/new"));
    hint->addProperty(kogen::StringProperty(QLatin1String("Path"), QLatin1String("/new")));
    hint->addProperty(kogen::BoolProperty(QLatin1String("KoFFS"), true));
    folder->takeOverProperties(*hint);
    QCOMPARE(folder->name(), QString("/new"));
    QCOMPARE(folder->stringProperty(QLatin1String("Path"), QString()), QString("/new"));
    QVERIFY(folder->boolProperty(QLatin1String("KoFFS"), false));
    QCOMPARE(folder->stringProperty(QLatin1String("User"), QString()), QString("installer"));
}

void tst_NodeTypes::lookupKeys_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("same");

    const auto key = [](const NodeData& data) { return NodeTypes::lookupKey(data); };
    const auto folder = [](const QString& camera, const QString& path) {
        NodeData data;
        data.type = RecordingFolderType;
        data.properties.set(QLatin1String("CameraID"), camera);
        data.properties.set(QLatin1String("Path"), path);
        return data;
    };
    const QString gate = key(device(QLatin1String("gate.example.org"), 80));
    NodeData withMac = device(QLatin1String("10.0.0.1"), 80);
    withMac.properties.set(QLatin1String("MACAddress"), QLatin1String("00:11:22:33:44:55"));

    QTest::newRow("case and blanks") << gate << key(device(QLatin1String(" Gate.Example.ORG"), 80)) << true;
    QTest::newRow("notation of IPv6") << key(device(QLatin1String("2001:db8::1"), 80))
                                      << key(device(QLatin1String("2001:DB8:0:0::0001"), 80)) << true;
    QTest::newRow("port") << gate << key(device(QLatin1String("gate.example.org"), 81)) << false;
    QTest::newRow("type") << gate << key(device(QLatin1String("gate.example.org"), 80, UrlCameraType))
                          << true;
    QTest::newRow("two channels behind one address")
        << key(device(QLatin1String("a"), 80, ChannelDeviceType, 1))
        << key(device(QLatin1String("a"), 80, ChannelDeviceType, 2)) << false;
    QTest::newRow("channel 1 and no channel") << key(device(QLatin1String("a"), 80, ChannelDeviceType, 1))
                                              << key(device(QLatin1String("a"), 80)) << false;
    QTest::newRow("MAC address") << key(withMac) << key(device(QLatin1String("10.0.0.1"), 80)) << true;
    QTest::newRow("no address") << key(device(QString(), 80)) << QString() << true;
    QTest::newRow("folder") << key(folder(QLatin1String("c"), QLatin1String("/p")))
                            << key(folder(QLatin1String("c"), QLatin1String("/p"))) << true;
    QTest::newRow("folder of another camera")
        << key(folder(QLatin1String("c"), QLatin1String("/p")))
        << key(folder(QLatin1String("d"), QLatin1String("/p"))) << false;
    QTest::newRow("folder path in another case")
        << key(folder(QLatin1String("c"), QLatin1String("/p")))
        << key(folder(QLatin1String("c"), QLatin1String("/P"))) << false;
    QTest::newRow("parts do not run together")
        << key(folder(QLatin1String("ab"), QLatin1String("c")))
        << key(folder(QLatin1String("a"), QLatin1String("bc"))) << false;
    QTest::newRow("empty folder") << key(folder(QString(), QString())) << QString() << true;
    NodeData view;
    view.type = ViewType;
    view.name = QLatin1String("Lobby");
    QTest::newRow("view") << key(view) << QString() << true;
}

void tst_NodeTypes::lookupKeys()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QTEST(first == second, "same");
}

void tst_NodeTypes::summaries()
{
    NodeData camera = device(QLatin1String("10.0.0.1"), 80);
    camera.name = QLatin1String("Gate");
    camera.properties.set(QLatin1String("RecordingStorageUsage"), 2);
    NodeSummary expected;
    expected.id = QLatin1String("id");
    expected.type = IPDeviceType;
    expected.name = QLatin1String("Gate");
    expected.location = QLatin1String("10.0.0.1");
    expected.recordingUsage = 2;
    QVERIFY(NodeTypes::summaryOf(camera) == expected);

    NodeData folder;
    folder.type = RecordingFolderType;
    folder.properties.set(QLatin1String("Path"), QLatin1String("/srv/rec"));
    QCOMPARE(NodeTypes::summaryOf(folder).location, QString("/srv/rec"));
    QCOMPARE(NodeTypes::summaryOf(folder).recordingUsage, -1);
}

KO_TEST_MAIN(tst_NodeTypes)
#include "tst_nodetypes.moc"
