#include "Simulation.h"
#include "support/Soak.h"
#include "support/TestMain.h"

#include <QElapsedTimer>

using namespace testsupport;

/// Sharing with a network, a clock and a site that are simulated: one number is one run, and makes it again.
class TestSimulation : public QObject
{
    Q_OBJECT

private slots:
    void seedsThatOnceFailed_data();
    void seedsThatOnceFailed();
    void rewrittenPastIsFoundOut();
    void busyDeskGetsWhatOthersDid();
    void manySeeds();

private:
    void run(unsigned seed);

    std::map<std::string, int> m_counts;
};

namespace {

const int stepsOfARun = 150;

/// In memory where there is a file system for that: the runs are to be many.
QString placeOfRuns()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

} // namespace

void TestSimulation::run(unsigned seed)
{
    const QTemporaryDir folder(placeOfRuns() + QStringLiteral("/ko-simulation-"));
    QVERIFY2(folder.isValid(), qPrintable(folder.errorString()));
    Simulation simulation(folder.path(), seed, 2 + int(seed % 3));
    for (int i = 0; i < stepsOfARun && simulation.failure().isEmpty(); ++i)
        simulation.step();
    if (simulation.failure().isEmpty())
        simulation.settle();
    QVERIFY2(simulation.failure().isEmpty(),
             qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(simulation.failure())));
    for (const char* what : {"edit", "cut", "crash", "gone back", "compared"})
        m_counts[what] += simulation.count(what);
}

void TestSimulation::seedsThatOnceFailed_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 2461367000U, 2461367195U})
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void TestSimulation::seedsThatOnceFailed()
{
    QFETCH(const unsigned, seed);
    run(seed);
}

void TestSimulation::rewrittenPastIsFoundOut()
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const QTemporaryDir folder(placeOfRuns() + QStringLiteral("/ko-simulation-"));
        Simulation simulation(folder.path(), seed, 2 + int(seed % 3));
        for (int i = 0; i < stepsOfARun && simulation.failure().isEmpty(); ++i)
            simulation.step();
        simulation.settle();
        QVERIFY2(simulation.failure().isEmpty(), qPrintable(simulation.failure()));
        simulation.rewritePast();
        QVERIFY2(simulation.failure().isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(simulation.failure())));
    }
}

void TestSimulation::busyDeskGetsWhatOthersDid()
{
    for (unsigned seed = 1; seed <= 10; ++seed) {
        const QTemporaryDir folder(placeOfRuns() + QStringLiteral("/ko-simulation-"));
        Simulation simulation(folder.path(), seed, 2);
        for (int i = 0; i < stepsOfARun && simulation.failure().isEmpty(); ++i)
            simulation.step();
        simulation.settle();
        simulation.keepLast();
        simulation.keepBusy();
        simulation.settle();
        QVERIFY2(simulation.failure().isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(simulation.failure())));
    }
}

/// As many as there is time for, from another number each day; KO_SIMULATION_SEED begins with that one.
void TestSimulation::manySeeds()
{
    const qint64 time = soakOr(1200, 20) * 1000;
    const unsigned first = qEnvironmentVariableIsSet("KO_SIMULATION_SEED")
                               ? unsigned(qEnvironmentVariableIntValue("KO_SIMULATION_SEED"))
                               : unsigned(QDate::currentDate().toJulianDay()) * 1000;
    QElapsedTimer clock;
    clock.start();
    unsigned seed = first;
    for (; clock.elapsed() < time && !QTest::currentTestFailed(); ++seed)
        run(seed);
    qInfo("%u runs of %d steps: %d edits, %d cuts, %d crashes, %d times a site gone back, %d states compared",
          seed - first, stepsOfARun, m_counts["edit"], m_counts["cut"], m_counts["crash"],
          m_counts["gone back"], m_counts["compared"]);
    QVERIFY(m_counts["compared"] > 0 && m_counts["gone back"] > 0);
}

KO_TEST_MAIN(TestSimulation)
#include "tst_simulation.moc"
