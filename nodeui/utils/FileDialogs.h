#ifndef KO_FILEDIALOGS_H
#define KO_FILEDIALOGS_H

#include "NodeUIExport.h"

#include <QString>

class QWidget;

namespace ko {

/// The dialogs of the desktop, or the toolkit's own, that choose files and folders. The desktop's may open
/// the files that they list, for types and thumbnails: a host whose files have locks that belong to the
/// process loses those. The toolkit's open none.
///
/// Each returns a null string when the user cancels. They begin in the folder of the last choice.
namespace FileDialogs {

/// A file that exists. \a filter as QFileDialog takes it.
KO_NODEUI_EXPORT QString openFile(QWidget* parent, const QString& title, const QString& filter = QString());

/// A file that exists, or the name of one to be made.
KO_NODEUI_EXPORT QString fileOrNewName(QWidget* parent, const QString& title,
                                       const QString& filter = QString());

/// A file to be written; asks before one that exists is chosen. \a name is proposed.
KO_NODEUI_EXPORT QString saveFile(QWidget* parent, const QString& title, const QString& name,
                                  const QString& filter = QString());

/// A folder that exists, or one of a server by its name, "//server/share", which this computer may see only
/// when it is used. Begins with \a start, if there is one.
KO_NODEUI_EXPORT QString existingFolder(QWidget* parent, const QString& title,
                                        const QString& start = QString());

} // namespace FileDialogs

} // namespace ko

#endif
