// The tray icon's picture and the menu built from the core's model.
#include "desktop/Look.h"
#include "desktop/TrayIcon.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {
void pump(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

// How many opaque pixels are close to `colour`.
int pixelsNear(const QImage& image, const QColor& colour) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && std::abs(c.red() - colour.red()) < 30 &&
                std::abs(c.green() - colour.green()) < 30 &&
                std::abs(c.blue() - colour.blue()) < 30)
                ++n;
        }
    return n;
}
int opaqueInRows(const QImage& image, int from, int to) {
    int n = 0;
    for (int y = from; y < to; ++y)
        for (int x = 0; x < image.width(); ++x)
            n += image.pixelColor(x, y).alpha() > 128;
    return n;
}
} // namespace

TEST(TrayIcon, MinutesAreReadOnlyFromAShortCountdown) {
    EXPECT_EQ(titleMinutes(QStringLiteral("🕌 Dhuhr in 23m")), QStringLiteral("23"));
    EXPECT_EQ(titleMinutes(QStringLiteral("🌙 Iftar in 0m")), QStringLiteral("0"));
    EXPECT_EQ(titleMinutes(QStringLiteral("🕌 Dhuhr & Asr in 145m")), QStringLiteral("145"));
    EXPECT_FALSE(titleMinutes(QStringLiteral("🕌 Jumu'ah in 1h 12m")));
    EXPECT_FALSE(titleMinutes(QStringLiteral("🕌 Fajr at 5:12 AM")));
    EXPECT_FALSE(titleMinutes(QStringLiteral("🕌 Paused")));
    EXPECT_FALSE(titleMinutes(QStringLiteral("🕌")));
}

TEST(TrayIcon, PaintedInTheTitlesColourWithMinutesWhereTheyFit) {
    const QImage orange = trayImage(QStringLiteral("🕌 Dhuhr in 23m"), TitleColor::Orange, 64);
    const QImage red = trayImage(QStringLiteral("🕌 Dhuhr in 4m"), TitleColor::Red, 64);
    const QImage plain = trayImage(QStringLiteral("🕌 Fajr at 5:12 AM"), TitleColor::Label, 64);
    EXPECT_GT(pixelsNear(orange, look::orange), 100);
    EXPECT_EQ(pixelsNear(orange, look::red), 0);
    EXPECT_GT(pixelsNear(red, look::red), 100);
    EXPECT_EQ(pixelsNear(plain, look::orange), 0);
    // With minutes the emblem shrinks to the top and digits fill the bottom half; without, the
    // emblem alone fills the icon.
    EXPECT_GT(opaqueInRows(orange, 0, 28), 100);
    EXPECT_GT(opaqueInRows(orange, 32, 64), 200);
    EXPECT_GT(opaqueInRows(plain, 56, 62), 150); // the mosque's base at the bottom
    EXPECT_LT(opaqueInRows(orange, 60, 64), opaqueInRows(plain, 60, 64));
    const QImage dimmed = trayImage(QStringLiteral("🕌"), TitleColor::Secondary, 22);
    EXPECT_EQ(dimmed.size(), QSize(22, 22));
    EXPECT_NE(trayImage(QStringLiteral("🌙 Iftar in 34m"), TitleColor::Orange, 64), orange);
}

TEST(TrayMenu, BuiltFromTheModelWithTagsSubmenusFontsAndShortcut) {
    int ran = 0, tagSeen = -1;
    MenuModel model;
    model << MenuItem::info(QStringLiteral("London — Muslim World League"));
    model << MenuItem::separator();
    MenuItem grid = MenuItem::info(QStringLiteral("Mon 3   ✓ ✓ · ✓ ✓"));
    grid.monospaced = true;
    model << grid;
    MenuItem mark = MenuItem::info(QStringLiteral("Mark as Prayed"));
    mark.submenu << MenuItem::command(
        QStringLiteral("Fajr: Prayed Late (Qada)"),
        [&] {
            ++ran;
            tagSeen = 100;
        },
        100);
    mark.submenu << MenuItem::info(QStringLiteral("✓ Dhuhr"));
    model << mark;
    MenuItem settings = MenuItem::command(QStringLiteral("Settings…"), [&] { ++ran; });
    settings.shortcut = QStringLiteral(",");
    model << settings;

    QMenu menu;
    fillMenu(&menu, model);
    const QList<QAction*> actions = menu.actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_FALSE(actions[0]->isEnabled());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isEnabled());
    const QFontInfo gridFont(actions[2]->font());
    EXPECT_TRUE(gridFont.fixedPitch() || gridFont.family().contains(QStringLiteral("Mono")))
        << gridFont.family().toStdString();
    EXPECT_DOUBLE_EQ(actions[2]->font().pointSizeF(), 9.0); // 12 px at 96 dpi
    ASSERT_NE(actions[3]->menu(), nullptr);
    EXPECT_TRUE(actions[3]->isEnabled()); // a submenu opens even from an information item
    const QList<QAction*> sub = actions[3]->menu()->actions();
    ASSERT_EQ(sub.size(), 2);
    EXPECT_EQ(sub[0]->data().toInt(), 100);
    EXPECT_TRUE(sub[0]->isEnabled());
    EXPECT_FALSE(sub[1]->isEnabled());
    EXPECT_EQ(actions[4]->shortcut(), QKeySequence(QStringLiteral(",")));

    // Commands run once the menu has closed, not inside the click.
    sub[0]->trigger();
    EXPECT_EQ(ran, 0);
    pump(20);
    EXPECT_EQ(ran, 1);
    EXPECT_EQ(tagSeen, 100);

    // Rebuilding replaces every item.
    fillMenu(&menu, {MenuItem::info(QStringLiteral("Tarvanel isn't set up yet"))});
    EXPECT_EQ(menu.actions().size(), 1);
}

TEST(TrayMenu, OpeningTheMenuAsksTheCoreAfresh) {
    TrayIcon tray;
    int builds = 0;
    tray.setMenuProvider([&] {
        ++builds;
        return MenuModel{MenuItem::info(QStringLiteral("build %1").arg(builds))};
    });
    // No tray host under the offscreen platform: the title is kept, nothing is shown.
    EXPECT_FALSE(tray.ensureCreated());
    tray.setTitle(QStringLiteral("🕌 Asr in 5m"), TitleColor::Red);
    EXPECT_EQ(tray.icon(), nullptr);
    EXPECT_EQ(builds, 0);
    emit tray.menu()->aboutToShow();
    emit tray.menu()->aboutToShow();
    EXPECT_EQ(builds, 2);
    ASSERT_EQ(tray.menu()->actions().size(), 1);
    EXPECT_EQ(tray.menu()->actions().first()->text(), QStringLiteral("build 2"));
}
