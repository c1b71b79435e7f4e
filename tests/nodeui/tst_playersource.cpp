#include "support/FolderHost.h"
#include "support/TestMain.h"

#include "ko/LogQt.h"
#include "ko/NodeHint.h"
#include "recording/KoFFSDevice.h"
#include "utils/NodeDBUtils.h"

using namespace ko;
using testsupport::FolderHost;

namespace {

const char Camera[] = "cam";
const char Own[] = "own";     ///< the first folder related to the camera, where it has any
const char Second[] = "own2"; ///< the second one
const char Other[] = "other"; ///< a folder that is not related to it

/// All a node's properties as "key=value" in the order of their keys.
QStringList propertiesOf(const QString& id)
{
    QStringList list;
    const auto node = NodeDB::getDB()->node(id);
    if (node.null())
        return list;
    for (const auto& entry : node->properties())
        list.append(entry.first + "=" + entry.second->value().toString());
    return list;
}

class LogLines : public LogSink
{
public:
    LogLines() { LogQt::instance().setSink(this); }
    ~LogLines() override { LogQt::instance().setSink(nullptr); }
    void write(int level, const QString& line) override { lines.append(QString::number(level) + " " + line); }

    QStringList lines;
};

kom::smart<CKoFFSVolume> volumeAt(const std::wstring& path)
{
    return path == L"//cam7/koffs" ? kom::makeSmart<CKoFFSVolume>(path) : kom::smart<CKoFFSVolume>();
}

} // namespace

class tst_PlayerSource : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void createsAFolder();
    void createsAFolderBelowTheDefaultPath();
    void folderWithoutFactoryExtensionHasAnEmptyPath();
    void secondCallRefreshesTheFolder();
    void folderThatCannotBeOpenedIsStillTheAnswer();
    void recognisesTheCameraSideFileSystem();
    void missingCameraMakesNoFolder();
    void missingDriverIsLogged();
    void driverWithoutHintMakesNoFolder();

    void configures_data();
    void configures();
    void missingCameraIsNotConfigured();
    void usageOneWithoutDriverRelatesToNothing();
    void absentPropertiesCountAsUsageZero();
    void unknownUsageIsZero_data();
    void unknownUsageIsZero();

private:
    void relate(int folders);
    QStringList related() const;

    std::unique_ptr<FolderHost> db;
};

void tst_PlayerSource::init()
{
    db = std::make_unique<FolderHost>();
    db->addCamera(Camera, "Gate").setStringProperty("FactoryIP", "ext7");
    db->clearCalls();
}

void tst_PlayerSource::cleanup()
{
    db.reset();
    KoFFSDevice::setProbe(nullptr);
}

void tst_PlayerSource::relate(int folders)
{
    const char* const ids[] = {Own, Second};
    for (int i = 0; i < folders; ++i)
        db->addNodeRelation(Camera, ids[i], RecordingFolderRelation);
    // The relation to a remote preview node is another one.
    db->addNodeRelation(Camera, "preview", RecordingTransponderRelation);
    db->clearCalls();
}

QStringList tst_PlayerSource::related() const
{
    return db->relatedNodes(Camera, RecordingFolderRelation);
}

void tst_PlayerSource::createsAFolder()
{
    QCOMPARE(NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam"), QString("new1"));
    QCOMPARE(db->madeCalls(),
             QStringList({"createNodeHint(0)", "setName(//srv/cam)", "addProperty(Path,//srv/cam)",
                          "addProperty(UseGlobalPath,false)", "addProperty(CameraID,cam)",
                          "addProperty(KoFFS,false)", "newNodeHint(//srv/cam)"}));
    QCOMPARE(db->lookups, QStringList({"//srv/cam", "//srv/cam"}));
    QCOMPARE(propertiesOf("new1"), QStringList({"CameraID=cam", "KoFFS=false", "Name=//srv/cam",
                                                "Path=//srv/cam", "UseGlobalPath=false"}));
    QCOMPARE(db->node("new1")->type, RecordingFolderType);
    QVERIFY(related().isEmpty());
}

void tst_PlayerSource::createsAFolderBelowTheDefaultPath()
{
    const QString id = NodeDBUtils::createRecordingFolderNode(Camera, true, "ignored");
    QCOMPARE(propertiesOf(id),
             QStringList({"CameraID=cam", "KoFFS=false", "Name=ext7", "Path=ext7", "UseGlobalPath=true"}));
}

void tst_PlayerSource::folderWithoutFactoryExtensionHasAnEmptyPath()
{
    db->addCamera("bare", "Bare");
    const QString id = NodeDBUtils::createRecordingFolderNode("bare", true, "ignored");
    QVERIFY(!id.isEmpty());
    QCOMPARE(propertiesOf(id),
             QStringList({"CameraID=bare", "KoFFS=false", "Name=", "Path=", "UseGlobalPath=true"}));
}

void tst_PlayerSource::secondCallRefreshesTheFolder()
{
    const QString id = NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam");
    Node* node = db->beginUpdateNode(id, -1);
    node->setStringProperty("Name", "renamed");
    node->setBoolProperty("UseGlobalPath", true);
    node->setBoolProperty("KoFFS", true);
    node->setStringProperty("User", "kept");
    db->endUpdateNode(node);
    db->clearCalls();

    QCOMPARE(NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam"), id);
    QCOMPARE(db->madeCalls().mid(6), QStringList({"beginUpdateNode(new1,-1)", "takeOverProperties(//srv/cam)",
                                                  "endUpdateNode(new1)"}));
    QCOMPARE(propertiesOf(id), QStringList({"CameraID=cam", "KoFFS=false", "Name=//srv/cam", "Path=//srv/cam",
                                            "UseGlobalPath=false", "User=kept"}));
    QCOMPARE(db->nodeIdList(RecordingFolderType).size(), 1);
}

void tst_PlayerSource::folderThatCannotBeOpenedIsStillTheAnswer()
{
    class Closed : public FolderHost
    {
    public:
        QString lookupHint(const NodeHint&) const override { return "gone"; }
    };
    db.reset();
    db = std::make_unique<Closed>();
    db->addCamera(Camera, "Gate");
    db->clearCalls();
    QCOMPARE(NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam"), QString("gone"));
    QCOMPARE(db->madeCalls().mid(6), QStringList({"beginUpdateNode(gone,-1)"}));
}

void tst_PlayerSource::recognisesTheCameraSideFileSystem()
{
    KoFFSDevice::setProbe(volumeAt);
    const QString volume = NodeDBUtils::createRecordingFolderNode(Camera, false, "//cam7/koffs");
    const QString plain = NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam");
    QCOMPARE(db->node(volume)->boolProperty("KoFFS", false), true);
    QCOMPARE(db->node(plain)->boolProperty("KoFFS", true), false);
}

void tst_PlayerSource::missingCameraMakesNoFolder()
{
    QVERIFY(NodeDBUtils::createRecordingFolderNode("nobody", false, "//srv/cam").isNull());
    QVERIFY(NodeDBUtils::createRecordingFolderNode(QString(), false, "//srv/cam").isNull());
    QCOMPARE(db->madeCalls(), QStringList());
}

void tst_PlayerSource::missingDriverIsLogged()
{
    db->defineType(RecordingFolderType, "Recording folder", FolderHost::NoDriver);
    LogLines log;
    QVERIFY(NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam").isNull());
    QCOMPARE(log.lines, QStringList({"3 Node driver (RecordingFolderNode) is missing"}));
    QCOMPARE(db->madeCalls(), QStringList());
}

void tst_PlayerSource::driverWithoutHintMakesNoFolder()
{
    db->defineType(RecordingFolderType, "Recording folder", FolderHost::DriverWithoutHint);
    QVERIFY(NodeDBUtils::createRecordingFolderNode(Camera, false, "//srv/cam").isNull());
    QCOMPARE(db->madeCalls(), QStringList({"createNodeHint(0)"}));
}

void tst_PlayerSource::configures_data()
{
    QTest::addColumn<int>("currentUsage");
    QTest::addColumn<int>("usage");
    QTest::addColumn<bool>("sameFlag");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("relatedFolders");
    const QStringList folders = {"", Own, Other, "missing"};
    for (int current = 0; current <= 4; ++current) {
        for (int usage = 0; usage <= 3; ++usage) {
            for (int same = 0; same <= 1; ++same) {
                for (const QString& folder : folders) {
                    for (int related = 0; related <= 2; ++related)
                        QTest::addRow("%d to %d, %s flag, folder %s, %d related", current, usage,
                                      same ? "same" : "other", qPrintable(folder), related)
                            << current << usage << bool(same) << folder << related;
                }
            }
        }
    }
}

/// What must happen, written down case by case rather than by the rules of the code.
struct Expected
{
    QStringList calls;
    QStringList related;
    QString folder;
    int usage;
    bool flag;
};

static QStringList cameraCalls(int usage, bool flag)
{
    return {"beginUpdateNode(cam,-1)", QString("setIntProperty(RecordingStorageUsage,%1)").arg(usage),
            QString("setBoolProperty(UseRecordingTransponder,%1)").arg(flag ? "true" : "false"),
            "endUpdateNode(cam)"};
}

static QStringList createCalls(const QString& path, bool global)
{
    return {"createNodeHint(0)",
            "setName(" + path + ")",
            "addProperty(Path," + path + ")",
            QString("addProperty(UseGlobalPath,%1)").arg(global ? "true" : "false"),
            "addProperty(CameraID,cam)",
            "addProperty(KoFFS,false)",
            "newNodeHint(" + path + ")"};
}

static QStringList folderCalls(const QString& id)
{
    const QStringList open = {"beginUpdateNode(" + id + ",-1)"};
    if (id == "missing" || NodeDB::getDB()->node(id).null())
        return open;
    return open + QStringList({"setStringProperty(CameraID,cam)", "setStringProperty(Path,//srv/new)",
                               "setStringProperty(User,joe)", "setStringProperty(Password,s3cret)",
                               "setBoolProperty(UseGlobalPath,false)", "setBoolProperty(SavePassword,true)",
                               "endUpdateNode(" + id + ")"});
}

static QString relation(const char* call, const QString& to)
{
    return QString("%1(cam,%2,1)").arg(call, to);
}

static Expected expected(int current, int usage, bool sameFlag, bool newFlag, const QString& folder,
                         const QStringList& related)
{
    const bool oldFlag = sameFlag ? newFlag : !newFlag;
    const Expected nothing = {{}, related, folder, current, oldFlag};
    const QStringList removed =
        related.isEmpty() ? QStringList() : QStringList(relation("removeNodeRelation", related.first()));

    if (usage == 0)
        return current == 0 && sameFlag ? nothing
                                        : Expected{cameraCalls(0, newFlag), related, folder, 0, newFlag};
    if (usage == 1) {
        if (current == 1 && sameFlag)
            return nothing;
        return {removed + createCalls("ext7", true) + QStringList(relation("addNodeRelation", "new1")) +
                    cameraCalls(1, newFlag),
                related.mid(1) + QStringList("new1"), folder, 1, newFlag};
    }
    if (usage == 2) {
        const QStringList camera = current == 2 && sameFlag ? QStringList() : cameraCalls(2, newFlag);
        if (folder.isEmpty())
            return {createCalls("//srv/new", false) + removed +
                        QStringList(relation("addNodeRelation", "new1")) + camera + folderCalls("new1"),
                    related.mid(1) + QStringList("new1"), "new1", 2, newFlag};
        if (related.value(0) == folder)
            return {camera + folderCalls(folder), related, folder, 2, newFlag};
        return {removed + QStringList(relation("addNodeRelation", folder)) + camera + folderCalls(folder),
                related.mid(1) + QStringList(folder), folder, 2, newFlag};
    }
    return {cameraCalls(0, newFlag), related, folder, 0, newFlag};
}

void tst_PlayerSource::configures()
{
    QFETCH(int, currentUsage);
    QFETCH(int, usage);
    QFETCH(bool, sameFlag);
    QFETCH(QString, folder);
    QFETCH(int, relatedFolders);
    const bool newFlag = true;
    Node& camera = *db->beginUpdateNode(Camera, -1);
    camera.setIntProperty("RecordingStorageUsage", currentUsage);
    camera.setBoolProperty("UseRecordingTransponder", sameFlag == newFlag);
    db->endUpdateNode(&camera);
    for (const char* id : {Own, Second, Other})
        db->addNode(RecordingFolderType, id, id).setStringProperty("Path", QString("//srv/old/") + id);
    relate(relatedFolders);
    const QStringList before = related();

    QString assigned = folder;
    NodeDBUtils::configurePlayerSource(Camera, usage, newFlag, assigned, "//srv/new", "joe", "s3cret");

    const Expected wanted = expected(currentUsage, usage, sameFlag, newFlag, folder, before);
    QCOMPARE(db->madeCalls(), wanted.calls);
    QCOMPARE(related(), wanted.related);
    QCOMPARE(assigned, wanted.folder);
    QCOMPARE(db->node(Camera)->intProperty("RecordingStorageUsage", -1), wanted.usage);
    QCOMPARE(db->node(Camera)->boolProperty("UseRecordingTransponder", false), wanted.flag);
    QCOMPARE(db->relatedNodes(Camera, RecordingTransponderRelation), QStringList("preview"));

    for (const char* id : {Own, Second, Other}) {
        const bool written = usage == 2 && assigned == id;
        QStringList properties = {QString("Name=") + id, QString("Path=//srv/old/") + id};
        if (written)
            properties =
                QStringList({"CameraID=cam", QString("Name=") + id, "Password=s3cret", "Path=//srv/new",
                             "SavePassword=true", "UseGlobalPath=false", "User=joe"});
        QCOMPARE(propertiesOf(id), properties);
    }
}

void tst_PlayerSource::missingCameraIsNotConfigured()
{
    for (int usage = 0; usage <= 3; ++usage) {
        QString folder = "untouched";
        NodeDBUtils::configurePlayerSource("nobody", usage, true, folder, "//srv/new", "joe", "s3cret");
        QCOMPARE(folder, QString("untouched"));
    }
    QCOMPARE(db->madeCalls(), QStringList());
}

void tst_PlayerSource::usageOneWithoutDriverRelatesToNothing()
{
    db->defineType(RecordingFolderType, "Recording folder", FolderHost::NoDriver);
    relate(1);
    LogLines log;
    QString folder = "untouched";
    NodeDBUtils::configurePlayerSource(Camera, 1, false, folder, "//srv/new", "joe", "s3cret");
    QCOMPARE(log.lines, QStringList({"3 Node driver (RecordingFolderNode) is missing"}));
    QCOMPARE(db->madeCalls(), QStringList({"removeNodeRelation(cam,own,1)", "addNodeRelation(cam,,1)"}) +
                                  cameraCalls(1, false));
    QCOMPARE(folder, QString("untouched"));
}

void tst_PlayerSource::absentPropertiesCountAsUsageZero()
{
    QString folder;
    NodeDBUtils::configurePlayerSource(Camera, 0, false, folder, "//srv/new", "joe", "s3cret");
    QCOMPARE(db->madeCalls(), QStringList());
    NodeDBUtils::configurePlayerSource(Camera, 0, true, folder, "//srv/new", "joe", "s3cret");
    QCOMPARE(db->madeCalls(), cameraCalls(0, true));
}

void tst_PlayerSource::unknownUsageIsZero_data()
{
    QTest::addColumn<int>("usage");
    QTest::newRow("3") << 3;
    QTest::newRow("4") << 4;
    QTest::newRow("-1") << -1;
    QTest::newRow("99") << 99;
}

void tst_PlayerSource::unknownUsageIsZero()
{
    QFETCH(int, usage);
    relate(2);
    QString folder = Other;
    NodeDBUtils::configurePlayerSource(Camera, usage, false, folder, "//srv/new", "joe", "s3cret");
    QCOMPARE(db->madeCalls(), cameraCalls(0, false));
    QCOMPARE(related(), QStringList({Own, Second}));
    QCOMPARE(folder, QString(Other));
}

KO_TEST_MAIN(tst_PlayerSource)
#include "tst_playersource.moc"
