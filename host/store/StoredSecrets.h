#ifndef KO_STOREDSECRETS_H
#define KO_STOREDSECRETS_H

#include "store/SqliteStore.h"

namespace ko {

/// Seals what has passwords in the clear: databases of versions before 3.
namespace StoredSecrets {

/// The setting that stands in a database as long as there may be passwords in the clear.
inline constexpr char Pending[] = "secrets.toSeal";

/// Seals every password of the database that is not sealed, in one transaction, then writes the file anew,
/// so that nothing of them is left in its unused parts or its log. Takes a key.
void seal(SqliteStore& store);

/// What \ref Pending says; false for an older version.
bool isPending(SqliteStore& store);

/// seal(), if isPending(). What keeps it from being done is logged, and it is tried again at the
/// next opening.
void sealPending(SqliteStore& store);

} // namespace StoredSecrets

} // namespace ko

#endif
