#include "history/UndoStack.h"

#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"

#include <algorithm>

namespace ko {

namespace {

/// Whether the user did it at once, and not the program on the user's behalf.
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

/// Whether what a change set did of one id is to be seen in what there is now. What cannot be read counts.
bool hasLeft(HostNodeDB& db, qint64 number, const QString& id)
{
    const std::optional<ChangeSet> part = db.history().changesOf(number, id);
    if (!part)
        return true;
    const QVector<Alteration> alterations = Alterations::of(*part);
    const std::optional<PresentState> now = db.history().present(Alterations::wanted(alterations));
    if (!now)
        return true;
    const QVector<PutBackLine> lines = PutBack(alterations, *now).lines;
    return std::any_of(lines.begin(), lines.end(), [](const PutBackLine& line) {
        return line.state != PutBackLine::AsBefore && line.state != PutBackLine::Removed;
    });
}

/// Whether a change set that was stored just now left anything: what was done in one part of it may be taken
/// away in the next. The first thing almost always tells, so a large one costs no more than a small one.
bool hasLeft(HostNodeDB& db, qint64 number)
{
    QSet<QString> seen;
    ChangeSetPart part;
    while (!part.isAtEnd) {
        part = db.history().changes(number, part.after, 20);
        const QVector<Alteration> alterations = Alterations::of(part.set);
        for (const Alteration& alteration : alterations) {
            const QString id = alteration.kind == Alteration::Setting ? alteration.key : alteration.node;
            if (!seen.contains(id) && hasLeft(db, number, id))
                return true;
            seen.insert(id);
        }
    }
    return seen.isEmpty(); // then it cannot be read
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
    if (!isUsers(set.cause.purpose))
        return;
    const auto known = std::find_if(m_done.begin(), m_done.end(),
                                    [&set](const Step& step) { return step.last == set.number; });
    if (hasLeft(m_db, set.number) == (known != m_done.end()))
        return; // more of an import, or nothing at all
    if (known != m_done.end()) {
        m_done.erase(known);
        emit changed();
        return;
    }
    m_done.append({set.number, set.number});
    m_undone.clear();
    emit changed();
}

std::optional<ChangeSetRow> UndoStack::next(Direction direction) const
{
    return isEmpty(direction) ? std::nullopt : m_db.history().row(steps(direction).last().first);
}

QString UndoStack::title(Direction direction) const
{
    const std::optional<ChangeSetRow> row = next(direction);
    return row ? ChangeSetTitle::of(*row) : QString();
}

/// None if something new ended what could be redone.
std::optional<UndoStack::Step> UndoStack::take(Direction direction, qint64 last)
{
    QVector<Step>& list = steps(direction);
    const auto found =
        std::find_if(list.begin(), list.end(), [last](const Step& step) { return step.last == last; });
    if (found == list.end())
        return std::nullopt;
    const Step step = *found;
    list.erase(found);
    return step;
}

/// Where it was.
void UndoStack::giveBack(const Taken& taken)
{
    QVector<Step>& list = steps(taken.direction);
    const auto isNewer = [&taken](const Step& step) { return step.last > taken.step.last; };
    list.insert(std::find_if(list.begin(), list.end(), isNewer), taken.step);
}

PuttingBack::Outcome UndoStack::apply(Direction direction, const PutBack& shown)
{
    if (shown.alterations().isEmpty())
        return PuttingBack::Outcome();
    const qint64 last = shown.alterations().first().changeSet;
    const std::optional<Step> step = take(direction, last);
    const Taken taken = {step.value_or(Step{last, last}), direction};
    const std::optional<ChangeSetRow> row = m_db.history().row(last);
    const Cause cause = Cause::undoing(row ? QVector<Cause>{row->cause} : QVector<Cause>());
    m_taken.insert(cause.id, taken);
    PuttingBack::Outcome outcome = PuttingBack::apply(m_db, shown, cause);
    if (outcome.stored == StoreOutcome::NotRun || outcome.done.isEmpty()) {
        m_taken.remove(cause.id);
        if (step)
            giveBack(taken);
    }
    emit changed();
    return outcome;
}

void UndoStack::dropIfLost(Direction direction, const PutBack& shown)
{
    const std::optional<PutBack> now = PuttingBack::preview(m_db, shown.alterations());
    if (!now || !now->chosen().isEmpty() || shown.alterations().isEmpty())
        return;
    take(direction, shown.alterations().first().changeSet);
    emit changed();
}

} // namespace ko
