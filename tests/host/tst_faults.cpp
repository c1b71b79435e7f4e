#include "Workloads.h"
#include "ko/Environments.h"
#include "support/FaultyVfs.h"
#include "support/TestMain.h"

using namespace ko;
using namespace testsupport;

namespace {

/// What opening a database and working on it came to.
struct Outcome
{
    bool opened = false;
    bool confirmed = false;
    QString message; ///< the last of those that were shown
};

/// Opens the database and does step 1 while the disk fails at some time.
Outcome attempt(const QString& file, Workload* workload, bool triesAgain)
{
    Outcome outcome;
    StoreError error;
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error);
    outcome.opened = bool(db);
    outcome.message = error.message;
    if (!db)
        return outcome;
    bool readable = true;
    const auto show = [&outcome](const StoreError& shown) { outcome.message = shown.message; };
    QObject::connect(db.get(), &HostNodeDB::storeFailed, show);
    QObject::connect(db.get(), &HostNodeDB::storeDamaged, show);
    QObject::connect(db.get(), &HostNodeDB::storeDamaged, [&readable] { readable = false; });
    const bool done = !workload || workload->step(*db, 1);
    if (!done)
        outcome.message = workload->complaint;
    const bool stored = db->flush() || (triesAgain && db->flush());
    QCoreApplication::processEvents(); // says what could not be read
    outcome.confirmed = done && stored && readable;
    return outcome;
}

} // namespace

/// A disk that fails at every possible place: each time there is a message or the work is done, and the
/// database is sound.
class tst_Faults : public QObject
{
    Q_OBJECT

private slots:
    void work_data();
    void work();
    void migration_data();
    void migration();
    void firstStart_data();
    void firstStart();

private:
    static void addFaults(const QStringList& workloads);
    FaultyVfs m_disk;
};

void tst_Faults::addFaults(const QStringList& workloads)
{
    QTest::addColumn<QString>("workload");
    QTest::addColumn<int>("fault");
    for (const QString& workload : workloads) {
        for (int fault = 0; fault < FaultyVfs::FaultCount; ++fault)
            QTest::addRow("%s, %s", qPrintable(workload), FaultyVfs::name(FaultyVfs::Fault(fault)))
                << workload << fault;
    }
}

void tst_Faults::work_data()
{
    addFaults({QLatin1String("edits"), QLatin1String("imports"), QLatin1String("mass assignments"),
               QLatin1String("put-backs")});
}

void tst_Faults::work()
{
    QFETCH(QString, workload);
    QFETCH(int, fault);
    const auto kind = FaultyVfs::Fault(fault);
    const std::unique_ptr<Workload> work = makeWorkload(workload);
    const QTemporaryDir folder;
    const QString original = folder.filePath(QLatin1String("original.db"));
    work->prepare(*openDatabase(original));
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    int confirmed = 0;
    int n = 0;
    bool hit = true;
    while (hit) {
        ++n;
        QVERIFY(QFile::copy(original, file));
        m_disk.failAt(kind, n);
        const Outcome outcome = attempt(file, work.get(), FaultyVfs::passes(kind));
        hit = m_disk.stop();
        confirmed += outcome.confirmed ? 1 : 0;
        const QByteArray place = QByteArray::number(n);
        QVERIFY2(outcome.confirmed || !outcome.message.isEmpty(), place);
        QVERIFY2(outcome.confirmed || hit, place);
        QVERIFY2(isSound(file), place);
        const std::unique_ptr<HostNodeDB> db = openDatabase(file);
        QVERIFY2(db, place);
        const Stored stored = work->stored(*db);
        QVERIFY2(stored.least >= (outcome.confirmed ? 1 : 0) && stored.most <= 1, place);
        // What cannot be read is passed over, camera by camera.
        QVERIFY2(stored.least == stored.most || !work->isOneTurn() || kind == FaultyVfs::ReadFails, place);
        removeDatabase(file);
    }
    QVERIFY(n > 1);
    qInfo("%d places, work confirmed at %d of them", n - 1, confirmed - 1);
}

void tst_Faults::migration_data()
{
    addFaults({QLatin1String("migration")});
}

void tst_Faults::migration()
{
    QFETCH(int, fault);
    const int cameras = 200;
    const QTemporaryDir folder;
    const QString original = folder.filePath(QLatin1String("original.db"));
    makeOldDatabase(original, cameras);
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    int n = 0;
    bool hit = true;
    while (hit) {
        ++n;
        QVERIFY(QFile::copy(original, file));
        m_disk.failAt(FaultyVfs::Fault(fault), n);
        const Outcome outcome = attempt(file, nullptr, false);
        hit = m_disk.stop();
        const QByteArray place = QByteArray::number(n);
        QVERIFY2(outcome.opened ? outcome.confirmed : hit && !outcome.message.isEmpty(), place);
        QVERIFY2(isSound(file), place);
        const int version = wholeVersion(file, cameras);
        QVERIFY2(version == StoreSchema::latest() || (version == 1 && !outcome.opened), place);
        const std::unique_ptr<HostNodeDB> db = openDatabase(file);
        QVERIFY2(db && db->summaries().size() == cameras, place);
        QCOMPARE(wholeVersion(file, cameras), StoreSchema::latest());
        removeDatabase(file);
    }
    QVERIFY(n > 1);
    qInfo("%d places", n - 1);
}

void tst_Faults::firstStart_data()
{
    addFaults({QLatin1String("first start")});
}

void tst_Faults::firstStart()
{
    QFETCH(int, fault);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    int n = 0;
    bool hit = true;
    while (hit) {
        ++n;
        m_disk.failAt(FaultyVfs::Fault(fault), n);
        const Outcome outcome = attempt(file, nullptr, false);
        hit = m_disk.stop();
        const QByteArray place = QByteArray::number(n);
        QVERIFY2(outcome.opened || (hit && !outcome.message.isEmpty()), place);
        const std::unique_ptr<HostNodeDB> db = openDatabase(file);
        QVERIFY2(db && db->summaries().isEmpty() && db->environments().getList().size() == 1, place);
        QVERIFY2(isSound(file), place);
        removeDatabase(file);
    }
    QVERIFY(n > 1);
    qInfo("%d places", n - 1);
}

KO_TEST_MAIN(tst_Faults)
#include "tst_faults.moc"
