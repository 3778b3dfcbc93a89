// The tray icon's picture and the menu built from the core's model.
#include "DesktopTest.h"
#include "desktop/Look.h"
#include "desktop/TrayIcon.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
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

TEST(TrayIcon, MinutesAreReadOnlyFromAShortCountdown) {
    const QList<std::pair<QString, std::optional<QString>>> cases = {
        {"🕌 Dhuhr in 23m", "23"},
        {"🌙 Iftar in 0m", "0"},
        {"🕌 Dhuhr & Asr in 145m", "145"},
        {"🕌 Jumu'ah in 1h 12m", {}},
        {"🕌 Fajr at 5:12 AM", {}},
        {"🕌 Paused", {}},
        {"🕌", {}}};
    for (const auto& [title, minutes] : cases)
        EXPECT_EQ(titleMinutes(title), minutes) << title.toStdString();
}

TEST(TrayIcon, PaintedInTheTitlesColourWithMinutesWhereTheyFitReadableOnAnyPanel) {
    const QImage orange = trayImage("🕌 Dhuhr in 23m", TitleColor::Orange, 64);
    const QImage red = trayImage("🕌 Dhuhr in 4m", TitleColor::Red, 64);
    const QImage plain = trayImage("🕌 Fajr at 5:12 AM", TitleColor::Label, 64);
    EXPECT_GT(count(orange, near(look::orange)), 100);
    EXPECT_EQ(count(orange, near(look::red)), 0);
    EXPECT_GT(count(red, near(look::red)), 100);
    EXPECT_EQ(count(plain, near(look::orange)), 0);
    // With minutes the emblem shrinks to the top and digits fill the bottom half; without, the
    // emblem alone fills the icon.
    EXPECT_GT(count(orange, opaque, 0, 28), 100);
    EXPECT_GT(count(orange, opaque, 32, 64), 200);
    EXPECT_GT(count(plain, opaque, 56, 62), 150); // the mosque's base at the bottom
    EXPECT_LT(count(orange, opaque, 60, 64), count(plain, opaque, 60, 64));
    EXPECT_NE(trayImage("🌙 Iftar in 34m", TitleColor::Orange, 64), orange);

    // At panel size, on light and dark panels alike, a good part of the icon stands out from
    // the panel's colour (the light emblem once vanished on light grey).
    for (const char* panel : {"#ffffff", "#d6d6d6", "#9a9a9a", "#3c3c3c", "#000000"})
        for (const auto& [title, colour] : {std::pair{"🕌 Fajr at 5:12 AM", TitleColor::Label},
                                            {"🕌 Dhuhr in 23m", TitleColor::Secondary},
                                            {"🌙 Iftar in 4m", TitleColor::Orange}}) {
            SCOPED_TRACE(std::string(panel) + " " + title);
            const QImage icon = trayImage(title, colour, 22);
            ASSERT_EQ(icon.size(), QSize(22, 22));
            QImage onPanel(icon.size(), QImage::Format_RGB32);
            onPanel.fill(QColor(panel));
            QPainter(&onPanel).drawImage(0, 0, icon);
            const QColor back(panel);
            const int standsOut = count(onPanel, [&](const QColor& c) {
                return std::max({std::abs(c.red() - back.red()), std::abs(c.green() - back.green()),
                                 std::abs(c.blue() - back.blue())}) > 80;
            });
            EXPECT_GT(standsOut, 22 * 22 / 8);
            if (qEnvironmentVariableIsSet("TARVANEL_SHOTS"))
                onPanel.scaled(88, 88).save(qEnvironmentVariable("TARVANEL_SHOTS") + "/tray-" +
                                            QString(panel).mid(1) + "-" +
                                            QString::number(int(colour)) + ".png");
        }
}

TEST(TrayMenu, BuiltAfreshFromTheCoresModelEachTimeItOpens) {
    TrayIcon tray;
    // No tray host under the offscreen platform: the title is kept, nothing is shown.
    EXPECT_FALSE(tray.ensureCreated());
    tray.setTitle("🕌 Asr in 5m", TitleColor::Red);
    EXPECT_EQ(tray.icon(), nullptr);
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
        model[4].shortcut = ",";
        return model;
    });
    EXPECT_EQ(builds, 0);
    emit tray.menu()->aboutToShow();
    const QList<QAction*> actions = tray.menu()->actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_FALSE(actions[0]->isEnabled());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isEnabled());
    const QFontInfo gridFont(actions[2]->font());
    EXPECT_TRUE(gridFont.fixedPitch() || gridFont.family().contains("Mono"))
        << gridFont.family().toStdString();
    ASSERT_NE(actions[3]->menu(), nullptr);
    EXPECT_TRUE(actions[3]->isEnabled()); // a submenu opens even from an information item
    const QList<QAction*> sub = actions[3]->menu()->actions();
    ASSERT_EQ(sub.size(), 2);
    EXPECT_EQ(sub[0]->data().toInt(), 100);
    EXPECT_TRUE(sub[0]->isEnabled());
    EXPECT_FALSE(sub[1]->isEnabled());
    EXPECT_EQ(actions[4]->shortcut(), QKeySequence(","));

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
