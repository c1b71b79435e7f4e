#include "NodeCommands.h"

#include "DeviceSettings.h"
#include "LayoutAdapter.h"
#include "MainWindow.h"
#include "NodeListView.h"
#include "NodeLogEntries.h"
#include "RemoveNodesBox.h"
#include "TypeChange.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "drivers/NodeTypes.h"
#include "ko/Node.h"

#include <algorithm>

namespace ko {

namespace NodeCommands {

namespace {

const unsigned environmentRow = 0x80;
const unsigned layoutLists = 0x20;
const unsigned listOptions = 17; ///< as the other lists of nodes pass them

/// Those of which a user may add nodes. What is added most often comes first.
QList<ENodeType> typesToAdd()
{
    QList<ENodeType> types = NodeTypes::all();
    types.erase(std::remove_if(types.begin(), types.end(),
                               [](ENodeType type) { return !NodeTypes::canBeAdded(type); }),
                types.end());
    types.removeOne(IPDeviceType);
    types.prepend(IPDeviceType);
    return types;
}

void openSelected(MainWindow& window, bool readOnly)
{
    const QStringList ids = window.list().selectedIds();
    if (ids.size() == 1)
        open(window, ids.first(), readOnly);
}

/// Says so when there is none.
QStringList selectedDevices(MainWindow& window)
{
    QStringList devices;
    const QStringList ids = window.list().selectedIds();
    for (const QString& id : ids) {
        if (NodeTypes::isDevice(window.database().summary(id).type))
            devices.append(id);
    }
    if (devices.isEmpty())
        window.say(MainWindow::tr("No camera is selected."));
    return devices;
}

} // namespace

void open(MainWindow& window, const QString& id, bool readOnly)
{
    const LayoutAdapter layouts;
    EditNodeDialog dialog(id, &window, readOnly, listOptions | environmentRow | layoutLists, &layouts);
    window.exec(dialog);
}

void add(MainWindow& window)
{
    const QList<ENodeType> types = typesToAdd();
    AddNodeDialog dialog(&window, &window, &types, false, listOptions | environmentRow);
    new TypeChange(&dialog);
    window.exec(dialog);
    const kom::smart<const Node> node = window.database().node(dialog.nodeId());
    if (node.null())
        return;
    window.database().auditLog().log(NodeAddLogEntry(node->name()));
    window.applyChanges();
    window.list().selectNode(dialog.nodeId());
}

void edit(MainWindow& window)
{
    openSelected(window, false);
}

void showProperties(MainWindow& window)
{
    openSelected(window, true);
}

void remove(MainWindow& window)
{
    HostNodeDB& db = window.database();
    const QStringList ids = window.list().selectedIds();
    QStringList names;
    names.reserve(int(ids.size()));
    for (const QString& id : ids)
        names.append(db.summary(id).name);
    if (ids.isEmpty() || !confirmRemoval(names, &window))
        return;
    for (int i = 0; i < ids.size(); ++i) {
        if (db.summary(ids.at(i)).id.isEmpty())
            continue; // removed by somebody else while we asked
        db.removeNode(ids.at(i));
        db.auditLog().log(NodeRemoveLogEntry(names.at(i)));
    }
}

void editCredentials(MainWindow& window)
{
    const QStringList devices = selectedDevices(window);
    if (!devices.isEmpty())
        window.say(DeviceSettings::editCredentials(window.database(), devices, &window));
}

void editRecording(MainWindow& window)
{
    const QStringList devices = selectedDevices(window);
    if (!devices.isEmpty())
        window.say(DeviceSettings::editRecording(window.database(), devices, &window));
}

} // namespace NodeCommands

} // namespace ko
