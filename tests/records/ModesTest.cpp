#include "records/Modes.h"
#include "records/Log.h"
#include "records/UserDefaults.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QSettings>

using namespace tarvanel;

namespace {
class ModesTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        setLogSink([this](const QString& line) { logs << line; });
    }
    QStringList logs;
    test::FakePlatform platform;
};

QDateTime utc(int y, int m, int d, int h = 0, int min = 0, int s = 0) {
    return QDateTime(QDate(y, m, d), QTime(h, min, s), Qt::UTC);
}
} // namespace

TEST_F(ModesTest, DefaultsLiveInTheUsersConfigFolderAndUnreadableValuesAreAbsent) {
    const QString path = UserDefaults::defaultPath();
    EXPECT_EQ(path, test::scratchHome() + "/.config/com.velmora.tarvanel/settings.ini");
    {
        UserDefaults d;
        EXPECT_FALSE(d.pausedUntil().has_value());
        d.setPausedUntil(utc(2025, 3, 2).addMSecs(123));
        d.setTravellingUntil(utc(2025, 3, 5));
    }
    UserDefaults again;
    EXPECT_EQ(again.pausedUntil(), utc(2025, 3, 2).addMSecs(123));
    EXPECT_EQ(again.travellingUntil(), utc(2025, 3, 5));
    again.setPausedUntil(std::nullopt);
    EXPECT_FALSE(QSettings(path, QSettings::IniFormat).contains("pausedUntil"));
    again.removeAll();
    EXPECT_FALSE(QDir(UserDefaults::folder()).exists());
    EXPECT_FALSE(again.travellingUntil().has_value());

    for (const QByteArray& ini :
         {QByteArray("[General]\npausedUntil=tomorrow\n"),
          QByteArray("[General]\npausedUntil=42\n"), QByteArray("\x00\xff garbage [[[", 15)}) {
        SCOPED_TRACE(ini.toStdString());
        UserDefaults().setPausedUntil(utc(2025, 3, 2)); // recreates the file
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(ini);
        f.close();
        UserDefaults fresh;
        EXPECT_FALSE(fresh.pausedUntil().has_value());
        // The next write replaces whatever was there.
        fresh.setPausedUntil(utc(2025, 3, 9));
        EXPECT_EQ(UserDefaults().pausedUntil(), utc(2025, 3, 9));
    }
}

TEST_F(ModesTest, PauseRunsToTheMidnightAfterTheChosenDays) {
    UserDefaults d;
    // 23:59 on Saturday 1 March (GMT): one day ends a minute later.
    EXPECT_FALSE(askPause(platform, d, 1, utc(2025, 3, 1, 23, 59)));
    ASSERT_EQ(platform.alerts.size(), 1);
    EXPECT_EQ(platform.alerts[0].message, QStringLiteral("Pause Tarvanel?"));
    EXPECT_EQ(platform.alerts[0].info,
              QStringLiteral("No reminders and no locks until Sunday 2 March at midnight. You can "
                             "resume any time from the menu."));
    EXPECT_EQ(platform.alerts[0].buttons, QStringList({"Pause", "Cancel"}));
    EXPECT_FALSE(d.pausedUntil().has_value());
    EXPECT_TRUE(logs.isEmpty());

    platform.answerAlert(1000);
    EXPECT_TRUE(askPause(platform, d, 1, utc(2025, 3, 1, 23, 59)));
    EXPECT_EQ(d.pausedUntil(), utc(2025, 3, 2));
    EXPECT_EQ(logs, QStringList({"Tarvanel: paused until 2025-03-02 00:00:00 +0000"}));
    EXPECT_TRUE(isPaused(utc(2025, 3, 1, 23, 59, 59), d));
    EXPECT_FALSE(isPaused(utc(2025, 3, 2), d));

    // Three days from Friday 24 October run across the end of summer time to Monday's midnight.
    platform.answerAlert(1000);
    EXPECT_TRUE(askPause(platform, d, 3, utc(2025, 10, 24, 9)));
    EXPECT_EQ(d.pausedUntil(), utc(2025, 10, 27, 0));
    EXPECT_TRUE(platform.alerts.last().info.contains(QStringLiteral("until Monday 27 October")));

    resume(d);
    EXPECT_FALSE(d.pausedUntil().has_value());
    EXPECT_EQ(logs.last(), QStringLiteral("Tarvanel: resumed"));
}

TEST_F(ModesTest, TravelEndsAtTheMidnightAfterThePickedDay) {
    UserDefaults d;
    Config cfg;
    platform.dateAnswers.push_back(QDate(2025, 3, 4));
    EXPECT_TRUE(askTravel(platform, d, cfg, utc(2025, 3, 1, 10)));
    ASSERT_EQ(platform.alerts.size(), 1);
    EXPECT_EQ(platform.alerts[0].message, QStringLiteral("Travelling until\u2026"));
    EXPECT_EQ(platform.alerts[0].info,
              QStringLiteral("Turn on \u201CCombine prayers while travelling\u201D in Settings if "
                             "your school permits it."));
    EXPECT_EQ(platform.alerts[0].buttons, QStringList({"Start", "Cancel"}));
    EXPECT_EQ(platform.activations, 1);
    EXPECT_EQ(d.travellingUntil(), utc(2025, 3, 5));
    EXPECT_EQ(logs, QStringList({"Tarvanel: travelling until 2025-03-05 00:00:00 +0000"}));
    EXPECT_TRUE(isTravelling(utc(2025, 3, 4, 23, 59), d, false));
    EXPECT_FALSE(isTravelling(utc(2025, 3, 5), d, false));
    EXPECT_TRUE(isTravelling(utc(2025, 3, 5), d, true));

    cfg.combineWhenTravelling = true;
    EXPECT_FALSE(askTravel(platform, d, cfg, utc(2025, 3, 1, 10))); // cancelled
    EXPECT_EQ(platform.alerts[1].info,
              QStringLiteral("Dhuhr and Asr become one lock, and so do Maghrib and Isha, through "
                             "the end of this day."));
    EXPECT_EQ(d.travellingUntil(), utc(2025, 3, 5));

    stopTravelling(d);
    EXPECT_FALSE(d.travellingUntil().has_value());
    EXPECT_EQ(logs.size(), 1); // stopping logs nothing
}

TEST_F(ModesTest, ExpiredModesAreDroppedAtTheirInstant) {
    UserDefaults d;
    d.setPausedUntil(utc(2025, 3, 2));
    d.setTravellingUntil(utc(2025, 3, 5));
    dropExpiredModes(d, utc(2025, 3, 1, 23, 59, 59));
    EXPECT_TRUE(d.pausedUntil().has_value());
    dropExpiredModes(d, utc(2025, 3, 2));
    EXPECT_FALSE(d.pausedUntil().has_value());
    EXPECT_TRUE(d.travellingUntil().has_value());
    dropExpiredModes(d, utc(2025, 3, 6));
    EXPECT_FALSE(d.travellingUntil().has_value());
}
