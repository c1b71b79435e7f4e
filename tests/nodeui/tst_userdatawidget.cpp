#include "support/DialogCheck.h"
#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "interfaces/ISupportsChannels.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/dialogFlags.h"
#include "pages/UserDataWidget.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

/// A node with channels that is no IP device.
class ChannelOnlyNode : public Node, public virtual ISupportsChannels
{
public:
    ChannelOnlyNode()
        : Node(ViewType)
    {
    }

    int used = 3;

    void setChannel(int channel) override { used = channel; }
    int channel() const override { return used; }

    QString id() const override { return "recorder"; }
    QString name() const override { return QString(); }
    QIcon icon() const override { return QIcon(); }
    InspectorWidget* createInspectorWidget(bool, unsigned) const override { return nullptr; }
    void takeOverProperties(const NodeHint&) override {}
    void* creationContext() const override { return nullptr; }
    bool hasCreationContext() const override { return false; }
    const kogen::PropertySet& properties() const override { return m_none; }
    bool hasProperty(const QString&) const override { return false; }
    bool boolProperty(const QString&, bool fallback) const override { return fallback; }
    void setBoolProperty(const QString&, bool) override {}
    int intProperty(const QString&, int fallback) const override { return fallback; }
    void setIntProperty(const QString&, int) override {}
    QString stringProperty(const QString&, const QString& fallback) const override { return fallback; }
    void setStringProperty(const QString&, const QString&) override {}
    float floatProperty(const QString&, float fallback) const override { return fallback; }
    void setFloatProperty(const QString&, float) override {}
    kogen::PropertySet propertySetProperty(const QString&, const kogen::PropertySet& fallback) const override
    {
        return fallback;
    }
    void setPropertySetProperty(const QString&, const kogen::PropertySet&) override {}
    void addProperty(const kogen::BaseProperty&) override {}

private:
    const kogen::PropertySet m_none;
};

class Database : public testsupport::SmallNodeDB
{
public:
    kom::smart<const Node> special; ///< answered for every id, if there is one

    kom::smart<const Node> node(const QString& id) const override
    {
        return special.null() ? SmallNodeDB::node(id) : special;
    }
};

class Page : public UserDataWidget
{
public:
    Page()
        : UserDataWidget(nullptr)
    {
    }
    using UserDataWidget::acceptProxy;
};

} // namespace

class tst_UserDataWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_db = std::make_unique<Database>();
        IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
        camera.setAddress("10.0.0.1");
        camera.setPort(8081);
        camera.setUseSSL(true);
        camera.setUser("u", "p@#!");
        m_db->addCamera("other", "Yard");
        m_page = std::make_unique<Page>();
        m_address = child<QLineEdit>(m_page.get(), "addressLineEdit");
        m_port = child<QSpinBox>(m_page.get(), "portSpinBox");
        m_ssl = child<QCheckBox>(m_page.get(), "sslCheckBox");
        m_bypass = child<QCheckBox>(m_page.get(), "bypassProxyCheckBox");
        m_channel = child<QSpinBox>(m_page.get(), "channelSpinBox");
        m_db->clearCalls();
    }
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void metaObject();
    void tabOrder();
    void roomForLongTexts();
    void nameProposal();
    void sslChanged();
    void setPort_data();
    void setPort();
    void initFromNode();
    void initFromMissingNode();
    void initFromHint();
    void channelOfNode();
    void channelOfHint();
    void channelOnlyNode();
    void acceptOrder();
    void acceptUnchanged();
    void addressComparisonIsExact();
    void onlyPortChanged();
    void acceptHint();
    void otherHintsAndNull();
    void bypassNotOffered();
    void bypassFollowsProxy();
    void bypassDisabledWithoutProxy();
    void bypassAdded();
    void bypassAlreadyCovered();
    void bypassRemoved();
    void bypassStillCovered();
    void exceptionsAreShownAsTyped();
    void entriesAreComparedExactly();
    void readOnly();
    void readOnlyAndProxyOrder();

private:
    QString text(const char* name) { return child<QLineEdit>(m_page.get(), name)->text(); }
    QStringList acceptInto(const QString& id);

    std::unique_ptr<Database> m_db;
    std::unique_ptr<Page> m_page;
    QLineEdit* m_address = nullptr;
    QSpinBox* m_port = nullptr;
    QCheckBox* m_ssl = nullptr;
    QCheckBox* m_bypass = nullptr;
    QSpinBox* m_channel = nullptr;
};

/// What accepting the page into a node does between opening and storing it.
QStringList tst_UserDataWidget::acceptInto(const QString& id)
{
    Node* node = m_db->beginUpdateNode(id, -1);
    m_db->clearCalls();
    m_page->accept(node);
    const QStringList calls = m_db->calls;
    m_db->endUpdateNode(node);
    return calls;
}

void tst_UserDataWidget::form()
{
    using testsupport::RightCentred;
    QCOMPARE(m_page->objectName(), QString("UserDataWidget"));
    QCOMPARE(m_page->size(), QSize(354, 139));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    testsupport::checkCaptions(m_page.get(),
                               {{"label", "Address:", 100, RightCentred, "addressLineEdit"},
                                {"label_3", "Port:", 0, RightCentred, "portSpinBox"},
                                {"channelLabel", "Channel:", 0, RightCentred, "channelSpinBox"},
                                {"label_4", "User name:", 100, RightCentred, "usernameLineEdit"},
                                {"label_5", "Password:", 100, RightCentred, "passwordLineEdit"}});
    QCOMPARE(child<QVBoxLayout>(m_page.get(), "verticalLayout")->contentsMargins(), QMargins(0, 0, 0, 0));
    auto* grid = child<QGridLayout>(m_page.get(), "gridLayout");
    QCOMPARE(grid->contentsMargins(), QMargins(2, 2, 2, 2));
    const struct
    {
        const char* name;
        const char* cell;
    } cells[] = {{"label", "0,0,1,1"},          {"addressLineEdit", "0,1,1,1"},
                 {"label_3", "0,2,1,1"},        {"portSpinBox", "0,3,1,1"},
                 {"sslCheckBox", "1,1,1,1"},    {"channelLabel", "1,2,1,1"},
                 {"channelSpinBox", "1,3,1,1"}, {"bypassProxyCheckBox", "2,1,1,1"},
                 {"label_4", "3,0,1,1"},        {"usernameLineEdit", "3,1,1,1"},
                 {"label_5", "4,0,1,1"},        {"passwordLineEdit", "4,1,1,1"}};
    for (const auto& cell : cells)
        QCOMPARE(testsupport::gridCell(grid, child<QWidget>(m_page.get(), cell.name)), QString(cell.cell));
    QCOMPARE(m_address->minimumWidth(), 120);
    QCOMPARE(m_port->minimum(), 0);
    QCOMPARE(m_port->maximum(), 65535);
    QCOMPARE(m_channel->minimum(), 1);
    QCOMPARE(m_channel->maximum(), 4);
    QCOMPARE(m_ssl->text(), QString("Secure connection (SSL)"));
    QCOMPARE(m_ssl->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(m_bypass->text(), QString("Bypass proxy"));
    QCOMPARE(m_bypass->toolTip(), QString("Bypass proxy settings for this camera."));
    QCOMPARE(child<QLineEdit>(m_page.get(), "usernameLineEdit")->echoMode(), QLineEdit::Normal);
    QCOMPARE(child<QLineEdit>(m_page.get(), "passwordLineEdit")->echoMode(), QLineEdit::Password);
}

void tst_UserDataWidget::metaObject()
{
    const QMetaObject& meta = UserDataWidget::staticMetaObject;
    QCOMPARE(QString(meta.className()), QString("ko::UserDataWidget"));
    const int first = meta.methodOffset();
    QCOMPARE(meta.method(first).methodSignature(), QByteArray("nameProposal(QString)"));
    QCOMPARE(meta.method(first).parameterNames(), QList<QByteArray>({"name"}));
    QCOMPARE(meta.method(first + 1).methodSignature(), QByteArray("sslChanged(int)"));
    QCOMPARE(meta.method(first + 1).parameterNames(), QList<QByteArray>({"state"}));
    QCOMPARE(testsupport::declaredSlots(meta), QStringList("proxySettings()"));
}

void tst_UserDataWidget::tabOrder()
{
    m_db->addChannelDevice("encoder", "Encoder");
    m_db->proxySettings.setUseProxy(true);
    m_page->init(QString("encoder"), true);
    m_page->show();
    QCOMPARE(testsupport::tabOrder(m_page.get()),
             QStringList({"addressLineEdit", "portSpinBox", "sslCheckBox", "channelSpinBox",
                          "bypassProxyCheckBox", "usernameLineEdit", "passwordLineEdit"}));
}

void tst_UserDataWidget::roomForLongTexts()
{
    m_page->show();
    QCOMPARE(testsupport::cutOff(m_page.get()), QStringList());
    m_page->hide();
    const testsupport::LongLanguage language;
    Page translated;
    translated.resize(translated.sizeHint());
    translated.show();
    QCOMPARE(testsupport::cutOff(&translated), QStringList());
}

void tst_UserDataWidget::nameProposal()
{
    m_page->init(QString("cam"), false);
    QSignalSpy proposals(m_page.get(), SIGNAL(nameProposal(QString)));
    m_address->clear();
    QCOMPARE(proposals.count(), 1);
    QTest::keyClicks(m_address, "gate");
    QStringList names;
    for (const QList<QVariant>& arguments : proposals)
        names.append(arguments.first().toString());
    QCOMPARE(names, QStringList({"", "g", "ga", "gat", "gate"}));
}

void tst_UserDataWidget::sslChanged()
{
    QSignalSpy changes(m_page.get(), SIGNAL(sslChanged(int)));
    m_page->show();
    m_port->setValue(80);
    for (const int state : {2, 0}) {
        QTest::mouseClick(m_ssl, Qt::LeftButton, Qt::NoModifier, QPoint(8, m_ssl->height() / 2));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.takeFirst().at(0).toInt(), state);
        QCOMPARE(m_port->value(), 80); // a default port is the owner's affair
    }
}

void tst_UserDataWidget::setPort_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<int>("shown");
    QTest::newRow("usual") << 443 << 443;
    QTest::newRow("lowest") << 0 << 0;
    QTest::newRow("highest") << 65535 << 65535;
    QTest::newRow("too low") << -1 << 0;
    QTest::newRow("too high") << 65536 << 65535;
}

void tst_UserDataWidget::setPort()
{
    QFETCH(int, port);
    m_port->setValue(80);
    m_page->setPort(port);
    QTEST(m_port->value(), "shown");
}

void tst_UserDataWidget::initFromNode()
{
    m_page->init(QString("cam"), true);
    QCOMPARE(m_address->text(), QString("10.0.0.1"));
    QCOMPARE(m_port->value(), 8081);
    QVERIFY(m_ssl->isChecked());
    QCOMPARE(text("usernameLineEdit"), QString("u"));
    QCOMPARE(text("passwordLineEdit"), QString("p@#!"));
    QVERIFY(!m_bypass->isHidden());
    QVERIFY(m_db->calls.isEmpty()); // reading writes nothing
}

void tst_UserDataWidget::initFromMissingNode()
{
    m_db->addNode(RecordingFolderType, "folder", "f");
    m_page->init(QString("cam"), true);
    for (const char* id : {"unknown", "", "folder"}) {
        m_page->init(QString(id), false);
        QCOMPARE(m_address->text(), QString("10.0.0.1"));
        QCOMPARE(m_port->value(), 8081);
        QCOMPARE(text("passwordLineEdit"), QString("p@#!"));
        QVERIFY(!m_bypass->isHidden());
        QVERIFY(m_channel->isHidden());
    }
}

void tst_UserDataWidget::initFromHint()
{
    const auto hint = m_db->createHint(IPDeviceType).cast<NodeHintIPDevice>();
    hint->address = "gate";
    hint->port = 443;
    hint->useSSL = true;
    hint->user = "u";
    hint->password = "p";
    m_db->proxySettings.setUseProxy(true);
    m_db->proxySettings.setExceptions("gate", ';');
    m_page->init(hint.get(), true);
    QCOMPARE(m_address->text(), QString("gate"));
    QCOMPARE(m_port->value(), 443);
    QVERIFY(m_ssl->isChecked());
    QCOMPARE(text("usernameLineEdit"), QString("u"));
    QCOMPARE(text("passwordLineEdit"), QString("p"));
    QVERIFY(!m_bypass->isHidden() && m_bypass->isChecked() && m_bypass->isEnabled());
    m_page->init(hint.get(), false);
    QVERIFY(m_bypass->isHidden());
}

void tst_UserDataWidget::channelOfNode()
{
    auto& encoder = m_db->addChannelDevice("encoder", "Encoder");
    dynamic_cast<ISupportsChannels&>(encoder).setChannel(3);
    m_page->init(QString("encoder"), false);
    QVERIFY(!m_channel->isHidden());
    QVERIFY(!child<QLabel>(m_page.get(), "channelLabel")->isHidden());
    QCOMPARE(m_channel->value(), 3);
    m_channel->setValue(4);
    QVERIFY(acceptInto("encoder").contains("setChannel(4)"));

    Page plain;
    plain.init(QString("cam"), false);
    QVERIFY(child<QSpinBox>(&plain, "channelSpinBox")->isHidden());
    QVERIFY(child<QLabel>(&plain, "channelLabel")->isHidden());
}

void tst_UserDataWidget::channelOfHint()
{
    const auto hint = m_db->createHint(ChannelDeviceType).cast<NodeHintIPDevice>();
    hint->channel = 2;
    m_page->init(hint.get(), false);
    QVERIFY(!m_channel->isHidden());
    QCOMPARE(m_channel->value(), 2);
    m_channel->setValue(4);
    m_page->accept(hint.get());
    QCOMPARE(hint->channel, 4);

    for (const ENodeType type : {IPDeviceType, UrlCameraType}) {
        const auto other = m_db->createHint(type).cast<NodeHintIPDevice>();
        other->channel = 2;
        Page page;
        page.init(other.get(), false);
        QVERIFY(child<QSpinBox>(&page, "channelSpinBox")->isHidden());
        QVERIFY(child<QLabel>(&page, "channelLabel")->isHidden());
        child<QSpinBox>(&page, "channelSpinBox")->setValue(3);
        page.accept(other.get());
        QCOMPARE(other->channel, 2);
    }
}

void tst_UserDataWidget::channelOnlyNode()
{
    const auto node = kom::makeSmart<ChannelOnlyNode>();
    m_db->special = node;
    m_page->init(QString("recorder"), true);
    QVERIFY(!m_channel->isHidden());
    QCOMPARE(m_channel->value(), 3);
    QVERIFY(m_address->text().isEmpty());
    m_channel->setValue(2);
    m_bypass->setChecked(true);
    m_address->setText("gate");
    m_page->accept(node.get());
    QCOMPARE(node->used, 2);
    m_channel->setValue(4);
    m_channel->hide();
    m_page->accept(node.get());
    QCOMPARE(node->used, 4); // hidden or not
    QVERIFY(m_db->calls.isEmpty());
}

void tst_UserDataWidget::acceptOrder()
{
    m_db->addChannelDevice("encoder", "Encoder");
    m_page->init(QString("encoder"), true);
    m_address->setText("10.0.0.7");
    m_port->setValue(443);
    m_ssl->setChecked(true);
    child<QLineEdit>(m_page.get(), "usernameLineEdit")->setText("user");
    child<QLineEdit>(m_page.get(), "passwordLineEdit")->setText("pass");
    m_bypass->setChecked(true);
    m_channel->setValue(2);
    QCOMPARE(acceptInto("encoder"),
             QStringList({"setAddress(10.0.0.7)", "notifyChange(2)", "setUseSSL(true)", "setPort(443)",
                          "setUser(user,pass)", "setCredentialsEntered(true)",
                          "globalProxy.addException(10.0.0.7)", "setChannel(2)"}));
}

void tst_UserDataWidget::acceptUnchanged()
{
    m_page->init(QString("cam"), true);
    QCOMPARE(acceptInto("cam"), QStringList({"setUseSSL(true)", "setPort(8081)", "setUser(u,p@#!)",
                                             "setCredentialsEntered(true)"}));
}

void tst_UserDataWidget::addressComparisonIsExact()
{
    m_db->addCamera("gate", "Gate").setAddress("gate.example.org");
    m_page->init(QString("gate"), false);
    m_address->setText("Gate.example.org");
    QCOMPARE(acceptInto("gate").mid(0, 2), QStringList({"setAddress(Gate.example.org)", "notifyChange(2)"}));
    m_address->clear(); // is accepted like any other text
    QCOMPARE(acceptInto("gate").mid(0, 2), QStringList({"setAddress()", "notifyChange(2)"}));
}

void tst_UserDataWidget::onlyPortChanged()
{
    m_page->init(QString("cam"), false);
    m_port->setValue(81);
    const QStringList calls = acceptInto("cam");
    QVERIFY(calls.contains("setPort(81)"));
    QVERIFY(calls.filter("setAddress").isEmpty());
    QVERIFY(calls.filter("notifyChange").isEmpty());
}

void tst_UserDataWidget::acceptHint()
{
    const auto hint = m_db->createHint(IPDeviceType).cast<NodeHintIPDevice>();
    m_page->init(hint.get(), true);
    m_address->setText("gate");
    m_port->setValue(0);
    m_ssl->setChecked(true);
    child<QLineEdit>(m_page.get(), "usernameLineEdit")->setText("user");
    child<QLineEdit>(m_page.get(), "passwordLineEdit")->setText("pass");
    m_bypass->setChecked(true);
    QVERIFY(!hint->credentialsEntered);
    m_db->clearCalls();
    m_page->accept(hint.get());
    QCOMPARE(hint->address, QString("gate"));
    QCOMPARE(hint->port, 0);
    QVERIFY(hint->useSSL);
    QCOMPARE(hint->user, QString("user"));
    QCOMPARE(hint->password, QString("pass"));
    QVERIFY(hint->credentialsEntered);
    QCOMPARE(m_db->calls, QStringList("globalProxy.addException(gate)"));
}

void tst_UserDataWidget::otherHintsAndNull()
{
    const kom::smart<NodeHint> folder = m_db->createHint(RecordingFolderType);
    m_page->init(QString("cam"), true);
    m_bypass->setChecked(true);
    m_db->clearCalls();
    m_page->accept(folder.get());
    m_page->accept(static_cast<NodeHint*>(nullptr));
    m_page->accept(static_cast<Node*>(nullptr));
    QVERIFY(m_db->calls.isEmpty());
    m_db->addNode(RecordingFolderType, "folder", "f");
    QCOMPARE(acceptInto("folder"), QStringList());
}

void tst_UserDataWidget::bypassNotOffered()
{
    m_db->proxySettings.setUseProxy(true);
    m_db->proxySettings.setExceptions("10.0.0.1;10.*", ';');
    m_page->init(QString("cam"), false);
    QVERIFY(m_bypass->isHidden());
    for (const bool checked : {false, true}) {
        m_address->setText(checked ? "gate" : "10.0.0.1");
        m_bypass->setChecked(checked);
        QVERIFY(acceptInto("cam").filter("globalProxy").isEmpty());
    }
}

void tst_UserDataWidget::bypassFollowsProxy()
{
    m_db->proxySettings.setUseProxy(true);
    m_page->init(QString("cam"), true);
    QVERIFY(!m_bypass->isChecked());
    m_db->proxySettings.setExceptions("10.*", ';');
    QVERIFY(m_bypass->isChecked());
    m_db->proxySettings.setUseProxy(false);
    QVERIFY(!m_bypass->isEnabled());
    m_db->proxySettings.setUseProxy(true);
    QVERIFY(m_bypass->isEnabled());
    // It follows the settings, not what is typed, but then goes by what is typed.
    m_address->setText("gate");
    QVERIFY(m_bypass->isChecked());
    m_db->proxySettings.setExceptions("10.*;192.*", ';');
    QVERIFY(!m_bypass->isChecked());
}

void tst_UserDataWidget::bypassDisabledWithoutProxy()
{
    m_db->proxySettings.setExceptions("10.*", ';');
    m_page->init(QString("cam"), true);
    QVERIFY(!m_bypass->isHidden());
    QVERIFY(!m_bypass->isEnabled());
    QVERIFY(m_bypass->isChecked());
    Page other;
    other.init(QString("other"), true);
    auto* bypass = child<QCheckBox>(&other, "bypassProxyCheckBox");
    QVERIFY(!bypass->isEnabled() && !bypass->isChecked());
}

void tst_UserDataWidget::bypassAdded()
{
    m_db->proxySettings.setUseProxy(true);
    m_db->proxySettings.setExceptions("192.168.*", ';');
    m_page->init(QString("cam"), true);
    m_page->show();
    m_db->clearCalls();
    QTest::mouseClick(m_bypass, Qt::LeftButton, Qt::NoModifier, QPoint(8, m_bypass->height() / 2));
    QVERIFY(m_bypass->isChecked());
    QVERIFY(m_db->calls.isEmpty()); // nothing while editing
    QCOMPARE(acceptInto("cam").constLast(), QString("globalProxy.addException(10.0.0.1)"));
    QCOMPARE(m_db->proxySettings.exceptions(), QStringList({"192.168.*", "10.0.0.1"}));
}

void tst_UserDataWidget::bypassAlreadyCovered()
{
    m_db->proxySettings.setExceptions("10.*", ';');
    m_page->init(QString("cam"), true);
    QVERIFY(acceptInto("cam").filter("globalProxy").isEmpty());
    QCOMPARE(m_db->proxySettings.exceptions(), QStringList("10.*"));
}

void tst_UserDataWidget::bypassRemoved()
{
    m_db->proxySettings.setExceptions("192.168.*;10.0.0.1;10.0.0.11", ';');
    m_page->init(QString("cam"), true);
    m_bypass->setChecked(false);
    QCOMPARE(acceptInto("cam").filter("globalProxy"), QStringList("globalProxy.removeException(10.0.0.1)"));
    QCOMPARE(m_db->proxySettings.exceptions(), QStringList({"192.168.*", "10.0.0.11"}));
    QVERIFY(!m_bypass->isChecked());
}

void tst_UserDataWidget::bypassStillCovered()
{
    m_db->proxySettings.setUseProxy(true);
    m_db->proxySettings.setExceptions("10.0.0.1;192.168.*;10.*", ';');
    m_page->init(QString("cam"), true);
    m_page->show();
    m_bypass->setChecked(false);
    ModalAnswer answer([this](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        QVERIFY(box);
        QCOMPARE(box->parentWidget(), m_page.get());
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->windowTitle(), QString("Proxy Settings"));
        QCOMPARE(box->textFormat(), Qt::RichText);
        QCOMPARE(box->text(),
                 QString("The current address is still affected by the current proxy exceptions:<br>"
                         "\"192.168.*;10.*\"<br>Please check the proxy settings!"));
        QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box->windowModality(), Qt::WindowModal);
        // The toolkit completes the flags it is given.
        QCOMPARE(box->windowFlags(), QDialog(m_page.get(), sheetDialogFlags(m_page.get())).windowFlags());
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    QCOMPARE(acceptInto("cam").filter("globalProxy"), QStringList("globalProxy.removeException(10.0.0.1)"));
    QVERIFY(answer.fired());
    QVERIFY(m_bypass->isChecked());
    QCOMPARE(m_db->proxySettings.exceptions(), QStringList({"192.168.*", "10.*"}));
}

void tst_UserDataWidget::exceptionsAreShownAsTyped()
{
    m_db->proxySettings.setExceptions("*;<b>&", ';');
    m_page->init(QString("cam"), true);
    m_bypass->setChecked(false);
    QString shown;
    ModalAnswer answer([&shown](QDialog* dialog) {
        shown = qobject_cast<QMessageBox*>(dialog)->text();
        dialog->accept();
    });
    m_page->acceptProxy("10.0.0.1");
    QVERIFY(answer.fired());
    QVERIFY2(shown.contains("\"*;&lt;b&gt;&amp;\""), qPrintable(shown));
    QVERIFY(m_bypass->isChecked());
}

void tst_UserDataWidget::entriesAreComparedExactly()
{
    m_db->addCamera("gate", "Gate").setAddress("gate");
    m_db->proxySettings.setExceptions("Gate", ';'); // matches, but is another entry
    m_page->init(QString("gate"), true);
    QVERIFY(m_bypass->isChecked());
    m_bypass->setChecked(false);
    ModalAnswer answer(ModalAnswer::press("OK"));
    QVERIFY(acceptInto("gate").filter("globalProxy").isEmpty());
    QVERIFY(answer.fired());
    QVERIFY(m_bypass->isChecked());
    QCOMPARE(m_db->proxySettings.exceptions(), QStringList("Gate"));
}

void tst_UserDataWidget::readOnly()
{
    for (const bool readOnly : {true, false}) {
        m_page->setReadOnly(readOnly);
        for (const char* name : {"addressLineEdit", "usernameLineEdit", "passwordLineEdit"}) {
            QCOMPARE(child<QLineEdit>(m_page.get(), name)->isReadOnly(), readOnly);
            QCOMPARE(child<QLineEdit>(m_page.get(), name)->hasFrame(), !readOnly);
            QVERIFY(child<QLineEdit>(m_page.get(), name)->isEnabled());
        }
        for (const QSpinBox* spinBox : {m_port, m_channel}) {
            QCOMPARE(spinBox->isReadOnly(), readOnly);
            QCOMPARE(spinBox->hasFrame(), !readOnly);
            QVERIFY(spinBox->isEnabled());
        }
        QCOMPARE(m_ssl->isEnabled(), !readOnly);
        QCOMPARE(m_bypass->isEnabled(), !readOnly);
    }
}

void tst_UserDataWidget::readOnlyAndProxyOrder()
{
    m_page->init(QString("cam"), true);
    QVERIFY(!m_bypass->isEnabled());
    m_page->setReadOnly(false);
    QVERIFY(m_bypass->isEnabled()); // no proxy in use, but the last call counts
    m_page->setReadOnly(true);
    m_db->proxySettings.setUseProxy(true);
    QVERIFY(m_bypass->isEnabled());
}

KO_TEST_MAIN(tst_UserDataWidget)
#include "tst_userdatawidget.moc"
