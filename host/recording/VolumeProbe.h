#ifndef KO_VOLUMEPROBE_H
#define KO_VOLUMEPROBE_H

#include "HostExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace ko {

/// Tells whether a path lies on a mounted volume with the camera-side recording file system: one with the
/// file ".koffs" at its root, see docs/recording.md.
///
/// A volume whose server does not answer makes every call that touches it hang. So the root is looked at in
/// a thread of its own, for which nobody waits longer than a moment.
namespace VolumeProbe {

/// Makes KoFFSDevice::get() ask this host.
KO_HOST_EXPORT void install();

/// Whether \a path, an absolute one of this computer, lies on such a volume. Returns within Patience; a
/// volume that has not answered by then is none, until it has. What was found out is good for some
/// seconds. Callable from any thread.
KO_HOST_EXPORT bool isVolume(const QString& path);

constexpr int Patience = 200;           ///< milliseconds
constexpr int GoodFor = 5000;           ///< milliseconds
constexpr int MountsGoodFor = 100;      ///< milliseconds
constexpr char Marker[] = ".koffs";     ///< name of the file
constexpr char Signature[] = "KoFFS 1"; ///< how the file begins

/// The mount points in the text of /proc/self/mountinfo.
KO_HOST_EXPORT QStringList mountPoints(const QByteArray& mountInfo);

/// The mount point of the volume that \a path lies on; empty for a path that is not absolute.
KO_HOST_EXPORT QString rootOf(const QString& path, const QStringList& mountPoints);

/// Replaces the look at a root, so that a test can let it take its time. Null takes it back.
KO_HOST_EXPORT void setLook(std::function<bool(const QString& root)> look);

} // namespace VolumeProbe

} // namespace ko

#endif
