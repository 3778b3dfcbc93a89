// The tray icon's picture and the menu built from the core's model.
#include "desktop/Look.h"
#include "desktop/TrayIcon.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <cstring>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {
// How many pixels of rows [from, to) match.
int count(const QImage& image, const std::function<bool(const QColor&)>& match, int from = 0,
          int to = -1) {
    int n = 0;
    for (int y = from; y < (to < 0 ? image.height() : to); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += match(image.pixelColor(x, y));
    return n;
}
auto near(const QColor& colour) {
    return [colour](const QColor& c) {
        return c.alpha() > 200 && std::abs(c.red() - colour.red()) < 30 &&
               std::abs(c.green() - colour.green()) < 30 && std::abs(c.blue() - colour.blue()) < 30;
    };
}
bool opaque(const QColor& c) {
    return c.alpha() > 128;
}
} // namespace

TEST(TrayIcon, MinutesFromAShortCountdownPaintedInTheTitlesColourReadableOnAnyPanel) {
    const QList<std::pair<QString, std::optional<QString>>> cases = {
        {"🕌 Dhuhr in 23m", "23"},
        {"🌙 Iftar in 0m", "0"},
        {"🕌 Dhuhr & Asr in 145m", "145"},
        {"🕌 الظهر بعد ٢٣ د", "٢٣"},
        {"🕌 Öğle 1 sa 12 dk", {}},
        {"🕌 Jumu'ah in 1h 12m", {}},
        {"🕌 Fajr at 5:12 AM", {}},
        {"🕌 Paused", {}},
        {"🕌", {}}};
    for (const auto& [title, minutes] : cases)
        EXPECT_EQ(titleMinutes(title), minutes) << title.toStdString();

    struct Case {
        const char* title;
        TitleColor colour;
        QColor painted, absent;
    };
    const QImage plain = trayImage("🕌 Fajr at 5:12 AM", TitleColor::Label, 64);
    for (const auto& [title, colour, painted, absent] :
         {Case{"🕌 Fajr at 5:12 AM", TitleColor::Label, QColor(0xF2F2F2), look::orange},
          {"🕌 Dhuhr in 23m", TitleColor::Orange, look::orange, look::red},
          {"🌙 Iftar in 4m", TitleColor::Red, look::red, look::orange},
          {"🕌 Dhuhr in 145m", TitleColor::Secondary, QColor(0x9A9A9E), look::red}}) {
        SCOPED_TRACE(title);
        const QImage big = trayImage(title, colour, 64);
        EXPECT_GT(count(big, near(painted)), 100);
        EXPECT_EQ(count(big, near(absent)), 0);
        // With minutes the emblem shrinks to the top and digits fill the bottom half; without,
        // the emblem alone fills the icon down to the mosque's base.
        const bool minutes = titleMinutes(title).has_value();
        EXPECT_GT(count(big, opaque, 0, 28), 100);
        EXPECT_GT(count(big, opaque, 32, 64), minutes ? 200 : 700);
        EXPECT_EQ(count(big, opaque, 60, 64) < count(plain, opaque, 60, 64), minutes);
        EXPECT_EQ(big == plain, !strcmp(title, "🕌 Fajr at 5:12 AM"));

        // At panel size, on light and dark panels alike, a good part of the icon stands out from
        // the panel's colour (the light emblem once vanished on light grey).
        for (const QColor panel : {0xffffff, 0xd6d6d6, 0x9a9a9a, 0x3c3c3c, 0x000000}) {
            QImage onPanel(22, 22, QImage::Format_RGB32);
            onPanel.fill(panel);
            QPainter(&onPanel).drawImage(0, 0, trayImage(title, colour, 22));
            const int standsOut = count(onPanel, [&](const QColor& c) {
                return std::max({std::abs(c.red() - panel.red()),
                                 std::abs(c.green() - panel.green()),
                                 std::abs(c.blue() - panel.blue())}) > 80;
            });
            EXPECT_GT(standsOut, 22 * 22 / 8) << panel.name().toStdString();
        }
    }
}

TEST(TrayMenu, BuiltAfreshFromTheCoresModelEachTimeItOpens) {
    TrayIcon tray;
    // No tray host under the offscreen platform: the title is kept, nothing is shown.
    EXPECT_FALSE(tray.ensureCreated());
    tray.setTitle("🕌 Asr in 5m", TitleColor::Red);
    EXPECT_EQ(tray.icon(), nullptr);
    // A notification waits for a tray host; a later one replaces it.
    EXPECT_EQ(tray.waitingAnnouncement(), "");
    EXPECT_FALSE(tray.announce("Tarvanel is running", "Next lock: Asr at 3:17 PM"));
    EXPECT_FALSE(tray.announce("Tarvanel is running", "Next lock: Maghrib at 5:02 PM"));
    EXPECT_EQ(tray.waitingAnnouncement(), "Tarvanel is running: Next lock: Maghrib at 5:02 PM");
    int ran = 0, builds = 0;
    tray.setMenuProvider([&] {
        if (++builds > 1) return MenuModel{MenuItem::info("Tarvanel isn't set up yet")};
        MenuModel model{MenuItem::info("London — Muslim World League"), MenuItem::separator(),
                        MenuItem::info("Mon 3   ✓ ✓ · ✓ ✓"), MenuItem::info("Mark as Prayed"),
                        MenuItem::command("Settings…", [&] { ++ran; })};
        model[2].monospaced = true;
        model[3].submenu << MenuItem::command(
                                "Fajr: Prayed Late (Qada)", [&] { ran += 10; }, 100)
                         << MenuItem::info("✓ Dhuhr");
        model[4].shortcut = "Ctrl+,";
        return model;
    });
    EXPECT_EQ(builds, 0);
    emit tray.menu()->aboutToShow();
    const QList<QAction*> actions = tray.menu()->actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_FALSE(actions[0]->isEnabled());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isEnabled());
    ASSERT_NE(actions[3]->menu(), nullptr);
    EXPECT_TRUE(actions[3]->isEnabled()); // a submenu opens even from an information item
    const QList<QAction*> sub = actions[3]->menu()->actions();
    ASSERT_EQ(sub.size(), 2);
    EXPECT_EQ(sub[0]->data().toInt(), 100);
    EXPECT_TRUE(sub[0]->isEnabled());
    EXPECT_FALSE(sub[1]->isEnabled());
    EXPECT_EQ(actions[4]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    EXPECT_NE(actions[4]->shortcut().toString(QKeySequence::NativeText), ",");

    // Commands run once the menu has closed, not inside the click.
    sub[0]->trigger();
    EXPECT_EQ(ran, 0);
    test::pump(20);
    EXPECT_EQ(ran, 10);

    // The next opening asks again and replaces every item.
    emit tray.menu()->aboutToShow();
    EXPECT_EQ(builds, 2);
    ASSERT_EQ(tray.menu()->actions().size(), 1);
    EXPECT_EQ(tray.menu()->actions().first()->text(), "Tarvanel isn't set up yet");
}
