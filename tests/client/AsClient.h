#ifndef TESTS_CLIENT_ASCLIENT_H
#define TESTS_CLIENT_ASCLIENT_H

#include "Application.h"

#include "support/TestMain.h"

#include <QApplication>
#include <QTest>

namespace testsupport {

/// With it as its first argument, such a test is the client itself.
const char clientArgument[] = "--as-client";

/// What main() of a test returns that starts itself as the client.
template <class Test>
int runTestOrClient(int argc, char** argv)
{
    if (argc > 1 && QByteArray(argv[1]) == clientArgument) {
        for (int i = 1; i < argc; ++i)
            argv[i] = argv[i + 1]; // the program never sees it
        --argc;
        return ko::Application(argc, argv).run();
    }
    QApplication app(argc, argv);
    prepareApplication();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace testsupport

#endif
