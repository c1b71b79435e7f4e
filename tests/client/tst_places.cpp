#include "client/WindowFixture.h"
#include "support/Answers.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "PlaceTree.h"
#include "Places.h"
#include "exchange/CameraSurvey.h"

#include <QComboBox>
#include <QDockWidget>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;
using testsupport::ModalAnswer;

/// Devices by where they are: the tree beside the list, what is dropped on it, and tags.
class tst_Places : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { Places::declare(); }
    void init();
    void cleanup();

    void paths_data();
    void paths();
    void treeCountsAndFilters();
    void treeFollows();
    void closedTreeShowsAll();
    void treeIsThereAgain();
    void droppedIsThere();
    void othersDropNothing();
    void askedForMany();
    void differentStaysDifferent();
    void listsHoldThem();
    void editorShowsThem();

private:
    void place(const char* name, const char* location) const
    {
        m_host->change(idOf(name), [location](Node* node) { node->setStringProperty("Location", location); });
    }
    QString text(const char* name, const char* key) const
    {
        return m_host->db()->node(idOf(name))->stringProperty(key, QString());
    }
    QStringList shown() const;
    QStringList entries() const;
    PlaceTree& openTree();
    void choose(const QString& place) { child<PlaceTree>(m_window.get(), "placeTreeView")->choose(place); }
    bool drop(const QMimeData& data, const QString& place);
};

void tst_Places::init()
{
    QSettings().remove("window");
    openWindow();
    place("Gate north", "Berlin/Main/Ground floor");
    place("Gate south", " Berlin / Main ");
    place("Yard", "Berlin/Mainz");
    m_window->applyChanges();
}

void tst_Places::cleanup()
{
    closeWindow();
    QSettings().remove("window");
}

QStringList tst_Places::shown() const
{
    QStringList names;
    for (int row = 0; row < m_view->model()->rowCount(); ++row)
        names.append(m_view->model()->index(row, NodeListModel::NameColumn).data().toString());
    return names;
}

/// Each with two blanks for what it lies in.
QStringList tst_Places::entries() const
{
    auto* tree = child<PlaceTree>(m_window.get(), "placeTreeView");
    tree->expandAll();
    QStringList entries;
    for (QModelIndex index = tree->model()->index(0, 0); index.isValid(); index = tree->indexBelow(index)) {
        int depth = 0;
        for (QModelIndex outer = index.parent(); outer.isValid(); outer = outer.parent())
            ++depth;
        entries.append(QString(2 * depth, ' ') + index.data().toString());
    }
    return entries;
}

PlaceTree& tst_Places::openTree()
{
    trigger("actionLocations");
    return *child<PlaceTree>(m_window.get(), "placeTreeView");
}

void tst_Places::paths_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("normalized");
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("blanks") << " / "
                            << "";
    QTest::newRow("one") << "Berlin"
                         << "Berlin";
    QTest::newRow("blanks around") << " Berlin /Main  hall/ 1 "
                                   << "Berlin/Main hall/1";
    QTest::newRow("slashes") << "/Berlin//Main/"
                             << "Berlin/Main";
}

void tst_Places::paths()
{
    QFETCH(QString, typed);
    QTEST(Places::normalized(typed), "normalized");
    QVERIFY(Places::isWithin("Berlin/Main", "Berlin/Main"));
    QVERIFY(Places::isWithin("Berlin/Main/1", "Berlin/Main"));
    QVERIFY(!Places::isWithin("Berlin/Mainz", "Berlin/Main"));
    QVERIFY(!Places::isWithin("Berlin", "Berlin/Main"));
}

void tst_Places::treeCountsAndFilters()
{
    QVERIFY(child<QDockWidget>(m_window.get(), "placeDock")->isHidden());
    openTree();
    QCOMPARE(entries(), QStringList({"All nodes", "Devices without a location", "Berlin (3)", "  Main (2)",
                                     "    Ground floor (1)", "  Mainz (1)"}));
    QCOMPARE(shown().size(), 5);
    choose("Berlin/Main");
    QCOMPARE(shown(), QStringList({"Gate north", "Gate south"}));
    choose("Berlin/Main/Ground floor");
    QCOMPARE(shown(), QStringList("Gate north"));
    choose("");
    QCOMPARE(shown(), QStringList());
    m_window->find(QString());
    QCOMPARE(shown().size(), 5);
}

/// What others do moves entries, and what is chosen stays so.
void tst_Places::treeFollows()
{
    PlaceTree& tree = openTree();
    choose("Berlin/Main");
    place("Yard", "Berlin/Main/2");
    m_host->db()->removeNode(idOf("Gate south"));
    m_window->applyChanges();
    QCOMPARE(shown(), QStringList({"Gate north", "Yard"}));
    QCOMPARE(*tree.chosen(), QString("Berlin/Main"));
    QCOMPARE(entries().mid(2),
             QStringList({"Berlin (2)", "  Main (2)", "    2 (1)", "    Ground floor (1)"}));
    place("Yard", "");
    place("Gate north", "");
    m_window->applyChanges();
    QVERIFY(!tree.chosen()); // the place is gone
    QCOMPARE(shown().size(), 4);
    QCOMPARE(entries().size(), 2);
}

void tst_Places::closedTreeShowsAll()
{
    openTree();
    choose("Berlin/Mainz");
    QCOMPARE(shown(), QStringList("Yard"));
    m_window->close();
    m_window = std::make_unique<MainWindow>(*m_host->db()); // it comes back with the next window
    m_window->show();
    m_view = m_window->findChild<NodeListView*>();
    QVERIFY(!child<QDockWidget>(m_window.get(), "placeDock")->isHidden());
    choose("Berlin/Mainz");
    trigger("actionLocations");
    QCOMPARE(shown().size(), 5);
    QVERIFY(!m_view->dragEnabled());
}

/// Whether the place was marked while the pointer was on it.
bool tst_Places::drop(const QMimeData& data, const QString& place)
{
    PlaceTree& tree = *child<PlaceTree>(m_window.get(), "placeTreeView");
    tree.expandAll();
    const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::UserRole, place, 1,
                                                      Qt::MatchFlags(Qt::MatchExactly | Qt::MatchRecursive));
    if (found.size() != 1)
        qFatal("%s is not in the tree", qPrintable(place));
    const QImage before = tree.viewport()->grab().toImage();
    const QPoint at = tree.visualRect(found.first()).center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree.viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree.viewport(), &move);
    const bool isMarked = tree.viewport()->grab().toImage() != before;
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree.viewport(), &drop);
    return isMarked;
}

/// Closing the window hides it, which is not what its user did.
void tst_Places::treeIsThereAgain()
{
    openTree();
    QVERIFY(m_window->close());
    m_window.reset();
    for (const bool isThere : {true, false}) {
        m_window = std::make_unique<MainWindow>(*m_host->db());
        m_window->show();
        auto* dock = child<QDockWidget>(m_window.get(), "placeDock");
        QCOMPARE(dock->isVisible(), isThere);
        if (isThere)
            dock->close(); // by its button
        m_window->close();
        m_window.reset();
    }
}

void tst_Places::droppedIsThere()
{
    openTree();
    QVERIFY(m_view->dragEnabled());
    select({"Gate north", "Yard", "Archive"}); // a folder is nowhere
    QMimeData data;
    data.setData("application/x-konodeui-nodes", QByteArray::number(QCoreApplication::applicationPid()));
    QVERIFY(drop(data, "Berlin/Main"));
    QCOMPARE(text("Gate north", "Location"), QString("Berlin/Main"));
    QCOMPARE(text("Yard", "Location"), QString("Berlin/Main"));
    QVERIFY(m_window->statusBar()->currentMessage().startsWith("2 device(s)"));
    KO_TRY_VERIFY(child<QAction>(m_window.get(), "actionUndo")->isEnabled());
    const ModalAnswer undo([](QDialog* dialog) { dialog->accept(); });
    trigger("actionUndo");
    QVERIFY(undo.fired());
    QCOMPARE(text("Gate north", "Location"), QString("Berlin/Main/Ground floor"));
    QCOMPARE(text("Yard", "Location"), QString("Berlin/Mainz"));
}

void tst_Places::othersDropNothing()
{
    openTree();
    select({"Gate north"});
    QMimeData data;
    data.setData("application/x-konodeui-nodes", "1");
    QVERIFY(!drop(data, "Berlin/Main"));
    data.setText("text");
    data.removeFormat("application/x-konodeui-nodes");
    QVERIFY(!drop(data, "Berlin/Main"));
    QCOMPARE(text("Gate north", "Location"), QString("Berlin/Main/Ground floor"));
}

void tst_Places::askedForMany()
{
    select({"Gate north", "Gate south"});
    QStringList offered;
    const Answers answers({[&offered](QDialog* dialog) {
        auto* location = child<QComboBox>(dialog, "locationComboBox");
        for (int i = 0; i < location->count(); ++i)
            offered.append(location->itemText(i));
        location->lineEdit()->selectAll();
        QTest::keyClicks(location->lineEdit(), "Bonn / Hall");
        QTest::keyClicks(child<QLineEdit>(dialog, "tagsLineEdit"), "outdoors,  new");
        confirm(dialog);
    }});
    trigger("actionPlace");
    QCOMPARE(answers.opened(), QStringList("PlaceDialog"));
    QCOMPARE(offered, QStringList({"Berlin", "Berlin/Main", "Berlin/Main/Ground floor", "Berlin/Mainz"}));
    for (const char* name : {"Gate north", "Gate south"}) {
        QCOMPARE(text(name, "Location"), QString("Bonn/Hall"));
        QCOMPARE(text(name, "Tags"), QString("outdoors, new"));
    }
    m_window->find("tags:outdoors location:bonn");
    QCOMPARE(shown(), QStringList({"Gate north", "Gate south"}));
}

void tst_Places::differentStaysDifferent()
{
    select({"Gate north", "Gate south"});
    const Answers answers({[](QDialog* dialog) {
        QVERIFY(child<QComboBox>(dialog, "locationComboBox")->currentText().isEmpty());
        child<QLineEdit>(dialog, "tagsLineEdit")->setText("old");
        confirm(dialog);
    }});
    trigger("actionPlace");
    QCOMPARE(answers.opened().size(), 1);
    QCOMPARE(text("Gate north", "Location"), QString("Berlin/Main/Ground floor"));
    QCOMPARE(text("Gate south", "Location"), QString(" Berlin / Main "));
    QCOMPARE(text("Gate south", "Tags"), QString("old"));
}

void tst_Places::listsHoldThem()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("cameras.csv");
    QVERIFY(CameraSurvey::exportCameras(file, CameraSurvey::Passwords::Write).error.isEmpty());
    QFile list(file);
    QVERIFY(list.open(QIODevice::ReadWrite));
    QByteArray content = list.readAll();
    QVERIFY(content.contains("location") && content.contains("tags"));
    QVERIFY(content.contains("Berlin/Mainz"));
    content.replace("Berlin/Mainz", "Mainz");
    list.resize(0);
    list.seek(0);
    list.write(content);
    list.close();
    QCOMPARE(CameraSurvey::importCameras(file).updated, 1);
    QCOMPARE(text("Yard", "Location"), QString("Mainz"));
}

void tst_Places::editorShowsThem()
{
    select({"Yard"});
    const Answers answers({[](QDialog* dialog) {
        auto* location = child<QLineEdit>(dialog, "Location");
        QCOMPARE(location->text(), QString("Berlin/Mainz"));
        location->setText("Bonn");
        confirm(dialog);
    }});
    trigger("actionEdit");
    QCOMPARE(answers.opened().size(), 1);
    QCOMPARE(text("Yard", "Location"), QString("Bonn"));
}

KO_TEST_MAIN(tst_Places)
#include "tst_places.moc"
