#include "support/TestMain.h"

#include "ko/OncePerFrame.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using ko::OncePerFrame;

class tst_OncePerFrame : public QObject
{
    Q_OBJECT

private slots:
    void littleIsDoneAtOnce();
    void muchWaitsForTheTurn();
    void firstOfAFrameIsDoneAtOnce();
    void notMoreOftenThanAFrame_data();
    void notMostOfTheTime();
    void notMoreOftenThanAFrame();
};

void tst_OncePerFrame::littleIsDoneAtOnce()
{
    OncePerFrame frame;
    const QSignalSpy due(&frame, SIGNAL(due()));
    for (int turn = 0; turn < 5; ++turn) {
        for (int i = 0; i < 100; ++i)
            QVERIFY(frame.isNow(10));
        QCoreApplication::processEvents();
    }
    QCOMPARE(due.count(), 0);
}

void tst_OncePerFrame::muchWaitsForTheTurn()
{
    OncePerFrame frame;
    const QSignalSpy due(&frame, SIGNAL(due()));
    int atOnce = 0;
    while (frame.isNow(100))
        ++atOnce;
    QVERIFY2(atOnce >= 10 && atOnce <= 100, qPrintable(QString::number(atOnce)));
    QVERIFY(!frame.isNow(0)); // the order stays
    QCOMPARE(due.count(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(due.count(), 1);
    QVERIFY(frame.isNow(100));
}

void tst_OncePerFrame::firstOfAFrameIsDoneAtOnce()
{
    OncePerFrame frame;
    const QSignalSpy due(&frame, SIGNAL(due()));
    QVERIFY(frame.isNow(1000000));
    QVERIFY(!frame.isNow(1));
    QCoreApplication::processEvents();
    QCOMPARE(due.count(), 1);
    QTest::qWait(50);
    QVERIFY(frame.isNow(1000000));
    QCOMPARE(due.count(), 1);
}

void tst_OncePerFrame::notMostOfTheTime()
{
    OncePerFrame frame;
    int times = 0;
    QObject::connect(&frame, &OncePerFrame::due, &frame, [&times] {
        ++times;
        QTest::qSleep(30);
    });
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(500)) {
        frame.later();
        QCoreApplication::processEvents();
    }
    QVERIFY2(times >= 2 && times <= int(clock.elapsed()) / 120 + 1, qPrintable(QString::number(times)));
}

void tst_OncePerFrame::notMoreOftenThanAFrame_data()
{
    QTest::addColumn<bool>("always");
    QTest::newRow("later") << true;
    QTest::newRow("what takes long") << false;
}

void tst_OncePerFrame::notMoreOftenThanAFrame()
{
    QFETCH(bool, always);
    OncePerFrame frame;
    const QSignalSpy due(&frame, SIGNAL(due()));
    QElapsedTimer clock;
    clock.start();
    int done = 0;
    int turns = 0;
    for (; !clock.hasExpired(200); ++turns) {
        if (always)
            frame.later();
        else if (frame.isNow(5000))
            ++done;
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(due.count() > 1);
    const int most = int(clock.elapsed()) / 16 + 2;
    const QString counts = QString("%1 turns, %2 times").arg(turns).arg(done + due.count());
    QVERIFY2(done + due.count() <= most, qPrintable(counts));
    QVERIFY2(turns > 10 * most, qPrintable(counts)); // else it says nothing
}

KO_TEST_MAIN(tst_OncePerFrame)

#include "tst_onceperframe.moc"
