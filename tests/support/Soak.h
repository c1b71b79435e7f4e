#ifndef TESTS_SUPPORT_SOAK_H
#define TESTS_SUPPORT_SOAK_H

#include <QtGlobal>

namespace testsupport {

/// How often a test repeats what it does: many times under `./test --soak`, else as often as there is time
/// for.
inline int soakOr(int soak, int usual)
{
    return qEnvironmentVariableIsSet("KO_SOAK") ? soak : usual;
}

} // namespace testsupport

#endif
