#ifndef TESTS_SUPPORT_TESTMAIN_H
#define TESTS_SUPPORT_TESTMAIN_H

#include <QApplication>
#include <QTest>

namespace testsupport {

/// Makes runs comparable: fusion style, one font on every platform plugin, settings and data in a folder
/// that is deleted at the end, and a failed test for every connection that could not be made.
void prepareApplication();

} // namespace testsupport

#define KO_TEST_MAIN(TestClass)                                                                              \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        QApplication app(argc, argv);                                                                        \
        testsupport::prepareApplication();                                                                   \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

#endif
