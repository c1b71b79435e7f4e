#ifndef KO_RECORDINGPATH_H
#define KO_RECORDINGPATH_H

#include <QString>

namespace ko {

/// The path of a camera's individual recording folder, as a survey gives it.
namespace RecordingPath {

/// The path from which the camera's recordings are played; empty unless it has a folder of its own.
QString of(const QString& cameraId);

/// Whether the database can make recording folders.
bool canBeAssigned();

/// Gives the camera an individual folder with this path. A folder that it has keeps its credentials.
void assign(const QString& cameraId, const QString& path);

} // namespace RecordingPath

} // namespace ko

#endif
