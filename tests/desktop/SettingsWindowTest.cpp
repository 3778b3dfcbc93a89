// The settings form under the offscreen platform: first-run texts, the Lock footer's guardian
// clause, custom angles, Save without a location, Cancel and the menu's Ctrl+W.
#include "desktop/settings/SettingsWindow.h"
#include "DesktopTest.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "support/TestEnv.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

template <typename W> W* named(QWidget* root, const QString& name) {
    for (W* w : root->findChildren<W*>())
        if (w->accessibleName() == name && w->isVisibleTo(root)) return w;
    return nullptr;
}

bool showsText(QWidget* root, const QString& part) {
    for (QLabel* l : root->findChildren<QLabel*>())
        if (l->isVisibleTo(root) && l->text().contains(part)) return true;
    return false;
}

} // namespace

TEST(SettingsWindow, FirstRunFormSavesOnlyWithALocationAndNeverOnCancel) {
    QList<Config> saved;
    int cancelled = 0;
    PrayerSettingsActions actions;
    actions.save = [&](const Config& c) { saved << c; };
    actions.cancel = [&] { ++cancelled; };
    SettingsWindow host([] {});
    auto* view =
        new PrayerSettingsView(std::make_unique<PrayerSettingsModel>(Config(), true), actions);
    PrayerSettingsModel& m = view->model();
    host.show("Welcome to Tarvanel", QSize(620, 780), view);
    QWidget* w = host.window();
    ASSERT_TRUE(w);
    for (const char* text :
         {"Welcome to Tarvanel", "Get up and pray, on time", "Find your city to begin"})
        EXPECT_TRUE(showsText(w, text)) << text;

    // Every control is reachable by the name a screen reader reads.
    for (const char* name : {"City", "Find", "Method", "Lock lasts", "Reminders (minutes before)",
                             "Jumu'ah time", "Set Up Guardian Code…", "Export History…",
                             "Preview Lock", "Uninstall…", "Cancel", "Start Tarvanel"})
        EXPECT_TRUE(named<QWidget>(w, name)) << name;

    QPushButton* save = named<QPushButton>(w, "Start Tarvanel");
    ASSERT_TRUE(save);
    EXPECT_FALSE(save->isEnabled());
    EXPECT_FALSE(save->toolTip().isEmpty());

    // Custom angles show the two steppers; a table method hides them.
    auto* method = named<QComboBox>(w, "Method");
    ASSERT_TRUE(method);
    EXPECT_FALSE(named<QAbstractSpinBox>(w, "Fajr angle"));
    m.setMethodID("Custom");
    EXPECT_EQ(method->currentText(), "Custom angles");
    QAbstractSpinBox* fajr = named<QAbstractSpinBox>(w, "Fajr angle");
    ASSERT_TRUE(fajr);
    m.setMethodID("ISNA");
    EXPECT_FALSE(fajr->isVisibleTo(w));

    // The Lock footer names the guardian's code only while one is set.
    EXPECT_FALSE(showsText(w, "except your guardian's code"));
    m.setGuardianSet(true);
    EXPECT_TRUE(showsText(w, "There's no way to end it early except your guardian's code."));

    m.setLatitude(51.5074);
    m.setLongitude(-0.1278);
    EXPECT_TRUE(save->isEnabled());
    named<QPushButton>(w, "Cancel")->click();
    pump(20);
    EXPECT_FALSE(host.isOpen());
    EXPECT_EQ(cancelled, 1);
    EXPECT_TRUE(saved.isEmpty());

    // Reopened: Ctrl+W closes without saving; Save hands the edited Config over and closes.
    auto* again =
        new PrayerSettingsView(std::make_unique<PrayerSettingsModel>(Config(), false), actions);
    host.show("Tarvanel Settings", QSize(620, 780), again);
    again->model().setLatitude(21.4266);
    QAction* closeWindow = nullptr;
    for (QAction* a : host.window()->findChildren<QAction*>())
        if (a->text() == "Close Window") closeWindow = a;
    ASSERT_TRUE(closeWindow);
    EXPECT_EQ(closeWindow->shortcut(), QKeySequence("Ctrl+W"));
    closeWindow->trigger();
    pump(20);
    EXPECT_FALSE(host.isOpen());
    EXPECT_TRUE(saved.isEmpty());
    again = new PrayerSettingsView(std::make_unique<PrayerSettingsModel>(Config(), false), actions);
    host.show("Tarvanel Settings", QSize(620, 780), again);
    again->model().setLatitude(21.4266);
    named<QPushButton>(host.window(), "Save")->click();
    pump(20);
    ASSERT_EQ(saved.size(), 1);
    EXPECT_EQ(saved[0].latitude, 21.4266);
    EXPECT_FALSE(host.isOpen());
}
