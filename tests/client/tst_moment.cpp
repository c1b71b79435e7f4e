#include "ConfirmedWays.h"
#include "support/OwnTimer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MomentModel.h"
#include "MomentWindow.h"
#include "PutBackModel.h"
#include "database/StoredHistory.h"
#include "model/ChangeScope.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QStatusBar>
#include <QTableView>

using namespace ko;
using testsupport::Answers;
using testsupport::cancel;
using testsupport::child;
using testsupport::confirm;

namespace {

QStringList rowOf(const QAbstractItemModel* model, int row)
{
    QStringList cells;
    for (int column = 0; column < model->columnCount(); ++column)
        cells.append(model->index(row, column).data().toString());
    return cells;
}

QStringList rowsOf(const QAbstractItemModel* model)
{
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(rowOf(model, row).join('|'));
    return rows;
}

QTableView* table(const QObject* window, const char* name)
{
    return child<QTableView>(window, name);
}

} // namespace

/// The database as it was, beside what it is, and put back from there.
class tst_Moment : public QObject, private testsupport::ConfirmedWays
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void asksForAMoment();
    void returnTakesWhatIsOffered();
    void listAsItWas();
    void searchAndDifferences();
    void sorting();
    void propertiesThenAndNow();
    void passwordsAreHidden();
    void nothingCanBeEdited();
    void putBackSelected();
    void putBackAll();
    void staysAsItIs();
    void settingsAreToldAndPutBack();
    void fromTheHistory();
    void fromTheAuditLog();
    void closedWhileReading();
    void manyNodes();

private:
    QString state() const { return testsupport::stateOf(m_host->fileName()); }
    void endTurn() { QTest::qWait(1); }
    MomentWindow* window() const { return m_window->findChild<MomentWindow*>(); }
    QAbstractItemModel* nodes() const { return table(window(), "nodesTableView")->model(); }
    QAbstractItemModel* details() const { return table(window(), "detailsTableView")->model(); }
    void open(int row);
    double longestStop(int row, int nodeCount);
    void showDetailsOf(const QString& name);
    void putBack(const char* button, const Answers::Action& answer);

    QString m_before; ///< the state after the first change set that is more than preparing
};

/// Three change sets after the moment.
void tst_Moment::init()
{
    openWindowForAll();
    testsupport::setText(*m_host->db(), idOf("Gate north"), "Model", "one");
    endTurn();
    QVERIFY(m_host->db()->flush());
    m_before = state();
    testsupport::setText(*m_host->db(), idOf("Gate south"), "Name", "Gate new");
    testsupport::setText(*m_host->db(), idOf("Gate north"), "Model", "two");
    endTurn();
    m_host->db()->removeNode(idOf("Archive"));
    endTurn();
    m_host->add(UrlCameraType, "Later", "10.0.9.9");
    endTurn();
    QVERIFY(m_host->db()->flush());
}

/// The moment after the change set in a row of the list of all, the newest first.
void tst_Moment::open(int row)
{
    const Answers answers({[row](QDialog* dialog) {
        table(dialog, "setsTableView")->selectRow(row);
        confirm(dialog);
    }});
    trigger("actionBackTo");
    QCOMPARE(answers.opened(), QStringList("BackToDialog"));
    QVERIFY(window());
    KO_TRY_VERIFY(nodes()->rowCount() > 0);
}

/// Of the event loop, in ms, until this many nodes of a moment are shown.
double tst_Moment::longestStop(int row, int nodeCount)
{
    double longest = 0;
    testsupport::OwnTimer beat;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this,
            [&longest, &beat] { longest = std::max(longest, beat.restart()); });
    const Answers answers({[&](QDialog* dialog) {
        table(dialog, "setsTableView")->selectRow(row);
        beat.start();
        heart.start(0);
        confirm(dialog);
    }});
    trigger("actionBackTo");
    const auto isShown = [&] { return nodes()->rowCount() == nodeCount; };
    if (!QTest::qWaitFor(isShown, testsupport::Patience))
        qWarning("%d nodes are shown", nodes()->rowCount());
    QTest::qWait(10);
    heart.stop();
    delete window();
    return longest;
}

void tst_Moment::showDetailsOf(const QString& name)
{
    for (int row = 0; row < nodes()->rowCount(); ++row) {
        if (rowOf(nodes(), row).constFirst() == name)
            return table(window(), "nodesTableView")->selectRow(row);
    }
    QFAIL(qPrintable(name));
}

void tst_Moment::putBack(const char* button, const Answers::Action& answer)
{
    const Answers answers({answer});
    child<QPushButton>(window(), button)->click();
    QCOMPARE(answers.opened(), QStringList("PutBackDialog"));
    endTurn();
}

void tst_Moment::asksForAMoment()
{
    const Answers answers({[](QDialog* dialog) {
        auto* sets = table(dialog, "setsTableView");
        QCOMPARE(sets->currentIndex().row(), 1); // what was before the last change
        QPushButton* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QVERIFY(ok->isEnabled());
        auto* time = child<QDateTimeEdit>(dialog, "timeDateTimeEdit");
        time->setDateTime(QDateTime::currentDateTime().addDays(-1)); // nothing was done then
        KO_TRY_COMPARE(sets->model()->rowCount(), 0);
        QVERIFY(!ok->isEnabled());
        time->setDateTime(QDateTime::currentDateTime());
        KO_TRY_VERIFY(sets->model()->rowCount() >= 4);
        QCOMPARE(sets->selectionModel()->selectedRows().value(0).row(), 0); // all until then
        QVERIFY(ok->isEnabled());
        cancel(dialog);
    }});
    trigger("actionBackTo");
    QCOMPARE(answers.opened(), QStringList("BackToDialog"));
    QVERIFY(!window());
}

void tst_Moment::returnTakesWhatIsOffered()
{
    const Answers answers({[](QDialog* dialog) {
        QTest::keyClick(child<QDateTimeEdit>(dialog, "timeDateTimeEdit"), Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
    }});
    trigger("actionBackTo");
    QVERIFY(window());
    const QString hint = child<QLabel>(window(), "hintLabel")->text();
    QVERIFY2(hint.contains("\"Removing Archive\""), qPrintable(hint));
}

void tst_Moment::listAsItWas()
{
    open(3);
    const QAbstractItemModelTester tester(nodes());
    QCOMPARE(
        rowsOf(nodes()),
        QStringList({"Gate north|IP Camera|10.0.0.1|Changed", "Gate south|IP Camera|10.0.0.2|Changed",
                     "Yard|URL Camera|10.0.1.1|", "Archive|Recording Folder||Removed", "Overview|View||"}));
    QVERIFY(nodes()->index(0, 0).data(Qt::FontRole).value<QFont>().bold());
    QVERIFY(!nodes()->index(2, 0).data(Qt::FontRole).isValid());
    QCOMPARE(child<QLabel>(window(), "stateLabel")->text(),
             QString("5 node(s) then, 4 different now; 5 shown"));
    QVERIFY(m_window->isEnabled()); // it goes on beside
}

void tst_Moment::searchAndDifferences()
{
    open(3);
    auto* search = child<QLineEdit>(window(), "searchLineEdit");
    QTest::keyClicks(search, "gate");
    QCOMPARE(nodes()->rowCount(), 2);
    search->setText("10.0.1.1");
    QCOMPARE(rowsOf(nodes()), QStringList("Yard|URL Camera|10.0.1.1|"));
    search->clear();
    child<QCheckBox>(window(), "differentCheckBox")->click();
    QCOMPARE(rowsOf(nodes()),
             QStringList({"Gate north|IP Camera|10.0.0.1|Changed", "Gate south|IP Camera|10.0.0.2|Changed",
                          "Later|URL Camera|10.0.9.9|Added", "Archive|Recording Folder||Removed"}));
}

void tst_Moment::sorting()
{
    open(3);
    table(window(), "nodesTableView")->sortByColumn(MomentModel::AddressColumn, Qt::DescendingOrder);
    QCOMPARE(rowOf(nodes(), 0).constFirst(), QString("Yard"));
    table(window(), "nodesTableView")->sortByColumn(MomentModel::DifferenceColumn, Qt::DescendingOrder);
    QCOMPARE(rowOf(nodes(), 0).constFirst(), QString("Archive"));
}

void tst_Moment::propertiesThenAndNow()
{
    open(3);
    showDetailsOf("Gate north");
    const QStringList gate = rowsOf(details());
    QVERIFY2(gate.contains("Model|one|two"), qPrintable(gate.join('\n')));
    QVERIFY2(gate.contains("Name|Gate north|Gate north"), qPrintable(gate.join('\n')));
    QVERIFY2(gate.contains("Recording Folder|Archive|"), qPrintable(gate.join('\n')));
    const auto isBold = [this, &gate](const char* row) {
        const QModelIndex index = details()->index(int(gate.indexOf(row)), 0);
        return index.data(Qt::FontRole).value<QFont>().bold();
    };
    QVERIFY(isBold("Model|one|two"));
    QVERIFY(!isBold("Name|Gate north|Gate north"));
    showDetailsOf("Archive");
    QVERIFY2(rowsOf(details()).contains("Name|Archive|"), qPrintable(rowsOf(details()).join('\n')));
}

void tst_Moment::passwordsAreHidden()
{
    for (const char* password : {"first", "second"}) {
        m_host->change(idOf("Yard"), [password](Node* node) {
            dynamic_cast<IPDeviceNode*>(node)->setUser("admin", password);
        });
        endTurn();
    }
    open(1);
    showDetailsOf("Yard");
    const QStringList yard = rowsOf(details());
    QVERIFY2(yard.contains("Password|(hidden)|changed"), qPrintable(yard.join('\n')));
}

void tst_Moment::nothingCanBeEdited()
{
    open(3);
    const QString before = state();
    for (const char* name : {"nodesTableView", "detailsTableView"}) {
        auto* view = table(window(), name);
        QVERIFY(view->editTriggers() == QAbstractItemView::NoEditTriggers);
        QVERIFY(!(view->model()->flags(view->model()->index(0, 0)) & Qt::ItemIsEditable));
        view->setFocus();
        for (const int key : {int(Qt::Key_F2), int(Qt::Key_Delete), int(Qt::Key_Return), int(Qt::Key_Space)})
            QTest::keyClick(view, Qt::Key(key));
    }
    QVERIFY(window()->isVisible());
    QCOMPARE(state(), before);
}

void tst_Moment::putBackSelected()
{
    const QString archive = m_host->db()->relatedNodes(idOf("Gate north"), RecordingFolderRelation).value(0);
    QCOMPARE(archive, QString());
    open(3);
    showDetailsOf("Archive");
    putBack("putBackSelectedButton", [](QDialog* dialog) {
        QCOMPARE(rowsOf(table(dialog, "linesTableView")->model()).size(), 1);
        QVERIFY(child<QLabel>(dialog, "hintLabel")->text().contains("Back to "));
        confirm(dialog);
    });
    QVERIFY(!idOf("Archive").isEmpty());
    QCOMPARE(m_host->db()->relatedNodes(idOf("Gate north"), RecordingFolderRelation),
             QStringList(idOf("Archive")));
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString("two"));
    QVERIFY(!idOf("Later").isEmpty());
    QVERIFY(m_window->statusBar()->currentMessage().startsWith("Put back: "));
    // What is the same again is not marked any more.
    KO_TRY_VERIFY(rowsOf(nodes()).contains("Archive|Recording Folder||"));
}

void tst_Moment::putBackAll()
{
    open(3);
    putBack("putBackAllButton", [](QDialog* dialog) {
        QCOMPARE(table(dialog, "linesTableView")->model()->rowCount(), 4);
        confirm(dialog);
    });
    QCOMPARE(state(), m_before);
    KO_TRY_COMPARE(child<QLabel>(window(), "stateLabel")->text(),
                   QString("5 node(s) then, 0 different now; 5 shown"));
    const QVector<ChangeSet> sets = m_host->db()->history().changeSets(0, 1000);
    QCOMPARE(sets.last().cause.purpose, Purpose::Undo);
    QVERIFY(!sets.last().audit.isEmpty());
}

/// What is done beside it, here and by another program, is neither shown nor overlooked.
void tst_Moment::staysAsItIs()
{
    open(3);
    const QStringList before = rowsOf(nodes());
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    testsupport::setText(*other, idOf("Gate north"), "Model", "theirs");
    other->removeNode(idOf("Overview"));
    QVERIFY(other->flush());
    testsupport::setText(*m_host->db(), idOf("Yard"), "Name", "Yard, mine");
    m_host->db()->syncForeignChanges();
    endTurn();
    QTest::qWait(50);
    QCOMPARE(rowsOf(nodes()), before);
    showDetailsOf("Overview");
    QVERIFY2(rowsOf(details()).contains("Name|Overview|"), qPrintable(rowsOf(details()).join('\n')));
    showDetailsOf("Gate north");
    QVERIFY2(rowsOf(details()).contains("Model|one|theirs"), qPrintable(rowsOf(details()).join('\n')));
    putBack("putBackAllButton", [](QDialog* dialog) {
        const QStringList lines = rowsOf(table(dialog, "linesTableView")->model());
        QVERIFY2(lines.contains("Gate north|Model|theirs|one|"), qPrintable(lines.join('\n')));
        QCOMPARE(int(lines.size()), 6);
        confirm(dialog);
    });
    QCOMPARE(state(), m_before);
}

void tst_Moment::settingsAreToldAndPutBack()
{
    m_host->db()->setBandwidth(1);
    endTurn();
    open(1);
    QVERIFY(child<QLabel>(window(), "stateLabel")->text().contains("Settings"));
    putBack("putBackAllButton", [](QDialog* dialog) {
        QCOMPARE(table(dialog, "linesTableView")->model()->rowCount(), 1);
        confirm(dialog);
    });
    QVERIFY(m_host->db()->bandwidth() != 1);
}

void tst_Moment::fromTheHistory()
{
    const Answers answers({[](QDialog* dialog) {
        auto* sets = table(dialog, "setsTableView");
        auto* button = child<QPushButton>(dialog, "backToButton");
        sets->setSelectionMode(QAbstractItemView::MultiSelection);
        sets->selectRow(1);
        QVERIFY(!button->isEnabled()); // two
        sets->setSelectionMode(QAbstractItemView::ExtendedSelection);
        sets->selectRow(2);
        QVERIFY(button->isEnabled());
        button->click();
    }});
    trigger("actionHistory");
    QCOMPARE(answers.opened(), QStringList("HistoryDialog"));
    QVERIFY(window());
    KO_TRY_COMPARE(nodes()->rowCount(), 5);
    QVERIFY(rowsOf(nodes()).contains("Gate new|IP Camera|10.0.0.2|"));
}

void tst_Moment::fromTheAuditLog()
{
    const Answers answers({[](QDialog* log) {
                               auto* entries = table(log, "entriesTableView");
                               entries->selectRow(0);
                               child<QPushButton>(log, "historyButton")->click();
                           },
                           [](QDialog* history) { child<QPushButton>(history, "backToButton")->click(); }});
    trigger("actionAuditLog");
    QCOMPARE(answers.opened(), QStringList({"AuditLogDialog", "HistoryDialog"}));
    QVERIFY(window());
    QVERIFY(!QApplication::activeModalWidget()); // in which it could not be used
}

void tst_Moment::closedWhileReading()
{
    const Answers answers({[](QDialog* dialog) { confirm(dialog); }});
    trigger("actionBackTo");
    const QPointer<MomentWindow> opened = window();
    QVERIFY(opened);
    QVERIFY(!child<QPushButton>(opened, "putBackAllButton")->isEnabled());
    opened->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
    KO_TRY_VERIFY(opened.isNull());
    QTest::qWait(50);
}

/// However long it takes, the windows go on.
void tst_Moment::manyNodes()
{
    const int count = 10000;
    HostNodeDB& db = *m_host->db();
    const QString last = m_host->add(RecordingFolderType, "Before");
    endTurn();
    {
        const ChangeScope scope(db, Cause::now(Purpose::Import, "list.csv"));
        for (int i = 0; i < count; ++i)
            testsupport::addCamera(db, QString("Camera %1").arg(i),
                                   QString("10.7.%1.%2").arg(i / 250).arg(i % 250));
        QVERIFY(db.flush());
    }
    {
        const ChangeScope scope(db, Cause::now(Purpose::Edit));
        const QStringList cameras = db.nodeIdList(IPDeviceType);
        for (const QString& id : cameras)
            testsupport::setText(db, id, "Model", "new");
        db.removeNode(last);
        QVERIFY(db.flush());
    }
    m_window->applyChanges();
    endTurn();
    for (const auto& moment : {std::pair(1, count + 6), std::pair(2, 6)}) {
        double shortest = 1e9; // a stop that is the program's own comes each time
        for (int i = 0; i < 3; ++i)
            shortest = std::min(shortest, longestStop(moment.first, moment.second));
        QVERIFY2(shortest < 50 * testsupport::Slowness,
                 qPrintable(QString("%1 nodes, %2 ms").arg(moment.second).arg(shortest)));
    }
}

KO_TEST_MAIN(tst_Moment)
#include "tst_moment.moc"
