#include "support/TestEnv.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    tarvanel::test::useScratchHome();
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
