#ifndef KO_PUTTINGBACK_H
#define KO_PUTTINGBACK_H

#include "history/PutBack.h"
#include "model/StoreError.h"

#include <functional>

namespace ko {

class HostNodeDB;

/// Putting back in a database.
namespace PuttingBack {

/// What can be put back as it is now; none if that cannot be read.
KO_HOST_EXPORT std::optional<PutBack> preview(HostNodeDB& db, const QVector<Alteration>& alterations);

struct Outcome
{
    StoreOutcome stored = StoreOutcome::Stored;
    StoreError error; ///< why it is not stored, or nothing was done
    QVector<PutBackLine> done;
    /// Of what was chosen: what somebody else changed since it was shown, which stays as it is.
    QVector<PutBackLine> refused;
};

/// Puts back what was chosen and is still as it was shown, as one change set of \a cause, with the entries in
/// the audit log that editing, adding or removing the nodes would make.
KO_HOST_EXPORT Outcome apply(HostNodeDB& db, const PutBack& shown, const Cause& cause);

/// The same with the entries that \a log makes of what is changed.
typedef std::function<void(const ChangeSet&)> Log;
KO_HOST_EXPORT Outcome apply(HostNodeDB& db, const PutBack& shown, const Cause& cause, const Log& log);

} // namespace PuttingBack

} // namespace ko

#endif
