#ifndef KO_HISTORYSWITCH_H
#define KO_HISTORYSWITCH_H

#include "HostExport.h"

namespace ko {

/// Without a history nothing is stored of a change but that there was one, for other processes. There is such
/// a program only to be measured beside the real one: in any other build the switch is a constant.
#ifdef KO_BENCH
extern KO_HOST_EXPORT bool hasHistory;
#else
constexpr bool hasHistory = true;
#endif

} // namespace ko

#endif
