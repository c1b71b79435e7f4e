#include "history/PuttingBack.h"

#include "audit/AuditLog.h"
#include "audit/NodeLogEntries.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "devices/KnownDevice.h"
#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"

namespace ko {

namespace PuttingBack {

namespace {

void logUpdate(AuditLog& log, const NodeChange& change, const QString& name)
{
    if (change.before->name != change.after->name)
        log.log(NodeRenameLogEntry(change.before->name, change.after->name));
    log.log(NodeChangeLogEntry(name));
}

/// As the windows do it that change nodes.
void logChanges(HostNodeDB& db, const ChangeSet& set)
{
    AuditLog& log = db.auditLog();
    QSet<NodeID> logged;
    for (const NodeChange& change : set.nodes) {
        if (change.isAdded())
            log.log(NodeLogEntry(NodeLogEntry::Added, change.after->name));
        else if (change.isRemoved())
            log.log(NodeLogEntry(NodeLogEntry::Removed, change.before->name));
        else
            logUpdate(log, change, db.summary(change.id).name);
        logged.insert(change.id);
    }
    for (const RelationChange& change : set.relations) {
        const NodeID& source = change.relation.source;
        if (logged.contains(source))
            continue;
        log.log(NodeChangeLogEntry(db.summary(source).name));
        logged.insert(source);
    }
}

std::optional<PutBack> current(HostNodeDB& db, const QVector<Alteration>& alterations)
{
    const std::optional<PresentState> present = db.history().present(Alterations::wanted(alterations));
    return present ? std::make_optional(PutBack(alterations, *present, KnownDevice::keys())) : std::nullopt;
}

/// Ticks in \a now what is chosen in \a shown and the same in both; the rest of what is chosen is refused.
QVector<PutBackLine> compare(const PutBack& shown, PutBack* now)
{
    QHash<QString, PutBackLine*> lines;
    for (PutBackLine& line : now->lines) {
        line.isTicked = false;
        if (line.state == PutBackLine::Possible || !lines.contains(line.what.thing()))
            lines.insert(line.what.thing(), &line);
    }
    QVector<PutBackLine> refused;
    const QVector<PutBackLine> chosen = shown.chosen();
    for (PutBackLine line : chosen) {
        PutBackLine* same = lines.value(line.what.thing());
        const bool isPossible = same && same->state == PutBackLine::Possible &&
                                Alterations::isSame(same->now, line.now) &&
                                Alterations::isSame(same->what.before, line.what.before);
        if (isPossible) {
            same->isTicked = true;
            continue;
        }
        line.state = same && same->state != PutBackLine::Possible ? same->state : PutBackLine::Changed;
        line.now = same ? same->now : QVariant();
        refused.append(line);
    }
    return refused;
}

/// What is as it was shown; false if that cannot be told.
bool putBack(HostNodeDB& db, const PutBack& shown, const Cause& cause, const Log& log, Outcome* outcome)
{
    std::optional<PutBack> now = current(db, shown.alterations());
    if (!now)
        return false;
    outcome->refused = compare(shown, &*now);
    const ChangeSet set = now->changeSet();
    const ChangeScope scope(db, cause);
    if (!db.apply(set))
        return false;
    if (set.hasChanges())
        log(set);
    outcome->done = now->chosen();
    return true;
}

} // namespace

std::optional<PutBack> preview(HostNodeDB& db, const QVector<Alteration>& alterations)
{
    db.syncForeignChanges();
    return current(db, alterations);
}

Outcome apply(HostNodeDB& db, const PutBack& shown, const Cause& cause)
{
    return apply(db, shown, cause, [&db](const ChangeSet& set) { logChanges(db, set); });
}

Outcome apply(HostNodeDB& db, const PutBack& shown, const Cause& cause, const Log& log)
{
    Outcome outcome;
    db.flush(StoreWait::InEventLoop); // what waits is none of this
    bool isRead = true;
    outcome.stored = db.runAlone([&] { isRead = putBack(db, shown, cause, log, &outcome); }, &outcome.error,
                                 StoreWait::InEventLoop);
    if (!isRead) {
        outcome.stored = StoreOutcome::NotRun;
        outcome.error = StoreError::make(StoreError::Other, db.fileName(), QLatin1String("not read"));
    }
    return outcome;
}

} // namespace PuttingBack

} // namespace ko
