#ifndef KO_RECEIVEDPARCELS_H
#define KO_RECEIVEDPARCELS_H

#include "store/SharedParcels.h"
#include "store/SharedTables.h"

namespace ko {

/// Writes what a site did into the history of a desk. Everything throws StoreFailure; nothing opens
/// transactions.
class ReceivedParcels
{
public:
    ReceivedParcels(SqliteStore& store, NodeTables& tables, SharedParcels& parcels);

    /// Into a file that knows nothing of it. False, with nothing done, if its link is wrong.
    bool write(const SharedParcel& parcel);

    /// The same, of what may be here already, with what it does to the tables.
    bool take(const SharedParcel& parcel, SharedTables& shared);

    /// Tells the other programs on this file to look again; of no change set, because nobody did it here.
    void note(const ChangeLog::Row& row);

private:
    void noteUndone(const SharedLine& line);
    qint64 rowOf(qint64 changeSet, qint64 line);
    void setNumber(qint64 row, qint64 changeSet, qint64 line, qint64 number);

    SqliteStore& m_store;
    NodeTables& m_tables;
    ChangeLog m_log;
    SharedParcels& m_parcels;
};

} // namespace ko

#endif
