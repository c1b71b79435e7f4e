#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "pages/PTZRotorControlWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

using namespace ko;
using testsupport::child;

class tst_PTZRotorControlWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<testsupport::SmallNodeDB>();
        m_page = std::make_unique<PTZRotorControlWidget>(nullptr);
        m_type = child<QComboBox>(m_page.get(), "typeComboBox");
    }
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void headTypes();
    void addressedHeadShowsItsRows_data();
    void addressedHeadShowsItsRows();
    void loadsWhatTheNodeHas();
    void lackingPropertiesAreDisabled();
    void storedCodeThatIsNotOffered();
    void acceptWritesAllInOrder();
    void readOnlyLeavesAddressAndZoom();
    void hintsAreLeftAlone();
    void missingNode();

private:
    QStringList addressedRows();
    QStringList accept(const QString& id);

    std::unique_ptr<testsupport::SmallNodeDB> m_db;
    std::unique_ptr<PTZRotorControlWidget> m_page;
    QComboBox* m_type = nullptr;
};

QStringList tst_PTZRotorControlWidget::addressedRows()
{
    QStringList shown;
    for (const char* name :
         {"zoomDirectLabel", "zoomDirectCheckBox", "addressSpinBox", "cameraAddressLabel"}) {
        if (!child<QWidget>(m_page.get(), name)->isHidden())
            shown.append(name);
    }
    return shown;
}

QStringList tst_PTZRotorControlWidget::accept(const QString& id)
{
    m_db->clearCalls();
    Node* node = m_db->beginUpdateNode(id, -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    return m_db->calls.mid(1, m_db->calls.size() - 2);
}

void tst_PTZRotorControlWidget::form()
{
    QCOMPARE(m_page->objectName(), QString("PTZRotorControlWidget"));
    QCOMPARE(QString(m_page->metaObject()->className()), QString("ko::PTZRotorControlWidget"));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    QVERIFY(m_page->metaObject()->indexOfSlot("enableRotorHeadSettings(int)") >= 0);
    QCOMPARE(m_type->count(), 0);
    const QList<QPair<const char*, const char*>> labels = {{"label", "Type:"},
                                                           {"label_2", "Sensitivity:"},
                                                           {"label_3", "Fast Patch:"},
                                                           {"label_4", "Joystick control:"},
                                                           {"zoomDirectLabel", "Mechanical zoom:"},
                                                           {"cameraAddressLabel", "PTZ head address:"}};
    int previous = -1;
    for (const auto& label : labels) {
        auto* widget = child<QLabel>(m_page.get(), label.first);
        QCOMPARE(widget->text(), QString(label.second));
        const int row = testsupport::gridCell(child<QGridLayout>(m_page.get(), "gridLayout"), widget)
                            .section(',', 0, 0)
                            .toInt();
        QVERIFY(row > previous);
        previous = row;
    }
    QCOMPARE(testsupport::comboItems(child<QComboBox>(m_page.get(), "sensitivityComboBox")),
             QStringList({":Ultra short", ":Short", ":Exponential", ":Linear", ":Normal"}));
    QCOMPARE(child<QCheckBox>(m_page.get(), "invertHorizontalCheckBox")->text(),
             QString("Invert horizontal direction"));
    QCOMPARE(child<QCheckBox>(m_page.get(), "invertVerticalCheckBox")->text(),
             QString("Invert vertical direction"));
    QCOMPARE(child<QCheckBox>(m_page.get(), "zoomDirectCheckBox")->statusTip(),
             QString("Send zoom command directly to PTZ head."));
    const auto* address = child<QSpinBox>(m_page.get(), "addressSpinBox");
    QCOMPARE(address->minimum(), 1);
    QCOMPARE(address->maximum(), 255);
    QCOMPARE(address->toolTip(), QString("Valid range: 1 to 255."));
    QCOMPARE(address->statusTip(), QString("Logical address of the PTZ head"));
}

void tst_PTZRotorControlWidget::headTypes()
{
    m_db->addCamera("cam", "Gate").setIntProperty("RotorControl", 5);
    m_page->init(QString("cam"));
    QCOMPARE(testsupport::comboItems(m_type),
             QStringList({"0:No pan/tilt head", "1:Videotronic SN-15AH", "2:Provitek", "3:VPT42/VPT501",
                          "5:Provitek PT2", "6:Provitek PT3", "7:Provitek PT4", "8:Pelco D"}));
    QCOMPARE(m_type->currentText(), QString("Provitek PT2"));
}

void tst_PTZRotorControlWidget::addressedHeadShowsItsRows_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("rows");
    for (const int code : {0, 1, 2, 3, 4, 5, 6, 7, 8})
        QTest::addRow("%d", code) << code << (code == 8 ? 4 : 0);
}

void tst_PTZRotorControlWidget::addressedHeadShowsItsRows()
{
    QFETCH(int, code);
    QFETCH(int, rows);
    m_db->addCamera("cam", "Gate").setIntProperty("RotorControl", code);
    m_page->init(QString("cam"));
    QCOMPARE(addressedRows().size(), rows);
    m_type->setCurrentIndex(m_type->findText("Pelco D"));
    QCOMPARE(addressedRows().size(), 4);
    m_type->setCurrentIndex(0);
    QCOMPARE(addressedRows().size(), 0);
}

void tst_PTZRotorControlWidget::loadsWhatTheNodeHas()
{
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    camera.setIntProperty("RotorControl", 8);
    camera.setIntProperty("PTZRotorAddress", 0); // shown as the smallest
    camera.setBoolProperty("PTZRotorZoom", true);
    camera.setIntProperty("RotorSensitivity", 3);
    camera.setBoolProperty("RotorFastMode", true);
    camera.setBoolProperty("PTZInvertX", true);
    camera.setBoolProperty("PTZInvertY", false);
    m_page->init(QString("cam"));
    QCOMPARE(m_type->currentText(), QString("Pelco D"));
    QCOMPARE(child<QSpinBox>(m_page.get(), "addressSpinBox")->value(), 1);
    QVERIFY(child<QCheckBox>(m_page.get(), "zoomDirectCheckBox")->isChecked());
    QCOMPARE(child<QComboBox>(m_page.get(), "sensitivityComboBox")->currentText(), QString("Linear"));
    QVERIFY(child<QCheckBox>(m_page.get(), "fastPatchCheckBox")->isChecked());
    QVERIFY(child<QCheckBox>(m_page.get(), "invertHorizontalCheckBox")->isChecked());
    QVERIFY(!child<QCheckBox>(m_page.get(), "invertVerticalCheckBox")->isChecked());
    QCOMPARE(accept("cam").at(0), QString("setIntProperty(RotorControl,8)"));
}

void tst_PTZRotorControlWidget::lackingPropertiesAreDisabled()
{
    m_db->addCamera("cam", "Gate");
    m_page->init(QString("cam"));
    QCOMPARE(m_type->count(), 0);
    for (const char* name : {"typeComboBox", "addressSpinBox", "zoomDirectCheckBox", "sensitivityComboBox",
                             "fastPatchCheckBox", "invertHorizontalCheckBox", "invertVerticalCheckBox"})
        QVERIFY2(!child<QWidget>(m_page.get(), name)->isEnabled(), name);
    accept("cam");
    QCOMPARE(m_db->node("cam")->intProperty("RotorControl", -7), 0);
}

void tst_PTZRotorControlWidget::storedCodeThatIsNotOffered()
{
    m_db->addCamera("cam", "Gate").setIntProperty("RotorControl", 4);
    m_page->init(QString("cam"));
    QCOMPARE(m_type->currentIndex(), -1);
    QVERIFY(addressedRows().isEmpty());
    accept("cam");
    QCOMPARE(m_db->node("cam")->intProperty("RotorControl", -7), 0);
}

void tst_PTZRotorControlWidget::acceptWritesAllInOrder()
{
    m_db->addCamera("cam", "Gate").setIntProperty("RotorControl", 2);
    m_page->init(QString("cam"));
    child<QCheckBox>(m_page.get(), "invertVerticalCheckBox")->setChecked(true);
    child<QComboBox>(m_page.get(), "sensitivityComboBox")->setCurrentIndex(4);
    child<QSpinBox>(m_page.get(), "addressSpinBox")->setValue(17); // hidden, written all the same
    QCOMPARE(accept("cam"),
             QStringList({"setIntProperty(RotorControl,2)", "setIntProperty(RotorSensitivity,4)",
                          "setBoolProperty(RotorFastMode,false)", "setBoolProperty(PTZInvertX,false)",
                          "setBoolProperty(PTZInvertY,true)", "setIntProperty(PTZRotorAddress,17)",
                          "setBoolProperty(PTZRotorZoom,false)"}));
}

void tst_PTZRotorControlWidget::readOnlyLeavesAddressAndZoom()
{
    for (const bool readOnly : {true, false}) {
        m_page->setReadOnly(readOnly);
        for (const char* name : {"typeComboBox", "sensitivityComboBox", "fastPatchCheckBox",
                                 "invertHorizontalCheckBox", "invertVerticalCheckBox"})
            QCOMPARE(child<QWidget>(m_page.get(), name)->isEnabled(), !readOnly);
        QVERIFY(child<QSpinBox>(m_page.get(), "addressSpinBox")->isEnabled());
        QVERIFY(!child<QSpinBox>(m_page.get(), "addressSpinBox")->isReadOnly());
        QVERIFY(child<QCheckBox>(m_page.get(), "zoomDirectCheckBox")->isEnabled());
    }
}

void tst_PTZRotorControlWidget::hintsAreLeftAlone()
{
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    m_db->clearCalls();
    m_page->init(hint.get());
    m_page->accept(hint.get());
    QVERIFY(m_db->calls.isEmpty());
    QCOMPARE(m_type->count(), 0);
}

void tst_PTZRotorControlWidget::missingNode()
{
    m_page->init(QString("unknown"));
    QCOMPARE(m_type->count(), 0);
    QVERIFY(m_type->isEnabled());
    m_page->accept(static_cast<Node*>(nullptr));
}

KO_TEST_MAIN(tst_PTZRotorControlWidget)
#include "tst_ptzrotorcontrolwidget.moc"
