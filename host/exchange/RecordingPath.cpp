#include "exchange/RecordingPath.h"

#include "drivers/PropertyKeys.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "recording/KoFFSDevice.h"
#include "utils/NodeDBUtils.h"

namespace ko {

namespace RecordingPath {

namespace {

const int IndividualFolder = 2;
const int LegacyIndividualFolder = 4;

QString key(const char* name)
{
    return QString::fromLatin1(name);
}

kom::smart<const Node> folderOf(const QString& cameraId)
{
    const QStringList folders = NodeDB::getDB()->relatedNodes(cameraId, RecordingFolderRelation);
    return folders.isEmpty() ? kom::smart<const Node>() : NodeDB::getDB()->node(folders.first());
}

/// Whether the folder can take another path without changing what another camera or usage relies on.
bool isOwnFolder(const kom::smart<const Node>& folder, const QString& cameraId)
{
    return !folder.null() && folder->stringProperty(key(PropertyKeys::CameraID), QString()) == cameraId &&
           !folder->boolProperty(key(PropertyKeys::UseGlobalPath), false);
}

/// Brings along what a folder says of its path when it is made.
void refreshFolder(const QString& folderId, const QString& oldPath, const QString& path)
{
    Node* folder = NodeDB::getDB()->beginUpdateNode(folderId, -1);
    if (!folder)
        return;
    if (folder->name() == oldPath)
        folder->setStringProperty(key(PropertyKeys::Name), path);
    folder->setBoolProperty(key("KoFFS"), !KoFFSDevice::get(path.toStdWString()).null());
    NodeDB::getDB()->endUpdateNode(folder);
}

} // namespace

QString of(const QString& cameraId)
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(cameraId);
    const kom::smart<const Node> folder = folderOf(cameraId);
    if (camera.null() || folder.null() || folder->boolProperty(key(PropertyKeys::UseGlobalPath), false))
        return QString();
    const int usage = camera->intProperty(key(PropertyKeys::RecordingStorageUsage), 0);
    return usage == IndividualFolder || usage == LegacyIndividualFolder
               ? folder->stringProperty(key(PropertyKeys::Path), QString())
               : QString();
}

bool canBeAssigned()
{
    return !NodeDB::getDB()->nodeDriver(RecordingFolderType).null();
}

void assign(const QString& cameraId, const QString& path)
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(cameraId);
    if (camera.null())
        return;
    const kom::smart<const Node> folder = folderOf(cameraId);
    QString folderId;
    QString user;
    QString password;
    QString oldPath = path;
    if (isOwnFolder(folder, cameraId)) {
        folderId = folder->id();
        oldPath = folder->stringProperty(key(PropertyKeys::Path), QString());
        user = folder->stringProperty(key(PropertyKeys::User), QString());
        password = folder->stringProperty(key(PropertyKeys::Password), QString());
    }
    const bool transponder = camera->boolProperty(key("UseRecordingTransponder"), false);
    NodeDBUtils::configurePlayerSource(cameraId, IndividualFolder, transponder, folderId, path, user,
                                       password);
    if (oldPath != path)
        refreshFolder(folderId, oldPath, path);
}

} // namespace RecordingPath

} // namespace ko
