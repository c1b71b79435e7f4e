#include "RawInserter.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "NodeListModel.h"
#include "NodeListView.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "ko/Node.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QTableView>
#include <QTreeView>

namespace bench {

using namespace ko;

namespace {

const QSize windowSize(800, 600);

QString recordingText(const NodeSummary& node)
{
    return node.recordingUsage == 0 ? QStringLiteral("Via camera") : QString();
}

/// The viewer of the whole database, opened and painted; the database is in memory.
class Viewing : public Contest
{
public:
    explicit Viewing(int size)
        : m_db(bench::open(siteFile(size)))
        , m_nodes(summaries(size))
    {
    }

    double ours() override
    {
        std::unique_ptr<NodeDBViewer> viewer;
        const double time = milliseconds([&] {
            viewer = std::make_unique<NodeDBViewer>();
            viewer->resize(windowSize);
            paint(*viewer);
        });
        return time;
    }

    double baseline() override
    {
        std::unique_ptr<PlainModel> model;
        QSortFilterProxyModel proxy;
        QTableView view;
        return milliseconds([&] {
            model = std::make_unique<PlainModel>(m_nodes);
            proxy.setSourceModel(model.get());
            view.setModel(&proxy);
            view.resize(windowSize);
            paint(view);
        });
    }

private:
    const std::unique_ptr<HostNodeDB> m_db;
    const QVector<NodeSummary> m_nodes;
};

/// The same against a table model of the toolkit on the same file.
class ViewingBySql : public Viewing
{
public:
    explicit ViewingBySql(int size)
        : Viewing(size)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection());
        database.setDatabaseName(siteFile(size));
        if (!database.open())
            qFatal("the file of %d nodes cannot be opened", size);
    }

    ~ViewingBySql() override { QSqlDatabase::removeDatabase(connection()); }

    double baseline() override
    {
        QTableView view;
        QSqlTableModel model(nullptr, QSqlDatabase::database(connection()));
        return milliseconds([&] {
            model.setTable(QStringLiteral("nodes"));
            model.select();
            while (model.canFetchMore())
                model.fetchMore();
            view.setModel(&model);
            view.resize(windowSize);
            paint(view);
        });
    }

private:
    static QString connection() { return QStringLiteral("bench"); }
};

/// The client's list in its view beside the same kind of view over the plain model.
class ClientList : public Contest
{
public:
    explicit ClientList(int size)
        : m_model(recordingText)
        , m_plain(summaries(size))
    {
        m_model.setNodes(summaries(size));
        m_view.setNodeModel(&m_model);
        m_view.header()->setSortIndicator(-1, Qt::AscendingOrder);
        m_proxy.setFilterKeyColumn(-1);
        m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        m_proxy.setSourceModel(&m_plain);
        prepare(m_plainView);
        m_plainView.setModel(&m_proxy);
        for (QTreeView* view : {static_cast<QTreeView*>(&m_view), &m_plainView}) {
            view->resize(windowSize);
            paint(*view);
        }
        for (int round = 0; round < 200; ++round)
            settle(); // a user has not typed yet while the list gets ready in the background
    }

protected:
    static void prepare(QTreeView& view)
    {
        view.setRootIsDecorated(false);
        view.setUniformRowHeights(true);
        view.setAlternatingRowColors(true);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    }

    NodeListModel m_model;
    NodeListView m_view;
    PlainModel m_plain;
    QSortFilterProxyModel m_proxy;
    QTreeView m_plainView;
};

class FirstPaint : public ClientList
{
public:
    using ClientList::ClientList;

    double ours() override
    {
        NodeListView view;
        return milliseconds([&] {
            view.setNodeModel(&m_model);
            view.resize(windowSize);
            paint(view);
        });
    }

    double baseline() override
    {
        QTreeView view;
        return milliseconds([&] {
            prepare(view);
            view.setModel(&m_plain);
            view.resize(windowSize);
            paint(view);
        });
    }
};

/// Keys typed into the search field: the first two of a number.
class Typing : public ClientList
{
public:
    using ClientList::ClientList;

    double ours() override
    {
        m_model.setSearch(QString());
        settle();
        return milliseconds([&] {
            for (const char* text : {"7", "77"}) {
                m_model.setSearch(QLatin1String(text));
                settle();
            }
        });
    }

    double baseline() override
    {
        m_proxy.setFilterFixedString(QString());
        settle();
        return milliseconds([&] {
            for (const char* text : {"7", "77"}) {
                m_proxy.setFilterFixedString(QLatin1String(text));
                settle();
            }
        });
    }
};

/// A click on the header of the names while the list is sorted by address.
class Sorting : public ClientList
{
public:
    using ClientList::ClientList;

    double ours() override
    {
        m_model.sort(NodeListModel::AddressColumn, Qt::AscendingOrder);
        settle();
        return milliseconds([&] {
            m_model.sort(NodeListModel::NameColumn, Qt::AscendingOrder);
            settle();
        });
    }

    double baseline() override
    {
        m_proxy.sort(2, Qt::AscendingOrder);
        settle();
        return milliseconds([&] {
            m_proxy.sort(0, Qt::AscendingOrder);
            settle();
        });
    }
};

/// What one would write instead of the overview: rows appended to a sorted list that is shown.
class PlainSortedList
{
public:
    PlainSortedList()
    {
        m_proxy.setSourceModel(&m_model);
        m_view.setModel(&m_proxy);
        m_view.setUniformRowHeights(true);
        m_view.setSortingEnabled(true);
        m_view.sortByColumn(0, Qt::AscendingOrder);
        paint(m_view);
    }

    void append(const QVector<NodeSummary>& nodes)
    {
        for (const NodeSummary& node : nodes)
            m_model.append(node);
        settle();
    }

private:
    PlainModel m_model;
    QSortFilterProxyModel m_proxy;
    QTreeView m_view;
};

/// Nodes arriving one by one while the overview is open and sorted by name.
class Flood : public Contest
{
public:
    explicit Flood(int size)
        : m_nodes(summaries(size))
        , m_db(bench::open(siteFile(size)))
    {
        const QStringList ids = m_db->nodeIdList(AllNodeTypes);
        for (const QString& id : ids)
            m_db->node(id)->name(); // what arrives is in memory
    }

    double ours() override
    {
        NodeOverviewDialog overview;
        overview.findChild<QTreeView*>()->sortByColumn(0, Qt::AscendingOrder);
        paint(overview);
        const QStringList ids = m_db->nodeIdList(AllNodeTypes);
        return milliseconds([&] {
            for (const QString& id : ids)
                emit m_db->nodeInserted(id);
            settle();
        });
    }

    double baseline() override
    {
        PlainSortedList list;
        return milliseconds([&] { list.append(m_nodes); });
    }

protected:
    const QVector<NodeSummary> m_nodes;

private:
    const std::unique_ptr<HostNodeDB> m_db;
};

/// The same with the database: the nodes are made, and stored at the end.
class StoredFlood : public Contest
{
public:
    explicit StoredFlood(int size)
        : m_nodes(summaries(size))
    {
    }

    double ours() override
    {
        const QTemporaryDir folder;
        const auto db = bench::open(folder.filePath(QStringLiteral("n.kodb")));
        NodeOverviewDialog overview;
        overview.findChild<QTreeView*>()->sortByColumn(0, Qt::AscendingOrder);
        paint(overview);
        return milliseconds([&] {
            for (const NodeSummary& node : m_nodes)
                addCamera(*db, node);
            db->flush();
            settle();
        });
    }

    double baseline() override
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("n.kodb"));
        bench::open(file).reset(); // for the tables
        RawSqlite database(file);
        PlainSortedList list;
        return milliseconds([&] {
            list.append(m_nodes);
            RawInserter inserter(database);
            database.run("BEGIN IMMEDIATE");
            for (const NodeSummary& node : m_nodes)
                inserter.insert(node);
            database.run("COMMIT");
        });
    }

private:
    const QVector<NodeSummary> m_nodes;
};

} // namespace

QVector<Workload> listWorkloads()
{
    return {
        {QStringLiteral("database viewer, to its first picture"),
         QStringLiteral("QTableView and proxy over rows in a QVector"), 1.5, allSizes, make<Viewing>()},
        {QStringLiteral("database viewer, to its first picture"),
         QStringLiteral("QSqlTableModel, all rows, same view"), 0.58, allSizes, make<ViewingBySql>()},
        {QStringLiteral("client's list: first picture"), QStringLiteral("the same view over the plain model"),
         1.3, allSizes, make<FirstPaint>(), false},
        {QStringLiteral("client's list: two keys in the search field"),
         QStringLiteral("the proxy's own filter"),
         0.025,
         {100000},
         make<Typing>()},
        {QStringLiteral("client's list: sort by name"), QStringLiteral("the proxy's own sort"), 0.6, allSizes,
         make<Sorting>(), true, 1.1,
         QStringLiteral("With 1,000 rows both spend their time in the view, which is laid out and painted "
                        "again.")},
        {QStringLiteral("nodes arriving one by one in the open, sorted overview"),
         QStringLiteral("the same rows into the plain sorted model"),
         1.3,
         {1000, 10000},
         make<Flood>(),
         true,
         2.0,
         QStringLiteral("By callgrind a node takes 1.24 times the instructions of a plain row (194 million "
                        "against 156 for 8,000): it is found in the database, gets a handle and stands in an "
                        "index. The rest is memory that must be fetched for that.")},
        {QStringLiteral("the same, made and stored"),
         QStringLiteral("the plain sorted model and raw SQLite in one transaction"),
         2.0,
         {1000, 10000},
         make<StoredFlood>()},
    };
}

} // namespace bench
