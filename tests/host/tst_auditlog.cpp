#include "StoreTesting.h"
#include "audit/AuditLog.h"
#include "audit/GenericLogEntry.h"
#include "audit/LogStore.h"
#include "audit/ProgramLog.h"
#include "audit/ProgramLogEntry.h"
#include "ko/LogEntryFactory.h"
#include "support/TestMain.h"

#include <QSysInfo>
#include <QThread>

#include <pwd.h>
#include <unistd.h>

using namespace ko;
using namespace testsupport;

namespace {

/// An entry of two values, as the inspector's are.
class PairEntry : public LogEntry
{
public:
    explicit PairEntry(FourChars code = "Test", const QString& first = QString(),
                       const QString& second = QString())
        : m_code(code)
        , m_first("Frst", QLatin1String("first"), first)
        , m_second("Scnd", QLatin1String("second"), second)
    {
        append(m_first);
        append(m_second);
    }

    FourChars typeCode() const override { return m_code; }
    LogCategory category() const override { return LogCategoryDevices; }
    QString description() const override { return QLatin1String("From %1 to %2."); }
    QString title() const override { return QLatin1String("Pair"); }

private:
    const FourChars m_code;
    TLogValue<QString> m_first;
    TLogValue<QString> m_second;
};

LogEntry* createPair()
{
    return new PairEntry;
}

} // namespace

class TestAuditLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void isTheActionLogOfTheProcess();
    void entriesComeBack();
    void entriesShareTheTransactionOfTheChange();
    void rangesAndOrder();
    void valuesAreKeptAsTheyAre();
    void passwordsAreReplaced();
    void unknownCodesAreShown();
    void entryThatFailedIsNotLost();

    void programLinesComeBack();
    void programLinesStayOnOneLine();
    void programLinesOfOtherThreads();
    void programLogIsBounded();
    void programLinesAloneAreStoredWithinSeconds();
    void withoutTheLogLinesGoOn();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
};

void TestAuditLog::initTestCase()
{
    logEntryFactory().registerCreator("Test", createPair, QLatin1String("Pair"));
}

void TestAuditLog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.db"));
    m_db = openDatabase(m_file);
    QVERIFY(m_db);
}

void TestAuditLog::cleanup()
{
    m_db.reset();
}

void TestAuditLog::isTheActionLogOfTheProcess()
{
    QCOMPARE(ActionLog::getInstance(), static_cast<ActionLog*>(&m_db->auditLog()));
    m_db.reset();
    ActionLog::getInstance()->log(PairEntry()); // into nothing
}

void TestAuditLog::entriesComeBack()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    QCOMPARE(m_db->auditLog().count(), qint64(0));
    ActionLog::getInstance()->log(PairEntry("Test", QLatin1String("old"), QLatin1String("new")));
    QCOMPARE(m_db->auditLog().count(), qint64(1));
    m_db.reset();
    m_db = openDatabase(m_file);
    const std::vector<AuditRecord> records = m_db->auditLog().entries(0, 10, true);
    QCOMPARE(records.size(), std::size_t(1));
    const AuditRecord& record = records.front();
    QVERIFY(record.time >= before.addMSecs(-1) && record.time <= QDateTime::currentDateTimeUtc());
    QCOMPARE(record.time.timeSpec(), Qt::UTC);
    QCOMPARE(record.user, QString::fromLocal8Bit(::getpwuid(::getuid())->pw_name));
    QCOMPARE(record.host, QSysInfo::machineHostName());
    QVERIFY(record.code == FourChars("Test"));
    QVERIFY(dynamic_cast<const PairEntry*>(record.entry.get()));
    QCOMPARE(record.entry->text(), QLatin1String("From old to new."));
}

void TestAuditLog::entriesShareTheTransactionOfTheChange()
{
    PlainSql plain(m_file);
    const int version = plain.run(QLatin1String("PRAGMA data_version")).toInt();
    addCamera(*m_db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    ActionLog::getInstance()->log(PairEntry());
    ActionLog::getInstance()->log(PairEntry());
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM audit")).toInt(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(plain.run(QLatin1String("PRAGMA data_version")).toInt(), version + 1);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM audit")).toInt(), 2);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 1);
}

static QStringList firstValues(const std::vector<AuditRecord>& records)
{
    QStringList result;
    for (const AuditRecord& record : records)
        result.append(record.entry->values().first()->toString());
    return result;
}

void TestAuditLog::rangesAndOrder()
{
    for (int i = 0; i < 10; ++i)
        m_db->auditLog().log(PairEntry("Test", QString::number(i)));
    const AuditLog& log = m_db->auditLog();
    QCOMPARE(firstValues(log.entries(0, 3, true)), QStringList({"9", "8", "7"}));
    QCOMPARE(firstValues(log.entries(2, 2, true)), QStringList({"7", "6"}));
    QCOMPARE(firstValues(log.entries(0, 2, false)), QStringList({"0", "1"}));
    QCOMPARE(firstValues(log.entries(8, 100, false)), QStringList({"8", "9"}));
    QVERIFY(log.entries(10, 5, true).empty());
    QVERIFY(log.entries(0, 0, true).empty());
    QCOMPARE(log.count(), qint64(10));
}

void TestAuditLog::valuesAreKeptAsTheyAre()
{
    const QString odd = QString::fromUtf8("%1 <b>\"\\\n\xC3\xA4\xF0\x9F\x8E\xA5</b> '; DROP TABLE audit");
    m_db->auditLog().log(PairEntry("Test", odd, QString()));
    const std::vector<AuditRecord> records = m_db->auditLog().entries(0, 1, true);
    QCOMPARE(firstValues(records), QStringList(odd));
    QCOMPARE(records.front().entry->text(), QLatin1String("From ") + odd + QLatin1String(" to ."));
}

void TestAuditLog::passwordsAreReplaced()
{
    ActionLog::getInstance()->log(
        PairEntry("Test", QLatin1String("rtsp://u:s3cret@h/"), QLatin1String("Password: s3cret")));
    {
        const ProgramLog log(m_db->logStore());
        LogQt::line(LogQt::Warning, QLatin1String("Login {\"pwd\":\"s3cret\"} at http://u:s3cret@h failed"));
        QCOMPARE(log.entries(0, 1, true).front().entry->text(),
                 QLatin1String("Level 2: Login {\"pwd\":\"***\"} at http://u:***@h failed"));
    }
    QCOMPARE(m_db->auditLog().entries(0, 1, true).front().entry->text(),
             QLatin1String("From rtsp://u:***@h/ to Password: ***."));
}

void TestAuditLog::unknownCodesAreShown()
{
    m_db->auditLog().log(PairEntry("Gone", QLatin1String("50 %1"), QLatin1String("b")));
    const std::vector<AuditRecord> records = m_db->auditLog().entries(0, 1, true);
    QCOMPARE(records.size(), std::size_t(1));
    const LogEntry& entry = *records.front().entry;
    QVERIFY(dynamic_cast<const GenericLogEntry*>(&entry));
    QVERIFY(entry.typeCode() == FourChars("Gone"));
    QVERIFY(entry.title().contains(QLatin1String("Gone")));
    QVERIFY(entry.text().contains(QLatin1String("Frst: 50 %1, Scnd: b")));
}

void TestAuditLog::entryThatFailedIsNotLost()
{
    {
        PlainSql lock(m_file);
        lock.run(QLatin1String("BEGIN IMMEDIATE"));
        m_db->auditLog().log(PairEntry("Test", QLatin1String("kept")));
        QVERIFY(!m_db->flush());
        lock.run(QLatin1String("ROLLBACK"));
    }
    QCOMPARE(firstValues(m_db->auditLog().entries(0, 5, true)), QStringList(QLatin1String("kept")));
}

void TestAuditLog::programLinesComeBack()
{
    {
        const ProgramLog log(m_db->logStore());
        LogQt::line(LogQt::Warning, QString::fromUtf8("a warning \xC3\xA4 %1"));
        LogQt::line(LogQt::Debug, QLatin1String("below the level"));
        LogQt::line(LogQt::Error, QLatin1String("an error"));
    }
    m_db.reset();
    m_db = openDatabase(m_file);
    const ProgramLog log(m_db->logStore());
    QCOMPARE(log.count(), qint64(2));
    const std::vector<AuditRecord> records = log.entries(0, 10, false);
    QCOMPARE(records.size(), std::size_t(2));
    const auto* entry = dynamic_cast<const ProgramLogEntry*>(records.at(0).entry.get());
    QVERIFY(entry);
    QCOMPARE(entry->level(), int(LogQt::Warning));
    QCOMPARE(entry->line(), QString::fromUtf8("a warning \xC3\xA4 %1"));
    QVERIFY(entry->text().contains(entry->line()));
    QVERIFY(records.at(0).code == FourChars("Prog"));
    QVERIFY(logEntryFactory().create("Prog"));
    QCOMPARE(logEntryFactory().title("Prog"), QLatin1String("Program log"));
}

void TestAuditLog::programLinesStayOnOneLine()
{
    const ProgramLog log(m_db->logStore());
    LogQt::line(LogQt::Warning, QString::fromUtf8("Camera \x1b[2J\nLogin \u202e"));
    QCOMPARE(log.entries(0, 1, true).front().entry->text(),
             QString::fromUtf8("Level 2: Camera \\x1b[2J\\nLogin \\u202e"));
}

void TestAuditLog::programLinesOfOtherThreads()
{
    {
        const ProgramLog log(m_db->logStore());
        std::vector<std::unique_ptr<QThread>> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back(QThread::create([] {
                for (int i = 0; i < 50; ++i)
                    LogQt::line(LogQt::Info, QLatin1String("from a thread"));
            }));
            threads.back()->start();
        }
        for (int i = 0; i < 50; ++i)
            LogQt::line(LogQt::Info, QLatin1String("from the GUI thread"));
        for (const auto& thread : threads)
            QVERIFY(thread->wait(10000));
    }
    const ProgramLog log(m_db->logStore());
    QCOMPARE(log.count(), qint64(250));
}

void TestAuditLog::programLogIsBounded()
{
    const ProgramLog log(m_db->logStore());
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 5000; ++i)
            m_db->logStore().append(ProgramRow{0, 0, 1, QString::number(round * 5000 + i)});
        QVERIFY(m_db->flush());
    }
    QCOMPARE(log.count(), qint64(10000));
    QCOMPARE(dynamic_cast<ProgramLogEntry&>(*log.entries(0, 1, false).front().entry).line(),
             QLatin1String("5000"));
    QCOMPARE(dynamic_cast<ProgramLogEntry&>(*log.entries(0, 1, true).front().entry).line(),
             QLatin1String("14999"));
}

void TestAuditLog::programLinesAloneAreStoredWithinSeconds()
{
    const ProgramLog log(m_db->logStore());
    LogQt::line(LogQt::Info, QLatin1String("a line"));
    QVERIFY(!m_db->hasUnstoredChanges()); // nothing that the user did
    QTRY_COMPARE_WITH_TIMEOUT(PlainSql(m_file).run(QLatin1String("SELECT line FROM program_log")).toString(),
                              QLatin1String("a line"), 4000);
}

void TestAuditLog::withoutTheLogLinesGoOn()
{
    {
        const ProgramLog log(m_db->logStore());
    }
    LogQt::line(LogQt::Info, QLatin1String("to the error stream only"));
    const ProgramLog log(m_db->logStore());
    QCOMPARE(log.count(), qint64(0));
}

KO_TEST_MAIN(TestAuditLog)
#include "tst_auditlog.moc"
