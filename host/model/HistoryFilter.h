#ifndef KO_HISTORYFILTER_H
#define KO_HISTORYFILTER_H

#include "model/ChangeSet.h"

#include <QStringList>

#include <limits>
#include <optional>

namespace ko {

/// Which change sets are looked for: those that fulfil all of it.
struct HistoryFilter
{
    QStringList nodes; ///< one of which was changed, or a relation that begins there; none: any
    QString text;      ///< in what was changed, in the user, the station or the subject; ASCII in any case
    QVector<Purpose> titled; ///< whose titles hold the text
    qint64 from = 0;         ///< milliseconds since 1970, UTC; this and the next included
    qint64 to = std::numeric_limits<qint64>::max();
    QString user; ///< or a part of the name
    std::optional<Purpose> purpose;
    QStringList properties; ///< keys, one of which was changed, or of settings; none: any
};

/// Some change sets of the history, newest first.
struct HistoryPage
{
    QVector<ChangeSetRow> rows;
    qint64 before = 0;    ///< to go on: the number of the oldest that was looked at
    bool isAtEnd = false; ///< no older one is there
};

/// The last changes of some nodes, the oldest node first. A node of which the history knows nothing is left
/// out.
struct LastChangesPart
{
    QVector<LastChange> changes;
    qint64 after = 0;     ///< to go on
    bool isAtEnd = false; ///< no node comes after them
};

/// Some of what a change set changed, in its order.
struct ChangeSetPart
{
    ChangeSet set;        ///< without audit entries
    qint64 after = 0;     ///< to go on
    bool isAtEnd = false; ///< nothing comes after it
};

/// Some of what was changed after a change set, in the order in which it was stored.
struct LaterPart
{
    QVector<ChangeSet> sets; ///< with a part of their changes, and no audit entries
    qint64 after = 0;        ///< to go on
    qint64 remaining = 0;    ///< at most this many changes come after it
};

} // namespace ko

#endif
