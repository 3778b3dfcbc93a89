// A faked Dhuhr with the default reminders, through the real controller and the real banner
// panel: each of the four is on screen, in turn, before the screens go dark.
#include "app/Agent.h"
#include "base/StateFiles.h"
#include "desktop/BannerPanel.h"
#include "lock/AppDelegate.h"
#include "records/ConfigFile.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QSet>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

// Records like the fake, and shows banners with the desktop's own panel, grabbing each as
// it appears.
class OnScreenBanners : public test::FakePlatform {
public:
    struct Shot {
        QDateTime at;
        QString message;
        QImage image;
        bool screensDark = false;
    };
    explicit OnScreenBanners(const QDateTime& now) : now_(now) {}

    bool showBanner(const BannerContent& banner) override {
        FakePlatform::showBanner(banner);
        if (!panel.show(banner)) return false;
        test::pump(20);
        QWidget* w = panel.window();
        shots << Shot{now_, banner.message, w && w->isVisible() ? w->grab().toImage() : QImage(),
                      lockWindowsUp};
        return true;
    }
    void closeBanner() override {
        FakePlatform::closeBanner();
        panel.close();
    }

    BannerPanel panel;
    QList<Shot> shots;

private:
    const QDateTime& now_;
};

using RemindersOnScreen = test::ScratchTest;

TEST_F(RemindersOnScreen, AllFourDefaultRemindersShowBeforeTheScreensGoDark) {
    Config cfg;
    cfg.locationName = "London";
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    cfg.prayerOverrides = QMap<QString, QString>{{"Dhuhr", "13:00"}};
    saveConfig(cfg);
    const QDate day(2026, 1, 14);
    auto local = [&](int h, int m, int ms = 0) {
        return QDateTime(day, QTime(h, m).addMSecs(ms)).toUTC();
    };
    QDateTime now = local(12, 30, 500); // a real timer ticks part-way into a second
    const QDateTime lockStart = local(12, 55);

    OnScreenBanners platform(now);
    {
        AppDelegate app(platform, ControllerOptions{});
        app.clock = [&now] { return now; };
        app.callCheck = [] { return false; };
        app.launchFinished();
        while (now < local(12, 56)) {
            now = now.addSecs(1);
            app.tick();
            platform.runPosted();
        }
        EXPECT_TRUE(app.isLocked());
    }
    releaseInstanceLockForTesting();

    const QStringList expected{
        "🕌  Dhuhr in 20 minutes — begin wrapping up.",
        "🕌  Dhuhr in 10 minutes. Start finishing up.",
        "🕌  Dhuhr in 5 minutes. Save your work now.",
        "🕌  Dhuhr in 2 min — the screen is about to lock. Go make wudu.",
    };
    ASSERT_EQ(platform.shots.size(), expected.size());
    const QString dir = qEnvironmentVariable("TARVANEL_SCREENSHOTS");
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const OnScreenBanners::Shot& shot = platform.shots[i];
        SCOPED_TRACE(shot.message.toStdString());
        EXPECT_EQ(shot.message, expected[i]);
        EXPECT_FALSE(shot.screensDark);
        const int minutes = QList<int>{20, 10, 5, 2}[i];
        EXPECT_EQ(shot.at, lockStart.addSecs(-60 * minutes).addMSecs(500));
        ASSERT_FALSE(shot.image.isNull()); // on screen when shown
        EXPECT_EQ(shot.image.width(), BannerView::cardWidth);
        // A card with text on it, not an empty rectangle.
        QSet<QRgb> colours;
        for (int y = 0; y < shot.image.height(); y += 2)
            for (int x = 0; x < shot.image.width(); x += 2)
                colours.insert(shot.image.pixel(x, y));
        EXPECT_GT(colours.size(), 8);
        if (!dir.isEmpty())
            shot.image.save(QDir(dir).filePath(QStringLiteral("reminder-%1.png").arg(minutes)));
    }
    EXPECT_EQ(platform.banners.last().style, BannerStyle::urgent);
    // The lock came after them all and closed the last one.
    ASSERT_EQ(platform.lockShows.size(), 1);
    EXPECT_TRUE(platform.panel.window() == nullptr || !platform.panel.window()->isVisible());
}

} // namespace
