#include "ConfirmedWays.h"
#include "database/StoredHistory.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "PutBackModel.h"
#include "audit/AuditLog.h"
#include "exchange/CameraSurvey.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QStatusBar>
#include <QTableView>

using namespace ko;
using testsupport::Answers;
using testsupport::cancel;
using testsupport::child;
using testsupport::confirm;
using testsupport::ModalAnswer;
using testsupport::press;

namespace {

QStringList rowOf(const QAbstractItemModel& model, int row)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells.append(model.index(row, column).data().toString());
    return cells;
}

/// A part of what is confirmed at once.
typedef void (*Part)(HostNodeDB& db, const QString& camera, const QString& folder);

} // namespace

Q_DECLARE_METATYPE(Part)

/// What the user did can be undone and done again, with a look at it first.
class tst_Undo : public QObject, private testsupport::ConfirmedWays
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void everyWay_data() { addWays(); }
    void everyWay();
    void actionsSayWhat();
    void noticeGoesWithALaterStep();
    void shortcuts();
    void cancelLeavesAll();
    void leftOutLine();
    void changedSince();
    void changedWhileShown();
    void nothingLeftToPutBack();
    void somethingNewEndsRedo();
    void programsOwnIsNotUndone();
    void removedCameraWithFollowers();
    void passwordsAreHidden();
    void keyboard();
    void manyLines();
    void whatWaitsCounts();
    void whatLeavesNothingIsNoStep_data();
    void whatLeavesNothingIsNoStep();
    void possibleAgainWhileShown();
    void anotherStepWhileShown();

private:
    QString state() const { return testsupport::stateOf(m_host->fileName()); }
    void setModelNow(const QString& name, const QString& model)
    {
        testsupport::setText(*m_host->db(), idOf(name), "Model", model);
    }
    QAction* action(const char* name) const { return child<QAction>(m_window.get(), name); }
    QString said() const { return m_window->statusBar()->currentMessage(); }
    void setModel(const QString& name, const QString& model);
    void run(const char* action, const Answers::Action& answer);
    /// The turn ends, what was changed in it is stored, and the menu follows.
    static void settle()
    {
        QTest::qWait(1);
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
};

void tst_Undo::init()
{
    openWindowForAll();
    QTest::qWait(1);
    QVERIFY(m_host->db()->flush());
    m_window = std::make_unique<MainWindow>(*m_host->db()); // since whose start nothing was done
    m_window->resize(900, 500);
    m_window->show();
    m_view = m_window->findChild<NodeListView*>();
    QVERIFY(!action("actionUndo")->isEnabled());
}

void tst_Undo::setModel(const QString& name, const QString& model)
{
    setModelNow(name, model);
    settle();
}

void tst_Undo::run(const char* name, const Answers::Action& answer)
{
    settle();
    QVERIFY2(action(name)->isEnabled(), name);
    const Answers answers({answer});
    trigger(name);
    QCOMPARE(answers.opened(), QStringList("PutBackDialog"));
    settle();
}

void tst_Undo::everyWay()
{
    const QString before = state();
    QVERIFY(takeWay());
    settle();
    const QString after = state();
    QVERIFY(before != after);
    const qint64 entries = m_host->db()->auditLog().count();

    run("actionUndo", confirm);
    QCOMPARE(state(), before);
    QVERIFY2(said().startsWith("Undone: "), qPrintable(said()));
    QVERIFY(!action("actionUndo")->isEnabled());
    run("actionRedo", confirm);
    QCOMPARE(state(), after);
    QVERIFY2(said().startsWith("Redone: "), qPrintable(said()));
    run("actionUndo", confirm);
    QCOMPARE(state(), before);
    const QVector<ChangeSet> sets = m_host->db()->history().changeSets(0, 1000);
    for (int i = 1; i <= 3; ++i) {
        const ChangeSet& set = sets.at(sets.size() - i);
        QCOMPARE(set.cause.purpose, Purpose::Undo);
        const bool isOfNodes = !set.nodes.isEmpty() || !set.relations.isEmpty();
        QCOMPARE(!set.audit.isEmpty(), isOfNodes);
        QVERIFY(set.audit.size() >= set.nodes.size());
    }
    if (!sets.last().nodes.isEmpty())
        QVERIFY(m_host->db()->auditLog().count() >= entries + 3);
}

void tst_Undo::actionsSayWhat()
{
    QCOMPARE(action("actionUndo")->text(), QString("&Undo"));
    setModel("Gate north", "one");
    QCOMPARE(action("actionUndo")->text(), QString("&Undo \"Properties of Gate north\""));
    testsupport::setText(*m_host->db(), idOf("Yard"), "Name", "Yard & more");
    settle();
    QCOMPARE(action("actionUndo")->text(), QString("&Undo \"Properties of Yard && more\""));
    run("actionUndo", confirm);
    QCOMPARE(action("actionRedo")->text(), QString("&Redo \"Properties of Yard && more\""));
    QCOMPARE(action("actionUndo")->text(), QString("&Undo \"Properties of Gate north\""));
}

/// What is said of one step, with its button, is taken away by the next: the button would undo that one.
void tst_Undo::noticeGoesWithALaterStep()
{
    auto* undo = child<QPushButton>(m_window.get(), "undoButton");
    setModelNow("Gate north", "one");
    m_window->sayDone("the model");
    settle();
    QCOMPARE(said(), QString("the model"));
    QVERIFY(undo->isVisible());
    setModel("Yard", "two");
    QCOMPARE(said(), QString());
    QVERIFY(!undo->isVisible());
    {
        const Answers answers({[](QDialog* editor) {
            child<QLineEdit>(editor, "nameLineEdit")->setText("Gate east");
            confirm(editor);
        }});
        select({"Gate north"});
        trigger("actionEdit");
    }
    settle();
    QCOMPARE(said(), QString("\"Gate east\" was changed."));
    QVERIFY(undo->isVisible());
    {
        const Answers answers({confirm});
        trigger("actionEdit");
    }
    settle();
    QCOMPARE(said(), QString("\"Gate east\" was changed.")); // which is still the last step
}

void tst_Undo::shortcuts()
{
    const QString before = state();
    setModel("Gate north", "one");
    QCOMPARE(action("actionUndo")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Z));
    QCOMPARE(action("actionRedo")->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    m_view->setFocus();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    {
        const Answers answers({confirm});
        QTest::keyClick(m_view, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(answers.opened(), QStringList("PutBackDialog"));
    }
    QCOMPARE(state(), before);
    settle();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    {
        const Answers answers({confirm});
        QTest::keyClick(m_view, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(answers.opened(), QStringList("PutBackDialog"));
    }
    // In a field it takes back what was typed.
    auto* search = child<QLineEdit>(m_window.get(), "searchLineEdit");
    search->setFocus();
    QTest::keyClicks(search, "yard");
    settle();
    QTest::keyClick(search, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(search->text() != "yard");
    QVERIFY(action("actionUndo")->isEnabled());
}

void tst_Undo::cancelLeavesAll()
{
    setModel("Gate north", "one");
    const QString after = state();
    run("actionUndo", [](QDialog* dialog) {
        const auto* model = child<QTableView>(dialog, "linesTableView")->model();
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(rowOf(*model, 0), QStringList({"Gate north", "Model", "one", "", ""}));
        cancel(dialog);
    });
    QCOMPARE(state(), after);
    QVERIFY(action("actionUndo")->isEnabled());
}

void tst_Undo::leftOutLine()
{
    testsupport::setText(*m_host->db(), idOf("Gate north"), "Model", "one");
    testsupport::setText(*m_host->db(), idOf("Gate south"), "Model", "one");
    run("actionUndo", [](QDialog* dialog) {
        auto* table = child<QTableView>(dialog, "linesTableView");
        QAbstractItemModel* model = table->model();
        auto* all = child<QCheckBox>(dialog, "allCheckBox");
        QPushButton* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QCOMPARE(all->checkState(), Qt::Checked);
        QTest::keyClick(table, Qt::Key_Space); // the first line
        QCOMPARE(model->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QCOMPARE(all->checkState(), Qt::PartiallyChecked);
        all->click();
        QCOMPARE(all->checkState(), Qt::Checked);
        all->click();
        QCOMPARE(all->checkState(), Qt::Unchecked);
        QVERIFY(!ok->isEnabled());
        model->setData(model->index(1, 0), Qt::Checked, Qt::CheckStateRole);
        QVERIFY(ok->isEnabled());
        ok->click();
    });
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString("one"));
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate south"), "Model"), QString());
}

void tst_Undo::changedSince()
{
    testsupport::setText(*m_host->db(), idOf("Gate north"), "Model", "one");
    testsupport::setText(*m_host->db(), idOf("Gate south"), "Model", "one");
    settle();
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    testsupport::setText(*other, idOf("Gate north"), "Model", "theirs");
    QVERIFY(other->flush());
    run("actionUndo", [](QDialog* dialog) {
        auto* model = child<QTableView>(dialog, "linesTableView")->model();
        QCOMPARE(rowOf(*model, 0),
                 QStringList({"Gate north", "Model", "theirs", "theirs", "It was changed since."}));
        QVERIFY(!(model->flags(model->index(0, 0)) & Qt::ItemIsEnabled));
        QVERIFY(!model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole));
        confirm(dialog);
    });
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString("theirs"));
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate south"), "Model"), QString());
}

void tst_Undo::changedWhileShown()
{
    testsupport::setText(*m_host->db(), idOf("Gate north"), "Model", "one");
    testsupport::setText(*m_host->db(), idOf("Gate south"), "Model", "one");
    settle();
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    QString told;
    {
        const Answers answers({[&](QDialog* dialog) {
                                   testsupport::setText(*other, idOf("Gate north"), "Model", "theirs");
                                   QVERIFY(other->flush());
                                   confirm(dialog);
                               },
                               [&told](QDialog* box) {
                                   told = qobject_cast<QMessageBox*>(box)->text();
                                   box->accept();
                               }});
        trigger("actionUndo");
        QCOMPARE(int(answers.opened().size()), 2);
    }
    QVERIFY2(told.contains("Gate north: Model"), qPrintable(told));
    QVERIFY2(!told.contains("Gate south"), qPrintable(told));
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString("theirs"));
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate south"), "Model"), QString());
}

void tst_Undo::nothingLeftToPutBack()
{
    setModel("Gate south", "one");
    setModel("Gate north", "one");
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    testsupport::setText(*other, idOf("Gate north"), "Model", "theirs");
    QVERIFY(other->flush());
    run("actionUndo", [](QDialog* dialog) {
        QVERIFY(child<QLabel>(dialog, "hintLabel")->text().contains("nothing of it"));
        QVERIFY(!dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
        press(dialog, QDialogButtonBox::Close);
    });
    QCOMPARE(action("actionUndo")->text(), QString("&Undo \"Properties of Gate south\""));
    QVERIFY(!action("actionRedo")->isEnabled());
}

void tst_Undo::somethingNewEndsRedo()
{
    setModel("Gate south", "one");
    run("actionUndo", confirm);
    QVERIFY(action("actionRedo")->isEnabled());
    setModel("Gate north", "one");
    QVERIFY(!action("actionRedo")->isEnabled());
}

void tst_Undo::programsOwnIsNotUndone()
{
    for (const Purpose purpose : {Purpose::Scan, Purpose::Check, Purpose::Start}) {
        const ChangeScope scope(*m_host->db(), Cause::now(purpose));
        testsupport::setText(*m_host->db(), idOf("Yard"), "Model", Purposes::word(purpose));
    }
    settle();
    QVERIFY(!action("actionUndo")->isEnabled());
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    testsupport::setText(*other, idOf("Yard"), "Model", "theirs");
    QVERIFY(other->flush());
    m_host->db()->syncForeignChanges();
    settle();
    QVERIFY(!action("actionUndo")->isEnabled());
}

void tst_Undo::removedCameraWithFollowers()
{
    const QString id = idOf("Gate north");
    const QString folder = m_host->db()->relatedNodes(id, RecordingFolderRelation).value(0);
    m_host->change(id, [](Node* node) { node->setBoolProperty("UseRecordingTransponder", true); });
    settle();
    const QString preview = m_host->db()->relatedNodes(id, RecordingTransponderRelation).value(0);
    QVERIFY(!preview.isEmpty());
    const QString before = state();
    select({"Gate north"});
    {
        const Answers answers({[](QDialog* box) {
            child<QCheckBox>(box, "foldersCheckBox")->setChecked(false); // it stays, and is related again
            const QList<QAbstractButton*> buttons = box->findChildren<QAbstractButton*>();
            for (QAbstractButton* button : buttons) {
                if (button->text().remove('&') == "Remove")
                    return button->click();
            }
        }});
        trigger("actionRemove");
    }
    settle();
    QVERIFY(m_host->db()->summary(preview).id.isEmpty());
    KO_TRY_COMPARE(m_view->model()->rowCount(), 4);
    run("actionUndo", [](QDialog* dialog) {
        QCOMPARE(child<QTableView>(dialog, "linesTableView")->model()->rowCount(), 2);
        confirm(dialog);
    });
    QCOMPARE(state(), before);
    QCOMPARE(idOf("Gate north"), id);
    QCOMPARE(m_host->db()->relatedNodes(id, RecordingFolderRelation), QStringList(folder));
    QCOMPARE(m_host->db()->relatedNodes(id, RecordingTransponderRelation), QStringList(preview));
    QCOMPARE(m_view->model()->rowCount(), 6);
}

void tst_Undo::passwordsAreHidden()
{
    for (const char* password : {"first", "second"}) {
        m_host->change(idOf("Gate north"), [password](Node* node) {
            dynamic_cast<IPDeviceNode*>(node)->setUser("admin", password);
        });
        settle();
    }
    run("actionUndo", [](QDialog* dialog) {
        const auto* model = child<QTableView>(dialog, "linesTableView")->model();
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(rowOf(*model, 0), QStringList({"Gate north", "Password", "(hidden)", "changed", ""}));
        confirm(dialog);
    });
    QCOMPARE(m_host->db()->node(idOf("Gate north")).cast<const IPDeviceNode>()->password(0),
             QString("first"));
}

void tst_Undo::keyboard()
{
    const QString before = state();
    setModel("Gate north", "one");
    run("actionUndo", [](QDialog* dialog) {
        auto* table = child<QTableView>(dialog, "linesTableView");
        auto* all = child<QCheckBox>(dialog, "allCheckBox");
        QCOMPARE(dialog->focusWidget(), table);
        QVERIFY(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isDefault());
        QTest::keyClick(table, Qt::Key_Tab);
        QCOMPARE(dialog->focusWidget(), all);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QCOMPARE(state(), before);
}

/// A model without a widget for each line: showing it costs what is seen.
void tst_Undo::manyLines()
{
    HostNodeDB& db = *m_host->db();
    for (int i = 0; i < 2000; ++i)
        testsupport::addCamera(db, QString("Camera %1").arg(i),
                               QString("10.7.%1.%2").arg(i / 250).arg(i % 250));
    settle();
    QTRY_VERIFY(!db.hasUnstoredChanges());
    run("actionUndo", [](QDialog* dialog) {
        QCOMPARE(child<QTableView>(dialog, "linesTableView")->model()->rowCount(), 2000);
        QVERIFY(dialog->findChildren<QWidget*>().size() < 40);
        confirm(dialog);
    });
    QTRY_VERIFY(!db.hasUnstoredChanges());
    QCOMPARE(int(db.nodeIdList(IPDeviceType).size()), 2);
}

/// A key that is hit before the turn of the change has ended.
void tst_Undo::whatWaitsCounts()
{
    setModel("Gate north", "one");
    run("actionUndo", confirm);
    QVERIFY(action("actionRedo")->isEnabled());
    setModelNow("Gate north", "two");
    trigger("actionRedo"); // opens nothing: there is nothing to redo any more
    settle();
    QVERIFY(!action("actionRedo")->isEnabled());

    setModelNow("Gate north", "three");
    const Answers answers({confirm});
    trigger("actionUndo"); // of that, not of what was before
    QCOMPARE(answers.opened(), QStringList("PutBackDialog"));
    settle();
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString("two"));
}

/// The parts of one change set, the second of which takes away what the first one did.
void tst_Undo::whatLeavesNothingIsNoStep_data()
{
    QTest::addColumn<Part>("first");
    QTest::addColumn<Part>("second");
    QTest::newRow("name") << Part([](HostNodeDB& db, const QString& camera, const QString&) {
        testsupport::setText(db, camera, "Name", "Other");
    }) << Part([](HostNodeDB& db, const QString& camera, const QString&) {
        testsupport::setText(db, camera, "Name", "Gate north");
    });
    QTest::newRow("relation") << Part([](HostNodeDB& db, const QString& camera, const QString& folder) {
        db.removeNodeRelation(camera, folder, RecordingFolderRelation);
    }) << Part([](HostNodeDB& db, const QString& camera, const QString& folder) {
        db.addNodeRelation(camera, folder, RecordingFolderRelation);
    });
    QTest::newRow("node") << Part([](HostNodeDB& db, const QString& camera, const QString&) {
        const QString made = testsupport::addNode(db, RecordingFolderType, "Made", "/made");
        db.addNodeRelation(camera, made, RecordingFolderRelation);
    }) << Part([](HostNodeDB& db, const QString&, const QString&) {
        const QStringList folders = db.nodeIdList(RecordingFolderType);
        db.removeNode(*std::find_if(folders.begin(), folders.end(),
                                    [&db](const QString& id) { return db.summary(id).name == "Made"; }));
    });
    QTest::newRow("setting") << Part([](HostNodeDB& db, const QString&, const QString&) {
        db.setGlobalRecordingFolderPath("/elsewhere");
    }) << Part([](HostNodeDB& db, const QString&, const QString&) {
        db.setGlobalRecordingFolderPath("/here");
    });
}

void tst_Undo::whatLeavesNothingIsNoStep()
{
    QFETCH(Part, first);
    QFETCH(Part, second);
    HostNodeDB& db = *m_host->db();
    const QString camera = idOf("Gate north");
    const QString folder = db.relatedNodes(camera, RecordingFolderRelation).value(0);
    db.setGlobalRecordingFolderPath("/here");
    settle();
    const QString known = action("actionUndo")->text();
    const QString before = state();
    {
        const ChangeScope scope(db, Cause::now(Purpose::Edit), ScopeStoring::Meanwhile);
        first(db, camera, folder);
        settle();
        QVERIFY(action("actionUndo")->text() != known);
        QVERIFY(state() != before);
        second(db, camera, folder);
        settle();
        QCOMPARE(action("actionUndo")->text(), known);
        testsupport::setText(db, camera, "Model", "one");
        settle();
    }
    QVERIFY(action("actionUndo")->text() != known);
    run("actionUndo", confirm);
    QCOMPARE(state(), before);
    QCOMPARE(action("actionUndo")->text(), known);
}

void tst_Undo::possibleAgainWhileShown()
{
    setModel("Gate north", "one");
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    testsupport::setText(*other, idOf("Gate north"), "Model", "theirs");
    QVERIFY(other->flush());
    run("actionUndo", [&](QDialog* dialog) {
        QVERIFY(child<QLabel>(dialog, "hintLabel")->text().contains("nothing of it"));
        testsupport::setText(*other, idOf("Gate north"), "Model", "one");
        QVERIFY(other->flush());
        press(dialog, QDialogButtonBox::Close);
    });
    run("actionUndo", confirm);
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate north"), "Model"), QString());
}

/// What this process does meanwhile, a check with what it fills in for example, is another step.
void tst_Undo::anotherStepWhileShown()
{
    setModel("Gate north", "one");
    const std::unique_ptr<HostNodeDB> other = testsupport::openDatabase(m_host->fileName());
    testsupport::setText(*other, idOf("Gate north"), "Model", "theirs");
    QVERIFY(other->flush());
    run("actionUndo", [this](QDialog* dialog) {
        setModel("Gate south", "new");
        press(dialog, QDialogButtonBox::Close);
    });
    QCOMPARE(action("actionUndo")->text(), QString("&Undo \"Properties of Gate south\""));
    run("actionUndo", [this](QDialog* dialog) {
        setModel("Yard", "newer");
        confirm(dialog);
    });
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Gate south"), "Model"), QString());
    QCOMPARE(action("actionUndo")->text(), QString("&Undo \"Properties of Yard\""));
    run("actionUndo", confirm);
    QCOMPARE(testsupport::text(*m_host->db(), idOf("Yard"), "Model"), QString());
    QVERIFY(!action("actionUndo")->isEnabled());
}

KO_TEST_MAIN(tst_Undo)
#include "tst_undo.moc"
