#include "HistoryModel.h"
#include "support/Soak.h"
#include "support/TestMain.h"

#include "audit/AuditLog.h"
#include "audit/ChangeSetTitle.h"
#include "database/StoredHistory.h"
#include "devices/KnownDevice.h"
#include "history/LaterChanges.h"
#include "history/Moment.h"
#include "history/PuttingBack.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/LogEntry.h"
#include "ko/PropertyKeys.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <random>

using namespace ko;
using namespace testsupport;

namespace {

QString nameOf(const Alteration& what)
{
    switch (what.kind) {
    case Alteration::Node:
        return what.node;
    case Alteration::Name:
        return what.node + ".Name";
    case Alteration::RelationTo:
        return HistoryModel::nameOf({what.relation.source, what.relation.destination, what.relation.type});
    case Alteration::EnvironmentList:
        return "environments";
    default:
        return what.node + '.' + what.key;
    }
}

QString joined(const std::set<QString>& names)
{
    return QStringList(names.begin(), names.end()).join('\n');
}

PutBackLine::State onlyState(const PutBack& putBack)
{
    if (putBack.lines.size() != 1)
        qFatal("%d lines instead of one", int(putBack.lines.size()));
    return putBack.lines.first().state;
}

QStringList without(QStringList all, const QStringList& others)
{
    for (const QString& other : others)
        all.removeOne(other);
    return all;
}

/// What a window of a moment shows: a line for each node, and for each of its properties and relations.
QStringList contentOf(HostNodeDB& db)
{
    QStringList lines;
    const QVector<NodeSummary> nodes = db.summaries();
    for (const NodeSummary& node : nodes) {
        lines.append(QStringList({node.id, QString::number(node.type), node.name, node.location,
                                  QString::number(node.recordingUsage)})
                         .join(' '));
        const PresentState state = *db.history().present({{node.id}, {}, {node.id}, {}});
        for (const PropertyList::Entry& entry : state.nodes.value(node.id).properties)
            lines.append(node.id + '.' + entry.name + '=' + entry.value.toString());
        for (const Relation& relation : state.relations)
            lines.append(node.id + "->" + relation.destination + QString::number(relation.type));
    }
    lines.sort();
    return lines;
}

/// The same for one moment, then or now.
QStringList contentOf(HostNodeDB& db, qint64 changeSet, bool then)
{
    LaterChanges later(db.history(), changeSet);
    while (later.readSome(7)) {
    }
    const PresentState present = *db.history().present(Alterations::wanted(later.all()));
    const Moment moment(later.all(), present, db.summaries());
    if (moment.unknown != 0)
        qFatal("%d things are not known", moment.unknown);
    QStringList lines;
    for (const MomentNode& shown : moment.nodes) {
        const NodeSummary& node = shown.node;
        const QVector<Alteration> details =
            Moment::detailsOf(node.id, later.all(), *db.history().present({{node.id}, {}, {node.id}, {}}));
        bool isSame = true;
        for (const Alteration& detail : details) {
            isSame = isSame && Alterations::isSame(detail.before, detail.after);
            const QVariant& value = then ? detail.before : detail.after;
            if (detail.kind == Alteration::Property && value.isValid())
                lines.append(node.id + '.' + detail.key + '=' + value.toString());
            else if (detail.kind == Alteration::RelationTo && value.isValid())
                lines.append(node.id + "->" + detail.relation.destination +
                             QString::number(detail.relation.type));
        }
        if (isSame != (shown.difference == MomentNode::Same))
            qFatal("%s is marked wrongly", qPrintable(node.name));
        if (then && shown.difference != MomentNode::Added)
            lines.append(QStringList({node.id, QString::number(node.type), node.name, node.location,
                                      QString::number(node.recordingUsage)})
                             .join(' '));
    }
    lines.sort();
    return lines;
}

} // namespace

/// What was changed can be put back, as far as nobody changed it since.
class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void removedCameraComesBackWhole();
    void entriesOfTheAuditLog();
    void whatWasChangedSinceStays();
    void changedBetweenPreviewAndOk();
    void leftOutLines();
    void oneThingInSeveralSets();
    void addedNodeInUseStays();
    void addedNodeThatWasCheckedGoes();
    void partsOfWhatWasRemoved();
    void redoIsAnUndoOfAnUndo();
    void extensionThatIsTakenMeanwhile();
    void passwordsComeBackSealed();
    void otherProcessCanPutBack();
    void titles();
    void anyMomentComesBack();
    void anyMomentCanBeSeen();
    void valuesThatChangeOftenAreOneChange();
    void manyInRandomOrder();

private:
    QVector<ChangeSet> newSets();
    PutBack preview(const QVector<ChangeSet>& sets);
    PuttingBack::Outcome putBack(const QVector<ChangeSet>& sets);
    QStringList newEntries();
    void randomChange(HostNodeDB& db, std::mt19937& random);
    void changeByTwo(std::mt19937& random, int rounds, const std::function<void()>& remember);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
    QString m_camera;
    QString m_folderNode;
    qint64 m_last = 0;
    qint64 m_entries = 0;
};

void TestHistory::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    m_db = openDatabase(m_file);
    m_camera = addCamera(*m_db, "Gate", "10.0.0.1");
    m_folderNode = addNode(*m_db, RecordingFolderType, "Folder", "/rec");
    m_db->addNodeRelation(m_camera, m_folderNode, RecordingFolderRelation);
    addCamera(*m_db, "Door", "10.0.0.2");
    QTest::qWait(1);
    QVERIFY(m_db->flush());
    m_last = m_db->history().changeSets(0, 1000).last().number;
    m_entries = m_db->auditLog().count();
}

void TestHistory::cleanup()
{
    m_db.reset();
}

/// What was stored since the last call.
QVector<ChangeSet> TestHistory::newSets()
{
    QTest::qWait(1); // the turn ends
    const QVector<ChangeSet> sets = m_db->history().changeSets(m_last, 1000);
    if (!sets.isEmpty())
        m_last = sets.last().number;
    return sets;
}

PutBack TestHistory::preview(const QVector<ChangeSet>& sets)
{
    QVector<Alteration> alterations;
    for (const ChangeSet& set : sets)
        alterations += Alterations::of(set);
    return *PuttingBack::preview(*m_db, alterations);
}

PuttingBack::Outcome TestHistory::putBack(const QVector<ChangeSet>& sets)
{
    QVector<Cause> causes;
    for (const ChangeSet& set : sets)
        causes.append(set.cause);
    return PuttingBack::apply(*m_db, preview(sets), Cause::undoing(causes));
}

QStringList TestHistory::newEntries()
{
    QStringList texts;
    const qint64 count = m_db->auditLog().count();
    const auto records = m_db->auditLog().entries(m_entries, count - m_entries, false);
    for (const AuditRecord& record : records)
        texts.append(record.code.toString() + ' ' + record.entry->text());
    m_entries = count;
    return texts;
}

void TestHistory::removedCameraComesBackWhole()
{
    auto* device = dynamic_cast<IPDeviceNode*>(m_db->beginUpdateNode(m_camera, -1));
    device->setUser("admin", "secret");
    device->setBoolProperty("UseRecordingTransponder", true);
    m_db->endUpdateNode(device); // which makes a remote preview
    newSets();
    const QString before = stateOf(m_file);
    const QStringList order = m_db->nodeIdList(AllNodeTypes);
    m_db->removeNode(m_camera);
    const QVector<ChangeSet> removal = newSets();
    QCOMPARE(removal.size(), 1);
    QCOMPARE(preview(removal).lines.size(), 2);

    const PuttingBack::Outcome outcome = putBack(removal);
    QCOMPARE(outcome.stored, StoreOutcome::Stored);
    QVERIFY(outcome.refused.isEmpty());
    QCOMPARE(stateOf(m_file), before);
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), order);
    QCOMPARE(m_db->node(m_camera).cast<const IPDeviceNode>()->password(0), QString("secret"));
    QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), QStringList(m_folderNode));
    const QVector<ChangeSet> back = newSets();
    QCOMPARE(back.size(), 1);
    QCOMPARE(back.first().cause.purpose, Purpose::Undo);
    const QVector<PutBackLine> lines = preview(removal).lines;
    QVERIFY(!lines.isEmpty());
    for (const PutBackLine& line : lines)
        QCOMPARE(line.state, PutBackLine::AsBefore);
}

void TestHistory::entriesOfTheAuditLog()
{
    setText(*m_db, m_camera, "Name", "Main gate");
    const QVector<ChangeSet> renamed = newSets();
    setText(*m_db, m_camera, "Model", "new");
    const QVector<ChangeSet> edited = newSets();
    m_db->removeNode(m_folderNode);
    const QVector<ChangeSet> removed = newSets();
    addCamera(*m_db, "New", "10.0.0.9");
    const QVector<ChangeSet> added = newSets();
    m_db->setBandwidth(3);
    const QVector<ChangeSet> setting = newSets();
    newEntries();
    const auto entriesOf = [this](const QVector<ChangeSet>& sets) {
        putBack(sets);
        const QVector<ChangeSet> back = newSets();
        return back.size() == 1 && back.first().audit.size() == m_db->auditLog().count() - m_entries
                   ? newEntries()
                   : QStringList("not of the change set");
    };
    QCOMPARE(entriesOf(renamed), QStringList({"NRen Changed name of device from Main gate to Gate.",
                                              "NChg Changed properties of device with name Gate."}));
    QCOMPARE(entriesOf(edited), QStringList("NChg Changed properties of device with name Gate."));
    QCOMPARE(entriesOf(removed), QStringList({"NAdd Added device with name Folder.",
                                              "NChg Changed properties of device with name Gate."}));
    QCOMPARE(entriesOf(added), QStringList("NRem Removed device with name New."));
    QCOMPARE(entriesOf(setting), QStringList());
    QCOMPARE(m_db->bandwidth(), int(FastLocal));
}

void TestHistory::whatWasChangedSinceStays()
{
    setText(*m_db, m_camera, "Model", "one");
    const QVector<ChangeSet> first = newSets();
    setText(*m_db, m_camera, "Model", "two");
    newSets();
    const QString state = stateOf(m_file);
    const PutBack shown = preview(first);
    QCOMPARE(onlyState(shown), PutBackLine::Changed);
    QCOMPARE(shown.lines.first().now.toString(), QString("two"));
    QCOMPARE(shown.lines.first().what.before.toString(), QString());
    QCOMPARE(shown.lines.first().what.after.toString(), QString("one"));
    QVERIFY(putBack(first).done.isEmpty());
    QVERIFY(newSets().isEmpty());
    QCOMPARE(stateOf(m_file), state);
    m_db->removeNode(m_camera);
    newSets();
    QCOMPARE(onlyState(preview(first)), PutBackLine::Removed);
}

void TestHistory::changedBetweenPreviewAndOk()
{
    const QStringList cameras = m_db->nodeIdList(IPDeviceType);
    for (const QString& id : cameras)
        setText(*m_db, id, "Model", "wrong");
    const QVector<ChangeSet> sets = newSets();
    const QString added = addCamera(*m_db, "New", "10.0.0.9");
    const QVector<ChangeSet> addition = newSets();
    const PutBack shown = preview(sets + addition);
    QCOMPARE(shown.chosen().size(), 3);

    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    setText(*other, m_camera, "Model", "theirs");
    setText(*other, added, "Model", "theirs");
    QVERIFY(other->flush());

    const PuttingBack::Outcome outcome = PuttingBack::apply(*m_db, shown, Cause::undoing({}));
    QCOMPARE(outcome.stored, StoreOutcome::Stored);
    QCOMPARE(outcome.done.size(), 1);
    QCOMPARE(outcome.refused.size(), 2);
    std::set<QString> refused;
    for (const PutBackLine& line : outcome.refused) {
        QCOMPARE(line.state, PutBackLine::Changed);
        refused.insert(nameOf(line.what));
    }
    QCOMPARE(joined(refused), joined({added, m_camera + ".Model"}));
    QCOMPARE(text(*m_db, m_camera, "Model"), QString("theirs"));
    QCOMPARE(text(*m_db, added, "Model"), QString("theirs"));
    QCOMPARE(text(*m_db, cameras.last(), "Model"), QString());
}

void TestHistory::leftOutLines()
{
    setText(*m_db, m_camera, "Model", "one");
    setText(*m_db, m_camera, "Version", "one");
    m_db->setBandwidth(2);
    const QVector<ChangeSet> sets = newSets();
    PutBack shown = preview(sets);
    QCOMPARE(shown.lines.size(), 3);
    for (PutBackLine& line : shown.lines)
        line.isTicked = line.what.key == "Version";
    QCOMPARE(PuttingBack::apply(*m_db, shown, Cause::undoing({sets.first().cause})).done.size(), 1);
    QCOMPARE(text(*m_db, m_camera, "Model"), QString("one"));
    QCOMPARE(text(*m_db, m_camera, "Version"), QString());
    QCOMPARE(m_db->bandwidth(), 2);
}

/// Together they lead back to what was before the first of them; a change by somebody else between them
/// stays, and with it what was before.
void TestHistory::oneThingInSeveralSets()
{
    QVector<ChangeSet> sets;
    for (const char* model : {"one", "two", "three"}) {
        setText(*m_db, m_camera, "Model", model);
        sets += newSets();
    }
    const PutBack all = preview(sets);
    QCOMPARE(onlyState(all), PutBackLine::Possible);
    QCOMPARE(all.lines.first().now.toString(), QString("three"));
    QCOMPARE(all.lines.first().what.before.toString(), QString());

    const PutBack some = preview({sets.at(0), sets.at(2)});
    QCOMPARE(some.lines.size(), 2);
    QCOMPARE(some.lines.first().state, PutBackLine::Possible);
    QCOMPARE(some.lines.first().what.before.toString(), QString("two"));
    QCOMPARE(some.lines.last().state, PutBackLine::Changed);
    PuttingBack::apply(*m_db, some, Cause::undoing({}));
    QCOMPARE(text(*m_db, m_camera, "Model"), QString("two"));
}

void TestHistory::addedNodeInUseStays()
{
    const QString folder = addNode(*m_db, RecordingFolderType, "New", "/new");
    const QString camera = addCamera(*m_db, "New camera", "10.0.0.8");
    m_db->addNodeRelation(camera, folder, RecordingFolderRelation);
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(preview(sets).chosen().size(), 2); // the relation goes with them
    m_db->addNodeRelation(m_camera, folder, RecordingFolderRelation);
    newSets();
    const PutBack shown = preview(sets);
    QCOMPARE(shown.lines.size(), 2);
    for (const PutBackLine& line : shown.lines)
        QCOMPARE(line.state, PutBackLine::InUse); // the camera by its folder, which stays
}

/// By what a device is known again is the program's own note.
void TestHistory::addedNodeThatWasCheckedGoes()
{
    const QString camera = addCamera(*m_db, "New", "10.0.0.9");
    const QVector<ChangeSet> sets = newSets();
    setText(*m_db, camera, qPrintable(KnownDevice::keys().constFirst()), "4711");
    newSets();
    QCOMPARE(putBack(sets).done.size(), 1);
    QVERIFY(m_db->node(camera).null());
    putBack(newSets());
    QCOMPARE(text(*m_db, camera, qPrintable(KnownDevice::keys().constFirst())), QString("4711"));
}

/// Each of them with what it needs; the other one follows when the first is there.
void TestHistory::partsOfWhatWasRemoved()
{
    const QString before = stateOf(m_file);
    m_db->removeNode(m_camera);
    m_db->removeNode(m_folderNode);
    const QVector<ChangeSet> sets = newSets();
    QVector<Alteration> ofCamera;
    QVector<Alteration> ofFolder;
    const QVector<Alteration> all = Alterations::of(sets.first());
    for (const Alteration& alteration : all) {
        const bool isRelation = alteration.kind == Alteration::RelationTo;
        if (isRelation || alteration.node == m_camera)
            ofCamera.append(alteration);
        if (isRelation || alteration.node == m_folderNode)
            ofFolder.append(alteration);
    }
    const PutBack camera = *PuttingBack::preview(*m_db, ofCamera);
    QCOMPARE(camera.lines.size(), 2);
    QCOMPARE(camera.lines.last().state, PutBackLine::Removed); // the folder of the relation
    PuttingBack::apply(*m_db, camera, Cause::undoing({}));
    QVERIFY(m_db->relatedNodes(m_camera, RecordingFolderRelation).isEmpty());
    PuttingBack::apply(*m_db, *PuttingBack::preview(*m_db, ofFolder), Cause::undoing({}));
    QCOMPARE(stateOf(m_file), before);
}

void TestHistory::redoIsAnUndoOfAnUndo()
{
    const QString before = stateOf(m_file);
    m_db->removeNode(m_camera);
    const QVector<ChangeSet> removal = newSets();
    const QString after = stateOf(m_file);
    putBack(removal);
    const QVector<ChangeSet> undo = newSets();
    QCOMPARE(stateOf(m_file), before);
    putBack(undo);
    const QVector<ChangeSet> redo = newSets();
    QCOMPARE(stateOf(m_file), after);
    putBack(redo);
    const QVector<ChangeSet> again = newSets();
    QCOMPARE(stateOf(m_file), before);
    const auto title = [this](const QVector<ChangeSet>& sets) {
        return ChangeSetTitle::of(*m_db->history().row(sets.first().number));
    };
    QCOMPARE(title(removal), QString("Removing Gate"));
    QCOMPARE(title(undo), QString("Put back: Removing Gate"));
    QCOMPARE(title(redo), QString("Redone: Removing Gate"));
    QCOMPARE(title(again), QString("Put back: Removing Gate"));
}

/// The folder of its recordings is another one's now.
void TestHistory::extensionThatIsTakenMeanwhile()
{
    setText(*m_db, m_camera, "FactoryIP", "AABBCC");
    newSets();
    m_db->removeNode(m_camera);
    const QVector<ChangeSet> sets = newSets();
    const QString other = addCamera(*m_db, "Other", "10.0.0.9");
    setText(*m_db, other, "FactoryIP", "AABBCC");
    newSets();
    putBack(sets);
    QCOMPARE(text(*m_db, other, "FactoryIP"), QString("AABBCC"));
    QVERIFY(!text(*m_db, m_camera, "FactoryIP").isEmpty());
    QVERIFY(text(*m_db, m_camera, "FactoryIP") != QString("AABBCC"));
}

void TestHistory::passwordsComeBackSealed()
{
    const auto setPassword = [this](const QString& password) {
        auto* device = dynamic_cast<IPDeviceNode*>(m_db->beginUpdateNode(m_camera, -1));
        device->setUser("admin", password);
        m_db->endUpdateNode(device);
        return newSets();
    };
    setPassword("first-secret");
    const QVector<ChangeSet> second = setPassword("second-secret");
    QCOMPARE(second.first().cause.purpose, Purpose::Credentials);
    const PutBack shown = preview(second);
    for (const PutBackLine& line : shown.lines)
        QVERIFY(!line.now.toString().contains("secret") && !line.what.before.toString().contains("secret"));
    putBack(second);
    QCOMPARE(m_db->node(m_camera).cast<const IPDeviceNode>()->password(0), QString("first-secret"));
    m_db.reset();
    for (const char* end : {"", "-wal"}) {
        QFile file(m_file + QLatin1String(end));
        if (file.open(QIODevice::ReadOnly))
            QVERIFY(!file.readAll().contains("-secret"));
    }
}

void TestHistory::otherProcessCanPutBack()
{
    const QString before = stateOf(m_file);
    m_db->removeNode(m_folderNode);
    setText(*m_db, m_camera, "Model", "one");
    const QVector<ChangeSet> sets = newSets();
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    const PutBack shown = *PuttingBack::preview(*other, Alterations::of(sets.first()));
    QCOMPARE(PuttingBack::apply(*other, shown, Cause::undoing({sets.first().cause})).refused.size(), 0);
    QCOMPARE(stateOf(m_file), before);
    m_db->syncForeignChanges();
    QCOMPARE(m_db->summaries(), other->summaries());
    QCOMPARE(text(*m_db, m_camera, "Model"), QString());
}

void TestHistory::titles()
{
    const auto title = [this] {
        const QVector<ChangeSet> sets = newSets();
        const auto row = m_db->history().row(sets.isEmpty() ? 0 : sets.last().number);
        return row ? ChangeSetTitle::of(*row) : QString();
    };
    setText(*m_db, m_camera, "Model", "one");
    QCOMPARE(title(), QString("Properties of Gate"));
    const QStringList cameras = m_db->nodeIdList(IPDeviceType);
    for (const QString& id : cameras) {
        const QString folder = addNode(*m_db, RecordingFolderType, "Of " + id, "/other");
        m_db->addNodeRelation(id, folder, RecordingFolderRelation);
        Node* node = m_db->beginUpdateNode(id, -1);
        node->setIntProperty("RecordingStorageUsage", 2);
        m_db->endUpdateNode(node);
    }
    QCOMPARE(title(), QString("Recording folders of 2 camera(s)"));
    m_db->removeNode(cameras.first());
    m_db->removeNode(cameras.last());
    QCOMPARE(title(), QString("Removing 2 node(s)"));
    m_db->setBandwidth(2);
    QCOMPARE(title(), QString("Settings"));
    QVERIFY(!m_db->history().row(4711));
}

void TestHistory::randomChange(HostNodeDB& db, std::mt19937& random)
{
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    const QStringList ids = db.nodeIdList(AllNodeTypes);
    const QString id = ids.value(below(qMax(1, int(ids.size()))));
    const QString other = ids.value(below(qMax(1, int(ids.size()))));
    const QString word = QString::number(below(4));
    const auto text = [&](const char* key) {
        if (!id.isEmpty())
            setText(db, id, key, word);
    };
    switch (below(12)) {
    case 0:
        addCamera(db, word, "10.0.0." + word);
        break;
    case 1:
        addNode(db, RecordingFolderType, word, word);
        break;
    case 2:
        db.removeNode(id);
        break;
    case 3:
    case 4:
        db.addNodeRelation(id, other, RecordingFolderRelation);
        break;
    case 5:
        db.removeNodeRelation(id, db.relatedNodes(id, RecordingFolderRelation).value(0),
                              RecordingFolderRelation);
        break;
    case 6:
        db.setBandwidth(below(5));
        break;
    case 7:
        db.environments().setList(db.environments().getList().mid(0, 2) << qMakePair("{" + word + "}", word));
        break;
    case 8: {
        NetworkProxy proxy;
        proxy.setProxyAddress(word, 3128);
        db.globalProxy().assign(proxy, {});
        break;
    }
    case 9: // many at once
        for (const QString& each : ids)
            setText(db, each, "Version", word);
        break;
    default:
        text(below(2) ? "Name" : "Model");
    }
}

/// Random changes by two programs, \a remember before each round.
void TestHistory::changeByTwo(std::mt19937& random, int rounds, const std::function<void()>& remember)
{
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    for (int i = 0; i < rounds; ++i) {
        remember();
        HostNodeDB& db = i % 3 == 0 ? *other : *m_db;
        db.syncForeignChanges();
        for (int changes = 1 + int(random() % 6); changes > 0; --changes)
            randomChange(db, random);
        QTest::qWait(1);
        QVERIFY(db.flush());
        newSets();
    }
}

/// What was done after a moment, put back together, is what was there.
void TestHistory::anyMomentComesBack()
{
    std::mt19937 random(4711);
    std::map<qint64, QString> states; // by the last change set
    changeByTwo(random, soakOr(1000, 100), [&] { states[m_last] = HistoryModel::of(m_file).text(); });
    m_db.reset();
    m_db = openDatabase(m_file); // a start later
    for (int i = 0; i < soakOr(50, 20); ++i) {
        const auto state = std::next(states.begin(), int(random() % states.size()));
        const PutBack shown = preview(m_db->history().changeSets(state->first, 100000));
        for (const PutBackLine& line : shown.lines)
            QCOMPARE(line.state, PutBackLine::Possible);
        PuttingBack::apply(*m_db, shown, Cause::undoing({}));
        QCOMPARE(HistoryModel::of(m_file).text(), state->second);
    }
}

/// All nodes with all that they had then, and whether anything of it is otherwise now.
void TestHistory::anyMomentCanBeSeen()
{
    std::mt19937 random(815);
    std::map<qint64, QStringList> states; // by the last change set
    changeByTwo(random, soakOr(1000, 100), [&] {
        m_db->syncForeignChanges();
        states[m_last] = contentOf(*m_db);
    });
    m_db->syncForeignChanges();
    const QStringList now = contentOf(*m_db);
    static const QRegularExpression nodeLine("^[^ ]*(=|->)");
    for (int i = 0; i < soakOr(50, 10); ++i) {
        const auto state = std::next(states.begin(), int(random() % states.size()));
        const QStringList then = contentOf(*m_db, state->first, true);
        QCOMPARE(without(then, state->second).join('\n'), QString());
        QCOMPARE(without(state->second, then).join('\n'), QString());
        const QStringList seen = contentOf(*m_db, state->first, false);
        for (const QString& line : now) // but for the lines of the nodes themselves
            QVERIFY2(seen.contains(line) || !line.contains(nodeLine), qPrintable(line));
    }
    QVERIFY(states.size() > 50);
}

/// It is read in parts, and changed meanwhile.
void TestHistory::valuesThatChangeOftenAreOneChange()
{
    const qint64 before = m_last;
    LaterChanges later(m_db->history(), before);
    for (int i = 0; i < 300; ++i) {
        setText(*m_db, m_camera, "Model", QString::number(i));
        if (i == 100)
            setText(*m_db, m_camera, "Name", "Tower");
        QVERIFY(m_db->flush());
        if (i % 7 == 0)
            later.readSome(3);
    }
    while (later.readSome(1000)) {
    }
    QCOMPARE(later.count(), 301);
    QCOMPARE(int(later.takeNew().size()), 301);
    QCOMPARE(int(later.all().size()), 2);
    QCOMPARE(later.all().first().after.toString(), QString("299"));
    QVERIFY(later.takeNew().isEmpty());
}

void TestHistory::manyInRandomOrder()
{
    std::mt19937 random(42);
    const std::unique_ptr<HostNodeDB> other = openDatabase(m_file);
    std::vector<HistoryModel> states = {HistoryModel::of(m_file)};
    QVector<ChangeSet> sets;
    while (sets.size() < 300) {
        HostNodeDB& db = random() % 3 == 0 ? *other : *m_db;
        db.syncForeignChanges();
        for (int changes = 1 + int(random() % 4); changes > 0; --changes)
            randomChange(db, random);
        QTest::qWait(1);
        QVERIFY(db.flush());
        const QVector<ChangeSet> stored = newSets();
        QVERIFY(stored.size() <= 1);
        if (stored.isEmpty())
            continue;
        sets += stored;
        states.push_back(HistoryModel::of(m_file));
    }
    std::vector<int> order(300);
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), random);
    int refusedAtAll = 0;
    int done = 0;
    HistoryModel model = states.back();
    for (const int i : order) {
        const std::set<QString> expected = model.putBack(states[std::size_t(i)], states[std::size_t(i) + 1]);
        const PutBack shown = preview({sets.at(i)});
        std::set<QString> refused;
        for (const PutBackLine& line : shown.lines) {
            if (line.state != PutBackLine::Possible)
                refused.insert(nameOf(line.what));
        }
        QCOMPARE(joined(refused), joined(expected));
        const PuttingBack::Outcome outcome =
            PuttingBack::apply(*m_db, shown, Cause::undoing({sets.at(i).cause}));
        QCOMPARE(outcome.stored, StoreOutcome::Stored);
        QVERIFY(outcome.refused.isEmpty());
        QCOMPARE(HistoryModel::of(m_file).text(), model.text());
        refusedAtAll += int(refused.size());
        done += int(outcome.done.size());
    }
    QVERIFY2(refusedAtAll > 100 && done > 100, qPrintable(QString("%1 %2").arg(refusedAtAll).arg(done)));
    const QVector<NodeSummary> seen = m_db->summaries();
    m_db = openDatabase(m_file);
    QCOMPARE(m_db->summaries(), seen);
}

KO_TEST_MAIN(TestHistory)
#include "tst_history.moc"
