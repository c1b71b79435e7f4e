#include "LogTesting.h"
#include "StoreTesting.h"
#include "support/TestMain.h"

#include "audit/AuditLog.h"
#include "inspector/NodeChangeLogEntry.h"
#include "secrets/Keyring.h"
#include "store/NodeStore.h"
#include "store/SqliteStore.h"
#include "store/StoreBackup.h"
#include "store/StoreSchema.h"

#include <functional>
#include <random>

using namespace ko;
using namespace testsupport;

namespace {

const char* const tables[] = {"change_sets", "changes", "audit"};

QString kept(const QString& file, const QString& copy)
{
    QFile::remove(copy);
    return QFile::copy(file, copy) ? copy : QString();
}

} // namespace

/// Whoever alters what was logged is found out.
class tst_LogChain : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void logIsIntact();
    void twoProcessesMakeOneChain();
    void manyRowsAreSeveralLinks();
    void restoredBackupGoesOn();
    void olderLogIsTakenOver();
    void logWithoutKeyIsUnsealed();

    void attack_data();
    void attack();
    void attacksAtRandom();
    void attackIsSeenAfterMoreWasWritten();
    void rewrittenWithoutTheKey();
    void otherLog();
    void isEndedAtOnce();
    void versionThatIsNone();
    void storingGoesOn_data();
    void storingGoesOn();

private:
    LogReport report(const LogEnd& known = LogEnd()) const { return reportOf(m_file, known); }
    void write(int changes);
    bool alterAtRandom(std::mt19937& random, QString* what);
    static void useKey(const QString& file);

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_whole; ///< a database with a history, never touched
    QString m_file;  ///< a copy of it
    LogEnd m_end;    ///< of its log
};

void tst_LogChain::useKey(const QString& file)
{
    InstallationKey::Places places;
    places.keyFile = file;
    Keyring::ofInstallation().setPlaces(places);
}

void tst_LogChain::write(int changes)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    QVERIFY(db);
    QTest::qWait(1);
    for (int i = 0; i < changes; ++i) {
        const QString id =
            addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.1.0.%1").arg(i));
        db->auditLog().log(NodeChangeLogEntry(db->node(id)->name()));
        QTest::qWait(1); // a turn is a change set
        setText(*db, id, "Model", QString::fromLatin1("KS-%1").arg(i));
        if (i % 3 == 0)
            db->removeNode(id);
        QTest::qWait(1);
    }
}

void tst_LogChain::initTestCase()
{
    useKey(m_home.filePath(QLatin1String("key")));
    m_file = m_whole = m_home.filePath(QLatin1String("whole.kodb"));
    write(20);
    m_end = report().end;
    QVERIFY(m_end.link > 20);
}

void tst_LogChain::init()
{
    useKey(m_home.filePath(QLatin1String("key")));
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = kept(m_whole, m_folder->filePath(QLatin1String("nodes.kodb")));
    QVERIFY(!m_file.isEmpty());
}

void tst_LogChain::logIsIntact()
{
    const LogReport whole = report(m_end);
    QCOMPARE(texts(whole), QStringList());
    QCOMPARE(whole.older, 0);
    QCOMPARE(whole.unsealed, 0);
    qint64 rows = 0;
    PlainSql sql(m_file);
    for (const char* table : tables)
        rows +=
            sql.run(QString::fromLatin1("SELECT count(*) FROM %1").arg(QLatin1String(table))).toLongLong();
    QCOMPARE(whole.entries, rows);
    QVERIFY(rows > 100);
    write(1); // goes on
    const LogReport more = report(m_end);
    QCOMPARE(texts(more), QStringList());
    QVERIFY(more.end.link > whole.end.link);
}

void tst_LogChain::twoProcessesMakeOneChain()
{
    const std::unique_ptr<HostNodeDB> one = openDatabase(m_file);
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    for (int i = 0; i < 10; ++i) {
        for (HostNodeDB* db : {one.get(), other.get()}) {
            addCamera(*db, QString::number(i), QString::fromLatin1("10.2.0.%1").arg(i));
            QVERIFY(db->flush());
        }
    }
    QCOMPARE(texts(report(m_end)), QStringList());
}

void tst_LogChain::manyRowsAreSeveralLinks()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    const int count = 10500;
    for (int i = 0; i < count; ++i)
        addCamera(*db, QString::number(i), QString::fromLatin1("10.3.%1.%2").arg(i / 250).arg(i % 250));
    QVERIFY(db->flush());
    const LogReport many = report(m_end);
    QCOMPARE(texts(many), QStringList());
    QVERIFY(many.entries > count);
    PlainSql(m_file).run(QLatin1String("UPDATE changes SET after = '' WHERE seq = 10400"));
    QCOMPARE(texts(report()), QStringList("Line 10400 of the change sets was altered."));
}

void tst_LogChain::restoredBackupGoesOn()
{
    const QString backup = m_folder->filePath(QLatin1String("backup.kodb"));
    StoreError error;
    QVERIFY(StoreBackup::write(m_file, backup, &error));
    write(3);
    QVERIFY(StoreBackup::restore(backup, m_file, &error));
    QCOMPARE(texts(report()), QStringList());
    write(2);
    QCOMPARE(texts(report(m_end)), QStringList()); // what was known is in the backup
}

void tst_LogChain::olderLogIsTakenOver()
{
    const QString logs = std::exchange(m_file, m_folder->filePath(QLatin1String("older.kodb")));
    StoreError error;
    QVERIFY(SqliteStore::open(m_file, &error, SqliteStore::Check::First, StoreSchema::FirstChained - 1));
    {
        PlainSql sql(m_file);
        sql.run(QString::fromLatin1("ATTACH DATABASE '%1' AS logs").arg(logs));
        for (const char* table : {"change_sets", "changes", "audit"})
            sql.run(QString::fromLatin1("INSERT INTO %1 SELECT * FROM logs.%1").arg(QLatin1String(table)));
    }
    QCOMPARE(report().entries, 0); // nothing to follow
    QVERIFY(SqliteStore::open(m_file, &error));
    const LogReport migrated = report();
    QCOMPARE(texts(migrated), QStringList());
    QCOMPARE(migrated.older, migrated.entries);
    QVERIFY(migrated.entries > 100);
    PlainSql(m_file).run(QLatin1String("UPDATE audit SET user = 'nobody' WHERE seq = 7"));
    QCOMPARE(texts(report()), QStringList("Entry 7 of the audit log was altered."));
}

void tst_LogChain::logWithoutKeyIsUnsealed()
{
    Keyring::ofInstallation().setPlaces(InstallationKey::Places());
    write(1);
    useKey(m_home.filePath(QLatin1String("key")));
    QCOMPARE(texts(report(m_end)), QStringList());
    QVERIFY(report().unsealed > 0);
}

void tst_LogChain::attack_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QStringList>("found");
    const auto row = [](const char* name, const char* sql, const QStringList& found) {
        QTest::newRow(name) << QString::fromLatin1(sql) << found;
    };
    row("who", "UPDATE audit SET user = 'somebody' WHERE seq = 5", {"Entry 5 of the audit log was altered."});
    row("when", "UPDATE change_sets SET time = time + 1 WHERE seq = 9", {"Change set 9 was altered."});
    row("the kind of a value", "UPDATE change_sets SET subject = CAST(subject AS BLOB) WHERE seq = 9",
        {"Change set 9 was altered."});
    row("what", "UPDATE changes SET after = before WHERE seq = 11 AND after IS NOT before",
        {"Line 11 of the change sets was altered."});
    row("after a zero", "UPDATE audit SET data = data || char(0) || 'x' WHERE seq = 4",
        {"Entry 4 of the audit log was altered."});
    row("two", "UPDATE audit SET code = code + 1 WHERE seq IN (3, 12)",
        {"Entry 3 of the audit log was altered.", "Entry 12 of the audit log was altered."});
    row("one is gone", "DELETE FROM audit WHERE seq = 5", {"Entry 5 of the audit log is missing."});
    row("some are gone", "DELETE FROM audit WHERE seq BETWEEN 5 AND 7",
        {"Entry 5 of the audit log is missing.", "Entry 6 of the audit log is missing.",
         "Entry 7 of the audit log is missing."});
    row("the last is gone", "DELETE FROM audit WHERE seq = (SELECT max(seq) FROM audit)",
        {"Entry 20 of the audit log is missing."});
    row("one more",
        "INSERT INTO audit SELECT 21, time, user, host, code, data, change_set FROM audit WHERE seq = 2",
        {"Entry 21 of the audit log was put in by another program."});
    row("one before all",
        "INSERT INTO audit SELECT -1, time, user, host, code, data, change_set FROM audit WHERE seq = 2",
        {"Entry -1 of the audit log was put in by another program."});
    row("other order",
        "UPDATE audit SET seq = CASE seq WHEN 4 THEN -4 ELSE 4 END WHERE seq IN (4, 5);"
        "UPDATE audit SET seq = 5 WHERE seq = -4",
        {"Entry 4 of the audit log was altered.", "Entry 5 of the audit log was altered."});
    row("a hash", "UPDATE chain SET hash = zeroblob(32) WHERE seq = 6", {});
    row("a seal", "UPDATE chain SET seal = substr(seal, 1, 16) || zeroblob(32) WHERE seq = 6", {});
    row("a link is gone", "DELETE FROM chain WHERE seq = 6", {});
    row("the end",
        "DELETE FROM audit WHERE seq > 10; DELETE FROM changes WHERE seq > 25;"
        "DELETE FROM change_sets WHERE seq > 20; DELETE FROM chain WHERE audit_end > 10"
        " OR change_end > 25 OR set_end > 20",
        {});
    row("the chain", "DELETE FROM chain", {"It is not the log that was seen here before."});
}

void tst_LogChain::attack()
{
    QFETCH(QString, sql);
    QFETCH(QStringList, found);
    {
        PlainSql attacker(m_file);
        attacker.run(QLatin1String("PRAGMA foreign_keys = OFF"));
        const QStringList statements = sql.split(QLatin1Char(';'));
        for (const QString& statement : statements)
            attacker.run(statement);
    }
    const QStringList seen = texts(report(m_end));
    QVERIFY(!seen.isEmpty());
    if (!found.isEmpty())
        QCOMPARE(seen, found);
}

/// Returns whether anything was altered, and \a what is found then if that can be told.
bool tst_LogChain::alterAtRandom(std::mt19937& random, QString* what)
{
    PlainSql sql(m_file);
    sql.run(QLatin1String("PRAGMA foreign_keys = OFF"));
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    const int table = below(3);
    const QString name = QLatin1String(tables[table]);
    const qint64 last = sql.run(QString::fromLatin1("SELECT max(seq) FROM %1").arg(name)).toLongLong();
    const qint64 seq = 1 + below(int(last));
    const LogFinding::Table of = LogFinding::Table(table);
    switch (below(6)) {
    case 0: { // altered
        const QStringList columns[] = {{"id", "time", "user", "host", "purpose", "subject"},
                                       {"kind", "id", "change_set", "before", "after"},
                                       {"time", "user", "host", "code", "data", "change_set"}};
        const QString column = columns[table].at(below(int(columns[table].size())));
        const bool isNumber = column == "time" || column == "code" || column == "change_set";
        sql.run(QString::fromLatin1(isNumber ? "UPDATE %1 SET %2 = coalesce(%2, 0) + 1 WHERE seq = %3"
                                             : "UPDATE %1 SET %2 = coalesce(%2, '') || 'x' WHERE seq = %3")
                    .arg(name, column)
                    .arg(seq));
        *what = LogFinding{LogFinding::Altered, of, seq}.text();
        return true;
    }
    case 1: // gone
        sql.run(QString::fromLatin1("DELETE FROM %1 WHERE seq = %2").arg(name).arg(seq));
        *what = LogFinding{LogFinding::Missing, of, seq}.text();
        return true;
    case 2: // put in
        if (table == 0)
            sql.run(QString::fromLatin1("INSERT INTO change_sets SELECT %1, 'new', time, user, host, purpose,"
                                        " subject FROM change_sets WHERE seq = %2")
                        .arg(last + 1)
                        .arg(seq));
        else
            sql.run(QString::fromLatin1(
                        table == 1 ? "INSERT INTO changes SELECT %1, kind, id, change_set, before, after"
                                     " FROM changes WHERE seq = %2"
                                   : "INSERT INTO audit SELECT %1, time, user, host, code, data, change_set"
                                     " FROM audit WHERE seq = %2")
                        .arg(last + 1)
                        .arg(seq));
        *what = LogFinding{LogFinding::PutIn, of, last + 1}.text();
        return true;
    case 3: { // reordered
        const qint64 other = 1 + below(int(last));
        if (other == seq)
            return false;
        const QString swap = QString::fromLatin1("UPDATE %1 SET seq = %3 WHERE seq = %2").arg(name);
        sql.run(swap.arg(seq).arg(-1));
        sql.run(swap.arg(other).arg(seq));
        sql.run(swap.arg(-1).arg(other));
        *what = LogFinding{LogFinding::Altered, of, std::min(seq, other)}.text();
        return true;
    }
    case 4: // the end cut off, with its links
        sql.run(QString::fromLatin1("DELETE FROM %1 WHERE seq >= %2").arg(name).arg(seq));
        if (below(2))
            sql.run(QString::fromLatin1("DELETE FROM chain WHERE %1 >= %2")
                        .arg(QLatin1String(table == 0   ? "set_end"
                                           : table == 1 ? "change_end"
                                                        : "audit_end"))
                        .arg(seq));
        what->clear();
        return true;
    default: // the chain itself
        sql.run(QString::fromLatin1(below(2) ? "DELETE FROM chain WHERE seq = %1"
                                             : "UPDATE chain SET hash = randomblob(32) WHERE seq = %1")
                    .arg(1 + below(int(m_end.link))));
        what->clear();
        return true;
    }
}

void tst_LogChain::attacksAtRandom()
{
    std::mt19937 random(2026);
    int rounds = 0;
    while (rounds < 500) {
        QFile::remove(m_file);
        QVERIFY(QFile::copy(m_whole, m_file));
        QString what;
        if (!alterAtRandom(random, &what))
            continue;
        const QStringList seen = texts(report(m_end));
        QVERIFY2(!seen.isEmpty(), qPrintable(QString::number(rounds)));
        if (!what.isEmpty())
            QCOMPARE(seen.first(), what);
        ++rounds;
    }
}

void tst_LogChain::attackIsSeenAfterMoreWasWritten()
{
    std::mt19937 random(11);
    for (int round = 0; round < 30;) {
        QFile::remove(m_file);
        QVERIFY(QFile::copy(m_whole, m_file));
        QString what;
        if (!alterAtRandom(random, &what))
            continue;
        write(1);
        QVERIFY2(!report(m_end).findings.isEmpty(), qPrintable(QString::number(round)));
        ++round;
    }
}

/// Whoever can write the file can make the links, but with another key or none.
void tst_LogChain::rewrittenWithoutTheKey()
{
    for (const char* key : {"other key", ""}) {
        QFile::remove(m_file);
        QVERIFY(QFile::copy(m_whole, m_file));
        {
            PlainSql sql(m_file);
            sql.run(QLatin1String("UPDATE audit SET user = 'somebody' WHERE seq = 15"));
            sql.run(QLatin1String("DELETE FROM chain WHERE audit_end >= 15"));
        }
        useKey(*key ? m_folder->filePath(QLatin1String(key)) : QString());
        write(30);
        useKey(m_home.filePath(QLatin1String("key")));
        const LogReport rewritten = report(m_end);
        QVERIFY(!rewritten.findings.isEmpty());
        QCOMPARE(int(rewritten.findings.first().kind), int(LogFinding::PutIn)); // by no commit
        QVERIFY(*key || rewritten.unsealed > 0);
    }
}

void tst_LogChain::otherLog()
{
    m_file = m_folder->filePath(QLatin1String("other.kodb"));
    write(30);
    QCOMPARE(texts(report()), QStringList());
    QCOMPARE(texts(report(m_end)), QStringList("It is not the log that was seen here before."));
}

void tst_LogChain::isEndedAtOnce()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    for (int i = 0; i < 10001; ++i)
        addCamera(*db, QString::number(i), QString::fromLatin1("10.3.%1.%2").arg(i / 250).arg(i % 250));
    QVERIFY(db->flush());
    StoreError error;
    int calls = 0;
    const auto goOn = [&calls](qint64 entries) { return ++calls < 1 && entries > 0; };
    QVERIFY(!NodeStore::verifyLogs(m_file, LogEnd(), goOn, &error));
    QVERIFY(!error);
    QCOMPARE(calls, 1);
    QVERIFY(!NodeStore::verifyLogs(m_folder->filePath(QLatin1String("none")), LogEnd(), goOn, &error));
    QVERIFY(error);
}

/// In the journal, where the header of the file does not show it.
void tst_LogChain::versionThatIsNone()
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
    for (const int version : {77, -1}) {
        PlainSql(m_file).run(QString::fromLatin1("PRAGMA user_version = %1").arg(version));
        StoreError error;
        QVERIFY(!NodeStore::verifyLogs(
            m_file, LogEnd(), [](qint64) { return true; }, &error));
        QCOMPARE(int(error.kind), int(StoreError::OtherTables));
        QVERIFY(!StoreBackup::verify(m_file, &error));
        QCOMPARE(int(error.kind), int(StoreError::OtherTables));
    }
    PlainSql(m_file).run(QString::fromLatin1("PRAGMA user_version = %1").arg(StoreSchema::latest()));
}

void tst_LogChain::storingGoesOn_data()
{
    QTest::addColumn<QString>("sql");
    for (const char* sql :
         {"UPDATE sqlite_sequence SET seq = 0", "DELETE FROM sqlite_sequence",
          "UPDATE sqlite_sequence SET seq = 'x'",
          "UPDATE sqlite_sequence SET seq = 9223372036854775807 WHERE name = 'chain'",
          "UPDATE chain SET seq = 9223372036854775807 WHERE seq = 5",
          "UPDATE chain SET seq = 9007199254740991 WHERE seq = 5", "UPDATE chain SET seq = -seq",
          "UPDATE chain SET hash = 'x', checks = '', seal = 5, kind = '', sets = -9, changes = 1e300",
          "UPDATE chain SET set_end = 'x', change_end = 9223372036854775807, audit_end = x'00'"})
        QTest::newRow(sql) << QString::fromLatin1(sql);
}

/// Whatever became of the chain, what is confirmed is stored.
void tst_LogChain::storingGoesOn()
{
    QFETCH(QString, sql);
    PlainSql(m_file).run(sql);
    const auto nodes = [this] {
        return PlainSql(m_file).run(QLatin1String("SELECT count(*) FROM nodes")).toInt();
    };
    const int before = nodes();
    write(3);
    QCOMPARE(nodes(), before + 2); // of three, one goes again
    write(3);
    QCOMPARE(nodes(), before + 4);
    StoreError error;
    QVERIFY(NodeStore::verifyLogs(
        m_file, m_end, [](qint64) { return true; }, &error));
}

KO_TEST_MAIN(tst_LogChain)
#include "tst_logchain.moc"
