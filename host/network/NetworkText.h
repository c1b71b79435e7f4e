#ifndef KO_NETWORKTEXT_H
#define KO_NETWORKTEXT_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// Makes texts fit for use that come from a network where anybody may say anything.
namespace NetworkText {

/// At most \a limit UTF-16 units on one line, without what cannot be seen, see OutsideText; blanks of any
/// kind and number are one blank.
KO_HOST_EXPORT QString cleaned(const QString& text, int limit);

/// How likely others can be reached by an address of this kind, the smallest first: IPv4 before IPv6, and
/// last an IPv6 address that only one link knows. A device has rarely more than one of a kind.
KO_HOST_EXPORT int rank(const QString& address);

} // namespace NetworkText

} // namespace ko

#endif
