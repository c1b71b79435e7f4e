#ifndef KO_UNDONECHANGE_H
#define KO_UNDONECHANGE_H

#include "model/Cause.h"

namespace ko {

/// Something that was changed at this desk and that its site could not do, since the node had gone before.
struct UndoneChange
{
    qint64 number = 0;    ///< by which it is dismissed
    qint64 changeSet = 0; ///< in the history
    Cause cause;
    QString node; ///< the name that it had when it went
    Cause removal;
};

} // namespace ko

#endif
