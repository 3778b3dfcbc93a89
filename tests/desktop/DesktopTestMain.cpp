// Widget tests need a QApplication. Under the offscreen platform the process gets two screens
// side by side, so per-screen behaviour is exercised without X.
#include "desktop/DisplayCheck.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    using namespace tarvanel;
    ::testing::InitGoogleTest(&argc, argv);
    test::useScratchHome();
    useOffscreenScreens(test::scratchHome() + QStringLiteral("/../screens.json"),
                        {QRect(0, 0, 1280, 800), QRect(1280, 0, 1024, 768)});
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
