#include "RawSqlite.h"
#include "Site.h"
#include "Stops.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "drivers/NodeTypes.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/Node.h"
#include "ko/NodeHint.h"

#include <QPushButton>
#include <QRadioButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTableWidget>
#include <QTreeView>

namespace bench {

using namespace ko;

namespace {

/// A sorted view of plain rows.
class PlainSorted
{
public:
    explicit PlainSorted(const QVector<NodeSummary>& nodes = QVector<NodeSummary>())
        : model(nodes)
    {
        m_proxy.setSourceModel(&model);
        m_view.setModel(&m_proxy);
        m_view.setUniformRowHeights(true);
        m_view.setSortingEnabled(true);
        m_view.sortByColumn(0, Qt::AscendingOrder);
        paint(m_view);
    }

    PlainModel model;

private:
    QSortFilterProxyModel m_proxy;
    QTreeView m_view;
};

/// An overview that is open and sorted by name.
class OpenOverview
{
public:
    OpenOverview()
    {
        m_view->sortByColumn(0, Qt::AscendingOrder);
        paint(m_dialog);
    }

    int rows() const { return m_view->model()->rowCount(); }
    QString lastName() const { return m_view->model()->index(rows() - 1, 0).data().toString(); }

private:
    NodeOverviewDialog m_dialog;
    QTreeView* const m_view = m_dialog.findChild<QTreeView*>();
};

/// Nodes that all arrive in one turn of the event loop while the overview is open and sorted.
class Arrival : public Contest
{
public:
    Arrival(int size, What what)
        : m_what(what)
        , m_nodes(summaries(size))
        , m_db(bench::open(siteFile(size)))
    {
    }

    double ours() override
    {
        const OpenOverview overview;
        const QStringList ids = m_db->nodeIdList(AllNodeTypes);
        return measured(m_what, [&] {
            for (const QString& id : ids)
                emit m_db->nodeInserted(id);
            turnUntil([&] { return overview.rows() == ids.size(); });
        });
    }

    double baseline() override
    {
        if (m_what == What::LongestStop)
            return longestStop;
        PlainSorted plain;
        return milliseconds([&] {
            plain.model.append(m_nodes);
            settle();
        });
    }

private:
    const What m_what;
    const QVector<NodeSummary> m_nodes;
    const std::unique_ptr<HostNodeDB> m_db;
};

/// A database with a camera and many recording folders of nobody.
class ManyFolders : public Contest
{
public:
    explicit ManyFolders(int size)
    {
        const auto db = bench::open(file());
        for (int number = 0; number < size; ++number) {
            const kom::smart<NodeHint> hint =
                NodeTypes::driver(RecordingFolderType)->createNodeHint(RecordingFolderType);
            const QString path = QStringLiteral("//server/%1").arg(qint64(number) * 7919 % size);
            hint->setName(path);
            hint->setStringProperty(QStringLiteral("Path"), path);
            db->newNodeHint(*hint);
            m_paths.append(path);
        }
        addCamera(*db, summaryOf(0, 1));
        db->flush();
    }

protected:
    QString file() const { return m_folder.filePath(QStringLiteral("n.kodb")); }

    static std::unique_ptr<QDialog> openDialog(const HostNodeDB& db)
    {
        auto dialog =
            std::make_unique<RecordingFolderAssignmentDialog>(db.nodeIdList(IPDeviceType).value(0), nullptr);
        paint(*dialog);
        dialog->findChild<QRadioButton*>(QStringLiteral("cameraFileserverPathRadioButton"))->click();
        dialog->findChild<QPushButton*>(QStringLiteral("moreButton"))->click();
        settle();
        return dialog;
    }

    std::unique_ptr<QTableWidget> openPlain() const
    {
        auto table = std::make_unique<QTableWidget>(int(m_paths.size()), 3);
        for (int row = 0; row < m_paths.size(); ++row) {
            for (int column = 0; column < 3; ++column)
                table->setItem(row, column, new QTableWidgetItem(m_paths.at(row)));
        }
        table->setSortingEnabled(true);
        table->sortByColumn(0, Qt::AscendingOrder);
        paint(*table);
        return table;
    }

private:
    const QTemporaryDir m_folder;
    QStringList m_paths;
};

class OpeningFolders : public ManyFolders
{
public:
    using ManyFolders::ManyFolders;

    double ours() override
    {
        const auto db = bench::open(file()); // nobody has read the folders
        passTime(300);
        std::unique_ptr<QDialog> dialog;
        return milliseconds([&] { dialog = openDialog(*db); });
    }

    double baseline() override
    {
        std::unique_ptr<QTableWidget> table;
        return milliseconds([&] { table = openPlain(); });
    }
};

/// A thousand of the folders are announced as changed while the window is open.
class ChangingFolders : public ManyFolders
{
public:
    ChangingFolders(int size, What what)
        : ManyFolders(size)
        , m_what(what)
        , m_db(bench::open(file()))
    {
    }

    double ours() override
    {
        const std::unique_ptr<QDialog> dialog = openDialog(*m_db);
        const QStringList ids = m_db->nodeIdList(RecordingFolderType).mid(0, changes);
        const QString name = nextName();
        m_db->blockSignals(true);
        for (const QString& id : ids) {
            Node* node = m_db->beginUpdateNode(id, -1);
            node->setStringProperty(QStringLiteral("Name"), name + id);
            m_db->endUpdateNode(node);
        }
        m_db->blockSignals(false);
        const QTableWidget* table = dialog->findChild<QTableWidget*>();
        settle();
        return measured(m_what, [&] {
            for (const QString& id : ids)
                emit m_db->nodeUpdated(id);
            turnUntil([&] { return table->item(changes - 1, 0)->text().startsWith(name); });
        });
    }

    double baseline() override
    {
        if (m_what == What::LongestStop)
            return longestStop;
        const std::unique_ptr<QTableWidget> table = openPlain();
        const QString name = nextName();
        return milliseconds([&] {
            table->setSortingEnabled(false);
            for (int row = 0; row < changes; ++row)
                table->item(row * table->rowCount() / changes, 0)->setText(name + QString::number(row));
            table->setSortingEnabled(true);
            settle();
        });
    }

private:
    static constexpr int changes = 1000;

    /// Before all paths.
    QString nextName() { return QStringLiteral("!%1 ").arg(++m_round); }

    const What m_what;
    const std::unique_ptr<HostNodeDB> m_db;
    int m_round = 0;
};

/// Nodes that another process has changed while viewer and overview are open, from the first of which this
/// one tells until all is shown.
class ForeignChanges : public Contest
{
public:
    ForeignChanges(int size, What what)
        : m_what(what)
        , m_count(qMin(size, 10000))
        , m_copy(size)
        , m_db(bench::open(m_copy.file()))
        , m_raw(m_copy.file())
        , m_ids(m_db->nodeIdList(AllNodeTypes))
        , m_overview(new OpenOverview)
        , m_plain(summaries(size))
    {
        for (const QString& id : m_ids)
            emit m_db->nodeInserted(id);
        turnUntil([&] { return m_overview->rows() == m_ids.size(); });
        paint(m_viewer);
        m_proxy.setSourceModel(&m_plain.model);
        m_plainViewer.setModel(&m_proxy);
        paint(m_plainViewer);
    }

    double ours() override
    {
        const QString name = renameInFile();
        const QString last = name + QString::number(9999).left(QString::number(m_count - 1).size());
        QElapsedTimer sinceFirst; // when this process looks is up to its clock
        const auto connection = QObject::connect(m_db.get(), &NodeDB::nodeUpdated, [&sinceFirst] {
            if (!sinceFirst.isValid())
                sinceFirst.start();
        });
        const double time =
            measured(m_what, [&] { turnUntil([&] { return m_overview->lastName() == last; }); });
        QObject::disconnect(connection);
        return m_what == What::Time ? double(sinceFirst.nsecsElapsed()) / 1e6 : time;
    }

    double baseline() override
    {
        if (m_what == What::LongestStop)
            return longestStop;
        const QString name = renameInFile();
        const double time = milliseconds([&] {
            RawSqlite::Statement changed(m_raw, "SELECT id, name, location, lookup FROM nodes WHERE id IN"
                                                " (SELECT id FROM changes ORDER BY seq DESC LIMIT 10000)");
            while (changed.next()) {
                for (int column = 0; column < 4; ++column)
                    m_read += changed.text(column).size();
            }
            m_plain.model.rename(m_count, name);
            settle();
        });
        const QString last = name + QString::number(9999).left(QString::number(m_count - 1).size());
        turnUntil([&] { return m_overview->lastName() == last; }); // not to be found by the next run
        return time;
    }

private:
    /// Returns with what the new names begin.
    QString renameInFile()
    {
        const QString name = QStringLiteral("Zone %1 ").arg(++m_round, 4, 10, QLatin1Char('0'));
        RawSqlite::Statement rename(m_raw, "UPDATE nodes SET name = ? WHERE id = ?");
        RawSqlite::Statement change(m_raw, "INSERT INTO changes (kind, id) VALUES ('N', ?)");
        m_raw.run("BEGIN IMMEDIATE");
        for (int i = 0; i < m_count; ++i) {
            rename.bind(1, name + QString::number(i)).bind(2, m_ids.at(i)).execute();
            change.bind(1, m_ids.at(i)).execute();
        }
        m_raw.run("COMMIT");
        return name;
    }

    const What m_what;
    const int m_count;
    SiteCopy m_copy;
    const std::unique_ptr<HostNodeDB> m_db;
    RawSqlite m_raw;
    const QStringList m_ids;
    const std::unique_ptr<OpenOverview> m_overview;
    NodeDBViewer m_viewer;
    PlainSorted m_plain;
    QSortFilterProxyModel m_proxy;
    QTableView m_plainViewer;
    int m_round = 0;
    qint64 m_read = 0;
};

} // namespace

QVector<Workload> changeWorkloads()
{
    const QString stop = QStringLiteral("50 ms");
    return {
        {QStringLiteral("all nodes arrive in the open, sorted overview in one turn"),
         QStringLiteral("the same rows as one range into the toolkit's sorted proxy"),
         1.5,
         {10000, 100000},
         make<Arrival>(What::Time),
         true,
         2.2,
         QStringLiteral("The first are told one by one, and each is found in the database and by its node.")},
        {QStringLiteral("the same: longest stop of the event loop"),
         stop,
         1.0,
         {10000, 100000},
         make<Arrival>(What::LongestStop),
         false,
         6,
         QStringLiteral(
             "The toolkit's proxy sorts in one piece, and takes no order that was made elsewhere.")},
        {QStringLiteral("folder window that nobody has opened, with its table"),
         QStringLiteral("QTableWidget filled and sorted once"),
         2.0,
         {10000},
         [](int size) { return std::make_unique<OpeningFolders>(size); },
         false},
        {QStringLiteral("1,000 of its folders change"),
         QStringLiteral("the texts in a QTableWidget, sorted once"),
         2.0,
         {10000},
         make<ChangingFolders>(What::Time),
         false},
        {QStringLiteral("1,000 of its folders change: longest stop"),
         stop,
         1.0,
         {10000},
         make<ChangingFolders>(What::LongestStop),
         false},
        {QStringLiteral("10,000 nodes changed by another process, viewer and overview open"),
         QStringLiteral("one statement, and one range in plain models"),
         2.0,
         {10000, 100000},
         make<ForeignChanges>(What::Time),
         false,
         20,
         QStringLiteral(
             "They come in pieces, between which the program does what the user wants, and what takes "
             "long to show, the overview in its order, waits three times as long.")},
        {QStringLiteral("10,000 nodes changed by another process: longest stop"),
         stop,
         1.0,
         {10000, 100000},
         make<ForeignChanges>(What::LongestStop),
         false,
         4,
         QStringLiteral("The toolkit's proxy sorts in one piece.")},
    };
}

} // namespace bench
