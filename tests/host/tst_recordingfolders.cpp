#include "StoreTesting.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "support/PassThroughNodeDB.h"
#include "support/TestMain.h"
#include "utils/NodeDBUtils.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

using namespace ko;
using namespace testsupport;

namespace {

/// The real database with the calls that change it written down.
class WatchedNodeDB : public PassThroughNodeDB
{
public:
    using PassThroughNodeDB::PassThroughNodeDB;

    Node* beginUpdateNode(const QString& id, int limit) override
    {
        calls.append(QString::fromLatin1("begin %1 %2").arg(id).arg(limit));
        return PassThroughNodeDB::beginUpdateNode(id, limit);
    }
    void endUpdateNode(Node* node) override
    {
        calls.append(QLatin1String("end"));
        PassThroughNodeDB::endUpdateNode(node);
    }
    void newNodeHint(const NodeHint& hint) override
    {
        calls.append(QLatin1String("new"));
        PassThroughNodeDB::newNodeHint(hint);
    }
    void addNodeRelation(const QString& from, const QString& to, ENodeRelationType type) override
    {
        calls.append(QString::fromLatin1("add %1 %2 %3").arg(from, to).arg(int(type)));
        PassThroughNodeDB::addNodeRelation(from, to, type);
    }
    void removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type) override
    {
        calls.append(QString::fromLatin1("remove %1 %2 %3").arg(from, to).arg(int(type)));
        PassThroughNodeDB::removeNodeRelation(from, to, type);
    }

    QStringList calls;
};

const char Missing[] = "missing";

} // namespace

class tst_RecordingFolders : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void cameraAndPathAreTheKey();
    void pathIsComparedExactly();
    void withoutCameraAndPathThereIsNoKey();
    void lookupFollowsTheFolder();
    void assigningAgainRefreshes();
    void configures_data();
    void configures();
    void thousandCamerasAreOnDiskAfterTheDialog();

private:
    QString lookup(const QString& camera, const QString& path) const;

    QTemporaryDir m_folder;
    std::unique_ptr<HostNodeDB> m_db;
};

void tst_RecordingFolders::init()
{
    m_db.reset();
    QFile::remove(m_folder.filePath(QLatin1String("nodes.db")));
    m_db = openDatabase(m_folder.filePath(QLatin1String("nodes.db")));
    QVERIFY(m_db);
}

QString tst_RecordingFolders::lookup(const QString& camera, const QString& path) const
{
    const auto hint = m_db->nodeDriver(RecordingFolderType)->createNodeHint(RecordingFolderType);
    hint->setStringProperty("CameraID", camera);
    hint->setStringProperty("Path", path);
    return m_db->lookupHint(*hint);
}

void tst_RecordingFolders::cameraAndPathAreTheKey()
{
    const QString one = addCamera(*m_db, "one", "10.0.0.1");
    const QString two = addCamera(*m_db, "two", "10.0.0.2");
    const QString first = NodeDBUtils::createRecordingFolderNode(one, false, "//srv/a");
    const QString second = NodeDBUtils::createRecordingFolderNode(two, false, "//srv/a");
    const QString third = NodeDBUtils::createRecordingFolderNode(one, false, "//srv/b");
    QCOMPARE(QSet<QString>({first, second, third}).size(), 3);
    QCOMPARE(lookup(one, "//srv/a"), first);
    QCOMPARE(lookup(two, "//srv/a"), second);
    QCOMPARE(lookup(one, "//srv/b"), third);
    QCOMPARE(lookup(two, "//srv/b"), QString());
    QCOMPARE(lookup(QString(), "//srv/a"), QString());
}

void tst_RecordingFolders::pathIsComparedExactly()
{
    const QString camera = addCamera(*m_db, "one", "10.0.0.1");
    const QString folder = NodeDBUtils::createRecordingFolderNode(camera, false, "//srv/a");
    QCOMPARE(lookup(camera, "//srv/a"), folder);
    for (const char* other : {"//srv/A", "//srv/a/", " //srv/a", "\\\\srv\\a"})
        QCOMPARE(lookup(camera, other), QString());
}

void tst_RecordingFolders::withoutCameraAndPathThereIsNoKey()
{
    const QString bare = addNode(*m_db, RecordingFolderType, "bare", QString());
    QVERIFY(!bare.isEmpty());
    QCOMPARE(lookup(QString(), QString()), QString());
    const QString camera = addCamera(*m_db, "one", "10.0.0.1");
    const QString ofCamera = NodeDBUtils::createRecordingFolderNode(camera, true, QString());
    QVERIFY(!ofCamera.isEmpty());
    QCOMPARE(lookup(camera, QString()), ofCamera);
}

void tst_RecordingFolders::lookupFollowsTheFolder()
{
    const QString camera = addCamera(*m_db, "one", "10.0.0.1");
    const QString folder = NodeDBUtils::createRecordingFolderNode(camera, false, "//srv/a");
    setText(*m_db, folder, "Path", "//srv/b");
    QCOMPARE(lookup(camera, "//srv/a"), QString());
    QCOMPARE(lookup(camera, "//srv/b"), folder);
    m_db->removeNode(folder);
    QCOMPARE(lookup(camera, "//srv/b"), QString());
}

void tst_RecordingFolders::assigningAgainRefreshes()
{
    const QString camera = addCamera(*m_db, "one", "10.0.0.1");
    const QString folder = NodeDBUtils::createRecordingFolderNode(camera, false, "//srv/a");
    setText(*m_db, folder, "User", "joe");
    setText(*m_db, folder, "Name", "renamed");
    QCOMPARE(NodeDBUtils::createRecordingFolderNode(camera, false, "//srv/a"), folder);
    QCOMPARE(m_db->nodeIdList(RecordingFolderType), QStringList(folder));
    QCOMPARE(m_db->node(folder)->name(), QString("//srv/a"));
    QCOMPARE(text(*m_db, folder, "User"), QString("joe"));
}

void tst_RecordingFolders::configures_data()
{
    QTest::addColumn<int>("currentUsage");
    QTest::addColumn<int>("usage");
    QTest::addColumn<bool>("sameFlag");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("relatedFolders");
    for (int current = 0; current <= 4; ++current) {
        for (int usage = 0; usage <= 3; ++usage) {
            for (int same = 0; same <= 1; ++same) {
                for (const char* folder : {"", "own", "other", Missing}) {
                    for (int related = 0; related <= 2; ++related)
                        QTest::addRow("%d to %d, %s flag, folder %s, %d related", current, usage,
                                      same ? "same" : "other", folder, related)
                            << current << usage << bool(same) << QString(folder) << related;
                }
            }
        }
    }
}

void tst_RecordingFolders::configures()
{
    QFETCH(int, currentUsage);
    QFETCH(int, usage);
    QFETCH(bool, sameFlag);
    QFETCH(QString, folder);
    QFETCH(int, relatedFolders);
    const QString camera = addCamera(*m_db, "Gate", "10.0.0.1");
    Node* node = m_db->beginUpdateNode(camera, -1);
    node->setStringProperty("FactoryIP", "ext7");
    node->setIntProperty("RecordingStorageUsage", currentUsage);
    node->setBoolProperty("UseRecordingTransponder", sameFlag);
    m_db->endUpdateNode(node);
    const QString own = addNode(*m_db, RecordingFolderType, "own", "//srv/old");
    const QString second = addNode(*m_db, RecordingFolderType, "second", "//srv/old2");
    const QString other = addNode(*m_db, RecordingFolderType, "other", "//srv/old3");
    const QStringList before = QStringList({own, second}).mid(0, relatedFolders);
    for (const QString& id : before)
        m_db->addNodeRelation(camera, id, RecordingFolderRelation);

    QString assigned = folder == "own" ? own : folder == "other" ? other : folder;
    const QString given = assigned;
    QStringList calls;
    {
        WatchedNodeDB watched(m_db.get());
        NodeDBUtils::configurePlayerSource(camera, usage, true, assigned, "//srv/new", "joe", "s3cret");
        calls = watched.calls;
    }
    const QString made = m_db->nodeIdList(RecordingFolderType).value(3);

    QStringList wanted;
    QStringList related = before;
    const QStringList cameraUpdate = {"begin " + camera + " -1", "end"};
    const auto replace = [&](const QString& by) {
        if (!before.isEmpty())
            wanted << "remove " + camera + " " + before.constFirst() + " 1";
        wanted << "add " + camera + " " + by + " 1";
        related = before.mid(1);
        if (by != Missing)
            related << by;
    };
    bool changes = true;
    if (usage == 0 || usage == 3) {
        changes = usage == 3 || currentUsage != 0 || !sameFlag;
        if (changes)
            wanted << cameraUpdate;
    } else if (usage == 1) {
        changes = currentUsage != 1 || !sameFlag;
        if (changes) {
            if (!before.isEmpty())
                wanted << "remove " + camera + " " + before.constFirst() + " 1";
            wanted << "new"
                   << "add " + camera + " " + made + " 1" << cameraUpdate;
            related = before.mid(1) + QStringList(made);
        }
    } else {
        if (given.isEmpty()) {
            wanted << "new";
            replace(made);
        } else if (before.value(0) != given) {
            replace(given);
        }
        if (currentUsage != 2 || !sameFlag)
            wanted << cameraUpdate;
        wanted << "begin " + (given.isEmpty() ? made : given) + " -1";
        if (given != Missing)
            wanted << "end";
    }
    QCOMPARE(calls, wanted);
    QCOMPARE(assigned, usage == 2 && given.isEmpty() ? made : given);

    // What is stored is what was there before the database was closed.
    QVERIFY(m_db->flush());
    m_db.reset();
    m_db = openDatabase(m_folder.filePath(QLatin1String("nodes.db")));
    QVERIFY(m_db);
    QCOMPARE(m_db->relatedNodes(camera, RecordingFolderRelation), related);
    QCOMPARE(m_db->node(camera)->intProperty("RecordingStorageUsage", -1), !changes     ? currentUsage
                                                                           : usage == 3 ? 0
                                                                                        : usage);
    QCOMPARE(m_db->node(camera)->boolProperty("UseRecordingTransponder", false), changes || sameFlag);
    for (const QString& id : {own, second, other}) {
        const bool written = usage == 2 && assigned == id;
        QCOMPARE(text(*m_db, id, "Path") == "//srv/new", written);
        QCOMPARE(text(*m_db, id, "User") == "joe", written);
        QCOMPARE(text(*m_db, id, "Password") == "s3cret", written);
        QCOMPARE(text(*m_db, id, "CameraID") == camera, written);
        QCOMPARE(m_db->node(id)->boolProperty("SavePassword", false), written);
    }
    if (!made.isEmpty()) {
        QCOMPARE(text(*m_db, made, "Path"), QString(usage == 1 ? "ext7" : "//srv/new"));
        QCOMPARE(m_db->node(made)->boolProperty("UseGlobalPath", usage != 1), usage == 1);
        QCOMPARE(text(*m_db, made, "CameraID"), camera);
    }
}

void tst_RecordingFolders::thousandCamerasAreOnDiskAfterTheDialog()
{
    QStringList cameras;
    for (int i = 0; i < 1000; ++i) {
        cameras.append(
            addCamera(*m_db, QString("Camera %1").arg(i), QString("10.0.%1.%2").arg(i / 200).arg(i)));
        setText(*m_db, cameras.constLast(), "FactoryIP", QString("ext_%1").arg(i));
    }
    QVERIFY(m_db->flush());

    QElapsedTimer timer;
    timer.start();
    {
        RecordingFolderMassAssignmentDialog dialog(nullptr, cameras, Qt::Dialog);
        dialog.findChild<QRadioButton*>("specificFileServerPathRadioButton")->setChecked(true);
        dialog.findChild<QLineEdit*>("pathLineEdit")->setText("/mnt/recordings");
        QTimer::singleShot(0, &dialog, &QDialog::accept);
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
    QVERIFY(m_db->flush(StoreWait::InEventLoop)); // this many are stored by a thread
    const qint64 dialogTime = timer.nsecsElapsed();

    PlainSql sql(m_folder.filePath(QLatin1String("nodes.db")));
    QCOMPARE(sql.run("SELECT count(*) FROM nodes WHERE type = 2 AND recording = 2").toInt(), 1000);
    QCOMPARE(sql.run("SELECT count(*) FROM nodes WHERE type = 0").toInt(), 1000);
    QCOMPARE(sql.run("SELECT count(*) FROM relations WHERE type = 1").toInt(), 1000);
    QCOMPARE(sql.run("SELECT count(*) FROM properties WHERE key = 'Path'"
                     " AND value LIKE '/mnt/recordings/ext_%'")
                 .toInt(),
             1000);
    qInfo("assigning 1000 cameras: %lld ms", dialogTime / 1000000);
}

KO_TEST_MAIN(tst_RecordingFolders)
#include "tst_recordingfolders.moc"
