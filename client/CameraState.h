#ifndef KO_CAMERASTATE_H
#define KO_CAMERASTATE_H

#include "devices/DeviceReport.h"

class QColor;
class QPalette;

namespace ko {

/// What the last check said of a camera. It is known as long as the window is there.
struct CameraState
{
    DeviceReport::State state = DeviceReport::NotChecked;
    TranslatableText reason; ///< may be empty
    QDateTime time;          ///< invalid when it was not checked
    bool isOpen = false;     ///< it wanted no password, so none was tried
    DeviceIdentity seen;     ///< of another device than before
};

namespace CameraStates {

/// "Wrong password"
QString text(DeviceReport::State state);

/// When, and why; plain text.
QString details(const CameraState& state);

/// For texts on the ground of a list: green, amber or red, in a shade that can be read there. Not valid where
/// there is nothing to stress.
QColor color(DeviceReport::State state, const QPalette& palette);

/// Those of a report, worst first.
const QVector<DeviceReport::State>& all();

} // namespace CameraStates

} // namespace ko

#endif
