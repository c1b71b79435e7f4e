#include "exchange/RecordingPath.h"

#include "interfaces/INodeDriverComponent.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "recording/KoFFSDevice.h"
#include "utils/NodeDBUtils.h"

namespace ko {

namespace RecordingPath {

namespace {

kom::smart<const Node> folderOf(const QString& cameraId)
{
    return NodeDB::getDB()->node(NodeDB::getDB()->relatedNodes(cameraId, RecordingFolderRelation).value(0));
}

/// Whether the folder can take another path without changing what another camera or usage relies on.
bool isOwnFolder(const kom::smart<const Node>& folder, const QString& cameraId)
{
    return !folder.null() && folder->stringProperty(PropertyKeys::CameraID, QString()) == cameraId &&
           !folder->boolProperty(PropertyKeys::UseGlobalPath, false);
}

/// Brings along what a folder says of its path when it is made.
void refreshFolder(const QString& folderId, const QString& oldPath, const QString& path)
{
    Node* folder = NodeDB::getDB()->beginUpdateNode(folderId, -1);
    if (!folder)
        return;
    if (folder->name() == oldPath)
        folder->setStringProperty(PropertyKeys::Name, path);
    folder->setBoolProperty(PropertyKeys::KoFFS, !KoFFSDevice::get(path.toStdWString()).null());
    NodeDB::getDB()->endUpdateNode(folder);
}

} // namespace

QString of(const QString& cameraId)
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(cameraId);
    const kom::smart<const Node> folder = folderOf(cameraId);
    if (camera.null() || folder.null() || folder->boolProperty(PropertyKeys::UseGlobalPath, false))
        return QString();
    const int usage = camera->intProperty(PropertyKeys::RecordingStorageUsage, ViaCamera);
    return usage == OwnFolder || usage == OwnFolderByTransponder
               ? folder->stringProperty(PropertyKeys::Path, QString())
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
        oldPath = folder->stringProperty(PropertyKeys::Path, QString());
        user = folder->stringProperty(PropertyKeys::User, QString());
        password = folder->stringProperty(PropertyKeys::Password, QString());
    }
    const bool transponder = camera->boolProperty(PropertyKeys::UseRecordingTransponder, false);
    NodeDBUtils::configurePlayerSource(cameraId, OwnFolder, transponder, folderId, path, user, password);
    if (oldPath != path)
        refreshFolder(folderId, oldPath, path);
}

} // namespace RecordingPath

} // namespace ko
