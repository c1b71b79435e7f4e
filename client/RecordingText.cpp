#include "RecordingText.h"

#include "MainWindow.h"
#include "database/HostNodeDB.h"

namespace ko {

namespace RecordingText {

QString of(const NodeSummary& node, const HostNodeDB& db)
{
    switch (node.recordingUsage) {
    case -1:
        return QString();
    case 0:
        return node.type == RecordingFolderType ? QString() : MainWindow::tr("Via camera");
    case 1:
    case 3: // the forms 3 and 4 are of older databases
        return MainWindow::tr("Default file server path");
    default: {
        const QStringList folders = db.relatedNodes(node.id, RecordingFolderRelation);
        return folders.isEmpty() ? QString() : db.summary(folders.first()).location;
    }
    }
}

} // namespace RecordingText

} // namespace ko
