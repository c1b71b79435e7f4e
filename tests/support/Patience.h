#ifndef TESTS_SUPPORT_PATIENCE_H
#define TESTS_SUPPORT_PATIENCE_H

#include <QTest>

namespace testsupport {

/// How long a test waits for what must come, in ms. Generous: a busy machine stops a process for seconds, and
/// only a failure waits as long.
const int Patience = 30000;

/// How much longer anything may take that is measured: sanitizers look at each step.
#ifdef KO_SANITIZE
constexpr double Slowness = 5;
#else
constexpr double Slowness = 1;
#endif

} // namespace testsupport

#define KO_TRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, testsupport::Patience)
#define KO_TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, testsupport::Patience)

#endif
