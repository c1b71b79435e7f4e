#include "history/UndoStack.h"

#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"

#include <algorithm>

namespace ko {

namespace {

/// Whether the user did it at once, and not the program for him.
bool isUsers(Purpose purpose)
{
    switch (purpose) {
    case Purpose::Scan:
    case Purpose::Check:
    case Purpose::Start:
    case Purpose::Restore:
    case Purpose::Unknown:
        return false;
    default:
        return true;
    }
}

} // namespace

UndoStack::UndoStack(HostNodeDB& db, QObject* parent)
    : QObject(parent)
    , m_db(db)
{
    connect(&db.history(), &StoredHistory::stored, this, [this](const QVector<StoredSet>& sets) {
        for (const StoredSet& set : sets)
            stored(set);
    });
}

void UndoStack::stored(const StoredSet& set)
{
    const auto taken = m_taken.constFind(set.cause.id);
    if (taken != m_taken.constEnd()) {
        steps(taken->direction == Undo ? Redo : Undo).append({taken->step.first, set.number});
        m_taken.erase(taken);
        emit changed();
        return;
    }
    const bool isKnown = std::any_of(m_done.cbegin(), m_done.cend(),
                                     [&set](const Step& step) { return step.last == set.number; });
    if (!isUsers(set.cause.purpose) || isKnown)
        return; // more of an import
    m_done.append({set.number, set.number});
    m_undone.clear();
    emit changed();
}

QString UndoStack::title(Direction direction) const
{
    if (isEmpty(direction))
        return QString();
    const std::optional<ChangeSetRow> row = m_db.history().row(steps(direction).last().first);
    return row ? ChangeSetTitle::of(*row) : QString();
}

std::optional<PutBack> UndoStack::preview(Direction direction) const
{
    m_db.flush(); // what waits to be stored is the last step, and the end of what was undone
    if (isEmpty(direction))
        return std::nullopt;
    const std::optional<ChangeSet> set = m_db.history().changeSet(steps(direction).last().last);
    return set ? PuttingBack::preview(m_db, Alterations::of(*set)) : std::nullopt;
}

PuttingBack::Outcome UndoStack::apply(Direction direction, const PutBack& shown)
{
    if (isEmpty(direction))
        return PuttingBack::Outcome();
    const Step step = steps(direction).takeLast();
    const std::optional<ChangeSetRow> row = m_db.history().row(step.last);
    const Cause cause = Cause::undoing(row ? QVector<Cause>{row->cause} : QVector<Cause>());
    m_taken.insert(cause.id, {step, direction});
    PuttingBack::Outcome outcome = PuttingBack::apply(m_db, shown, cause);
    if (outcome.stored == StoreOutcome::NotRun || outcome.done.isEmpty()) {
        m_taken.remove(cause.id);
        steps(direction).append(step);
    }
    emit changed();
    return outcome;
}

void UndoStack::drop(Direction direction)
{
    steps(direction).removeLast();
    emit changed();
}

} // namespace ko
