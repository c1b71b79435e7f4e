#include "client/WindowFixture.h"
#include "support/DialogCheck.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "CheckPanel.h"
#include "audit/AuditLog.h"
#include "dialogs/NodeOverviewDialog.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

class tst_MainWindow : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void listShowsTheNodes();
    void searchWhileTyping();
    void escapeClearsTheSearch();
    void typeFilter();
    void headerSorts();
    void actionsFollowTheSelection();
    void everyCommandHasATip();
    void toolBarWithoutAThemeOfIcons();
    void toolBarFitsNarrowWindows();
    void noShortcutTwice();
    void contextMenuHasTheCommandsOfNodes();
    void doubleClickAndReturnEdit_data();
    void doubleClickAndReturnEdit();
    void editIsStoredShownAndLogged();
    void propertiesChangeNothing();
    void addSelectsTheNewNode();
    void removeNamesThem();
    void removeCancelled();
    void removedMeanwhile();
    void credentialsOfASelection();
    void credentialsNeedADevice();
    void recordingOfOneAndOfMany();
    void overviewSelectsItsNodes();
    void doubleClickInTheOverviewEdits();
    void everyDialogOpens_data();
    void everyDialogOpens();
    void stateIsKept();
    void roomForLongTexts();
    void roomForMessages();

private:
    QStringList shown() const;
    QStringList logged() const;
};

void tst_MainWindow::init()
{
    QSettings().clear();
    openWindow();
}

QStringList tst_MainWindow::shown() const
{
    QStringList names;
    for (int row = 0; row < m_view->model()->rowCount(); ++row)
        names.append(m_view->model()->index(row, NodeListModel::NameColumn).data().toString());
    return names;
}

QStringList tst_MainWindow::logged() const
{
    QStringList texts;
    const auto records = m_host->db()->auditLog().entries(0, 100, false);
    for (const AuditRecord& record : records)
        texts.append(record.code.toString() + QLatin1String(": ") + record.entry->text());
    return texts;
}

void tst_MainWindow::listShowsTheNodes()
{
    QCOMPARE(shown(), QStringList({"Gate north", "Gate south", "Yard", "Archive", "Overview"}));
    m_host->add(IPDeviceType, QStringLiteral("Dock"));
    KO_TRY_COMPARE(shown().value(0), QStringLiteral("Dock"));
    QVERIFY(m_window->windowTitle().contains(QStringLiteral("nodes.kodb")));
}

void tst_MainWindow::searchWhileTyping()
{
    QTest::keyClick(m_view, Qt::Key_F, Qt::ControlModifier);
    auto* search = child<QLineEdit>(m_window.get(), "searchLineEdit");
    QTest::keyClicks(search, "gate");
    QCOMPARE(shown(), QStringList({"Gate north", "Gate south"}));
    QTest::keyClicks(search, " 0.2");
    QCOMPARE(shown(), QStringList("Gate south")); // one word in the name, one in the address
    QTest::keyClicks(search, " nowhere");
    QCOMPARE(shown(), QStringList());
}

void tst_MainWindow::escapeClearsTheSearch()
{
    auto* search = child<QLineEdit>(m_window.get(), "searchLineEdit");
    search->setFocus();
    QTest::keyClicks(search, "yard");
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(search, Qt::Key_Escape);
    QVERIFY(search->text().isEmpty());
    QCOMPARE(shown().size(), 5);
}

void tst_MainWindow::typeFilter()
{
    auto* types = child<QComboBox>(m_window.get(), "typeComboBox");
    types->setCurrentIndex(types->findData(int(IPDeviceType)));
    QCOMPARE(shown(), QStringList({"Gate north", "Gate south"}));
    types->setCurrentIndex(0);
    QCOMPARE(shown().size(), 5);
}

void tst_MainWindow::headerSorts()
{
    QHeaderView* header = m_view->header();
    const QPoint address(header->sectionViewportPosition(NodeListModel::AddressColumn) + 10,
                         header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, address);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, address);
    const QStringList descending = shown();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, address);
    QVERIFY(shown() != descending);
    QCOMPARE(header->sortIndicatorSection(), int(NodeListModel::AddressColumn));
}

void tst_MainWindow::actionsFollowTheSelection()
{
    const char* const forOne[] = {"actionProperties", "actionDuplicate"};
    const char* const forSome[] = {"actionEdit", "actionRemove", "actionCredentials", "actionRecording"};
    const auto check = [&](int selected) {
        for (const char* name : forOne)
            QCOMPARE(child<QAction>(m_window.get(), name)->isEnabled(), selected == 1);
        for (const char* name : forSome)
            QCOMPARE(child<QAction>(m_window.get(), name)->isEnabled(), selected > 0);
        QVERIFY(child<QAction>(m_window.get(), "actionAdd")->isEnabled());
    };
    m_view->clearSelection();
    check(0);
    select({"Yard"});
    check(1);
    select({"Yard", "Gate north"});
    check(2);
}

void tst_MainWindow::everyCommandHasATip()
{
    const QList<QAction*> actions =
        m_window->findChildren<QAction*>(QRegularExpression(QStringLiteral("^action")));
    QVERIFY(actions.size() > 12);
    for (const QAction* action : actions) {
        QVERIFY(!action->text().isEmpty());
        if (action->objectName() != QLatin1String("actionAbout"))
            QVERIFY2(!action->statusTip().isEmpty(), qPrintable(action->objectName()));
    }
}

void tst_MainWindow::toolBarWithoutAThemeOfIcons()
{
    QIcon::setThemeName(QStringLiteral("none"));
    QIcon::setFallbackThemeName(QStringLiteral("none"));
    closeWindow();
    openWindow();
    const QPalette before = QGuiApplication::palette();
    int icons = 0;
    const QList<QAction*> actions = child<QToolBar>(m_window.get(), "toolBar")->actions();
    for (const QColor& text : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Active, QPalette::ButtonText, text);
        QGuiApplication::setPalette(palette);
        for (const QAction* action : actions) {
            if (!action->objectName().startsWith(QLatin1String("action")))
                continue;
            ++icons;
            const QImage image = action->icon().pixmap(32, 32).toImage();
            QVERIFY2(!image.isNull(), qPrintable(action->objectName()));
            int painted = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    painted += image.pixelColor(x, y) == text;
            }
            QVERIFY2(painted > 32 && painted < 512, qPrintable(action->objectName()));
        }
    }
    QGuiApplication::setPalette(before);
    QCOMPARE(icons, 8);
}

void tst_MainWindow::toolBarFitsNarrowWindows()
{
    const auto* bar = child<QToolBar>(m_window.get(), "toolBar");
    const auto allShown = [bar] {
        const QList<QAction*> actions = bar->actions();
        return std::all_of(actions.begin(), actions.end(), [bar](QAction* action) {
            return !action->isVisible() || bar->widgetForAction(action)->isVisible();
        });
    };
    m_window->resize(1400, 500);
    KO_TRY_COMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    const int enough = bar->sizeHint().width();
    m_window->resize(enough - 1, 500);
    KO_TRY_COMPARE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
    KO_TRY_VERIFY(allShown());
    m_window->resize(enough, 500);
    KO_TRY_COMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    KO_TRY_VERIFY(allShown());
    QFont font = bar->font(); // texts grow as they do in another language
    font.setPointSize(font.pointSize() + 1);
    child<QToolBar>(m_window.get(), "toolBar")->setFont(font);
    KO_TRY_COMPARE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
    m_window->resize(1400, 500);
    KO_TRY_COMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

void tst_MainWindow::noShortcutTwice()
{
    QStringList shortcuts;
    const QList<QAction*> actions = m_window->findChildren<QAction*>();
    for (const QAction* action : actions) {
        if (action->shortcutContext() == Qt::WindowShortcut && !action->shortcut().isEmpty())
            shortcuts.append(action->shortcut().toString());
    }
    QVERIFY(shortcuts.size() > 6);
    QCOMPARE(shortcuts.removeDuplicates(), 0);
}

void tst_MainWindow::contextMenuHasTheCommandsOfNodes()
{
    QCOMPARE(m_view->contextMenuPolicy(), Qt::ActionsContextMenu);
    QStringList names;
    const QList<QAction*> actions = m_view->actions();
    for (const QAction* action : actions)
        names.append(action->objectName());
    for (const char* name : {"actionAdd", "actionEdit", "actionRemove", "actionProperties",
                             "actionCredentials", "actionRecording"})
        QVERIFY2(names.contains(QLatin1String(name)), name);
}

void tst_MainWindow::doubleClickAndReturnEdit_data()
{
    QTest::addColumn<bool>("mouse");
    QTest::newRow("double click") << true;
    QTest::newRow("Return") << false;
}

void tst_MainWindow::doubleClickAndReturnEdit()
{
    QFETCH(bool, mouse);
    select({"Yard"});
    QString title;
    const ModalAnswer answer([&title](QDialog* dialog) {
        title = dialog->windowTitle();
        dialog->reject();
    });
    if (mouse) {
        const QPoint place = m_view->visualRect(m_view->currentIndex()).center();
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, place);
    } else {
        QTest::keyClick(m_view, Qt::Key_Return);
    }
    QCOMPARE(title, QStringLiteral("Properties of Yard"));
}

void tst_MainWindow::editIsStoredShownAndLogged()
{
    select({"Yard"});
    const ModalAnswer answer([](QDialog* dialog) {
        child<QLineEdit>(dialog, "nameLineEdit")->setText(QStringLiteral("Dock"));
        child<QLineEdit>(dialog, "addressLineEdit")->setText(QStringLiteral("10.0.9.9"));
        QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    });
    trigger("actionEdit");
    KO_TRY_VERIFY(shown().contains(QStringLiteral("Dock")));
    QCOMPARE(m_view->selectedIds().size(), 1);
    QCOMPARE(logged(), QStringList({"NRen: Changed name of device from Yard to Dock.",
                                    "NChg: Changed properties of device with name Dock."}));
    m_window.reset();
    m_host->reopen();
    const QString id = m_host->db()->nodeIdList(UrlCameraType).value(0);
    QCOMPARE(m_host->db()->summary(id).location, QStringLiteral("10.0.9.9"));
}

void tst_MainWindow::propertiesChangeNothing()
{
    select({"Yard"});
    const ModalAnswer answer([](QDialog* dialog) {
        QVERIFY(child<QLineEdit>(dialog, "nameLineEdit")->isReadOnly());
        dialog->accept();
    });
    trigger("actionProperties");
    QVERIFY(answer.fired());
    QVERIFY(logged().isEmpty());
}

void tst_MainWindow::addSelectsTheNewNode()
{
    const ModalAnswer answer([](QDialog* dialog) {
        QTest::keyClicks(child<QLineEdit>(dialog, "nameLineEdit"), "New");
        child<QLineEdit>(dialog, "addressLineEdit")->setText(QStringLiteral("10.0.7.7"));
        QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    });
    trigger("actionAdd");
    QCOMPARE(m_view->selectedIds().size(), 1);
    QCOMPARE(m_host->db()->summary(m_view->selectedIds().constFirst()).name, QStringLiteral("New"));
    QVERIFY(logged().value(0).startsWith(QLatin1String("NAdd: ")));
}

void tst_MainWindow::removeNamesThem()
{
    m_host->change(m_host->db()->nodeIdList(ViewType).value(0), [](Node* node) {
        node->setStringProperty(QStringLiteral("Name"), QStringLiteral("<b>%1 & co"));
    });
    KO_TRY_VERIFY(shown().contains(QStringLiteral("<b>%1 & co")));
    select({"Yard", "<b>%1 & co"});
    QString told;
    const ModalAnswer answer([&told](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        told = box->text() + box->informativeText();
        QCOMPARE(box->textFormat(), Qt::PlainText);
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* button : buttons) {
            if (box->buttonRole(button) != QMessageBox::RejectRole)
                button->click();
        }
    });
    QTest::keyClick(m_view, Qt::Key_Delete);
    QVERIFY(answer.fired());
    QVERIFY2(told.contains(QLatin1Char('2')) && told.contains(QStringLiteral("Yard")) &&
                 told.contains(QStringLiteral("<b>%1 & co")),
             qPrintable(told));
    KO_TRY_COMPARE(shown(), QStringList({"Gate north", "Gate south", "Archive"}));
    QCOMPARE(logged().filter(QStringLiteral("NRem: ")).size(), 2);
}

void tst_MainWindow::removeCancelled()
{
    select({"Yard"});
    const ModalAnswer answer([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    trigger("actionRemove");
    QVERIFY(answer.fired());
    QCOMPARE(shown().size(), 5);
    QVERIFY(logged().isEmpty());
}

void tst_MainWindow::removedMeanwhile()
{
    select({"Yard"});
    const QString id = m_view->selectedIds().constFirst();
    const ModalAnswer answer([this, &id](QDialog* dialog) {
        m_host->db()->removeNode(id);
        dialog->accept();
    });
    trigger("actionEdit");
    KO_TRY_COMPARE(shown().size(), 4);
    QVERIFY(logged().isEmpty());
}

void tst_MainWindow::credentialsOfASelection()
{
    select({"Gate north", "Yard", "Archive"});
    const ModalAnswer answer([](QDialog* dialog) {
        const QString text = child<QLabel>(dialog, "cameraLabel")->text();
        QVERIFY(text.contains(QStringLiteral("Yard")) && !text.contains(QStringLiteral("Archive")));
        child<QLineEdit>(dialog, "userNameLineEdit")->setText(QStringLiteral("admin"));
        child<QLineEdit>(dialog, "passWordLineEdit")->setText(QStringLiteral("p@ss"));
        dialog->accept();
    });
    trigger("actionCredentials");
    QVERIFY(answer.fired());
    for (const ENodeType type : {IPDeviceType, UrlCameraType}) {
        const QString id = m_host->db()->nodeIdList(type).value(0);
        QCOMPARE(m_host->db()->node(id).cast<const IPDeviceNode>()->password(1), QStringLiteral("p@ss"));
    }
    QCOMPARE(logged(), QStringList({"NChg: Changed properties of device with name Gate north.",
                                    "NChg: Changed properties of device with name Yard."}));
    QVERIFY(child<QLabel>(m_window.get(), "checkLabel")->text().startsWith("2 device"));
    QVERIFY(logged().filter(QStringLiteral("p@ss")).isEmpty());
}

void tst_MainWindow::credentialsNeedADevice()
{
    select({"Archive"});
    const ModalAnswer answer([](QDialog*) {});
    trigger("actionCredentials");
    QVERIFY(!answer.fired());
    QVERIFY(!m_window->statusBar()->currentMessage().isEmpty());
}

void tst_MainWindow::recordingOfOneAndOfMany()
{
    const QStringList cameras = m_host->db()->nodeIdList(IPDeviceType);
    for (const QString& id : cameras)
        m_host->change(id, [](Node* node) { node->setStringProperty("FactoryIP", "10_1_2_3"); });
    QStringList opened;
    for (const QStringList& names : {QStringList("Gate north"), QStringList({"Gate north", "Gate south"})}) {
        select(names);
        const ModalAnswer answer([&opened](QDialog* dialog) {
            opened.append(QLatin1String(dialog->metaObject()->className()));
            dialog->reject();
        });
        trigger("actionRecording");
    }
    QCOMPARE(opened,
             QStringList({"ko::RecordingFolderAssignmentDialog", "ko::RecordingFolderMassAssignmentDialog"}));
    QVERIFY(logged().isEmpty());
}

void tst_MainWindow::overviewSelectsItsNodes()
{
    const ModalAnswer answer([this](QDialog* dialog) {
        m_host->add(IPDeviceType, QStringLiteral("Found 1"));
        m_host->add(IPDeviceType, QStringLiteral("Found 2"));
        dialog->findChild<QTreeView*>()->selectAll();
        dialog->accept();
    });
    trigger("actionOverview");
    QVERIFY(answer.fired());
    QStringList names;
    const QStringList ids = m_view->selectedIds();
    for (const QString& id : ids)
        names.append(m_host->db()->summary(id).name);
    QCOMPARE(names, QStringList({"Found 1", "Found 2"}));
}

/// The list forgets nothing of the camera: what the editor is not given to show it does not write.
void tst_MainWindow::doubleClickInTheOverviewEdits()
{
    QString id;
    QString edited;
    const ModalAnswer answer([&](QDialog* dialog) {
        id = m_host->add(IPDeviceType, QStringLiteral("Found"));
        m_host->change(id, [](Node* node) {
            node->setIntProperty("PreferredLayout", 3);
            node->setStringProperty("InstructionFile", "how.txt");
        });
        auto* tree = child<QTreeView>(dialog, "nodesTreeView");
        const QModelIndex index = tree->model()->index(0, 0);
        const QPoint place = tree->visualRect(index).center();
        const ModalAnswer editor([&edited](QDialog* shown) {
            edited = shown->windowTitle();
            shown->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(editor.fired());
        dialog->reject();
    });
    trigger("actionOverview");
    QVERIFY2(edited.contains("Found"), qPrintable(edited));
    QCOMPARE(m_host->db()->node(id)->intProperty("PreferredLayout", -1), 3);
    QCOMPARE(m_host->db()->node(id)->stringProperty("InstructionFile", QString()), QString("how.txt"));
}

void tst_MainWindow::everyDialogOpens_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("dialog");
    QTest::newRow("proxy") << "actionProxy"
                           << "ko::NetworkProxyDialog";
    QTest::newRow("environments") << "actionEnvironments"
                                  << "ko::EnvironmentDialog";
    QTest::newRow("overview") << "actionOverview"
                              << "ko::NodeOverviewDialog";
    QTest::newRow("addresses") << "actionAddressChanges"
                               << "ko::AddressChangesDialog";
    QTest::newRow("audit log") << "actionAuditLog"
                               << "ko::AuditLogDialog";
    QTest::newRow("preferences") << "actionPreferences"
                                 << "ko::PreferencesDialog";
    QTest::newRow("about") << "actionAbout"
                           << "QMessageBox";
}

void tst_MainWindow::everyDialogOpens()
{
    QFETCH(QString, action);
    QFETCH(QString, dialog);
    QString opened;
    QStringList cut;
    const ModalAnswer answer([&opened, &cut](QDialog* shownDialog) {
        opened = QLatin1String(shownDialog->metaObject()->className());
        cut = testsupport::cutOff(shownDialog);
        shownDialog->reject();
    });
    trigger(qPrintable(action));
    QCOMPARE(opened, dialog);
    QCOMPARE(cut, QStringList());
}

void tst_MainWindow::stateIsKept()
{
    m_window->resize(700, 400);
    m_view->header()->resizeSection(NodeListModel::NameColumn, 222);
    auto* places = child<QDockWidget>(m_window.get(), "placeDock");
    places->show();
    m_window->resizeDocks({places}, {231}, Qt::Horizontal);
    KO_TRY_COMPARE(places->width(), 231);
    m_window->close();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    QCOMPARE(m_window->size(), QSize(700, 400));
    QCOMPARE(m_window->findChild<NodeListView*>()->header()->sectionSize(NodeListModel::NameColumn), 222);
    QVERIFY(child<QDockWidget>(m_window.get(), "placeDock")->isVisible());
    KO_TRY_COMPARE(child<QDockWidget>(m_window.get(), "placeDock")->width(), 231);
    QVERIFY(!child<QDockWidget>(m_window.get(), "detailsDock")->isVisible());
}

void tst_MainWindow::roomForLongTexts()
{
    const testsupport::LongLanguage language;
    MainWindow window(*m_host->db());
    window.show();
    QCOMPARE(testsupport::cutOff(&window), QStringList());
}

/// What else the status bar has to say gives way to what was just done, and comes back.
void tst_MainWindow::roomForMessages()
{
    QStatusBar* bar = m_window->statusBar();
    auto* panel = child<CheckPanel>(m_window.get(), "checkPanel");
    m_window->resize(700, 400);
    const QString message(40, QLatin1Char('m'));
    const int wanted = bar->fontMetrics().horizontalAdvance(message);
    const auto room = [bar] {
        int room = bar->width();
        const QList<QWidget*> parts = bar->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* part : parts) {
            if (part->isVisible() && part->width() > 0)
                room = std::min(room, part->x());
        }
        return room;
    };
    QVERIFY(wanted < bar->width());
    panel->showProgress(3, 100);
    QTRY_VERIFY(panel->width() >= panel->sizeHint().width());
    bar->showMessage(message);
    QTRY_VERIFY2(room() >= wanted, qPrintable(QString::number(room())));
    bar->clearMessage();
    QTRY_VERIFY(panel->width() >= panel->sizeHint().width());
    QVERIFY(panel->isVisible());
}

KO_TEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
