#include "DeskTesting.h"
#include "RandomParcels.h"
#include "sharing/SharingWorker.h"
#include "sharing/SiteVerification.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include <thread>

using namespace ko;
using namespace testsupport;

/// A site that tells of its past otherwise than it told before, and desks that were there before.
class tst_SiteChain : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void siteOfVersionOneGetsAChain();
    void whatIsSentMeanwhileGetsItsLink();
    void deskOfBeforeTheChainGoesOn();
    void rewrittenPastIsFoundOut_data();
    void rewrittenPastIsFoundOut();
    void newDeskSeesABrokenChain();

private:
    QString address() const { return m_server.address(m_database); }
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }
    void prepare();
    void prepareVersionOne();
    void send(int count);
    SharingState share(const QString& file);

    PostgresServer m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RandomParcels> m_parcels;
    QString m_database;
    int m_count = 0;
};

void tst_SiteChain::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void tst_SiteChain::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_parcels = std::make_unique<RandomParcels>(5);
    m_database = QStringLiteral("site%1").arg(++m_count);
    QVERIFY2(m_server.createDatabase(m_database), qPrintable(m_server.error()));
}

void tst_SiteChain::prepare()
{
    SiteConnection connection;
    SharingFailure failure = connection.open(address());
    if (!failure)
        failure = connection.prepareSite();
    QVERIFY2(!failure, qPrintable(failure.message));
}

void tst_SiteChain::send(int count)
{
    SiteConnection connection;
    QVERIFY(!connection.open(address()));
    for (int i = 0; i < count; ++i) {
        qint64 number = 0;
        const SharingFailure failure = connection.submit({m_parcels->next()}, &number);
        QVERIFY2(!failure, qPrintable(failure.message));
    }
}

/// What a desk comes to: it has all, or it does not want to.
SharingState tst_SiteChain::share(const QString& file)
{
    const auto db = openDatabase(file);
    SharingWorker worker(file, address(), describe);
    SharingState state;
    connect(&worker, &SharingWorker::stateChanged, this, [&state](const SharingState& now) { state = now; });
    [&] { KO_TRY_VERIFY(state.kind == SharingState::UpToDate || state.kind == SharingState::Refused); }();
    return state;
}

void tst_SiteChain::prepareVersionOne()
{
    for (const char* name : {"1-tables", "1-functions"}) {
        QFile script(QStringLiteral(":/sharing/%1.sql").arg(QLatin1String(name)));
        QVERIFY(script.open(QIODevice::ReadOnly));
        sql(QString::fromUtf8(script.readAll()));
    }
}

void tst_SiteChain::siteOfVersionOneGetsAChain()
{
    prepareVersionOne();
    send(30);
    const QString parcels = sql(QStringLiteral("SELECT count(*) FROM ko.parcels"));
    prepare();
    prepare(); // once
    QCOMPARE(sql(QStringLiteral("SELECT version FROM ko.site")), QString::number(SharingSession::Version));
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.links")), parcels);
    send(5);
    const SharingState state = share(m_folder->filePath(QStringLiteral("desk.kodb")));
    QVERIFY2(state.kind == SharingState::UpToDate, qPrintable(state.text));
}

/// One desk is in the middle of it when the site becomes one of version 2, another begins then.
void tst_SiteChain::whatIsSentMeanwhileGetsItsLink()
{
    prepareVersionOne();
    SiteConnection first;
    SiteConnection second;
    qint64 number = 0;
    QVERIFY(!first.open(address()) && !second.open(address()));
    QVERIFY(!second.submit({m_parcels->next()}, &number)); // knows the functions of before
    QByteArray nothing;
    QVERIFY(!first.value("BEGIN", {}, &nothing) && !first.submit({m_parcels->next()}, &number));
    const auto waiting = [this] {
        return sql(QStringLiteral("SELECT count(*) FROM pg_stat_activity WHERE datname = current_database()"
                                  " AND wait_event_type = 'Lock'"));
    };
    std::thread upgrade([this] { prepare(); });
    [&] { KO_TRY_COMPARE(waiting(), QStringLiteral("1")); }();
    SharingFailure sent;
    std::thread sending([&, parcel = m_parcels->next()] { sent = second.submit({parcel}, &number); });
    [&] { KO_TRY_COMPARE(waiting(), QStringLiteral("2")); }();
    const SharingFailure ended = first.value("COMMIT", {}, &nothing);
    upgrade.join();
    sending.join();
    QVERIFY(!ended && !sent);
    QCOMPARE(number, 3);
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.links")), QStringLiteral("3"));
    const SharingState state = share(m_folder->filePath(QStringLiteral("desk.kodb")));
    QVERIFY2(state.kind == SharingState::UpToDate, qPrintable(state.text));
}

/// It believes the link that it is told first, and no other one afterwards.
void tst_SiteChain::deskOfBeforeTheChainGoesOn()
{
    prepare();
    send(20);
    const QString file = m_folder->filePath(QStringLiteral("desk.kodb"));
    QCOMPARE(share(file).kind, SharingState::UpToDate);
    PlainSql(file).run("UPDATE shared_parcels SET id = substr(id, 1, 36)");
    QCOMPARE(share(file).kind, SharingState::UpToDate);
    send(5);
    QCOMPARE(share(file).kind, SharingState::UpToDate);
    sql(QStringLiteral("UPDATE ko.links SET link = sha256(link)"));
    QCOMPARE(share(file).reason, SharingState::Rewritten);
}

void tst_SiteChain::rewrittenPastIsFoundOut_data()
{
    QTest::addColumn<QString>("statement");
    const struct
    {
        const char* what;
        const char* statement;
    } ways[] = {
        {"a value", "UPDATE ko.lines SET id = id || 'x' WHERE number = 7"},
        {"a user", "UPDATE ko.change_sets SET \"user\" = 'nobody'"
                   " WHERE id = (SELECT set_id FROM ko.parcels WHERE number = 7)"},
        {"who sent it", "UPDATE ko.change_sets SET submitted_by = 'nobody'"
                        " WHERE id = (SELECT set_id FROM ko.parcels WHERE number = 7)"},
        {"a line that is gone",
         "DELETE FROM ko.lines WHERE (number, position) ="
         " (SELECT number, max(position) FROM ko.lines GROUP BY 1 HAVING count(*) > 1 LIMIT 1)"},
        {"a line more",
         "INSERT INTO ko.lines (number, position, set_id, line, kind, id, after)"
         " SELECT number, 999, set_id, 999, 'S', 'x', '\"y\"' FROM ko.parcels WHERE number = 7"},
    };
    for (const auto& way : ways) {
        const QString statement = QString::fromLatin1(way.statement);
        QTest::newRow(way.what) << statement;
        QTest::newRow(qPrintable(QLatin1String(way.what) + QStringLiteral(", links again")))
            << statement +
                   QStringLiteral("; DELETE FROM ko.links;"
                                  " DO $$ DECLARE n bigint; BEGIN FOR n IN SELECT number FROM ko.parcels"
                                  " ORDER BY number LOOP PERFORM ko.add_link(n); END LOOP; END $$");
    }
    QTest::newRow("a parcel that is gone") << QStringLiteral("DELETE FROM ko.links WHERE number = 7");
}

void tst_SiteChain::rewrittenPastIsFoundOut()
{
    QFETCH(const QString, statement);
    prepare();
    send(20);
    const QString file = m_folder->filePath(QStringLiteral("desk.kodb"));
    QCOMPARE(share(file).kind, SharingState::UpToDate);
    const QString before =
        sql(QStringLiteral("SELECT * FROM ko.lines, ko.change_sets, ko.links ORDER BY 1, 2"));
    sql(statement);
    QVERIFY(sql(QStringLiteral("SELECT * FROM ko.lines, ko.change_sets, ko.links ORDER BY 1, 2")) != before);
    {
        const auto db = openDatabase(file);
        addCamera(*db, QStringLiteral("Mine"), QStringLiteral("10.0.0.1"));
        QVERIFY(db->flush());
    }
    const QByteArray state = deskState(file);
    QCOMPARE(share(file).reason, SharingState::Rewritten);
    QCOMPARE(deskState(file), state);
    StoreError error;
    const auto log = SharedLog::open(file, describe, &error);
    SiteConnection connection;
    QVERIFY(!connection.open(address()));
    SiteVerification verification(*log, connection, [](qint64) { return true; });
    QCOMPARE(int(verification.run()), int(SiteVerification::Verdict::Different));
}

/// It was never there before, but the links do not fit.
void tst_SiteChain::newDeskSeesABrokenChain()
{
    prepare();
    send(20);
    sql(QStringLiteral("UPDATE ko.lines SET id = id || 'x' WHERE number = 7"));
    QCOMPARE(share(m_folder->filePath(QStringLiteral("desk.kodb"))).reason, SharingState::Rewritten);
}

KO_TEST_MAIN(tst_SiteChain)
#include "tst_sitechain.moc"
