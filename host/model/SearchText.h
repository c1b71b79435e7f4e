#ifndef KO_SEARCHTEXT_H
#define KO_SEARCHTEXT_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// Forms of a text made once, so that looking through a hundred thousand of them is plain comparing.
namespace SearchText {

/// Without case and accents.
KO_HOST_EXPORT QString folded(const QString& text);

/// A folded text whose code units compare in natural order: "camera 2" stands before "camera 10".
KO_HOST_EXPORT QString sortKey(const QString& text);

/// In how many characters, at most \a limit, the texts begin alike.
KO_HOST_EXPORT int sameStart(const QString& a, const QString& b, int limit);

/// The characters of a key after the first \a from in one number. Where two keys that begin alike have
/// different numbers, the smaller key has the smaller one; where the numbers are the same, the keys may
/// still differ.
KO_HOST_EXPORT quint64 startNumber(const QString& key, int from);

} // namespace SearchText

} // namespace ko

#endif
