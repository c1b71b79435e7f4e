#ifndef KO_PURPOSEOF_H
#define KO_PURPOSEOF_H

#include "model/ChangeSet.h"

namespace ko {

namespace PurposeOf {

/// What somebody did who did not say it, told by what was changed.
Purpose changeSet(const ChangeSet& set);

} // namespace PurposeOf

} // namespace ko

#endif
