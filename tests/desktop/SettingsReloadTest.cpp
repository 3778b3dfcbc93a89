// config.json edited by hand while the settings window is open, through the desktop platform:
// the form follows a good edit, or keeps the user's edits and says the file changed.
#include "desktop/QtPlatform.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QLabel>
#include <QSpinBox>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

template <typename W> W* named(QWidget* root, const QString& name) {
    for (W* w : root->findChildren<W*>())
        if (w->accessibleName() == name && w->isVisibleTo(root)) return w;
    return nullptr;
}

QWidget* openSettingsWindow() {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->findChild<PrayerSettingsView*>()) return top;
    return nullptr;
}

using SettingsReload = test::ScratchTest;

TEST_F(SettingsReload, TheOpenFormFollowsAGoodHandEditOrSaysTheFileChanged) {
    Config london;
    london.locationName = "London";
    london.latitude = 51.5072;
    london.longitude = -0.1276;
    QtPlatform platform;
    platform.settingsFileChanged(london); // no window: nothing to do
    platform.openSettingsWindow(std::make_unique<PrayerSettingsModel>(london, false), {});
    QWidget* w = openSettingsWindow();
    ASSERT_TRUE(w);
    QSpinBox* lasts = named<QSpinBox>(w, "Lock lasts");
    ASSERT_TRUE(lasts);
    EXPECT_EQ(lasts->value(), 15);

    Config edited = london;
    edited.lockMinutes = 25;
    edited.locationName = "Greenwich";
    platform.settingsFileChanged(edited);
    EXPECT_EQ(lasts->value(), 25);
    const QString notice = "The settings file changed while this window was open. Save keeps "
                           "what you see here; Cancel keeps the file's settings.";
    EXPECT_FALSE(named<QLabel>(w, notice));

    lasts->setValue(30); // the user's own edit
    edited.lockMinutes = 40;
    platform.settingsFileChanged(edited);
    EXPECT_EQ(lasts->value(), 30);
    QLabel* label = named<QLabel>(w, notice);
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(), notice);
    w->close();
    test::pump(20);
}

} // namespace
