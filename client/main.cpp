#include "Application.h"

#include <cstdio>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

/// A dump of this process would hold passwords. The limit alone is not enough: it does not hold back what
/// the system hands to a program that collects dumps.
void forbidCoreDumps()
{
    const rlimit none = {0, 0};
    if (::setrlimit(RLIMIT_CORE, &none) != 0)
        std::perror("core dumps cannot be limited");
#ifndef KO_SANITIZE // the search for leaks must look into the process
    if (::prctl(PR_SET_DUMPABLE, 0) != 0)
        std::perror("core dumps cannot be switched off");
#endif
}

} // namespace

int main(int argc, char** argv)
{
    forbidCoreDumps();
    return ko::Application(argc, argv).run();
}
