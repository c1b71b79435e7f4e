#ifndef KO_TYPES_H
#define KO_TYPES_H

#include <QString>

namespace ko {

/// Identifier of a node, unique in its database. Written "ko::NodeID" in connection strings.
typedef QString NodeID;

/// Kind of a node. A host may know more kinds than are named here.
enum ENodeType : int {
    AllNodeTypes = -1, ///< every type at once; accepted by NodeDB::nodeIdList() only
    RecordingFolderType = 0,
    ViewType = 1,
    IPDeviceType = 2,
    UrlCameraType = 3,     ///< generic camera driven by URLs
    ChannelDeviceType = 5, ///< device with several video channels
    InternalRecorderType = 11,
    RecordingTransponderType = 12
};

/// Directed relation between two nodes.
enum ENodeRelationType : int {
    RecordingTransponderRelation = 0, ///< camera to its remote preview node
    RecordingFolderRelation = 1       ///< camera to its recording folder
};

/// How much of a device's configuration the client may change; -1 where it was never set.
enum ENodeControl : int { FullControl = 0, ImageMode = 1, ViewerMode = 2 };

/// Where a camera's recordings are played from: its property "RecordingStorageUsage".
enum ERecordingUsage : int {
    ViaCamera = 0,
    DefaultPath = 1, ///< the camera's folder below the default file server path
    OwnFolder = 2,   ///< a recording folder that was assigned to the camera
    // Of older databases, where the remote preview server had no flag of its own.
    DefaultPathByTransponder = 3,
    OwnFolderByTransponder = 4
};

/// Class of the connection over which a device is reached; -1 on a device means: as the database says.
enum ENodeBandwidth : int { SlowRemote = 0, FastRemote = 1, SlowLocal = 2, FastLocal = 3 };

/// TCP ports at which a device is reached unless somebody says otherwise, without and with SSL.
enum { HttpPort = 80, HttpsPort = 443 };

} // namespace ko

#endif
