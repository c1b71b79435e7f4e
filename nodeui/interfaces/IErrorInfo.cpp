#include "interfaces/IErrorInfo.h"

namespace ko {

IErrorInfo::~IErrorInfo() = default;

const char* IErrorInfo::ID()
{
    return "ko::IErrorInfo";
}

} // namespace ko
