#include "DeskTesting.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

using namespace ko;
using namespace testsupport;

/// What a desk has still to send, among all that came from its site.
class tst_WaitingRows : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void onlyOwnRowsWait();
    void asWithoutMemory();
    void longHistoryIsLookedAtOnce();

private:
    void add(int count, bool isReceived);
    QStringList waiting(SharedLog::Cursor* cursor);
    QStringList waitingAsStored(const SharedLog::Cursor& cursor);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<SharedLog> m_log;
    std::unique_ptr<PlainSql> m_sql;
};

void tst_WaitingRows::init()
{
    m_log.reset();
    m_sql.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QStringLiteral("desk.kodb"));
    openDatabase(m_file).reset();
    StoreError error;
    m_log = SharedLog::open(m_file, describe, &error);
    QVERIFY2(m_log, qPrintable(error.detail));
    m_sql = std::make_unique<PlainSql>(m_file);
    m_sql->run(QStringLiteral("DELETE FROM changes"));
    m_sql->run(
        QStringLiteral("INSERT OR IGNORE INTO change_sets (seq, id, time, user, host, purpose, subject)"
                       " VALUES (1000, 'set', 1, 'anna', 'desk', 'edit', '')"));
}

/// As others do: the log hears of it when it looks.
void tst_WaitingRows::add(int count, bool isReceived)
{
    m_sql->run(QStringLiteral("BEGIN"));
    m_sql->run(QStringLiteral("INSERT INTO changes (kind, id, change_set, before, after)"
                              " WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1)"
                              " SELECT 'S', 'key' || i, 1000, NULL, 'value' FROM n")
                   .arg(count));
    if (isReceived)
        m_sql->run(QStringLiteral("INSERT INTO shared_lines (seq, change_set, line, number)"
                                  " SELECT seq, 1000, seq, 1 FROM changes ORDER BY seq DESC LIMIT %1")
                       .arg(count));
    m_sql->run(QStringLiteral("COMMIT"));
}

QStringList tst_WaitingRows::waiting(SharedLog::Cursor* cursor)
{
    QStringList lines;
    const QVector<SharedParcel> parcels = m_log->waiting(cursor, 1000000);
    for (const SharedParcel& parcel : parcels) {
        for (const SharedLine& line : parcel.lines)
            lines.append(QString::number(line.line));
    }
    return lines;
}

QStringList tst_WaitingRows::waitingAsStored(const SharedLog::Cursor& cursor)
{
    QStringList lines;
    const auto append = [&lines](const QSqlQuery& row) { lines.append(row.value(0).toString()); };
    m_sql->forEach(qPrintable(QStringLiteral("SELECT seq FROM shared_lines WHERE number < 0"
                                             " AND (-number > %1 OR (-number = %1 AND seq > %2))"
                                             " ORDER BY -number, seq")
                                  .arg(cursor.former)
                                  .arg(cursor.row)),
                   append);
    m_sql->forEach(qPrintable(QStringLiteral("SELECT seq FROM changes WHERE change_set = 1000 AND seq > %1"
                                             " AND seq NOT IN (SELECT seq FROM shared_lines) ORDER BY seq")
                                  .arg(cursor.former == std::numeric_limits<qint64>::max() ? cursor.row : 0)),
                   append);
    return lines;
}

void tst_WaitingRows::onlyOwnRowsWait()
{
    SharedLog::Cursor sent;
    QCOMPARE(waiting(&sent).size(), 0);
    add(3, true);
    QCOMPARE(waiting(&sent).size(), 0);
    add(1, false);
    add(2, true);
    QCOMPARE(waiting(&sent).size(), 1);
    QCOMPARE(waiting(&sent).size(), 0); // it is under way
    QCOMPARE(m_log->waitingLines(), 1); // and has not arrived
    add(1, false);
    QCOMPARE(waiting(&sent).size(), 1);
    SharedLog::Cursor anew;
    QCOMPARE(waiting(&anew).size(), 2); // over another connection
    QCOMPARE(m_log->waitingLines(), 2);
}

void tst_WaitingRows::asWithoutMemory()
{
    std::mt19937 random(7);
    SharedLog::Cursor sent;
    int seen = 0;
    for (int step = 0; step < 300; ++step) {
        switch (random() % 6) {
        case 0:
        case 1:
            add(1 + int(random() % 3), false);
            break;
        case 2:
        case 3:
            add(1 + int(random() % 5), true);
            break;
        case 4: // arrives at the site
            m_sql->run(QStringLiteral("INSERT OR REPLACE INTO shared_lines (seq, change_set, line, number)"
                                      " SELECT seq, 1000, seq, %1 FROM changes WHERE change_set = 1000"
                                      " AND seq NOT IN (SELECT seq FROM shared_lines) ORDER BY seq LIMIT 2")
                           .arg(step + 2));
            break;
        default:
            if (random() % 4 == 0) {
                m_log->goBack(step / 2); // the site lost what came after
                sent = SharedLog::Cursor();
            }
            break;
        }
        const QStringList expected = waitingAsStored(sent);
        SharedLog::Cursor cursor = sent;
        QCOMPARE(waiting(&cursor), expected);
        QCOMPARE(m_log->waitingLines(), qint64(waitingAsStored(SharedLog::Cursor()).size()));
        seen += int(expected.size());
        if (random() % 2)
            sent = cursor;
    }
    QVERIFY(seen > 100);
}

void tst_WaitingRows::longHistoryIsLookedAtOnce()
{
    add(200000, true);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(m_log->waitingLines(), 0);
    const qint64 first = clock.nsecsElapsed();
    clock.start();
    for (int i = 0; i < 50; ++i) {
        add(1, true);
        SharedLog::Cursor cursor;
        QCOMPARE(waiting(&cursor).size(), 0);
        QCOMPARE(m_log->waitingLines(), 0);
    }
    const qint64 later = clock.nsecsElapsed() / 50;
    qInfo("200,000 rows looked at in %.1f ms; one more in %.2f ms", double(first) / 1e6, double(later) / 1e6);
    QVERIFY(later < first / 2);
}

KO_TEST_MAIN(tst_WaitingRows)
#include "tst_waitingrows.moc"
