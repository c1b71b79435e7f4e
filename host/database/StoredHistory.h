#ifndef KO_STOREDHISTORY_H
#define KO_STOREDHISTORY_H

#include "HostExport.h"
#include "model/HistoryFilter.h"
#include "model/HistoryLimit.h"
#include "model/PresentState.h"
#include "model/UndoneChange.h"

#include <QObject>

#include <memory>
#include <optional>

namespace ko {

class ChangeQueue;
class NodeMemory;
class NodeStore;

/// What was done to the database, as it is stored, and what there is now.
///
/// Reading whole change sets stores first what is not stored yet. What cannot be read looks as if it were not
/// there; see HostNodeDB::storeDamaged().
class KO_HOST_EXPORT StoredHistory : public QObject
{
    Q_OBJECT

public:
    /// All outlive it.
    StoredHistory(NodeStore& store, NodeMemory& memory, ChangeQueue& queue);

    /// At most \a count of those after number \a after, oldest first.
    QVector<ChangeSet> changeSets(qint64 after, int count);

    /// The number of the newest one, which may be somebody else's and not brought in yet; 0 if there is none.
    qint64 newest();

    /// None if there is no such change set.
    std::optional<ChangeSet> changeSet(qint64 number);
    std::optional<ChangeSetRow> row(qint64 number);

    /// Those among the \a count newest before number \a before that \a filter wants. Does not store what is
    /// not stored yet, since it is called again and again.
    HistoryPage page(const HistoryFilter& filter, qint64 before, int count);

    /// Of at most \a count nodes after those with which the last part ended; of what is stored, as page().
    LastChangesPart lastChanges(qint64 after, int count);
    QVector<LastChange> lastChanges(const QStringList& nodes);

    /// At most \a count changes after those with which the last part of a change set ended.
    ChangeSetPart changes(qint64 number, qint64 after, int count);

    /// All that a change set changed of one node, with the relations that begin there, or of one setting;
    /// with an empty \a id of the environments. None if it cannot be read.
    std::optional<ChangeSet> changesOf(qint64 number, const QString& id);

    /// At most \a count changes of change sets after \a changeSet, after those with which the last part
    /// ended.
    LaterPart later(qint64 changeSet, qint64 after, int count);

    /// None if it cannot be read.
    std::optional<PresentState> present(const PresentState::Wanted& wanted);

    /// What was changed here and the site with which the file is shared could not do, until it is dismissed.
    QVector<UndoneChange> undoneChanges();
    void dismissUndone(const QVector<qint64>& numbers);

    /// How much of it keeps its details.
    HistoryLimit limit() const;
    void setLimit(const HistoryLimit& limit);

signals:
    /// This process stored these, or more of them, in this order.
    void stored(const QVector<ko::StoredSet>& sets);

private:
    NodeStore& m_store;
    NodeMemory& m_memory;
    ChangeQueue& m_queue;
};

} // namespace ko

#endif
