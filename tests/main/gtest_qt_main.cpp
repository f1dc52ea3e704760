// The main of every GoogleTest binary that does not bring its own: a
// QCoreApplication for event loops, signals and timers, and a sandbox of its
// own so no test touches the developer's build/sandbox.
#include "testsupport.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    TempSandbox sandbox;
    return RUN_ALL_TESTS();
}
