#ifndef VIRTUALMAIN_H
#define VIRTUALMAIN_H

#include "virtualclock.h"

#include <QTest>

/// main() of a test program that runs on the virtual clock, its waits cost no
/// time and cannot be too short. Link CanBus::VirtualClock. What another process or thread does needs a
/// VirtualClock::Hold.
#define CANBUS_VIRTUAL_MAIN(Application, TestClass)                                                          \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        if (!VirtualClock::start()) {                                                                        \
            return 1;                                                                                        \
        }                                                                                                    \
        Application application(argc, argv);                                                                 \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

#endif // VIRTUALMAIN_H
