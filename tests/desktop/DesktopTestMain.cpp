// Widget tests need a QApplication. Under the offscreen platform the process gets two screens
// side by side (its configuration file), so per-screen behaviour is exercised without X.
#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QFile>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    using namespace tarvanel;
    ::testing::InitGoogleTest(&argc, argv);
    test::wipeScratchHome();
    const QByteArray home = test::scratchHome().toUtf8();
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/.config");
    qputenv("XDG_DATA_HOME", home + "/.local/share");
    qunsetenv("TARVANEL_AGENT");
    qputenv("LC_ALL", "C");
    setHomeDirForTesting(test::scratchHome());

    const QString screens = test::scratchHome() + QStringLiteral("/../screens.json");
    QFile file(screens);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(R"({"screens": [
            {"name": "LEFT", "x": 0, "y": 0, "width": 1280, "height": 800,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
            {"name": "RIGHT", "x": 1280, "y": 0, "width": 1024, "height": 768,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        file.close();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.toLocal8Bit());
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
