#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "ko/NodeHintIPDevice.h"
#include "kogen/Property.h"
#include "pages/InfoWidget.h"

#include <QLineEdit>
#include <QListWidget>

using namespace ko;
using testsupport::child;

class tst_InfoWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<testsupport::SmallNodeDB>();
        m_page = std::make_unique<InfoWidget>(nullptr);
        m_list = child<QListWidget>(m_page.get(), "ipListWidget");
    }
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void addressesInNameOrder();
    void singleAddress();
    void initAppends();
    void factoryAddress_data();
    void factoryAddress();
    void accept();
    void invalidMacIsHandedOver();
    void hint();
    void otherNodesAndHints();
    void readOnly();

private:
    QLineEdit* edit(const char* name) { return child<QLineEdit>(m_page.get(), name); }
    QStringList addresses() const;

    std::unique_ptr<testsupport::SmallNodeDB> m_db;
    std::unique_ptr<InfoWidget> m_page;
    QListWidget* m_list = nullptr;
};

QStringList tst_InfoWidget::addresses() const
{
    QStringList texts;
    for (int row = 0; row < m_list->count(); ++row)
        texts.append(m_list->item(row)->text());
    return texts;
}

void tst_InfoWidget::form()
{
    using testsupport::RightCentred;
    QCOMPARE(m_page->objectName(), QString("InfoWidget"));
    QCOMPARE(QString(m_page->metaObject()->className()), QString("ko::InfoWidget"));
    QCOMPARE(m_page->size(), QSize(348, 178));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    testsupport::checkCaptions(
        m_page.get(), {{"label_10", "Model:", 100, RightCentred, "modelLineEdit"},
                       {"label_11", "Software version:", 100, RightCentred, "versionLineEdit"},
                       {"label", "MAC address:", 120, RightCentred, "macLineEdit"},
                       {"label_3", "Factory IP address:", 120, RightCentred, "factoryIPLineEdit"},
                       {"label_2", "Current IP addresses:", 120, testsupport::RightTop, "ipListWidget"}});
    QCOMPARE(child<QGridLayout>(m_page.get(), "gridLayout")->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(edit("modelLineEdit")->minimumWidth(), 120);
    QCOMPARE(edit("versionLineEdit")->minimumWidth(), 120);
    QVERIFY(edit("macLineEdit")->isReadOnly());
    QVERIFY(!edit("factoryIPLineEdit")->isReadOnly());
    QCOMPARE(m_list->maximumHeight(), 70);
    QCOMPARE(m_list->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(m_list->alternatingRowColors());
    QCOMPARE(m_list->resizeMode(), QListView::Adjust);
    QCOMPARE(m_list->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

void tst_InfoWidget::addressesInNameOrder()
{
    kogen::PropertySet set;
    set.insert(kom::makeSmart<kogen::StringProperty>(QString("b"), QString("10.0.0.2")));
    set.insert(kom::makeSmart<kogen::StringProperty>(QString("a"), QString("10.0.0.1")));
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    camera.setPropertySetProperty("IPAddresses", set);
    camera.setStringProperty("IP", "10.0.0.9");
    camera.setModel("M1");
    camera.setVersion("2.0");
    camera.setMacAddress(MACAddress(QString("0011.22aa.bbcc")));
    m_page->init(QString("cam"));
    QCOMPARE(addresses(), QStringList({"10.0.0.1", "10.0.0.2"}));
    QCOMPARE(edit("modelLineEdit")->text(), QString("M1"));
    QCOMPARE(edit("versionLineEdit")->text(), QString("2.0"));
    QCOMPARE(edit("macLineEdit")->text(), QString("00:11:22:AA:BB:CC"));
}

void tst_InfoWidget::singleAddress()
{
    m_db->addCamera("cam", "Gate").setStringProperty("IP", "10.0.0.9");
    m_db->addCamera("bare", "Yard");
    m_page->init(QString("cam"));
    QCOMPARE(addresses(), QStringList("10.0.0.9"));
    InfoWidget bare(nullptr);
    bare.init(QString("bare"));
    QCOMPARE(child<QListWidget>(&bare, "ipListWidget")->count(), 1);
    QVERIFY(child<QListWidget>(&bare, "ipListWidget")->item(0)->text().isEmpty());
}

void tst_InfoWidget::initAppends()
{
    m_db->addCamera("cam", "Gate").setStringProperty("IP", "10.0.0.9");
    m_page->init(QString("cam"));
    m_page->init(QString("cam"));
    QCOMPARE(addresses(), QStringList({"10.0.0.9", "10.0.0.9"}));
}

void tst_InfoWidget::factoryAddress_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("underscores") << "192_168_0_10"
                                 << "192.168.0.10";
    QTest::newRow("dots") << "10.0.0.1"
                          << "10.0.0.1";
    QTest::newRow("empty") << ""
                           << "<Unknown>";
    QTest::newRow("absent") << QString() << "<Unknown>";
}

void tst_InfoWidget::factoryAddress()
{
    QFETCH(QString, stored);
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    if (!stored.isNull())
        camera.setStringProperty("FactoryIP", stored);
    m_page->init(QString("cam"));
    QTEST(edit("factoryIPLineEdit")->text(), "shown");
}

void tst_InfoWidget::accept()
{
    m_db->addCamera("cam", "Gate").setStringProperty("FactoryIP", "10_0_0_1");
    m_page->init(QString("cam"));
    m_page->setReadOnly(false);
    edit("modelLineEdit")->setText("M2");
    edit("versionLineEdit")->setText("3.1");
    edit("macLineEdit")->setText("00-11-22-33-44-55");
    edit("factoryIPLineEdit")->setText("1.2.3.4");
    m_db->clearCalls();
    Node* node = m_db->beginUpdateNode("cam", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    QCOMPARE(m_db->calls, QStringList({"beginUpdateNode(cam,-1)", "setModel(M2)", "setVersion(3.1)",
                                       "setMacAddress(00:11:22:33:44:55)", "endUpdateNode(cam)"}));
    QCOMPARE(m_db->node("cam")->stringProperty("FactoryIP", QString()), QString("10_0_0_1"));
}

void tst_InfoWidget::invalidMacIsHandedOver()
{
    m_db->addCamera("cam", "Gate").setMacAddress(MACAddress(QString("001122334455")));
    m_page->init(QString("cam"));
    edit("macLineEdit")->setText("nonsense");
    Node* node = m_db->beginUpdateNode("cam", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    QVERIFY(m_db->node("cam").cast<const IPDeviceNode>()->macAddress() == MACAddress(QString("nonsense")));
}

void tst_InfoWidget::hint()
{
    const kom::smart<NodeHintIPDevice> hint = m_db->createHint(IPDeviceType).cast<NodeHintIPDevice>();
    hint->model = "M1";
    hint->version = "2.0";
    hint->macAddress = MACAddress(QString("001122334455"));
    m_page->init(hint.get());
    QCOMPARE(edit("modelLineEdit")->text(), QString("M1"));
    QCOMPARE(edit("versionLineEdit")->text(), QString("2.0"));
    QVERIFY(edit("macLineEdit")->text().isEmpty());
    QVERIFY(edit("factoryIPLineEdit")->text().isEmpty());
    QCOMPARE(m_list->count(), 0);
    edit("modelLineEdit")->setText("M2");
    edit("versionLineEdit")->setText("3");
    m_page->accept(hint.get());
    QCOMPARE(hint->model, QString("M2"));
    QCOMPARE(hint->version, QString("3"));
}

void tst_InfoWidget::otherNodesAndHints()
{
    m_db->addNode(RecordingFolderType, "folder", "f");
    edit("modelLineEdit")->setText("kept");
    m_page->init(QString("folder"));
    m_page->init(QString("unknown"));
    const kom::smart<NodeHint> hint = m_db->createHint(RecordingFolderType);
    m_page->init(hint.get());
    QCOMPARE(edit("modelLineEdit")->text(), QString("kept"));
    QCOMPARE(m_list->count(), 0);
    m_db->clearCalls();
    m_page->accept(hint.get());
    Node* node = m_db->beginUpdateNode("folder", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    QCOMPARE(m_db->calls, QStringList({"beginUpdateNode(folder,-1)", "endUpdateNode(folder)"}));
    m_page->accept(static_cast<Node*>(nullptr));
}

void tst_InfoWidget::readOnly()
{
    for (const bool readOnly : {true, false}) {
        m_page->setReadOnly(readOnly);
        for (const char* name : {"modelLineEdit", "versionLineEdit", "macLineEdit", "factoryIPLineEdit"}) {
            QCOMPARE(edit(name)->isReadOnly(), readOnly);
            QCOMPARE(edit(name)->hasFrame(), !readOnly);
        }
    }
}

KO_TEST_MAIN(tst_InfoWidget)
#include "tst_infowidget.moc"
