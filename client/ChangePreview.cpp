#include "ChangePreview.h"

#include "PutBackDialog.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "inspector/NodeChangeLogEntry.h"

#include <QSet>
#include <QSettings>

#include <algorithm>

namespace ko {

namespace ChangePreview {

namespace {

const char wantedKey[] = "preview/wanted";

void logChanged(HostNodeDB& db, const QStringList& nodes)
{
    for (const QString& id : nodes) {
        const NodeSummary node = db.summary(id);
        if (!node.id.isEmpty())
            db.auditLog().log(NodeChangeLogEntry(node.name));
    }
}

/// Those of \a nodes that \a set changes, or from which relations come or go.
QStringList changedBy(const ChangeSet& set, const QStringList& nodes)
{
    QSet<QString> changed;
    for (const NodeChange& change : set.nodes)
        changed.insert(change.id);
    for (const RelationChange& change : set.relations)
        changed.insert(change.relation.source);
    QStringList result;
    std::copy_if(nodes.cbegin(), nodes.cend(), std::back_inserter(result),
                 [&changed](const QString& id) { return changed.contains(id); });
    return result;
}

/// Does what is ticked of \a draft. None if the user wants nothing of it, or it cannot be read.
std::optional<QStringList> show(const ChangeSet& draft, QDialog& dialog, HostNodeDB& db,
                                const QStringList& nodes, Purpose purpose)
{
    ChangeSet opposite = draft.inverse();
    std::reverse(opposite.nodes.begin(), opposite.nodes.end()); // in the order of the list
    const std::optional<PutBack> lines = PuttingBack::preview(db, Alterations::of(opposite));
    if (!lines)
        return std::nullopt;
    QStringList changed;
    const auto apply = [&](const PutBack& shown) {
        return PuttingBack::apply(db, shown, Cause::now(purpose), [&](const ChangeSet& set) {
            changed = changedBy(set, nodes);
            logChanged(db, changed);
        });
    };
    PutBackDialog preview([&dialog] { return dialog.windowTitle(); }, *lines, PutBackDialog::words(db), apply,
                          dialog.parentWidget(), PutBackDialog::Kind::Change);
    if (preview.exec() != QDialog::Accepted)
        return std::nullopt;
    return changed;
}

} // namespace

bool isWanted()
{
    return QSettings().value(QLatin1String(wantedKey), false).toBool();
}

void setWanted(bool wanted)
{
    QSettings().setValue(QLatin1String(wantedKey), wanted);
}

std::optional<QStringList> exec(QDialog& dialog, HostNodeDB& db, const QStringList& nodes, Purpose purpose)
{
    const bool isShown = nodes.size() > 1 && isWanted();
    ChangeSet draft;
    // Before the event loop goes on, which would store it.
    const QMetaObject::Connection taken = QObject::connect(&dialog, &QDialog::accepted, &dialog, [&] {
        if (isShown)
            draft = db.withdraw();
    });
    std::optional<QStringList> changed;
    while (!changed && dialog.exec() == QDialog::Accepted) {
        if (isShown) {
            changed = show(draft, dialog, db, nodes, purpose);
            continue;
        }
        logChanged(db, nodes);
        changed = nodes;
    }
    QObject::disconnect(taken);
    if (changed)
        db.flush(); // on disk when the dialog has closed
    return changed;
}

} // namespace ChangePreview

} // namespace ko
