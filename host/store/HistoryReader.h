#ifndef KO_HISTORYREADER_H
#define KO_HISTORYREADER_H

#include "model/HistoryFilter.h"
#include "store/SqliteStore.h"

namespace ko {

/// Change sets as a list shows them. Throws StoreFailure; opens no transactions.
class HistoryReader
{
public:
    explicit HistoryReader(SqliteStore& store);

    std::optional<ChangeSetRow> row(qint64 number);

    /// The last change set whose details were thinned out, or may have been; 0 if there is none.
    qint64 lastThinned();

    /// Those among the \a count newest before number \a before that \a filter wants.
    HistoryPage page(const HistoryFilter& filter, qint64 before, int count);

    /// Of at most \a count nodes after those with which the last part ended.
    LastChangesPart lastChanges(qint64 after, int count);
    QVector<LastChange> lastChanges(const QStringList& nodes);

private:
    SqliteStore& m_store;
};

} // namespace ko

#endif
