#include "interfaces/ISegmentSearchable.h"

namespace ko {

ISegmentSearchable::~ISegmentSearchable() = default;

const char* ISegmentSearchable::ID()
{
    return "ko::ISegmentSearchable";
}

} // namespace ko
