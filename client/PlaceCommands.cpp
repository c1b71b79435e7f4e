#include "PlaceCommands.h"

#include "MainWindow.h"
#include "NodeCommands.h"
#include "PlaceDialog.h"
#include "PlaceIndex.h"
#include "Places.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "drivers/NodeTypes.h"
#include "inspector/NodeChangeLogEntry.h"
#include "ko/Node.h"
#include "utils/LongWork.h"

#include <QCoreApplication>

namespace ko {

namespace PlaceCommands {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PlaceCommands)
};

QString textOf(const HostNodeDB& db, const NodeID& id, QLatin1String key)
{
    const kom::smart<const Node> node = db.node(id);
    return node.null() ? QString() : node->stringProperty(key, QString());
}

bool differs(const HostNodeDB& db, const NodeID& id, QLatin1String key, const std::optional<QString>& value)
{
    return value && textOf(db, id, key) != *value;
}

/// Nothing if they have different ones.
std::optional<QString> common(const HostNodeDB& db, const QStringList& ids, QLatin1String key)
{
    const QString first = textOf(db, ids.constFirst(), key);
    for (const QString& id : ids) {
        if (textOf(db, id, key) != first)
            return std::nullopt;
    }
    return first;
}

void set(HostNodeDB& db, const NodeID& id, const Values& values)
{
    Node* node = db.beginUpdateNode(id, -1);
    if (!node)
        return;
    if (values.location)
        node->setStringProperty(Places::Location, *values.location);
    if (values.tags)
        node->setStringProperty(Places::Tags, *values.tags);
    const QString name = node->name();
    db.endUpdateNode(node);
    db.auditLog().log(NodeChangeLogEntry(name));
}

} // namespace

void edit(MainWindow& window)
{
    const HostNodeDB& db = window.database();
    const QStringList devices = NodeCommands::selectedDevices(window);
    if (devices.isEmpty())
        return;
    PlaceIndex index(db);
    index.read();
    PlaceDialog dialog(int(devices.size()), index.places(), &window);
    dialog.setValues({common(db, devices, Places::Location), common(db, devices, Places::Tags)});
    if (dialog.exec() == QDialog::Accepted)
        assign(window, devices, dialog.values());
}

void assign(MainWindow& window, const QStringList& ids, const Values& values)
{
    HostNodeDB& db = window.database();
    int moved = 0;
    {
        const ChangeScope scope(db, Cause::now(Purpose::Edit));
        LongWork work(Texts::tr("Location and Tags"), Texts::tr("Storing locations and tags..."),
                      int(ids.size()), &window);
        for (const QString& id : ids) {
            if (!work.goOn())
                break;
            if (!NodeTypes::isDevice(db.summary(id).type) ||
                !(differs(db, id, Places::Location, values.location) ||
                  differs(db, id, Places::Tags, values.tags)))
                continue;
            set(db, id, values);
            ++moved;
        }
    }
    window.applyChanges();
    window.sayDone(Texts::tr("%n device(s): location and tags set.", nullptr, moved));
}

} // namespace PlaceCommands

} // namespace ko
