#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "ko/NodeHintIPDevice.h"
#include "pages/ControlDataWidget.h"

#include <QComboBox>
#include <QImage>

using namespace ko;
using testsupport::child;

class tst_ControlDataWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<testsupport::SmallNodeDB>();
        m_db->connectionBandwidth = SlowLocal;
        m_page = std::make_unique<ControlDataWidget>(nullptr);
        m_mode = child<QComboBox>(m_page.get(), "controlModeComboBox");
        m_bandwidth = child<QComboBox>(m_page.get(), "bandwidthComboBox");
    }
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void icons_data();
    void icons();
    void shownValues_data();
    void shownValues();
    void storedValues_data();
    void storedValues();
    void setterOrder();
    void hint();
    void otherNodesAndHints();
    void readOnly();

private:
    QString accept(const char* id);

    std::unique_ptr<testsupport::SmallNodeDB> m_db;
    std::unique_ptr<ControlDataWidget> m_page;
    QComboBox* m_mode = nullptr;
    QComboBox* m_bandwidth = nullptr;
};

void tst_ControlDataWidget::form()
{
    QCOMPARE(m_page->objectName(), QString("ControlDataWidget"));
    QCOMPARE(QString(m_page->metaObject()->className()), QString("ko::ControlDataWidget"));
    QCOMPARE(m_page->size(), QSize(471, 59));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    testsupport::checkCaptions(
        m_page.get(), {{"label", "Control Mode:", 100, testsupport::RightCentred, "controlModeComboBox"},
                       {"label_2", "Bandwidth:", 100, testsupport::RightCentred, "bandwidthComboBox"}});
    const auto* grid = child<QGridLayout>(m_page.get(), "gridLayout");
    QCOMPARE(grid->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(testsupport::gridCell(grid, m_mode), QString("0,1,1,1"));
    QCOMPARE(testsupport::gridCell(grid, m_bandwidth), QString("1,1,1,2"));
    QCOMPARE(testsupport::comboItems(m_mode), QStringList({":Full Control", ":Image Mode", ":Viewer Mode"}));
    QCOMPARE(
        testsupport::comboItems(m_bandwidth),
        QStringList({":Slow Remote (Modem, ISDN, GPRS/2G, EDGE)", ":Fast Remote (DSL, UMTS/3G)",
                     ":Slow Local (WLAN/WiFi, Ethernet)", ":Fast Local (Fast Ethernet, Gigabit Ethernet)"}));
    for (const QComboBox* comboBox : {m_mode, m_bandwidth}) {
        QCOMPARE(comboBox->iconSize(), QSize(24, 16));
        for (int i = 0; i < comboBox->count(); ++i)
            QVERIFY(!comboBox->itemIcon(i).pixmap(24, 16).isNull());
    }
    QCOMPARE(m_mode->toolTip(),
             QString("By selecting a <b>Control Mode</b>, you can protect your camera from unwanted "
                     "configuration changes.<br>\n<b>Full Control</b>: Configuration is not restricted.<br>\n"
                     "<b>Image Mode</b>: Configuration is restricted to image settings and PTZ.<br>\n"
                     "<b>Viewer Mode</b>: Configuration is not allowed."));
    QCOMPARE(
        m_bandwidth->toolTip(),
        QString("By selecting a <b>Bandwidth</b>, you can adjust image retrieval to the bandwidth of the "
                "connection used for accessing the cameras.<br>\n<b>Slow Remote:</b> Modem, ISDN, GPRS, "
                "EDGE<br>\n<b>Fast Remote:</b> DSL, UMTS/3G<br>\n<b>Slow Local:</b> WLAN/WiFi, "
                "Ethernet<br>\n<b>Fast Local:</b> Fast Ethernet, Gigabit Ethernet"));
}

void tst_ControlDataWidget::icons_data()
{
    QTest::addColumn<bool>("isBandwidth");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    const QList<QPair<int, const char*>> bandwidths = {{0, "slowRemote"}, {1, "fastRemote"},
                                                       {2, "slowLocal"},  {3, "fastLocal"},
                                                       {7, "slowLocal"},  {-1, "slowLocal"}};
    for (const auto& pair : bandwidths)
        QTest::addRow("bandwidth %d", pair.first) << true << pair.first << QString(pair.second);
    const QList<QPair<int, const char*>> modes = {
        {0, "fullControl"}, {1, "imageMode"}, {2, "viewerMode"}, {3, "fullControl"}, {-1, "fullControl"}};
    for (const auto& pair : modes)
        QTest::addRow("mode %d", pair.first) << false << pair.first << QString(pair.second);
}

void tst_ControlDataWidget::icons()
{
    QFETCH(bool, isBandwidth);
    QFETCH(int, value);
    QFETCH(QString, name);
    QStringList paths;
    for (const bool alternative : {false, true})
        paths.append(isBandwidth ? ControlDataWidget::bandwidthIcon(ENodeBandwidth(value), alternative)
                                 : ControlDataWidget::controlModeIcon(ENodeControl(value), alternative));
    QCOMPARE(paths, QStringList({":/icons/" + name + ".png", ":/icons/" + name + "2.png"}));
    const QImage normal(paths.at(0));
    const QImage other(paths.at(1));
    QCOMPARE(normal.size(), QSize(24, 16));
    QCOMPARE(QImage(QString(":/icons/%1@2x.png").arg(name)).size(), QSize(48, 32));
    QCOMPARE(other.size(), QSize(24, 16));
    QVERIFY(normal != other);
}

void tst_ControlDataWidget::shownValues_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("bandwidth");
    QTest::addColumn<int>("modeIndex");
    QTest::addColumn<int>("bandwidthIndex");
    QTest::newRow("never set") << -1 << -1 << 0 << 2;
    QTest::newRow("set") << 2 << 0 << 2 << 0;
    QTest::newRow("unknown") << 9 << 9 << -1 << -1;
}

void tst_ControlDataWidget::shownValues()
{
    QFETCH(int, mode);
    QFETCH(int, bandwidth);
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    camera.setControlMode(mode);
    camera.setBandwidth(bandwidth);
    m_page->init(QString("cam"));
    QTEST(m_mode->currentIndex(), "modeIndex");
    QTEST(m_bandwidth->currentIndex(), "bandwidthIndex");
}

QString tst_ControlDataWidget::accept(const char* id)
{
    m_db->clearCalls();
    Node* node = m_db->beginUpdateNode(id, -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    return m_db->calls.mid(1, m_db->calls.size() - 2).join(" ");
}

void tst_ControlDataWidget::storedValues_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("bandwidth");
    QTest::newRow("follows, unchanged") << -1 << -1 << -1;
    QTest::newRow("chosen as the database") << 0 << 2 << -1;
    QTest::newRow("stored as the database") << 2 << -1 << -1;
    QTest::newRow("own") << -1 << 3 << 3;
    QTest::newRow("own, unchanged") << 1 << -1 << 1;
}

void tst_ControlDataWidget::storedValues()
{
    QFETCH(int, stored);
    QFETCH(int, chosen);
    m_db->addCamera("cam", "Gate").setBandwidth(stored);
    m_page->init(QString("cam"));
    if (chosen >= 0)
        m_bandwidth->setCurrentIndex(chosen);
    accept("cam");
    const auto camera = m_db->node("cam").cast<const IPDeviceNode>();
    QTEST(camera->bandwidth(), "bandwidth");
    QCOMPARE(camera->controlMode(), 0); // -1 is shown as, and becomes, full control
}

void tst_ControlDataWidget::setterOrder()
{
    m_db->addCamera("cam", "Gate");
    m_page->init(QString("cam"));
    m_mode->setCurrentIndex(1);
    m_bandwidth->setCurrentIndex(0);
    QCOMPARE(accept("cam"), QString("setControlMode(1) setBandwidth(0)"));
}

void tst_ControlDataWidget::hint()
{
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    m_mode->setCurrentIndex(2);
    m_page->init(hint.get());
    QCOMPARE(m_mode->currentIndex(), 0);
    QCOMPARE(m_bandwidth->currentIndex(), 2);
    m_bandwidth->setCurrentIndex(0);
    m_db->clearCalls();
    m_page->accept(hint.get());
    QVERIFY(m_db->calls.isEmpty());
    QCOMPARE(hint->properties().count(), 0);
}

void tst_ControlDataWidget::otherNodesAndHints()
{
    m_db->addNode(RecordingFolderType, "folder", "f");
    m_mode->setCurrentIndex(2);
    m_bandwidth->setCurrentIndex(3);
    m_page->init(QString("folder"));
    m_page->init(QString("unknown"));
    m_page->init(m_db->createHint(RecordingFolderType).get());
    QCOMPARE(m_mode->currentIndex(), 2);
    QCOMPARE(m_bandwidth->currentIndex(), 3);
    QCOMPARE(accept("folder"), QString());
    m_page->accept(static_cast<Node*>(nullptr));
}

void tst_ControlDataWidget::readOnly()
{
    for (const bool readOnly : {true, false}) {
        m_page->setReadOnly(readOnly);
        QCOMPARE(m_mode->isEnabled(), !readOnly);
        QCOMPARE(m_bandwidth->isEnabled(), !readOnly);
    }
}

KO_TEST_MAIN(tst_ControlDataWidget)
#include "tst_controldatawidget.moc"
