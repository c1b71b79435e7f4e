#ifndef KO_DIALOGFLAGS_H
#define KO_DIALOGFLAGS_H

#include "PlatformExport.h"

#include <Qt>
#include <QtGlobal>

class QWidget;

namespace ko {

/// Window flags of the system's dialogs: title, system menu, minimize and close buttons, no
/// context-help button; with \a maximizable a maximize button too.
KO_PLATFORM_EXPORT Qt::WindowFlags dialogFlags(bool maximizable);

/// Flags of a message box that belongs to the window of \a widget: a sheet where the desktop has them,
/// else a plain dialog.
KO_PLATFORM_EXPORT Qt::WindowFlags sheetDialogFlags(QWidget* widget);

} // namespace ko

#endif
