#ifndef ORBTESTMAIN_H
#define ORBTESTMAIN_H

#include "orbapplication.h"

#include <QtTest>

/// main() of a test that needs the head unit's application object.
#define ORB_TEST_MAIN(TestClass)                                                                             \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        OrbApplication application(argc, argv);                                                              \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

#endif // ORBTESTMAIN_H
