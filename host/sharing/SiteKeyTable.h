#ifndef KO_SITEKEYTABLE_H
#define KO_SITEKEYTABLE_H

#include "sharing/SharingTypes.h"
#include "sharing/SiteKeyRecord.h"

#include <optional>

namespace ko {

class SiteConnection;

/// The table of a site that has its keys, by its functions, which give and take JSON.
namespace SiteKeyTable {

/// None if it is something else.
KO_HOST_EXPORT std::optional<SiteKeyRecord> decode(const QByteArray& json);

/// A key called \a name; \a former is the one before, sealed under it, or empty.
KO_HOST_EXPORT QByteArray encode(const QString& name, const KeyEnvelope& envelope, const QString& former);

/// What the site has.
KO_HOST_EXPORT SharingFailure fetch(SiteConnection& connection, SiteKeyRecord* record);

/// Gives it a key, as encode() makes it: the first one, if \a revision is 0, or another one or the same under
/// another passphrase. Not taken if something was set since that revision.
KO_HOST_EXPORT SharingFailure put(SiteConnection& connection, int revision, const QByteArray& key,
                                  bool* isTaken);

} // namespace SiteKeyTable

} // namespace ko

#endif
