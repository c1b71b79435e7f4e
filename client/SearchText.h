#ifndef KO_SEARCHTEXT_H
#define KO_SEARCHTEXT_H

#include <QString>

namespace ko {

/// Forms of a text made once, so that looking through a hundred thousand of them is plain comparing.
namespace SearchText {

/// Without case and accents.
QString folded(const QString& text);

/// A folded text whose code units compare in natural order: "camera 2" stands before "camera 10".
QString sortKey(const QString& text);

} // namespace SearchText

} // namespace ko

#endif
