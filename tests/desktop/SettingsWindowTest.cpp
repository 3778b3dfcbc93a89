// The settings form under the offscreen platform: first-run texts, the Lock footer's guardian
// clause, custom angles, Save without a location, Cancel and the menu's Ctrl+W.
#include "desktop/settings/SettingsWindow.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "support/TestEnv.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>
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

// The wheel scrolls the form and never turns an unfocused stepper; Escape is Cancel; several
// places of one name are a list for the keyboard; the phone steps write the scripts here.
TEST(SettingsWindow, WheelEscapePlaceListAndFocusScripts) {
    int cancelled = 0;
    PrayerSettingsActions actions;
    actions.cancel = [&] { ++cancelled; };
    SettingsServices services;
    services.focusDesktops = {"GNOME", "XFCE", "mako"};
    services.focusDesktop = "XFCE";
    QStringList written;
    services.writeFocus = [&](const QString& desktop) {
        written << desktop;
        return desktop != "mako";
    };
    SettingsWindow host([] {});
    auto* view = new PrayerSettingsView(
        std::make_unique<PrayerSettingsModel>(Config(), false, services), actions);
    PrayerSettingsModel& m = view->model();
    host.show("Tarvanel Settings", QSize(620, 780), view);
    QWidget* w = host.window();
    pump(20);

    auto* lasts = named<QSpinBox>(w, "Lock lasts");
    auto* scroll = w->findChild<QScrollArea*>();
    ASSERT_TRUE(lasts && scroll);
    EXPECT_EQ(lasts->focusPolicy(), Qt::StrongFocus);
    auto wheel = [&](QWidget* target) {
        QWheelEvent turn(QPointF(5, 5), target->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &turn);
    };
    const int before = lasts->value();
    const int top = scroll->verticalScrollBar()->value();
    wheel(lasts);
    EXPECT_EQ(lasts->value(), before);
    EXPECT_EQ(m.lockMinutes(), before);
    EXPECT_GT(scroll->verticalScrollBar()->value(), top);
    lasts->setFocus();
    ASSERT_TRUE(waitFor([&] { return lasts->hasFocus(); }, 1000));
    wheel(lasts); // a focused stepper takes the wheel as usual
    EXPECT_EQ(lasts->value(), before - 1);
    EXPECT_EQ(m.lockMinutes(), before - 1);

    // Several Springfields: a list, the first in use; Down uses the next at once.
    auto* list = named<QListWidget>(w, "Places with this name");
    EXPECT_EQ(list, nullptr); // hidden while there is no choice
    auto place = [](const char* area, double lat) {
        return GeoPlace{"Springfield", "Springfield", area, "United States", "US", "", lat, -90, 1,
                        true};
    };
    m.setPlaces({place("Missouri", 37.2153), place("Illinois", 39.80175)});
    list = named<QListWidget>(w, "Places with this name");
    ASSERT_TRUE(list);
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(1)->text(), "Springfield, Illinois, United States");
    EXPECT_EQ(list->item(1)->data(Qt::AccessibleTextRole).toString(), list->item(1)->text());
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_EQ(list->verticalScrollBar()->focusPolicy(), Qt::NoFocus); // Tab reaches the rows
    wheel(list->verticalScrollBar());
    list->setFocus();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(list, &down);
    EXPECT_EQ(list->currentRow(), 1);
    EXPECT_EQ(m.latitude(), 39.8017);
    EXPECT_EQ(m.locationName(), "Springfield");

    // The Linux steps of "Your phone too" and the button that writes the pair.
    EXPECT_FALSE(showsText(w, "iPhone"));
    EXPECT_FALSE(showsText(w, "Dock"));
    EXPECT_TRUE(showsText(w, "Tarvanel runs the script “Tarvanel Focus On” when a lock starts"));
    auto* picker = named<QComboBox>(w, "Scripts for");
    ASSERT_TRUE(picker);
    EXPECT_EQ(picker->currentText(), "XFCE");
    named<QPushButton>(w, "Write Scripts")->click();
    EXPECT_EQ(m.focusMessage(), "Wrote “Tarvanel Focus On” and “Tarvanel Focus Off” for XFCE.");
    picker->setCurrentIndex(2);
    named<QPushButton>(w, "Write Scripts")->click();
    EXPECT_EQ(written, QStringList({"XFCE", "mako"}));
    EXPECT_TRUE(m.focusMessage().startsWith("Couldn't write “Tarvanel Focus On”"));
    EXPECT_TRUE(named<QPushButton>(w, "Open Shortcuts Folder"));

    // Escape closes the window as Cancel does, and saves nothing.
    w->activateWindow();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(picker, &escape);
    pump(20);
    EXPECT_EQ(cancelled, 1);
    EXPECT_FALSE(host.isOpen());
}
