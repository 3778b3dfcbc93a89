#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    using namespace tarvanel;
    ::testing::InitGoogleTest(&argc, argv);
    // Point every per-user path at a scratch folder before anything computes one.
    test::wipeScratchHome();
    const QByteArray home = test::scratchHome().toUtf8();
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/.config");
    qputenv("XDG_DATA_HOME", home + "/.local/share");
    qunsetenv("TARVANEL_AGENT");
    qputenv("LC_ALL", "C");
    setHomeDirForTesting(test::scratchHome());
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
