#include "DeskTesting.h"
#include "sharing/SharingWorker.h"
#include "sharing/SiteCopy.h"
#include "sharing/SiteVerification.h"
#include "store/NodeStore.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include <algorithm>

using namespace ko;
using namespace testsupport;

/// A new desk of a site that has a history.
class tst_FirstCopy : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void hasAllThatOthersHave();
    void endedAndBegunAgain();
    void goesOnAsAnyOther();

private:
    std::unique_ptr<SharingWorker> share(const QString& file);
    void waitUntilUpToDate(const QString& file);
    void check(const QString& file);
    QString newCopy();

    PostgresServer m_server;
    QTemporaryDir m_folder;
    QString m_first; ///< the file of the desk that made everything
    SharingState m_state;
    int m_count = 0;
};

void tst_FirstCopy::initTestCase()
{
    QVERIFY2(m_server.start() && m_server.createDatabase(QStringLiteral("site")),
             qPrintable(m_server.error()));
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(QStringLiteral("site"))) && !connection.prepareSite());
    m_first = m_folder.filePath(QStringLiteral("first.kodb"));
    const auto db = openDatabase(m_first);
    std::mt19937 random(6);
    for (int i = 0; i < 400; ++i) {
        randomEdit(*db, random);
        QTest::qWait(0); // the turn ends
    }
    waitUntilUpToDate(m_first);
}

std::unique_ptr<SharingWorker> tst_FirstCopy::share(const QString& file)
{
    m_state = SharingState();
    auto worker = std::make_unique<SharingWorker>(file, m_server.address(QStringLiteral("site")), describe);
    connect(worker.get(), &SharingWorker::stateChanged, this,
            [this](const SharingState& now) { m_state = now; });
    return worker;
}

void tst_FirstCopy::waitUntilUpToDate(const QString& file)
{
    const auto worker = share(file);
    KO_TRY_COMPARE(int(m_state.kind), int(SharingState::UpToDate));
}

/// An empty file for a copy.
QString tst_FirstCopy::newCopy()
{
    SiteConnection connection;
    SiteGreeting greeting;
    StoreError error;
    const QString file = m_folder.filePath(QStringLiteral("copy%1.kodb").arg(++m_count));
    const bool isMade = !connection.open(m_server.address(QStringLiteral("site"))) &&
                        !connection.greet(&greeting) && SiteCopy::prepare(file, greeting.site, &error);
    return isMade ? file : QString();
}

void tst_FirstCopy::check(const QString& file)
{
    QCOMPARE(deskState(file), deskState(m_first));
    QStringList here = changeSetsOf(file);
    QStringList there = changeSetsOf(m_first);
    std::sort(here.begin(), here.end());
    std::sort(there.begin(), there.end());
    QCOMPARE(here, there);
    StoreError error;
    const std::optional<LogReport> report = NodeStore::verifyLogs(
        file, LogEnd(), [](qint64) { return true; }, &error);
    QVERIFY2(report && report->findings.isEmpty(),
             qPrintable(report ? report->findings.value(0).text() : error.detail));
    const auto log = SharedLog::open(file, describe, &error);
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(QStringLiteral("site"))));
    SiteVerification verification(*log, connection, [](qint64) { return true; });
    QCOMPARE(int(verification.run()), int(SiteVerification::Verdict::Same));
}

void tst_FirstCopy::hasAllThatOthersHave()
{
    const QString file = newCopy();
    QVERIFY(!file.isEmpty());
    waitUntilUpToDate(file);
    check(file);
}

/// At any moment: there is nothing of it then, or everything.
void tst_FirstCopy::endedAndBegunAgain()
{
    int ended = 0;
    for (int ms = 0; ms < 60; ms += 3) {
        const QString file = newCopy();
        QVERIFY(!file.isEmpty());
        {
            const auto worker = share(file);
            QTest::qWait(ms);
        }
        StoreError error;
        const auto log = SharedLog::open(file, describe, &error);
        QVERIFY(log->isEmpty() == (log->position() == 0));
        ended += log->isEmpty() ? 1 : 0;
        waitUntilUpToDate(file);
        QCOMPARE(deskState(file), deskState(m_first));
    }
    QVERIFY(ended > 0);
}

void tst_FirstCopy::goesOnAsAnyOther()
{
    const QString file = newCopy();
    waitUntilUpToDate(file);
    std::mt19937 random(7);
    for (const QString& each : {file, m_first, file}) {
        waitUntilUpToDate(each); // what is not done for want of a node is in the history of its desk alone
        const auto db = openDatabase(each);
        for (int i = 0; i < 30; ++i) {
            randomEdit(*db, random);
            QTest::qWait(0);
        }
        waitUntilUpToDate(each);
    }
    waitUntilUpToDate(m_first);
    check(file);
}

KO_TEST_MAIN(tst_FirstCopy)
#include "tst_firstcopy.moc"
