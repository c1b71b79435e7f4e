#ifndef KO_NODEDBUTILS_H
#define KO_NODEDBUTILS_H

#include "NodeUIExport.h"
#include "kom/smart.h"

#include <QStringList>

namespace ko {

class Node;
class NodeHint;

/// The words of stream settings, and the rules that tie a camera to its recording folder.
class KO_NODEUI_EXPORT NodeDBUtils
{
public:
    /// What combo boxes offer, in their order. Never changed after the library is loaded.
    static QStringList sm_Resolutions; ///< "VGA (640x480)", ascending
    static QStringList sm_Framerates;  ///< "25.0", descending behind the text for unlimited
    static QStringList sm_Qualities;   ///< "90%", descending

    /// Stands for every resolution that is not in the list. No conversion gives it.
    static const QString sm_ResCustom;

    /// Reads any text that ends in " (640x480)"; -1 and -1 from other texts.
    static void StringToResolution(const QString& text, int& width, int& height);
    /// The entry of sm_Resolutions, or a null string.
    static const QString ResolutionToString(int width, int height);

    /// Frames per second; 0 for unlimited and for texts without a rate of at least three characters.
    static float StringToFramerate(const QString& text);
    /// The entry of sm_Framerates for exactly this rate, 0 being unlimited, or a null string.
    static const QString FramerateToString(float rate);

    /// The last two digits before a percent sign, so 0 from "100%"; -1 without them.
    static int StringToQuality(const QString& text);
    /// The entry of sm_Qualities, or a null string.
    static const QString QualityToString(int quality);

    /// The name of a camera's folder on a file server; empty as long as the camera has the address that every
    /// one leaves the factory with.
    static QString factoryExtension(const Node& camera);

    /// Describes a recording folder named by its path, of no camera if \a cameraId is empty. Null without a
    /// driver of folders, which is logged.
    static kom::smart<NodeHint> recordingFolderHint(const QString& path, bool useGlobalPath,
                                                    const QString& cameraId);

    /// Makes the recording folder of a camera, or refreshes the one that the database takes for the same.
    ///
    /// With \a useGlobalPath the folder is named by the camera's factory extension and \a path is
    /// ignored. Returns the folder's id; a null string without the camera or a driver of folders.
    static QString createRecordingFolderNode(const QString& cameraId, bool useGlobalPath,
                                             const QString& path);

    /// Sets where a camera's recordings are played from.
    ///
    /// \a storageUsage: ViaCamera (relations stay), DefaultPath, or OwnFolder: the folder
    /// \a folderNodeId, which gets \a path, \a user and \a password; an empty id is replaced by that of
    /// a folder made for \a path. Only the first folder related to the camera is replaced.
    static void configurePlayerSource(const QString& cameraId, int storageUsage, bool useRecordingTransponder,
                                      QString& folderNodeId, const QString& path, const QString& user,
                                      const QString& password);
};

} // namespace ko

#endif
