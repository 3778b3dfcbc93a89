#include "base/Language.h"
#include "support/TestEnv.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    tarvanel::test::useScratchHome();
    QCoreApplication app(argc, argv);
    // Counted texts take their English singular from the catalogue, as in the program.
    tarvanel::applyLanguage(QStringLiteral("en"));
    return RUN_ALL_TESTS();
}
