#include "support/DialogCheck.h"
#include "support/SmallHost.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include "inspector/IPDeviceInspectorWidget.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/NodeHint.h"

#include <QLineEdit>

using namespace ko;
using testsupport::SmallNodeDB;

namespace {

/// An inspector opened to a test, as a host's derived class sees it.
template <class Base>
class Opened : public Base
{
public:
    using Base::Base;
    using Base::flags;
    using Base::isReadOnly;
    using Base::logPropertyChange;
    using Base::nodeHint;
    using Base::nodeId;
    using Base::s_page;

    QStringList heard;
    int applied = 0;

    void nodeUpdated(ko::NodeID id) override
    {
        heard.append(id);
        Base::nodeUpdated(id);
    }
    void ok() override
    {
        ++applied;
        Base::ok();
    }
};

typedef Opened<InspectorWidget> Inspector;
typedef Opened<IPDeviceInspectorWidget> DeviceInspector;

} // namespace

class tst_InspectorWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<SmallNodeDB>();
        m_db->addCamera("cam", "Gate");
    }
    void cleanup() { m_db.reset(); }

    void metaObject();
    void keepsItsArguments();
    void pageIsShared();
    void hearsTheDatabase();
    void hintHearsNothing();
    void baseReactsToNothing();
    void slotsAreVirtual();
    void changeWithoutRename();
    void renameComesFirst();
    void caseOfANameCounts();
    void okRecordsTheNameAgain();
    void withoutOkTheOldNameIsEmpty();
    void nodeGoneBeforeLogging();
    void nodeBackAfterOk();
    void hintLogsNothing();
    void deviceInspectorDoesNothing();
    void wholeApply();
    void applyToHint();

private:
    void rename(const QString& name);

    std::unique_ptr<SmallNodeDB> m_db;
};

void tst_InspectorWidget::rename(const QString& name)
{
    Node* node = m_db->beginUpdateNode("cam", -1);
    node->setStringProperty("Name", name);
    m_db->endUpdateNode(node);
    m_db->clearCalls();
}

void tst_InspectorWidget::metaObject()
{
    const QMetaObject& base = InspectorWidget::staticMetaObject;
    QCOMPARE(QString(base.className()), QString("ko::InspectorWidget"));
    QCOMPARE(base.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(testsupport::declaredSlots(base),
             QStringList({"ok()", "cancel()", "nodeUpdated(ko::NodeID id)"}));
    QCOMPARE(base.methodCount() - base.methodOffset(), 3);
    QVERIFY(base.indexOfSlot("nodeUpdated(ko::NodeID)") >= 0);

    const QMetaObject& device = IPDeviceInspectorWidget::staticMetaObject;
    QCOMPARE(QString(device.className()), QString("ko::IPDeviceInspectorWidget"));
    QCOMPARE(device.superClass(), &base);
    QCOMPARE(device.methodCount(), base.methodCount());
}

void tst_InspectorWidget::keepsItsArguments()
{
    QWidget parent;
    for (const bool readOnly : {true, false}) {
        const auto* ofNode = new Inspector("cam", readOnly, &parent, 0xA0);
        QCOMPARE(ofNode->nodeId(), QString("cam"));
        QCOMPARE(ofNode->isReadOnly(), readOnly);
        QCOMPARE(ofNode->flags(), 0xA0u);
        QCOMPARE(ofNode->parentWidget(), &parent);
        QVERIFY(!ofNode->nodeHint());
    }
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    const auto* ofHint = new DeviceInspector(*hint, &parent, ~0u);
    QVERIFY(ofHint->nodeId().isEmpty());
    QVERIFY(!ofHint->isReadOnly());
    QCOMPARE(ofHint->flags(), ~0u);
    QCOMPARE(ofHint->parentWidget(), &parent);
    QCOMPARE(ofHint->nodeHint(), hint.get());
    const auto* device = new DeviceInspector("cam", true, &parent, 17);
    QCOMPARE(device->nodeId(), QString("cam"));
    QVERIFY(device->isReadOnly());
    QCOMPARE(device->flags(), 17u);
    QVERIFY(m_db->calls.isEmpty());
}

void tst_InspectorWidget::pageIsShared()
{
    QCOMPARE(Inspector::s_page, 0u);
    Inspector::s_page = 3;
    QCOMPARE(DeviceInspector::s_page, 3u);
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    inspector.cancel();
    QCOMPARE(Inspector::s_page, 3u);
    Inspector::s_page = 0;
}

void tst_InspectorWidget::hearsTheDatabase()
{
    auto inspector = std::make_unique<Inspector>("cam", false, nullptr, 0);
    DeviceInspector device("cam", false, nullptr, 0);
    rename("Yard");
    emit m_db->nodeUpdated("other");
    QCOMPARE(inspector->heard, QStringList({"cam", "other"}));
    QCOMPARE(device.heard, inspector->heard);
    inspector.reset(); // the connection ends with the widget
    emit m_db->nodeUpdated("cam");
    QCOMPARE(device.heard.size(), 3);
    emit m_db->nodeInserted("cam");
    emit m_db->nodeRemoved("cam");
    QCOMPARE(device.heard.size(), 3);
}

void tst_InspectorWidget::hintHearsNothing()
{
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    const Inspector inspector(*hint, nullptr, 0);
    emit m_db->nodeUpdated("cam");
    emit m_db->nodeUpdated(QString());
    QVERIFY(inspector.heard.isEmpty());
}

void tst_InspectorWidget::baseReactsToNothing()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    m_db->clearCalls();
    for (const char* id : {"cam", "other", ""})
        inspector.nodeUpdated(id);
    inspector.updateNode();
    inspector.cancel();
    QVERIFY(m_db->calls.isEmpty());
    QVERIFY(inspector.children().isEmpty());
    inspector.logPropertyChange(); // and the recorded name is as it was
    QCOMPARE(m_db->calls, QStringList("log(NChg,Gate)"));
}

void tst_InspectorWidget::slotsAreVirtual()
{
    Inspector inspector("cam", false, nullptr, 0);
    QVERIFY(QMetaObject::invokeMethod(&inspector, "ok"));
    QCOMPARE(inspector.applied, 1);
    QVERIFY(QMetaObject::invokeMethod(&inspector, "cancel"));
    QVERIFY(QMetaObject::invokeMethod(&inspector, "nodeUpdated", Q_ARG(ko::NodeID, "x")));
    QCOMPARE(inspector.heard, QStringList("x"));
}

void tst_InspectorWidget::changeWithoutRename()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    QVERIFY(m_db->calls.isEmpty()); // reading opens no transaction
    inspector.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList("log(NChg,Gate)"));
    QCOMPARE(m_db->actionLog.texts, QStringList("Changed properties of device with name Gate."));
}

void tst_InspectorWidget::renameComesFirst()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    rename("Yard");
    inspector.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList({"log(NRen,Gate,Yard)", "log(NChg,Yard)"}));
    QCOMPARE(m_db->actionLog.texts.first(), QString("Changed name of device from Gate to Yard."));
}

void tst_InspectorWidget::caseOfANameCounts()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    rename("gate");
    inspector.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList({"log(NRen,Gate,gate)", "log(NChg,gate)"}));
}

void tst_InspectorWidget::okRecordsTheNameAgain()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    rename("Yard");
    inspector.ok();
    inspector.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList("log(NChg,Yard)"));
}

void tst_InspectorWidget::withoutOkTheOldNameIsEmpty()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList({"log(NRen,,Gate)", "log(NChg,Gate)"}));
    m_db->addCamera("unnamed", "");
    m_db->clearCalls();
    Inspector unnamed("unnamed", false, nullptr, 0);
    unnamed.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList("log(NChg,)"));
}

void tst_InspectorWidget::nodeGoneBeforeLogging()
{
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    m_db->removeNode("cam");
    m_db->clearCalls();
    inspector.logPropertyChange();
    inspector.ok();
    QVERIFY(m_db->calls.isEmpty());
}

void tst_InspectorWidget::nodeBackAfterOk()
{
    m_db->removeNode("cam");
    Inspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    m_db->addCamera("cam", "Yard");
    m_db->clearCalls();
    inspector.logPropertyChange();
    QCOMPARE(m_db->calls, QStringList({"log(NRen,,Yard)", "log(NChg,Yard)"}));
}

void tst_InspectorWidget::hintLogsNothing()
{
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    m_db->addNode(IPDeviceType, "", "of no identifier"); // not to be taken for the hint's node
    Inspector inspector(*hint, nullptr, 0);
    inspector.ok();
    inspector.cancel();
    inspector.updateNode();
    QVERIFY(m_db->calls.isEmpty());
    m_db->removeNode("");
    m_db->clearCalls();
    inspector.logPropertyChange();
    QVERIFY(m_db->calls.isEmpty());
}

void tst_InspectorWidget::deviceInspectorDoesNothing()
{
    DeviceInspector inspector("cam", false, nullptr, 0);
    inspector.ok();
    inspector.cancel();
    QVERIFY(m_db->calls.isEmpty());
    inspector.logPropertyChange(); // ok() did not record the name either
    QCOMPARE(m_db->calls.first(), QString("log(NRen,,Gate)"));
}

void tst_InspectorWidget::wholeApply()
{
    const kom::smart<const Node> node = m_db->node("cam");
    const std::unique_ptr<InspectorWidget> inspector(node->createInspectorWidget(false, 17));
    auto* name = inspector->findChild<QLineEdit*>("nameLineEdit");
    QVERIFY(name);
    name->selectAll();
    QTest::keyClicks(name, "Yard");
    m_db->clearCalls();
    inspector->ok();
    QCOMPARE(m_db->calls,
             QStringList({"inspector.ok()", "beginUpdateNode(cam,-1)", "setStringProperty(Name,Yard)",
                          "endUpdateNode(cam)", "log(NRen,Gate,Yard)", "log(NChg,Yard)"}));
    m_db->clearCalls();
    inspector->cancel();
    QCOMPARE(m_db->calls, QStringList("inspector.cancel()"));
}

void tst_InspectorWidget::applyToHint()
{
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    const std::unique_ptr<InspectorWidget> inspector(
        m_db->nodeDriver(IPDeviceType)->createInspectorWidget(hint.get(), 17));
    QTest::keyClicks(inspector->findChild<QLineEdit*>("nameLineEdit"), "Yard");
    m_db->clearCalls();
    inspector->ok();
    QCOMPARE(m_db->calls, QStringList({"inspector.ok()", "setName(Yard)"}));
}

KO_TEST_MAIN(tst_InspectorWidget)
#include "tst_inspectorwidget.moc"
