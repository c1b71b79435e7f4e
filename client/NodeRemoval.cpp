#include "NodeRemoval.h"

#include "MainWindow.h"
#include "NodeListView.h"
#include "RemoveNodesBox.h"
#include "audit/AuditLog.h"
#include "audit/NodeLogEntries.h"
#include "database/HostNodeDB.h"
#include "utils/LongWork.h"

#include <QCoreApplication>
#include <QSet>

namespace ko {

namespace NodeRemoval {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(NodeRemoval)
};

QStringList namesOf(const HostNodeDB& db, const QStringList& ids)
{
    QStringList names;
    names.reserve(int(ids.size()));
    for (const QString& id : ids)
        names.append(db.summary(id).name);
    return names;
}

/// How many went, before the user had enough.
int remove(MainWindow& window, const QStringList& ids)
{
    HostNodeDB& db = window.database();
    const ChangeScope scope(db, Cause::now(Purpose::Remove));
    LongWork work(Texts::tr("Remove Nodes"), Texts::tr("Removing nodes..."), int(ids.size()), &window);
    int removed = 0;
    for (const QString& id : ids) {
        if (!work.goOn())
            break;
        const NodeSummary node = db.summary(id);
        if (node.id.isEmpty())
            continue; // removed by somebody else meanwhile
        db.removeNode(id);
        db.auditLog().log(NodeLogEntry(NodeLogEntry::Removed, node.name));
        ++removed;
    }
    return removed;
}

} // namespace

QStringList foldersOfNobodyElse(const HostNodeDB& db, const QStringList& ids)
{
    QStringList folders;
    for (const QString& id : ids)
        folders += db.relatedNodes(id, RecordingFolderRelation);
    if (folders.isEmpty())
        return folders;
    const QSet<QString> going(ids.begin(), ids.end());
    QSet<QString> used;
    const QVector<NodeSummary> all = db.summaries();
    for (const NodeSummary& node : all) {
        const QStringList related =
            going.contains(node.id) ? QStringList() : db.relatedNodes(node.id, RecordingFolderRelation);
        for (const QString& folder : related)
            used.insert(folder);
    }
    QStringList unused;
    folders.removeDuplicates();
    for (const QString& folder : std::as_const(folders)) {
        if (!used.contains(folder) && !going.contains(folder) &&
            db.summary(folder).type == RecordingFolderType)
            unused.append(folder);
    }
    return unused;
}

void run(MainWindow& window)
{
    const HostNodeDB& db = window.database();
    const QStringList ids = window.list().selectedIds();
    if (ids.isEmpty())
        return;
    const QStringList folders = foldersOfNobodyElse(db, ids);
    switch (askToRemove(namesOf(db, ids), namesOf(db, folders), &window)) {
    case Removal::None:
        return;
    case Removal::Nodes:
        window.sayDone(Texts::tr("%n node(s) removed.", nullptr, remove(window, ids)));
        return;
    case Removal::NodesAndFolders:
        window.sayDone(Texts::tr("%n node(s) removed.", nullptr, remove(window, ids + folders)));
    }
}

} // namespace NodeRemoval

} // namespace ko
