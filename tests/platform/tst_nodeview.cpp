#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "ko/NodeHint.h"
#include "ko/NodeViewModel.h"
#include "ko/RowIndex.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>

#include <algorithm>
#include <ctime>
#include <limits>
#include <numeric>
#include <random>

using namespace ko;
using testsupport::SmallNodeDB;

namespace {

/// What a view should hold, in plain lists.
struct Truth
{
    struct Row
    {
        QString node; ///< empty for a list
        int list = -1;
    };
    std::vector<Row> rows;
    std::vector<QStringList> lists;

    bool standsInRoot(const QString& id) const
    {
        return std::any_of(rows.begin(), rows.end(), [&](const Row& row) { return row.node == id; });
    }
    void add(const QString& id)
    {
        if (!standsInRoot(id))
            rows.push_back(Row{id, -1});
    }
    void addList()
    {
        lists.emplace_back();
        rows.push_back(Row{QString(), int(lists.size()) - 1});
    }
    void addTo(int list, const QString& id)
    {
        if (!lists[list].contains(id))
            lists[list].append(id);
    }
    void remove(const QString& id, bool everywhere)
    {
        rows.erase(std::remove_if(rows.begin(), rows.end(), [&](const Row& row) { return row.node == id; }),
                   rows.end());
        if (!everywhere)
            return;
        for (QStringList& list : lists)
            list.removeAll(id);
    }
    void clear()
    {
        rows.clear();
        lists.clear();
    }

    /// One line for each row: "id", or "[id,id]" for a list.
    QStringList lines() const
    {
        QStringList result;
        for (const Row& row : rows)
            result.append(row.list < 0 ? row.node : '[' + lists[row.list].join(',') + ']');
        return result;
    }
};

QString nodeId(const NodeViewModel& model, const QModelIndex& index)
{
    const kom::smart<NodeEntry> entry = model.entry(index).cast<NodeEntry>();
    return entry.null() ? QString() : entry->id();
}

QStringList lines(const NodeViewModel& model)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (model.entry(index)->isNode()) {
            result.append(nodeId(model, index));
            continue;
        }
        QStringList inner;
        for (int child = 0; child < model.rowCount(index); ++child)
            inner.append(nodeId(model, model.index(child, 0, index)));
        result.append('[' + inner.join(',') + ']');
    }
    return result;
}

/// A view with its model and a tester that watches every signal.
struct Shown
{
    kom::smart<NodeView> view = kom::makeSmart<NodeView>("View");
    NodeViewModel model{view, nullptr};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};

    QModelIndex cell(int row, int column) const { return model.index(row, column); }
};

/// The same, of which the tester, which looks at all rows at each signal, watches only what comes later.
struct Watched
{
    kom::smart<NodeView> view = kom::makeSmart<NodeView>("View");
    NodeViewModel model{view, nullptr};
    std::unique_ptr<QAbstractItemModelTester> tester;

    void watch()
    {
        tester = std::make_unique<QAbstractItemModelTester>(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
};

QString numbered(int n)
{
    return QString("node%1").arg(n);
}

/// Nanoseconds of the processor to take one of \a count nodes off a watched view, in the given order.
double removalCost(int count, const std::vector<int>& order)
{
    const kom::smart<NodeView> view = kom::makeSmart<NodeView>("View");
    const NodeViewModel model(view, nullptr);
    for (int n = 0; n < count; ++n)
        view->addNode(numbered(n));
    const std::clock_t start = std::clock();
    for (const int n : order)
        view->removeNode(numbered(n), false);
    const double cost = double(std::clock() - start) / CLOCKS_PER_SEC * 1e9 / count;
    if (model.rowCount() != 0)
        qFatal("nodes are left");
    return cost;
}

} // namespace

class tst_NodeView : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_db = std::make_unique<SmallNodeDB>(); }
    void cleanup() { m_db.reset(); }

    void rowIndexAgainstPlainList();
    void emptyView();
    void eachListHoldsANodeOnce();
    void fill();
    void removeNode();
    void listsOfOthersAreNotTouched();
    void internalIdsAreNeverUsedAgain();
    void handlesOutliveTheView();
    void signalsBracketEachChange();
    void manyNodesComeAsOneRange();
    void waitingNodesGoAgain();
    void manyChangesAreToldOnce();
    void followsTheDatabase();
    void randomChanges_data();
    void randomChanges();
    void persistentIndexesFollow();
    void cells();
    void goneNodeShowsEmptyCells();
    void nodeUpdateRefreshesItsRows();
    void flagsAndRenaming();
    void mimeData();
    void removalCostDoesNotGrow_data();
    void removalCostDoesNotGrow();

private:
    std::unique_ptr<SmallNodeDB> m_db;
};

void tst_NodeView::rowIndexAgainstPlainList()
{
    std::mt19937 random(7);
    RowIndex index;
    std::vector<int> slotsInUse;
    for (int step = 0; step < 3000; ++step) {
        if (slotsInUse.empty() || random() % 5 < 3) {
            const int slot = index.append();
            QVERIFY(slotsInUse.empty() || slot > slotsInUse.back());
            slotsInUse.push_back(slot);
        } else {
            const size_t victim = random() % slotsInUse.size();
            index.remove(slotsInUse[victim]);
            slotsInUse.erase(slotsInUse.begin() + long(victim));
        }
        QCOMPARE(index.count(), int(slotsInUse.size()));
        for (size_t row = step % 7; row < slotsInUse.size(); row += 7) {
            QCOMPARE(index.slotAt(int(row)), slotsInUse[row]);
            QCOMPARE(index.rowOf(slotsInUse[row]), int(row));
        }
    }
    QVERIFY(index.slotCount() > index.count());
    index.clear();
    QCOMPARE(index.count(), 0);
    QCOMPARE(index.slotCount(), 0);
    QCOMPARE(index.append(), 0);
}

void tst_NodeView::emptyView()
{
    const Shown shown;
    QCOMPARE(shown.view->name(), QString("View"));
    QCOMPARE(shown.view->root().internalId(), 0u);
    QCOMPARE(shown.model.rowCount(), 0);
    QVERIFY(!shown.cell(0, 0).isValid());
    QVERIFY(shown.model.entry(QModelIndex()).null());
    QVERIFY(shown.view->entryFromInternalId(0).null());
    QVERIFY(shown.view->entryFromInternalId(1).null());
    QVERIFY(!shown.view->parentOf(shown.view->root()));
    shown.view->removeNode("unknown", true);
    shown.view->removeAll();
    QCOMPARE(shown.model.rowCount(), 0);
}

void tst_NodeView::eachListHoldsANodeOnce()
{
    const Shown shown;
    shown.view->addNode("a");
    shown.view->addNode("b");
    shown.view->addNode("a");
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    shown.view->addNodeTo(*list, "a");
    shown.view->addNodeTo(*list, "a");
    shown.view->addNodeTo(*shown.view->addSubView("List"), "a");
    QCOMPARE(lines(shown.model), QStringList({"a", "b", "[a]", "[a]"}));
    QCOMPARE(shown.view->entriesOf("a").size(), 3);
    QCOMPARE(shown.view->entriesOf("b").size(), 1);
    QVERIFY(shown.view->entriesOf("A").isEmpty());
    const auto entries = shown.view->entriesOf("a");
    for (const auto& entry : entries)
        QCOMPARE(entry->id(), QString("a"));
}

void tst_NodeView::fill()
{
    const Shown shown;
    shown.view->fill(QStringList());
    shown.view->addSubView("gone");
    shown.view->removeAll();
    QSignalSpy inserted(&shown.model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    shown.view->fill({"a", "b", "c", "d"});
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.at(0).at(1).toInt(), 0);
    QCOMPARE(inserted.at(0).at(2).toInt(), 3);
    const kom::smart<NodeViewEntry> second = shown.model.entry(shown.model.index(1, 0));
    const QPersistentModelIndex third = shown.model.index(2, 0);
    QVERIFY(shown.view->entryFromInternalId(second->internalId()).get() == second.get());
    QCOMPARE(shown.view->root().rowOf(*second), 1);
    QVERIFY(shown.view->entryFromInternalId(shown.view->root().internalId()).null());
    shown.view->addSubView("List");
    QCOMPARE(lines(shown.model), QStringList({"a", "b", "c", "d", "[]"}));
    shown.view->addNode("c"); // stands there
    shown.view->addNode("e");
    QVERIFY(shown.view->entriesOf("b").at(0).get() == second.get());
    shown.view->removeNode("b", false);
    QVERIFY(!shown.view->parentOf(*second));
    QVERIFY(shown.view->entryFromInternalId(second->internalId()).null());
    QCOMPARE(third.row(), 1);
    shown.view->addNode("b"); // comes back at the end
    QCOMPARE(lines(shown.model), QStringList({"a", "c", "d", "[]", "e", "b"}));
    shown.view->removeAll();
    QVERIFY(!shown.view->parentOf(*second));
    shown.view->fill({"b", "a"});
    const QModelIndex first = shown.model.index(0, 0);
    QVERIFY(unsigned(first.internalId()) > second->internalId());
    QCOMPARE(lines(shown.model), QStringList({"b", "a"}));
    shown.view->removeAll(); // nothing was looked for by its node
    QVERIFY(shown.model.entry(first).null());
}

void tst_NodeView::removeNode()
{
    const Shown shown;
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    for (const char* id : {"a", "b"}) {
        shown.view->addNode(id);
        shown.view->addNodeTo(*list, id);
    }
    shown.view->addNodeTo(*list, "inner");
    shown.view->removeNode("inner", false);
    QCOMPARE(lines(shown.model), QStringList({"[a,b,inner]", "a", "b"}));
    shown.view->removeNode("a", false);
    QCOMPARE(lines(shown.model), QStringList({"[a,b,inner]", "b"}));
    shown.view->removeNode("a", true);
    shown.view->removeNode("b", true);
    QCOMPARE(lines(shown.model), QStringList("[inner]"));
    shown.view->addNode("a"); // comes back at the end
    QCOMPARE(lines(shown.model), QStringList({"[inner]", "a"}));
    QVERIFY(m_db->calls.isEmpty()); // the nodes themselves are left alone
}

void tst_NodeView::listsOfOthersAreNotTouched()
{
    const Shown shown;
    const kom::smart<NodeView> other = kom::makeSmart<NodeView>("Other");
    const kom::smart<SubViewEntry> othersList = other->addSubView("List");
    shown.view->addNodeTo(*othersList, "a");
    QCOMPARE(othersList->count(), 0);
    const kom::smart<SubViewEntry> gone = shown.view->addSubView("List");
    shown.view->removeAll();
    shown.view->addNodeTo(*gone, "a");
    QCOMPARE(gone->count(), 0);
    QVERIFY(shown.view->entriesOf("a").isEmpty());
    QVERIFY(!shown.view->parentOf(*gone));
}

void tst_NodeView::internalIdsAreNeverUsedAgain()
{
    const Shown shown;
    QSet<unsigned> used;
    for (int n = 0; n < 200; ++n) {
        shown.view->addNode(numbered(n % 3));
        const unsigned id = shown.model.entry(shown.cell(shown.model.rowCount() - 1, 0))->internalId();
        QVERIFY(id != 0 && !used.contains(id));
        used.insert(id);
        QCOMPARE(shown.view->entryFromInternalId(id)->internalId(), id);
        if (n % 50 == 49)
            shown.view->removeAll();
        else
            shown.view->removeNode(numbered(n % 3), false);
        QVERIFY(shown.view->entryFromInternalId(id).null());
    }
}

void tst_NodeView::handlesOutliveTheView()
{
    kom::smart<NodeEntry> node;
    kom::smart<SubViewEntry> list;
    kom::smart<NodeEntry> inner;
    {
        NodeView view("View");
        view.addNode("a");
        node = view.entriesOf("a").constFirst();
        list = view.addSubView("List");
        view.addNodeTo(*list, "b");
        inner = view.entriesOf("b").constFirst();
        QCOMPARE(view.parentOf(*inner), list.get());
        QCOMPARE(view.parentOf(*node), &view.root());
    }
    const NodeView another("Another");
    QCOMPARE(node->id(), QString("a"));
    QVERIFY(!another.parentOf(*node));
    QVERIFY(!another.parentOf(*list));
    QCOMPARE(list->count(), 1);
    list.reset();
    QVERIFY(!another.parentOf(*inner));
}

void tst_NodeView::signalsBracketEachChange()
{
    const Shown shown;
    QSignalSpy inserting(&shown.model, SIGNAL(rowsAboutToBeInserted(QModelIndex, int, int)));
    QSignalSpy inserted(&shown.model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    QSignalSpy removed(&shown.model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
    QSignalSpy reset(&shown.model, SIGNAL(modelReset()));
    shown.view->addNode("a");
    shown.view->addNode("a");
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    shown.view->addNodeTo(*list, "a");
    QCOMPARE(inserting.count(), 3);
    QCOMPARE(inserted.count(), 3);
    QCOMPARE(inserted.at(1).at(1).toInt(), 1);
    QCOMPARE(inserted.at(2).at(0).toModelIndex(), shown.cell(1, 0));
    QCOMPARE(inserted.at(2).at(1).toInt(), 0);
    shown.view->removeNode("a", true);
    QCOMPARE(removed.count(), 2);
    shown.view->removeNode("a", true);
    QCOMPARE(removed.count(), 2);
    QCOMPARE(reset.count(), 0);
    shown.view->removeAll();
    QCOMPARE(reset.count(), 1);
    QCOMPARE(shown.model.rowCount(), 0);
}

void tst_NodeView::manyNodesComeAsOneRange()
{
    const int count = 5000;
    Watched shown;
    const QSignalSpy inserted(&shown.model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    for (int n = 0; n < count; ++n)
        shown.view->addNode(numbered(n));
    QCOMPARE(shown.view->root().count(), count); // the view itself has them
    const int atOnce = int(inserted.count());
    QVERIFY2(atOnce > 0 && atOnce <= 1000, qPrintable(QString::number(atOnce)));
    QCOMPARE(shown.model.rowCount(), atOnce);
    shown.watch();
    QTRY_COMPARE(shown.model.rowCount(), count);
    QCOMPARE(inserted.count(), atOnce + 1);
    QCOMPARE(inserted.last().at(1).toInt(), atOnce);
    QCOMPARE(inserted.last().at(2).toInt(), count - 1);
    QCOMPARE(nodeId(shown.model, shown.model.index(count - 1, 0)), numbered(count - 1));
    QTest::qWait(50);
    shown.view->addNode("later");
    QCOMPARE(shown.model.rowCount(), count + 1);
}

/// Rows that wait come and go unseen, lists among them.
void tst_NodeView::waitingNodesGoAgain()
{
    Watched shown;
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    for (int n = 0; n < 3000; ++n)
        shown.view->addNode(numbered(n));
    const int atOnce = shown.model.rowCount();
    QVERIFY(atOnce < 3000);
    shown.watch();
    const kom::smart<SubViewEntry> waiting = shown.view->addSubView("Waiting");
    shown.view->addNodeTo(*waiting, "a");
    shown.view->addNodeTo(*waiting, "b");
    shown.view->addNodeTo(*list, "a");
    shown.view->removeNode("a", true);
    shown.view->removeNode(numbered(2999), false);
    QCOMPARE(shown.model.rowCount(), atOnce);
    shown.view->removeNode(numbered(0), false);
    QCOMPARE(shown.model.rowCount(), atOnce - 1);
    QTRY_COMPARE(shown.model.rowCount(), 3000);
    QCOMPARE(shown.view->root().count(), 3000);
    const QModelIndex last = shown.model.index(2999, 0);
    QCOMPARE(shown.model.rowCount(last), 1);
    QCOMPARE(nodeId(shown.model, shown.model.index(0, 0, last)), QString("b"));
    shown.tester.reset();
    for (int n = 3000; n < 4000; ++n)
        shown.view->addNode(numbered(n));
    QVERIFY(shown.model.rowCount() < 4000);
    shown.watch();
    shown.view->removeAll();
    QCOMPARE(shown.model.rowCount(), 0);
    shown.view->addNode("first");
    QTRY_COMPARE(lines(shown.model), QStringList("first"));
}

void tst_NodeView::manyChangesAreToldOnce()
{
    const int count = 5000;
    const kom::smart<NodeView> view = kom::makeSmart<NodeView>("View");
    const NodeViewModel model(view, nullptr); // a tester looks at all rows whenever one changes
    QStringList ids;
    for (int n = 0; n < count; ++n)
        ids.append(numbered(n));
    view->fill(ids);
    QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    for (int n = 10; n < count - 10; ++n)
        emit m_db->nodeUpdated(numbered(n));
    view->removeNode(numbered(count - 11), false);
    const int atOnce = int(changed.count());
    QVERIFY2(atOnce > 0 && atOnce <= 1000, qPrintable(QString::number(atOnce)));
    QTRY_COMPARE(changed.count(), atOnce + 1);
    QCOMPARE(changed.last().at(0).toModelIndex().row(), 10 + atOnce);
    QCOMPARE(changed.last().at(1).toModelIndex().row(), count - 12);
    QTest::qWait(50);
    QCOMPARE(changed.count(), atOnce + 1);
}

void tst_NodeView::followsTheDatabase()
{
    const Shown shown;
    QVERIFY(QObject::connect(m_db.get(), SIGNAL(nodeInserted(ko::NodeID)), shown.view.get(),
                             SLOT(addNode(ko::NodeID))));
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    hint->setName("Gate");
    m_db->newNodeHint(*hint);
    QCOMPARE(lines(shown.model), QStringList("new1"));
    QCOMPARE(shown.cell(0, NodeViewModel::NameColumn).data().toString(), QString("Gate"));
}

void tst_NodeView::randomChanges_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("removals"); // of 100 steps
    for (int seed = 1; seed <= 2; ++seed)
        QTest::addRow("seed %d, growing", seed) << seed << 25;
    for (int seed = 3; seed <= 4; ++seed)
        QTest::addRow("seed %d, shrinking", seed) << seed << 60;
}

void tst_NodeView::randomChanges()
{
    QFETCH(int, seed);
    QFETCH(int, removals);
    std::mt19937 random{unsigned(seed)};
    const Shown shown;
    Truth truth;
    std::vector<kom::smart<SubViewEntry>> lists;
    for (int n = 0; n < 100; ++n) { // enough for removed places to be given back
        shown.view->addNode(numbered(n));
        truth.add(numbered(n));
    }
    for (int step = 0; step < 400; ++step) {
        const QString id = numbered(int(random() % 150));
        const int choice = int(random() % 100);
        if (choice < removals) {
            const bool everywhere = random() % 2 == 0;
            shown.view->removeNode(id, everywhere);
            truth.remove(id, everywhere);
        } else if (choice >= 98 && lists.size() < 8) {
            lists.push_back(shown.view->addSubView(id));
            truth.addList();
        } else if (step == 320) {
            shown.view->removeAll();
            truth.clear();
            lists.clear();
        } else if (choice % 3 == 0 && !lists.empty()) {
            const int list = int(random() % lists.size());
            shown.view->addNodeTo(*lists[size_t(list)], id);
            truth.addTo(list, id);
        } else {
            shown.view->addNode(id);
            truth.add(id);
        }
        if (step % 4 == 0)
            QCOMPARE(lines(shown.model), truth.lines());
    }
    QCOMPARE(lines(shown.model), truth.lines());
}

void tst_NodeView::persistentIndexesFollow()
{
    const Shown shown;
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    std::map<QString, QPersistentModelIndex> inRoot;
    std::map<QString, QPersistentModelIndex> inList;
    for (int n = 0; n < 150; ++n) {
        shown.view->addNode(numbered(n));
        shown.view->addNodeTo(*list, numbered(n));
        inRoot[numbered(n)] = shown.cell(n + 1, 0);
        inList[numbered(n)] = shown.model.index(n, 0, shown.cell(0, 0));
    }
    std::mt19937 random(3);
    for (int step = 0; step < 200; ++step)
        shown.view->removeNode(numbered(int(random() % 150)), step % 2 == 0);
    int left = 0;
    for (int n = 0; n < 150; ++n) {
        const QString id = numbered(n);
        for (const auto* indexes : {&inRoot, &inList}) {
            const QPersistentModelIndex& index = indexes->at(id);
            if (index.isValid())
                QCOMPARE(nodeId(shown.model, index), id);
            left += index.isValid();
        }
    }
    QCOMPARE(left, shown.model.rowCount() - 1 + shown.model.rowCount(shown.cell(0, 0)));
    QVERIFY(left > 0 && left < 300);
}

void tst_NodeView::cells()
{
    m_db->addCamera("cam", "Gate").setAddress("10.0.0.1");
    m_db->defineType(RecordingFolderType, "Folder");
    m_db->addNode(RecordingFolderType, "folder", "");
    const Shown shown;
    shown.view->addNode("cam");
    shown.view->addNode("folder");
    shown.view->addSubView("List");
    const auto row = [&shown](int n) {
        QStringList texts;
        for (int column = 0; column < shown.model.columnCount(); ++column)
            texts.append(shown.cell(n, column).data().toString());
        return texts;
    };
    QCOMPARE(row(0), QStringList({"Gate", "IP camera", "10.0.0.1"}));
    QCOMPARE(row(1), QStringList({"", "Folder", ""}));
    QCOMPARE(row(2), QStringList({"List", "", ""}));
    QStringList headers;
    for (int column = 0; column < shown.model.columnCount(); ++column)
        headers.append(shown.model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    QCOMPARE(headers, QStringList({"Name", "Type", "Address"}));
    QVERIFY(!shown.model.headerData(3, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!shown.model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!shown.model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(shown.cell(0, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(!shown.cell(0, 1).data(Qt::DecorationRole).isValid());
    QVERIFY(!shown.cell(0, 3).isValid());
    QVERIFY(!shown.cell(3, 0).isValid());
}

void tst_NodeView::goneNodeShowsEmptyCells()
{
    m_db->addCamera("cam", "Gate");
    const Shown shown;
    shown.view->addNode("cam");
    QSignalSpy changed(&shown.model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    m_db->removeNode("cam");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(shown.model.rowCount(), 1); // the view keeps the identifier
    for (int column = 0; column < shown.model.columnCount(); ++column) {
        QVERIFY(!shown.cell(0, column).data().isValid());
        QVERIFY(!shown.cell(0, column).data(Qt::DecorationRole).isValid());
    }
    QCOMPARE(nodeId(shown.model, shown.cell(0, 0)), QString("cam"));
}

void tst_NodeView::nodeUpdateRefreshesItsRows()
{
    const Shown shown;
    shown.view->addNode("other");
    shown.view->addNode("cam");
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    shown.view->addNodeTo(*list, "cam");
    QSignalSpy changed(&shown.model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    emit m_db->nodeUpdated("unknown");
    QCOMPARE(changed.count(), 0);
    emit m_db->nodeUpdated("cam");
    QCOMPARE(changed.count(), 2);
    const QModelIndex listIndex = shown.cell(2, 0);
    QList<QPair<QModelIndex, QModelIndex>> areas;
    for (const QList<QVariant>& arguments : changed)
        areas.append(qMakePair(arguments.at(0).toModelIndex(), arguments.at(1).toModelIndex()));
    QVERIFY(areas.contains(qMakePair(shown.cell(1, 0), shown.cell(1, 2))));
    QVERIFY(
        areas.contains(qMakePair(shown.model.index(0, 0, listIndex), shown.model.index(0, 2, listIndex))));
}

void tst_NodeView::flagsAndRenaming()
{
    m_db->addCamera("cam", "Gate");
    Shown shown;
    shown.view->addNode("cam");
    const kom::smart<SubViewEntry> list = shown.view->addSubView("List");
    const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(shown.model.flags(shown.cell(0, 0)), plain | Qt::ItemIsDragEnabled);
    QCOMPARE(shown.model.flags(shown.cell(0, 2)), plain | Qt::ItemIsDragEnabled);
    QCOMPARE(shown.model.flags(shown.cell(1, 0)), plain | Qt::ItemIsEditable);
    QCOMPARE(shown.model.flags(shown.cell(1, 1)), plain);
    QCOMPARE(shown.model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));

    QSignalSpy changed(&shown.model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    QVERIFY(!shown.model.setData(shown.cell(0, 0), "Yard", Qt::EditRole));
    QVERIFY(!shown.model.setData(shown.cell(1, 1), "Yard", Qt::EditRole));
    QVERIFY(!shown.model.setData(shown.cell(1, 0), "Yard", Qt::DisplayRole));
    QVERIFY(!shown.model.setData(QModelIndex(), "Yard", Qt::EditRole));
    QCOMPARE(changed.count(), 0);
    QVERIFY(shown.model.setData(shown.cell(1, 0), "Yard", Qt::EditRole));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(list->name(), QString("Yard"));
    QCOMPARE(shown.cell(1, 0).data(Qt::EditRole).toString(), QString("Yard"));
    QCOMPARE(m_db->node("cam")->name(), QString("Gate"));
}

void tst_NodeView::mimeData()
{
    const Shown shown;
    const QString umlaut = QString::fromUtf8("kn\xC3\xB6");
    shown.view->addNode("a");
    shown.view->addNode(umlaut);
    shown.view->addSubView("List");
    QModelIndexList indexes;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            indexes.append(shown.cell(row, column));
    }
    QCOMPARE(shown.model.mimeTypes(), QStringList(NodeViewModel::mimeType()));
    const std::unique_ptr<QMimeData> data(shown.model.mimeData(indexes));
    QCOMPARE(QString::fromUtf8(data->data(NodeViewModel::mimeType())), "a\n" + umlaut);
    QVERIFY(!shown.model.mimeData({}));
    QVERIFY(!shown.model.mimeData({shown.cell(2, 0)})); // a list has no identifier
}

void tst_NodeView::removalCostDoesNotGrow_data()
{
    QTest::addColumn<QString>("order");
    for (const char* order : {"first to last", "last to first", "shuffled"})
        QTest::newRow(order) << QString(order);
}

void tst_NodeView::removalCostDoesNotGrow()
{
    QFETCH(QString, order);
    const auto cost = [&order](int count) {
        std::vector<int> numbers(static_cast<size_t>(count));
        std::iota(numbers.begin(), numbers.end(), 0);
        if (order == "last to first")
            std::reverse(numbers.begin(), numbers.end());
        else if (order == "shuffled")
            std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
        double least = std::numeric_limits<double>::max();
        for (int run = 0; run < (count < 10000 ? 50 : 2); ++run)
            least = std::min(least, removalCost(count, numbers));
        return least;
    };
    const double shortList = cost(1000);
    const double longList = cost(100000);
    // A hundred times the rows would cost a hundred times as much if each removal walked or moved them;
    // the margin is for the caches, which hold the short list only.
    QVERIFY2(longList < 20 * shortList,
             qPrintable(QString("%1 ns against %2 ns").arg(longList).arg(shortList)));
}

KO_TEST_MAIN(tst_NodeView)
#include "tst_nodeview.moc"
