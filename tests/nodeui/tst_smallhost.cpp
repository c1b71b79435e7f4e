#include "interfaces/INodeDriverComponent.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/NodeHintIPDevice.h"
#include "support/ModalAnswer.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include <QLineEdit>
#include <QSignalSpy>

using namespace testsupport;

/// The helper other tests lean on must itself keep the contract.
class TestSmallHost : public QObject
{
    Q_OBJECT

private slots:
    void callsAreNotedInTheirOrder()
    {
        SmallNodeDB db;
        db.addCamera("cam1", "Entrance");
        QVERIFY(db.calls.isEmpty());
        ko::Node* node = ko::NodeDB::getDB()->beginUpdateNode("cam1", -1);
        auto* device = dynamic_cast<ko::IPDeviceNode*>(node);
        QVERIFY(device);
        device->setAddress("10.0.0.7");
        device->notifyChange(2);
        device->setBoolProperty("On", true);
        device->setUser("joe", "secret");
        device->proxy().setProxyAddress("proxy", 8080);
        db.endUpdateNode(node);
        db.setActiveEnvironment("x");
        db.environments().remove("x");
        QCOMPARE(db.calls, QStringList({"beginUpdateNode(cam1,-1)", "setAddress(10.0.0.7)", "notifyChange(2)",
                                        "setBoolProperty(On,true)", "setUser(joe,secret)",
                                        "proxy.setProxyAddress(proxy,8080)", "endUpdateNode(cam1)",
                                        "setActiveEnvironment(x)", "Environments::remove(x)"}));
    }

    void handedOutNodesDoNotChange()
    {
        SmallNodeDB db;
        db.addCamera("cam1", "Entrance").setAddress("10.0.0.6");
        const auto before = db.node("cam1").cast<const ko::IPDeviceNode>();
        QSignalSpy updated(&db, SIGNAL(nodeUpdated(ko::NodeID)));

        ko::Node* node = db.beginUpdateNode("cam1", -1);
        dynamic_cast<ko::IPDeviceNode*>(node)->setAddress("10.0.0.7");
        db.endUpdateNode(node);
        QCOMPARE(before->address(), QString("10.0.0.6"));
        QCOMPARE(db.node("cam1").cast<const ko::IPDeviceNode>()->address(), QString("10.0.0.7"));
        QCOMPARE(updated.count(), 1);

        node = db.beginUpdateNode("cam1", -1);
        dynamic_cast<ko::IPDeviceNode*>(node)->setAddress("10.0.0.7"); // nothing new
        db.endUpdateNode(node);
        QCOMPARE(updated.count(), 1);
    }

    void missingNodes()
    {
        SmallNodeDB db;
        QVERIFY(db.node("").null());
        QVERIFY(db.node("gone").null());
        QVERIFY(!db.beginUpdateNode("gone", -1));
        db.endUpdateNode(nullptr);
        QVERIFY(db.nodeDriver(ko::ViewType).null());
    }

    void hintsBecomeNodes()
    {
        SmallNodeDB db;
        const kom::smart<ko::NodeHint> hint =
            db.nodeDriver(ko::ChannelDeviceType)->createNodeHint(ko::ChannelDeviceType);
        const auto device = hint.cast<ko::NodeHintIPDevice>();
        QVERIFY(!device.null());
        device->setName("Gate");
        device->address = "10.0.0.9";
        device->channel = 3;
        device->setIntProperty("Number", 4);
        device->context = this;
        QVERIFY(db.lookupHint(*hint).isEmpty());
        QSignalSpy inserted(&db, SIGNAL(nodeInserted(ko::NodeID)));
        db.newNodeHint(*hint);
        QCOMPARE(inserted.count(), 1);
        const QString id = inserted.first().first().toString();
        QCOMPARE(db.lookupHint(*hint), id);
        const auto node = db.node(id).cast<const ko::IPDeviceNode>();
        QCOMPARE(node->name(), QString("Gate"));
        QCOMPARE(node->address(), QString("10.0.0.9"));
        QCOMPARE(node->intProperty("Number", 0), 4);
        QCOMPARE(node.cast<const ko::ISupportsChannels>()->channel(), 3);
        QVERIFY(node->hasCreationContext());
        QCOMPARE(node->creationContext(), static_cast<void*>(this));
    }

    void relationsAndRemoval()
    {
        SmallNodeDB db;
        db.addCamera("cam1", "Entrance");
        db.addNode(ko::RecordingFolderType, "folder", "Folder");
        db.addNodeRelation("cam1", "folder", ko::RecordingFolderRelation);
        QCOMPARE(db.relatedNodes("cam1", ko::RecordingFolderRelation), QStringList("folder"));
        QVERIFY(db.relatedNodes("cam1", ko::RecordingTransponderRelation).isEmpty());
        QVERIFY(db.isDestinationOfNodeRelation("folder", ko::RecordingFolderRelation));
        QCOMPARE(db.nodeIdList(ko::IPDeviceType), QStringList("cam1"));
        QCOMPARE(db.nodeIdList(ko::AllNodeTypes), QStringList({"cam1", "folder"}));
        db.removeNode("cam1");
        QVERIFY(!db.isDestinationOfNodeRelation("folder", ko::RecordingFolderRelation));
    }

    void inspectorWritesAndLogs()
    {
        SmallNodeDB db;
        db.addCamera("cam1", "Entrance");
        const std::unique_ptr<ko::InspectorWidget> inspector(
            db.node("cam1")->createInspectorWidget(false, 17));
        QTest::keyClicks(child<QLineEdit>(inspector.get(), "nameLineEdit"), "2");
        db.clearCalls();
        inspector->ok();
        QCOMPARE(db.calls, QStringList({"inspector.ok()", "beginUpdateNode(cam1,-1)",
                                        "setStringProperty(Name,Entrance2)", "endUpdateNode(cam1)",
                                        "log(NRen,Entrance,Entrance2)", "log(NChg,Entrance2)"}));
        QCOMPARE(db.actionLog.texts.first(), QString("Changed name of device from Entrance to Entrance2."));
    }
};

KO_TEST_MAIN(TestSmallHost)
#include "tst_smallhost.moc"
