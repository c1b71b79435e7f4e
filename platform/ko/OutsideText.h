#ifndef KO_OUTSIDETEXT_H
#define KO_OUTSIDETEXT_H

#include "PlatformExport.h"

#include <QString>

namespace ko {

/// Text that others wrote: announcements, lists of cameras, names of files.
///
/// What cannot be seen in it deceives: a name looks like another one, stands in reverse, or steers the
/// terminal that it is written to. Such signs are control and format characters (directions, zero width,
/// tags), line and paragraph separators, fillers, private and non-characters and halves of pairs.
///
/// The zero-width joiner and non-joiner and the selectors of a variant are left where scripts and emoji need
/// them: after a letter or mark of a script other than Latin, Greek and Cyrillic, or after a symbol. Marks of
/// direction are not: no letter depends on one.
namespace OutsideText {

/// \a text without signs that cannot be seen. A line break stays; of other kinds of blank, those that are
/// control characters or separators become an ordinary one.
KO_PLATFORM_EXPORT QString fit(const QString& text);

/// \a text on one line, for a terminal, a log, or a list: what cannot be seen is spelt out as in "\n", "\x1b"
/// and "\u202e". For reading only; nothing undoes it.
KO_PLATFORM_EXPORT QString visible(const QString& text);

} // namespace OutsideText

} // namespace ko

#endif
