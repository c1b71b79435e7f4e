#include "RawInserter.h"
#include "RawSqlite.h"
#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "SiteSharing.h"
#include "ko/Node.h"
#include "sharing/SharingWorker.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteCopy.h"
#include "support/PostgresServer.h"

#include <QFile>

#include <algorithm>

#include <libpq-fe.h>

namespace bench {

using namespace ko;

namespace {

const int linesOfAParcel = 200; // as desks send them
const int parcelsAtOnce = 5;
const int editsOfARun = 100;

void require(const SharingFailure& failure)
{
    if (failure)
        qFatal("the site says: %s", qPrintable(failure.message));
}

/// The one server of all workloads.
testsupport::PostgresServer& server()
{
    static testsupport::PostgresServer server;
    static const bool isRunning = server.start();
    if (!isRunning)
        qFatal("%s", qPrintable(server.error()));
    return server;
}

/// A site of its own, with a connection.
class BenchSite
{
public:
    BenchSite()
        : m_database(QStringLiteral("site%1").arg(++s_count))
    {
        if (!server().createDatabase(m_database))
            qFatal("%s", qPrintable(server().error()));
        require(connection.open(address()));
        require(connection.prepareSite());
    }

    ~BenchSite() { connection.close(); }

    QString address() const { return server().address(m_database); }
    QString run(const QString& sql) const { return server().run(m_database, sql); }

    void submit(const QVector<SharedParcel>& parcels)
    {
        qint64 number = 0;
        for (int first = 0; first < parcels.size(); first += parcelsAtOnce)
            require(connection.submit(parcels.mid(first, parcelsAtOnce), &number));
    }

    SiteConnection connection;

private:
    static int s_count;
    const QString m_database;
};

int BenchSite::s_count = 0;

SharedParcel parcelOf(const QString& set)
{
    SharedParcel parcel;
    parcel.cause = {set,      QStringLiteral("anna"), QStringLiteral("desk7"), 1700000000000LL, Purpose::Edit,
                    QString()};
    return parcel;
}

/// All cameras of a site, as a list that was imported.
QVector<SharedParcel> cameras(int count)
{
    const QString properties = propertiesOfACamera();
    QVector<SharedParcel> parcels;
    for (int i = 0; i < count; ++i) {
        if (i % linesOfAParcel == 0)
            parcels.append(parcelOf(QStringLiteral("import%1").arg(i)));
        const NodeSummary camera = summaryOf(i, count);
        const QString json = QStringLiteral("{\"name\":\"%1\",\"type\":2,\"place\":0,\"properties\":%2}")
                                 .arg(camera.name, properties);
        parcels.last().lines.append({i + 1, 'N', camera.id, QString(), json, false});
    }
    return parcels;
}

/// One property of one camera each.
QVector<SharedParcel> edits(int count, const QString& name)
{
    QVector<SharedParcel> parcels;
    for (int i = 0; i < count; ++i) {
        parcels.append(parcelOf(name + QString::number(i)));
        parcels.last().lines.append(
            {1, 'N', summaryOf(int(qint64(i) * 7919 % count), count).id,
             QStringLiteral("{\"name\":\"\",\"properties\":{}}"),
             QStringLiteral("{\"name\":\"\",\"properties\":{\"Model\":[0,\"%1 %2\"]}}").arg(name).arg(i),
             false});
    }
    return parcels;
}

/// Brings \a file up to date with the site.
void share(const QString& file, BenchSite& site)
{
    SharingWorker worker(file, site.address(), &SiteSharing::describe);
    QEventLoop loop;
    QObject::connect(&worker, &SharingWorker::stateChanged, &loop, [&loop](const SharingState& state) {
        if (state.kind == SharingState::Refused)
            qFatal("the desk is refused: %s", qPrintable(state.text));
        if (state.kind == SharingState::UpToDate)
            loop.quit();
    });
    loop.exec();
}

/// A table of the desk, with the condition that tells which of its rows.
struct DeskRows
{
    const char* table;
    QByteArray condition;
};

/// The rows of \a source once more, one by one into a new file with the same tables and indexes.
void insertRaw(const QString& source, const QString& target, const QVector<DeskRows>& rows)
{
    QFile::remove(target);
    RawSqlite from(source);
    RawSqlite into(target);
    into.run("PRAGMA foreign_keys = OFF"); // some of the tables alone
    into.run("BEGIN");
    for (const DeskRows& each : rows) {
        const QByteArray table(each.table);
        RawSqlite::Statement schema(from, "SELECT sql FROM sqlite_schema WHERE tbl_name = '" + table +
                                              "' AND sql IS NOT NULL ORDER BY type DESC");
        while (schema.next())
            into.run(schema.text(0).toUtf8().constData());
        RawSqlite::Statement all(from, "SELECT * FROM " + table + " WHERE " + each.condition);
        QByteArray places = "?";
        for (int i = 1; i < all.columns(); ++i)
            places += ", ?";
        RawSqlite::Statement insert(into, "INSERT INTO " + table + " VALUES (" + places + ")");
        while (all.next())
            insert.bindAll(all).execute();
    }
    into.run("COMMIT");
}

class Sharing : public Contest
{
protected:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void makeDesk()
    {
        SiteGreeting greeting;
        require(m_site.connection.greet(&greeting));
        QFile::remove(file("desk.kodb"));
        StoreError error;
        if (!ko::SiteCopy::prepare(file("desk.kodb"), greeting.site, &error))
            qFatal("%s", qPrintable(error.message));
    }

    /// What the server takes to give these rows, as fast as a connection takes them.
    void copyOut(const QStringList& queries)
    {
        const std::unique_ptr<PGconn, void (*)(PGconn*)> connection(
            PQconnectdb(m_site.address().toUtf8().constData()), &PQfinish);
        for (const QString& query : queries) {
            PQclear(PQexec(connection.get(), ("COPY (" + query + ") TO STDOUT").toUtf8().constData()));
            char* row = nullptr;
            while (PQgetCopyData(connection.get(), &row, 0) > 0)
                PQfreemem(row);
            PGresult* end = PQgetResult(connection.get());
            if (PQresultStatus(end) != PGRES_COMMAND_OK)
                qFatal("the server says: %s", PQerrorMessage(connection.get()));
            PQclear(end);
            PQclear(PQgetResult(connection.get()));
        }
    }

    BenchSite m_site;

private:
    QTemporaryDir m_folder;
};

class FirstCopy : public Sharing
{
public:
    explicit FirstCopy(int size) { m_site.submit(cameras(size)); }

    double ours() override
    {
        makeDesk();
        return milliseconds([&] { share(file("desk.kodb"), m_site); });
    }

    double baseline() override
    {
        return milliseconds([&] {
            copyOut({QStringLiteral("SELECT * FROM ko.nodes"), QStringLiteral("SELECT * FROM ko.properties"),
                     QStringLiteral("SELECT * FROM ko.change_sets"), QStringLiteral("SELECT * FROM ko.lines"),
                     QStringLiteral("SELECT * FROM ko.parcels")});
            insertRaw(file("desk.kodb"), file("raw.db"),
                      {{"nodes", "true"},
                       {"node_properties", "true"},
                       {"change_sets", "true"},
                       {"changes", "true"},
                       {"shared_lines", "true"},
                       {"shared_parcels", "true"}});
        });
    }
};

/// A desk that was away while others changed each camera once.
class CatchingUp : public Sharing
{
public:
    explicit CatchingUp(int size)
    {
        m_site.submit(cameras(size));
        makeDesk();
        share(file("desk.kodb"), m_site);
        RawSqlite(file("desk.kodb")).run("PRAGMA wal_checkpoint(TRUNCATE)");
        m_known = m_site.run(QStringLiteral("SELECT number FROM ko.site")).toLongLong();
        m_rows = RawSqlite(file("desk.kodb")).number("SELECT max(seq) FROM changes");
        m_site.submit(edits(size, QStringLiteral("edit")));
        if (!QFile::rename(file("desk.kodb"), file("before.kodb")))
            qFatal("%s cannot be renamed", qPrintable(file("desk.kodb")));
    }

    double ours() override
    {
        for (const char* name : {"desk.kodb", "desk.kodb-wal", "desk.kodb-shm"})
            QFile::remove(file(name));
        QFile::copy(file("before.kodb"), file("desk.kodb"));
        return milliseconds([&] { share(file("desk.kodb"), m_site); });
    }

    double baseline() override
    {
        const QByteArray after = " > " + QByteArray::number(m_known);
        return milliseconds([&] {
            copyOut({QStringLiteral("SELECT l.*, s.* FROM ko.lines l JOIN ko.parcels p USING (number)"
                                    " JOIN ko.change_sets s ON s.id = p.set_id WHERE l.number") +
                     QString::fromLatin1(after)});
            insertRaw(file("desk.kodb"), file("raw.db"),
                      {{"change_sets", "id LIKE 'edit%'"},
                       {"changes", "seq > " + QByteArray::number(m_rows) + " AND change_set IS NOT NULL"},
                       {"shared_lines", "number" + after},
                       {"shared_parcels", "number" + after},
                       {"node_properties", "true"}});
        });
    }

private:
    qint64 m_known = 0;
    qint64 m_rows = 0;
};

/// What a user waits for when he changes one camera of a shared database, beside a file of his own.
class SharedEdit : public Sharing
{
public:
    explicit SharedEdit(int size)
        : m_own(size)
        , m_db(bench::open(m_own.file()))
    {
        m_site.submit(cameras(size));
        makeDesk();
        share(file("desk.kodb"), m_site);
        m_copy = bench::open(file("desk.kodb"));
        m_sharing = std::make_unique<SiteSharing>(*m_copy, m_site.address());
        turnUntilShared();
    }

    double ours() override
    {
        const double time = edit(*m_copy);
        turnUntilShared();
        return time;
    }

    double baseline() override { return edit(*m_db); }

private:
    /// The middle of some, with the pause of a quick user between them.
    double edit(HostNodeDB& db)
    {
        const QStringList ids = db.nodeIdList(IPDeviceType);
        QVector<double> times;
        for (int i = 0; i < 20; ++i) {
            times.append(milliseconds([&] {
                Node* node = db.beginUpdateNode(ids.at(i), -1);
                node->setStringProperty(QStringLiteral("Name"), QStringLiteral("name %1").arg(++m_edits));
                db.endUpdateNode(node);
                db.flush();
            }));
            passTime(30);
        }
        std::sort(times.begin(), times.end());
        return times.at(times.size() / 2);
    }

    void turnUntilShared()
    {
        while (m_sharing->state().kind != SharingState::UpToDate || m_sharing->state().waiting > 0)
            passTime(10);
    }

    bench::SiteCopy m_own;
    const std::unique_ptr<HostNodeDB> m_db;
    std::unique_ptr<HostNodeDB> m_copy;
    std::unique_ptr<SiteSharing> m_sharing;
    int m_edits = 0;
};

/// Change sets of one property each, as the server takes them, beside plain statements with the same rows.
class ServersWork : public Sharing
{
public:
    explicit ServersWork(int size)
    {
        m_site.submit(cameras(size));
        m_site.run(QStringLiteral(
            "CREATE TABLE p (LIKE ko.parcels INCLUDING ALL); CREATE TABLE s (LIKE ko.change_sets INCLUDING"
            " ALL); CREATE TABLE l (LIKE ko.lines INCLUDING ALL); CREATE TABLE v AS SELECT * FROM"
            " ko.properties; CREATE INDEX ON v (node, key); CREATE FUNCTION plain(one bigint) RETURNS void"
            " LANGUAGE plpgsql AS $$ BEGIN"
            " INSERT INTO p SELECT * FROM ko.parcels WHERE number = one;"
            " INSERT INTO s SELECT s.* FROM ko.change_sets s JOIN ko.parcels q ON s.id = q.set_id"
            " WHERE q.number = one;"
            " INSERT INTO l SELECT * FROM ko.lines WHERE number = one;"
            " UPDATE v SET value = jsonb_build_array(0, one::text) WHERE node = one AND key = 'Model';"
            " END $$"));
    }

    double ours() override
    {
        const QVector<SharedParcel> parcels = edits(editsOfARun, QStringLiteral("run%1-").arg(++m_runs));
        return milliseconds([&] {
            qint64 number = 0;
            for (const SharedParcel& parcel : parcels)
                require(m_site.connection.submit({parcel}, &number));
            m_last = number;
        });
    }

    double baseline() override
    {
        m_site.run(QStringLiteral("TRUNCATE p, s, l"));
        QByteArray nothing;
        return milliseconds([&] {
            for (qint64 number = m_last - editsOfARun + 1; number <= m_last; ++number)
                require(m_site.connection.value("SELECT plain($1)", {std::to_string(number)}, &nothing));
        });
    }

private:
    int m_runs = 0;
    qint64 m_last = 0;
};

} // namespace

QVector<Workload> sharingWorkloads()
{
    return {
        {QStringLiteral("a shared database copied to a new desk"),
         QStringLiteral("COPY out of the server, and raw SQLite, the same rows in one transaction"),
         2,
         {1000, 10000},
         make<FirstCopy>()},
        {QStringLiteral("a desk catches up with as many change sets as there are nodes"),
         QStringLiteral("COPY out of the server, and raw SQLite, the same rows in one transaction"),
         2,
         {1000, 10000},
         make<CatchingUp>(),
         true,
         8,
         QStringLiteral(
             "Change sets of others are stored a hundred lines at a time, so that the user's own come "
             "between; each is joined with what the node is here, and the history is chained. The "
             "other side writes rows that are ready, in one transaction.")},
        {QStringLiteral("an edit of a shared database, to disk"),
         QStringLiteral("the same on a file"),
         1.1,
         {10000},
         make<SharedEdit>(),
         false},
        {QStringLiteral("100 change sets at the server, one by one"),
         QStringLiteral("plain statements with the same rows, one call for each"),
         8,
         {10000},
         make<ServersWork>(),
         false},
    };
}

} // namespace bench
