#include "StoreTesting.h"
#include "support/TestMain.h"

#include "audit/LogStore.h"
#include "database/StoredHistory.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTimer>

using namespace ko;
using namespace testsupport;

namespace {

constexpr int Many = 1000; // more than are stored before the event loop goes on

/// A camera as the test believes that it is.
struct Expected
{
    QString name;
    QString model;
    QStringList folders;
};

typedef QMap<QString, Expected> Expectation;

Expectation stateOf(const HostNodeDB& db)
{
    Expectation state;
    const QStringList ids = db.nodeIdList(IPDeviceType);
    for (const QString& id : ids)
        state.insert(
            id, {db.summary(id).name, text(db, id, "Model"), db.relatedNodes(id, RecordingFolderRelation)});
    return state;
}

bool operator==(const Expected& a, const Expected& b)
{
    return a.name == b.name && a.model == b.model && a.folders == b.folders;
}

/// The first camera of which they differ; empty if there is none.
QString differenceOf(const Expectation& a, const Expectation& b)
{
    Expectation all = a;
    for (auto it = b.begin(); it != b.end(); ++it)
        all.insert(it.key(), *it);
    for (auto it = all.begin(); it != all.end(); ++it) {
        const Expected left = a.value(it.key());
        const Expected right = b.value(it.key());
        if (!(left == right))
            return QStringList({it.key(), left.name, right.name, left.model, right.model,
                                left.folders.join(QLatin1Char(' ')), right.folders.join(QLatin1Char(' '))})
                .join(QLatin1String(" | "));
    }
    return QString();
}

} // namespace

/// A large amount is stored by another thread, while the program goes on.
class TestLargeSets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void eventLoopGoesOn();
    void fewAreStoredAtOnce();
    void changedWhileStored();
    void removedWhileStored();
    void relationsWhileStored();
    void readWhileStored();
    void oneChangeSet();
    void allOrNothingOfAScope();
    void waitedForInTheEventLoop();
    void aloneInTheEventLoop();
    void closedWhileStored();
    void discardedWhileStored();
    void anotherProgramWrites();
    void failureKeepsEverything();
    void waitsForCheck();
    void lastLinesOfLog();
    void anyOrder_data();
    void anyOrder();

private:
    QStringList addMany(int count);
    void setModels(const QStringList& ids, const QString& model);
    /// Lets the event loop turn until a thread stores.
    void begin();
    Expectation reopened();
    /// The last of \a ids cannot be stored until allowLast().
    void refuseLast(const QStringList& ids);
    void allowLast();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
    StoreError m_error;
};

void TestLargeSets::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    m_db = openDatabase(m_file);
    QVERIFY(m_db);
}

void TestLargeSets::cleanup()
{
    m_db.reset();
}

QStringList TestLargeSets::addMany(int count)
{
    QStringList ids;
    for (int i = 0; i < count; ++i)
        ids << addCamera(*m_db, QString::fromLatin1("Camera %1").arg(i),
                         QString::fromLatin1("cam-%1").arg(i));
    return ids;
}

void TestLargeSets::setModels(const QStringList& ids, const QString& model)
{
    for (const QString& id : ids)
        setText(*m_db, id, "Model", model);
}

void TestLargeSets::begin()
{
    QVERIFY(!m_db->isStoring());
    QCoreApplication::processEvents();
    QVERIFY(m_db->isStoring());
    QVERIFY(m_db->hasUnstoredChanges());
}

Expectation TestLargeSets::reopened()
{
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    return other ? stateOf(*other) : Expectation();
}

void TestLargeSets::eventLoopGoesOn()
{
    QSignalSpy storing(m_db.get(), &HostNodeDB::storing);
    QSignalSpy stored(&m_db->history(), &StoredHistory::stored);
    addMany(Many);
    begin();
    QCOMPARE(storing.count(), 1);
    QVERIFY(m_db->permilleStored() >= 0);
    QVERIFY(m_db->permilleStored() <= 1000);
    QTRY_VERIFY(!m_db->isStoring());
    QVERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(storing.count(), 2);
    QCOMPARE(stored.count(), 1);
    QCOMPARE(reopened().size(), Many);
}

void TestLargeSets::fewAreStoredAtOnce()
{
    addMany(40);
    QCoreApplication::processEvents();
    QVERIFY(!m_db->isStoring());
    QVERIFY(!m_db->hasUnstoredChanges());
}

void TestLargeSets::changedWhileStored()
{
    const QStringList ids = addMany(Many);
    begin();
    setText(*m_db, ids.first(), "Model", QLatin1String("later"));
    setText(*m_db, ids.last(), "Name", QLatin1String("Renamed"));
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(text(*m_db, ids.first(), "Model"), QLatin1String("later"));
    QVERIFY(reopened() == stateOf(*m_db));
    const ChangeSet last = *m_db->history().changeSet(m_db->history().newest());
    QCOMPARE(last.nodes.size(), 2);
    QVERIFY(last.nodes.at(0).isUpdated());
}

void TestLargeSets::removedWhileStored()
{
    const QStringList ids = addMany(Many);
    begin();
    m_db->removeNode(ids.first());
    const QString added = addCamera(*m_db, QLatin1String("new"), QLatin1String("new"));
    QCOMPARE(m_db->nodeIdList(IPDeviceType).size(), Many);
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QVERIFY(m_db->summary(ids.first()).id.isEmpty());
    QCOMPARE(m_db->nodeIdList(IPDeviceType).last(), added);
    QVERIFY(reopened() == stateOf(*m_db));
}

void TestLargeSets::relationsWhileStored()
{
    const QString folder = addNode(*m_db, RecordingFolderType, QLatin1String("Folder"), QLatin1String("/a"));
    const QString other = addNode(*m_db, RecordingFolderType, QLatin1String("Other"), QLatin1String("/b"));
    const QStringList ids = addMany(Many);
    QVERIFY(m_db->flush());
    for (const QString& id : ids)
        m_db->addNodeRelation(id, folder, RecordingFolderRelation);
    begin();
    m_db->removeNodeRelation(ids.first(), folder, RecordingFolderRelation);
    m_db->addNodeRelation(ids.first(), other, RecordingFolderRelation);
    m_db->addNodeRelation(ids.last(), other, RecordingFolderRelation);
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(m_db->relatedNodes(ids.first(), RecordingFolderRelation), QStringList(other));
    QCOMPARE(m_db->relatedNodes(ids.last(), RecordingFolderRelation), QStringList({folder, other}));
    QVERIFY(reopened() == stateOf(*m_db));
}

void TestLargeSets::readWhileStored()
{
    const QStringList ids = addMany(Many);
    setModels(ids, QLatin1String("before"));
    QVERIFY(m_db->flush());
    m_db = openDatabase(m_file); // nothing was read yet
    setModels(ids.mid(1), QLatin1String("after"));
    begin();
    QCOMPARE(text(*m_db, ids.first(), "Model"), QLatin1String("before"));
    QCOMPARE(text(*m_db, ids.last(), "Model"), QLatin1String("after"));
    int before = 0;
    int after = 0;
    m_db->column(QLatin1String("Model"), [&](const NodeID&, const QVariant& value) {
        ++(value.toString() == QLatin1String("before") ? before : after);
    });
    QCOMPARE(before, 1);
    QCOMPARE(after, Many - 1);
    QVERIFY(m_db->isStoring()); // none of this has waited
}

void TestLargeSets::oneChangeSet()
{
    const Cause cause = Cause::now(Purpose::Edit);
    const QStringList ids = addMany(Many);
    QVERIFY(m_db->flush());
    m_db->enter(cause, ScopeStoring::Meanwhile);
    setModels(ids.mid(0, 400), QLatin1String("A"));
    QCoreApplication::processEvents();
    setModels(ids.mid(400), QLatin1String("A"));
    setText(*m_db, ids.first(), "Model", QLatin1String("B"));
    m_db->leave();
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    const qint64 newest = m_db->history().newest();
    QCOMPARE(m_db->history().changeSet(newest)->cause.id, cause.id);
    QCOMPARE(m_db->history().changeSet(newest)->nodes.size(), Many + 1);
    QVERIFY(m_db->history().changeSet(newest - 1)->cause.id != cause.id);
    QCOMPARE(text(*m_db, ids.first(), "Model"), QLatin1String("B"));
    QVERIFY(reopened() == stateOf(*m_db));
}

/// However often the event loop turns before it ends.
void TestLargeSets::allOrNothingOfAScope()
{
    const QStringList ids = addMany(40);
    QVERIFY(m_db->flush());
    const Expectation before = stateOf(*m_db);
    {
        const ChangeScope outer(*m_db, Cause::now(Purpose::Edit));
        const ChangeScope scope(*m_db, Cause::now(Purpose::Edit));
        setModels(ids.mid(0, 20), QLatin1String("A"));
        QTest::qWait(50);
        QVERIFY(reopened() == before);
        setModels(ids.mid(20), QLatin1String("A"));
    }
    QVERIFY(m_db->hasUnstoredChanges());
    QCoreApplication::processEvents();
    QVERIFY(!m_db->hasUnstoredChanges());
    QVERIFY(reopened() == stateOf(*m_db));
}

/// All is stored or known not to be when the call returns; timers go on, and what is changed in one is
/// stored after it.
void TestLargeSets::waitedForInTheEventLoop()
{
    const QStringList ids = addMany(Many);
    QSignalSpy failed(m_db.get(), &HostNodeDB::storeFailed);
    int turns = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (++turns == 2)
            setText(*m_db, ids.first(), "Version", QLatin1String("meanwhile"));
    });
    timer.start(1);
    QVERIFY(m_db->flush(StoreWait::InEventLoop));
    QVERIFY(turns >= 2);
    timer.stop();
    QVERIFY(!m_db->isStoring());
    QCOMPARE(reopened().size(), Many);
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(text(*openDatabase(m_file), ids.first(), "Version"), QLatin1String("meanwhile"));
    setModels(ids, QLatin1String("ours"));
    refuseLast(ids);
    QVERIFY(!m_db->flush(StoreWait::InEventLoop));
    QCOMPARE(failed.count(), 1);
    QCOMPARE(m_db->unstoredNodes().size(), Many);
    allowLast();
    QVERIFY(m_db->flush(StoreWait::InEventLoop));
    QVERIFY(reopened() == stateOf(*m_db));
}

void TestLargeSets::aloneInTheEventLoop()
{
    const QStringList ids = addMany(Many);
    QVERIFY(m_db->flush());
    QSignalSpy failed(m_db.get(), &HostNodeDB::storeFailed);
    int turns = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&turns] { ++turns; });
    timer.start(1);
    StoreError error;
    const auto work = [&](const QString& model) {
        return m_db->runAlone([&] { setModels(ids, model); }, &error, StoreWait::InEventLoop);
    };
    QCOMPARE(work(QLatin1String("A")), StoreOutcome::Stored);
    QVERIFY(turns > 0);
    QVERIFY(reopened() == stateOf(*m_db));
    refuseLast(ids);
    QCOMPARE(work(QLatin1String("B")), StoreOutcome::NotStored);
    QVERIFY(error);
    QCOMPARE(failed.count(), 1);
    allowLast();
    QVERIFY(m_db->flush());
    QVERIFY(reopened() == stateOf(*m_db));
}

void TestLargeSets::closedWhileStored()
{
    const QStringList ids = addMany(Many);
    begin();
    setText(*m_db, ids.first(), "Model", QLatin1String("later"));
    const Expectation expected = stateOf(*m_db);
    m_db.reset();
    QVERIFY(reopened() == expected);
}

void TestLargeSets::discardedWhileStored()
{
    const QStringList ids = addMany(Many);
    begin();
    setText(*m_db, ids.first(), "Model", QLatin1String("given up"));
    m_db->discardUnstoredChanges();
    QVERIFY(!m_db->hasUnstoredChanges());
    QVERIFY(stateOf(*m_db) == reopened());
    QVERIFY(text(*m_db, ids.first(), "Model") != QLatin1String("given up"));
}

void TestLargeSets::anotherProgramWrites()
{
    const QStringList ids = addMany(Many);
    QVERIFY(m_db->flush());
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    setText(*other, ids.first(), "Version", QLatin1String("theirs"));
    QVERIFY(other->flush());
    setModels(ids, QLatin1String("ours"));
    begin();
    setText(*other, ids.last(), "Version", QLatin1String("theirs, too"));
    QVERIFY(other->flush()); // waits for the thread
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QTRY_COMPARE(text(*m_db, ids.last(), "Version"), QLatin1String("theirs, too"));
    QCOMPARE(text(*m_db, ids.first(), "Version"), QLatin1String("theirs"));
    QCOMPARE(text(*m_db, ids.first(), "Model"), QLatin1String("ours"));
    other->syncForeignChanges();
    QVERIFY(stateOf(*other) == stateOf(*m_db));
}

/// What no longer fits into an index fails late, as a full disk does.
void TestLargeSets::refuseLast(const QStringList& ids)
{
    setText(*m_db, ids.last(), "Version", QLatin1String("refused"));
    PlainSql sql(m_file);
    sql.run(QLatin1String("CREATE UNIQUE INDEX refuses ON changes(id) WHERE after LIKE '%refused%' OR"
                          " before LIKE '%nobody%'"));
    sql.run(QString::fromLatin1("INSERT INTO changes(kind, id, before) VALUES('X', '%1', 'nobody')")
                .arg(ids.last()));
}

void TestLargeSets::allowLast()
{
    PlainSql sql(m_file);
    sql.run(QLatin1String("DROP INDEX refuses"));
    sql.run(QLatin1String("DELETE FROM changes WHERE kind = 'X'"));
}

/// A statement of the thread fails.
void TestLargeSets::failureKeepsEverything()
{
    const QStringList ids = addMany(Many);
    QVERIFY(m_db->flush());
    setModels(ids, QLatin1String("ours"));
    refuseLast(ids);
    QSignalSpy failed(m_db.get(), &HostNodeDB::storeFailed);
    begin();
    setText(*m_db, ids.first(), "Version", QLatin1String("meanwhile"));
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!m_db->isStoring());
    QVERIFY(m_db->hasUnstoredChanges());
    QCOMPARE(m_db->unstoredNodes().size(), Many);
    QVERIFY(text(*openDatabase(m_file), ids.first(), "Model") != QLatin1String("ours"));
    allowLast();
    QVERIFY(m_db->flush());
    QCOMPARE(text(*m_db, ids.first(), "Version"), QLatin1String("meanwhile"));
    QVERIFY(reopened() == stateOf(*m_db));
}

/// The file is looked through while the window is open; what is changed meanwhile does not stop it.
void TestLargeSets::waitsForCheck()
{
    const QStringList ids = addMany(20000);
    QVERIFY(m_db->flush());
    StoreError error;
    QString model;
    std::unique_ptr<QSignalSpy> checked;
    m_db.reset();
    // On a busy machine the check may have ended before this has a turn.
    for (int attempt = 0; attempt < 10 && !(m_db && m_db->isStoring()); ++attempt) {
        m_db.reset();
        m_db = HostNodeDB::open(m_file, &error, HostNodeDB::Check::Behind);
        checked = std::make_unique<QSignalSpy>(m_db.get(), &HostNodeDB::checked);
        model = QString::fromLatin1("early %1").arg(attempt);
        setText(*m_db, ids.first(), "Model", model);
        QCoreApplication::processEvents();
    }
    QVERIFY(m_db->isStoring());
    QVERIFY(m_db->hasUnstoredChanges());
    QCOMPARE(m_db->permilleStored(), 0);
    QCOMPARE(checked->count(), 0);
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QVERIFY(!m_db->isStoring());
    QCOMPARE(checked->count(), 1);
    QCOMPARE(text(*openDatabase(m_file), ids.first(), "Model"), model);
}

/// While the first ones are stored, as many come as are kept at all.
void TestLargeSets::lastLinesOfLog()
{
    const auto line = [this](int number) {
        m_db->logStore().append(ProgramRow{0, number, 0, QString::number(number)});
    };
    line(0);
    addMany(Many);
    begin();
    for (int i = 1; i < 10020; ++i)
        line(i);
    QVERIFY(m_db->flush());
    const QVector<ProgramRow> rows = m_db->logStore().programRows({0, 20000, true});
    QCOMPARE(rows.size(), 10000);
    QCOMPARE(rows.first().line, QLatin1String("10019"));
    QCOMPARE(rows.last().line, QLatin1String("20"));
}

void TestLargeSets::anyOrder_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 6; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

/// Whatever is changed while whatever is stored, at the end memory and file have all of it.
void TestLargeSets::anyOrder()
{
    QFETCH(int, seed);
    QRandomGenerator random{quint32(seed)};
    const QStringList folders = {
        addNode(*m_db, RecordingFolderType, QLatin1String("A"), QLatin1String("/a")),
        addNode(*m_db, RecordingFolderType, QLatin1String("B"), QLatin1String("/b"))};
    Expectation expected;
    int storedBeside = 0;
    for (int turn = 0; turn < 30; ++turn) {
        const int count = random.bounded(3) == 0 ? 500 : random.bounded(40);
        for (int i = 0; i < count; ++i) {
            const QStringList ids = expected.keys();
            const QString id = ids.isEmpty() ? QString() : ids.at(int(random.bounded(quint32(ids.size()))));
            const QString word = QString::number(random.bounded(1000));
            switch (id.isEmpty() ? 0 : random.bounded(5)) {
            case 0:
            case 1:
                expected.insert(addCamera(*m_db, word, word + QString::number(expected.size())),
                                {word, QString(), {}});
                break;
            case 2:
                setText(*m_db, id, "Model", word);
                expected[id].model = word;
                break;
            case 3: {
                const QString folder = folders.at(random.bounded(2));
                if (expected[id].folders.removeAll(folder) > 0) {
                    m_db->removeNodeRelation(id, folder, RecordingFolderRelation);
                } else {
                    m_db->addNodeRelation(id, folder, RecordingFolderRelation);
                    expected[id].folders.append(folder);
                }
                break;
            }
            default:
                if (random.bounded(10) == 0) {
                    m_db->removeNode(id);
                    expected.remove(id);
                }
            }
        }
        QCoreApplication::processEvents();
        storedBeside += m_db->isStoring();
        if (random.bounded(6) == 0)
            QVERIFY(m_db->flush());
    }
    QVERIFY(storedBeside > 0);
    QTRY_VERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(differenceOf(stateOf(*m_db), expected), QString());
    QCOMPARE(differenceOf(reopened(), expected), QString());
}

KO_TEST_MAIN(TestLargeSets)
#include "tst_largesets.moc"
