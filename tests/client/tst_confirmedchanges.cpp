#include "ConfirmedWays.h"
#include "database/StoredHistory.h"
#include "support/TestMain.h"

using namespace ko;

/// Whatever a user confirms in a window is one change set, and taken back it leaves what was before.
class tst_ConfirmedChanges : public QObject, private testsupport::ConfirmedWays
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void everyWayIsOneChangeSet_data() { addWays(); }
    void everyWayIsOneChangeSet();

private:
    QVector<ChangeSet> newSets();

    qint64 m_last = 0;
};

void tst_ConfirmedChanges::init()
{
    openWindowForAll();
    QTest::qWait(1);
    m_last = m_host->db()->history().changeSets(0, 1000).last().number;
}

QVector<ChangeSet> tst_ConfirmedChanges::newSets()
{
    QTest::qWait(1); // the turn ends
    const QVector<ChangeSet> sets = m_host->db()->history().changeSets(m_last, 1000);
    if (!sets.isEmpty())
        m_last = sets.last().number;
    return sets;
}

void tst_ConfirmedChanges::everyWayIsOneChangeSet()
{
    QFETCH(const Purpose, purpose);
    const QString file = m_host->fileName();
    const QString before = testsupport::stateOf(file);
    QVERIFY(takeWay());
    const QVector<ChangeSet> sets = newSets();
    const QString after = testsupport::stateOf(file);
    QVERIFY(before != after);
    QCOMPARE(int(sets.size()), 1);
    const Cause cause = sets.first().cause;
    QCOMPARE(cause.purpose, purpose);
    QCOMPARE(cause.user, Cause::currentUser());
    QCOMPARE(cause.station, Cause::currentStation());

    QVERIFY(m_host->db()->apply(sets.first().inverse()));
    const QVector<ChangeSet> back = newSets();
    QCOMPARE(int(back.size()), 1);
    QCOMPARE(testsupport::stateOf(file), before);
    QVERIFY(m_host->db()->apply(back.first().inverse()));
    newSets();
    QCOMPARE(testsupport::stateOf(file), after);
}

KO_TEST_MAIN(tst_ConfirmedChanges)
#include "tst_confirmedchanges.moc"
