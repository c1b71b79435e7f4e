#ifndef KO_NODECOMMANDS_H
#define KO_NODECOMMANDS_H

#include "dialogs/NodeDialog.h"

#include <QStringList>

namespace ko {

class MainWindow;

/// What can be done with nodes, mostly with those that are selected in the window.
namespace NodeCommands {

/// The flags of the editor of a node.
constexpr unsigned EditFlags =
    NodeDialog::FromList | NodeDialog::EnvironmentControls | NodeDialog::FillLayoutLists;

void add(MainWindow& window);
void edit(MainWindow& window);

/// Offers to add a node that is like the selected one, in all that is asked when a node is added.
void duplicate(MainWindow& window);
void showProperties(MainWindow& window);
void editCredentials(MainWindow& window);
void editRecording(MainWindow& window);

/// In the user's browser.
void openWebPage(MainWindow& window);

/// The selected rows as a spreadsheet takes them: the columns that are shown, parted by tabs.
void copyRows(MainWindow& window);
void copyAddresses(MainWindow& window);

/// The devices among the selected nodes; when there is none, the window says so.
QStringList selectedDevices(MainWindow& window);

/// The editor of one node.
void open(MainWindow& window, const QString& id, bool readOnly = false);

} // namespace NodeCommands

} // namespace ko

#endif
