#include "WindowFixture.h"
#include "database/StoredHistory.h"
#include "host/StoreTesting.h"
#include "support/Answers.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "HistoryModel.h"
#include "audit/AuditLog.h"
#include "audit/NodeLogEntries.h"
#include "ko/Environments.h"
#include "ko/PropertyKeys.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;

namespace {

QTableView* sets(QDialog* dialog)
{
    return child<QTableView>(dialog, "setsTableView");
}

QTableView* changes(QDialog* dialog)
{
    return child<QTableView>(dialog, "changesTableView");
}

/// The titles of the change sets, without the first one of a new database.
QStringList titles(QDialog* dialog)
{
    auto* model = qobject_cast<HistoryModel*>(sets(dialog)->model());
    while (model->isLooking())
        QCoreApplication::processEvents();
    QStringList titles;
    for (int row = 0; row < model->rowCount(); ++row)
        titles.append(model->index(row, HistoryModel::TitleColumn).data().toString());
    titles.removeAll("New database");
    return titles;
}

QStringList cells(const QAbstractItemModel* model, int row)
{
    QStringList cells;
    for (int column = 0; column < model->columnCount(); ++column)
        cells.append(model->index(row, column).data().toString());
    return cells;
}

void choose(QDialog* dialog, const char* box, const QString& text)
{
    auto* comboBox = child<QComboBox>(dialog, box);
    QVERIFY2(comboBox->findText(text) >= 0, qPrintable(text));
    comboBox->setCurrentIndex(comboBox->findText(text));
}

} // namespace

/// Who changed what, found by any of it, and put back.
class tst_HistoryWindow : public QObject, private testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void newestFirstWithChanges();
    void filters_data();
    void filters();
    void propertiesOfOneTitle();
    void timeFilter();
    void ofSelectedNodes();
    void pageOfTheEditor();
    void pageCostsNothingUnseen();
    void fromTheAuditLog();
    void savedWithoutAChange();
    void putBackOfChangeSets();
    void putBackOfSingleLines();
    void putBackOfLinesWithFollowers();
    void putBackIsUndone();
    void identifiersAreNames();
    void csv();
    void manyAreReadAsTheyAreShown();
    void howMuchToKeep();
    void whatWasTakenOut();
    void keyboard();
    void models();

private:
    void open(const char* action, const Answers::Action& look);
    void endTurn() { QTest::qWait(1); }
};

void tst_HistoryWindow::init()
{
    openWindow(); // which adds five nodes in one turn
    endTurn();
    testsupport::setText(*m_host->db(), idOf("Gate north"), "Model", "50% \\new_one");
    endTurn();
    m_host->change(idOf("Yard"),
                   [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setUser("admin", "very-secret"); });
    endTurn();
    m_host->db()->setBandwidth(2);
    endTurn();
    m_host->db()->removeNode(idOf("Archive"));
    m_host->db()->auditLog().log(NodeLogEntry(NodeLogEntry::Removed, "Archive"));
    endTurn();
    QVERIFY(m_host->db()->flush());
}

void tst_HistoryWindow::open(const char* action, const Answers::Action& look)
{
    const Answers answers({look});
    trigger(action);
    QCOMPARE(answers.opened(), QStringList("HistoryDialog"));
}

void tst_HistoryWindow::newestFirstWithChanges()
{
    open("actionHistory", [](QDialog* dialog) {
        QCOMPARE(titles(dialog), QStringList({"Removing Archive", "Settings", "User and password of Yard",
                                              "Properties of Gate north", "Adding 5 node(s)"}));
        const auto* model = sets(dialog)->model();
        QCOMPARE(model->index(0, HistoryModel::UserColumn).data().toString(), Cause::currentUser());
        QCOMPARE(model->index(0, HistoryModel::StationColumn).data().toString(), Cause::currentStation());
        QCOMPARE(cells(changes(dialog)->model(), 0),
                 QStringList({"Archive", "Recording Folder", "Archive", "(not there)"}));
        sets(dialog)->selectRow(2);
        QCOMPARE(changes(dialog)->model()->rowCount(), 2);
        QCOMPARE(cells(changes(dialog)->model(), 0), QStringList({"Yard", "Password", "", "changed"}));
        QCOMPARE(cells(changes(dialog)->model(), 1), QStringList({"Yard", "User name", "", "admin"}));
        sets(dialog)->selectRow(1);
        QCOMPARE(cells(changes(dialog)->model(), 0),
                 QStringList({"Settings", "Bandwidth", "", "Slow Local (WLAN/WiFi, Ethernet)"}));
        sets(dialog)->selectAll();
        QVERIFY(changes(dialog)->model()->rowCount() >= 10);
    });
}

void tst_HistoryWindow::filters_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("found");
    const QString model = "Properties of Gate north";
    const QString added = "Adding 5 node(s)";
    QTest::newRow("name") << "textLineEdit"
                          << "archive" << QStringList({"Removing Archive", added});
    QTest::newRow("value, with signs that mean something elsewhere") << "textLineEdit"
                                                                     << "50% \\new_" << QStringList(model);
    QTest::newRow("percent alone") << "textLineEdit"
                                   << "%" << QStringList(model);
    QTest::newRow("title") << "textLineEdit"
                           << "users and" << QStringList("User and password of Yard");
    QTest::newRow("nothing") << "textLineEdit"
                             << "nowhere" << QStringList();
    QTest::newRow("no password") << "textLineEdit"
                                 << "very-secret" << QStringList();
    QTest::newRow("user") << "userLineEdit" << Cause::currentUser().toUpper()
                          << QStringList(
                                 {"Removing Archive", "Settings", "User and password of Yard", model, added});
    QTest::newRow("nobody") << "userLineEdit"
                            << "nobody at all" << QStringList();
    QTest::newRow("kind") << "kindComboBox"
                          << "Removing nodes" << QStringList("Removing Archive");
    QTest::newRow("property") << "propertyComboBox"
                              << "Model" << QStringList({model, added});
    QTest::newRow("property of a folder") << "propertyComboBox"
                                          << "Path" << QStringList({"Removing Archive", added});
    QTest::newRow("setting") << "propertyComboBox"
                             << "Use proxy" << QStringList();
    QTest::newRow("title of a property and of a setting") << "propertyComboBox"
                                                          << "Bandwidth" << QStringList("Settings");
}

void tst_HistoryWindow::filters()
{
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(QStringList, found);
    open("actionHistory", [&](QDialog* dialog) {
        if (field.endsWith("LineEdit"))
            child<QLineEdit>(dialog, qPrintable(field))->setText(value);
        else
            choose(dialog, qPrintable(field), value);
        QCOMPARE(titles(dialog), found);
        QCOMPARE(child<QPushButton>(dialog, "putBackButton")->isEnabled(), !found.isEmpty());
        const QString state = child<QLabel>(dialog, "stateLabel")->text();
        QCOMPARE(state, QString(found.isEmpty() ? "Nothing was found." : "This is all."));
    });
}

void tst_HistoryWindow::propertiesOfOneTitle()
{
    testsupport::setText(*m_host->db(), idOf("Gate south"), "RecordingTransponderUser", "operator");
    endTurn();
    open("actionHistory", [](QDialog* dialog) {
        choose(dialog, "propertyComboBox", "User name");
        const QStringList found = titles(dialog);
        QVERIFY2(found.contains("Properties of Gate south"), qPrintable(found.join('\n')));
        QVERIFY2(found.contains("User and password of Yard"), qPrintable(found.join('\n')));
        QVERIFY2(!found.contains("Properties of Gate north"), qPrintable(found.join('\n')));
    });
}

void tst_HistoryWindow::timeFilter()
{
    open("actionHistory", [](QDialog* dialog) {
        child<QCheckBox>(dialog, "fromCheckBox")->click();
        QCOMPARE(int(titles(dialog).size()), 5); // of the last days
        child<QCheckBox>(dialog, "toCheckBox")->click();
        QCOMPARE(int(titles(dialog).size()), 5); // today included
        child<QDateEdit>(dialog, "toDateEdit")->setDate(QDate::currentDate().addDays(-1));
        QCOMPARE(titles(dialog), QStringList());
        child<QCheckBox>(dialog, "toCheckBox")->click();
        child<QDateEdit>(dialog, "fromDateEdit")->setDate(QDate::currentDate().addDays(1));
        QCOMPARE(titles(dialog), QStringList());
    });
}

void tst_HistoryWindow::ofSelectedNodes()
{
    select({"Yard"});
    open("actionNodeHistory", [](QDialog* dialog) {
        QCOMPARE(titles(dialog), QStringList({"User and password of Yard", "Adding 5 node(s)"}));
        auto* scope = child<QCheckBox>(dialog, "scopeCheckBox");
        QVERIFY(scope->text().contains("Yard"));
        scope->click();
        QCOMPARE(int(titles(dialog).size()), 5);
    });
    select({"Yard", "Gate north"});
    open("actionNodeHistory", [](QDialog* dialog) {
        QCOMPARE(titles(dialog),
                 QStringList({"User and password of Yard", "Properties of Gate north", "Adding 5 node(s)"}));
    });
}

void tst_HistoryWindow::pageOfTheEditor()
{
    {
        const ChangeScope scope(*m_host->db(), Cause::now(Purpose::Edit));
        for (const char* name : {"Yard", "Gate north", "Gate south"})
            testsupport::setText(*m_host->db(), idOf(name), "Version", "7");
    }
    endTurn();
    select({"Yard"});
    const Answers answers({[&](QDialog* dialog) {
        auto* tabs = child<QTabWidget>(dialog, "tabWidget");
        QCOMPARE(tabs->tabText(0).remove(QLatin1Char('&')), QString("General"));
        QCOMPARE(tabs->tabText(tabs->count() - 1).remove(QLatin1Char('&')), QString("History"));
        const QSize size = dialog->size();
        tabs->setCurrentIndex(tabs->count() - 1);
        auto* done = child<QTableView>(dialog, "nodeSetsTableView");
        const auto* changed = child<QTableView>(dialog, "nodeChangesTableView")->model();
        const QAbstractItemModelTester tester(done->model());
        QCOMPARE(done->model()->rowCount(), 3);
        // Of what was done to three nodes only what this one had of it.
        QCOMPARE(changed->rowCount(), 1);
        QCOMPARE(cells(changed, 0), QStringList({"Yard", "Software version", "", "7"}));
        done->selectRow(1);
        QCOMPARE(cells(changed, 0), QStringList({"Yard", "Password", "", "changed"}));
        QVERIFY(done->editTriggers() == QAbstractItemView::NoEditTriggers);
        // It follows, whoever does something.
        const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
        testsupport::setText(*other, idOf("Yard"), "Model", "theirs");
        QVERIFY(other->flush());
        m_host->db()->syncForeignChanges();
        KO_TRY_COMPARE(cells(changed, 0), QStringList({"Yard", "Model", "", "theirs"}));
        testsupport::setText(*m_host->db(), idOf("Yard"), "Model", "");
        endTurn();
        KO_TRY_COMPARE(cells(changed, 0), QStringList({"Yard", "Model", "theirs", ""}));
        QCOMPARE(dialog->size(), size);
        dialog->reject();
    }});
    trigger("actionEdit");
    QCOMPARE(int(answers.opened().size()), 1);
}

void tst_HistoryWindow::pageCostsNothingUnseen()
{
    select({"Yard"});
    const Answers answers({[](QDialog* dialog) {
        QVERIFY(dialog->findChild<QWidget*>("history"));
        QVERIFY(!dialog->findChild<QTableView*>("nodeSetsTableView"));
        dialog->reject();
    }});
    trigger("actionProperties");
    QCOMPARE(int(answers.opened().size()), 1);
}

void tst_HistoryWindow::fromTheAuditLog()
{
    m_host->db()->setBandwidth(3);
    endTurn();
    QStringList opened;
    const Answers answers({[](QDialog* log) {
                               auto* view = child<QTableView>(log, "entriesTableView");
                               auto* button = child<QPushButton>(log, "historyButton");
                               QVERIFY(!button->isEnabled());
                               for (int row = 0; row < view->model()->rowCount(); ++row) {
                                   if (view->model()->index(row, 2).data().toString() == "Removed device")
                                       view->selectRow(row);
                               }
                               QVERIFY(button->isEnabled());
                               button->click();
                           },
                           [&opened](QDialog* dialog) {
                               opened = titles(dialog);
                               QCOMPARE(sets(dialog)->currentIndex().row(), 0);
                               child<QCheckBox>(dialog, "scopeCheckBox")->click();
                               QCOMPARE(titles(dialog).value(0), QString("Settings"));
                           }});
    trigger("actionAuditLog");
    QCOMPARE(answers.opened(), QStringList({"AuditLogDialog", "HistoryDialog"}));
    QCOMPARE(opened.first(), QString("Removing Archive"));
}

/// OK without a change is logged, but the lists do not show it as a change.
void tst_HistoryWindow::savedWithoutAChange()
{
    const auto edit = [this](const QString& node, const QString& name) {
        select({node});
        const Answers answers({[&name](QDialog* editor) {
            if (!name.isEmpty())
                QTest::keyClicks(child<QLineEdit>(editor, "nameLineEdit"), name);
            confirm(editor);
        }});
        trigger("actionEdit");
        endTurn();
        QCOMPARE(int(answers.opened().size()), 1);
    };
    QStringList entries;
    QStringList changes;
    const auto look = [&](QDialog* log) {
        const auto* model = child<QTableView>(log, "entriesTableView")->model();
        for (int row = 0; row < 2; ++row)
            entries.append(model->index(row, 2).data().toString());
        log->reject();
    };
    edit("Yard", "B");
    edit("YardB", QString());
    const Answers answers({look, [&changes](QDialog* dialog) {
                               changes = titles(dialog);
                               dialog->reject();
                           }});
    trigger("actionAuditLog");
    trigger("actionHistory");
    QCOMPARE(int(answers.opened().size()), 2);
    QCOMPARE(entries,
             QStringList({"Changed device properties (nothing was changed)", "Changed device properties"}));
    QCOMPARE(changes.first(), QString("Properties of YardB"));
    QCOMPARE(changes.count("Properties of YardB"), 1);
}

void tst_HistoryWindow::putBackOfChangeSets()
{
    const QString archive = m_host->db()->history().changeSets(0, 1000).last().nodes.first().id;
    const Answers answers({[](QDialog* dialog) {
                               sets(dialog)->setSelectionMode(QAbstractItemView::MultiSelection);
                               QCOMPARE(int(titles(dialog).size()), 5);
                               sets(dialog)->selectRow(3); // with the first one
                               child<QPushButton>(dialog, "putBackButton")->click();
                               QCOMPARE(titles(dialog).size(), 6);
                           },
                           [](QDialog* preview) {
                               QCOMPARE(child<QTableView>(preview, "linesTableView")->model()->rowCount(), 2);
                               confirm(preview);
                           }});
    trigger("actionHistory");
    QCOMPARE(answers.opened(), QStringList({"HistoryDialog", "PutBackDialog"}));
    QCOMPARE(idOf("Archive"), archive);
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString());
    QCOMPARE(m_window->statusBar()->currentMessage(), QString("Put back: 2 selected change(s)").toUtf8());
}

void tst_HistoryWindow::putBackOfSingleLines()
{
    const Answers answers({[](QDialog* dialog) {
                               sets(dialog)->selectRow(2);
                               auto* button = child<QPushButton>(dialog, "putBackLinesButton");
                               QVERIFY(!button->isEnabled());
                               changes(dialog)->selectRow(1);
                               QVERIFY(button->isEnabled());
                               button->click();
                           },
                           [](QDialog* preview) {
                               const auto* model = child<QTableView>(preview, "linesTableView")->model();
                               QCOMPARE(model->rowCount(), 1);
                               QCOMPARE(cells(model, 0), QStringList({"Yard", "User name", "admin", "", ""}));
                               confirm(preview);
                           }});
    trigger("actionHistory");
    QCOMPARE(answers.opened(), QStringList({"HistoryDialog", "PutBackDialog"}));
    const auto yard = m_host->db()->node(idOf("Yard")).cast<const IPDeviceNode>();
    QCOMPARE(yard->user(0), QString());
    QCOMPARE(yard->password(0), QString("very-secret"));
}

void tst_HistoryWindow::putBackOfLinesWithFollowers()
{
    HostNodeDB& db = *m_host->db();
    const QString camera = idOf("Gate north");
    const QString folder = testsupport::addNode(db, RecordingFolderType, "Folder", "/x");
    db.addNodeRelation(camera, folder, RecordingFolderRelation);
    endTurn();
    db.removeNode(folder);
    db.removeNode(idOf("Overview"));
    endTurn();
    const Answers answers({[](QDialog* dialog) {
                               const auto* model = changes(dialog)->model();
                               for (int row = 0; row < model->rowCount(); ++row) {
                                   if (cells(model, row).at(1) == "Recording Folder" &&
                                       cells(model, row).at(0) == "Folder")
                                       changes(dialog)->selectRow(row);
                               }
                               child<QPushButton>(dialog, "putBackLinesButton")->click();
                           },
                           confirm});
    trigger("actionHistory");
    QCOMPARE(int(answers.opened().size()), 2);
    QCOMPARE(db.relatedNodes(camera, RecordingFolderRelation), QStringList(folder));
    QVERIFY(idOf("Overview").isEmpty());
}

/// By Ctrl+Z, as anything else that the user does.
void tst_HistoryWindow::putBackIsUndone()
{
    {
        const Answers answers(
            {[](QDialog* dialog) { child<QPushButton>(dialog, "putBackButton")->click(); }, confirm});
        trigger("actionHistory");
        QCOMPARE(int(answers.opened().size()), 2);
    }
    QVERIFY(!idOf("Archive").isEmpty());
    auto* undo = child<QAction>(m_window.get(), "actionUndo");
    KO_TRY_COMPARE(undo->text(), QString("&Undo \"Put back: Removing Archive\""));
    const Answers answers({confirm});
    undo->trigger();
    QVERIFY(idOf("Archive").isEmpty());
}

void tst_HistoryWindow::identifiersAreNames()
{
    HostNodeDB& db = *m_host->db();
    db.environments().setList(db.environments().getList() << qMakePair(QString("{1}"), QString("Office")));
    endTurn();
    db.setActiveEnvironment("{1}");
    endTurn();
    m_host->change(idOf("Overview"),
                   [this](Node* node) { node->setStringProperty(PropertyKeys::AudioPathID, idOf("Yard")); });
    endTurn();
    open("actionHistory", [](QDialog* dialog) {
        QCOMPARE(cells(changes(dialog)->model(), 0), QStringList({"Overview", "Audio path", "", "Yard"}));
        sets(dialog)->selectRow(1);
        QCOMPARE(cells(changes(dialog)->model(), 0),
                 QStringList({"Settings", "Active environment", "Default", "Office"}));
        sets(dialog)->selectRow(2);
        QCOMPARE(cells(changes(dialog)->model(), 0),
                 QStringList({"Environments", "All", "Default", "Default, Office"}));
    });
}

void tst_HistoryWindow::csv()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("history.csv");
    const Answers answers({[](QDialog* dialog) { child<QPushButton>(dialog, "exportButton")->click(); },
                           [&file](QDialog* dialog) {
                               auto* chooser = qobject_cast<QFileDialog*>(dialog);
                               QVERIFY(chooser);
                               child<QLineEdit>(chooser, "fileNameEdit")->setText(file);
                               static_cast<QDialog*>(chooser)->accept();
                           }});
    trigger("actionHistory");
    QCOMPARE(int(answers.opened().size()), 2);
    QFile reader(file);
    QVERIFY(reader.open(QIODevice::ReadOnly));
    const QByteArray text = reader.readAll();
    QVERIFY(text.contains("Time,User,Station,What was done,Node,What,Before,After\r\n"));
    QVERIFY(text.contains(",Yard,Password,,changed\r\n"));
    QVERIFY(text.contains(",Yard,User name,,admin\r\n"));
    QVERIFY(text.contains("Removing Archive,Archive,Recording Folder,Archive,(not there)\r\n"));
    QVERIFY(!text.contains("very-secret") && !text.contains("sealed"));
    QCOMPARE(text.count('\n'), 1 + 2 + 5 + 1 + 2 + 1 + 1);
}

/// However many there are: what is shown is read, and some more.
void tst_HistoryWindow::manyAreReadAsTheyAreShown()
{
    const QString id = idOf("Gate south");
    {
        testsupport::PlainSql sql(m_host->fileName());
        sql.run("BEGIN");
        sql.run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)"
                " INSERT INTO change_sets (id, time, user, host, purpose, subject)"
                " SELECT 'many' || i, 1700000000000 + i, 'user' || (i % 7), 'here', 'edit', '' FROM n");
        sql.run("INSERT INTO changes (kind, id, change_set, before, after) SELECT 'N', '" + id +
                "', seq, '{\"name\":\"Old\",\"properties\":{\"Model\":\"m\"}}',"
                " '{\"name\":\"Old\",\"properties\":{\"Model\":\"word' || seq || '\"}}'"
                " FROM change_sets WHERE id LIKE 'many%'");
        sql.run("COMMIT");
    }
    open("actionHistory", [](QDialog* dialog) {
        auto* model = qobject_cast<HistoryModel*>(sets(dialog)->model());
        while (model->isLooking())
            QCoreApplication::processEvents();
        QVERIFY2(model->rowCount() >= 100 && model->rowCount() < 5000,
                 qPrintable(QString::number(model->rowCount())));
        sets(dialog)->scrollToBottom();
        const int before = model->rowCount();
        KO_TRY_VERIFY(model->rowCount() > before);
        child<QLineEdit>(dialog, "textLineEdit")->setText("word77\"");
        QCOMPARE(int(titles(dialog).size()), 0);
        child<QLineEdit>(dialog, "textLineEdit")->setText("word77");
        QVERIFY(titles(dialog).size() >= 100);
        model->fetchMore({});
        QCOMPARE(int(titles(dialog).size()), 111); // 77, 77x, 77xx
    });
}

void tst_HistoryWindow::howMuchToKeep()
{
    HostNodeDB& db = *m_host->db();
    QVERIFY(db.history().limit().isNone());
    open("actionHistory", [&](QDialog* dialog) {
        const testsupport::ModalAnswer days([](QDialog* limit) {
            QVERIFY(!child<QSpinBox>(limit, "daysSpinBox")->isEnabled());
            child<QCheckBox>(limit, "daysCheckBox")->click();
            child<QSpinBox>(limit, "daysSpinBox")->setValue(90);
            confirm(limit);
        });
        child<QPushButton>(dialog, "keepButton")->click();
        QVERIFY(days.fired());
        QCOMPARE(titles(dialog).constFirst(), QString("Settings")); // a change like any other
    });
    QCOMPARE(db.history().limit().days, 90);
    QCOMPARE(db.history().limit().megabytes, 0);
    open("actionHistory", [&](QDialog* dialog) {
        const testsupport::ModalAnswer none([](QDialog* limit) {
            QCOMPARE(child<QSpinBox>(limit, "daysSpinBox")->value(), 90);
            child<QCheckBox>(limit, "daysCheckBox")->click();
            confirm(limit);
        });
        child<QPushButton>(dialog, "keepButton")->click();
        QVERIFY(none.fired());
    });
    QVERIFY(db.history().limit().isNone());
}

/// It is still told who did it, and the window says why no more can be done with it.
void tst_HistoryWindow::whatWasTakenOut()
{
    endTurn();
    testsupport::PlainSql sql(m_host->fileName());
    const qint64 newest = sql.run("SELECT max(seq) FROM change_sets").toLongLong();
    sql.run(QString("DELETE FROM changes WHERE change_set < %1").arg(newest));
    sql.run(QString("UPDATE chain SET kind = 'T' WHERE seq > 1 AND set_end < %1").arg(newest));
    open("actionHistory", [&](QDialog* dialog) {
        const int all = int(titles(dialog).size());
        QVERIFY(all > 2);
        sets(dialog)->selectRow(1);
        QVERIFY(!child<QPushButton>(dialog, "putBackButton")->isEnabled());
        QVERIFY(!child<QPushButton>(dialog, "backToButton")->isEnabled());
        QVERIFY(child<QLabel>(dialog, "stateLabel")->text().contains("taken out"));
        QCOMPARE(changes(dialog)->model()->rowCount(), 0);
    });
    const Answers backTo({[](QDialog* dialog) {
        (void)titles(dialog);
        sets(dialog)->selectRow(1);
        QVERIFY(!dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
        dialog->reject();
    }});
    trigger("actionBackTo");
    QCOMPARE(backTo.opened(), QStringList("BackToDialog"));
}

void tst_HistoryWindow::keyboard()
{
    open("actionHistory", [](QDialog* dialog) {
        QCOMPARE(dialog->focusWidget(), sets(dialog));
        QTest::keyClick(sets(dialog), Qt::Key_Down);
        QCOMPARE(sets(dialog)->currentIndex().row(), 1);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog->focusWidget(), changes(dialog));
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog->focusWidget()->objectName(), QString("putBackButton"));
        sets(dialog)->setFocus();
        const QStringList before = {"propertyComboBox", "toCheckBox"};
        for (int i = 0; i < 1; ++i)
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Backtab);
        QVERIFY2(before.contains(dialog->focusWidget()->objectName()),
                 qPrintable(dialog->focusWidget()->objectName()));
    });
}

void tst_HistoryWindow::models()
{
    open("actionHistory", [](QDialog* dialog) {
        const QAbstractItemModelTester ofSets(sets(dialog)->model());
        const QAbstractItemModelTester ofChanges(changes(dialog)->model());
        child<QLineEdit>(dialog, "textLineEdit")->setText("Archive");
        QCOMPARE(int(titles(dialog).size()), 2);
        sets(dialog)->selectAll();
        child<QLineEdit>(dialog, "textLineEdit")->clear();
        QCOMPARE(int(titles(dialog).size()), 5);
    });
}

KO_TEST_MAIN(tst_HistoryWindow)
#include "tst_historywindow.moc"
