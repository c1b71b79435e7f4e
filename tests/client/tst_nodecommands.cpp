#include "client/WindowFixture.h"
#include "support/Answers.h"
#include "support/TestMain.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QUrl>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

/// Takes what would go to the user's browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser()
    {
        for (const char* scheme : {"http", "https"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Browser() override
    {
        for (const char* scheme : {"http", "https"})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.append(url.toString()); }
};

} // namespace

/// What can be done with the rows of the list, beside editing them.
class tst_NodeCommands : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void columnsAreChosenAndKept();
    void rowsAreCopied();
    void addressesAreCopied();
    void keysOfTheSearch();
    void duplicate();
    void webPage();
    void webPageNeedsAnAddress();
    void emptyDatabaseSaysWhatToDo();
    void nothingFoundShowsTheWayBack();
    void rightsThatAreLostMeanwhile();
};

void tst_NodeCommands::columnsAreChosenAndKept()
{
    QAction* type = nullptr;
    const QList<QAction*> actions = m_view->header()->actions();
    QCOMPARE(actions.size(), m_view->model()->columnCount() - 1); // the name stays
    for (QAction* action : actions) {
        if (action->text() == "Type")
            type = action;
    }
    QVERIFY(type && type->isChecked());
    type->trigger();
    QVERIFY(m_view->isColumnHidden(NodeListModel::TypeColumn));
    m_window->close();
    MainWindow window(*m_host->db());
    auto* view = window.findChild<NodeListView*>();
    QVERIFY(view->isColumnHidden(NodeListModel::TypeColumn));
    const QList<QAction*> again = view->header()->actions();
    const QStringList shown = {"Address", "Recording", "State"}; // the others only when they are chosen
    for (const QAction* action : again)
        QCOMPARE(action->isChecked(), shown.contains(action->text()));
    again.constFirst()->trigger();
    QVERIFY(!view->isColumnHidden(NodeListModel::TypeColumn));
    window.close(); // what it keeps is for the next test too
}

void tst_NodeCommands::rowsAreCopied()
{
    m_host->add(IPDeviceType, QStringLiteral("=1+1"), QStringLiteral("a\tb"));
    m_window->applyChanges();
    select({"Gate south", "Gate north", "=1+1"});
    m_view->setColumnHidden(NodeListModel::TypeColumn, true);
    m_view->header()->moveSection(NodeListModel::AddressColumn, 0);
    trigger("actionCopyRows");
    // No spreadsheet must take a name for a formula.
    QCOMPARE(QApplication::clipboard()->text(), QString("a b\t'=1+1\tVia camera\tNot checked\n"
                                                        "10.0.0.1\tGate north\tVia camera\tNot checked\n"
                                                        "10.0.0.2\tGate south\tVia camera\tNot checked"));
}

void tst_NodeCommands::addressesAreCopied()
{
    select({"Gate south", "Yard", "Overview"});
    trigger("actionCopyAddresses");
    QCOMPARE(QApplication::clipboard()->text(), QString("10.0.0.2\n10.0.1.1"));
    QVERIFY(m_window->statusBar()->currentMessage().contains("2"));
}

void tst_NodeCommands::keysOfTheSearch()
{
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    auto* search = child<QLineEdit>(m_window.get(), "searchLineEdit");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) {
        m_view->clearSelection();
        m_view->setCurrentIndex({});
        search->setFocus();
        search->selectAll();
        QTest::keyClicks(search, "gate");
        QTest::keyClick(search, key);
        QVERIFY(m_view->hasFocus());
        QCOMPARE(m_view->selectedIds().size(), 1);
        QCOMPARE(m_view->currentIndex().row(), 0);
    }
    const ModalAnswer answer([](QDialog* dialog) { dialog->reject(); });
    QTest::keyClick(m_view, Qt::Key_F2);
    QVERIFY(answer.fired());
}

void tst_NodeCommands::duplicate()
{
    select({"Gate north"});
    const QString original = m_view->selectedIds().value(0);
    m_host->change(original, [](Node* node) {
        auto* device = dynamic_cast<IPDeviceNode*>(node);
        device->setUser("admin", "secret");
        device->setPort(8080);
    });
    const ModalAnswer answer([](QDialog* dialog) {
        auto* address = child<QLineEdit>(dialog, "addressLineEdit");
        QCOMPARE(address->text(), QString("10.0.0.1"));
        address->selectAll();
        QTest::keyClicks(address, "10.0.0.11");
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    trigger("actionDuplicate");
    const QString id = m_view->selectedIds().value(0);
    QVERIFY(!id.isEmpty() && id != original);
    const auto copy = m_host->db()->node(id).cast<const IPDeviceNode>();
    QCOMPARE(copy->name(), QString("Gate north"));
    QCOMPARE(copy->address(), QString("10.0.0.11"));
    QCOMPARE(copy->port(), 8080);
    QCOMPARE(copy->user(0), QString("admin"));
    QCOMPARE(copy->password(0), QString("secret"));
    QCOMPARE(m_host->db()->summary(original).location, QString("10.0.0.1"));
}

void tst_NodeCommands::webPage()
{
    Browser browser;
    m_host->change(m_host->db()->nodeIdList(UrlCameraType).value(0), [](Node* node) {
        auto* device = dynamic_cast<IPDeviceNode*>(node);
        device->setAddress("fe80::1");
        device->setUseSSL(true);
        device->setPort(8443);
    });
    select({"Gate north"});
    trigger("actionWebPage");
    select({"Yard"});
    trigger("actionWebPage");
    QCOMPARE(browser.opened, QStringList({"http://10.0.0.1", "https://[fe80::1]:8443"}));
}

void tst_NodeCommands::webPageNeedsAnAddress()
{
    Browser browser;
    select({"Overview"});
    trigger("actionWebPage");
    QCOMPARE(browser.opened, QStringList());
    QVERIFY(!m_window->statusBar()->currentMessage().isEmpty());
}

void tst_NodeCommands::emptyDatabaseSaysWhatToDo()
{
    auto* empty = child<QWidget>(m_window.get(), "emptyState");
    QVERIFY(!empty->isVisible());
    const testsupport::HostFixture host;
    MainWindow window(*host.db());
    window.show();
    empty = child<QWidget>(&window, "emptyState");
    QVERIFY(empty->isVisible());
    QVERIFY(!child<QPushButton>(&window, "showAllButton")->isVisible());
    const ModalAnswer answer([](QDialog* dialog) {
        QTest::keyClicks(child<QLineEdit>(dialog, "nameLineEdit"), "First");
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    QTest::mouseClick(child<QPushButton>(&window, "actionAddButton"), Qt::LeftButton);
    QVERIFY(answer.fired());
    QVERIFY(!empty->isVisible());
}

void tst_NodeCommands::nothingFoundShowsTheWayBack()
{
    auto* types = child<QComboBox>(m_window.get(), "typeComboBox");
    types->setCurrentIndex(types->findData(int(IPDeviceType)));
    QTest::keyClicks(child<QLineEdit>(m_window.get(), "searchLineEdit"), "yard");
    QVERIFY(child<QWidget>(m_window.get(), "emptyState")->isVisible());
    QVERIFY(!child<QPushButton>(m_window.get(), "actionImportButton")->isVisible());
    QTest::mouseClick(child<QPushButton>(m_window.get(), "showAllButton"), Qt::LeftButton);
    QCOMPARE(m_view->model()->rowCount(), 5);
    QVERIFY(!child<QWidget>(m_window.get(), "emptyState")->isVisible());
    QTest::qWait(500); // the button that clears the search fades; the toolkit loses its animation otherwise
}

/// What is confirmed then cannot be stored, and that is said.
void tst_NodeCommands::rightsThatAreLostMeanwhile()
{
    select({"Yard"});
    for (const bool byAction : {true, false}) {
        m_host->db()->setReadOnly(false);
        const testsupport::Answers answers({[this](QDialog* dialog) {
                                                child<QLineEdit>(dialog, "nameLineEdit")->setText("Tower");
                                                m_host->db()->setReadOnly(true);
                                                dialog->accept();
                                            },
                                            [](QDialog* box) {
                                                QCOMPARE(box->windowTitle(), QString("Read-Only"));
                                                box->accept();
                                            }});
        if (byAction)
            child<QAction>(m_window.get(), "actionEdit")->trigger();
        else
            emit m_view->nodeActivated(idOf("Yard"));
        QCOMPARE(int(answers.opened().size()), 2);
        QVERIFY(!idOf("Yard").isEmpty());
    }
    // Who may only read from the start opens it to look.
    const testsupport::Answers looks({[](QDialog* dialog) { dialog->reject(); }});
    emit m_view->nodeActivated(idOf("Yard"));
    QCOMPARE(int(looks.opened().size()), 1);
}

KO_TEST_MAIN(tst_NodeCommands)
#include "tst_nodecommands.moc"
