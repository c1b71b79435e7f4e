#include "../host/StoreTesting.h"
#include "Attack.h"
#include "BoxCloser.h"
#include "support/TestMain.h"

#include "AuditLogDialog.h"
#include "MainWindow.h"
#include "audit/AuditLog.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "inspector/InspectorWidget.h"
#include "ko/Environments.h"

#include <sqlite3.h>

using namespace ko;
using namespace testsupport;
using namespace attack;

/// Whatever another program writes into the file of an open client with SQL: the client may complain, but it
/// goes on, and never shows or changes one node in the place of another.
class TestForeignWriters : public QObject
{
    Q_OBJECT

private slots:
    void aClientSurvives();
};

namespace {

const char Mark[] = "Model"; ///< tells which node a property list belongs to

/// A program that knows the tables and keeps no rule.
class Vandal
{
public:
    Vandal(const QString& file, Random& random)
        : m_random(random)
    {
        sqlite3_open(QFile::encodeName(file).constData(), &m_handle);
        sqlite3_busy_timeout(m_handle, 1000);
        run("PRAGMA foreign_keys = " + QByteArray(oneIn(random, 2) ? "ON" : "OFF"));
        if (oneIn(random, 3))
            run("PRAGMA ignore_check_constraints = ON");
        const QByteArrayList view = propertyView();
        for (const QByteArray& statement : view)
            run(statement);
    }
    ~Vandal() { sqlite3_close(m_handle); }

    /// Most statements fail, which is as good.
    void strike()
    {
        const bool several = oneIn(m_random, 2);
        if (several)
            run("BEGIN IMMEDIATE");
        for (int i = several ? 1 + below(m_random, 6) : 1; i > 0; --i)
            run(statement());
        if (several)
            run(oneIn(m_random, 4) ? "ROLLBACK" : "COMMIT");
    }

    /// What the file says now of each identifier: its mark.
    QMultiHash<QString, QString> marks()
    {
        QMultiHash<QString, QString> found;
        sqlite3_stmt* rows = nullptr;
        sqlite3_prepare_v2(m_handle,
                           "SELECT n.id, p.value FROM nodes n LEFT JOIN properties p"
                           " ON p.node = n.n AND p.key = 'Model'",
                           -1, &rows, nullptr);
        while (rows && sqlite3_step(rows) == SQLITE_ROW)
            found.insert(text(rows, 0), text(rows, 1));
        sqlite3_finalize(rows);
        return found;
    }

private:
    static QString text(sqlite3_stmt* row, int column)
    {
        const auto* bytes =
            reinterpret_cast<const char*>(sqlite3_column_text(row, column)); // before its size
        return QString::fromUtf8(bytes, sqlite3_column_bytes(row, column));
    }

    void run(const QByteArray& sql) { sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr); }

    QByteArray value()
    {
        static const char* const values[] = {"NULL",
                                             "0",
                                             "-1",
                                             "1",
                                             "2",
                                             "11",
                                             "9223372036854775807",
                                             "-9223372036854775808",
                                             "4611686018427387904",
                                             "1e308",
                                             "''",
                                             "'x'",
                                             "'10.0.0.1'",
                                             "'nan'",
                                             "x'00'",
                                             "x'ff00fe'",
                                             "zeroblob(100000)",
                                             "'{\"a\":[4,{\"b\":[2,5]}]}'",
                                             "'[[[[[['",
                                             "char(8238, 10, 0, 8232)",
                                             "hex(randomblob(2000))",
                                             "(SELECT id FROM nodes ORDER BY random() LIMIT 1)",
                                             "(SELECT n FROM nodes ORDER BY random() LIMIT 1)",
                                             "(SELECT max(n) + 1 FROM nodes)",
                                             "(SELECT name FROM nodes ORDER BY random() LIMIT 1)"};
        return anyOf(m_random, values);
    }

    QByteArray someNode() { return "n IN (SELECT n FROM nodes ORDER BY random() LIMIT " + few() + ')'; }
    QByteArray few() { return QByteArray::number(1 + below(m_random, 3)); }

    QByteArray statement()
    {
        static const char* const columns[][2] = {
            {"nodes", "n"},
            {"nodes", "id"},
            {"nodes", "type"},
            {"nodes", "name"},
            {"nodes", "location"},
            {"nodes", "recording"},
            {"nodes", "lookup"},
            {"node_properties", "node"},
            {"node_properties", "properties"},
            {"node_properties", "mac"},
            {"node_properties", "extension"},
            {"relations", "source"},
            {"relations", "type"},
            {"relations", "seq"},
            {"relations", "destination"},
            {"settings", "key"},
            {"settings", "value"},
            {"environments", "position"},
            {"environments", "id"},
            {"environments", "name"},
            {"audit", "seq"},
            {"audit", "time"},
            {"audit", "code"},
            {"audit", "data"},
            {"program_log", "level"},
            {"program_log", "line"},
            {"changes", "seq"},
            {"changes", "kind"},
            {"changes", "id"},
            {"sqlite_sequence", "seq"},
        };
        const auto& column = anyOf(m_random, columns);
        switch (below(m_random, 14)) {
        case 0:
        case 1:
        case 2:
            return QByteArray("UPDATE OR REPLACE ") + column[0] + " SET " + column[1] + " = " + value() +
                   " WHERE rowid IN (SELECT rowid FROM " + column[0] + " ORDER BY random() LIMIT " + few() +
                   ')';
        case 3:
            return "UPDATE properties SET value = " + value() +
                   " WHERE node IN (SELECT n FROM nodes ORDER BY random() LIMIT " + few() + ')';
        case 4:
            return "DELETE FROM nodes WHERE " + someNode();
        case 5: // another node under a number that is known
            return "UPDATE OR REPLACE nodes SET n = (SELECT n FROM nodes ORDER BY random() LIMIT 1) WHERE " +
                   someNode();
        case 6:
            return "INSERT OR REPLACE INTO nodes VALUES ((SELECT n FROM nodes ORDER BY random() LIMIT 1), "
                   "lower(hex(randomblob(8))), " +
                   value() + ", " + value() + ", " + value() + ", " + value() + ", " + value() + ')';
        case 7:
            return "INSERT INTO changes (kind, id) SELECT 'N', id FROM nodes";
        case 8:
            return "INSERT INTO changes (kind, id) SELECT 'N', " + value();
        case 9:
            return "INSERT INTO changes (kind, id) SELECT 'R', id FROM nodes UNION ALL SELECT 'S', ''";
        case 10:
            return QByteArray("DELETE FROM ") + column[0] + " WHERE rowid % 3 = 0";
        case 11:
            return "UPDATE sqlite_sequence SET seq = " + value();
        case 12:
            return "INSERT OR REPLACE INTO relations VALUES (NULL, (SELECT n FROM nodes ORDER BY random() "
                   "LIMIT 1), (SELECT n FROM nodes ORDER BY random() LIMIT 1), " +
                   value() + ')';
        default:
            return seldom();
        }
    }

    QByteArray seldom()
    {
        static const char* const statements[] = {
            "DROP INDEX nodes_lookup",
            "DELETE FROM sqlite_sequence",
            "DELETE FROM changes",
            "DELETE FROM nodes",
            "UPDATE environments SET id = 'same'",
            "INSERT INTO settings SELECT 'environment.active', 'nowhere'",
            "CREATE TRIGGER bad AFTER UPDATE ON nodes BEGIN DELETE FROM nodes; END",
            "DROP TABLE relations",
            "DROP TABLE audit",
            "ALTER TABLE nodes RENAME COLUMN name TO title",
            "PRAGMA user_version = 77",
            "VACUUM",
        };
        return oneIn(m_random, 3) ? QByteArray(anyOf(m_random, statements)) : QByteArray("SELECT 1");
    }

    Random& m_random;
    sqlite3* m_handle = nullptr;
};

/// A user who goes on working.
class Client
{
public:
    Client(HostNodeDB& db, Random& random)
        : m_db(db)
        , m_random(random)
        , m_window(db)
    {
        for (QWidget* widget : {static_cast<QWidget*>(&m_window), static_cast<QWidget*>(&m_overview),
                                static_cast<QWidget*>(&m_viewer)})
            widget->show();
    }

    void step()
    {
        m_db.syncForeignChanges();
        const QString id = someId();
        switch (below(m_random, 9)) {
        case 0:
            edit(id);
            break;
        case 1:
            addCamera(m_db, QLatin1String("added"), QString::number(m_random()));
            break;
        case 2:
            m_db.removeNode(id);
            break;
        case 3:
            m_db.addNodeRelation(id, someId(), RecordingFolderRelation);
            break;
        case 4:
            m_db.setActiveEnvironment(m_db.environments().getList().value(0).first);
            m_db.setBandwidth(below(m_random, 4));
            break;
        case 5:
            AuditLogDialog(m_db.auditLog(), nullptr).grab();
            break;
        case 6:
            openEditor(id);
            break;
        default:
            lookAtAll();
        }
        QCoreApplication::processEvents();
        m_db.flush();
        QCoreApplication::processEvents();
    }

    void lookAtAll()
    {
        const QStringList ids = m_db.nodeIdList(AllNodeTypes);
        for (const QString& id : ids) {
            m_db.node(id);
            m_db.relatedNodes(id, RecordingFolderRelation);
        }
    }

    /// Where the client gave a node a mark of its own.
    QHash<QString, QString> edited;

private:
    QString someId()
    {
        const QStringList ids = m_db.nodeIdList(AllNodeTypes);
        return ids.isEmpty() ? QString() : ids.at(below(m_random, int(ids.size())));
    }

    void edit(const QString& id)
    {
        Node* node = m_db.beginUpdateNode(id, -1);
        if (!node)
            return;
        const QString mark = QString::fromLatin1("client %1").arg(m_random());
        node->setStringProperty(QLatin1String(Mark), mark);
        m_db.endUpdateNode(node);
        edited.insert(mark, id);
    }

    void openEditor(const QString& id)
    {
        const kom::smart<const Node> node = m_db.node(id);
        if (node.null())
            return;
        const std::unique_ptr<InspectorWidget> inspector(node->createInspectorWidget(false, 17));
        if (inspector)
            inspector->grab();
    }

    HostNodeDB& m_db;
    Random& m_random;
    MainWindow m_window;
    NodeOverviewDialog m_overview;
    NodeDBViewer m_viewer;
};

} // namespace

void TestForeignWriters::aClientSurvives()
{
    const BoxCloser boxes;
    for (Rounds rounds("foreignwriters", 30); rounds.next();) {
        const QByteArray round = rounds.name();
        const QTemporaryDir folder;
        const QString file = folder.filePath(QLatin1String("nodes.kodb"));
        const std::unique_ptr<HostNodeDB> db = openDatabase(file);
        QVERIFY(db);
        QSet<QString> marks;
        for (int i = 0; i < 12; ++i) {
            const QString id = addCamera(*db, QString::fromLatin1("Camera %1").arg(i),
                                         QString::fromLatin1("10.0.0.%1").arg(i));
            setText(*db, id, Mark, id);
            marks.insert(id);
            if (i % 3 == 0)
                db->addNodeRelation(
                    id, addNode(*db, RecordingFolderType, QLatin1String("folder"), QLatin1String("/")),
                    RecordingFolderRelation);
        }
        QVERIFY(db->flush());
        Vandal vandal(file, rounds.random());
        Client client(*db, rounds.random());
        QHash<QString, QSet<QString>> seen; // the marks that each identifier had in the file
        const auto look = [&] {
            const QMultiHash<QString, QString> found = vandal.marks();
            for (auto it = found.begin(); it != found.end(); ++it)
                seen[it.key()].insert(it.value());
            return found;
        };
        look();
        for (int i = 0; i < 25; ++i) {
            vandal.strike();
            look();
            const QMultiHash<QString, QString> before = vandal.marks();
            client.step();
            const QMultiHash<QString, QString> after = look();
            for (auto it = after.begin(); it != after.end(); ++it)
                QVERIFY2(before.contains(it.key(), it.value()) ||
                             client.edited.value(it.value(), it.key()) == it.key(),
                         (round + ": a change of one node went to another one").constData());
            const QStringList ids = db->nodeIdList(AllNodeTypes);
            for (const QString& id : ids) {
                const kom::smart<const Node> node = db->node(id);
                if (node.null())
                    continue;
                const QString mark = node->stringProperty(QLatin1String(Mark), QString());
                const bool tells = marks.contains(mark) || client.edited.contains(mark);
                QVERIFY2(!tells || seen.value(id).contains(mark) || client.edited.value(mark) == id,
                         (round + ": a node has what belongs to another one").constData());
            }
        }
    }
}

KO_TEST_MAIN(TestForeignWriters)

#include "tst_foreignwriters.moc"
