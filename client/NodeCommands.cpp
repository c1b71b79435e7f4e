#include "NodeCommands.h"

#include "AddAndNext.h"
#include "CameraChecking.h"
#include "ChangePreview.h"
#include "ChangedMeanwhile.h"
#include "DeviceSettings.h"
#include "EditSeveralDialog.h"
#include "FormFields.h"
#include "LayoutAdapter.h"
#include "MainWindow.h"
#include "NodeHistoryPage.h"
#include "NodeListView.h"
#include "PictureView.h"
#include "TypeChange.h"
#include "UndoCommands.h"
#include "audit/AuditLog.h"
#include "audit/NodeLogEntries.h"
#include "database/HostNodeDB.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "drivers/NodeTypes.h"
#include "inspector/InspectorWidget.h"
#include "ko/IPDeviceNode.h"
#include "ko/OutsideText.h"
#include "utils/WindowTitle.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace ko {

namespace NodeCommands {

namespace {

const unsigned addFlags = NodeDialog::FromList | NodeDialog::EnvironmentControls;

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

void editSeveral(MainWindow& window)
{
    HostNodeDB& db = window.database();
    const QStringList ids = window.list().selectedIds();
    const ENodeType type = db.summary(ids.first()).type;
    if (std::any_of(ids.cbegin(), ids.cend(),
                    [&](const QString& id) { return db.summary(id).type != type; })) {
        window.say(MainWindow::tr(
            "Only nodes of one type can be edited together. \"Type\" above the list shows those of one."));
        return;
    }
    ForMany<EditSeveralDialog> dialog(db, ids, Purpose::Edit, db, type, ids, &window);
    const std::optional<QStringList> changed = dialog.run();
    if (!changed)
        return;
    window.applyChanges();
    window.sayDone(MainWindow::tr("%n node(s) edited.", nullptr, int(changed->size())));
}

void runAddDialog(MainWindow& window, AddNodeDialog& dialog)
{
    window.exec(dialog);
    const kom::smart<const Node> node = window.database().node(dialog.nodeId());
    if (node.null())
        return;
    window.database().auditLog().log(NodeLogEntry(NodeLogEntry::Added, node->name()));
    window.applyChanges();
    window.list().selectNode(dialog.nodeId());
    window.sayDone(MainWindow::tr("\"%1\" was added.").arg(OutsideText::visible(calledInTitles(*node))));
}

} // namespace

QStringList selectedDevices(MainWindow& window)
{
    QStringList devices;
    const QStringList ids = window.list().selectedIds();
    for (const QString& id : ids) {
        if (NodeTypes::isDevice(window.database().summary(id).type))
            devices.append(id);
    }
    if (devices.isEmpty())
        window.say(MainWindow::tr("No camera is selected. Select one or more in the list first."));
    return devices;
}

void open(MainWindow& window, const QString& id, bool readOnly)
{
    readOnly = readOnly || window.database().isReadOnly();
    const LayoutAdapter layouts;
    EditNodeDialog dialog(id, &window, readOnly, EditFlags, &layouts);
    QObject::connect(&window.database(), &NodeDB::nodeUpdated, &dialog, [&](const NodeID& updated) {
        const kom::smart<const Node> node =
            updated == id ? window.database().node(id) : kom::smart<const Node>();
        if (!node.null())
            dialog.setWindowTitle(
                EditNodeDialog::tr("Properties of %1").arg(inWindowTitle(calledInTitles(*node))));
    });
    NodeHistoryPage::addTo(dialog, window.database(), id);
    ChangedMeanwhile::addTo(dialog, window.database(), id,
                            readOnly ? NodeEditors::Access::Read : NodeEditors::Access::Write);
    if (readOnly)
        PictureView::addTo(dialog, window.checking().pictures(), id);
    const qint64 before = window.undoing().lastStep();
    window.exec(dialog);
    const kom::smart<const Node> node = window.database().node(id);
    if (dialog.result() != QDialog::Accepted || node.null() || window.undoing().lastStep() == before)
        return;
    window.applyChanges();
    window.sayDone(MainWindow::tr("\"%1\" was changed.").arg(OutsideText::visible(calledInTitles(*node))));
}

void add(MainWindow& window)
{
    const QList<ENodeType> types = typesToAdd();
    std::optional<AddAndNext::Kept> kept;
    do {
        AddNodeDialog dialog(&window, &window, &types, false, addFlags);
        auto* next = new AddAndNext(&dialog);
        if (kept)
            next->begin(*kept);
        new TypeChange(&dialog);
        runAddDialog(window, dialog);
        kept =
            next->isWanted() && !dialog.nodeId().isEmpty() ? std::make_optional(next->kept()) : std::nullopt;
    } while (kept);
}

void duplicate(MainWindow& window)
{
    const NodeSummary summary = window.database().summary(window.list().selectedIds().value(0));
    const kom::smart<const Node> node = window.database().node(summary.id);
    const std::unique_ptr<QWidget> original(
        node.null() ? nullptr : node->createInspectorWidget(false, NodeDialog::FromList));
    if (!original || !NodeTypes::canBeAdded(summary.type)) {
        window.say(MainWindow::tr("Nodes of this type cannot be added."));
        return;
    }
    const QList<ENodeType> types = {summary.type};
    AddNodeDialog dialog(&window, &window, &types, false, addFlags);
    const FormFields::Values values = FormFields::values(original.get());
    const QList<QWidget*> fields = FormFields::in(&dialog);
    for (QWidget* field : fields) {
        if (values.contains(field->objectName()))
            FormFields::enter(field, values.value(field->objectName()));
    }
    runAddDialog(window, dialog);
}

void edit(MainWindow& window)
{
    if (window.list().selectedCount() > 1)
        editSeveral(window);
    else
        openSelected(window, false);
}

void showProperties(MainWindow& window)
{
    openSelected(window, true);
}

void editCredentials(MainWindow& window)
{
    const QStringList devices = selectedDevices(window);
    if (devices.isEmpty())
        return;
    const QString done = DeviceSettings::editCredentials(window.database(), devices, &window);
    if (!done.isEmpty())
        window.checking().offerToTry(done, devices);
}

void editRecording(MainWindow& window)
{
    const QStringList devices = selectedDevices(window);
    const QString done =
        devices.isEmpty() ? QString() : DeviceSettings::editRecording(window.database(), devices, &window);
    if (!done.isEmpty())
        window.sayDone(done);
}

void openWebPage(MainWindow& window)
{
    const QString id = window.list().selectedIds().value(0);
    const auto device = window.database().node(id).cast<const IPDeviceNode>();
    if (device.null() || device->address().isEmpty()) {
        window.say(MainWindow::tr("This node has no address. Devices get theirs in Node > Edit."));
        return;
    }
    QUrl url;
    url.setScheme(device->useSSL() ? QStringLiteral("https") : QStringLiteral("http"));
    url.setHost(device->address());
    if (device->port() != (device->useSSL() ? 443 : 80))
        url.setPort(device->port());
    if (!url.isValid() || !QDesktopServices::openUrl(url))
        window.say(
            MainWindow::tr(
                "The web page of %1 could not be opened. Choose a browser in the settings of your desktop.")
                .arg(device->address()));
}

void copyRows(MainWindow& window)
{
    QApplication::clipboard()->setText(window.list().selectedText());
    window.say(MainWindow::tr("%n row(s) copied.", nullptr, window.list().selectedCount()));
}

void copyAddresses(MainWindow& window)
{
    QStringList addresses;
    const QStringList ids = window.list().selectedIds();
    for (const QString& id : ids) {
        const QString address = window.database().summary(id).location;
        if (!address.isEmpty())
            addresses.append(address);
    }
    if (!addresses.isEmpty())
        QApplication::clipboard()->setText(addresses.join(QLatin1Char('\n')));
    window.say(MainWindow::tr("%n address(es) copied.", nullptr, int(addresses.size())));
}

} // namespace NodeCommands

} // namespace ko
