#ifndef KO_REMOTEPREVIEWDRAFT_H
#define KO_REMOTEPREVIEWDRAFT_H

#include "HostExport.h"
#include "ko/Types.h"
#include "model/ChangeScope.h"

#include <QObject>

#include <optional>

namespace ko {

class RecordingFolderAssignmentDialog;

/// Gives a camera the node with its settings for the remote preview as soon as its box is checked in the
/// dialog, so that "Settings..." has something to show. A camera that is not reached that way when the dialog
/// closes loses it again.
class KO_HOST_EXPORT RemotePreviewDraft : public QObject
{
public:
    /// Belongs to \a dialog, which is that of \a camera.
    RemotePreviewDraft(const NodeID& camera, RecordingFolderAssignmentDialog* dialog);

private:
    void make();
    void closed();

    const NodeID m_camera;
    NodeID m_made;                      ///< empty if the camera has one of its own
    std::optional<ChangeScope> m_scope; ///< with what the dialog changes it is one change set
};

} // namespace ko

#endif
