#include "RandomParcels.h"
#include "SiteModel.h"
#include "sharing/SharingSession.h"
#include "sharing/SiteConnection.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include <QElapsedTimer>

#include <thread>

using namespace ko;
using namespace testsupport;

/// What the server does with what desks send, against a model that knows only the rules.
class TestSite : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void isMadeOnceByManyAtOnce();
    void doesWhatTheRulesSay();
    void numbersFollowOneAnotherWhoeverSends();
    void viewerMayNotWrite();
    void editorMayOnlyCall();
    void noticesTellTheNumber();
    void badParcelChangesNothing();
    void silentServerIsGivenUp();

private:
    QString address(const char* user = "postgres") const
    {
        return m_server.address(m_database, QLatin1String(user));
    }
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }

    PostgresServer m_server;
    QString m_database;
    int m_count = 0;
};

#define QVERIFY_OK(call)                                                                                     \
    do {                                                                                                     \
        const SharingFailure failure = call;                                                                 \
        QVERIFY2(!failure, qPrintable(failure.message));                                                     \
    } while (false)

void TestSite::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void TestSite::init()
{
    m_database = QStringLiteral("site%1").arg(++m_count);
    QVERIFY2(m_server.createDatabase(m_database), qPrintable(m_server.error()));
    SiteConnection connection;
    QVERIFY_OK(connection.open(address()));
    QVERIFY_OK(connection.prepareSite());
}

void TestSite::isMadeOnceByManyAtOnce()
{
    m_database = QStringLiteral("empty");
    QVERIFY2(m_server.createDatabase(m_database), qPrintable(m_server.error()));
    std::vector<SharingFailure> failures(8);
    std::vector<std::thread> threads;
    for (SharingFailure& failure : failures)
        threads.emplace_back([this, &failure] {
            SiteConnection connection;
            failure = connection.open(address());
            if (!failure)
                failure = connection.prepareSite();
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const SharingFailure& failure : failures)
        QVERIFY2(!failure, qPrintable(failure.message));
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.site")), QStringLiteral("1"));
}

void TestSite::doesWhatTheRulesSay()
{
    SiteConnection connection;
    QVERIFY_OK(connection.open(address()));
    RandomParcels random(20);
    SiteModel model;
    int done = 0;
    int lines = 0;
    for (int i = 0; i < 400; ++i) {
        QVector<SharedParcel> parcels = {random.next(), random.next()};
        parcels.append(parcels.constFirst()); // came twice
        qint64 number = 0;
        QVERIFY_OK(connection.submit(parcels, &number));
        const int before = int(model.parcels.size());
        QCOMPARE(number, model.submit(parcels));
        QVector<SharedParcel> stored;
        QVERIFY_OK(connection.fetch(before, 10, &stored));
        QCOMPARE(stored.size(), model.parcels.size() - before);
        for (int j = 0; j < stored.size(); ++j) {
            const SharedParcel& expected = model.parcels.at(before + j);
            QCOMPARE(stored.at(j).number, expected.number);
            QCOMPARE(stored.at(j).lines.size(), expected.lines.size());
            for (int k = 0; k < expected.lines.size(); ++k) {
                const SharedLine& a = stored.at(j).lines.at(k);
                const SharedLine& b = expected.lines.at(k);
                const QString what = QStringLiteral("parcel %1: %2 %3 -> %4, expected %5 -> %6")
                                         .arg(expected.number)
                                         .arg(a.id, a.before, a.after, b.before, b.after);
                QVERIFY2(a.line == b.line && a.isDone == b.isDone && a.kind == b.kind && a.id == b.id,
                         qPrintable(what));
                if (a.kind == 'S')
                    QVERIFY2(a.before == b.before && a.after == b.after, qPrintable(what));
                else
                    QVERIFY2(QJsonDocument::fromJson(a.before.toUtf8()) ==
                                     QJsonDocument::fromJson(b.before.toUtf8()) &&
                                 QJsonDocument::fromJson(a.after.toUtf8()) ==
                                     QJsonDocument::fromJson(b.after.toUtf8()),
                             qPrintable(what));
                done += a.isDone ? 1 : 0;
                ++lines;
            }
        }
        QString state;
        QVERIFY_OK(connection.state(&state));
        QCOMPARE(QJsonDocument::fromJson(state.toUtf8()).object(), model.state());
    }
    QVERIFY2(done > lines / 4 && done < lines * 3 / 4, qPrintable(QString::number(done)));
}

void TestSite::numbersFollowOneAnotherWhoeverSends()
{
    std::vector<SharingFailure> failures(6);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < failures.size(); ++i)
        threads.emplace_back([this, i, &failures] {
            SiteConnection connection;
            RandomParcels random(unsigned(i) + 1);
            failures[i] = connection.open(address());
            for (int j = 0; j < 30 && !failures[i]; ++j) {
                SharedParcel parcel = random.next();
                parcel.cause.id = QStringLiteral("%1-%2").arg(i).arg(j);
                qint64 number = 0;
                failures[i] = connection.submit({parcel}, &number);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const SharingFailure& failure : failures)
        QVERIFY2(!failure, qPrintable(failure.message));
    QCOMPARE(sql(QStringLiteral("SELECT min(number), max(number), count(*) FROM ko.parcels")),
             QStringLiteral("1|180|180"));
}

void TestSite::viewerMayNotWrite()
{
    sql(QStringLiteral("CREATE ROLE seer%1 LOGIN IN ROLE ko_viewer").arg(m_count));
    const QByteArray user = QByteArray("seer") + QByteArray::number(m_count);
    SiteConnection connection;
    QVERIFY_OK(connection.open(address(user.constData())));
    SiteGreeting greeting;
    QVERIFY_OK(connection.greet(&greeting));
    QVERIFY(!greeting.mayWrite);
    QCOMPARE(greeting.version, SharingSession::Version);
    qint64 number = 0;
    const SharingFailure failure = connection.submit({RandomParcels(1).next()}, &number);
    QCOMPARE(failure.kind, SharingFailure::Refused);
    QVERIFY2(failure.message.contains(QStringLiteral("permission denied")), qPrintable(failure.message));
    QVector<SharedParcel> parcels;
    QVERIFY_OK(connection.fetch(0, 10, &parcels));
    QCOMPARE(parcels.size(), 0);
}

void TestSite::editorMayOnlyCall()
{
    const QString user = QStringLiteral("writer%1").arg(m_count);
    sql(QStringLiteral("CREATE ROLE %1 LOGIN IN ROLE ko_editor").arg(user));
    SiteConnection connection;
    QVERIFY_OK(connection.open(address(user.toLatin1().constData())));
    qint64 number = 0;
    QVERIFY_OK(connection.submit({RandomParcels(1).next()}, &number));
    QCOMPARE(number, 1);
    QCOMPARE(sql(QStringLiteral("SELECT submitted_by FROM ko.change_sets")), user);
    for (const char* statement :
         {"SELECT count(*) FROM ko.lines", "DELETE FROM ko.parcels", "UPDATE ko.site SET number = 7",
          "SELECT ko.apply(1)", "CREATE TABLE ko.mine ()",
          "CREATE TEMP TABLE nodes (); SELECT ko.add_nodes(1)"}) {
        sql(QStringLiteral("SET ROLE %1; %2").arg(user, QLatin1String(statement)));
        QVERIFY2(m_server.error().contains(QStringLiteral("permission denied")),
                 qPrintable(QLatin1String(statement) + m_server.error()));
    }
}

void TestSite::noticesTellTheNumber()
{
    SiteConnection listener;
    SiteConnection sender;
    QVERIFY_OK(listener.open(address()));
    QVERIFY_OK(sender.open(address()));
    qint64 number = 0;
    qint64 told = 0;
    QVERIFY_OK(sender.submit({RandomParcels(1).next()}, &number));
    QElapsedTimer clock;
    clock.start();
    while (told == 0 && clock.elapsed() < 20000)
        QVERIFY_OK(listener.wait(1000, &told));
    QCOMPARE(told, number);
}

void TestSite::badParcelChangesNothing()
{
    SiteConnection connection;
    QVERIFY_OK(connection.open(address()));
    SharedParcel good = RandomParcels(1).next();
    SharedParcel bad = RandomParcels(2).next();
    bad.lines = {{1, 'N', QStringLiteral("n1"), QString(),
                  QStringLiteral("{\"name\":\"a\",\"properties\":7,\"type\":1}"), false}};
    qint64 number = 0;
    QCOMPARE(connection.submit({good, bad}, &number).kind, SharingFailure::Refused);
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.parcels")), QStringLiteral("0"));
    QVERIFY_OK(connection.submit({good}, &number));
    QCOMPARE(number, 1);
}

void TestSite::silentServerIsGivenUp()
{
    SiteConnection connection;
    m_server.pause();
    const SharingFailure failure = connection.open(address(), 500);
    m_server.resume();
    QCOMPARE(failure.kind, SharingFailure::Away);
    QVERIFY_OK(connection.open(address()));
}

KO_TEST_MAIN(TestSite)
#include "tst_site.moc"
