#include "StoreTesting.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "store/ChangeLog.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSocketNotifier>
#include <QTimer>
#include <QUuid>

#include <cstdio>
#include <iostream>

using namespace ko;
using namespace testsupport;

namespace {

/// The other process: does what it is told line by line, each in a turn of its event loop, and answers
/// "done" with the result when it is stored.
class Other : public QObject
{
public:
    explicit Other(std::unique_ptr<HostNodeDB> db)
        : m_db(std::move(db))
        , m_input(0, QSocketNotifier::Read)
    {
        connect(&m_input, &QSocketNotifier::activated, this, [this] { read(); });
        say(QLatin1String("ready"));
    }

private:
    static void say(const QString& line)
    {
        std::printf("%s\n", line.toUtf8().constData());
        std::fflush(stdout);
    }

    void read()
    {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QCoreApplication::quit();
            return;
        }
        const QString result = run(QString::fromStdString(line).split(QLatin1Char(' ')));
        QMetaObject::invokeMethod(
            this, [result] { say(QLatin1String("done ") + result); }, Qt::QueuedConnection);
    }

    QString run(const QStringList& words)
    {
        const QString command = words.value(0);
        const QString a = words.value(1);
        const QString b = words.value(2);
        if (command == QLatin1String("add"))
            return addCamera(*m_db, a, b);
        if (command == QLatin1String("set"))
            setText(*m_db, a, b.toLatin1().constData(), words.value(3));
        else if (command == QLatin1String("get"))
            return text(*m_db, a, b.toLatin1().constData());
        else if (command == QLatin1String("count"))
            return QString::number(m_db->summaries().count());
        else if (command == QLatin1String("remove"))
            m_db->removeNode(a);
        else if (command == QLatin1String("relate"))
            m_db->addNodeRelation(a, b, RecordingFolderRelation);
        else if (command == QLatin1String("unrelate"))
            m_db->removeNodeRelation(a, b, RecordingFolderRelation);
        else if (command == QLatin1String("settings"))
            changeSettings(a);
        else if (command == QLatin1String("hammer"))
            hammer(a, b, words.value(3).toInt());
        else if (command == QLatin1String("touch"))
            touchAll(a);
        else if (command == QLatin1String("flood"))
            flood(a.toInt());
        return QString();
    }

    /// This many cameras, on the disk.
    void flood(int count)
    {
        for (int i = 0; i < count; ++i)
            addCamera(*m_db, QString::number(i), QString::fromLatin1("flood-%1").arg(i));
        m_db->flush();
    }

    /// Every camera gets this model, and the first five the last one for a relation.
    void touchAll(const QString& model)
    {
        m_db->syncForeignChanges();
        const QStringList ids = m_db->nodeIdList(IPDeviceType);
        for (const QString& id : ids)
            setText(*m_db, id, "Model", model);
        for (int i = 0; i < 5; ++i)
            m_db->addNodeRelation(ids.at(i), ids.last(), RecordingFolderRelation);
    }

    void changeSettings(const QString& text)
    {
        m_db->globalProxy().setProxyAddress(text, 3128);
        m_db->globalProxy().setExceptions(text, QLatin1Char(';'));
        m_db->setBandwidth(SlowRemote);
        Environments::List list = m_db->environments().getList();
        list.append({QUuid::createUuid().toString(), text});
        m_db->environments().setList(list);
        m_db->setActiveEnvironment(list.last().first);
    }

    void hammer(const QString& id, const QString& key, int times)
    {
        for (int i = 1; i <= times; ++i) {
            setText(*m_db, id, key.toLatin1().constData(), QString::number(i));
            m_db->flush();
        }
    }

    const std::unique_ptr<HostNodeDB> m_db;
    QSocketNotifier m_input;
};

} // namespace

class TestTwoProcesses : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void editShowsWithinASecond();
    void editOfAnUnreadNodeShows();
    void addedAndRemovedNodesShow();
    void relationsShow();
    void settingsShow();
    void differentPropertiesAreBothKept();
    void differentPropertiesHammeredByBoth();
    void samePropertyEndsEqual();
    void unstoredChangesSurviveForeignOnes();
    void unstoredChangesOfARemovedNodeAreDropped();
    void beginLooksFirst();
    void manyChangesComeInPieces();
    void lookupFollows();
    void longAbsenceIsCaughtUp();
    void ownChangesAreNotAnnouncedAgain();

private:
    void send(const QString& line);
    QString answer();
    QString ask(const QString& line);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
    std::unique_ptr<QProcess> m_other;
    QString m_camera;
    QString m_folderNode;
};

void TestTwoProcesses::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.db"));
    m_db = openDatabase(m_file);
    m_camera = addCamera(*m_db, QLatin1String("camera"), QLatin1String("10.0.0.1"));
    m_folderNode = addNode(*m_db, RecordingFolderType, QLatin1String("folder"), QLatin1String("/f"));
    QVERIFY(m_db->flush());
    m_other = std::make_unique<QProcess>();
    m_other->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_other->start(QCoreApplication::applicationFilePath(), {QLatin1String("--other"), m_file});
    QCOMPARE(answer(), QLatin1String("ready"));
}

void TestTwoProcesses::cleanup()
{
    m_other->closeWriteChannel();
    QVERIFY(m_other->waitForFinished());
    m_db.reset();
}

void TestTwoProcesses::send(const QString& line)
{
    m_other->write(line.toUtf8() + '\n');
    m_other->waitForBytesWritten();
}

/// Waits without an event loop, so that nothing is taken in meanwhile.
QString TestTwoProcesses::answer()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_other->canReadLine() && timer.elapsed() < 60000)
        m_other->waitForReadyRead(1000);
    if (!m_other->canReadLine())
        QTest::qFail("the other process does not answer", __FILE__, __LINE__);
    return QString::fromUtf8(m_other->readLine()).trimmed();
}

QString TestTwoProcesses::ask(const QString& line)
{
    send(line);
    return answer().mid(5);
}

void TestTwoProcesses::editShowsWithinASecond()
{
    const kom::smart<const Node> before = m_db->node(m_camera);
    for (int i = 0; i < 5; ++i) {
        QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
        QElapsedTimer timer;
        timer.start();
        ask(QString::fromLatin1("set %1 Name name%2").arg(m_camera).arg(i));
        QVERIFY(updated.wait(1000));
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(updated.count(), 1);
        QCOMPARE(updated.at(0).at(0).toString(), m_camera);
        QCOMPARE(m_db->node(m_camera)->name(), QString::fromLatin1("name%1").arg(i));
        QCOMPARE(m_db->summary(m_camera).name, QString::fromLatin1("name%1").arg(i));
    }
    QCOMPARE(before->name(), QLatin1String("camera"));
}

void TestTwoProcesses::editOfAnUnreadNodeShows()
{
    m_db.reset();
    m_db = openDatabase(m_file);
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    ask(QString::fromLatin1("set %1 Model M2").arg(m_camera)); // nothing that a summary holds
    ask(QString::fromLatin1("set %1 Address 10.7.7.7").arg(m_camera));
    QVERIFY(updated.wait(1000));
    QCOMPARE(m_db->summary(m_camera).location, QLatin1String("10.7.7.7"));
    QCOMPARE(text(*m_db, m_camera, "Model"), QLatin1String("M2"));
}

void TestTwoProcesses::addedAndRemovedNodesShow()
{
    QSignalSpy inserted(m_db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    QSignalSpy removed(m_db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    const QString id = ask(QLatin1String("add new 10.0.0.2"));
    QVERIFY(inserted.wait(1000));
    QCOMPARE(inserted.at(0).at(0).toString(), id);
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList({m_camera, m_folderNode, id}));
    QCOMPARE(m_db->node(id)->name(), QLatin1String("new"));
    QVERIFY(!m_db->node(id)->hasCreationContext());
    ask(QLatin1String("remove ") + id);
    QVERIFY(removed.wait(1000));
    QCOMPARE(removed.at(0).at(0).toString(), id);
    QVERIFY(m_db->node(id).null());
    // Added and removed between two looks: nothing is said.
    inserted.clear();
    removed.clear();
    const QString brief = ask(QLatin1String("add brief 10.0.0.3"));
    ask(QLatin1String("remove ") + brief);
    m_db->syncForeignChanges();
    QCOMPARE(inserted.count() + removed.count(), 0);
}

void TestTwoProcesses::relationsShow()
{
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    ask(QString::fromLatin1("relate %1 %2").arg(m_camera, m_folderNode));
    QVERIFY(updated.wait(1000));
    QCOMPARE(updated.count(), 2);
    QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), QStringList(m_folderNode));
    QVERIFY(m_db->isDestinationOfNodeRelation(m_folderNode, RecordingFolderRelation));
    ask(QString::fromLatin1("unrelate %1 %2").arg(m_camera, m_folderNode));
    QVERIFY(updated.wait(1000));
    QVERIFY(!m_db->isDestinationOfNodeRelation(m_folderNode, RecordingFolderRelation));
}

void TestTwoProcesses::settingsShow()
{
    QSignalSpy changed(m_db.get(), SIGNAL(settingsChanged()));
    QSignalSpy proxy(&m_db->globalProxy(), SIGNAL(globalProxyDataChanged()));
    ask(QLatin1String("settings Elsewhere"));
    QVERIFY(changed.wait(1000));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(proxy.count(), 1);
    QCOMPARE(m_db->globalProxy().proxyAddress(), QLatin1String("Elsewhere"));
    QCOMPARE(m_db->globalProxy().exceptions(), QStringList(QLatin1String("Elsewhere")));
    QCOMPARE(m_db->bandwidth(), int(SlowRemote));
    QCOMPARE(m_db->environments().getList().count(), 2);
    QCOMPARE(m_db->activeEnvironment(), m_db->environments().getList().last().first);
    QVERIFY(!m_db->hasUnstoredChanges());
}

void TestTwoProcesses::differentPropertiesAreBothKept()
{
    Node* copy = m_db->beginUpdateNode(m_camera, -1);
    copy->setStringProperty(QLatin1String("Model"), QLatin1String("mine"));
    ask(QString::fromLatin1("set %1 Address theirs").arg(m_camera));
    m_db->endUpdateNode(copy);
    QVERIFY(m_db->flush());
    QCOMPARE(text(*m_db, m_camera, "Model"), QLatin1String("mine"));
    QCOMPARE(text(*m_db, m_camera, "Address"), QLatin1String("theirs"));
    // What lists and lookups read follows from both.
    PlainSql plain(m_file);
    QCOMPARE(plain.run(QLatin1String("SELECT location FROM nodes ORDER BY n")).toString(),
             QLatin1String("theirs"));
    QTest::qWait(400);
    QCOMPARE(ask(QString::fromLatin1("get %1 Model").arg(m_camera)), QLatin1String("mine"));
}

void TestTwoProcesses::differentPropertiesHammeredByBoth()
{
    const int times = 300;
    send(QString::fromLatin1("hammer %1 Model %2").arg(m_camera).arg(times));
    for (int i = 1; i <= times; ++i) {
        setText(*m_db, m_camera, "Version", QString::number(i));
        QVERIFY(m_db->flush());
        QCOMPARE(text(*m_db, m_camera, "Version"), QString::number(i));
    }
    QVERIFY(answer().startsWith(QLatin1String("done")));
    m_db->syncForeignChanges();
    QCOMPARE(text(*m_db, m_camera, "Version"), QString::number(times));
    QCOMPARE(text(*m_db, m_camera, "Model"), QString::number(times));
    QTest::qWait(400);
    QCOMPARE(ask(QString::fromLatin1("get %1 Version").arg(m_camera)), QString::number(times));
}

void TestTwoProcesses::samePropertyEndsEqual()
{
    send(QString::fromLatin1("hammer %1 Model 200").arg(m_camera));
    for (int i = 1; i <= 200; ++i) {
        setText(*m_db, m_camera, "Model", QString::number(-i));
        QVERIFY(m_db->flush());
    }
    QVERIFY(answer().startsWith(QLatin1String("done")));
    QTest::qWait(400);
    const QString theirs = ask(QString::fromLatin1("get %1 Model").arg(m_camera));
    QCOMPARE(text(*m_db, m_camera, "Model"), theirs);
    QVERIFY(theirs == QLatin1String("200") || theirs == QLatin1String("-200"));
}

void TestTwoProcesses::unstoredChangesSurviveForeignOnes()
{
    setText(*m_db, m_camera, "Model", QLatin1String("mine"));
    setText(*m_db, m_camera, "Name", QLatin1String("my name"));
    const QString added = addCamera(*m_db, QLatin1String("added"), QLatin1String("10.0.0.9"));
    m_db->addNodeRelation(m_camera, m_folderNode, RecordingFolderRelation);
    m_db->setBandwidth(SlowLocal);
    ask(QString::fromLatin1("set %1 Address theirs").arg(m_camera));
    ask(QString::fromLatin1("set %1 Name their-name").arg(m_camera));
    const QString theirs = ask(QLatin1String("add theirs 10.0.0.8"));
    ask(QLatin1String("settings Elsewhere"));
    m_db->syncForeignChanges();
    QVERIFY(m_db->hasUnstoredChanges());
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList({m_camera, m_folderNode, theirs, added}));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(text(*m_db, m_camera, "Model"), QLatin1String("mine"));
        QCOMPARE(text(*m_db, m_camera, "Address"), QLatin1String("theirs"));
        QCOMPARE(m_db->node(m_camera)->name(), QLatin1String("my name"));
        QCOMPARE(m_db->summary(m_camera).name, QLatin1String("my name"));
        QCOMPARE(m_db->summary(m_camera).location, QLatin1String("theirs"));
        QCOMPARE(m_db->node(added)->name(), QLatin1String("added"));
        QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), QStringList(m_folderNode));
        QCOMPARE(m_db->bandwidth(), int(SlowLocal));
        QCOMPARE(m_db->globalProxy().proxyAddress(), QLatin1String("Elsewhere"));
        m_db.reset();
        m_db = openDatabase(m_file);
    }
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList({m_camera, m_folderNode, theirs, added}));
}

void TestTwoProcesses::unstoredChangesOfARemovedNodeAreDropped()
{
    Node* copy = m_db->beginUpdateNode(m_camera, -1);
    copy->setStringProperty(QLatin1String("Version"), QLatin1String("late"));
    setText(*m_db, m_camera, "Model", QLatin1String("mine"));
    m_db->addNodeRelation(m_camera, m_folderNode, RecordingFolderRelation);
    ask(QLatin1String("remove ") + m_camera);
    QSignalSpy removed(m_db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    QVERIFY(m_db->flush()); // finds out
    QCOMPARE(removed.count(), 1);
    m_db->endUpdateNode(copy);
    QVERIFY(!m_db->hasUnstoredChanges());
    QCOMPARE(m_db->nodeIdList(AllNodeTypes), QStringList(m_folderNode));
    QVERIFY(!m_db->isDestinationOfNodeRelation(m_folderNode, RecordingFolderRelation));
    PlainSql plain(m_file);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 1);
    QCOMPARE(plain.run(QLatin1String("SELECT count(*) FROM relations")).toInt(), 0);
}

void TestTwoProcesses::beginLooksFirst()
{
    m_db->node(m_camera);
    ask(QString::fromLatin1("set %1 Address theirs").arg(m_camera));
    Node* copy = m_db->beginUpdateNode(m_camera, -1);
    QCOMPARE(copy->stringProperty(QLatin1String("Address"), QString()), QLatin1String("theirs"));
    m_db->endUpdateNode(copy);
    ask(QLatin1String("remove ") + m_camera);
    QVERIFY(!m_db->beginUpdateNode(m_camera, -1));
}

/// So that the window goes on meanwhile. Who needs all of them at once gets them.
void TestTwoProcesses::manyChangesComeInPieces()
{
    const int count = 2000;
    for (int i = 0; i < count; ++i)
        addCamera(*m_db, QString::number(i), QString::fromLatin1("many-%1").arg(i));
    m_db->flush();
    const QStringList ids = m_db->nodeIdList(IPDeviceType);
    for (const QString& id : ids)
        m_db->node(id); // is in memory with its properties
    QSignalSpy all(m_db.get(), &NodeDB::nodeUpdated);
    int before = 0;
    int most = 0; // in a turn
    QTimer turns;
    connect(&turns, &QTimer::timeout, this, [&] {
        most = qMax(most, int(all.count()) - before);
        before = int(all.count());
    });
    turns.start(0);
    for (const char* model : {"A", "B"}) {
        before = 0;
        all.clear();
        ask(QLatin1String("touch ") + QLatin1String(model));
        QTRY_VERIFY(!all.isEmpty());
        if (qstrcmp(model, "B") == 0)
            m_db->syncForeignChanges();
        QTRY_COMPARE(text(*m_db, ids.last(), "Model"), QLatin1String(model));
        QTRY_VERIFY(all.count() >= count);
        for (const QString& id : ids)
            QCOMPARE(text(*m_db, id, "Model"), QLatin1String(model));
        if (qstrcmp(model, "A") == 0)
            QVERIFY2(most < count, qPrintable(QString::number(most)));
    }
    QTRY_COMPARE(m_db->relatedNodes(ids.at(4), RecordingFolderRelation), QStringList(ids.last()));
    QVERIFY(m_db->relatedNodes(ids.at(5), RecordingFolderRelation).isEmpty());
}

void TestTwoProcesses::lookupFollows()
{
    const kom::smart<NodeHint> hint = m_db->nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    auto& device = dynamic_cast<NodeHintIPDevice&>(*hint);
    device.address = QLatin1String("10.0.0.1");
    QCOMPARE(m_db->lookupHint(*hint), m_camera);
    ask(QString::fromLatin1("set %1 Address 10.5.5.5").arg(m_camera));
    const QString added = ask(QLatin1String("add new 10.0.0.1"));
    m_db->syncForeignChanges();
    QCOMPARE(m_db->lookupHint(*hint), added);
    device.address = QLatin1String("10.5.5.5");
    QCOMPARE(m_db->lookupHint(*hint), m_camera);
}

void TestTwoProcesses::longAbsenceIsCaughtUp()
{
    m_db->node(m_camera);
    const int flood = ChangeLog::MaxRead + 5000;
    ask(QString::fromLatin1("set %1 Model theirs").arg(m_camera));
    ask(QString::fromLatin1("relate %1 %2").arg(m_camera, m_folderNode));
    ask(QLatin1String("settings Elsewhere"));
    const QString doomed = addCamera(*m_db, QLatin1String("doomed"), QString());
    QVERIFY(m_db->flush());
    ask(QLatin1String("get ") + doomed + QLatin1String(" Name"));
    setText(*m_db, m_folderNode, "Path", QLatin1String("/unstored"));
    const kom::smart<NodeHint> hint = m_db->nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    dynamic_cast<NodeHintIPDevice&>(*hint).address = QLatin1String("flood-7");
    QCOMPARE(m_db->lookupHint(*hint), QString());
    ask(QString::fromLatin1("set %1 Version theirs").arg(m_camera));
    ask(QLatin1String("settings Elsewhere2"));
    ask(QString::fromLatin1("flood %1").arg(flood));
    ask(QLatin1String("remove ") + doomed);
    QSignalSpy inserted(m_db.get(), SIGNAL(nodeInserted(ko::NodeID)));
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    QSignalSpy removed(m_db.get(), SIGNAL(nodeRemoved(ko::NodeID)));
    m_db->syncForeignChanges();
    QCOMPARE(inserted.count(), flood);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(updated.at(0).at(0).toString(), m_camera);
    QCOMPARE(m_db->summaries().count(), flood + 2);
    QCOMPARE(text(*m_db, m_camera, "Version"), QLatin1String("theirs"));
    QCOMPARE(text(*m_db, m_folderNode, "Path"), QLatin1String("/unstored"));
    QCOMPARE(m_db->relatedNodes(m_camera, RecordingFolderRelation), QStringList(m_folderNode));
    QCOMPARE(m_db->globalProxy().proxyAddress(), QLatin1String("Elsewhere2"));
    QCOMPARE(m_db->lookupHint(*hint), m_db->nodeIdList(AllNodeTypes).at(7 + 2));
    QVERIFY(m_db->flush());
    PlainSql plain(m_file);
    QVERIFY(plain.run(QLatin1String("SELECT count(*) FROM changes")).toInt() > flood); // the history
    QCOMPARE(ask(QLatin1String("count")), QString::number(flood + 2));
}

void TestTwoProcesses::ownChangesAreNotAnnouncedAgain()
{
    setText(*m_db, m_camera, "Model", QLatin1String("mine"));
    QVERIFY(m_db->flush());
    QSignalSpy updated(m_db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    ask(QLatin1String("add other 10.0.0.2"));
    QTest::qWait(500);
    QCOMPARE(updated.count(), 0);
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--other")) {
        std::ios::sync_with_stdio(true);
        std::unique_ptr<HostNodeDB> db = openDatabase(arguments.value(2));
        if (!db)
            return 1;
        const Other other(std::move(db));
        return QApplication::exec();
    }
    testsupport::prepareApplication();
    TestTwoProcesses test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_twoprocesses.moc"
