// Widget tests need a QApplication. Under the offscreen platform the process gets two screens
// side by side, so per-screen behaviour is exercised without X.
#include "base/Language.h"
#include "desktop/DisplayCheck.h"
#include "ocr/TimetableOCR.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    using namespace tarvanel;
    // ctest's environment for these tests loses the thread limit (the list's semicolon splits
    // it off), and the text recognition tests run several times slower without it.
    TimetableOCR::restartWithThreadLimit(argv);
#ifdef TARVANEL_SHEET_READER_BUILT
    if (!qEnvironmentVariableIsSet("TARVANEL_SHEET_READER"))
        qputenv("TARVANEL_SHEET_READER", TARVANEL_SHEET_READER_BUILT);
#endif
    ::testing::InitGoogleTest(&argc, argv);
    test::useScratchHome();
    useOffscreenScreens(test::scratchHome() + QStringLiteral("/../screens.json"),
                        {QRect(0, 0, 1280, 800), QRect(1280, 0, 1024, 768)});
    QApplication app(argc, argv);
    // Counted texts take their English singular from the catalogue, as in the program.
    applyLanguage(QStringLiteral("en"));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
