#include "DeskTesting.h"
#include "SiteModel.h"
#include "sharing/SharingWorker.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

using namespace ko;
using namespace testsupport;

namespace {

const char asDesk[] = "--desk";

/// A client on a file of its own, that shares it.
struct Desk
{
    Desk(const QString& path, const QString& at)
        : file(path)
        , address(at)
        , db(openDatabase(path))
    {
    }

    void connectToSite()
    {
        worker = std::make_unique<SharingWorker>(file, address, describe);
        QObject::connect(worker.get(), &SharingWorker::stateChanged, worker.get(),
                         [this](const SharingState& now) { state = now; });
        QObject::connect(worker.get(), &SharingWorker::received, db.get(), &HostNodeDB::syncForeignChanges);
    }

    void disconnect()
    {
        worker.reset();
        state = SharingState();
    }

    bool isUpToDate() const { return state.kind == SharingState::UpToDate; }

    const QString file;
    const QString address;
    std::unique_ptr<HostNodeDB> db;
    std::unique_ptr<SharingWorker> worker;
    SharingState state;
};

/// Each edit is a change set of its own.
void editAndEndTurn(Desk& desk, std::mt19937& random)
{
    randomEdit(*desk.db, random);
    QTest::qWait(1);
}

} // namespace

/// Desks on files of their own and one real server.
class TestSharing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void editsAppearOnTheOther();
    void historyTellsWhoAndWhen();
    void differentPropertiesMerge();
    void laterOneOfTheSamePropertyStays();
    void editOfARemovedNodeIsKeptInTheHistory();
    void offlineForLong();
    void viewerWritesNothing();
    void fileBelongsToOneSite();
    void serverFromYesterday();
    void manyDesksAndAServerThatIsKilled();
    void desksThatAreKilled();

private:
    Desk& desk(int number) { return *m_desks.at(size_t(number)); }
    void addDesks(int count);
    QString lastParcel();
    bool isQuiet();
    QString makeCameraOfTwoDesks();
    void waitForAll();
    void checkAllEqual();
    void checkOnceEach(QStringList made);
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }

    PostgresServer m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_database;
    std::vector<std::unique_ptr<Desk>> m_desks;
    int m_count = 0;
};

void TestSharing::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void TestSharing::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_database = QStringLiteral("site%1").arg(++m_count);
    const QString failure = makeSite(m_server, m_database);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
}

void TestSharing::cleanup()
{
    m_desks.clear();
}

void TestSharing::addDesks(int count)
{
    for (int i = 0; i < count; ++i) {
        const QString file = m_folder->filePath(QStringLiteral("desk%1.kodb").arg(m_desks.size()));
        m_desks.push_back(std::make_unique<Desk>(file, m_server.address(m_database)));
        QVERIFY(m_desks.back()->db);
        m_desks.back()->connectToSite();
    }
}

QString TestSharing::lastParcel()
{
    return sql(QStringLiteral("SELECT number, id FROM ko.parcels ORDER BY number DESC LIMIT 1"));
}

/// Whether each desk has all up to the site's last parcel, and nothing waits there.
bool TestSharing::isQuiet()
{
    const QString last = lastParcel();
    for (const auto& desk : m_desks) {
        StoreError error;
        const auto log = SharedLog::open(desk->file, describe, &error);
        SharedLog::Cursor start;
        const KnownParcel newest = log->known(1).value(0);
        if (!desk->isUpToDate() || !log->waiting(&start, 1).isEmpty() ||
            last != QStringLiteral("%1|%2").arg(newest.number).arg(newest.id))
            return false;
    }
    return last == lastParcel();
}

void TestSharing::waitForAll()
{
    for (const auto& desk : m_desks) {
        QVERIFY(desk->db->flush());
        desk->worker->wake();
    }
    QTRY_VERIFY_WITH_TIMEOUT(isQuiet(), 2 * Patience);
    for (const auto& desk : m_desks)
        desk->db->syncForeignChanges();
}

void TestSharing::checkAllEqual()
{
    waitForAll();
    const QString text = sql(QStringLiteral("SELECT ko.state()"));
    const QByteArray expected = siteState(QJsonDocument::fromJson(text.toUtf8()).object());
    QStringList made;
    for (const auto& desk : m_desks) {
        QCOMPARE(deskState(desk->file), expected);
        desk->db->syncForeignChanges();
        QStringList seen; // in memory
        const QVector<NodeSummary> summaries = desk->db->summaries();
        for (const NodeSummary& summary : summaries)
            seen.append(summary.id + summary.name);
        QStringList stored;
        PlainSql(desk->file)
            .forEach("SELECT id || name FROM nodes ORDER BY n",
                     [&stored](const QSqlQuery& row) { stored.append(row.value(0).toString()); });
        QCOMPARE(seen, stored);
        made += changeSetsOf(desk->file);
        StoreError error;
        const std::optional<LogReport> report = NodeStore::verifyLogs(
            desk->file, LogEnd(), [](qint64) { return true; }, &error);
        QVERIFY2(report && report->findings.isEmpty(),
                 qPrintable(report ? report->findings.value(0).text() : error.detail));
    }
    checkOnceEach(made);
}

/// Each change set that any desk has is at the site, and no line of it twice.
void TestSharing::checkOnceEach(QStringList made)
{
    std::sort(made.begin(), made.end());
    made.removeDuplicates();
    QCOMPARE(made.join(QLatin1Char('\n')),
             sql(QStringLiteral("SELECT id FROM ko.change_sets ORDER BY id COLLATE \"C\"")));
    QCOMPARE(
        sql(QStringLiteral("SELECT count(*) FROM (SELECT set_id, line FROM ko.lines WHERE line IS NOT NULL"
                           " GROUP BY 1, 2 HAVING count(*) > 1) twice")),
        QStringLiteral("0"));
}

void TestSharing::editsAppearOnTheOther()
{
    addDesks(2);
    waitForAll();
    QSignalSpy inserted(desk(1).db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    QSignalSpy updated(desk(1).db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    QSignalSpy removed(desk(1).db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    const QString camera = addCamera(*desk(0).db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    const QString folder =
        addNode(*desk(0).db, RecordingFolderType, QStringLiteral("Folder"), QStringLiteral("/rec"));
    KO_TRY_COMPARE(inserted.count(), 2);
    QCOMPARE(desk(1).db->summary(camera).location, QStringLiteral("10.0.0.1"));
    desk(0).db->addNodeRelation(camera, folder, RecordingFolderRelation);
    KO_TRY_COMPARE(desk(1).db->relatedNodes(camera, RecordingFolderRelation), QStringList(folder));
    updated.clear();
    setText(*desk(0).db, camera, "Name", QStringLiteral("Door"));
    KO_TRY_VERIFY(!updated.isEmpty());
    QCOMPARE(desk(1).db->node(camera)->name(), QStringLiteral("Door"));
    desk(0).db->removeNode(camera);
    KO_TRY_COMPARE(removed.count(), 1);
    desk(1).db->setBandwidth(SlowRemote);
    KO_TRY_COMPARE(desk(0).db->bandwidth(), int(SlowRemote));
    checkAllEqual();
}

void TestSharing::historyTellsWhoAndWhen()
{
    addDesks(2);
    const QString camera = addCamera(*desk(0).db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    waitForAll();
    const auto last = [](Desk& desk) { return desk.db->history().changeSets(0, 1000).last(); };
    setText(*desk(0).db, camera, "Model", QStringLiteral("new"));
    waitForAll();
    const ChangeSet here = last(desk(0));
    const ChangeSet there = last(desk(1));
    QCOMPARE(there.cause.id, here.cause.id);
    QCOMPARE(there.cause.user, here.cause.user);
    QCOMPARE(there.cause.station, here.cause.station);
    QCOMPARE(there.cause.time, here.cause.time);
    QCOMPARE(there.cause.purpose, Purpose::Edit);
    QCOMPARE(there.nodes.size(), 1);
    QCOMPARE(there.nodes.first().after->properties.value(QStringLiteral("Model")).toString(),
             QStringLiteral("new"));
    QVERIFY(desk(1).db->apply(there.inverse())); // so it can be put back there
    KO_TRY_COMPARE(text(*desk(0).db, camera, "Model"), QString());
    checkAllEqual();
}

/// Both desks have it, and neither is connected any more.
QString TestSharing::makeCameraOfTwoDesks()
{
    addDesks(2);
    const QString camera = addCamera(*desk(0).db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    waitForAll();
    desk(0).disconnect();
    desk(1).disconnect();
    desk(1).db->syncForeignChanges();
    return camera;
}

void TestSharing::differentPropertiesMerge()
{
    const QString camera = makeCameraOfTwoDesks();
    setText(*desk(0).db, camera, "Model", QStringLiteral("of 0"));
    setText(*desk(1).db, camera, "Version", QStringLiteral("of 1"));
    for (int i : {1, 0})
        desk(i).connectToSite();
    checkAllEqual();
    for (int i : {0, 1}) {
        QCOMPARE(text(*desk(i).db, camera, "Model"), QStringLiteral("of 0"));
        QCOMPARE(text(*desk(i).db, camera, "Version"), QStringLiteral("of 1"));
    }
}

void TestSharing::laterOneOfTheSamePropertyStays()
{
    const QString camera = makeCameraOfTwoDesks();
    setText(*desk(1).db, camera, "Model", QStringLiteral("of 1"));
    QVERIFY(desk(1).db->flush());
    setText(*desk(0).db, camera, "Model", QStringLiteral("of 0"));
    desk(0).connectToSite(); // who comes first is overruled, whatever the clocks say
    KO_TRY_COMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.lines WHERE after::text LIKE '%of 0%'")),
                   QStringLiteral("1"));
    desk(1).connectToSite();
    checkAllEqual();
    for (int i : {0, 1}) {
        QCOMPARE(text(*desk(i).db, camera, "Model"), QStringLiteral("of 1"));
        QVector<QString> values;
        const QVector<ChangeSet> sets = desk(i).db->history().changeSets(0, 1000);
        for (const ChangeSet& set : sets) {
            for (const NodeChange& node : set.nodes)
                values.append(node.after ? node.after->properties.value(QStringLiteral("Model")).toString()
                                         : QString());
        }
        QVERIFY(values.contains(QStringLiteral("of 0")) && values.contains(QStringLiteral("of 1")));
    }
}

void TestSharing::editOfARemovedNodeIsKeptInTheHistory()
{
    const QString camera = makeCameraOfTwoDesks();
    setText(*desk(1).db, camera, "Model", QStringLiteral("too late"));
    QVERIFY(desk(1).db->flush());
    desk(0).db->removeNode(camera);
    desk(0).connectToSite();
    KO_TRY_COMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.nodes")), QStringLiteral("0"));
    desk(1).connectToSite();
    waitForAll();
    QVERIFY(desk(1).db->node(camera).null());
    QCOMPARE(sql(QStringLiteral("SELECT done FROM ko.lines WHERE after::text LIKE '%too late%'")),
             QStringLiteral("f"));
    const QString state = sql(QStringLiteral("SELECT ko.state()"));
    for (int i : {0, 1})
        QCOMPARE(deskState(desk(i).file), siteState(QJsonDocument::fromJson(state.toUtf8()).object()));
}

/// What comes of it is what the rules say, by a model that knows nothing else.
void TestSharing::offlineForLong()
{
    addDesks(2);
    std::mt19937 random(1);
    for (int i = 0; i < 30; ++i)
        editAndEndTurn(desk(i % 2), random);
    waitForAll();
    SiteModel model;
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(m_database)));
    QVector<SharedParcel> before;
    QVERIFY(!connection.fetch(0, 1000, &before));
    model.submit(before);
    desk(0).disconnect();
    desk(1).disconnect();
    for (int i = 0; i < 1000; ++i)
        editAndEndTurn(desk(i % 2), random);
    for (int i : {0, 1}) {
        StoreError error;
        SharedLog::Cursor start;
        QVERIFY(desk(i).db->flush());
        const auto parcels = SharedLog::open(desk(i).file, describe, &error)->waiting(&start, 100000);
        QVERIFY(parcels.size() > 300);
        model.submit(parcels);
    }
    for (int i : {0, 1}) {
        desk(i).connectToSite();
        KO_TRY_VERIFY(desk(i).isUpToDate());
    }
    waitForAll();
    for (int i : {0, 1})
        QCOMPARE(deskState(desk(i).file), siteState(model.state()));
}

void TestSharing::viewerWritesNothing()
{
    addDesks(1);
    addCamera(*desk(0).db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    waitForAll();
    sql(QStringLiteral("CREATE ROLE watcher LOGIN IN ROLE ko_viewer"));
    const QString file = m_folder->filePath(QStringLiteral("viewer.kodb"));
    m_desks.push_back(std::make_unique<Desk>(file, m_server.address(m_database, QStringLiteral("watcher"))));
    desk(1).connectToSite(); // with what a new file begins with, which waits
    KO_TRY_COMPARE(desk(1).state.reason, SharingState::MayNotWrite);
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.change_sets WHERE submitted_by = 'watcher'")),
             QStringLiteral("0"));
}

void TestSharing::fileBelongsToOneSite()
{
    addDesks(1);
    waitForAll();
    desk(0).disconnect();
    const QString other = QStringLiteral("other%1").arg(m_count);
    QVERIFY(m_server.createDatabase(other));
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(other)));
    QVERIFY(!connection.prepareSite());
    SharingWorker worker(desk(0).file, m_server.address(other), describe);
    SharingState state;
    connect(&worker, &SharingWorker::stateChanged, this, [&state](const SharingState& now) { state = now; });
    KO_TRY_COMPARE(state.kind, SharingState::Refused);
    QCOMPARE(state.reason, SharingState::OtherSite);
}

void TestSharing::serverFromYesterday()
{
    addDesks(2);
    std::mt19937 random(2);
    for (int i = 0; i < 20; ++i)
        editAndEndTurn(desk(i % 2), random);
    checkAllEqual();
    m_server.stop();
    QVERIFY(m_server.save());
    QVERIFY(m_server.start());
    for (int i = 0; i < 20; ++i)
        editAndEndTurn(desk(i % 2), random);
    checkAllEqual();
    const QByteArray before = deskState(desk(0).file);
    const QStringList sets = changeSetsOf(desk(0).file);
    desk(1).disconnect();
    m_server.stop();
    QVERIFY(m_server.restore());
    QVERIFY(m_server.start());
    desk(1).connectToSite();
    checkAllEqual();
    QCOMPARE(deskState(desk(0).file), before); // nothing of today is lost
    QCOMPARE(changeSetsOf(desk(0).file), sets);
}

void TestSharing::manyDesksAndAServerThatIsKilled()
{
    addDesks(20);
    std::mt19937 random(3);
    for (int round = 0; round < 4; ++round) {
        for (int i = 0; i < 60; ++i) {
            editAndEndTurn(desk(int(random() % 20)), random);
            if (i % 20 == 10)
                desk(int(random() % 20)).disconnect();
            if (i == 30)
                sql(QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
                                   " WHERE pid <> pg_backend_pid() AND random() < 0.5"));
        }
        m_server.kill();
        for (int i = 0; i < 10; ++i)
            editAndEndTurn(desk(int(random() % 20)), random);
        QVERIFY2(m_server.start(), qPrintable(m_server.error()));
        for (const auto& desk : m_desks) {
            if (!desk->worker)
                desk->connectToSite();
        }
    }
    waitForAll();
    const QString state = sql(QStringLiteral("SELECT ko.state()"));
    QStringList made;
    for (const auto& desk : m_desks) {
        QCOMPARE(deskState(desk->file), siteState(QJsonDocument::fromJson(state.toUtf8()).object()));
        made += changeSetsOf(desk->file);
    }
    checkOnceEach(made);
}

/// Processes that edit without end and are killed at any moment.
void TestSharing::desksThatAreKilled()
{
    const int count = 4;
    std::mt19937 random(4);
    std::vector<std::unique_ptr<QProcess>> processes(count);
    const auto begin = [&](int number) {
        const QString file = m_folder->filePath(QStringLiteral("desk%1.kodb").arg(number));
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(
            QCoreApplication::applicationFilePath(),
            {QLatin1String(asDesk), file, m_server.address(m_database), QString::number(random())});
        processes.at(size_t(number)) = std::move(process);
    };
    for (int i = 0; i < count; ++i)
        begin(i);
    int edits = 0;
    for (int kill = 0; kill < 24; ++kill) {
        QTest::qWait(150 + int(random() % 200));
        const int number = int(random() % count);
        processes.at(size_t(number))->kill();
        QVERIFY(processes.at(size_t(number))->waitForFinished());
        edits += int(processes.at(size_t(number))->readAllStandardOutput().count('\n'));
        begin(number);
    }
    for (const auto& process : processes) {
        process->kill();
        QVERIFY(process->waitForFinished());
    }
    QVERIFY2(edits > 50, qPrintable(QString::number(edits)));
    addDesks(count);
    checkAllEqual();
}

namespace {

/// The other process: says a line for each edit that is stored. Fifty a second are more than a site has; what
/// a fast machine does besides would only be waited for afterwards.
int editWithoutEnd(int argc, char** argv)
{
    QApplication app(argc, argv);
    Desk desk(QFile::decodeName(argv[2]), QString::fromLocal8Bit(argv[3]));
    if (!desk.db)
        return 1;
    desk.connectToSite();
    std::mt19937 random(unsigned(QByteArray(argv[4]).toUInt()));
    for (;;) {
        editAndEndTurn(desk, random);
        std::printf("\n");
        std::fflush(stdout);
        QTest::qWait(20);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 4 && qstrcmp(argv[1], asDesk) == 0)
        return editWithoutEnd(argc, argv);
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    TestSharing test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sharing.moc"
