#include "LogTesting.h"
#include "StoreTesting.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "audit/AuditLog.h"
#include "database/StoredHistory.h"
#include "history/PuttingBack.h"
#include "inspector/NodeChangeLogEntry.h"
#include "secrets/Keyring.h"
#include "store/HistoryKeeper.h"
#include "store/LogThinning.h"
#include "store/NodeStore.h"
#include "store/SharedLog.h"
#include "store/SqliteStore.h"

#include <random>

using namespace ko;
using namespace testsupport;

namespace {

constexpr qint64 Day = qint64(24) * 60 * 60 * 1000;

} // namespace

/// Old details go, who did what stays, and whoever alters the log is found out as before.
class tst_HistoryThinning : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void detailsGoAndTheRestStays();
    void nothingToTakeOut();
    void goesOnWhereItEnded();
    void byAge();
    void bySize();
    void attack_data();
    void attack();
    void attacksAtRandom();
    void alteredBeforeIsLeft();
    void notWithoutTheKey();
    void sharedFilesKeepAll();
    void othersGoOn();
    void whatIsGoneCannotBePutBack();
    void keeperFollowsTheSettings();

private:
    LogReport report(const LogEnd& known = LogEnd()) const { return reportOf(m_file, known); }
    void writeMuch();
    LogThinning::Outcome thin(qint64 last, int steps = std::numeric_limits<int>::max());
    qint64 count(const char* what) const { return PlainSql(m_file).run(QLatin1String(what)).toLongLong(); }

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_whole; ///< a database with a history, never touched
    QString m_file;  ///< a copy of it
    LogEnd m_end;    ///< of its log
};

void tst_HistoryThinning::initTestCase()
{
    InstallationKey::Places places;
    places.keyFile = m_home.filePath(QLatin1String("key"));
    Keyring::ofInstallation().setPlaces(places);
    m_file = m_whole = m_home.filePath(QLatin1String("whole.kodb"));
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db);
    QTest::qWait(1);
    for (int i = 0; i < 20; ++i) {
        const QString id =
            addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.1.0.%1").arg(i));
        db->auditLog().log(NodeChangeLogEntry(db->node(id)->name()));
        QTest::qWait(1); // a turn is a change set
        setText(*db, id, "Model", QString::fromLatin1("KS-%1").arg(i));
        QTest::qWait(1);
    }
    QVERIFY(db->flush());
    m_end = report().end;
}

void tst_HistoryThinning::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    QVERIFY(QFile::copy(m_whole, m_file));
}

/// As NodeStore::thinHistory() does it, without a clock.
LogThinning::Outcome tst_HistoryThinning::thin(qint64 last, int steps)
{
    StoreError error;
    const std::unique_ptr<SqliteStore> store = SqliteStore::open(m_file, &error);
    const auto key = Keyring::ofInstallation().key();
    LogThinning thinning(*store, key->sealer);
    auto outcome = LogThinning::Outcome::More;
    for (int step = 0; outcome == LogThinning::Outcome::More && step < steps; ++step) {
        Transaction transaction(*store, Transaction::Write);
        outcome = thinning.thinSome(last);
        transaction.commit();
    }
    return outcome;
}

void tst_HistoryThinning::detailsGoAndTheRestStays()
{
    const qint64 sets = count("SELECT count(*) FROM change_sets");
    const qint64 audits = count("SELECT count(*) FROM audit");
    const qint64 nodes = count("SELECT count(*) FROM nodes");
    QCOMPARE(thin(20), LogThinning::Outcome::Done);
    QCOMPARE(count("SELECT count(*) FROM changes WHERE change_set <= 20"), 0);
    QVERIFY(count("SELECT count(*) FROM changes WHERE change_set > 20") > 0);
    QCOMPARE(count("SELECT count(*) FROM change_sets"), sets);
    QCOMPARE(count("SELECT count(*) FROM audit"), audits);
    QCOMPARE(count("SELECT count(*) FROM nodes"), nodes);
    const LogReport thinned = report(m_end);
    QCOMPARE(texts(thinned), QStringList());
    QCOMPARE(thinned.thinned, 20);
    QCOMPARE(thinned.end.hash, m_end.hash);
}

void tst_HistoryThinning::nothingToTakeOut()
{
    StoreError error;
    const auto thinned = NodeStore::thinHistory(
        m_file, {1, 0}, [] { return true; }, &error);
    QVERIFY(thinned);
    QCOMPARE(thinned->lines, 0);
    QCOMPARE(thinned->last, 0);
    QCOMPARE(texts(report(m_end)), QStringList());
}

/// Ended at any step, what was done is whole, and the rest follows.
void tst_HistoryThinning::goesOnWhereItEnded()
{
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        for (int i = 0; i < 30; ++i) {
            const ChangeScope scope(*db, Cause::now(Purpose::Import, "list.csv"));
            for (int j = 0; j < 300; ++j)
                addCamera(*db, QString::number(j),
                          QString("10.%1.%2.%3").arg(i + 2).arg(j / 250).arg(j % 250));
            QVERIFY(db->flush());
        }
    }
    const qint64 last = count("SELECT max(seq) FROM change_sets");
    qint64 before = count("SELECT count(*) FROM changes");
    int steps = 0;
    for (auto outcome = LogThinning::Outcome::More; outcome == LogThinning::Outcome::More; ++steps) {
        outcome = thin(last, 1);
        QCOMPARE(texts(report(m_end)), QStringList());
        const qint64 now = count("SELECT count(*) FROM changes");
        QVERIFY(now < before || outcome == LogThinning::Outcome::Done);
        QVERIFY(before - now < 3000); // others wait meanwhile
        before = now;
    }
    QVERIFY2(steps > 3, qPrintable(QString::number(steps)));
    QCOMPARE(before, 0);
    QCOMPARE(texts(report(m_end)), QStringList());
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QCOMPARE(addCamera(*db, "After", "10.9.9.9").size(), 16);
    QVERIFY(db->flush());
    QCOMPARE(texts(report(m_end)), QStringList());
}

/// What came after something that stays, stays too, whatever its station's clock says.
void tst_HistoryThinning::byAge()
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    for (const auto& [from, to, days] :
         {std::tuple(1, 10, 30), std::tuple(11, 20, 10), std::tuple(25, 26, 40)})
        PlainSql(m_file).run(QString("UPDATE change_sets SET time = %1 WHERE seq BETWEEN %2 AND %3")
                                 .arg(now - days * Day)
                                 .arg(from)
                                 .arg(to));
    StoreError error;
    const std::unique_ptr<SqliteStore> store = SqliteStore::open(m_file, &error);
    const Sealer none;
    LogThinning thinning(*store, none);
    QCOMPARE(thinning.last({60, 0}, now), 0);
    QCOMPARE(thinning.last({20, 0}, now), 10);
    QCOMPARE(thinning.last({5, 0}, now), 20);
    QCOMPARE(thinning.last({5, 0}, now + 100 * Day), count("SELECT max(seq) FROM change_sets"));
    QCOMPARE(thinning.last({0, 0}, now), 0);
}

/// Six changes of about 600,000 bytes, but for the first.
void tst_HistoryThinning::writeMuch()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const QString id = db->nodeIdList(IPDeviceType).first();
    for (int i = 0; i < 6; ++i) {
        setText(*db, id, "Model", QString(300000, QChar('a' + i)));
        QVERIFY(db->flush());
        QTest::qWait(1);
    }
}

void tst_HistoryThinning::bySize()
{
    writeMuch();
    StoreError error;
    const std::unique_ptr<SqliteStore> store = SqliteStore::open(m_file, &error);
    const Sealer none;
    LogThinning thinning(*store, none);
    const qint64 newest = count("SELECT max(seq) FROM change_sets");
    QCOMPARE(thinning.last({0, 100}, 0), 0);
    QCOMPARE(thinning.last({0, 2}, 0), newest - 3);
    QCOMPARE(thinning.last({0, 1}, 0), newest - 1);
}

void tst_HistoryThinning::attack_data()
{
    QTest::addColumn<QString>("sql");
    const auto row = [](const char* name, const char* sql) {
        QTest::newRow(name) << QString::fromLatin1(sql);
    };
    row("who", "UPDATE audit SET user = 'somebody' WHERE seq = 2");
    row("when", "UPDATE change_sets SET time = time + 1 WHERE seq = 9");
    row("one is gone", "DELETE FROM audit WHERE seq = 3");
    row("a change set is gone", "DELETE FROM change_sets WHERE seq = 4");
    row("put in where it was thinned",
        "INSERT INTO changes SELECT 3, kind, id, 3, before, after FROM changes LIMIT 1");
    row("a hash", "UPDATE chain SET hash = zeroblob(32) WHERE seq = 6");
    row("a seal", "UPDATE chain SET seal = substr(seal, 1, 16) || zeroblob(32) WHERE seq = 6");
    row("no seal", "UPDATE chain SET seal = zeroblob(0) WHERE seq = 6");
    row("a thinned link is gone", "DELETE FROM chain WHERE seq = 6");
    row("more is taken out without the key",
        "DELETE FROM changes WHERE change_set = 21;"
        "UPDATE chain SET kind = 'T', changes = 0, checks = substr(checks, 1, sets * 4)"
        " || substr(checks, (sets + changes) * 4 + 1) WHERE set_end = 21");
    row("the same without a seal",
        "DELETE FROM changes WHERE change_set = 21;"
        "UPDATE chain SET kind = 'T', changes = 0, seal = zeroblob(0), checks = substr(checks, 1, sets * 4)"
        " || substr(checks, (sets + changes) * 4 + 1) WHERE set_end = 21");
    row("all are", "DELETE FROM changes; UPDATE chain SET kind = 'T', changes = 0 WHERE kind = 'C'");
}

void tst_HistoryThinning::attack()
{
    QFETCH(QString, sql);
    thin(20);
    QCOMPARE(texts(report(m_end)), QStringList());
    {
        PlainSql attacker(m_file);
        attacker.run(QLatin1String("PRAGMA foreign_keys = OFF"));
        const QStringList statements = sql.split(QLatin1Char(';'));
        for (const QString& statement : statements)
            attacker.run(statement);
    }
    QVERIFY(!report(m_end).findings.isEmpty());
}

/// Any value of what is left, and of the chain.
void tst_HistoryThinning::attacksAtRandom()
{
    thin(20);
    const QString thinned = std::exchange(m_file, m_file + ".altered");
    const QStringList columns[] = {
        {"change_sets", "id", "time", "user", "host", "purpose", "subject"},
        {"audit", "time", "user", "host", "code", "data", "change_set"},
        {"chain", "kind", "set_end", "change_end", "audit_end", "sets", "changes", "audits", "hash", "seal"}};
    std::mt19937 random(42);
    for (int i = 0; i < 150; ++i) {
        QFile::remove(m_file);
        QVERIFY(QFile::copy(thinned, m_file));
        const QStringList& names = columns[random() % 3];
        const QString column = names.at(1 + int(random() % unsigned(names.size() - 1)));
        PlainSql sql(m_file);
        sql.run("PRAGMA foreign_keys = OFF");
        const qint64 rows = sql.run(QString("SELECT count(*) FROM %1").arg(names.first())).toLongLong();
        const QString where = QString(" WHERE seq = (SELECT seq FROM %1 ORDER BY seq LIMIT 1 OFFSET %2)")
                                  .arg(names.first())
                                  .arg(2 + int(random() % unsigned(rows - 2)));
        const QString type =
            sql.run(QString("SELECT typeof(%1) FROM %2%3").arg(column, names.first(), where)).toString();
        const QString value = type == "integer" ? column + " + 1"
                              : type == "blob"  ? QString("zeroblob(length(%1) + 1)").arg(column)
                                                : QString("coalesce(%1, '') || 'x'").arg(column);
        sql.run(QString("UPDATE %1 SET %2 = %3%4").arg(names.first(), column, value, where));
        QVERIFY2(!report(m_end).findings.isEmpty(), qPrintable(names.first() + '.' + column + where));
    }
}

/// Evidence is not destroyed.
void tst_HistoryThinning::alteredBeforeIsLeft()
{
    PlainSql(m_file).run("UPDATE changes SET after = before WHERE change_set = 11");
    const qint64 altered = count("SELECT count(*) FROM changes WHERE change_set >= 11");
    QCOMPARE(thin(20), LogThinning::Outcome::Altered);
    QCOMPARE(count("SELECT count(*) FROM changes"), altered);
    const QStringList found = texts(report(m_end));
    QVERIFY2(!found.isEmpty() && found.first().contains("altered"), qPrintable(found.join('\n')));
}

void tst_HistoryThinning::notWithoutTheKey()
{
    Keyring::ofInstallation().setPlaces(InstallationKey::Places());
    StoreError error;
    const auto thinned = NodeStore::thinHistory(
        m_file, {1, 0}, [] { return true; }, &error);
    InstallationKey::Places places;
    places.keyFile = m_home.filePath(QLatin1String("key"));
    Keyring::ofInstallation().setPlaces(places);
    QVERIFY(!thinned);
    QCOMPARE(error.kind, StoreError::KeyNotKept);
    QCOMPARE(texts(report(m_end)), QStringList());
}

/// After a site has lost something, its desks tell it again what they did.
void tst_HistoryThinning::sharedFilesKeepAll()
{
    PlainSql(m_file).run("UPDATE change_sets SET time = 1000");
    StoreError error;
    QVERIFY(SharedLog::open(
        m_file, [](const NodeData&, NodeSummary*, QString*) {}, &error));
    const qint64 before = count("SELECT count(*) FROM changes");
    const auto thinned = NodeStore::thinHistory(
        m_file, {1, 0}, [] { return true; }, &error);
    QVERIFY(thinned);
    QCOMPARE(thinned->lines, 0);
    QCOMPARE(count("SELECT count(*) FROM changes"), before);
}

/// A program that has the file open sees what is done before and after, and what it does is stored.
void tst_HistoryThinning::othersGoOn()
{
    const std::unique_ptr<HostNodeDB> here = openDatabase(m_file);
    const std::unique_ptr<HostNodeDB> there = openDatabase(m_file);
    const QString id = here->nodeIdList(IPDeviceType).first();
    setText(*there, id, "Model", "before");
    QVERIFY(there->flush()); // and is not seen here yet when the line about it goes
    thin(count("SELECT max(seq) FROM change_sets"));
    QCOMPARE(count("SELECT count(*) FROM changes"), 0);
    here->syncForeignChanges();
    QCOMPARE(here->node(id)->stringProperty("Model", QString()), QString("before"));
    setText(*here, id, "Model", "after");
    QVERIFY(here->flush());
    there->syncForeignChanges();
    QCOMPARE(there->node(id)->stringProperty("Model", QString()), QString("after"));
    QCOMPARE(texts(report(m_end)), QStringList());
}

void tst_HistoryThinning::whatIsGoneCannotBePutBack()
{
    thin(20);
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db->history().row(20)->isThinned);
    QVERIFY(!db->history().changeSet(20)->hasChanges());
    const qint64 newest = count("SELECT max(seq) FROM change_sets");
    QVERIFY(!db->history().row(newest)->isThinned);
    const HistoryPage page = db->history().page(HistoryFilter(), newest + 1, 1000);
    int thinned = 0;
    for (const ChangeSetRow& row : page.rows)
        thinned += row.isThinned ? 1 : 0;
    QCOMPARE(thinned, 21); // with the one that may have lost something
    const ChangeSet set = *db->history().changeSet(newest);
    const auto back = PuttingBack::preview(*db, Alterations::of(set));
    QVERIFY(back && !back->chosen().isEmpty());
}

void tst_HistoryThinning::keeperFollowsTheSettings()
{
    writeMuch();
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    HistoryKeeper keeper(m_file);
    QSignalSpy thinned(&keeper, &HistoryKeeper::thinned);
    QSignalSpy failed(&keeper, &HistoryKeeper::failed);
    keeper.thinNow();
    QTest::qWait(500);
    QVERIFY(thinned.isEmpty()); // nothing is asked for
    const qint64 newest = count("SELECT max(seq) FROM change_sets");
    db->history().setLimit({0, 1});
    QVERIFY(db->flush());
    QCOMPARE(db->history().limit().megabytes, 1);
    keeper.thinNow();
    KO_TRY_COMPARE(int(thinned.count()), 1);
    QCOMPARE(int(failed.count()), 0);
    QCOMPARE(count("SELECT count(*) FROM changes WHERE change_set < " + QByteArray::number(newest)), 0);
    QCOMPARE(count("SELECT count(*) FROM changes WHERE change_set >= " + QByteArray::number(newest)), 2);
    QCOMPARE(texts(report(m_end)), QStringList());
    db->history().setLimit({});
    QVERIFY(db->flush());
    QVERIFY(NodeStore::historyLimit(m_file).isNone());
}

KO_TEST_MAIN(tst_HistoryThinning)
#include "tst_historythinning.moc"
