#ifndef KO_CHANGEPREVIEW_H
#define KO_CHANGEPREVIEW_H

#include "model/Cause.h"

#include <QStringList>

#include <optional>

class QDialog;

namespace ko {

class HostNodeDB;

/// Shows line by line what a dialog for many nodes would change, before anything is stored, if the user wants
/// that. The dialogs themselves know nothing of it: what their OK changes is taken back at once, shown, and
/// done when it is agreed to.
namespace ChangePreview {

/// Kept from one start to the next; off at first.
bool isWanted();
void setWanted(bool wanted);

/// Runs \a dialog, which changes \a nodes when it is accepted, and logs for each of them that is changed that
/// it was. On the disk when it returns. From the preview, Cancel leads back into the dialog, with all that
/// was entered there.
///
/// Returns the nodes that were changed: without a preview all of them; none after a cancel.
std::optional<QStringList> exec(QDialog& dialog, HostNodeDB& db, const QStringList& nodes, Purpose purpose);

} // namespace ChangePreview

} // namespace ko

#endif
