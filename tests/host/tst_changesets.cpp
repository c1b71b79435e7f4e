#include "StoreTesting.h"
#include "database/StoredHistory.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "audit/AuditLog.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"
#include "exchange/CameraSurvey.h"
#include "inspector/NodeChangeLogEntry.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/LogEntry.h"

#include <functional>
#include <limits>
#include <random>

using namespace ko;
using namespace testsupport;

namespace {

typedef std::function<void(HostNodeDB&)> Way;

} // namespace

Q_DECLARE_METATYPE(Way)
Q_DECLARE_METATYPE(ko::Purpose)

/// Whatever is written is a change set that says who, when and what for, and can be turned round.
class TestChangeSets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyWayIsOneChangeSet_data();
    void everyWayIsOneChangeSet();
    void relationsComeBackInTheirOrder();
    void oneTurnIsOneChangeSet();
    void aCauseLastsOverTurns();
    void whatChangesNothingLeavesNone();
    void auditEntriesBelongToTheirChangeSet();
    void whatOthersChangedMeanwhileIsWhatWasBefore();
    void whatFailsToBeStoredStaysApart();
    void passwordsStaySealed();
    void anyValueComesBack();
    void manyAtRandomAndBack();
    void whatIsWithdrawnWasNeverDone();
    void onlyTheDraftIsWithdrawn();
    void removalsAreNotWithdrawn();

private:
    QString addCameraWithEverything();
    QVector<ChangeSet> newSets();
    void checkLogTellsOf(const ChangeSet& set);
    void randomChange(std::mt19937& random);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
    QString m_camera;
    QString m_folderNode;
    qint64 m_last = 0;
};

void TestChangeSets::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    m_db = openDatabase(m_file);
    m_camera = addCamera(*m_db, QLatin1String("Gate"), QLatin1String("10.0.0.1"));
    m_folderNode = addNode(*m_db, RecordingFolderType, QLatin1String("Folder"), QLatin1String("/rec"));
    m_db->addNodeRelation(m_camera, m_folderNode, RecordingFolderRelation);
    addCamera(*m_db, QLatin1String("Door"), QLatin1String("10.0.0.2"));
    QTest::qWait(1);
    QVERIFY(m_db->flush());
    m_last = m_db->history().changeSets(0, 1000).last().number;
}

void TestChangeSets::cleanup()
{
    m_db.reset();
}

/// What was stored since the last call.
QVector<ChangeSet> TestChangeSets::newSets()
{
    QTest::qWait(1); // the turn ends
    const QVector<ChangeSet> sets = m_db->history().changeSets(m_last, 1000);
    if (!sets.isEmpty())
        m_last = sets.last().number;
    return sets;
}

/// Once: by its own entries, or without any.
void TestChangeSets::checkLogTellsOf(const ChangeSet& set)
{
    const std::vector<AuditRecord> silent =
        m_db->auditLog().silentChanges(std::numeric_limits<qint64>::max(), 1);
    QVERIFY(!silent.empty());
    const AuditRecord& record = silent.front();
    QCOMPARE(record.seq == set.number, set.audit.isEmpty());
    if (!set.audit.isEmpty())
        return;
    QCOMPARE(record.user, set.cause.user);
    QCOMPARE(record.host, set.cause.station);
    QCOMPARE(record.time.toMSecsSinceEpoch(), set.cause.time);
    QVERIFY(!record.entry->title().isEmpty());
    QCOMPARE(record.entry->text().isEmpty(), set.nodes.isEmpty());
    if (!set.nodes.isEmpty()) {
        const NodeChange& first = set.nodes.first();
        QVERIFY2(record.entry->text().startsWith((first.after ? first.after : first.before)->name),
                 qPrintable(record.entry->text()));
        QCOMPARE(record.entry->text().contains(QString::number(set.nodes.size() - 1)), set.nodes.size() > 1);
    }
}

void TestChangeSets::everyWayIsOneChangeSet_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<Purpose>("purpose");
    const auto row = [](const char* name, Purpose purpose, const Way& way) {
        QTest::newRow(name) << way << purpose;
    };
    row("a property", Purpose::Edit,
        [this](HostNodeDB& db) { setText(db, m_camera, "Model", QLatin1String("new")); });
    row("a name", Purpose::Edit,
        [this](HostNodeDB& db) { setText(db, m_camera, "Name", QLatin1String("new")); });
    row("all of one", Purpose::Edit, [this](HostNodeDB& db) {
        Node* node = db.beginUpdateNode(m_camera, -1);
        node->setStringProperty(QLatin1String("Unheard"), QLatin1String(""));
        node->setFloatProperty(QLatin1String("Number"), 0.1F);
        auto* device = dynamic_cast<IPDeviceNode*>(node);
        device->setUser(QLatin1String("admin"), QLatin1String("secret"));
        device->proxy().setUseProxy(true);
        db.endUpdateNode(node);
    });
    row("two of one turn", Purpose::Edit, [this](HostNodeDB& db) {
        setText(db, m_camera, "Model", QLatin1String("new"));
        setText(db, m_folderNode, "Path", QLatin1String("/other"));
        setText(db, m_camera, "Model", QLatin1String("newer"));
    });
    row("remote preview", Purpose::Recording, [this](HostNodeDB& db) {
        Node* node = db.beginUpdateNode(m_camera, -1);
        node->setBoolProperty(QLatin1String("UseRecordingTransponder"), true);
        db.endUpdateNode(node);
    });
    row("a new node", Purpose::Add,
        [](HostNodeDB& db) { addCamera(db, QLatin1String("New"), QLatin1String("10.0.0.9")); });
    row("a camera goes", Purpose::Remove, [this](HostNodeDB& db) { db.removeNode(m_camera); });
    row("a folder goes", Purpose::Remove, [this](HostNodeDB& db) { db.removeNode(m_folderNode); });
    row("both go", Purpose::Remove, [this](HostNodeDB& db) {
        db.removeNode(m_folderNode);
        db.removeNode(m_camera);
    });
    row("a relation", Purpose::Recording,
        [this](HostNodeDB& db) { db.removeNodeRelation(m_camera, m_folderNode, RecordingFolderRelation); });
    row("settings", Purpose::Settings, [](HostNodeDB& db) {
        db.setBandwidth(3);
        db.setGlobalRecordingFolderPath(QLatin1String("/all"));
    });
    row("the global proxy", Purpose::Proxy, [](HostNodeDB& db) {
        NetworkProxy proxy;
        proxy.setProxyAddress(QLatin1String("proxy"), 3128);
        proxy.setUseProxy(true);
        db.globalProxy().assign(proxy, {QLatin1String("*.example.org")});
    });
    row("environments", Purpose::Environments, [](HostNodeDB& db) {
        Environments::List list = db.environments().getList();
        list.append({QLatin1String("{another}"), QLatin1String("Another")});
        db.environments().setList(list);
        db.setActiveEnvironment(QLatin1String("{another}"));
    });
    row("the active environment goes", Purpose::Environments,
        [](HostNodeDB& db) { db.environments().remove(db.activeEnvironment()); });
    row("an import", Purpose::Import, [this](HostNodeDB&) {
        QFile list(m_folder->filePath(QLatin1String("list.csv")));
        QVERIFY(list.open(QIODevice::WriteOnly));
        list.write("Name,Address,Model\nGate,10.0.0.1,newest\n");
        for (int i = 0; i < 300; ++i)
            list.write(QString::fromLatin1("Import %1,10.1.0.%1,\n").arg(i).toLatin1());
        list.close();
        QCOMPARE(CameraSurvey::importCameras(list.fileName()).updated, 1);
    });
    row("what a scan found", Purpose::Scan, [](HostNodeDB& db) {
        Scanners::of(db).intake().beginScan();
        QVector<DiscoveredDevice> found;
        for (int i = 0; i < 100; ++i) {
            DiscoveredDevice device;
            device.address = QString::fromLatin1("10.2.0.%1").arg(i + 1);
            device.name = QString::fromLatin1("Found %1").arg(i);
            found.append(device);
        }
        Scanners::of(db).intake().take(found);
        KO_TRY_VERIFY(Scanners::of(db).intake().isIdle());
        QCOMPARE(db.nodeIdList(IPDeviceType).size(), 102);
    });
}

void TestChangeSets::everyWayIsOneChangeSet()
{
    QFETCH(const Way, way);
    QFETCH(const Purpose, purpose);
    const QString before = stateOf(m_file);
    const qint64 time = QDateTime::currentMSecsSinceEpoch();
    way(*m_db);
    const QVector<ChangeSet> sets = newSets();
    const QString after = stateOf(m_file);
    QVERIFY(before != after);
    QCOMPARE(sets.size(), 1);
    QCOMPARE(sets.first().cause.purpose, purpose);
    QCOMPARE(sets.first().cause.user, Cause::currentUser());
    QCOMPARE(sets.first().cause.station, Cause::currentStation());
    QVERIFY(qAbs(sets.first().cause.time - time) < 60000);
    checkLogTellsOf(sets.first());
    if (QTest::currentTestFailed())
        return;

    QVERIFY(m_db->apply(sets.first().inverse()));
    const QVector<ChangeSet> back = newSets();
    QCOMPARE(back.size(), 1);
    QCOMPARE(stateOf(m_file), before);
    QVERIFY(m_db->apply(back.first().inverse()));
    newSets();
    QCOMPARE(stateOf(m_file), after);

    // Memory has become the same, too.
    const QVector<NodeSummary> seen = m_db->summaries();
    m_db = openDatabase(m_file);
    QCOMPARE(m_db->summaries(), seen);
}

/// The first one counts.
void TestChangeSets::relationsComeBackInTheirOrder()
{
    QStringList folders = {m_folderNode};
    for (const char* name : {"Second", "Third"}) {
        folders.append(addNode(*m_db, RecordingFolderType, QLatin1String(name), QLatin1String("/x")));
        m_db->addNodeRelation(m_camera, folders.last(), RecordingFolderRelation);
        newSets();
    }
    m_db->removeNodeRelation(m_camera, folders.at(1), RecordingFolderRelation);
    const QVector<ChangeSet> second = newSets();
    m_db->removeNode(m_folderNode);
    const QVector<ChangeSet> first = newSets();
    QVERIFY(m_db->apply(second.first().inverse()));
    newSets();
    QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), folders.mid(1));
    QVERIFY(m_db->apply(first.first().inverse()));
    newSets();
    QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), folders);
    m_db = openDatabase(m_file);
    QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), folders);
}

void TestChangeSets::oneTurnIsOneChangeSet()
{
    setText(*m_db, m_camera, "Model", QLatin1String("one"));
    QCOMPARE(newSets().size(), 1);
    setText(*m_db, m_camera, "Model", QLatin1String("two"));
    QVERIFY(m_db->flush()); // in the middle of the turn
    setText(*m_db, m_camera, "Model", QLatin1String("three"));
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 1);
    QCOMPARE(sets.first().nodes.size(), 2);
}

void TestChangeSets::aCauseLastsOverTurns()
{
    const Cause cause = Cause::now(Purpose::Scan);
    for (int i = 0; i < 3; ++i) {
        {
            const ChangeScope scope(*m_db, cause);
            addCamera(*m_db, QString::number(i), QString::fromLatin1("10.9.0.%1").arg(i));
        }
        setText(*m_db, m_camera, "Model", QString::number(i)); // somebody else's
        QTest::qWait(1);
    }
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 4);
    QCOMPARE(sets.first().cause.id, cause.id);
    QCOMPARE(sets.first().nodes.size(), 3);
}

void TestChangeSets::whatChangesNothingLeavesNone()
{
    const qint64 entries = m_db->auditLog().count();
    setText(*m_db, m_camera, "Name", QLatin1String("Gate"));
    m_db->addNodeRelation(m_camera, m_folderNode, RecordingFolderRelation);
    m_db->removeNode(addCamera(*m_db, QLatin1String("New"), QLatin1String("10.0.0.9")));
    setText(*m_db, m_camera, "Model", QLatin1String("one"));
    setText(*m_db, m_camera, "Model", QString());
    m_db->auditLog().log(NodeChangeLogEntry(QLatin1String("Gate")));
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 0);
    QCOMPARE(m_db->auditLog().count(), entries + 1); // which is written all the same
}

void TestChangeSets::auditEntriesBelongToTheirChangeSet()
{
    setText(*m_db, m_camera, "Model", QLatin1String("one"));
    m_db->auditLog().log(NodeChangeLogEntry(QLatin1String("Gate")));
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 1);
    QCOMPARE(sets.first().audit.size(), 1);
    QCOMPARE(FourChars(sets.first().audit.first().code), NodeChangeLogEntry(QString()).typeCode());
}

void TestChangeSets::whatOthersChangedMeanwhileIsWhatWasBefore()
{
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    setText(*m_db, m_camera, "Model", QLatin1String("mine"));
    setText(*other, m_camera, "Model", QLatin1String("theirs"));
    setText(*other, m_camera, "Version", QLatin1String("theirs"));
    QVERIFY(other->flush());
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 2);
    const NodeChange& mine = sets.last().nodes.first();
    QCOMPARE(mine.before->properties.value(QLatin1String("Model")).toString(), QLatin1String("theirs"));
    QCOMPARE(mine.after->properties.value(QLatin1String("Model")).toString(), QLatin1String("mine"));
    QCOMPARE(mine.after->properties.count(), 1);
}

void TestChangeSets::whatFailsToBeStoredStaysApart()
{
    const QString before = stateOf(m_file);
    {
        PlainSql lock(m_file);
        lock.run(QLatin1String("BEGIN IMMEDIATE"));
        setText(*m_db, m_camera, "Model", QLatin1String("one"));
        QVERIFY(!m_db->flush());
        QTest::qWait(1);
        m_db->removeNode(m_folderNode);
        const QString added = addCamera(*m_db, QLatin1String("New"), QLatin1String("10.0.0.9"));
        QTest::qWait(1);
        setText(*m_db, m_camera, "Model", QLatin1String("two"));
        m_db->removeNode(added);
        QTest::qWait(1);
        lock.run(QLatin1String("ROLLBACK"));
    }
    QVERIFY(m_db->flush());
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 3);
    QCOMPARE(sets.at(0).nodes.size(), 1);
    QCOMPARE(sets.at(1).nodes.size(), 2);
    QCOMPARE(sets.at(2).nodes.size(), 2);
    for (int i = 2; i >= 0; --i)
        QVERIFY(m_db->apply(sets.at(i).inverse()));
    newSets();
    QCOMPARE(stateOf(m_file), before);
}

void TestChangeSets::passwordsStaySealed()
{
    auto* device = dynamic_cast<IPDeviceNode*>(m_db->beginUpdateNode(m_camera, -1));
    device->setUser(QLatin1String("admin"), QLatin1String("very-secret"));
    m_db->endUpdateNode(device);
    const QVector<ChangeSet> sets = newSets();
    QVERIFY(m_db->apply(sets.first().inverse()));
    const QVector<ChangeSet> back = newSets();
    QVERIFY(m_db->apply(back.first().inverse()));
    newSets();
    QCOMPARE(m_db->node(m_camera).cast<const IPDeviceNode>()->password(0), QLatin1String("very-secret"));
    m_db.reset();
    for (const char* end : {"", "-wal"}) {
        QFile file(m_file + QLatin1String(end));
        if (file.open(QIODevice::ReadOnly))
            QVERIFY(!file.readAll().contains("very-secret"));
    }
}

/// All kinds of changes of one turn: memory and file are as before, and what is returned does it again.
void TestChangeSets::whatIsWithdrawnWasNeverDone()
{
    const QString stored = stateOf(m_file);
    const auto inMemory = [this] {
        const kom::smart<const Node> camera = m_db->node(m_camera);
        return QStringList({camera->name(), camera->stringProperty("Model", "none"),
                            m_db->relatedNodes(m_camera, RecordingFolderRelation).join(','),
                            m_db->nodeIdList(AllNodeTypes).join(','), m_db->activeEnvironment(),
                            QString::number(m_db->bandwidth()), QString::number(m_db->summaries().size())});
    };
    const QStringList before = inMemory();
    m_db->beginDraft(Cause::now(Purpose::Edit));
    setText(*m_db, m_camera, "Model", "Dome");
    setText(*m_db, m_camera, "Name", "Tower");
    const QString folder = addNode(*m_db, RecordingFolderType, QLatin1String("New"), QLatin1String("/new"));
    m_db->removeNodeRelation(m_camera, m_folderNode, RecordingFolderRelation);
    m_db->addNodeRelation(m_camera, folder, RecordingFolderRelation);
    m_db->setBandwidth(m_db->bandwidth() + 1);
    const QStringList changed = inMemory();
    QVERIFY(changed != before);

    QTest::qWait(1); // turns of the event loop store nothing
    QVERIFY(m_db->flush());
    QCOMPARE(stateOf(m_file), stored);
    const ChangeSet set = m_db->endDraft();
    QCOMPARE(inMemory(), before);
    QVERIFY(!m_db->hasUnstoredChanges());
    QVERIFY(newSets().isEmpty());
    QCOMPARE(stateOf(m_file), stored);

    QVERIFY(m_db->apply(set));
    QCOMPARE(inMemory(), changed);
    QCOMPARE(int(newSets().size()), 1);
}

/// A scan may find something meanwhile.
void TestChangeSets::onlyTheDraftIsWithdrawn()
{
    m_db->beginDraft(Cause::now(Purpose::Edit));
    setText(*m_db, m_camera, "Model", "Bullet");
    {
        const ChangeScope scan(*m_db, Cause::now(Purpose::Scan));
        setText(*m_db, m_camera, "Version", "7.1");
        StoreError error;
        QCOMPARE(m_db->runAlone([] {}, &error), StoreOutcome::NotRun);
        QCOMPARE(error.kind, StoreError::Locked);
    }
    setText(*m_db, m_camera, "User", "admin");
    const ChangeSet set = m_db->endDraft();
    QCOMPARE(int(set.nodes.size()), 2);
    QCOMPARE(set.nodes.first().after->properties.value("Model").toString(), QString("Bullet"));
    QCOMPARE(set.nodes.last().after->properties.value("User").toString(), QString("admin"));
    QCOMPARE(m_db->node(m_camera)->stringProperty("Model", QString()), QString());
    QCOMPARE(m_db->node(m_camera)->stringProperty("Version", QString()), QString("7.1"));
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(int(sets.size()), 1);
    QCOMPARE(sets.first().cause.purpose, Purpose::Scan);
}

/// What they were nobody has read.
void TestChangeSets::removalsAreNotWithdrawn()
{
    m_db->beginDraft(Cause::now(Purpose::Remove));
    m_db->removeNode(m_camera);
    QVERIFY(!m_db->endDraft().hasChanges());
    QVERIFY(m_db->node(m_camera).null());
    QCOMPARE(int(newSets().size()), 1);
}

void TestChangeSets::anyValueComesBack()
{
    QString everyUnit; // but those of surrogates, which come in pairs
    for (int unit = 1; unit < 0xD800; ++unit)
        everyUnit.append(QChar(unit));
    everyUnit.append(QString::fromUtf8("\xF0\x9F\x8E\xA5"));
    kogen::PropertySet inner;
    inner.insert(PropertyList::toProperty(everyUnit, everyUnit));
    kogen::PropertySet set;
    set.insert(PropertyList::toProperty(QLatin1String("a"), QVariant::fromValue(inner)));
    set.insert(PropertyList::toProperty(QLatin1String("b"), 0.1F));
    const float infinity = std::numeric_limits<float>::infinity();
    const QVariantList values = {everyUnit,
                                 QString::fromLatin1(""),
                                 true,
                                 false,
                                 0,
                                 std::numeric_limits<int>::min(),
                                 std::numeric_limits<int>::max(),
                                 0.1F,
                                 -1e-38F,
                                 std::numeric_limits<float>::max(),
                                 infinity,
                                 -infinity,
                                 std::numeric_limits<float>::quiet_NaN(),
                                 QVariant::fromValue(set)};
    Node* node = m_db->beginUpdateNode(m_camera, -1);
    for (int i = 0; i < values.size(); ++i)
        node->addProperty(*PropertyList::toProperty(QString::fromLatin1("\"%1\\").arg(i), values.at(i)));
    node->setStringProperty(QLatin1String("Name"), everyUnit);
    m_db->endUpdateNode(node);
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(sets.size(), 1);
    QCOMPARE(sets.constFirst().nodes.size(), 1);
    const NodeValues& after = *sets.constFirst().nodes.constFirst().after;
    QCOMPARE(after.name, everyUnit);
    for (int i = 0; i < values.size(); ++i)
        QVERIFY2(PropertyList::sameValue(after.properties.value(QString::fromLatin1("\"%1\\").arg(i)),
                                         values.at(i)),
                 qPrintable(QString::number(i)));
}

void TestChangeSets::randomChange(std::mt19937& random)
{
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    const QStringList ids = m_db->nodeIdList(AllNodeTypes);
    const QString id = ids.value(below(qMax(1, int(ids.size()))));
    const QString other = ids.value(below(qMax(1, int(ids.size()))));
    const QString word = QString::number(below(4));
    switch (below(9)) {
    case 0:
        addCamera(*m_db, word, word);
        break;
    case 1:
        addNode(*m_db, RecordingFolderType, word, word);
        break;
    case 2:
        m_db->removeNode(id);
        break;
    case 3:
        m_db->addNodeRelation(id, other, RecordingFolderRelation);
        break;
    case 4:
        m_db->removeNodeRelation(id, m_db->relatedNodes(id, RecordingFolderRelation).value(0),
                                 RecordingFolderRelation);
        break;
    case 5:
        m_db->setBandwidth(below(5));
        break;
    case 6:
        m_db->environments().setList(m_db->environments().getList()
                                     << qMakePair(QString::fromLatin1("{%1}").arg(random()), word));
        break;
    default:
        if (!id.isEmpty())
            setText(*m_db, id, below(2) ? "Name" : "Model", word);
    }
}

void TestChangeSets::manyAtRandomAndBack()
{
    std::mt19937 random(4711);
    QStringList states = {stateOf(m_file)};
    QVector<ChangeSet> sets;
    for (int i = 0; i < 300; ++i) {
        for (int changes = 1 + int(random() % 6); changes > 0; --changes)
            randomChange(random);
        const QVector<ChangeSet> stored = newSets();
        QVERIFY(stored.size() <= 1);
        if (stored.isEmpty()) {
            QCOMPARE(stateOf(m_file), states.last());
            continue;
        }
        sets += stored;
        states.append(stateOf(m_file));
    }
    QVERIFY(sets.size() > 200);
    while (!sets.isEmpty()) {
        QVERIFY(m_db->apply(sets.takeLast().inverse()));
        newSets();
        states.removeLast();
        QCOMPARE(stateOf(m_file), states.last());
    }
}

KO_TEST_MAIN(TestChangeSets)
#include "tst_changesets.moc"
