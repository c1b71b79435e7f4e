#include "support/DialogCheck.h"
#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "dialogs/NodeAuthenticateDialog.h"
#include "ko/IPDeviceNode.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>

using namespace ko;
using testsupport::child;

namespace {

QStringList ids(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString("cam%1").arg(i));
    return list;
}

/// The prompt in a language whose translator forgot the place of the names.
class WithoutPlace : public QTranslator
{
public:
    WithoutPlace() { QApplication::installTranslator(this); }
    ~WithoutPlace() override { QApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QByteArray(text).contains("to authenticate") ? QString("Bitte anmelden:") : QString();
    }
};

} // namespace

class tst_NodeAuthenticateDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_db.reset(); }

    void form();
    void tabOrder();
    void roomForLongTexts();
    void metaObject();
    void nodeNames_data();
    void nodeNames();
    void namesThatAreMarkup();
    void prompt();
    void promptWithoutPlace();
    void emptyList();
    void preFilledFromTheFirst_data();
    void preFilledFromTheFirst();
    void typingReplacesTheName();
    void okStoresInAll();
    void emptyTextsAreStored();
    void awkwardPasswords();
    void cancel_data();
    void cancel();
    void returnKey();

private:
    std::unique_ptr<testsupport::SmallNodeDB> m_db;
};

void tst_NodeAuthenticateDialog::init()
{
    m_db = std::make_unique<testsupport::SmallNodeDB>();
    m_db->defineType(ViewType, "View");
    for (int i = 0; i < 25; ++i)
        m_db->addCamera(QString("cam%1").arg(i), QString("Camera %1").arg(i));
    m_db->addNode(ViewType, "view", "Overview");
    IPDeviceNode* first = dynamic_cast<IPDeviceNode*>(m_db->beginUpdateNode("cam0", -1));
    first->setUser("admin", "secret");
    m_db->endUpdateNode(first);
    m_db->clearCalls();
}

void tst_NodeAuthenticateDialog::form()
{
    const NodeAuthenticateDialog dialog(nullptr, QStringList(), Qt::Dialog | Qt::WindowTitleHint);
    QCOMPARE(dialog.objectName(), QString("NodeAuthenticateDialog"));
    QCOMPARE(dialog.windowTitle(), QString("User & Password"));
    QCOMPARE(dialog.windowFlags() & Qt::WindowTitleHint, Qt::WindowFlags(Qt::WindowTitleHint));
    auto* grid = child<QGridLayout>(&dialog, "gridLayout");
    QCOMPARE(dialog.layout(), grid);
    const struct
    {
        const char* name;
        const char* cell;
    } cells[] = {{"label_3", "0,0,1,1"},          {"cameraLabel", "0,1,1,2"}, {"label", "2,1,1,1"},
                 {"userNameLineEdit", "2,2,1,1"}, {"label_2", "3,1,1,1"},     {"passWordLineEdit", "3,2,1,1"},
                 {"buttonBox", "5,2,1,1"}};
    for (const auto& cell : cells)
        QCOMPARE(testsupport::gridCell(grid, child<QWidget>(&dialog, cell.name)), QString(cell.cell));
    QVERIFY(grid->itemAtPosition(1, 1)->spacerItem());
    QCOMPARE(grid->itemAtPosition(1, 1), grid->itemAtPosition(1, 2));
    QCOMPARE(grid->itemAtPosition(1, 1)->spacerItem()->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(grid->itemAtPosition(1, 1)->sizeHint(), QSize(231, 16));
    QCOMPARE(grid->itemAtPosition(4, 0), grid->itemAtPosition(4, 2));
    QCOMPARE(grid->itemAtPosition(4, 0)->spacerItem()->sizePolicy().verticalPolicy(),
             QSizePolicy::MinimumExpanding);
    QCOMPARE(grid->itemAtPosition(4, 0)->sizeHint(), QSize(301, 16));

    const auto* picture = child<QLabel>(&dialog, "label_3");
    QVERIFY(picture->text().isEmpty());
    QCOMPARE(picture->pixmap(Qt::ReturnByValue).toImage(), QPixmap(":/view/icns/key_close.png").toImage());
    QVERIFY(!picture->pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(child<QLabel>(&dialog, "cameraLabel")->wordWrap());
    const struct
    {
        const char* name;
        const char* text;
        const char* buddy;
    } labels[] = {{"label", "User name: ", "userNameLineEdit"},
                  {"label_2", "Password: ", "passWordLineEdit"}};
    for (const auto& row : labels) {
        const auto* label = child<QLabel>(&dialog, row.name);
        QCOMPARE(label->text(), QString(row.text));
        QCOMPARE(label->alignment() & (Qt::AlignRight | Qt::AlignVCenter), testsupport::RightCentred);
        QCOMPARE(label->buddy()->objectName(), QString(row.buddy));
    }
    QCOMPARE(child<QLineEdit>(&dialog, "passWordLineEdit")->echoMode(), QLineEdit::Password);
    const auto* box = child<QDialogButtonBox>(&dialog, "buttonBox");
    QCOMPARE(box->orientation(), Qt::Horizontal);
    QCOMPARE(box->standardButtons(),
             QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
}

void tst_NodeAuthenticateDialog::tabOrder()
{
    NodeAuthenticateDialog dialog(nullptr, ids(1), Qt::Dialog);
    dialog.show();
    const QStringList order = testsupport::tabOrder(&dialog);
    QCOMPARE(order.mid(0, 2), QStringList({"userNameLineEdit", "passWordLineEdit"}));
    QCOMPARE(order.size(), 4);
}

void tst_NodeAuthenticateDialog::roomForLongTexts()
{
    const testsupport::LongLanguage language;
    NodeAuthenticateDialog dialog(nullptr, ids(25), Qt::Dialog);
    dialog.show();
    QCOMPARE(testsupport::cutOff(&dialog), QStringList());
}

void tst_NodeAuthenticateDialog::metaObject()
{
    const QMetaObject& meta = NodeAuthenticateDialog::staticMetaObject;
    QCOMPARE(QString(meta.className()), QString("ko::NodeAuthenticateDialog"));
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
}

void tst_NodeAuthenticateDialog::nodeNames_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<int>("named");
    QTest::addColumn<bool>("dots");
    QTest::newRow("none") << QStringList() << 0 << false;
    QTest::newRow("one") << ids(1) << 1 << false;
    QTest::newRow("ten") << ids(10) << 10 << false;
    QTest::newRow("eleven") << ids(11) << 11 << true;
    QTest::newRow("twelve") << ids(12) << 11 << true;
    QTest::newRow("twenty-five") << ids(25) << 11 << true;
    QTest::newRow("empty ones count") << (QStringList({"", "", ""}) + ids(10)) << 8 << true;
    QTest::newRow("unknown ones count") << (QStringList({"x", "y"}) + ids(9)) << 9 << true;
    QTest::newRow("other nodes are named") << QStringList({"view", "cam1"}) << 2 << false;
}

void tst_NodeAuthenticateDialog::nodeNames()
{
    QFETCH(QStringList, list);
    QFETCH(int, named);
    QFETCH(bool, dots);
    const QString names = NodeAuthenticateDialog::nodeNames(list);
    QCOMPARE(names.count("    - "), named);
    QCOMPARE(names.count("<br>"), named + int(dots));
    QCOMPARE(names.endsWith("    ...<br>"), dots);
    if (named > 0 && list.constFirst() == "cam0")
        QVERIFY(names.startsWith("    - Camera 0<br>"));
}

void tst_NodeAuthenticateDialog::namesThatAreMarkup()
{
    m_db->addCamera("markup", "<img src=x>&amp; <b>%1");
    QCOMPARE(NodeAuthenticateDialog::nodeNames({"markup"}),
             QString("    - &lt;img src=x&gt;&amp;amp; &lt;b&gt;%1<br>"));
    const NodeAuthenticateDialog dialog(nullptr, {"markup"}, Qt::Dialog);
    QTextDocument shown;
    shown.setHtml(child<QLabel>(&dialog, "cameraLabel")->text());
    QVERIFY(shown.toPlainText().contains("- <img src=x>&amp; <b>%1"));
}

void tst_NodeAuthenticateDialog::prompt()
{
    const NodeAuthenticateDialog dialog(nullptr, ids(2), Qt::Dialog);
    QCOMPARE(child<QLabel>(&dialog, "cameraLabel")->text(),
             QString("Please enter user name and password for<br>    - Camera 0<br>    - Camera 1<br>"
                     " to authenticate:"));
}

void tst_NodeAuthenticateDialog::promptWithoutPlace()
{
    const WithoutPlace language;
    const NodeAuthenticateDialog dialog(nullptr, ids(2), Qt::Dialog);
    QCOMPARE(child<QLabel>(&dialog, "cameraLabel")->text(), QString("Bitte anmelden:"));
}

void tst_NodeAuthenticateDialog::emptyList()
{
    NodeAuthenticateDialog dialog(nullptr, QStringList(), Qt::Dialog);
    QCOMPARE(child<QLabel>(&dialog, "cameraLabel")->text(),
             QString("Please enter user name and password for<br>%1 to authenticate:"));
    QVERIFY(child<QLineEdit>(&dialog, "userNameLineEdit")->text().isEmpty());
    dialog.accept();
    QVERIFY(m_db->calls.isEmpty());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_NodeAuthenticateDialog::preFilledFromTheFirst_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::newRow("first") << ids(3) << "admin"
                           << "secret";
    QTest::newRow("second") << QStringList({"cam1", "cam0"}) << ""
                            << "";
    QTest::newRow("no device") << QStringList({"view", "cam0"}) << ""
                               << "";
    QTest::newRow("missing") << QStringList({"gone", "cam0"}) << ""
                             << "";
}

void tst_NodeAuthenticateDialog::preFilledFromTheFirst()
{
    QFETCH(QStringList, list);
    QFETCH(QString, user);
    QFETCH(QString, password);
    const NodeAuthenticateDialog dialog(nullptr, list, Qt::Dialog);
    QCOMPARE(child<QLineEdit>(&dialog, "userNameLineEdit")->text(), user);
    QCOMPARE(child<QLineEdit>(&dialog, "passWordLineEdit")->text(), password);
}

void tst_NodeAuthenticateDialog::typingReplacesTheName()
{
    NodeAuthenticateDialog dialog(nullptr, ids(1), Qt::Dialog);
    auto* user = child<QLineEdit>(&dialog, "userNameLineEdit");
    QCOMPARE(user->selectedText(), QString("admin"));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(QApplication::focusWidget(), user);
    QTest::keyClicks(user, "root");
    QCOMPARE(user->text(), QString("root"));
}

void tst_NodeAuthenticateDialog::okStoresInAll()
{
    const QStringList list = {"cam0", "view", "gone", "cam1", "cam0"};
    NodeAuthenticateDialog dialog(nullptr, list, Qt::Dialog);
    child<QLineEdit>(&dialog, "userNameLineEdit")->setText("root");
    child<QLineEdit>(&dialog, "passWordLineEdit")->setText("p@ss");
    QVERIFY(m_db->calls.isEmpty());
    QTest::mouseClick(child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    const auto device = [](const char* id) {
        const QString name = QLatin1String(id);
        return QStringList({"beginUpdateNode(" + name + ",-1)", "setUser(root,p@ss)",
                            "setCredentialsEntered(true)", "endUpdateNode(" + name + ")"});
    };
    const QStringList expected = device("cam0") +
                                 QStringList({"beginUpdateNode(view,-1)", "endUpdateNode(view)",
                                              "beginUpdateNode(gone,-1)", "endUpdateNode()"}) +
                                 device("cam1") + device("cam0");
    QCOMPARE(m_db->calls, expected);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(m_db->actionLog.texts.isEmpty());
}

void tst_NodeAuthenticateDialog::emptyTextsAreStored()
{
    NodeAuthenticateDialog dialog(nullptr, ids(1), Qt::Dialog);
    child<QLineEdit>(&dialog, "userNameLineEdit")->clear();
    child<QLineEdit>(&dialog, "passWordLineEdit")->clear();
    dialog.accept();
    QVERIFY(m_db->calls.contains("setUser(,)"));
}

void tst_NodeAuthenticateDialog::awkwardPasswords()
{
    const QString password = QString::fromUtf8(" @#!^/:%1%20\"'<b>&amp;äß漢字 ");
    NodeAuthenticateDialog dialog(nullptr, ids(15), Qt::Dialog);
    child<QLineEdit>(&dialog, "passWordLineEdit")->setText(password);
    dialog.accept();
    for (int i = 0; i < 15; ++i)
        QCOMPARE(m_db->node(QString("cam%1").arg(i)).cast<const IPDeviceNode>()->password(1), password);
    QVERIFY(m_db->node("cam15").cast<const IPDeviceNode>()->password(1).isEmpty());
}

void tst_NodeAuthenticateDialog::cancel_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void tst_NodeAuthenticateDialog::cancel()
{
    QFETCH(bool, escape);
    NodeAuthenticateDialog dialog(nullptr, ids(3), Qt::Dialog);
    dialog.show();
    child<QLineEdit>(&dialog, "userNameLineEdit")->setText("root");
    if (escape)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        QTest::mouseClick(child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_NodeAuthenticateDialog::returnKey()
{
    NodeAuthenticateDialog dialog(nullptr, ids(1), Qt::Dialog);
    dialog.show();
    QTest::keyClick(child<QLineEdit>(&dialog, "passWordLineEdit"), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(m_db->calls.contains("setUser(admin,secret)"));
}

KO_TEST_MAIN(tst_NodeAuthenticateDialog)
#include "tst_nodeauthenticatedialog.moc"
