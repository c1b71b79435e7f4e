#include "utils/NodeDBUtils.h"

#include "interfaces/INodeDriverComponent.h"
#include "ko/LogQt.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "kogen/Property.h"
#include "recording/KoFFSDevice.h"

#include <QObject>
#include <QRegExp>

namespace ko {

namespace {

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

template <int count>
QStringList listOf(const char* const (&texts)[count])
{
    QStringList list;
    for (const char* text : texts)
        list.append(latin1(text));
    return list;
}

QStringList resolutions()
{
    static const char* const texts[] = {"PDA (160x120)",   "CIF (320x240)",  "VGA (640x480)",
                                        "SVGA (800x600)",  "XGA (1024x768)", "MEGA (1280x960)",
                                        "QXGA (2048x1536)"};
    return listOf(texts);
}

QStringList framerates()
{
    static const char* const texts[] = {"25.0", "20.0", "16.0", "12.0", "6.0", "4.0",
                                        "3.0",  "2.0",  "1.0",  "0.5",  "0.25"};
    return QStringList(QObject::tr("Unlimited")) + listOf(texts);
}

QStringList qualities()
{
    static const char* const texts[] = {"90%", "80%", "70%", "60%", "50%", "40%", "30%", "20%", "10%"};
    return listOf(texts);
}

QRegExp resolutionPattern()
{
    return QRegExp(latin1("([ ]{1}([(]{1}([0-9]{2,})x([0-9]{2,})[)]{1}))$"));
}

QRegExp frameratePattern()
{
    return QRegExp(latin1("([0-9]{1,}.[0-9]{1,})")); // any character may stand for the point
}

QRegExp qualityPattern()
{
    return QRegExp(latin1("([0-9]{2})%"));
}

QString firstFolderOf(const QString& cameraId)
{
    return NodeDB::getDB()->relatedNodes(cameraId, RecordingFolderRelation).value(0);
}

void removeFirstFolder(const QString& cameraId)
{
    const QString folder = firstFolderOf(cameraId);
    if (!folder.isEmpty())
        NodeDB::getDB()->removeNodeRelation(cameraId, folder, RecordingFolderRelation);
}

void addFolder(const QString& cameraId, const QString& folderId)
{
    NodeDB::getDB()->addNodeRelation(cameraId, folderId, RecordingFolderRelation);
}

void writeStorageUsage(const QString& cameraId, int storageUsage, bool useRecordingTransponder)
{
    Node* camera = NodeDB::getDB()->beginUpdateNode(cameraId, -1);
    if (!camera)
        return;
    camera->setIntProperty(PropertyKeys::RecordingStorageUsage, storageUsage);
    camera->setBoolProperty(PropertyKeys::UseRecordingTransponder, useRecordingTransponder);
    NodeDB::getDB()->endUpdateNode(camera);
}

void writeFolder(const QString& folderId, const QString& cameraId, const QString& path, const QString& user,
                 const QString& password)
{
    Node* folder = NodeDB::getDB()->beginUpdateNode(folderId, -1);
    if (!folder)
        return;
    folder->setStringProperty(PropertyKeys::CameraID, cameraId);
    folder->setStringProperty(PropertyKeys::Path, path);
    folder->setStringProperty(PropertyKeys::User, user);
    folder->setStringProperty(PropertyKeys::Password, password);
    folder->setBoolProperty(PropertyKeys::UseGlobalPath, false);
    folder->setBoolProperty(PropertyKeys::SavePassword, true);
    NodeDB::getDB()->endUpdateNode(folder);
}

void assignIndividualFolder(const QString& cameraId, QString& folderNodeId, const QString& path)
{
    if (folderNodeId.isEmpty())
        folderNodeId = NodeDBUtils::createRecordingFolderNode(cameraId, false, path);
    else if (firstFolderOf(cameraId) == folderNodeId)
        return;
    removeFirstFolder(cameraId);
    addFolder(cameraId, folderNodeId);
}

} // namespace

QStringList NodeDBUtils::sm_Resolutions = resolutions();
QStringList NodeDBUtils::sm_Framerates = framerates();
QStringList NodeDBUtils::sm_Qualities = qualities();
const QString NodeDBUtils::sm_ResCustom = QString::fromLocal8Bit("Custom");

void NodeDBUtils::StringToResolution(const QString& text, int& width, int& height)
{
    QRegExp pattern = resolutionPattern();
    const bool found = pattern.indexIn(text) >= 0;
    width = found ? pattern.cap(3).toInt() : -1;
    height = found ? pattern.cap(4).toInt() : -1;
}

const QString NodeDBUtils::ResolutionToString(int width, int height)
{
    QRegExp pattern = resolutionPattern();
    for (const QString& text : std::as_const(sm_Resolutions)) {
        if (pattern.indexIn(text) >= 0 && pattern.cap(3).toInt() == width && pattern.cap(4).toInt() == height)
            return text;
    }
    return QString();
}

float NodeDBUtils::StringToFramerate(const QString& text)
{
    if (text == sm_Framerates.first())
        return 0.0f;
    QRegExp pattern = frameratePattern();
    return pattern.indexIn(text) >= 0 ? pattern.cap(1).toFloat() : 0.0f;
}

const QString NodeDBUtils::FramerateToString(float rate)
{
    if (rate == 0.0f)
        return sm_Framerates.first();
    QRegExp pattern = frameratePattern();
    for (const QString& text : std::as_const(sm_Framerates)) {
        if (pattern.indexIn(text) >= 0 && pattern.cap(1).toFloat() == rate)
            return text;
    }
    return QString();
}

int NodeDBUtils::StringToQuality(const QString& text)
{
    QRegExp pattern = qualityPattern();
    return pattern.indexIn(text) >= 0 ? pattern.cap(1).toInt() : -1;
}

const QString NodeDBUtils::QualityToString(int quality)
{
    QRegExp pattern = qualityPattern();
    for (const QString& text : std::as_const(sm_Qualities)) {
        if (pattern.indexIn(text) >= 0 && pattern.cap(1).toInt() == quality)
            return text;
    }
    return QString();
}

QString NodeDBUtils::factoryExtension(const Node& camera)
{
    const QString extension = camera.stringProperty(PropertyKeys::FactoryIP, QString());
    return extension == latin1("10_0_0_0") ? QString() : extension;
}

kom::smart<NodeHint> NodeDBUtils::recordingFolderHint(const QString& path, bool useGlobalPath,
                                                      const QString& cameraId)
{
    const kom::smart<INodeDriverComponent> driver = NodeDB::getDB()->nodeDriver(RecordingFolderType);
    kom::smart<NodeHint> hint =
        driver.null() ? kom::smart<NodeHint>() : driver->createNodeHint(RecordingFolderType);
    if (hint.null()) {
        LogQt::line(LogQt::Error, latin1("Node driver (RecordingFolderNode) is missing"));
        return hint;
    }
    hint->setName(path);
    hint->addProperty(kogen::StringProperty(PropertyKeys::Path, path));
    hint->addProperty(kogen::BoolProperty(PropertyKeys::UseGlobalPath, useGlobalPath));
    if (!cameraId.isEmpty())
        hint->addProperty(kogen::StringProperty(PropertyKeys::CameraID, cameraId));
    const bool isVolume = !KoFFSDevice::get(path.toStdWString()).null();
    hint->addProperty(kogen::BoolProperty(PropertyKeys::KoFFS, isVolume));
    return hint;
}

QString NodeDBUtils::createRecordingFolderNode(const QString& cameraId, bool useGlobalPath,
                                               const QString& path)
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(cameraId);
    if (camera.null())
        return QString();
    const QString folder = useGlobalPath ? camera->stringProperty(PropertyKeys::FactoryIP, QString()) : path;
    const kom::smart<NodeHint> hint = recordingFolderHint(folder, useGlobalPath, cameraId);
    if (hint.null())
        return QString();

    QString existing = NodeDB::getDB()->lookupHint(*hint);
    if (existing.isEmpty()) {
        NodeDB::getDB()->newNodeHint(*hint);
        return NodeDB::getDB()->lookupHint(*hint);
    }
    if (Node* node = NodeDB::getDB()->beginUpdateNode(existing, -1)) {
        node->takeOverProperties(*hint);
        NodeDB::getDB()->endUpdateNode(node);
    }
    return existing;
}

void NodeDBUtils::configurePlayerSource(const QString& cameraId, int storageUsage,
                                        bool useRecordingTransponder, QString& folderNodeId,
                                        const QString& path, const QString& user, const QString& password)
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(cameraId);
    if (camera.null())
        return;
    const int currentUsage = camera->intProperty(PropertyKeys::RecordingStorageUsage, ViaCamera);
    const bool sameTransponder =
        camera->boolProperty(PropertyKeys::UseRecordingTransponder, false) == useRecordingTransponder;
    const bool sameUsage = currentUsage == storageUsage;
    if (sameUsage && sameTransponder && (storageUsage == ViaCamera || storageUsage == DefaultPath))
        return;

    if (storageUsage == DefaultPath) {
        removeFirstFolder(cameraId);
        addFolder(cameraId, createRecordingFolderNode(cameraId, true, QString()));
        writeStorageUsage(cameraId, DefaultPath, useRecordingTransponder);
    } else if (storageUsage == OwnFolder) {
        assignIndividualFolder(cameraId, folderNodeId, path);
        // The usage may be the same while the folder is another one.
        if (!sameUsage || !sameTransponder)
            writeStorageUsage(cameraId, OwnFolder, useRecordingTransponder);
        writeFolder(folderNodeId, cameraId, path, user, password);
    } else {
        writeStorageUsage(cameraId, ViaCamera, useRecordingTransponder);
    }
}

} // namespace ko
