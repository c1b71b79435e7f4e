#include "DeviceSettings.h"

#include "ChangePreview.h"
#include "FillInDialog.h"
#include "NameList.h"
#include "PlainMessageBox.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "dialogs/NodeAuthenticateDialog.h"
#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "drivers/RemotePreviewDraft.h"
#include "inspector/NodeChangeLogEntry.h"
#include "ko/IPDeviceNode.h"
#include "ko/dialogFlags.h"
#include "utils/NodeDBUtils.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QSet>

#include <algorithm>

namespace ko {

namespace DeviceSettings {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DeviceSettings)
};

/// Of \a devices nothing was done to the others.
QString withOthers(const QString& done, const QStringList& devices, int changed)
{
    const int others = int(devices.size()) - changed;
    return others > 0 ? done + QLatin1Char(' ') + Texts::tr("%n left as they were.", nullptr, others) : done;
}

QStringList namesOf(const HostNodeDB& db, const QStringList& ids)
{
    QStringList names;
    for (const QString& id : ids)
        names.append(db.summary(id).name);
    return names;
}

/// The dialog names the first of them.
void sayHowMany(QDialog& dialog, const QStringList& devices)
{
    if (devices.size() > 1)
        dialog.setWindowTitle(
            Texts::tr("%1 (%n device(s))", nullptr, int(devices.size())).arg(dialog.windowTitle()));
}

/// Whether the camera's folder on a file server can be named.
bool hasExtension(const HostNodeDB& db, const QString& id)
{
    const kom::smart<const Node> camera = db.node(id);
    return !camera.null() && !NodeDBUtils::factoryExtension(*camera).isEmpty();
}

enum class Answer { Cancel, LeaveOut, All, Ask };

/// What is to become of cameras that would get no folder of their own.
Answer askAbout(const QStringList& names, bool areAll, QWidget* parent)
{
    PlainMessageBox box(QMessageBox::Warning, Texts::tr("Access Recordings"), QString(), QMessageBox::Cancel,
                        parent);
    box.setObjectName(QStringLiteral("factoryAddressBox"));
    box.setText(
        Texts::tr("The factory IP address of %n of the selected cameras is not known:", nullptr,
                  int(names.size())) +
        QStringLiteral("\n\n") + listOfNames(names) + QStringLiteral("\n\n") +
        Texts::tr("Their recordings can be played via the camera. On a file server, however, the folder of "
                  "a camera is named by this address: with the default path these cameras would share one "
                  "folder without a name, with a specific path they would lose the path that they have. "
                  "A camera that answers and takes its password tells what its folder can be named by."));
    const QPushButton* ask = box.addButton(Texts::tr("As&k the Cameras..."), QMessageBox::ActionRole);
    QPushButton* leaveOut =
        areAll ? nullptr : box.addButton(Texts::tr("&Leave Them Out"), QMessageBox::AcceptRole);
    const QPushButton* all = box.addButton(Texts::tr("Go On With &All"), QMessageBox::DestructiveRole);
    box.setDefaultButton(leaveOut ? leaveOut : qobject_cast<QPushButton*>(box.button(QMessageBox::Cancel)));
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    const QAbstractButton* pressed = box.clickedButton();
    if (pressed == static_cast<const QAbstractButton*>(ask))
        return Answer::Ask;
    if (leaveOut && pressed == leaveOut)
        return Answer::LeaveOut;
    return pressed == static_cast<const QAbstractButton*>(all) ? Answer::All : Answer::Cancel;
}

/// Takes the cameras out of the list that would get no folder of their own, if the user wants that. False if
/// nothing is to be done.
bool agreeOnCameras(HostNodeDB& db, QStringList* cameras, QWidget* parent)
{
    for (;;) {
        QStringList with;
        QStringList without;
        for (const QString& id : std::as_const(*cameras))
            (hasExtension(db, id) ? with : without).append(id);
        const Answer answer =
            without.isEmpty() ? Answer::All : askAbout(namesOf(db, without), with.isEmpty(), parent);
        if (answer == Answer::LeaveOut)
            *cameras = with;
        if (answer != Answer::Ask)
            return answer != Answer::Cancel;
        FillInDialog::run(db, without, parent);
    }
}

/// Asks before many different user names or passwords become one. Nothing of a password is shown.
bool agreeOnCredentials(const HostNodeDB& db, const QStringList& devices, QWidget* parent)
{
    QSet<QString> users;
    QSet<QString> passwords;
    for (const QString& id : devices) {
        const auto device = db.node(id).cast<const IPDeviceNode>();
        if (device.null())
            continue;
        users.insert(device->user(1));
        passwords.insert(device->password(1));
    }
    if (users.size() <= 1 && passwords.size() <= 1)
        return true;
    PlainMessageBox box(QMessageBox::Warning, Texts::tr("User & Password"), QString(), QMessageBox::Cancel,
                        parent);
    box.setObjectName(QStringLiteral("credentialsBox"));
    box.setText(Texts::tr("The %n selected devices do not have the same user name and password: there are "
                          "%1 user names and %2 passwords.",
                          nullptr, int(devices.size()))
                    .arg(users.size())
                    .arg(passwords.size()) +
                QStringLiteral("\n\n") +
                Texts::tr("The next window begins with those of the first device, and gives all of them "
                          "what it shows when you press OK:") +
                QStringLiteral("\n\n") + listOfNames(namesOf(db, devices)));
    const QPushButton* go = box.addButton(Texts::tr("&Give All the Same..."), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == static_cast<const QAbstractButton*>(go);
}

/// One of several: what was done, and what not because it cannot be done for many.
QString editRecordings(HostNodeDB& db, const QStringList& devices, QWidget* parent)
{
    QStringList cameras;
    std::copy_if(devices.begin(), devices.end(), std::back_inserter(cameras),
                 [&db](const QString& id) { return db.summary(id).type == IPDeviceType; });
    if (cameras.isEmpty())
        return Texts::tr("Only IP cameras can be set together. Select one of the others at a time.");
    if (!agreeOnCameras(db, &cameras, parent))
        return QString();
    ForMany<RecordingFolderMassAssignmentDialog> dialog(db, cameras, Purpose::Recording, parent, cameras,
                                                        dialogFlags(false));
    sayHowMany(dialog, cameras);
    const std::optional<QStringList> changed = dialog.run();
    if (!changed)
        return QString();
    const int count = int(changed->size());
    return withOthers(Texts::tr("%n device(s): access to recordings set.", nullptr, count), devices, count);
}

} // namespace

QString editRecording(HostNodeDB& db, const QStringList& devices, QWidget* parent)
{
    if (devices.size() > 1)
        return editRecordings(db, devices, parent);
    RecordingFolderAssignmentDialog dialog(devices.constFirst(), parent);
    new RemotePreviewDraft(devices.constFirst(), &dialog); // owned by the dialog
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    db.auditLog().log(NodeChangeLogEntry(db.summary(devices.constFirst()).name));
    db.flush(); // on disk when the dialog has closed
    return Texts::tr("%n device(s): access to recordings set.", nullptr, 1);
}

QString editCredentials(HostNodeDB& db, const QStringList& devices, QWidget* parent)
{
    if (!agreeOnCredentials(db, devices, parent))
        return QString();
    ForMany<NodeAuthenticateDialog> dialog(db, devices, Purpose::Credentials, parent, devices,
                                           dialogFlags(false));
    sayHowMany(dialog, devices);
    const std::optional<QStringList> changed = dialog.run();
    if (!changed)
        return QString();
    const int count = int(changed->size());
    return withOthers(Texts::tr("%n device(s): user name and password set.", nullptr, count), devices, count);
}

} // namespace DeviceSettings

} // namespace ko
