#include "StoreTesting.h"
#include "audit/AuditLog.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/PropertyKeys.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <QEventLoop>
#include <QTimer>
#include <QUuid>

#include <limits>
#include <random>

using namespace ko;
using namespace testsupport;

class TestHostNodeDB : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void missingNodeIsNull();
    void newNodeIsAnnouncedBeforeTheCallReturns();
    void idsAreListedByTypeOldestFirst();
    void nodesAreThereAfterReopening();
    void nodesAreReadTogether();
    void manyNodesComeAndGo();
    void valuesKeepTypeAndValue_data();
    void valuesKeepTypeAndValue();
    void propertyThatGoesIsGoneAfterReopening();
    void snapshotNeverChanges();
    void updateIsAnnouncedOnlyIfSomethingDiffers();
    void twoCopiesBothKeepTheirWork();
    void copyOfARemovedNodeIsDropped();
    void nullCopyDoesNothing();
    void creationContextIsOfThisProcess();
    void removalTakesRelationsAlong();
    void removalOfAnUnknownNodeDoesNothing();
    void receiversMayCallBack();
    void relationsKeepOrderAndAreNotDoubled();
    void lookupFindsTheOldest();
    void lookupFollowsChanges();
    void lookupUnderstandsKeysOfBefore();
    void typeNames();
    void settingsAreStored();
    void remotePreviewOfACamera();
    void proxyIsStored();
    void unsavedProxyPasswordIsNotStored();
    void environmentsAreStored();
    void removedActiveEnvironmentIsReplaced();
    void summariesFollow();
    void oneTurnIsOneCommit();
    void changesAreStoredBeforeTheLoopWaits();
    void failedWriteIsTriedAgain();
    void discardGoesBackToWhatIsStored();
    void discardKeepsAllWhenTheStoreCannotBeRead();
    void unreadableNodeIsNull();
    void scannersSayThatThereAreNone();

private:
    void reopen();
    void lockFile();
    void unlockFile();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
    std::unique_ptr<PlainSql> m_lock;
    QStringList m_seen; ///< by receivers of the signals
};

void TestHostNodeDB::init()
{
    m_seen.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.db"));
    m_db = openDatabase(m_file);
    QVERIFY(m_db);
}

void TestHostNodeDB::cleanup()
{
    m_lock.reset();
    m_db.reset();
}

void TestHostNodeDB::reopen()
{
    m_db.reset();
    m_db = openDatabase(m_file);
    QVERIFY(m_db);
}

void TestHostNodeDB::lockFile()
{
    m_lock = std::make_unique<PlainSql>(m_file);
    m_lock->run(QLatin1String("BEGIN IMMEDIATE"));
}

void TestHostNodeDB::unlockFile()
{
    m_lock->run(QLatin1String("ROLLBACK"));
    m_lock.reset();
}

void TestHostNodeDB::missingNodeIsNull()
{
    QVERIFY(m_db->node(QString()).null());
    QVERIFY(m_db->node(QLatin1String("unknown")).null());
    QVERIFY(!m_db->beginUpdateNode(QLatin1String("unknown"), -1));
    QCOMPARE(m_db->summary(QLatin1String("unknown")).id, QString());
}

void TestHostNodeDB::newNodeIsAnnouncedBeforeTheCallReturns()
{
    QSignalSpy inserted(m_db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    const QString id = addCamera(*m_db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.at(0).at(0).toString(), id);
    QVERIFY(!id.isEmpty());
    const kom::smart<const Node> node = m_db->node(id);
    QVERIFY(!node.null());
    QCOMPARE(node->id(), id);
    QCOMPARE(node->name(), QLatin1String("Gate"));
    QCOMPARE(node->type, IPDeviceType);
    QCOMPARE(node.cast<const IPDeviceNode>()->address(), QLatin1String("10.0.0.1"));
}

void TestHostNodeDB::idsAreListedByTypeOldestFirst()
{
    const QString a = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    const QString b = addNode(*m_db, RecordingFolderType, QLatin1String("b"), QLatin1String("/b"));
    m_db->flush();
    const QString c = addCamera(*m_db, QLatin1String("c"), QLatin1String("10.0.0.3"));
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList({a, b, c}));
    QCOMPARE(m_db->nodeIdList(IPDeviceType), QStringList({a, c}));
    QCOMPARE(m_db->nodeIdList(ViewType), QStringList());
    reopen();
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList({a, b, c}));
}

void TestHostNodeDB::nodesAreThereAfterReopening()
{
    const QString name = QString::fromUtf8("Eingang <b>%1</b> \xE2\x82\xAC \xF0\x9F\x8E\xA5");
    const QString id = addCamera(*m_db, name, QLatin1String("10.0.0.1"));
    const QString unnamed = addCamera(*m_db, QString(), QString());
    reopen();
    QCOMPARE(m_db->node(id)->name(), name);
    QCOMPARE(m_db->node(id).cast<const IPDeviceNode>()->address(), QLatin1String("10.0.0.1"));
    QCOMPARE(m_db->node(unnamed)->name(), QString());
    QCOMPARE(m_db->summary(id).name, name);
    QCOMPARE(m_db->summary(id).location, QLatin1String("10.0.0.1"));
}

void TestHostNodeDB::nodesAreReadTogether()
{
    QStringList ids;
    for (int i = 0; i < 1100; ++i) // some statements
        ids.append(addCamera(*m_db, QString::number(i), QString::fromLatin1("10.0.%1.1").arg(i)));
    setText(*m_db, ids.at(7), "Model", QString::fromUtf8("\"Größe\"\n"));
    reopen();
    setText(*m_db, ids.at(8), "Model", QLatin1String("not stored yet"));
    m_db->readAhead(ids + QStringList({QLatin1String("gone"), QString(), ids.at(7)}));
    PlainSql sql(m_file);
    sql.run(QLatin1String("DELETE FROM properties")); // where the nodes are not read from any more
    for (int i = 0; i < ids.size(); ++i)
        QCOMPARE(text(*m_db, ids.at(i), "Address"), QString::fromLatin1("10.0.%1.1").arg(i));
    QCOMPARE(text(*m_db, ids.at(7), "Model"), QString::fromUtf8("\"Größe\"\n"));
    QCOMPARE(text(*m_db, ids.at(8), "Model"), QLatin1String("not stored yet"));
}

void TestHostNodeDB::manyNodesComeAndGo()
{
    std::mt19937 random(11);
    QStringList truth;
    QHash<QString, QString> names;
    QStringList gone;
    for (int round = 0; round < 4000; ++round) {
        if (truth.isEmpty() || random() % 3 != 0) {
            const QString name = QString::fromUtf8("Größe %1").arg(random() % 1000);
            truth.append(addCamera(*m_db, name, QLatin1String("10.0.0.1")));
            names.insert(truth.last(), name);
        } else {
            gone.append(truth.takeAt(int(random() % unsigned(truth.size()))));
            m_db->removeNode(gone.last());
        }
        if (round % 700 == 0)
            QVERIFY(m_db->flush());
    }
    for (int pass = 0; pass < 2; ++pass) {
        QCOMPARE(m_db->nodeIdList(AllNodeTypes), truth);
        const QVector<NodeSummary> summaries = m_db->summaries();
        QCOMPARE(int(summaries.size()), int(truth.size()));
        for (int i = 0; i < truth.size(); ++i) {
            QCOMPARE(summaries.at(i).id, truth.at(i));
            QVERIFY(m_db->summary(truth.at(i)) == summaries.at(i));
            QCOMPARE(summaries.at(i).name, names.value(truth.at(i)));
            QCOMPARE(summaries.at(i).location, QLatin1String("10.0.0.1"));
        }
        for (const QString& id : std::as_const(gone))
            QCOMPARE(m_db->summary(id).id, QString());
        reopen();
    }
}

void TestHostNodeDB::valuesKeepTypeAndValue_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("text") << QVariant(QString::fromUtf8("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xA5 'quoted'; --"));
    QTest::newRow("empty text") << QVariant(QLatin1String(""));
    QTest::newRow("null text") << QVariant(QString());
    QTest::newRow("text with a zero") << QVariant(QString::fromUtf8("a\0b", 3));
    QTest::newRow("text that is a number") << QVariant(QLatin1String("007"));
    QTest::newRow("long text") << QVariant(QString(100000, QLatin1Char('x')));
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("0") << QVariant(0);
    QTest::newRow("least int") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("largest int") << QVariant(std::numeric_limits<int>::max());
    QTest::newRow("0.1") << QVariant(0.1f);
    QTest::newRow("25 as float") << QVariant(25.0f);
    QTest::newRow("least float") << QVariant(std::numeric_limits<float>::denorm_min());
    QTest::newRow("infinity") << QVariant(-std::numeric_limits<float>::infinity());
    QTest::newRow("not a number") << QVariant(std::numeric_limits<float>::quiet_NaN());

    kogen::PropertySet inner;
    inner.insert(PropertyList::toProperty(QLatin1String("f"), 0.1f));
    inner.insert(PropertyList::toProperty(QLatin1String("nan"), std::numeric_limits<float>::quiet_NaN()));
    kogen::PropertySet outer;
    outer.insert(PropertyList::toProperty(QLatin1String("i"), -7));
    outer.insert(PropertyList::toProperty(QLatin1String("b"), true));
    outer.insert(PropertyList::toProperty(QLatin1String("s"), QString::fromUtf8("\xC3\xA4\"\n")));
    outer.insert(PropertyList::toProperty(QLatin1String("inner"), QVariant::fromValue(inner)));
    QTest::newRow("set") << QVariant::fromValue(outer);
    QTest::newRow("empty set") << QVariant::fromValue(kogen::PropertySet());
}

void TestHostNodeDB::valuesKeepTypeAndValue()
{
    QFETCH(QVariant, value);
    const QString key = QLatin1String("Key");
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    m_db->flush();
    Node* node = m_db->beginUpdateNode(id, -1);
    node->addProperty(*PropertyList::toProperty(key, value));
    m_db->endUpdateNode(node);
    reopen();
    const kom::smart<kogen::BaseProperty> property = m_db->node(id)->properties()[key];
    QVERIFY(!property.null());
    QCOMPARE(property->value().userType(), value.userType());
    QVERIFY2(PropertyList::sameValue(property->value(), value), qPrintable(property->value().toString()));

    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    node = m_db->beginUpdateNode(id, -1);
    node->addProperty(*PropertyList::toProperty(key, value));
    m_db->endUpdateNode(node);
    QCOMPARE(updated.count(), 0);
}

void TestHostNodeDB::propertyThatGoesIsGoneAfterReopening()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    Node* node = m_db->beginUpdateNode(id, -1);
    auto* device = dynamic_cast<IPDeviceNode*>(node);
    device->setMacAddress(MACAddress(QLatin1String("00:11:22:33:44:55")));
    m_db->endUpdateNode(node);
    reopen();
    QVERIFY(m_db->node(id)->hasProperty(QLatin1String("MACAddress")));
    node = m_db->beginUpdateNode(id, -1);
    dynamic_cast<IPDeviceNode*>(node)->setMacAddress(MACAddress());
    const bool kept = node->hasProperty(QLatin1String("MACAddress"));
    m_db->endUpdateNode(node);
    reopen();
    QCOMPARE(m_db->node(id)->hasProperty(QLatin1String("MACAddress")), kept);
    QVERIFY(m_db->node(id).cast<const IPDeviceNode>()->macAddress().isNull());
}

void TestHostNodeDB::snapshotNeverChanges()
{
    const QString id = addCamera(*m_db, QLatin1String("old"), QLatin1String("10.0.0.1"));
    const kom::smart<const Node> before = m_db->node(id);
    setText(*m_db, id, "Name", QLatin1String("new"));
    QCOMPARE(before->name(), QLatin1String("old"));
    QCOMPARE(m_db->node(id)->name(), QLatin1String("new"));
    m_db->removeNode(id);
    QCOMPARE(before->name(), QLatin1String("old"));
}

void TestHostNodeDB::updateIsAnnouncedOnlyIfSomethingDiffers()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    m_db->flush();
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    setText(*m_db, id, "Address", QLatin1String("10.0.0.1"));
    setText(*m_db, id, "Name", QLatin1String("a"));
    QCOMPARE(updated.count(), 0);
    QVERIFY(!m_db->hasUnstoredChanges());
    setText(*m_db, id, "Address", QLatin1String("10.0.0.2"));
    QCOMPARE(updated.count(), 1);
    QVERIFY(m_db->hasUnstoredChanges());
}

void TestHostNodeDB::twoCopiesBothKeepTheirWork()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    Node* first = m_db->beginUpdateNode(id, -1);
    Node* second = m_db->beginUpdateNode(id, -1);
    QVERIFY(first != second);
    first->setStringProperty(QLatin1String("Address"), QLatin1String("10.0.0.9"));
    second->setStringProperty(QLatin1String("Name"), QLatin1String("b"));
    second->setIntProperty(QLatin1String("Port"), 8080);
    m_db->endUpdateNode(second);
    m_db->endUpdateNode(first);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(text(*m_db, id, "Address"), QLatin1String("10.0.0.9"));
        QCOMPARE(m_db->node(id)->name(), QLatin1String("b"));
        QCOMPARE(m_db->node(id)->intProperty(QLatin1String("Port"), 0), 8080);
        reopen();
    }
}

void TestHostNodeDB::copyOfARemovedNodeIsDropped()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    Node* copy = m_db->beginUpdateNode(id, -1);
    copy->setStringProperty(QLatin1String("Name"), QLatin1String("b"));
    m_db->removeNode(id);
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    m_db->endUpdateNode(copy);
    QCOMPARE(updated.count(), 0);
    QVERIFY(m_db->node(id).null());
    reopen();
    QVERIFY(m_db->node(id).null());
}

void TestHostNodeDB::nullCopyDoesNothing()
{
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    m_db->endUpdateNode(nullptr);
    QCOMPARE(updated.count(), 0);
}

void TestHostNodeDB::creationContextIsOfThisProcess()
{
    int context = 0;
    const QString id = addNode(*m_db, RecordingFolderType, QLatin1String("a"), QLatin1String("/a"), &context);
    QVERIFY(m_db->node(id)->hasCreationContext());
    QCOMPARE(m_db->node(id)->creationContext(), static_cast<void*>(&context));
    setText(*m_db, id, "Path", QLatin1String("/b"));
    m_db->flush();
    QCOMPARE(m_db->node(id)->creationContext(), static_cast<void*>(&context));
    reopen();
    QVERIFY(!m_db->node(id)->hasCreationContext());
}

void TestHostNodeDB::removalTakesRelationsAlong()
{
    const QString camera = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    const QString folder = addNode(*m_db, RecordingFolderType, QLatin1String("f"), QLatin1String("/f"));
    const QString other = addNode(*m_db, RecordingFolderType, QLatin1String("g"), QLatin1String("/g"));
    m_db->addNodeRelation(camera, folder, RecordingFolderRelation);
    m_db->addNodeRelation(camera, other, RecordingFolderRelation);
    m_db->flush();
    QSignalSpy removed(m_db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    m_db->removeNode(folder);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(0).toString(), folder);
    QCOMPARE(m_db->relatedNodes(camera, RecordingFolderRelation), QStringList(other));
    m_db->removeNode(camera);
    QVERIFY(!m_db->isDestinationOfNodeRelation(other, RecordingFolderRelation));
    reopen();
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList(other));
    QVERIFY(!m_db->isDestinationOfNodeRelation(other, RecordingFolderRelation));
    m_db.reset();
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT count(*) FROM relations")).toInt(), 0);
    QCOMPARE(
        PlainSql(m_file)
            .run(QLatin1String("SELECT count(*) FROM properties WHERE node NOT IN (SELECT n FROM nodes)"))
            .toInt(),
        0);
}

void TestHostNodeDB::removalOfAnUnknownNodeDoesNothing()
{
    QSignalSpy removed(m_db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    m_db->removeNode(QLatin1String("unknown"));
    m_db->removeNode(QString());
    QCOMPARE(removed.count(), 0);
    QVERIFY(!m_db->hasUnstoredChanges());
}

void TestHostNodeDB::receiversMayCallBack()
{
    connect(m_db.get(), &NodeDB::nodeInserted, this, [&](const NodeID& id) {
        setText(*m_db, id, "Name", QLatin1String("named by a receiver"));
        m_db->flush();
    });
    connect(m_db.get(), &NodeDB::nodeUpdated, this, [this](const NodeID& id) {
        m_seen.append(m_db->node(id)->name());
        m_db->removeNode(id);
    });
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    QCOMPARE(m_seen, QStringList(QLatin1String("named by a receiver")));
    QVERIFY(m_db->node(id).null());
    reopen();
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList());
}

void TestHostNodeDB::relationsKeepOrderAndAreNotDoubled()
{
    const QString camera = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    QStringList folders;
    for (int i = 0; i < 5; ++i)
        folders.prepend(addNode(*m_db, RecordingFolderType, QString::number(i), QString::number(i)));
    for (const QString& folder : folders) {
        m_db->addNodeRelation(camera, folder, RecordingFolderRelation);
        m_db->addNodeRelation(camera, folder, RecordingFolderRelation);
    }
    m_db->addNodeRelation(camera, folders.at(2), RecordingTransponderRelation);
    m_db->addNodeRelation(camera, QLatin1String("unknown"), RecordingFolderRelation);
    m_db->removeNodeRelation(camera, QLatin1String("unknown"), RecordingFolderRelation);
    m_db->removeNodeRelation(camera, folders.at(1), RecordingFolderRelation);
    m_db->addNodeRelation(camera, folders.at(1), RecordingFolderRelation);
    folders.append(folders.takeAt(1));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(m_db->relatedNodes(camera, RecordingFolderRelation), folders);
        QCOMPARE(m_db->relatedNodes(camera, RecordingTransponderRelation), QStringList(folders.at(1)));
        QVERIFY(m_db->isDestinationOfNodeRelation(folders.at(0), RecordingFolderRelation));
        QVERIFY(!m_db->isDestinationOfNodeRelation(folders.at(0), RecordingTransponderRelation));
        QVERIFY(!m_db->isDestinationOfNodeRelation(camera, RecordingFolderRelation));
        reopen();
    }
}

static kom::smart<NodeHint> cameraHint(HostNodeDB& db, const QString& address)
{
    const kom::smart<NodeHint> hint = db.nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    dynamic_cast<NodeHintIPDevice&>(*hint).address = address;
    return hint;
}

void TestHostNodeDB::lookupFindsTheOldest()
{
    const QString address = QLatin1String("10.0.0.1");
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, address)), QString());
    const QString first = addCamera(*m_db, QLatin1String("a"), address);
    const QString second = addCamera(*m_db, QLatin1String("b"), address);
    addCamera(*m_db, QLatin1String("c"), QString());
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, address)), first);
        QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QString())), QString());
        reopen();
    }
    m_db->removeNode(first);
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, address)), second);

    // The age of the node counts, not that of its address.
    const QString third = addCamera(*m_db, QLatin1String("d"), QLatin1String("10.0.0.9"));
    setText(*m_db, second, "Address", QLatin1String("10.0.0.9"));
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.9"))), second);
    m_db->removeNode(second);
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.9"))), third);
}

void TestHostNodeDB::lookupUnderstandsKeysOfBefore()
{
    const QString address = QLatin1String("2001:DB8:0::1");
    const QString id = addCamera(*m_db, QLatin1String("a"), address);
    const QString folder = addNode(*m_db, RecordingFolderType, QLatin1String("f"), QLatin1String("C:\\a"));
    m_db.reset();
    PlainSql(m_file).run(
        QLatin1String("UPDATE nodes SET lookup = replace(lookup, '2001:db8::1', '2001:db8:0::1')"));
    QVERIFY(PlainSql(m_file)
                .run(QLatin1String("SELECT count(*) FROM nodes WHERE instr(lookup, '2001:db8:0::1')"))
                .toBool());
    reopen();
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, address)), id);
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("2001:db8::1"))), id);
    const kom::smart<NodeHint> hint =
        m_db->nodeDriver(RecordingFolderType)->createNodeHint(RecordingFolderType);
    hint->setStringProperty(PropertyKeys::Path, QLatin1String("C:\\a"));
    QCOMPARE(m_db->lookupHint(*hint), folder);
}

void TestHostNodeDB::lookupFollowsChanges()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    reopen();
    setText(*m_db, id, "Address", QLatin1String("10.0.0.2")); // before the first lookup
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.1"))), QString());
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.2"))), id);
    setText(*m_db, id, "Address", QLatin1String("10.0.0.3")); // and after
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.2"))), QString());
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.3"))), id);
    reopen();
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.1"))), QString());
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.3"))), id);
    m_db->removeNode(id);
    QCOMPARE(m_db->lookupHint(*cameraHint(*m_db, QLatin1String("10.0.0.3"))), QString());
}

void TestHostNodeDB::typeNames()
{
    const QList<ENodeType> types = {ViewType, InternalRecorderType, IPDeviceType};
    NodeDB::TypeNames names = m_db->readableNodeTypeNames(&types, false);
    QCOMPARE(names.count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(names.at(i).first, types.at(i));
        QCOMPARE(names.at(i).second, m_db->readableNodeTypeName(types.at(i)));
    }
    names = m_db->readableNodeTypeNames(nullptr, true);
    QVERIFY(names.count() > 3);
    for (const auto& name : std::as_const(names)) // adding begins with any of them, as its name sorts
        QVERIFY2(!m_db->nodeDriver(name.first)->createNodeHint(name.first).null(), qPrintable(name.second));
    for (int i = 1; i < names.count(); ++i)
        QVERIFY(QString::localeAwareCompare(names.at(i - 1).second, names.at(i).second) <= 0);
    const QList<ENodeType> none;
    QVERIFY(m_db->readableNodeTypeNames(&none, true).isEmpty());
    QVERIFY(m_db->nodeDriver(ENodeType(4711)).null());
}

void TestHostNodeDB::remotePreviewOfACamera()
{
    m_db->setDefaultRecordingTransponderIP(QLatin1String("10.0.0.9"));
    const QString camera = addCamera(*m_db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    const auto setFlag = [this](const QString& id, bool flag) {
        Node* node = m_db->beginUpdateNode(id, -1);
        node->setBoolProperty(QLatin1String("UseRecordingTransponder"), flag);
        m_db->endUpdateNode(node);
        return m_db->relatedNodes(id, RecordingTransponderRelation);
    };
    setText(*m_db, camera, "Name", QLatin1String("North gate"));
    QCOMPARE(m_db->relatedNodes(camera, RecordingTransponderRelation), QStringList());
    const QStringList previews = setFlag(camera, true);
    QCOMPARE(previews.size(), 1);
    const kom::smart<const Node> preview = m_db->node(previews.constFirst());
    QCOMPARE(preview->type, RecordingTransponderType);
    QCOMPARE(preview->name(), QLatin1String("Remote preview of North gate"));
    QCOMPARE(preview->stringProperty(QLatin1String("RecordingTransponderIP"), QString()),
             QLatin1String("10.0.0.9"));
    QVERIFY(preview->boolProperty(QLatin1String("RecordingTransponderUseDefault"), false));
    QCOMPARE(m_db->summary(previews.constFirst()).location, QLatin1String("10.0.0.9"));
    setFlag(camera, false);
    QCOMPARE(setFlag(camera, true), previews); // kept, and not made again
    reopen();
    QCOMPARE(m_db->relatedNodes(camera, RecordingTransponderRelation), previews);
    m_db->removeNode(camera);
    QVERIFY(m_db->node(previews.constFirst()).null());
    QVERIFY(m_db->nodeIdList(AllNodeTypes).isEmpty());
}

void TestHostNodeDB::settingsAreStored()
{
    QCOMPARE(m_db->bandwidth(), int(FastLocal));
    QCOMPARE(m_db->globalProxy().proxyPort(), 8080);
    QCOMPARE(m_db->globalRecordingFolderPath(), QString());
    QCOMPARE(m_db->defaultRecordingTransponderIP(), QString());
    m_db->setBandwidth(SlowRemote);
    m_db->setGlobalRecordingFolderPath(QString::fromUtf8("//server/\xC3\xA4"));
    m_db->setDefaultRecordingTransponderIP(QLatin1String("10.0.0.250"));
    reopen();
    QCOMPARE(m_db->bandwidth(), int(SlowRemote));
    QCOMPARE(m_db->globalRecordingFolderPath(), QString::fromUtf8("//server/\xC3\xA4"));
    QCOMPARE(m_db->defaultRecordingTransponderIP(), QLatin1String("10.0.0.250"));
    m_db->setGlobalRecordingFolderPath(QString());
    reopen();
    QCOMPARE(m_db->globalRecordingFolderPath(), QString());
}

void TestHostNodeDB::proxyIsStored()
{
    GlobalNetworkProxy& proxy = m_db->globalProxy();
    proxy.setUseProxy(true);
    proxy.setProxyAddress(QLatin1String("proxy.example.org"), 65535);
    proxy.setProxyUser(QLatin1String("user"), QString::fromUtf8("p@ss:\xC3\xA4"));
    proxy.setSaveProxyPassword(true);
    proxy.setExceptions(QLatin1String("*.example.org; 10.*;with,comma"), QLatin1Char(';'));
    QVERIFY(m_db->hasUnstoredChanges());
    reopen();
    const GlobalNetworkProxy& stored = m_db->globalProxy();
    QVERIFY(stored.useProxy());
    QCOMPARE(stored.proxyAddress(), QLatin1String("proxy.example.org"));
    QCOMPARE(stored.proxyPort(), 65535);
    QCOMPARE(stored.proxyUser(), QLatin1String("user"));
    QCOMPARE(stored.proxyPassword(), QString::fromUtf8("p@ss:\xC3\xA4"));
    QVERIFY(stored.saveProxyPassword());
    QCOMPARE(stored.exceptionsAssembled(QLatin1Char(';')), QLatin1String("*.example.org;10.*;with,comma"));
    QVERIFY(!m_db->hasUnstoredChanges()); // reading is not a change
}

void TestHostNodeDB::unsavedProxyPasswordIsNotStored()
{
    m_db->globalProxy().setProxyUser(QLatin1String("user"), QLatin1String("notToBeSaved"));
    m_db->globalProxy().setSaveProxyPassword(false);
    reopen();
    QCOMPARE(m_db->globalProxy().proxyUser(), QLatin1String("user"));
    QCOMPARE(m_db->globalProxy().proxyPassword(), QString());
}

void TestHostNodeDB::environmentsAreStored()
{
    const Environments::List fresh = m_db->environments().getList();
    QCOMPARE(fresh.count(), 1);
    QCOMPARE(fresh.first().second, QLatin1String("Default"));
    QVERIFY(!QUuid(fresh.first().first).isNull());
    QCOMPARE(m_db->activeEnvironment(), fresh.first().first);
    const Environments::List list = {{QUuid::createUuid().toString(), QLatin1String("B")},
                                     {QUuid::createUuid().toString(), QString()},
                                     {QUuid::createUuid().toString(), QLatin1String("B")}};
    m_db->environments().setList(list);
    m_db->setActiveEnvironment(list.at(2).first);
    m_db->setActiveEnvironment(QLatin1String("unknown"));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(m_db->environments().getList(), list);
        QCOMPARE(m_db->activeEnvironment(), list.at(2).first);
        reopen();
    }
}

/// In the order in which the environment dialog does it.
void TestHostNodeDB::removedActiveEnvironmentIsReplaced()
{
    const QString old = m_db->activeEnvironment();
    const Environments::List list = {{QUuid::createUuid().toString(), QLatin1String("A")},
                                     {QUuid::createUuid().toString(), QLatin1String("B")}};
    m_db->environments().setList(list);
    m_db->setActiveEnvironment(list.at(1).first);
    m_db->environments().remove(old);
    QCOMPARE(m_db->activeEnvironment(), list.at(1).first);
    m_db->environments().remove(QLatin1String("unknown"));
    m_db->environments().remove(list.at(1).first);
    reopen();
    QCOMPARE(m_db->environments().getList(), Environments::List{list.at(0)});
    QCOMPARE(m_db->activeEnvironment(), list.at(0).first);
}

void TestHostNodeDB::summariesFollow()
{
    const QString camera = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    const QString folder = addNode(*m_db, RecordingFolderType, QLatin1String("f"), QLatin1String("/f"));
    Node* node = m_db->beginUpdateNode(camera, -1);
    node->setIntProperty(QLatin1String("RecordingStorageUsage"), 2);
    node->setStringProperty(QLatin1String("Address"), QLatin1String("10.0.0.2"));
    node->setStringProperty(QLatin1String("Name"), QLatin1String("b"));
    m_db->endUpdateNode(node);
    for (int round = 0; round < 2; ++round) {
        const QVector<NodeSummary> all = m_db->summaries();
        QCOMPARE(all.count(), 2);
        QVERIFY(all.at(0) ==
                (NodeSummary{camera, IPDeviceType, QLatin1String("b"), QLatin1String("10.0.0.2"), 2}));
        QVERIFY(all.at(1) ==
                (NodeSummary{folder, RecordingFolderType, QLatin1String("f"), QLatin1String("/f"), -1}));
        QVERIFY(m_db->summary(folder) == all.at(1));
        reopen();
    }
}

void TestHostNodeDB::oneTurnIsOneCommit()
{
    PlainSql plain(m_file);
    const int before = plain.run(QLatin1String("PRAGMA data_version")).toInt();
    for (int i = 0; i < 20; ++i)
        addCamera(*m_db, QString::number(i), QString::number(i));
    m_db->setBandwidth(SlowLocal);
    QCOMPARE(plain.run(QLatin1String("PRAGMA data_version")).toInt(), before);
    QVERIFY(m_db->hasUnstoredChanges());
    QCoreApplication::processEvents();
    QVERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(plain.run(QLatin1String("PRAGMA data_version")).toInt(), before + 1);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 20);
}

void TestHostNodeDB::changesAreStoredBeforeTheLoopWaits()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    m_db->flush();
    bool changed = false;
    QTimer::singleShot(0, m_db.get(), [&] {
        setText(*m_db, id, "Name", QLatin1String("b"));
        changed = true;
    });
    while (!changed)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents(); // what is done before the next wait
    QVERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT name FROM nodes")).toString(), QLatin1String("b"));
}

void TestHostNodeDB::failedWriteIsTriedAgain()
{
    QSignalSpy failed(m_db.get(), SIGNAL(storeFailed(ko::StoreError)));
    QSignalSpy recovered(m_db.get(), SIGNAL(storeRecovered()));
    lockFile();
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    QCoreApplication::processEvents(); // in the turn in which it would have been stored
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).value<StoreError>().kind, StoreError::Locked);
    QVERIFY(m_db->hasUnstoredChanges());
    QCOMPARE(m_db->node(id)->name(), QLatin1String("a"));
    QCOMPARE(recovered.count(), 0);
    unlockFile();
    QVERIFY(recovered.wait(7000)); // nobody asks for it
    QVERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT name FROM nodes")).toString(), QLatin1String("a"));
}

void TestHostNodeDB::discardGoesBackToWhatIsStored()
{
    const QString kept = addCamera(*m_db, QLatin1String("kept"), QLatin1String("10.0.0.1"));
    const QString gone = addCamera(*m_db, QLatin1String("gone"), QLatin1String("10.0.0.2"));
    const QString still = addCamera(*m_db, QLatin1String("still"), QLatin1String("10.0.0.3"));
    m_db->addNodeRelation(kept, gone, RecordingFolderRelation);
    QVERIFY(m_db->flush());
    setText(*m_db, kept, "Name", QLatin1String("changed"));
    m_db->removeNode(gone);
    const QString added = addCamera(*m_db, QLatin1String("added"), QLatin1String("10.0.0.4"));
    m_db->addNodeRelation(still, kept, RecordingFolderRelation);
    m_db->setBandwidth(SlowRemote);
    m_db->globalProxy().setUseProxy(true);

    connect(m_db.get(), &NodeDB::nodeInserted, this, [this](const NodeID& id) { m_seen << "+" + id; });
    connect(m_db.get(), &NodeDB::nodeUpdated, this, [this](const NodeID& id) { m_seen << "=" + id; });
    connect(m_db.get(), &NodeDB::nodeRemoved, this, [this](const NodeID& id) { m_seen << "-" + id; });
    m_db->discardUnstoredChanges();
    m_seen.sort();
    QStringList expected = {"+" + gone, "-" + added, "=" + kept, "=" + still};
    expected.sort();
    QCOMPARE(m_seen, expected);
    QVERIFY(!m_db->hasUnstoredChanges());
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList({kept, gone, still}));
        QCOMPARE(m_db->node(kept)->name(), QLatin1String("kept"));
        QCOMPARE(m_db->relatedNodes(kept, RecordingFolderRelation), QStringList(gone));
        QCOMPARE(m_db->relatedNodes(still, RecordingFolderRelation), QStringList());
        QCOMPARE(m_db->bandwidth(), int(FastLocal));
        QVERIFY(!m_db->globalProxy().useProxy());
        reopen();
    }
}

void TestHostNodeDB::discardKeepsAllWhenTheStoreCannotBeRead()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    QVERIFY(m_db->flush());
    PlainSql plain(m_file);
    plain.run(QLatin1String("ALTER TABLE settings RENAME TO elsewhere"));
    setText(*m_db, id, "Name", QLatin1String("b"));
    m_db->discardUnstoredChanges();
    QVERIFY(m_db->hasUnstoredChanges());
    QCOMPARE(m_db->node(id)->name(), QLatin1String("b"));
    plain.run(QLatin1String("ALTER TABLE elsewhere RENAME TO settings"));
    QVERIFY(m_db->flush());
    QCOMPARE(plain.run(QLatin1String("SELECT name FROM nodes")).toString(), QLatin1String("b"));
}

void TestHostNodeDB::unreadableNodeIsNull()
{
    const QString id = addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    reopen();
    PlainSql plain(m_file);
    plain.run(QLatin1String("ALTER TABLE node_properties RENAME TO elsewhere"));
    QSignalSpy damaged(m_db.get(), SIGNAL(storeDamaged(ko::StoreError)));
    QVERIFY(m_db->node(id).null());
    QVERIFY(m_db->node(id).null());
    QVERIFY(!m_db->beginUpdateNode(id, -1));
    QCOMPARE(m_db->summary(id).name, QLatin1String("a"));
    KO_TRY_COMPARE(damaged.count(), 1);
    QVERIFY(!damaged.at(0).at(0).value<StoreError>().message.isEmpty());
    plain.run(QLatin1String("ALTER TABLE elsewhere RENAME TO node_properties"));
    QCOMPARE(m_db->node(id)->name(), QLatin1String("a"));
}

void TestHostNodeDB::scannersSayThatThereAreNone()
{
    QSignalSpy inserted(m_db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    m_db->startScanners("mDNS", unsigned(-1), -1);
    m_db->startScanners("mDNS", unsigned(-1), -1);
    m_db->stopScanners("mDNS");
    m_db->stopScanners("mDNS");
    QCOMPARE(inserted.count(), 0);
}

KO_TEST_MAIN(TestHostNodeDB)
#include "tst_hostnodedb.moc"
