#ifndef KO_SHAREDPARCELS_H
#define KO_SHAREDPARCELS_H

#include "model/SharedParcel.h"
#include "store/SqliteFile.h"

#include <QVector>

namespace ko {

/// Which parcels of the site are in the file, with the links of the site's chain: each a hash over the one
/// before and the parcel. They are worked out here from what was received, so a site that tells of its past
/// otherwise than before is found out.
///
/// Everything throws StoreFailure; nothing opens transactions.
class SharedParcels
{
public:
    explicit SharedParcels(SqliteFile& file);

    /// False, and nothing is written, when the link that the site tells of it does not follow from the parcel
    /// and the link before. A first one whose predecessor has no link is believed.
    bool add(const SharedParcel& parcel);

    /// Whether \a parcels, as the site tells them now, are those that are here. They begin after \a position
    /// and are as many as were asked for, or all that there are.
    bool agree(const QVector<SharedParcel>& parcels, qint64 position, int asked);

    /// False if another link is known for it; takes it when none is.
    bool agree(const KnownParcel& parcel);

    /// The newest with numbers below \a before, newest first.
    QVector<KnownParcel> newest(int count, qint64 before);

    void removeAfter(qint64 number);

private:
    KnownParcel at(qint64 number);

    SqliteFile& m_file;
};

} // namespace ko

#endif
