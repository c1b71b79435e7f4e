#include "support/DialogCheck.h"
#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "dialogs/NetworkProxyDialog.h"
#include "dialogs/NetworkProxyWidget.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

using namespace ko;
using testsupport::child;

namespace {

/// The controls of a form, wherever it stands.
struct Fields
{
    explicit Fields(const QObject* parent)
        : use(child<QGroupBox>(parent, "proxyGroupBox"))
        , address(child<QLineEdit>(parent, "proxyLineEdit"))
        , port(child<QSpinBox>(parent, "proxySpinBox"))
        , user(child<QLineEdit>(parent, "userNameLineEdit"))
        , password(child<QLineEdit>(parent, "passWordLineEdit"))
        , exceptions(child<QLineEdit>(parent, "exceptionsLineEdit"))
    {
    }

    QGroupBox* const use;
    QLineEdit* const address;
    QSpinBox* const port;
    QLineEdit* const user;
    QLineEdit* const password;
    QLineEdit* const exceptions;
};

} // namespace

class tst_NetworkProxy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<testsupport::SmallNodeDB>();
        GlobalNetworkProxy& proxy = m_db->proxySettings;
        proxy.setProxyAddress("proxy.example.org", 3128);
        proxy.setProxyUser("u", "p@#!");
        proxy.setExceptions("*.example.org; 10.*", ';');
        m_db->clearCalls();
    }
    void cleanup() { m_db.reset(); }

    void widgetForm();
    void widgetLayout();
    void texts();
    void freshForm();
    void portRange();
    void setupFillsTheForm_data();
    void setupFillsTheForm();
    void setDirty();
    void setupAnnouncesNothing();
    void setupTwice();
    void applyOrder();
    void applyTakesTextsAsTyped();
    void applicationProxy();
    void dialogForm();
    void dialogTabOrder();
    void roomForLongTexts();
    void switchedOff();
    void ok();
    void cancel_data();
    void cancel();
    void returnKey();

private:
    std::unique_ptr<testsupport::SmallNodeDB> m_db;
};

void tst_NetworkProxy::widgetForm()
{
    const NetworkProxyWidget widget;
    const Fields fields(&widget);
    QCOMPARE(widget.objectName(), QString("NetworkProxyWidget"));
    QCOMPARE(QString(widget.metaObject()->className()), QString("ko::NetworkProxyWidget"));
    QCOMPARE(widget.size(), QSize(456, 242));
    QCOMPARE(widget.windowTitle(), QString("Form"));
    QVERIFY(fields.use->isCheckable());
    for (const QLineEdit* edit : {fields.address, fields.user, fields.password}) {
        QCOMPARE(edit->minimumWidth(), 150);
        QVERIFY(edit->text().isEmpty());
    }
    QCOMPARE(fields.password->echoMode(), QLineEdit::Password);
    QCOMPARE(fields.user->echoMode(), QLineEdit::Normal);
    const auto* line = child<QFrame>(&widget, "line");
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Sunken);
    const QMetaObject& meta = NetworkProxyWidget::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("setDirty()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void tst_NetworkProxy::widgetLayout()
{
    const NetworkProxyWidget widget;
    const Fields fields(&widget);
    auto* outer = child<QVBoxLayout>(&widget, "verticalLayout_2");
    QCOMPARE(widget.layout(), outer);
    QCOMPARE(outer->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(outer->count(), 1);
    QCOMPARE(outer->itemAt(0)->widget(), fields.use);

    auto* rows = child<QVBoxLayout>(&widget, "verticalLayout");
    QCOMPARE(fields.use->layout(), rows);
    QCOMPARE(rows->count(), 5);
    auto* top = child<QHBoxLayout>(&widget, "horizontalLayout_2");
    QCOMPARE(rows->itemAt(0)->layout(), top);
    QCOMPARE(rows->itemAt(1)->widget(), child<QFrame>(&widget, "line"));
    QCOMPARE(rows->itemAt(2)->widget(), child<QLabel>(&widget, "label_5"));
    QCOMPARE(rows->itemAt(3)->widget(), fields.exceptions);
    QCOMPARE(rows->itemAt(4)->widget(), child<QLabel>(&widget, "label_6"));

    auto* form = child<QFormLayout>(&widget, "formLayout");
    QCOMPARE(top->count(), 2);
    QCOMPARE(top->itemAt(0)->layout(), form);
    QVERIFY(top->itemAt(1)->spacerItem());
    QCOMPARE(top->itemAt(1)->sizeHint(), QSize(0, 20));
    QCOMPARE(top->itemAt(1)->expandingDirections(), Qt::Orientations(Qt::Horizontal));
    QCOMPARE(form->fieldGrowthPolicy(), QFormLayout::FieldsStayAtSizeHint);
    const char* const labels[] = {"label_2", "label_3", "label_4"};
    for (int row = 0; row < 3; ++row)
        QCOMPARE(form->itemAt(row, QFormLayout::LabelRole)->widget(), child<QLabel>(&widget, labels[row]));
    auto* first = child<QHBoxLayout>(&widget, "horizontalLayout");
    QCOMPARE(form->itemAt(0, QFormLayout::FieldRole)->layout(), first);
    QCOMPARE(first->itemAt(0)->widget(), fields.address);
    QCOMPARE(first->itemAt(1)->widget(), child<QLabel>(&widget, "label"));
    QCOMPARE(first->itemAt(2)->widget(), fields.port);
    QCOMPARE(form->itemAt(1, QFormLayout::FieldRole)->widget(), fields.user);
    QCOMPARE(form->itemAt(2, QFormLayout::FieldRole)->widget(), fields.password);
}

void tst_NetworkProxy::texts()
{
    const NetworkProxyWidget widget;
    const Fields fields(&widget);
    QCOMPARE(fields.use->title(), QString("Proxy Server"));
    const struct
    {
        const char* name;
        const char* text;
        const char* buddy;
        bool rightAligned;
    } labels[] = {
        {"label_2", "Address:", "proxyLineEdit", true},
        {"label", "Port:", "proxySpinBox", false},
        {"label_3", "User name:", "userNameLineEdit", true},
        {"label_4", "Password:", "passWordLineEdit", true},
        {"label_5", "Bypass proxy settings for these hosts and domains:", "exceptionsLineEdit", false},
    };
    for (const auto& row : labels) {
        const auto* label = child<QLabel>(&widget, row.name);
        QCOMPARE(label->text(), QString(row.text));
        QCOMPARE(label->buddy()->objectName(), QString(row.buddy));
        if (row.rightAligned)
            QCOMPARE(label->alignment() & (Qt::AlignRight | Qt::AlignVCenter), testsupport::RightCentred);
    }
    const auto* hint = child<QLabel>(&widget, "label_6");
    const QString examples = "*.example.org; 10.*; 192.168.*";
    QCOMPARE(hint->text(), "Use semicolon (;) as separator, e.g.: " + examples);
    QCOMPARE(fields.exceptions->toolTip(),
             "Enter hosts and domains for which proxy settings should not be used.<br>Use semicolon (;) as "
             "separator and asterisk (*) for wildcards, e.g.:<br><b>" +
                 examples + "</b>");
    // What the hint says must be good to type.
    m_db->proxySettings.setExceptions(examples, ';');
    QVERIFY(m_db->proxySettings.isAffectedFromExceptions("cam.example.org"));
    QVERIFY(m_db->proxySettings.isAffectedFromExceptions("192.168.0.1"));
}

void tst_NetworkProxy::freshForm()
{
    const NetworkProxyWidget widget;
    const Fields fields(&widget);
    QCOMPARE(fields.port->value(), 8080);
    QVERIFY(fields.address->text().isEmpty());
    QVERIFY(fields.exceptions->text().isEmpty());
}

void tst_NetworkProxy::portRange()
{
    const NetworkProxyWidget widget;
    QSpinBox* port = Fields(&widget).port;
    QCOMPARE(port->minimum(), 0);
    QCOMPARE(port->maximum(), 65535);
    const struct
    {
        const char* typed;
        int value;
    } rows[] = {{"0", 0}, {"65535", 65535}, {"65536", 6553}, {"-1", 1}};
    for (const auto& row : rows) {
        port->selectAll();
        QTest::keyClicks(port, row.typed); // the key that would go too far is not taken
        QCOMPARE(port->value(), row.value);
    }
}

void tst_NetworkProxy::setupFillsTheForm_data()
{
    QTest::addColumn<bool>("use");
    QTest::newRow("used") << true;
    QTest::newRow("not used") << false;
}

void tst_NetworkProxy::setupFillsTheForm()
{
    QFETCH(bool, use);
    m_db->proxySettings.setUseProxy(use);
    m_db->clearCalls();
    NetworkProxyWidget widget;
    const Fields fields(&widget);
    widget.setup();
    QCOMPARE(fields.use->isChecked(), use);
    QCOMPARE(fields.address->text(), QString("proxy.example.org"));
    QCOMPARE(fields.port->value(), 3128);
    QCOMPARE(fields.user->text(), QString("u"));
    QCOMPARE(fields.password->text(), QString("p@#!"));
    QCOMPARE(fields.exceptions->text(), QString("*.example.org;10.*"));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_NetworkProxy::setDirty()
{
    m_db->proxySettings.setUseProxy(true);
    NetworkProxyWidget widget;
    const Fields fields(&widget);
    QSignalSpy dirty(&widget, SIGNAL(setDirty()));
    QTest::keyClicks(fields.address, "early"); // not connected before setup()
    QCOMPARE(dirty.count(), 0);
    widget.setup();
    QTest::keyClicks(fields.address, "abc");
    QCOMPARE(dirty.count(), 3);
    QTest::keyClick(fields.port, Qt::Key_Up);
    QCOMPARE(dirty.count(), 4);
    QTest::keyClicks(fields.exceptions, ";x");
    QCOMPARE(dirty.count(), 6);
    fields.use->setChecked(false);
    fields.use->setChecked(true);
    QCOMPARE(dirty.count(), 8);
    QTest::keyClicks(fields.user, "abc");
    QTest::keyClicks(fields.password, "abc");
    QCOMPARE(dirty.count(), 8);
}

void tst_NetworkProxy::setupAnnouncesNothing()
{
    NetworkProxyWidget widget;
    QSignalSpy dirty(&widget, SIGNAL(setDirty()));
    widget.setup();
    QCOMPARE(dirty.count(), 0);
}

void tst_NetworkProxy::setupTwice()
{
    NetworkProxyWidget widget;
    widget.setup();
    widget.setup();
    QSignalSpy dirty(&widget, SIGNAL(setDirty()));
    Fields(&widget).address->setText("x");
    QCOMPARE(dirty.count(), 2);
}

void tst_NetworkProxy::applyOrder()
{
    NetworkProxyWidget widget;
    widget.setup();
    const Fields fields(&widget);
    fields.address->setText("other");
    fields.port->setValue(0);
    fields.user->setText("user");
    fields.password->setText("pass");
    fields.exceptions->setText("10.*; b ;;c");
    widget.apply();
    const QStringList calls = {"globalProxy.setUseProxy(false)", "globalProxy.setProxyAddress(other,0)",
                               "globalProxy.setProxyUser(user,pass)",
                               "globalProxy.setSaveProxyPassword(true)",
                               "globalProxy.setExceptions(10.*; b ;;c,;)"};
    QCOMPARE(m_db->calls, calls);
    QVERIFY(m_db->proxySettings.saveProxyPassword());
    QCOMPARE(m_db->proxySettings.exceptions(), QStringList({"10.*", "b", "c"}));
    widget.apply(); // writes again
    QCOMPARE(m_db->calls, calls + calls);
    fields.use->setChecked(true);
    m_db->clearCalls();
    widget.apply();
    QCOMPARE(m_db->calls.first(), QString("globalProxy.setUseProxy(true)"));
}

void tst_NetworkProxy::applyTakesTextsAsTyped()
{
    NetworkProxyWidget widget;
    widget.setup();
    const Fields fields(&widget);
    fields.address->setText("  ");
    fields.user->setText(" u ");
    fields.password->setText(" p ");
    fields.exceptions->setText("  ;** ");
    m_db->clearCalls();
    widget.apply();
    QCOMPARE(m_db->calls.mid(1),
             QStringList({"globalProxy.setProxyAddress(  ,3128)", "globalProxy.setProxyUser( u , p )",
                          "globalProxy.setSaveProxyPassword(true)", "globalProxy.setExceptions(  ;** ,;)"}));
}

void tst_NetworkProxy::applicationProxy()
{
    const NetworkProxy before = m_db->proxySettings;
    NetworkProxyWidget::setApplicationProxy();
    QVERIFY(m_db->calls.isEmpty());
    QVERIFY(before == m_db->proxySettings);
}

void tst_NetworkProxy::dialogForm()
{
    const NetworkProxyDialog dialog(nullptr, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    QCOMPARE(dialog.objectName(), QString("NetworkProxyDialog"));
    QCOMPARE(QString(dialog.metaObject()->className()), QString("ko::NetworkProxyDialog"));
    QCOMPARE(dialog.size(), QSize(328, 105));
    QCOMPARE(dialog.windowTitle(), QString("Network Proxy"));
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    auto* rows = child<QVBoxLayout>(&dialog, "verticalLayout");
    QCOMPARE(dialog.layout(), rows);
    QCOMPARE(rows->count(), 3);
    QCOMPARE(rows->itemAt(0)->widget(), child<NetworkProxyWidget>(&dialog, "proxyWidget"));
    QVERIFY(rows->itemAt(1)->spacerItem());
    QCOMPARE(rows->itemAt(1)->sizeHint(), QSize(20, 106));
    QCOMPARE(rows->itemAt(1)->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(rows->itemAt(1)->spacerItem()->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    const auto* box = child<QDialogButtonBox>(&dialog, "buttonBox");
    QCOMPARE(rows->itemAt(2)->widget(), box);
    QCOMPARE(box->orientation(), Qt::Horizontal);
    QCOMPARE(box->standardButtons(),
             QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_NetworkProxy::dialogTabOrder()
{
    m_db->proxySettings.setUseProxy(true);
    NetworkProxyDialog dialog;
    dialog.show();
    const QStringList order = testsupport::tabOrder(&dialog);
    QCOMPARE(order.mid(0, 6), QStringList({"proxyGroupBox", "proxyLineEdit", "proxySpinBox",
                                           "userNameLineEdit", "passWordLineEdit", "exceptionsLineEdit"}));
    QCOMPARE(order.size(), 8); // then the buttons, in the desktop's order
    QVERIFY(order.contains("OK") && order.contains("Cancel"));
}

void tst_NetworkProxy::roomForLongTexts()
{
    NetworkProxyDialog dialog;
    dialog.show();
    QCOMPARE(testsupport::cutOff(&dialog), QStringList());
    const testsupport::LongLanguage language;
    NetworkProxyDialog translated;
    translated.show();
    QCOMPARE(testsupport::cutOff(&translated), QStringList());
}

void tst_NetworkProxy::switchedOff()
{
    NetworkProxyDialog dialog;
    dialog.show();
    const Fields fields(&dialog);
    QVERIFY(!fields.use->isChecked());
    const QList<QWidget*> inside = {fields.address, fields.port, fields.user, fields.password,
                                    fields.exceptions};
    for (const QWidget* widget : inside)
        QVERIFY(!widget->isEnabled());
    QCOMPARE(fields.address->text(), QString("proxy.example.org"));
    QCOMPARE(fields.port->value(), 3128);
    QCOMPARE(fields.user->text(), QString("u"));
    QCOMPARE(fields.password->text(), QString("p@#!"));
    QTest::keyClick(fields.use, Qt::Key_Space);
    for (const QWidget* widget : inside)
        QVERIFY(widget->isEnabled());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_NetworkProxy::ok()
{
    m_db->proxySettings.setUseProxy(true);
    NetworkProxyDialog dialog;
    dialog.show();
    const Fields fields(&dialog);
    QTest::keyClicks(fields.exceptions, "; 192.168.*");
    m_db->clearCalls();
    QTest::mouseClick(child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QCOMPARE(
        m_db->calls,
        QStringList({"globalProxy.setUseProxy(true)", "globalProxy.setProxyAddress(proxy.example.org,3128)",
                     "globalProxy.setProxyUser(u,p@#!)", "globalProxy.setSaveProxyPassword(true)",
                     "globalProxy.setExceptions(*.example.org;10.*; 192.168.*,;)"}));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void tst_NetworkProxy::cancel_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void tst_NetworkProxy::cancel()
{
    QFETCH(bool, escape);
    m_db->proxySettings.setUseProxy(true);
    NetworkProxyDialog dialog;
    dialog.show();
    const Fields fields(&dialog);
    fields.address->setText("other");
    fields.exceptions->setText("");
    fields.use->setChecked(false);
    m_db->clearCalls();
    if (escape)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        QTest::mouseClick(child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(m_db->calls.isEmpty());
    QCOMPARE(m_db->proxySettings.proxyAddress(), QString("proxy.example.org"));
    QVERIFY(m_db->proxySettings.useProxy());
}

void tst_NetworkProxy::returnKey()
{
    m_db->proxySettings.setUseProxy(true);
    NetworkProxyDialog dialog;
    dialog.show();
    QTest::keyClick(Fields(&dialog).address, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

KO_TEST_MAIN(tst_NetworkProxy)
#include "tst_networkproxy.moc"
