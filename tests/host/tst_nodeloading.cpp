#include "ManyNodes.h"
#include "StoreTesting.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <algorithm>

using namespace ko;
using namespace testsupport;

namespace {

const int cameras = 30000; // enough that a thread reads them when open() returns
const int rounds = 8;

std::unique_ptr<HostNodeDB> openBehind(const QString& file)
{
    StoreError error;
    return HostNodeDB::open(file, &error, HostNodeDB::Check::Behind);
}

} // namespace

/// A database that is in use while a thread reads its nodes.
class TestNodeLoading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void isTheSameMeanwhile();
    void whatOthersDoMeanwhile();
    void whatIsDoneAtOnce();
    void closedMeanwhile();
    void nodesThatCannotBeRead();

private:
    QTemporaryDir m_folder;
    QString m_file;
    QString m_camera; ///< records into m_recording
    QString m_recording;
};

void TestNodeLoading::initTestCase()
{
    m_file = m_folder.filePath(QStringLiteral("site.kodb"));
    const auto db = openDatabase(m_file);
    m_camera = addCamera(*db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    m_recording = addNode(*db, RecordingFolderType, QStringLiteral("Folder"), QStringLiteral("/srv/video"));
    db->addNodeRelation(m_camera, m_recording, RecordingFolderRelation);
    QVERIFY(db->flush());
    addByHand(m_file, m_camera, cameras);
}

void TestNodeLoading::isTheSameMeanwhile()
{
    int meanwhile = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto db = openBehind(m_file);
        QVERIFY(db);
        QSignalSpy loaded(db.get(), SIGNAL(loaded()));
        const NodeSummary before = db->summary(QStringLiteral("camera-77"));
        const QStringList folders = db->relatedNodes(m_camera, RecordingFolderRelation);
        const bool isUnknown = db->summary(QStringLiteral("nobody")).id.isEmpty();
        meanwhile += db->isLoaded() ? 0 : 1;
        QVERIFY(isUnknown);
        QCOMPARE(before.name, QStringLiteral("Camera 77"));
        QCOMPARE(folders, QStringList(m_recording));
        KO_TRY_COMPARE(loaded.size(), 1);
        QVERIFY(db->isLoaded());
        QVERIFY(db->summary(QStringLiteral("camera-77")) == before);
        QCOMPARE(db->relatedNodes(m_camera, RecordingFolderRelation), folders);
        QCOMPARE(db->nodeIdList(AllNodeTypes).size(), cameras + 2);
        QCOMPARE(db->summaries().size(), cameras + 2);
    }
    QVERIFY(meanwhile > 0);
}

void TestNodeLoading::whatOthersDoMeanwhile()
{
    const auto other = openDatabase(m_file);
    for (int round = 0; round < rounds; ++round) {
        const auto db = openBehind(m_file);
        const QString name = QStringLiteral("Round %1").arg(round);
        const QString gone = QStringLiteral("camera-%1").arg(1000 + round);
        setText(*other, QStringLiteral("camera-5"), "Name", name);
        other->removeNode(gone);
        const QString added = addCamera(*other, name, QStringLiteral("10.9.0.%1").arg(round));
        other->removeNodeRelation(m_camera, m_recording, RecordingFolderRelation);
        QVERIFY(other->flush());
        KO_TRY_VERIFY(db->isLoaded());
        db->syncForeignChanges();
        QCOMPARE(db->summary(QStringLiteral("camera-5")).name, name);
        QCOMPARE(db->summary(added).name, name);
        QVERIFY(db->summary(gone).id.isEmpty());
        QVERIFY(db->relatedNodes(m_camera, RecordingFolderRelation).isEmpty());
        QStringList known = db->nodeIdList(AllNodeTypes);
        QStringList expected = other->nodeIdList(AllNodeTypes);
        std::sort(known.begin(), known.end());
        std::sort(expected.begin(), expected.end());
        QCOMPARE(known, expected);
        other->addNodeRelation(m_camera, m_recording, RecordingFolderRelation);
        QVERIFY(other->flush());
    }
}

void TestNodeLoading::whatIsDoneAtOnce()
{
    for (int round = 0; round < rounds; ++round) {
        const QString name = QStringLiteral("At once %1").arg(round);
        {
            const auto db = openBehind(m_file);
            db->setBandwidth(round + 100); // needs no node
            QVERIFY(db->flush());
            setText(*db, m_camera, "Name", name);
            QVERIFY(db->flush());
        }
        const auto db = openDatabase(m_file);
        QCOMPARE(db->summary(m_camera).name, name);
        QCOMPARE(db->bandwidth(), round + 100);
    }
}

void TestNodeLoading::closedMeanwhile()
{
    for (int round = 0; round < rounds; ++round) {
        const auto db = openBehind(m_file);
        QSignalSpy loaded(db.get(), SIGNAL(loaded()));
        QVERIFY(db && loaded.isEmpty());
    }
}

/// It is said once, and nothing is written.
void TestNodeLoading::nodesThatCannotBeRead()
{
    const QString spoiled = m_folder.filePath(QStringLiteral("spoiled.kodb"));
    {
        PlainSql sql(m_file);
        sql.run(QStringLiteral("VACUUM INTO '%1'").arg(spoiled));
    }
    {
        PlainSql sql(spoiled);
        sql.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    }
    // The names of a leaf in the middle of the table: its page has no head any more.
    QFile file(spoiled);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const int page = 4096;
    const qint64 at = qint64(file.readAll().indexOf("Camera 15000")) / page * page;
    QVERIFY(at > 0 && file.seek(at));
    QCOMPARE(file.write(QByteArray(page, '\x7f')), qint64(page));
    file.close();
    const QByteArray before = digest(spoiled);
    {
        const auto db = openBehind(spoiled);
        QVERIFY(db);
        QSignalSpy loaded(db.get(), SIGNAL(loaded()));
        QSignalSpy checked(db.get(), SIGNAL(checked(ko::StoreError)));
        db->setBandwidth(7);
        QVERIFY(!db->flush());
        KO_TRY_VERIFY(!checked.isEmpty());
        QTest::qWait(1500); // the check of the file finds it, too
        QCOMPARE(checked.size(), 1);
        QCOMPARE(checked.at(0).at(0).value<StoreError>().kind, StoreError::Damaged);
        QVERIFY(loaded.isEmpty());
    }
    QCOMPARE(digest(spoiled), before);
    StoreError error;
    QVERIFY(!HostNodeDB::open(spoiled, &error));
    QCOMPARE(error.kind, StoreError::Damaged);
}

KO_TEST_MAIN(TestNodeLoading)
#include "tst_nodeloading.moc"
