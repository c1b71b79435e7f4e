#ifndef KO_UNDOSTACK_H
#define KO_UNDOSTACK_H

#include "history/PuttingBack.h"

#include <QObject>

namespace ko {

/// What the user of this program did since its start, to be undone, the last first, and done again. What
/// scans and the program itself did is not among it, nor what others did.
///
/// What is undone is in the database, where others go on: so it is a list of change sets and not of commands,
/// and each is looked at anew when it is its turn.
class KO_HOST_EXPORT UndoStack : public QObject
{
    Q_OBJECT

public:
    enum Direction { Undo, Redo };

    /// The database outlives it.
    explicit UndoStack(HostNodeDB& db, QObject* parent = nullptr);

    bool isEmpty(Direction direction) const { return steps(direction).isEmpty(); }

    /// The number of the last change set of the next one; 0 if there is none.
    qint64 newest(Direction direction) const { return isEmpty(direction) ? 0 : steps(direction).last().last; }

    /// The next one, as it was done first; none if there is none.
    std::optional<ChangeSetRow> next(Direction direction) const;

    /// What that is called; empty if there is none.
    QString title(Direction direction) const;

    /// Does what is shown of newest(), even if more was done since. If anything was done, the step can be
    /// taken in the other direction next.
    PuttingBack::Outcome apply(Direction direction, const PutBack& shown);

    /// Gives up the step of which \a shown is, if nothing of it can be put back any more.
    void dropIfLost(Direction direction, const PutBack& shown);

signals:
    void changed();

private:
    struct Step
    {
        qint64 first; ///< the change set that the user knows
        qint64 last;  ///< the one to be put back
    };
    /// A step that is taken, until its change set is stored.
    struct Taken
    {
        Step step;
        Direction direction;
    };

    const QVector<Step>& steps(Direction direction) const { return direction == Undo ? m_done : m_undone; }
    QVector<Step>& steps(Direction direction) { return direction == Undo ? m_done : m_undone; }
    std::optional<Step> take(Direction direction, qint64 last);
    void giveBack(const Taken& taken);
    void stored(const StoredSet& set);

    HostNodeDB& m_db;
    QVector<Step> m_done;
    QVector<Step> m_undone;
    QHash<QString, Taken> m_taken; ///< by the identifier of the cause
};

} // namespace ko

#endif
