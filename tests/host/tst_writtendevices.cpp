#include "StoreTesting.h"
#include "database/StoredHistory.h"
#include "drivers/FactoryExtension.h"
#include "exchange/CameraSurvey.h"
#include "kogen/Property.h"
#include "support/TestMain.h"

using namespace ko;
using namespace testsupport;

/// What devices get by themselves when something of them is written.
class TestWrittenDevices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_db.reset(); }

    void extensions_data();
    void extensions();
    void ownAddress_data();
    void ownAddress();
    void anotherAddressIsAnotherPlace();
    void alikeAreNumbered();
    void tooManyAlikeHaveNone();
    void channelsAreCounted();
    void whatIsThereStays();
    void leavingTheFactoryIsNoExtension();
    void twoOfOneNameBecomeTwo();
    void whoHasItKeepsIt();
    void takenByOthersMeanwhile();
    void oneThatGoesMakesRoom();
    void oldNodesGetTheirsWithTheNextChange();
    void belongsToTheChangeSet();
    void takenBackIsAsItWas();
    void imported();
    void announcedOnceItIsThere();

private:
    QString addDevice(const QString& address, const QString& mac, ENodeType type = IPDeviceType,
                      int channel = 1);
    QString extension(const QString& id) const { return text(*m_db, id, "FactoryIP"); }
    QStringList addresses(const QString& id) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    QHash<QString, QString> m_announced; ///< the extension that a node had when it was announced
    std::unique_ptr<HostNodeDB> m_db;
};

static const QLatin1String mac("00:00:5E:12:34:AB");

void TestWrittenDevices::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    m_db = openDatabase(m_file);
}

QString TestWrittenDevices::addDevice(const QString& address, const QString& mac, ENodeType type, int channel)
{
    const kom::smart<NodeHint> hint = m_db->nodeDriver(type)->createNodeHint(type);
    auto* device = dynamic_cast<NodeHintIPDevice*>(hint.get());
    hint->setName(QLatin1String("Gate"));
    device->address = address;
    device->channel = channel;
    device->macAddress = MACAddress(mac);
    return m_db->add(*hint);
}

QStringList TestWrittenDevices::addresses(const QString& id) const
{
    const kogen::PropertySet set = m_db->node(id)->propertySetProperty(QLatin1String("IPAddresses"), {});
    QStringList texts;
    for (const auto& entry : set)
        texts.append(entry.second->value().toString());
    return texts;
}

void TestWrittenDevices::extensions_data()
{
    QTest::addColumn<QString>("made");
    QTest::addColumn<QString>("extension");
    const auto row = [](const char* name, const QString& made, const char* extension) {
        QTest::newRow(name) << made << QString::fromLatin1(extension);
    };
    row("MAC", FactoryExtension::ofMac("00-00-5e-12-34-ab"), "00005E1234AB");
    row("no MAC", FactoryExtension::ofMac(QString()), "");
    row("MAC of a group", FactoryExtension::ofMac("01:00:5E:00:00:01"), "");
    row("MAC of all", FactoryExtension::ofMac("FF:FF:FF:FF:FF:FF"), "");
    row("MAC of nobody", FactoryExtension::ofMac("00:00:00:00:00:00"), "");
    row("serial number", FactoryExtension::ofSerial("accc8e-7731"), "SN-ACCC8E-7731");
    row("serial number that is a path", FactoryExtension::ofSerial("../etc/passwd"), "SN----ETC-PASSWD");
    row("of another script", FactoryExtension::ofSerial(QString::fromUtf8("ß4711Ω")), "SN-SS4711-");
    row("long", FactoryExtension::ofSerial(QString(30, 'A') + QString(30, 'B')),
        "SN-AAAAAAAAAAAAAAAAAAAAAAAAAAAAAABBBBBBBBBB");
    row("no serial number", FactoryExtension::ofSerial(" "), "");
    row("too short to be one", FactoryExtension::ofSerial("n/a"), "");
    row("filled in by nobody", FactoryExtension::ofSerial("0000000000"), "");
    row("without a letter or digit", FactoryExtension::ofSerial("-. -."), "");
    row("first", FactoryExtension::numbered("A", 1), "A");
    row("third", FactoryExtension::numbered("A", 3), "A_3");
}

void TestWrittenDevices::extensions()
{
    QFETCH(QString, made);
    QTEST(made, "extension");
}

void TestWrittenDevices::ownAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QStringList>("addresses");
    QTest::newRow("IPv4") << " 10.0.0.7" << QStringList("10.0.0.7");
    QTest::newRow("IPv6") << "FD00:0::7" << QStringList("fd00::7");
    QTest::newRow("name") << "gate.example" << QStringList();
    QTest::newRow("none") << "" << QStringList();
}

void TestWrittenDevices::ownAddress()
{
    QFETCH(QString, address);
    const QString id = addDevice(address, QString());
    QVERIFY(m_db->flush());
    QTEST(addresses(id), "addresses");
    QCOMPARE(m_db->node(id)->stringProperty("IP", QString()), addresses(id).value(0));
    QCOMPARE(extension(id), QString("(no value)")); // its address alone identifies no camera
}

void TestWrittenDevices::anotherAddressIsAnotherPlace()
{
    const QString id = addDevice("10.0.0.7", QString());
    setText(*m_db, id, "Address", "10.0.0.8");
    QVERIFY(m_db->flush());
    QCOMPARE(addresses(id), QStringList("10.0.0.8"));
    QCOMPARE(text(*m_db, id, "IP"), QString("10.0.0.8"));
}

void TestWrittenDevices::alikeAreNumbered()
{
    const QStringList ids = {addDevice("10.0.0.1", mac), addDevice("10.0.0.2", mac)};
    QVERIFY(m_db->flush());
    const QString third = addDevice("10.0.0.3", mac);
    QVERIFY(m_db->flush());
    QCOMPARE(extension(ids.at(0)), QString("00005E1234AB"));
    QCOMPARE(extension(ids.at(1)), QString("00005E1234AB_2"));
    QCOMPARE(extension(third), QString("00005E1234AB_3"));
}

/// Such as a thousand that somebody announces with one MAC address.
void TestWrittenDevices::tooManyAlikeHaveNone()
{
    QStringList ids;
    for (int i = 0; i < FactoryExtension::MostAlike + 2; ++i)
        ids.append(addDevice(QString("10.0.1.%1").arg(i), mac));
    QVERIFY(m_db->flush());
    QSet<QString> given;
    const QStringList first = ids.mid(0, FactoryExtension::MostAlike);
    for (const QString& id : first)
        given.insert(extension(id));
    QCOMPARE(int(given.size()), int(FactoryExtension::MostAlike));
    QCOMPARE(extension(ids.last()), QString("(no value)"));
}

void TestWrittenDevices::channelsAreCounted()
{
    const QString second = addDevice("10.0.0.1", mac, ChannelDeviceType, 2);
    const QString first = addDevice("10.0.0.1", mac, ChannelDeviceType, 1);
    QVERIFY(m_db->flush());
    QCOMPARE(extension(first), QString("00005E1234AB"));
    QCOMPARE(extension(second), QString("00005E1234AB_2"));
}

/// There are recordings in the folder of that name.
void TestWrittenDevices::whatIsThereStays()
{
    const QString id = addDevice("10.0.0.1", mac);
    QVERIFY(m_db->flush());
    setText(*m_db, id, "MACAddress", "00:00:5E:99:99:99");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(id), QString("00005E1234AB"));
    setText(*m_db, id, "FactoryIP", "10_1_2_3");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(id), QString("10_1_2_3"));
}

void TestWrittenDevices::leavingTheFactoryIsNoExtension()
{
    const QString known = addDevice("10.0.0.1", mac);
    const QString unknown = addDevice("10.0.0.2", QString());
    for (const QString& id : {known, unknown})
        setText(*m_db, id, "FactoryIP", "10_0_0_0");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(known), QString("00005E1234AB"));
    QCOMPARE(extension(unknown), QString("10_0_0_0"));
}

void TestWrittenDevices::twoOfOneNameBecomeTwo()
{
    const QString first = addDevice("10.0.0.1", QString());
    const QString second = addDevice("10.0.0.2", QString());
    for (const QString& id : {first, second})
        setText(*m_db, id, "FactoryIP", "SN-4711");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(first), QString("SN-4711"));
    QCOMPARE(extension(second), QString("SN-4711_2"));
}

/// Also when both are written at once, the newer one first.
void TestWrittenDevices::whoHasItKeepsIt()
{
    const QString first = addDevice("10.0.0.1", mac);
    QVERIFY(m_db->flush());
    const QString second = addDevice("10.0.0.2", mac);
    setText(*m_db, first, "Model", "C-1");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(first), QString("00005E1234AB"));
    QCOMPARE(extension(second), QString("00005E1234AB_2"));
}

/// Another program writes between the change and its commit.
void TestWrittenDevices::takenByOthersMeanwhile()
{
    const QString other = addDevice("10.0.0.1", QString());
    QVERIFY(m_db->flush());
    const QString id = addDevice("10.0.0.2", mac);
    PlainSql(m_file).run("INSERT INTO properties SELECT n, 'FactoryIP', 0, '00005E1234AB' FROM nodes"
                         " WHERE id = '" +
                         other + "'");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(id), QString("00005E1234AB_2"));
}

void TestWrittenDevices::oneThatGoesMakesRoom()
{
    const QString id = addDevice("10.0.0.1", mac);
    QVERIFY(m_db->flush());
    m_db->removeNode(id);
    const QString again = addDevice("10.0.0.1", mac);
    QVERIFY(m_db->flush());
    QCOMPARE(extension(again), QString("00005E1234AB"));
}

/// Of a database in which nobody made them yet.
void TestWrittenDevices::oldNodesGetTheirsWithTheNextChange()
{
    const QString id = addDevice("10.0.0.1", mac);
    m_db.reset();
    PlainSql(m_file).run("DELETE FROM properties WHERE key IN ('FactoryIP', 'IP', 'IPAddresses')");
    m_db = openDatabase(m_file);
    QCOMPARE(extension(id), QString("(no value)"));
    setText(*m_db, id, "Model", "C-1");
    QVERIFY(m_db->flush());
    QCOMPARE(extension(id), QString("00005E1234AB"));
    QCOMPARE(addresses(id), QStringList("10.0.0.1"));
}

void TestWrittenDevices::belongsToTheChangeSet()
{
    const qint64 before = m_db->history().changeSets(0, 1000).last().number;
    StoreError error;
    QString id;
    const auto work = [&] {
        const ChangeScope scope(*m_db, Cause::now(Purpose::Scan));
        id = addDevice("10.0.0.1", mac);
    };
    QCOMPARE(m_db->runAlone(work, &error), HostNodeDB::Outcome::Stored);
    const QVector<ChangeSet> sets = m_db->history().changeSets(before, 1000);
    QCOMPARE(int(sets.size()), 1);
    QCOMPARE(sets.first().nodes.first().after->properties.value("FactoryIP").toString(),
             QString("00005E1234AB"));
    PlainSql sql(m_file);
    QCOMPARE(sql.run("SELECT value FROM properties WHERE key = 'FactoryIP'").toString(), extension(id));
}

void TestWrittenDevices::takenBackIsAsItWas()
{
    const QString id = addDevice("10.0.0.1", QString());
    QVERIFY(m_db->flush());
    QCoreApplication::processEvents(); // what comes now is another change set
    const qint64 before = m_db->history().changeSets(0, 1000).last().number;
    setText(*m_db, id, "MACAddress", mac);
    QVERIFY(m_db->flush());
    QCOMPARE(extension(id), QString("00005E1234AB"));
    const QVector<ChangeSet> sets = m_db->history().changeSets(before, 1000);
    QCOMPARE(int(sets.size()), 1);
    QVERIFY(m_db->apply(sets.first().inverse()) && m_db->flush());
    QCOMPARE(extension(id), QString("(no value)"));
    QCOMPARE(addresses(id), QStringList("10.0.0.1"));
}

void TestWrittenDevices::imported()
{
    QFile list(m_folder->filePath("list.csv"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("address,MAC\n10.0.0.1,00:00:5e:00:00:01\ncamera.example,00:00:5e:00:00:02\n10.0.0.3,\n");
    list.close();
    QCOMPARE(CameraSurvey::importCameras(list.fileName()).added, 3);
    const QStringList ids = m_db->nodeIdList(IPDeviceType);
    QCOMPARE(extension(ids.at(0)), QString("00005E000001"));
    QCOMPARE(addresses(ids.at(0)), QStringList("10.0.0.1"));
    QCOMPARE(extension(ids.at(1)), QString("00005E000002"));
    QCOMPARE(addresses(ids.at(1)), QStringList());
    QCOMPARE(extension(ids.at(2)), QString("(no value)"));
}

void TestWrittenDevices::announcedOnceItIsThere()
{
    addDevice("10.0.0.1", mac);
    QVERIFY(m_db->flush());
    const QString id = addDevice("10.0.0.2", mac);
    connect(m_db.get(), &NodeDB::nodeUpdated, this,
            [this](const NodeID& updated) { m_announced.insert(updated, extension(updated)); });
    QVERIFY(m_db->flush());
    QCOMPARE(m_announced.value(id), QString("00005E1234AB_2"));
}

KO_TEST_MAIN(TestWrittenDevices)
#include "tst_writtendevices.moc"
