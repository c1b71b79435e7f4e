#ifndef KO_TERMINAL_H
#define KO_TERMINAL_H

#include "PlatformExport.h"

#include <QString>

#include <cstdio>

namespace ko {

namespace Terminal {

/// Writes one line at once. All that is said on a standard stream goes through here: names and titles in it
/// come from others and must not steer the terminal, or look like a second line; see OutsideText::visible().
KO_PLATFORM_EXPORT void say(FILE* stream, const QString& line);

} // namespace Terminal

} // namespace ko

#endif
