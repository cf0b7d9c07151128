#ifndef TESTMAIN_H
#define TESTMAIN_H

#include "orbapplication.h"
#include "virtualclock.h"

#include <QTest>

namespace TestSupport {

/// Counts Qt's complaints about string-based connects from now on; Qt reports them as log lines only.
void watchConnects();
int brokenConnects();

template <class TestClass>
int runTest(int argc, char **argv)
{
    OrbApplication application(argc, argv);
    TestClass test;
    const int result = QTest::qExec(&test, argc, argv);
    return result != 0 ? result : brokenConnects();
}

} // namespace TestSupport

/// main() of a test program whose class is \a TestClass: one OrbApplication, on the virtual clock, so that its
/// waits cost no time and cannot be too short. Fails on a broken connect, once watchConnects() was called.
/// What another process or thread does needs a VirtualClock::Hold.
#define CANBUS_TEST_MAIN(TestClass)                                                                          \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        return VirtualClock::start() ? TestSupport::runTest<TestClass>(argc, argv) : 1;                      \
    }

/// The same on the machine's clock, for what is about real time or about another process.
#define CANBUS_REAL_TIME_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        return TestSupport::runTest<TestClass>(argc, argv);                                                  \
    }

#endif // TESTMAIN_H
