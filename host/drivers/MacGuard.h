#ifndef KO_MACGUARD_H
#define KO_MACGUARD_H

#include "drivers/FieldGuard.h"
#include "ko/TrContext.h"

namespace ko {

/// Refuses what is no MAC address in a field that may also be empty.
class MacGuard : public FieldGuard
{
    Q_OBJECT
    KO_TR_CONTEXT(MacGuard)

public:
    /// The words come above the form that \a field is in.
    explicit MacGuard(QLineEdit* field);
};

} // namespace ko

#endif
