#include "RawInserter.h"
#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "exchange/CameraSurvey.h"
#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"
#include "ko/ActionLog.h"
#include "ko/Node.h"

#include <QFile>
#include <QUuid>

namespace bench {

using namespace ko;

namespace {

class Opening : public Contest
{
public:
    explicit Opening(int size)
        : m_file(siteFile(size))
    {
    }

    double ours() override
    {
        std::unique_ptr<HostNodeDB> db;
        return milliseconds([&] {
            db = bench::open(m_file);
            m_seen += db->nodeIdList(AllNodeTypes).size() + db->summaries().size();
        });
    }

    double baseline() override
    {
        QVector<NodeSummary> nodes;
        return milliseconds([&] {
            RawSqlite database(m_file);
            RawSqlite::Statement all(database,
                                     "SELECT n, id, type, name, location, recording FROM nodes ORDER BY n");
            while (all.next()) {
                NodeSummary node;
                node.id = all.text(1);
                node.type = ENodeType(all.number(2));
                node.name = all.text(3);
                node.location = all.text(4);
                node.recordingUsage = int(all.number(5));
                nodes.append(node);
            }
            m_seen += nodes.size();
        });
    }

private:
    const QString m_file;
    qint64 m_seen = 0;
};

/// One node changed as OK in its dialog does, with both entries of the audit log, down to the disk.
class Confirming : public Contest
{
public:
    explicit Confirming(int size)
        : m_copy(size)
        , m_rawCopy(size)
        , m_db(bench::open(m_copy.file()))
        , m_raw(m_rawCopy.file())
        , m_id(m_db->nodeIdList(AllNodeTypes).value(size / 2))
    {
    }

    double ours() override
    {
        const QString name = QStringLiteral("Gate %1").arg(++m_count);
        m_db->node(m_id)->name(); // the dialog has read it
        return milliseconds([&] {
            Node* node = m_db->beginUpdateNode(m_id, -1);
            node->setStringProperty(QStringLiteral("Name"), name);
            node->setStringProperty(QStringLiteral("Model"), name);
            m_db->endUpdateNode(node);
            ActionLog::getInstance()->log(NodeRenameLogEntry(m_last, name));
            ActionLog::getInstance()->log(NodeChangeLogEntry(name));
            m_db->flush();
            m_last = name;
        });
    }

    double baseline() override
    {
        const QString name = QStringLiteral("Gate %1").arg(++m_count);
        return milliseconds([&] {
            m_raw.run("BEGIN IMMEDIATE");
            m_update.bind(1, name).bind(2, m_id).execute();
            m_property.bind(1, name).bind(2, m_id).execute();
            for (int i = 0; i < 2; ++i)
                m_audit.bind(1, name).execute();
            m_change.bind(1, m_id).execute();
            m_raw.run("COMMIT");
        });
    }

private:
    SiteCopy m_copy;
    SiteCopy m_rawCopy;
    const std::unique_ptr<HostNodeDB> m_db;
    RawSqlite m_raw;
    const QString m_id;
    QString m_last;
    int m_count = 0;
    RawSqlite::Statement m_update{m_raw, "UPDATE nodes SET name = ? WHERE id = ?"};
    RawSqlite::Statement m_property{m_raw, "UPDATE node_properties SET properties = json_set(properties,"
                                           " '$.Model', json_array(0, ?)) WHERE node ="
                                           " (SELECT n FROM nodes WHERE id = ?)"};
    RawSqlite::Statement m_audit{
        m_raw, "INSERT INTO audit (time, user, host, code, data) VALUES (0, 'user', 'host', 1, ?)"};
    RawSqlite::Statement m_change{m_raw, "INSERT INTO changes (kind, id) VALUES ('N', ?)"};
};

/// A list of cameras read into an empty database.
class Importing : public Contest
{
public:
    explicit Importing(int size)
        : m_file(m_folder.filePath(QStringLiteral("cameras.csv")))
    {
        QFile list(m_file);
        if (!list.open(QIODevice::WriteOnly))
            qFatal("%s cannot be written", qPrintable(m_file));
        list.write("name,address,port,user\n");
        for (int number = 0; number < size; ++number) {
            const NodeSummary camera = summaryOf(number, size);
            list.write(QStringLiteral("\"%1\",%2,80,admin\n").arg(camera.name, camera.location).toUtf8());
        }
    }

    double ours() override
    {
        const QTemporaryDir folder;
        const auto db = bench::open(folder.filePath(QStringLiteral("n.kodb")));
        return milliseconds([&] {
            CameraSurvey::importCameras(m_file);
            db->flush();
        });
    }

    double baseline() override
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("n.kodb"));
        bench::open(file).reset(); // for the tables
        RawSqlite database(file);
        return milliseconds([&] {
            QFile list(m_file);
            if (!list.open(QIODevice::ReadOnly))
                qFatal("%s cannot be read", qPrintable(m_file));
            list.readLine();
            RawInserter inserter(database);
            database.run("BEGIN IMMEDIATE");
            while (!list.atEnd()) {
                const QStringList cells = QString::fromUtf8(list.readLine()).split(QLatin1Char(','));
                NodeSummary camera;
                camera.id = QUuid::createUuid().toString();
                camera.name = QString(cells.at(0)).remove(QLatin1Char('"'));
                camera.location = cells.at(1);
                inserter.insert(camera);
            }
            database.run("COMMIT");
        });
    }

private:
    QTemporaryDir m_folder;
    const QString m_file;
};

/// Memory of an open database against the bytes of its strings.
class Remembering : public Contest
{
public:
    Remembering(int size, bool readAll)
        : m_file(siteFile(size))
        , m_readAll(readAll)
    {
    }

    double ours() override
    {
        const double before = bytesInUse();
        const auto db = bench::open(m_file);
        passTime(1500); // what it makes ready meanwhile counts; the check of the file is over
        if (m_readAll) {
            const QStringList ids = db->nodeIdList(AllNodeTypes);
            for (const QString& id : ids)
                db->node(id)->name();
        }
        return bytesInUse() - before;
    }

    double baseline() override
    {
        RawSqlite database(m_file);
        double bytes = 0;
        RawSqlite::Statement lists(database, "SELECT id, name, location FROM nodes");
        while (lists.next())
            bytes += 2.0 * double(lists.text(0).size() + lists.text(1).size() + lists.text(2).size());
        if (m_readAll) {
            RawSqlite::Statement values(database,
                                        "SELECT key, json_extract(value, '$[1]') FROM node_properties,"
                                        " json_each(properties)");
            while (values.next())
                bytes += 2.0 * double(values.text(0).size() + values.text(1).size());
        }
        return bytes;
    }

private:
    const QString m_file;
    const bool m_readAll;
};

} // namespace

QVector<Workload> storeWorkloads()
{
    return {
        {QStringLiteral("open the database: ids, types and names ready"),
         QStringLiteral("raw SQLite reading the same columns"), 1.7, allSizes, make<Opening>()},
        {QStringLiteral("OK in the dialog of a camera, to disk and log"),
         QStringLiteral("raw SQLite, the same rows in one transaction"), 1.8, allSizes, make<Confirming>()},
        {QStringLiteral("import of a list of cameras"),
         QStringLiteral("a plain parser and raw SQLite in one transaction"),
         3.0,
         {1000, 10000},
         make<Importing>(),
         true,
         4.2,
         QStringLiteral(
             "The other side looks for no device that is there already, checks no address, and writes"
             " neither history nor chain.")},
        {QStringLiteral("memory, list only (bytes)"), QStringLiteral("the strings themselves"), 3.0, allSizes,
         [](int size) { return std::make_unique<Remembering>(size, false); }},
        {QStringLiteral("memory, everything read (bytes)"), QStringLiteral("the strings themselves"), 4.0,
         allSizes, [](int size) { return std::make_unique<Remembering>(size, true); }},
    };
}

} // namespace bench
