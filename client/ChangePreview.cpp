#include "ChangePreview.h"

#include "PutBackDialog.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "inspector/NodeChangeLogEntry.h"

#include <QSet>
#include <QSettings>

#include <algorithm>

namespace ko {

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

} // namespace

bool ChangePreview::isWanted()
{
    return QSettings().value(QLatin1String(wantedKey), false).toBool();
}

void ChangePreview::setWanted(bool wanted)
{
    QSettings().setValue(QLatin1String(wantedKey), wanted);
}

ManyNodes::ManyNodes(HostNodeDB& db, const QStringList& nodes, Purpose purpose)
    : m_db(db)
    , m_nodes(nodes)
    , m_purpose(purpose)
    , m_isShown(nodes.size() > 1 && ChangePreview::isWanted())
{
}

void ManyNodes::begin()
{
    const Cause cause = Cause::now(m_purpose);
    if (m_isShown)
        m_db.beginDraft(cause);
    else
        m_db.enter(cause, ScopeStoring::AtEnd);
}

void ManyNodes::end(bool isAccepted, int handled)
{
    m_handled = handled;
    if (m_isShown) {
        m_draft = m_db.endDraft();
        return;
    }
    if (isAccepted)
        logChanged(m_db, m_nodes.mid(0, handled));
    m_db.leave();
}

std::optional<QStringList> ManyNodes::run(QDialog& dialog)
{
    std::optional<QStringList> changed;
    while (!changed && dialog.exec() == QDialog::Accepted)
        changed = m_isShown ? showDraft(dialog) : m_nodes.mid(0, m_handled);
    if (changed)
        m_db.flush(StoreWait::InEventLoop); // on disk when the dialog has closed
    return changed;
}

/// Does what is ticked of the draft. None if the user wants nothing of it, or it cannot be read.
std::optional<QStringList> ManyNodes::showDraft(QDialog& dialog)
{
    ChangeSet opposite = m_draft.inverse();
    std::reverse(opposite.nodes.begin(), opposite.nodes.end()); // in the order of the list
    const std::optional<PutBack> lines = PuttingBack::preview(m_db, Alterations::of(opposite));
    if (!lines)
        return std::nullopt;
    QStringList changed;
    const auto apply = [&](const PutBack& shown) {
        return PuttingBack::apply(m_db, shown, Cause::now(m_purpose), [&](const ChangeSet& set) {
            changed = changedBy(set, m_nodes);
            logChanged(m_db, changed);
        });
    };
    PutBackDialog preview([&dialog] { return dialog.windowTitle(); }, *lines, PutBackDialog::words(m_db),
                          apply, dialog.parentWidget(), PutBackDialog::Kind::Change);
    return preview.exec() == QDialog::Accepted ? std::make_optional(changed) : std::nullopt;
}

} // namespace ko
