#ifndef TESTMAIN_H
#define TESTMAIN_H

#include "orbapplication.h"

#include <QtTest>

namespace TestSupport {

/// Counts Qt's complaints about string-based connects from now on; Qt reports them as log lines only.
void watchConnects();
int brokenConnects();

} // namespace TestSupport

/// main() of a test program whose class is \a TestClass: one OrbApplication. Fails on a
/// broken connect, once watchConnects() was called.
#define CANBUS_TEST_MAIN(TestClass)                                                                          \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        OrbApplication application(argc, argv);                                                              \
        TestClass test;                                                                                      \
        const int result = QTest::qExec(&test, argc, argv);                                                  \
        return result != 0 ? result : TestSupport::brokenConnects();                                         \
    }

#endif // TESTMAIN_H
