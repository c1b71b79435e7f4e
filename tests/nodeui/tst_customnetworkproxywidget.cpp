#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "ko/NodeHintIPDevice.h"
#include "pages/CustomNetworkProxyWidget.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>

using namespace ko;
using testsupport::child;

class tst_CustomNetworkProxyWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<testsupport::SmallNodeDB>();
        m_page = std::make_unique<CustomNetworkProxyWidget>();
        m_use = child<QCheckBox>(m_page.get(), "customProxyCheckBox");
    }
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void unusedProxyIsShownDisabled();
    void checkBoxEnablesFields();
    void partiallyCheckedCountsAsUnchecked();
    void readOnly();
    void acceptOrder();
    void unchangedAcceptKeepsSettings();
    void hint();
    void otherNodesAndHints();

private:
    QList<bool> enabled();
    void fill(NetworkProxy& proxy, bool use);

    std::unique_ptr<testsupport::SmallNodeDB> m_db;
    std::unique_ptr<CustomNetworkProxyWidget> m_page;
    QCheckBox* m_use = nullptr;
};

QList<bool> tst_CustomNetworkProxyWidget::enabled()
{
    QList<bool> states;
    for (const char* name :
         {"proxyAddressLineEdit", "proxyPortSpinBox", "proxyUsernameLineEdit", "proxyPasswordLineEdit"})
        states.append(child<QWidget>(m_page.get(), name)->isEnabled());
    return states;
}

void tst_CustomNetworkProxyWidget::fill(NetworkProxy& proxy, bool use)
{
    proxy.setProxyAddress("proxy.example.org", 3128);
    proxy.setProxyUser("u", "p@#!^/:%");
    proxy.setUseProxy(use);
}

void tst_CustomNetworkProxyWidget::form()
{
    using testsupport::RightCentred;
    QCOMPARE(m_page->objectName(), QString("CustomNetworkProxyWidget"));
    QCOMPARE(QString(m_page->metaObject()->className()), QString("ko::CustomNetworkProxyWidget"));
    QCOMPARE(m_page->size(), QSize(291, 144));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    testsupport::checkCaptions(m_page.get(),
                               {{"label_6", "Address:", 100, RightCentred, "proxyAddressLineEdit"},
                                {"label_7", "Port:", 100, RightCentred, "proxyPortSpinBox"},
                                {"label_8", "User name:", 100, RightCentred, "proxyUsernameLineEdit"},
                                {"label_9", "Password:", 100, RightCentred, "proxyPasswordLineEdit"}});
    QCOMPARE(m_use->text(), QString("Use custom proxy"));
    QVERIFY(m_use->font().bold());
    const auto* port = child<QSpinBox>(m_page.get(), "proxyPortSpinBox");
    QCOMPARE(port->minimum(), 0);
    QCOMPARE(port->maximum(), 65535);
    QCOMPARE(port->value(), 0);
    QCOMPARE(child<QLineEdit>(m_page.get(), "proxyPasswordLineEdit")->echoMode(), QLineEdit::Password);
    QCOMPARE(enabled(), QList<bool>({true, true, true, true})); // until init() runs
    auto* layout = child<QFormLayout>(m_page.get(), "formLayout");
    int row = -1;
    QFormLayout::ItemRole role = QFormLayout::LabelRole;
    layout->getWidgetPosition(m_use, &row, &role);
    QCOMPARE(row, 0);
    QCOMPARE(role, QFormLayout::SpanningRole);
    layout->getWidgetPosition(child<QWidget>(m_page.get(), "widget"), &row, &role);
    QCOMPARE(row, 2);
    QVERIFY(m_page->metaObject()->indexOfSlot("checkBoxStateChanged(int)") >= 0);
}

void tst_CustomNetworkProxyWidget::unusedProxyIsShownDisabled()
{
    fill(m_db->addCamera("cam", "Gate").proxy(), false);
    m_page->init(QString("cam"));
    QVERIFY(!m_use->isChecked());
    QCOMPARE(enabled(), QList<bool>({false, false, false, false}));
    QCOMPARE(child<QLineEdit>(m_page.get(), "proxyAddressLineEdit")->text(), QString("proxy.example.org"));
    QCOMPARE(child<QSpinBox>(m_page.get(), "proxyPortSpinBox")->value(), 3128);
    QCOMPARE(child<QLineEdit>(m_page.get(), "proxyUsernameLineEdit")->text(), QString("u"));
    QCOMPARE(child<QLineEdit>(m_page.get(), "proxyPasswordLineEdit")->text(), QString("p@#!^/:%"));
}

void tst_CustomNetworkProxyWidget::checkBoxEnablesFields()
{
    fill(m_db->addCamera("cam", "Gate").proxy(), false);
    m_page->init(QString("cam"));
    m_page->show();
    QTest::mouseClick(m_use, Qt::LeftButton, Qt::NoModifier, QPoint(8, m_use->height() / 2));
    QCOMPARE(enabled(), QList<bool>({true, true, true, true}));
    QTest::mouseClick(m_use, Qt::LeftButton, Qt::NoModifier, QPoint(8, m_use->height() / 2));
    QCOMPARE(enabled(), QList<bool>({false, false, false, false}));
}

void tst_CustomNetworkProxyWidget::partiallyCheckedCountsAsUnchecked()
{
    m_use->setTristate(true);
    m_use->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(enabled(), QList<bool>({false, false, false, false}));
}

void tst_CustomNetworkProxyWidget::readOnly()
{
    for (const bool use : {false, true}) {
        fill(m_db->addCamera(use ? "used" : "unused", "Gate").proxy(), use);
        m_page->init(QString(use ? "used" : "unused"));
        m_page->setReadOnly(true);
        QVERIFY(!m_use->isEnabled());
        QCOMPARE(enabled(), QList<bool>({false, false, false, false}));
        m_page->setReadOnly(false);
        QVERIFY(m_use->isEnabled());
        QCOMPARE(enabled(), QList<bool>({use, use, use, use}));
    }
}

void tst_CustomNetworkProxyWidget::acceptOrder()
{
    m_db->addCamera("cam", "Gate");
    m_page->init(QString("cam"));
    child<QLineEdit>(m_page.get(), "proxyAddressLineEdit")->setText(" p ");
    child<QSpinBox>(m_page.get(), "proxyPortSpinBox")->setValue(1);
    child<QLineEdit>(m_page.get(), "proxyUsernameLineEdit")->setText("u");
    child<QLineEdit>(m_page.get(), "proxyPasswordLineEdit")->setText("w");
    m_db->clearCalls();
    Node* node = m_db->beginUpdateNode("cam", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    QStringList calls;
    for (const QString& call : std::as_const(m_db->calls))
        calls.append(call.mid(call.indexOf("proxy.") < 0 ? 0 : call.indexOf("set")));
    QCOMPARE(calls, QStringList({"beginUpdateNode(cam,-1)", "setProxyAddress( p ,1)", "setProxyUser(u,w)",
                                 "setUseProxy(false)", "endUpdateNode(cam)"}));
}

void tst_CustomNetworkProxyWidget::unchangedAcceptKeepsSettings()
{
    NetworkProxy& stored = m_db->addCamera("cam", "Gate").proxy();
    fill(stored, true);
    stored.setSaveProxyPassword(true); // not this page's to change
    NetworkProxy expected;
    fill(expected, true);
    expected.setSaveProxyPassword(true);
    m_page->init(QString("cam"));
    Node* node = m_db->beginUpdateNode("cam", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    QVERIFY(m_db->node("cam").cast<const IPDeviceNode>()->proxy() == expected);
}

void tst_CustomNetworkProxyWidget::hint()
{
    const kom::smart<NodeHintIPDevice> hint = m_db->createHint(IPDeviceType).cast<NodeHintIPDevice>();
    fill(hint->proxy, true);
    m_page->init(hint.get());
    QVERIFY(m_use->isChecked());
    QCOMPARE(enabled(), QList<bool>({true, true, true, true}));
    child<QLineEdit>(m_page.get(), "proxyAddressLineEdit")->setText("other");
    m_use->setChecked(false);
    m_page->accept(hint.get());
    QCOMPARE(hint->proxy.proxyAddress(), QString("other"));
    QCOMPARE(hint->proxy.proxyPort(), 3128);
    QVERIFY(!hint->proxy.useProxy());
}

void tst_CustomNetworkProxyWidget::otherNodesAndHints()
{
    m_db->addNode(RecordingFolderType, "folder", "f");
    const kom::smart<NodeHint> hint = m_db->createHint(RecordingFolderType);
    child<QLineEdit>(m_page.get(), "proxyAddressLineEdit")->setText("kept");
    m_page->init(QString("folder"));
    m_page->init(QString("unknown"));
    m_page->init(hint.get());
    QCOMPARE(child<QLineEdit>(m_page.get(), "proxyAddressLineEdit")->text(), QString("kept"));
    QCOMPARE(enabled(), QList<bool>({true, true, true, true}));
    m_db->clearCalls();
    m_page->accept(hint.get());
    Node* node = m_db->beginUpdateNode("folder", -1);
    m_page->accept(node);
    m_db->endUpdateNode(node);
    QCOMPARE(m_db->calls, QStringList({"beginUpdateNode(folder,-1)", "endUpdateNode(folder)"}));
    m_page->accept(static_cast<Node*>(nullptr));
}

KO_TEST_MAIN(tst_CustomNetworkProxyWidget)
#include "tst_customnetworkproxywidget.moc"
