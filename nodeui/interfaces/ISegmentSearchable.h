#ifndef KO_ISEGMENTSEARCHABLE_H
#define KO_ISEGMENTSEARCHABLE_H

#include "interfaces/IInterface.h"

namespace ko {

/// A component whose recorded segments can be searched.
class KO_NODEUI_EXPORT ISegmentSearchable : public virtual IInterface
{
public:
    ~ISegmentSearchable() override;

    static const char* ID();
};

} // namespace ko

#endif
