#include "journeys/Monkey.h"
#include "support/TestMain.h"

using namespace ko;
using namespace testsupport;

/// Whatever a random user hits: all that changed is a step that can be undone, and undoing all of them brings
/// back the database as it was. KO_MONKEY_EVENTS makes it long, KO_MONKEY_SEED adds a seed.
class tst_Monkey : public QObject
{
    Q_OBJECT

private slots:
    void everythingCanBeUndone_data();
    void everythingCanBeUndone();
};

/// A seed that failed once stays here.
void tst_Monkey::everythingCanBeUndone_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::newRow("1") << quint32(1);
    QTest::newRow("2") << quint32(2);
    QTest::newRow("3") << quint32(3); // makes a remote preview and cancels
    if (const int seed = qEnvironmentVariableIntValue("KO_MONKEY_SEED"))
        QTest::newRow("as wanted") << quint32(seed);
}

void tst_Monkey::everythingCanBeUndone()
{
    QFETCH(quint32, seed);
    Desk desk;
    HostNodeDB& db = *desk.host.db();
    db.environments().setList({{"{h}", "Home"}, {"{o}", "Office"}});
    db.setActiveEnvironment("{h}");
    db.setGlobalRecordingFolderPath("/recordings");
    desk.cameras(6);
    desk.host.add(RecordingFolderType, "Archive");
    desk.host.add(ViewType, "Overview");
    desk.settle();
    const QStringList before = contentOf(db);

    UndoStack steps(db);
    Monkey monkey(desk.window, seed, eventsToSend(700));
    monkey.run();
    desk.settle();
    QVERIFY(monkey.dialogs() > 5); // else nothing was tried
    QString problem;
    QVERIFY(undoAll(db, steps, &problem) > 0);
    QCOMPARE(problem, QString());
    const QStringList after = contentOf(db);
    QCOMPARE(without(before, after).join('\n'), QString());
    QCOMPARE(without(after, before).join('\n'), QString());
}

KO_TEST_MAIN(tst_Monkey)
#include "tst_monkey.moc"
