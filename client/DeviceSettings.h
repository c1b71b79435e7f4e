#ifndef KO_DEVICESETTINGS_H
#define KO_DEVICESETTINGS_H

#include <QStringList>

class QWidget;

namespace ko {

class HostNodeDB;

/// The dialogs that give devices settings in common, with the questions that come first where OK would do
/// more than the user may think of.
///
/// Both return what was done, or why nothing could be, as a line for the status bar; an empty one after a
/// cancel. Every change is logged and on disk when they return.
namespace DeviceSettings {

/// Where the recordings are played from. \a devices must not be empty.
QString editRecording(HostNodeDB& db, const QStringList& devices, QWidget* parent);

/// User name and password.
QString editCredentials(HostNodeDB& db, const QStringList& devices, QWidget* parent);

} // namespace DeviceSettings

} // namespace ko

#endif
