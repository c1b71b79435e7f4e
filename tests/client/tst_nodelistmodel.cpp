#include "model/SearchText.h"
#include "support/OwnTimer.h"
#include "support/TestMain.h"

#include "NodeListModel.h"
#include "NodeListView.h"
#include "drivers/NodeTypes.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QElapsedTimer>
#include <QPalette>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <algorithm>
#include <cmath>

using namespace ko;

namespace {

NodeSummary summary(const QString& id, const QString& name, const QString& location = QString(),
                    ENodeType type = IPDeviceType)
{
    NodeSummary node;
    node.id = id;
    node.type = type;
    node.name = name;
    node.location = location;
    node.recordingUsage = 0;
    return node;
}

QString recordingText(const NodeSummary& node)
{
    return node.recordingUsage == 0 ? QString("Via camera") : QString();
}

QVector<NodeSummary> site(int count)
{
    QVector<NodeSummary> nodes;
    for (int i = 0; i < count; ++i)
        nodes.append(summary(QString("id%1").arg(i),
                             QString("Camera %1 floor %2").arg(i * 7919 % count).arg(i % 40),
                             QString("10.%1.%2.%3").arg(i >> 16).arg((i >> 8) & 255).arg(i & 255)));
    return nodes;
}

} // namespace

class tst_NodeListModel : public QObject
{
    Q_OBJECT

private slots:
    void folding();
    void naturalOrder();
    void cellsAndHeaders();
    void searchFindsWordsInAnyColumn_data();
    void searchFindsWordsInAnyColumn();
    void typeFilter();
    void sortingByEachColumn();
    void renamedNodeMovesAndStaysSelected();
    void selectionSurvivesFilterAndSort();
    void hiddenSelectionIsNotReported();
    void hiddenSelectionComesBack();
    void hiddenByAChangeComesBackSelected();
    void everythingSelectedStaysSelected();
    void currentRowStaysInSight();
    void listDoesNotJumpWhenNodesArrive();
    void numbersOfKeysAreInTheirOrder();
    void everyColumnInEitherOrderAgainstTruth_data();
    void everyColumnInEitherOrderAgainstTruth();
    void movedFolderShowsInItsCameras();
    void lineBreaksInNamesAreShownAsBlanks();
    void changeOfAHiddenNodeMovesNothing();
    void randomChangesAgainstTruth();
    void manyAtOnceEqualOneByOne();
    void statesAreShownSoughtAndSorted();
    void statesCostLittle();
    void statesCanBeRead_data();
    void statesCanBeRead();
    void columnsOfProperties();
    void whatShowsTheSameIsLeftAlone();

private:
    static QStringList names(const NodeListModel& model);
};

QStringList tst_NodeListModel::names(const NodeListModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.node(row).name);
    return names;
}

void tst_NodeListModel::folding()
{
    QCOMPARE(SearchText::folded(QString::fromUtf8("Übergang ÉTAGE")), QString("ubergang etage"));
    QCOMPARE(SearchText::folded(QString("Gate 3")), QString("gate 3"));
    QVERIFY(SearchText::folded(QString()).isEmpty());
}

void tst_NodeListModel::naturalOrder()
{
    const QStringList ordered = {
        "",         "7",          "10",        "100",        "Camera",
        "camera 2", "Camera 007", "camera 10", "camera 10b", QString::fromUtf8("Étage 1"),
        "Exit"};
    for (int i = 1; i < ordered.size() - 1; ++i)
        QVERIFY2(SearchText::sortKey(ordered.at(i - 1)) < SearchText::sortKey(ordered.at(i)),
                 qPrintable(ordered.at(i)));
    QCOMPARE(SearchText::sortKey("Camera 007"), SearchText::sortKey("camera 7"));
    QVERIFY(SearchText::sortKey(QString("x").repeated(3) + QString("9").repeated(70000)) >
            SearchText::sortKey("xxx1"));
}

void tst_NodeListModel::cellsAndHeaders()
{
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("a", "Gate", "10.0.0.1")});
    QStringList headers;
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        headers.append(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        cells.append(model.index(0, column).data().toString());
    }
    QCOMPARE(headers, QStringList({"Name", "Type", "Address", "Recording", "State", "Model", "Version", "MAC",
                                   "Port", "SSL", "User", "Channel", "Location", "Tags", "Last Change"}));
    QCOMPARE(cells.mid(0, 5), QStringList({"Gate", "IP Camera", "10.0.0.1", "Via camera", "Not checked"}));
    QCOMPARE(cells.mid(5).join(QString()), QString()); // until they are filled
    QVERIFY(!model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(model.index(0, 2).data(NodeListModel::NodeIdRole).toString(), QString("a"));
}

void tst_NodeListModel::searchFindsWordsInAnyColumn_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");
    const QStringList all = {"Dock", "Gate 1", "Gate 2"};
    QTest::newRow("nothing") << "" << all;
    QTest::newRow("blanks") << "   " << all;
    QTest::newRow("case") << "gATE" << QStringList({"Gate 1", "Gate 2"});
    QTest::newRow("address") << "0.2" << QStringList({"Gate 2"});
    QTest::newRow("two columns") << "gate 0.1" << QStringList({"Gate 1"});
    QTest::newRow("any order") << "camera ip gate" << QStringList({"Gate 1", "Gate 2"});
    QTest::newRow("recording") << "via" << all;
    QTest::newRow("no match") << "gate dock" << QStringList();
    QTest::newRow("not across columns") << "1ip" << QStringList();
    QTest::newRow("field") << "name:2" << QStringList({"Gate 2"});
    QTest::newRow("word of another field") << "name:10.0" << QStringList();
    QTest::newRow("last field") << "RECORDING:camera" << all;
    QTest::newRow("no field") << "gate:2" << QStringList();
    QTest::newRow("field without a word") << "gate address:" << QStringList({"Gate 1", "Gate 2"});
    QTest::newRow("without") << "-gate" << QStringList({"Dock"});
    QTest::newRow("field without") << "camera -address:0.9" << QStringList({"Gate 1", "Gate 2"});
    QTest::newRow("dash alone") << "gate -" << QStringList({"Gate 1", "Gate 2"});
    QTest::newRow("either") << "name:dock|2" << QStringList({"Dock", "Gate 2"});
    QTest::newRow("either, still being typed") << "name:dock|" << QStringList("Dock");
    QTest::newRow("none of two") << "-name:dock|2" << QStringList("Gate 1");
    QTest::newRow("no field, no choice") << "dock|gate" << QStringList();
    QTest::newRow("quotes") << "\"gate 1\"" << QStringList("Gate 1");
    QTest::newRow("order in quotes") << "\"1 gate\"" << QStringList();
    QTest::newRow("quotes in a field") << "name:\"gate 2\"|dock" << QStringList({"Dock", "Gate 2"});
    QTest::newRow("quote still open") << "gate \"1" << QStringList();
    QTest::newRow("empty quotes") << "\"\" dock" << QStringList("Dock");
    QTest::newRow("state") << "state:\"not checked\"" << all;
}

void tst_NodeListModel::searchFindsWordsInAnyColumn()
{
    QFETCH(QString, search);
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("a", "Gate 2", "10.0.0.2"), summary("b", "Dock", "10.0.0.9"),
                    summary("c", "Gate 1", "10.0.0.1")});
    model.setSearch(search);
    QTEST(names(model), "found");
    for (int length = 0; length <= search.size(); ++length) // typed key by key, and back
        model.setSearch(search.left(length));
    QTEST(names(model), "found");
    model.setSearch("something else");
    model.setSearch(search);
    QTEST(names(model), "found");
    QCOMPARE(model.nodeCount(), 3);
}

void tst_NodeListModel::typeFilter()
{
    NodeListModel model(recordingText);
    model.setNodes({summary("a", "Gate"), summary("b", "/srv", "/srv", RecordingFolderType),
                    summary("c", "Gallery", QString(), ViewType)});
    model.setTypeFilter(RecordingFolderType);
    QCOMPARE(names(model), QStringList("/srv"));
    model.setSearch("ga");
    QCOMPARE(names(model), QStringList());
    model.setTypeFilter(ViewType);
    QCOMPARE(names(model), QStringList("Gallery"));
    model.setTypeFilter(AllNodeTypes);
    QCOMPARE(names(model), QStringList({"Gate", "Gallery"})); // devices first
}

void tst_NodeListModel::sortingByEachColumn()
{
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("a", "Gate", "10.0.0.20"), summary("b", "Dock", "10.0.0.3"),
                    summary("c", "Yard", QString(), ViewType)});
    model.sort(NodeListModel::NameColumn, Qt::DescendingOrder);
    QCOMPARE(names(model), QStringList({"Yard", "Gate", "Dock"}));
    model.sort(NodeListModel::AddressColumn, Qt::AscendingOrder);
    QCOMPARE(names(model), QStringList({"Yard", "Dock", "Gate"}));
    model.sort(NodeListModel::TypeColumn, Qt::AscendingOrder);
    QCOMPARE(names(model), QStringList({"Dock", "Gate", "Yard"})); // alike types by name
    model.setSearch("1");
    model.sort(NodeListModel::AddressColumn, Qt::DescendingOrder);
    QCOMPARE(names(model), QStringList({"Gate", "Dock"}));
}

void tst_NodeListModel::renamedNodeMovesAndStaysSelected()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.setNodeModel(&model);
    model.setNodes({summary("a", "Alpha"), summary("b", "Beta"), summary("c", "Gamma")});
    view.selectNode("a");
    model.apply({summary("a", "Zeta")}, {});
    QCOMPARE(names(model), QStringList({"Beta", "Gamma", "Zeta"}));
    QCOMPARE(view.selectedIds(), QStringList("a"));
    QCOMPARE(view.currentIndex().row(), 2);
    model.apply({summary("a", "Bravo")}, {"b"});
    QCOMPARE(names(model), QStringList({"Bravo", "Gamma"}));
    QCOMPARE(view.selectedIds(), QStringList("a"));
}

void tst_NodeListModel::selectionSurvivesFilterAndSort()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.setNodeModel(&model);
    model.setNodes(site(300));
    view.selectionModel()->select(QItemSelection(model.index(10, 0), model.index(12, 3)),
                                  QItemSelectionModel::Select);
    QStringList ids = view.selectedIds();
    QCOMPARE(ids.size(), 3);
    model.sort(NodeListModel::AddressColumn, Qt::DescendingOrder);
    QStringList sorted = view.selectedIds();
    ids.sort();
    sorted.sort();
    QCOMPARE(sorted, ids);
    model.setSearch("no such text");
    QVERIFY(view.selectedIds().isEmpty());
    model.setSearch(QString());
    sorted = view.selectedIds();
    sorted.sort();
    QCOMPARE(sorted, ids);
}

void tst_NodeListModel::hiddenSelectionIsNotReported()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.setNodeModel(&model);
    model.setNodes({summary("a", "Alpha"), summary("b", "Beta")});
    view.selectAll();
    model.setSearch("beta");
    QCOMPARE(view.selectedIds(), QStringList("b"));
}

void tst_NodeListModel::hiddenSelectionComesBack()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.setNodeModel(&model);
    model.setNodes({summary("a", "Alpha"), summary("b", "Beta"), summary("c", "Gamma")});
    view.selectNode("b");
    view.selectionModel()->select(model.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    for (const char* search : {"b", "be", "bet", "be", "b"}) {
        model.setSearch(search);
        QCOMPARE(view.selectedIds(), QStringList("b"));
    }
    model.apply({}, {"c"}); // not the user's doing
    model.setSearch(QString());
    QCOMPARE(view.selectedIds(), QStringList({"a", "b"}));
    QCOMPARE(view.currentIndex().row(), 1);

    model.setSearch("b");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(model.index(0, 0)).center());
    model.setSearch(QString());
    QCOMPARE(view.selectedIds(), QStringList("b"));
}

void tst_NodeListModel::hiddenByAChangeComesBackSelected()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.setNodeModel(&model);
    model.setNodes({summary("a", "Gate 1"), summary("b", "Gate 2"), summary("c", "Gate 3")});
    model.setSearch("gate");
    view.selectAll();
    model.apply({summary("b", "Dock")}, {});
    QCOMPARE(view.selectedIds(), QStringList({"a", "c"}));
    model.apply({}, {"a"});
    model.setSearch(QString());
    QCOMPARE(view.selectedIds(), QStringList({"b", "c"}));
}

void tst_NodeListModel::everythingSelectedStaysSelected()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.setNodeModel(&model);
    const QVector<NodeSummary> nodes = site(3000);
    model.setNodes(nodes);
    view.selectAll();
    QSignalSpy changes(view.selectionModel(), &QItemSelectionModel::selectionChanged);
    model.sort(NodeListModel::AddressColumn, Qt::DescendingOrder);
    QCOMPARE(view.selectedCount(), 3000);
    model.setSearch("camera 7");
    QCOMPARE(view.selectedCount(), model.rowCount());
    model.setSearch(QString());
    QCOMPARE(view.selectedCount(), 3000);
    model.apply(site(100), {}); // nothing differs
    QCOMPARE(view.selectedCount(), 3000);
    QVERIFY(changes.count() < 10);
}

void tst_NodeListModel::currentRowStaysInSight()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.resize(500, 300);
    view.setNodeModel(&model);
    model.setNodes(site(3000));
    view.show();
    view.selectNode("id1500");
    QVERIFY(view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center()));
    model.setSearch("floor");
    model.setSearch("floor 2");
    model.setSearch(QString());
    QCoreApplication::processEvents();
    QCOMPARE(model.idAt(view.currentIndex().row()), QString("id1500"));
    QVERIFY(view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center()));
}

void tst_NodeListModel::listDoesNotJumpWhenNodesArrive()
{
    NodeListModel model(recordingText);
    NodeListView view;
    view.resize(500, 300);
    view.setNodeModel(&model);
    model.setNodes(site(3000));
    view.show();
    view.selectNode("id0");
    view.scrollToBottom();
    const QString last = model.idAt(model.rowCount() - 1);
    QVector<NodeSummary> arriving;
    for (int i = 0; i < 200; ++i)
        arriving.append(summary(QString("new%1").arg(i), QString("Zebra %1").arg(i)));
    model.apply(arriving, {});
    QCoreApplication::processEvents();
    QVERIFY(view.viewport()->rect().intersects(view.visualRect(model.index(model.rowOf(last), 0))));
}

void tst_NodeListModel::numbersOfKeysAreInTheirOrder()
{
    QStringList texts = {"",
                         "a",
                         "b",
                         "0",
                         "camera 1",
                         "camera 10",
                         "camera 2",
                         "camera 2 b",
                         QString(QChar(0xff)),
                         QString(QChar(0xff)) + "a",
                         QString(QChar(0x100)) + "b",
                         QString(QChar(0x416)) + "a",
                         QString(QChar(0xffff)),
                         QString(QChar(0)) + "x"};
    for (int i = 0; i < texts.size(); ++i)
        texts[i].append(QString("~").repeated(i % 3));
    for (const QString& a : std::as_const(texts)) {
        for (const QString& b : std::as_const(texts)) {
            const int same = SearchText::sameStart(a, b, int(a.size()));
            QCOMPARE(a.left(same), b.left(same));
            QVERIFY(same == a.size() || same == b.size() || a.at(same) != b.at(same));
            for (int from = 0; from <= same; ++from) {
                const quint64 first = SearchText::startNumber(a, from);
                const quint64 second = SearchText::startNumber(b, from);
                QVERIFY(first == second || (first < second) == (a < b));
            }
        }
    }
    QVERIFY(SearchText::startNumber("camera 1", 0) < SearchText::startNumber("camera 2", 0));
}

void tst_NodeListModel::everyColumnInEitherOrderAgainstTruth_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    for (int column = 0; column < NodeListModel::FirstPropertyColumn; ++column) {
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder})
            QTest::addRow("%d %d", column, int(order)) << column << order;
    }
}

void tst_NodeListModel::everyColumnInEitherOrderAgainstTruth()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    QRandomGenerator random(20261121);
    const ENodeType types[] = {IPDeviceType, ViewType, RecordingFolderType};
    QVector<NodeSummary> nodes;
    for (int i = 0; i < 2000; ++i) {
        const QString name = QString(random.bounded(3), QChar(0x430 + random.bounded(3))) +
                             QString::number(random.bounded(20)) + QString(random.bounded(2), QChar('b'));
        nodes.append(summary(QString::number(i), name, QString("10.0.0.%1").arg(random.bounded(30)),
                             types[random.bounded(3)]));
        nodes.last().recordingUsage = random.bounded(2);
    }
    NodeListModel model(recordingText);
    model.setNodes(nodes);
    model.sort(NodeListModel::AddressColumn, Qt::DescendingOrder);
    model.sort(column, order);

    const auto key = [column](const NodeSummary& node) {
        const QString cells[] = {node.name, NodeTypes::readableName(node.type), node.location,
                                 recordingText(node),
                                 node.type == IPDeviceType ? QString("Not checked") : QString()};
        const QString name = (NodeTypes::isDevice(node.type) ? "a" : "b") + SearchText::sortKey(node.name);
        return qMakePair(column == NodeListModel::NameColumn ? name : SearchText::sortKey(cells[column]),
                         name);
    };
    QVector<NodeSummary> truth = nodes;
    std::stable_sort(truth.begin(), truth.end(),
                     [&](const NodeSummary& a, const NodeSummary& b) { return key(a) < key(b); });
    if (order == Qt::DescendingOrder)
        std::reverse(truth.begin(), truth.end());
    for (int row = 0; row < truth.size(); ++row)
        QCOMPARE(model.idAt(row), truth.at(row).id);
}

void tst_NodeListModel::movedFolderShowsInItsCameras()
{
    QString path = "//server/a";
    NodeListModel model([&path](const NodeSummary& node) {
        return node.type == IPDeviceType && node.id == "cam" ? path : QString();
    });
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("cam", "Gate"), summary("other", "Dock"),
                    summary("folder", "Folder", path, RecordingFolderType)});
    model.setSearch("server/a gate");
    QCOMPARE(names(model), QStringList("Gate"));
    path = "//server/b";
    model.apply({summary("folder", "Folder", path, RecordingFolderType)}, {});
    QCOMPARE(names(model), QStringList());
    model.setSearch("server/b gate");
    QCOMPARE(names(model), QStringList("Gate"));

    model.setSearch(QString());
    model.sort(NodeListModel::RecordingColumn, Qt::DescendingOrder);
    QCOMPARE(names(model).value(0), QString("Gate"));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    path.clear();
    model.apply({}, {"folder"});
    QCOMPARE(names(model), QStringList({"Gate", "Dock"})); // alike now, by name
    QCOMPARE(changed.count(), 1);
}

void tst_NodeListModel::lineBreaksInNamesAreShownAsBlanks()
{
    NodeListModel model(recordingText);
    model.setNodes({summary("a", "Gate\nnorth")});
    QCOMPARE(model.index(0, 0).data().toString(), QString("Gate north"));
    model.setSearch("gate north");
    QCOMPARE(model.rowCount(), 1);
}

void tst_NodeListModel::changeOfAHiddenNodeMovesNothing()
{
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("a", "Alpha"), summary("b", "Beta")});
    model.setSearch("alpha");
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    model.apply({summary("b", "Aaa")}, {});
    QCOMPARE(changed.count() + inserted.count(), 0);
    model.apply({summary("b", "Alpha 2")}, {});
    QCOMPARE(names(model), QStringList({"Alpha", "Alpha 2"}));
}

void tst_NodeListModel::randomChangesAgainstTruth()
{
    QRandomGenerator random(20261120);
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QMap<QString, NodeSummary> truth;
    model.setSearch("a");
    for (int round = 0; round < 600; ++round) {
        QVector<NodeSummary> changed;
        QStringList removed;
        const int count = random.bounded(20) == 0 ? 90 : 1;
        for (int i = 0; i < count; ++i) {
            const QString id = QString::number(random.bounded(120));
            if (random.bounded(3) == 0 && truth.remove(id)) {
                removed.append(id);
                continue;
            }
            if (removed.contains(id))
                continue;
            const NodeSummary node =
                summary(id, QString(QChar('a' + random.bounded(4))) + QString::number(random.bounded(30)));
            truth.insert(id, node);
            changed.erase(std::remove_if(changed.begin(), changed.end(),
                                         [&id](const NodeSummary& other) { return other.id == id; }),
                          changed.end());
            changed.append(node);
        }
        changed.erase(
            std::remove_if(changed.begin(), changed.end(),
                           [&removed](const NodeSummary& node) { return removed.contains(node.id); }),
            changed.end());
        model.apply(changed, removed);
        if (round % 50 == 0)
            model.sort(random.bounded(2) ? NodeListModel::NameColumn : NodeListModel::AddressColumn,
                       random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    model.sort(NodeListModel::NameColumn, Qt::DescendingOrder);
    model.sort(NodeListModel::NameColumn, Qt::AscendingOrder);
    model.setSearch(QString());
    QStringList keys;
    const QStringList shown = names(model);
    for (const QString& name : shown)
        keys.append(SearchText::sortKey(name));
    QVERIFY(std::is_sorted(keys.begin(), keys.end()));
    QCOMPARE(model.rowCount(), int(truth.size()));
    for (int row = 0; row < model.rowCount(); ++row) {
        QVERIFY(truth.value(model.idAt(row)) == model.node(row));
        QCOMPARE(model.rowOf(model.idAt(row)), row);
    }
}

void tst_NodeListModel::manyAtOnceEqualOneByOne()
{
    const QVector<NodeSummary> nodes = site(500);
    NodeListModel single(recordingText);
    NodeListModel many(recordingText);
    for (const NodeSummary& node : nodes)
        single.apply({node}, {});
    many.apply(nodes, {});
    QCOMPARE(names(single), names(many));
}

void tst_NodeListModel::statesAreShownSoughtAndSorted()
{
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("a", "Alpha", "10.0.0.1"), summary("b", "Beta", "10.0.0.2"),
                    summary("v", "View", QString(), ViewType), summary("n", "No address")});
    CameraState wrong;
    wrong.state = DeviceReport::WrongPassword;
    wrong.reason = QString("<b>refused</b>");
    wrong.time = QDateTime(QDate(2026, 11, 22), QTime(12, 0));
    CameraState answers = wrong;
    answers.state = DeviceReport::Answers;
    model.setStates({{"a", wrong}, {"b", answers}, {"gone", wrong}});
    const auto cell = [&model](const QString& id, int role) {
        return model.index(model.rowOf(id), NodeListModel::StateColumn).data(role);
    };
    QCOMPARE(cell("a", Qt::DisplayRole).toString(), QString("Wrong password"));
    QCOMPARE(cell("b", Qt::DisplayRole).toString(), QString("Answers"));
    for (const char* other : {"v", "n"})
        QCOMPARE(cell(other, Qt::DisplayRole).toString(), QString());
    QVERIFY(cell("a", Qt::ForegroundRole).value<QColor>() != cell("b", Qt::ForegroundRole).value<QColor>());
    const QString tip = cell("a", Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains("&lt;b&gt;refused") && tip.contains("2026"), qPrintable(tip));

    model.setSearch("state:wrong");
    QCOMPARE(names(model), QStringList("Alpha"));
    model.setStates({{"b", wrong}, {"a", CameraState()}}); // follows what comes
    QCOMPARE(names(model), QStringList("Beta"));
    model.setSearch(QString());
    model.sort(NodeListModel::StateColumn, Qt::DescendingOrder);
    QCOMPARE(names(model), QStringList({"Beta", "Alpha", "View", "No address"}));
    model.setStates({{"a", answers}, {"b", CameraState()}});
    QCOMPARE(names(model), QStringList({"Beta", "Alpha", "View", "No address"}));
    model.setStates({{"a", wrong}});
    QCOMPARE(names(model), QStringList({"Alpha", "Beta", "View", "No address"}));

    model.apply({}, {"a"});
    model.apply({summary("a", "Alpha", "10.0.0.1")}, {}); // another one of that name
    QCOMPARE(cell("a", Qt::DisplayRole).toString(), QString("Not checked"));
}

/// Nothing is reset and nothing moves when neither order nor search looks at them.
void tst_NodeListModel::statesCostLittle()
{
    const int count = 20000;
    NodeListModel model(recordingText);
    model.setNodes(site(count));
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    CameraState answers;
    answers.state = DeviceReport::Answers;
    const testsupport::OwnTimer clock;
    for (int first = 0; first < count; first += 100) {
        QHash<QString, CameraState> states;
        for (int i = first; i < first + 100; ++i)
            states.insert(QString("id%1").arg(i), answers);
        model.setStates(states);
    }
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(reset.count(), 0);
    QCOMPARE(changed.count(), count / 100);
    QCOMPARE(changed.first().first().toModelIndex().column(), int(NodeListModel::StateColumn));
    model.setSearch("state:answers");
    QCOMPARE(model.rowCount(), count);
}

void tst_NodeListModel::statesCanBeRead_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("other");

    QTest::newRow("light") << QColor(Qt::white) << QColor(245, 245, 245);
    QTest::newRow("dark") << QColor(35, 38, 41) << QColor(49, 54, 59);
    QTest::newRow("black") << QColor(Qt::black) << QColor(20, 20, 20);
    QTest::newRow("ivory") << QColor(255, 255, 230) << QColor(240, 235, 210);
}

/// At least 4.5 to 1, as WCAG wants it of small texts.
void tst_NodeListModel::statesCanBeRead()
{
    QFETCH(QColor, ground);
    QFETCH(QColor, other);
    QPalette palette;
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::AlternateBase, other);
    const auto luminance = [](const QColor& color) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
    };
    for (const DeviceReport::State state : CameraStates::all()) {
        const QColor color = CameraStates::color(state, palette);
        QCOMPARE(color.isValid(), state != DeviceReport::NotChecked);
        for (const QColor& under : {ground, other}) {
            const double a = luminance(color) + 0.05;
            const double b = luminance(under) + 0.05;
            QVERIFY2(!color.isValid() || qMax(a, b) / qMin(a, b) >= 4.5, qPrintable(color.name()));
        }
    }
}

void tst_NodeListModel::columnsOfProperties()
{
    const int column = NodeListModel::FirstPropertyColumn; // the model
    NodeListModel model(recordingText);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setNodes({summary("a", "Alpha"), summary("b", "Beta"), summary("c", "Gamma")});
    QCOMPARE(model.columns().key(column), QString("Model"));
    QVERIFY(!model.columns().isFilled(column));
    model.setSearch("model:ks");
    QCOMPARE(model.rowCount(), 0);
    model.fill(column, {{"a", "KS-10"}, {"b", "KS-9"}});
    QCOMPARE(names(model), QStringList({"Alpha", "Beta"}));
    model.setText(column, "a", "other");
    model.setText(column, "c", "KS-1");
    model.apply({model.node(model.rowOf("a")), summary("c", "Gamma")}, {});
    QCOMPARE(names(model), QStringList({"Beta", "Gamma"}));
    model.setSearch(QString());
    model.sort(column, Qt::AscendingOrder);
    QCOMPARE(names(model), QStringList({"Gamma", "Beta", "Alpha"}));
    model.empty(column);
    QCOMPARE(names(model), QStringList({"Alpha", "Beta", "Gamma"})); // alike now, by name
    QCOMPARE(model.index(0, column).data().toString(), QString());
}

void tst_NodeListModel::whatShowsTheSameIsLeftAlone()
{
    const QVector<NodeSummary> nodes = site(200);
    NodeListModel model(recordingText);
    model.setNodes(nodes);
    model.setSearch("camera"); // makes the texts
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.apply(nodes, {});
    QCOMPARE(reset.count(), 0);
    QVector<NodeSummary> renamed = nodes;
    for (NodeSummary& node : renamed)
        node.name = node.name.toUpper(); // which a search does not see
    model.apply(renamed, {});
    QCOMPARE(reset.count(), 1);
    QVERIFY(names(model).value(0).startsWith("CAMERA"));
}

KO_TEST_MAIN(tst_NodeListModel)
#include "tst_nodelistmodel.moc"
