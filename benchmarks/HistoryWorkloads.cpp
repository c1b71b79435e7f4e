#include "RawSqlite.h"
#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "HistoryDialog.h"
#include "HistoryModel.h"
#include "PutBackDialog.h"
#include "audit/AuditLog.h"
#include "database/StoredHistory.h"
#include "inspector/NodeChangeLogEntry.h"
#include "ko/Node.h"
#include "ko/PropertyKeys.h"
#include "store/HistorySwitch.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTableView>

#include <map>

namespace bench {

using namespace ko;

namespace {

const int rowsSeen = 100;
const int allRows = 1000000;

/// A site with a history of this many change sets of one change each, made once.
QString historyFile(int sets)
{
    static std::map<int, std::unique_ptr<SiteCopy>> files;
    std::unique_ptr<SiteCopy>& copy = files[sets];
    if (copy)
        return copy->file();
    copy = std::make_unique<SiteCopy>(1000);
    RawSqlite raw(copy->file());
    raw.run("BEGIN");
    raw.run(qPrintable(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1)"
                       " INSERT INTO change_sets (id, time, user, host, purpose, subject)"
                       " SELECT 'made' || i, 1700000000000 + i * 1000, 'user' || (i % 20), 'desk' ||"
                       " (i % 5), 'edit', '' FROM n")
            .arg(sets)));
    raw.run(
        "INSERT INTO changes (kind, id, change_set, before, after) SELECT 'N',"
        " (SELECT id FROM nodes WHERE n = 1 + s.seq % 1000), s.seq,"
        " '{\"name\":\"Camera ' || (s.seq % 1000) || '\",\"properties\":{\"Model\":\"M' || s.seq || '\"}}',"
        " '{\"name\":\"Camera ' || (s.seq % 1000) || '\",\"properties\":{\"Model\":\"N' || s.seq || '\"}}'"
        " FROM change_sets s WHERE s.id LIKE 'made%'");
    raw.run("COMMIT");
    return copy->file();
}

/// The window to its first picture, or one filter in it, against the same over a history that is no longer
/// than what is seen.
class Looking : public Contest
{
public:
    enum class What { Open, Text, Node };

    explicit Looking(What what)
        : m_many(bench::open(historyFile(allRows)))
        , m_few(bench::open(historyFile(rowsSeen)))
        , m_what(what)
    {
    }

    double ours() override { return look(*m_many); }
    double baseline() override { return look(*m_few); }

private:
    double look(HostNodeDB& db)
    {
        HistoryDialog::Scope scope;
        if (m_what == What::Node)
            scope.nodes = db.nodeIdList(AllNodeTypes).mid(7, 1);
        std::unique_ptr<HistoryDialog> dialog;
        const double opened = milliseconds([&] {
            dialog = std::make_unique<HistoryDialog>(db, scope, nullptr);
            dialog->show();
            QCoreApplication::sendPostedEvents();
            dialog->grab(); // its first picture
        });
        if (m_what != What::Text)
            return opened;
        auto* field = dialog->findChild<QLineEdit*>(QStringLiteral("textLineEdit"));
        auto* table = dialog->findChild<QTableView*>(QStringLiteral("setsTableView"));
        auto* model = qobject_cast<HistoryModel*>(table->model());
        while (model->isLooking())
            QCoreApplication::processEvents();
        return milliseconds([&] {
            field->setText(QStringLiteral("camera 7"));
            dialog->grab();
        });
    }

    const std::unique_ptr<HostNodeDB> m_many;
    const std::unique_ptr<HostNodeDB> m_few;
    const What m_what;
};

/// One property of many nodes put back, to the disk, against setting it.
class PuttingManyBack : public Contest
{
public:
    explicit PuttingManyBack(int size)
        : m_copy(size)
        , m_db(bench::open(m_copy.file()))
        , m_ids(m_db->nodeIdList(AllNodeTypes))
    {
    }

    double ours() override
    {
        const QVector<Alteration> alterations = assign();
        return milliseconds([&] {
            PutBackDialog dialog(
                [] { return QString(); }, *PuttingBack::preview(*m_db, alterations),
                PutBackDialog::words(*m_db),
                [this](const PutBack& shown) { return PuttingBack::apply(*m_db, shown, Cause::undoing({})); },
                nullptr);
            paint(dialog);
            dialog.accept();
        });
    }

    double baseline() override
    {
        return milliseconds([&] { assign(); });
    }

private:
    QVector<Alteration> assign()
    {
        const QString path = QString::number(++m_round);
        for (const QString& id : m_ids) {
            Node* node = m_db->beginUpdateNode(id, -1);
            node->setStringProperty(PropertyKeys::InfoFile, path);
            m_db->endUpdateNode(node);
            m_db->auditLog().log(NodeChangeLogEntry(path));
        }
        m_db->flush();
        settle(); // the turn ends
        const std::optional<ChangeSet> set = m_db->history().changeSet(m_db->history().newest());
        return set ? Alterations::of(*set) : QVector<Alteration>();
    }

    const SiteCopy m_copy;
    const std::unique_ptr<HostNodeDB> m_db;
    const QStringList m_ids;
    int m_round = 0;
};

/// Edits of some nodes, each stored by itself or all together, against the same program without a history.
class Logging : public Contest
{
public:
    Logging(int size, int nodes)
        : m_copy(size)
        , m_rawCopy(size)
        , m_db(bench::open(m_copy.file()))
        , m_without(bench::open(m_rawCopy.file()))
        , m_nodes(nodes)
    {
    }

    double ours() override { return edit(*m_db); }

    double baseline() override
    {
        const QScopedValueRollback<bool> off(hasHistory, false);
        const qint64 before = m_without->history().newest();
        const double time = edit(*m_without);
        if (m_without->history().newest() != before)
            qFatal("there is a history");
        return time;
    }

private:
    double edit(HostNodeDB& db)
    {
        const QStringList ids = db.nodeIdList(AllNodeTypes).mid(0, m_nodes);
        const int rounds = m_nodes == 1 ? 20 : 1; // one alone is told by the disk's mood
        const double time = milliseconds([&] {
            for (int round = 0; round < rounds; ++round) {
                for (const QString& id : ids) {
                    Node* node = db.beginUpdateNode(id, -1);
                    node->setStringProperty(PropertyKeys::InfoFile, QString::number(++m_round));
                    db.endUpdateNode(node);
                    db.auditLog().log(NodeChangeLogEntry(id));
                }
                db.flush();
                settle(); // the turn ends
            }
        });
        return time / rounds;
    }

    const SiteCopy m_copy;
    const SiteCopy m_rawCopy;
    const std::unique_ptr<HostNodeDB> m_db;
    const std::unique_ptr<HostNodeDB> m_without;
    const int m_nodes;
    int m_round = 0;
};

template <Looking::What what>
std::unique_ptr<Contest> makeLooking(int)
{
    return std::make_unique<Looking>(what);
}

} // namespace

QVector<Workload> historyWorkloads()
{
    const QString few = QStringLiteral("the same with a history of %1").arg(rowsSeen);
    return {
        {QStringLiteral("history window of 1,000,000 change sets, to its first picture"),
         few,
         2.0,
         {1000},
         makeLooking<Looking::What::Open>,
         false},
        {QStringLiteral("the same of one node, to its first picture"),
         few,
         2.0,
         {1000},
         makeLooking<Looking::What::Node>,
         false},
        {QStringLiteral("a text typed in it, to the next picture"),
         few,
         2.0,
         {1000},
         makeLooking<Looking::What::Text>,
         false},
        {QStringLiteral("one property of all nodes put back, with preview, to disk"),
         QStringLiteral("setting it, to disk"),
         2.0,
         {1000, 10000},
         [](int size) { return std::make_unique<PuttingManyBack>(size); }},
        {QStringLiteral("an edit, to disk"),
         QStringLiteral("the same without a history"),
         1.3,
         {10000},
         [](int size) { return std::make_unique<Logging>(size, 1); },
         false},
        {QStringLiteral("edits of all nodes at once, to disk"),
         QStringLiteral("the same without a history"),
         1.3,
         {1000, 10000},
         [](int size) { return std::make_unique<Logging>(size, size); }},
    };
}

} // namespace bench
