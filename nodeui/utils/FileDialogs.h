#ifndef KO_FILEDIALOGS_H
#define KO_FILEDIALOGS_H

#include "NodeUIExport.h"

#include <QString>

class QWidget;

namespace ko {

/// Dialogs that choose files and folders and open none of the files that they list.
///
/// The toolkit's own ones read files to learn their types, and a desktop's may run in this process and read
/// them for thumbnails. Who closes any descriptor of a file gives up all locks that his process holds on
/// it, those of an open database too.
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

/// A folder that exists. Begins with \a start, if there is one.
KO_NODEUI_EXPORT QString existingFolder(QWidget* parent, const QString& title,
                                        const QString& start = QString());

} // namespace FileDialogs

} // namespace ko

#endif
