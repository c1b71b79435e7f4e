#include "DeskTesting.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include "sharing/SharingWorker.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteCopy.h"

#include <QTemporaryDir>

using namespace ko;
using namespace testsupport;

namespace {

/// A desk that has nodes in editors, without windows.
struct Desk
{
    Desk(const QString& path, const QString& address)
        : file(path)
        , worker(file, address, describe)
    {
        QObject::connect(&worker, &SharingWorker::stateChanged, &worker,
                         [this](const SharingState& now) { state = now; });
        QObject::connect(&worker, &SharingWorker::editorsSeen, &worker,
                         [this](const QVector<NodeEditor>& editors) { others = editors; });
    }

    QStringList seen() const
    {
        QStringList nodes;
        for (const NodeEditor& other : others)
            nodes.append(other.node);
        return nodes;
    }

    const QString file;
    SharingState state;
    QVector<NodeEditor> others;
    SharingWorker worker; ///< destroyed first
};

} // namespace

/// Who edits what at other desks, with a real server.
class tst_Presence : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void othersAreSeenWhileTheyEdit();
    void onlyWhoLooksIsTold();
    void deskThatIsGoneEditsNothing();
    void toldAgainAfterARestart();
    void viewerSeesAndIsNotSeen();
    void nobodySpeaksForAnother();
    void siteWithoutTheTables();

private:
    Desk& addDesk(const QString& user = QStringLiteral("postgres"));
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }

    PostgresServer m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_database;
    std::vector<std::unique_ptr<Desk>> m_desks;
    int m_count = 0;
};

void tst_Presence::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void tst_Presence::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_database = QStringLiteral("site%1").arg(++m_count);
    const QString failure = makeSite(m_server, m_database);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
}

void tst_Presence::cleanup()
{
    m_desks.clear();
}

Desk& tst_Presence::addDesk(const QString& user)
{
    const QString file = m_folder->filePath(QStringLiteral("desk%1.kodb").arg(m_desks.size()));
    StoreError error;
    if (!SiteCopy::prepare(file, sql("SELECT id FROM ko.site"), &error))
        qFatal("%s", qPrintable(error.detail));
    m_desks.push_back(std::make_unique<Desk>(file, m_server.address(m_database, user)));
    return *m_desks.back();
}

void tst_Presence::othersAreSeenWhileTheyEdit()
{
    Desk& here = addDesk();
    Desk& there = addDesk();
    here.worker.setOpen({"gate"}, true);
    there.worker.setOpen({"gate", "yard"}, true);
    KO_TRY_COMPARE(here.seen(), QStringList({"gate", "yard"}));
    KO_TRY_COMPARE(there.seen(), QStringList("gate"));
    QCOMPARE(there.others.constFirst().user, Cause::currentUser());
    QCOMPARE(there.others.constFirst().station, Cause::currentStation());
    there.worker.setOpen({"yard"}, true);
    KO_TRY_COMPARE(here.seen(), QStringList("yard"));
    here.worker.setOpen({}, false);
    KO_TRY_VERIFY(there.others.isEmpty());
    KO_TRY_VERIFY(here.others.isEmpty());
    QCOMPARE(sql("SELECT count(*) FROM ko.editing"), QString("1"));
}

/// Most desks have no editor open most of the time.
void tst_Presence::onlyWhoLooksIsTold()
{
    Desk& here = addDesk();
    Desk& there = addDesk();
    KO_TRY_COMPARE(int(here.state.kind), int(SharingState::UpToDate));
    there.worker.setOpen({"gate"}, true);
    KO_TRY_COMPARE(sql("SELECT count(*) FROM ko.editing"), QString("1"));
    QTest::qWait(500); // for what does not come
    QVERIFY(here.others.isEmpty());
    here.worker.setOpen({}, true);
    KO_TRY_COMPARE(here.seen(), QStringList("gate"));
}

/// Nobody says good-bye for it.
void tst_Presence::deskThatIsGoneEditsNothing()
{
    Desk& here = addDesk();
    here.worker.setOpen({}, true);
    {
        SiteConnection there;
        QVERIFY(!there.open(m_server.address(m_database)));
        SitePresence presence;
        presence.setOpen({"gate"}, true);
        presence.connected();
        presence.look(there);
        KO_TRY_COMPARE(here.seen(), QStringList("gate"));
    }
    KO_TRY_VERIFY(here.others.isEmpty());
    QCOMPARE(sql("SELECT count(*) FROM ko.editing"), QString("1")); // is left over until somebody edits
    here.worker.setOpen({"yard"}, true);
    KO_TRY_COMPARE(sql("SELECT string_agg(node, ' ') FROM ko.editing"), QString("yard"));
}

void tst_Presence::toldAgainAfterARestart()
{
    Desk& here = addDesk();
    Desk& there = addDesk();
    here.worker.setOpen({"gate"}, true);
    there.worker.setOpen({"gate"}, true);
    KO_TRY_COMPARE(here.seen(), QStringList("gate"));
    m_server.kill();
    KO_TRY_VERIFY(here.others.isEmpty() && there.others.isEmpty());
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
    KO_TRY_COMPARE(here.seen(), QStringList("gate"));
    KO_TRY_COMPARE(there.seen(), QStringList("gate"));
}

void tst_Presence::viewerSeesAndIsNotSeen()
{
    const QString role = QStringLiteral("seer%1").arg(m_count);
    sql("CREATE ROLE " + role + " LOGIN IN ROLE ko_viewer");
    Desk& here = addDesk();
    Desk& viewer = addDesk(role);
    here.worker.setOpen({"gate"}, true);
    viewer.worker.setOpen({"yard"}, true); // as its client does not
    KO_TRY_COMPARE(int(viewer.state.kind), int(SharingState::UpToDate));
    QTest::qWait(500);
    QVERIFY(here.others.isEmpty());
    QCOMPARE(int(viewer.state.kind), int(SharingState::UpToDate)); // it is no reason to stop
    Desk& reader = addDesk(role);
    reader.worker.setOpen({}, true);
    KO_TRY_COMPARE(reader.seen(), QStringList("gate"));
}

void tst_Presence::nobodySpeaksForAnother()
{
    const QString role = QStringLiteral("editor%1").arg(m_count);
    sql("CREATE ROLE " + role + " LOGIN IN ROLE ko_editor");
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(m_database, role)));
    QByteArray text;
    for (const char* statement :
         {"INSERT INTO ko.editing VALUES (1, 'gate', 'anna', 'x', 'y')", "DELETE FROM ko.editing",
          "SELECT ko.is_connected(1)::text", "SELECT node FROM ko.editing"})
        QVERIFY2(connection.value(statement, {}, &text), statement);
    QStringList many;
    for (int i = 0; i < 500; ++i)
        many.append(QString::number(i).repeated(200));
    SitePresence presence;
    presence.setOpen(many, true);
    presence.connected();
    presence.look(connection);
    QCOMPARE(sql("SELECT count(*), max(length(node)), min(role) FROM ko.editing"), "100|200|" + role);
}

/// One that was made before there was this.
void tst_Presence::siteWithoutTheTables()
{
    sql("DROP FUNCTION ko.edit(jsonb), ko.editors(), ko.is_connected(integer); DROP TABLE ko.editing");
    Desk& here = addDesk();
    here.worker.setOpen({"gate"}, true);
    KO_TRY_COMPARE(int(here.state.kind), int(SharingState::UpToDate));
    const std::unique_ptr<HostNodeDB> db = openDatabase(here.file);
    addCamera(*db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    QVERIFY(db->flush());
    KO_TRY_COMPARE(sql("SELECT name FROM ko.nodes"), QString("Gate"));
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(m_database)));
    QVERIFY(!connection.prepareSite());
    Desk& there = addDesk();
    there.worker.setOpen({"gate"}, true);
    KO_TRY_COMPARE(sql("SELECT count(*) FROM ko.editing"), QString("1"));
}

KO_TEST_MAIN(tst_Presence)
#include "tst_presence.moc"
