#include "engine/Schedule.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerTimes.h"
#include "support/TestEnv.h"
#include "timetable/Timetable.h"

using namespace tarvanel;

namespace {

class ScheduleTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        cfg.locationName = "London";
        cfg.latitude = 51.5072;
        cfg.longitude = -0.1276;
    }
    QString clock(const std::optional<QDateTime>& t) const {
        return t ? formatLocal(*t, "HH:mm") : QString("absent");
    }
    Config cfg;
    // Tuesday 11 March 2025 and Friday 14 March 2025, both at local midnight.
    const QDateTime tuesday = startOfLocalDay(QDate(2025, 3, 11));
    const QDateTime friday = startOfLocalDay(QDate(2025, 3, 14));
};

} // namespace

TEST_F(ScheduleTest, OverridesApplyToWaqtIndependentlyInAnyOrderAndInvalidOnesKeepIt) {
    const EffectiveTimes plain = Timetable::scheduledTimes(tuesday, cfg);
    EXPECT_FALSE(plain.jumuah);
    EXPECT_EQ(plain.final, plain.waqt);
    EXPECT_EQ(plain.waqt, PrayerTimes(cfg).times(tuesday));

    cfg.prayerOverrides =
        QMap<QString, QString>{{"Dhuhr", " +10\t"}, {"Asr", "-5"},  {"Isha", "04:00"},
                               {"Maghrib", "+0"},   {"Fajr", "-0"}, {"Sunrise", "+2.5"}};
    const EffectiveTimes t = Timetable::scheduledTimes(tuesday, cfg);
    const QList<std::pair<const char*, int>> shifts = {
        {"Dhuhr", 600}, {"Asr", -300}, {"Maghrib", 0}, {"Fajr", 0}, {"Sunrise", 150}};
    for (const auto& [name, seconds] : shifts)
        EXPECT_EQ(*t.final.value(name), t.waqt.value(name)->addSecs(seconds)) << name;
    // A fixed 04:00 stays on the same calendar day, before Fajr.
    EXPECT_EQ(*t.final.value("Isha"), tuesday.addSecs(4 * 3600));
    EXPECT_TRUE(logs.isEmpty());

    // A large offset may carry a prayer past the next one: nothing reorders or clamps.
    cfg.prayerOverrides = QMap<QString, QString>{{"Fajr", "+600"}};
    const EffectiveTimes late = Timetable::scheduledTimes(tuesday, cfg);
    EXPECT_GT(*late.final.value("Fajr"), *late.final.value("Dhuhr"));

    // Invalid rules keep the waqt; only the fixed-looking ones are logged.
    cfg.prayerOverrides = QMap<QString, QString>{
        {"Fajr", "+abc"}, {"Dhuhr", "25:00"},    {"Asr", "7"},         {"Maghrib", "7:5:0"},
        {"Isha", "+inf"}, {"Tahajjud", "03:00"}, {"Sunrise", "+1e300"}};
    const EffectiveTimes invalid = Timetable::scheduledTimes(tuesday, cfg);
    EXPECT_EQ(invalid.final, invalid.waqt);
    EXPECT_EQ(logs, (QStringList{"Tarvanel: ignoring invalid override for Asr: \"7\"",
                                 "Tarvanel: ignoring invalid override for Dhuhr: \"25:00\"",
                                 "Tarvanel: ignoring invalid override for Maghrib: \"7:5:0\""}));
}

TEST_F(ScheduleTest, FixedTimesAreLooseValidClockTimesFollowingTheWallClockOnClockChangeDays) {
    const QDateTime day = tuesday.addSecs(15 * 3600);
    for (auto [text, want] :
         {std::pair{"13::30", "13:30"}, {" 6:05\t", "06:05"}, {"+7:+05", "07:05"}})
        EXPECT_EQ(clock(parseFixedTime(text, day)), want);
    EXPECT_EQ(parseFixedTime("0:0", day), tuesday);
    for (const char* bad : {"24:00", "12:60", "-1:00", "12", "1:2:3", "a:b", "12:3x", "", " : ",
                            "1 2:30", "99999999999:00", "１２:30"})
        EXPECT_FALSE(parseFixedTime(bad, day).has_value()) << bad;
    // London springs forward at 01:00 on 30 March 2025 and falls back at 02:00 on 26 October.
    for (const QDate date : {QDate(2025, 3, 30), QDate(2025, 10, 26)}) {
        SCOPED_TRACE(date.toString(Qt::ISODate).toStdString());
        for (const char* text : {"00:30", "03:00", "13:30", "20:30", "23:59"})
            EXPECT_EQ(clock(parseFixedTime(text, startOfLocalDay(date))), text);
    }
    // 01:30 does not exist on the spring day: it reads as the instant an hour and a half after
    // midnight, 02:30 on the clock.
    EXPECT_EQ(clock(parseFixedTime("01:30", startOfLocalDay(QDate(2025, 3, 30)))), "02:30");
    test::setTimeZone("America/New_York");
    const QDateTime fallBack = startOfLocalDay(QDate(2025, 11, 2));
    EXPECT_EQ(clock(parseFixedTime("13:30", fallBack)), "13:30");
    EXPECT_EQ(fallBack.secsTo(*parseFixedTime("13:30", fallBack)), 14 * 3600 + 1800);
}

TEST_F(ScheduleTest, FridayLocksDhuhrAtJumuahTimeWhateverTheOverrideButATimetablesJumuahWins) {
    using Dhuhr = std::pair<bool, QString>; // Jumu'ah?, lock time
    const auto fridayDhuhr = [&] {
        const EffectiveTimes t = Timetable::scheduledTimes(friday, cfg);
        return Dhuhr(t.jumuah, clock(t.final.value("Dhuhr")));
    };
    cfg.prayerOverrides = QMap<QString, QString>{{"Dhuhr", "12:15"}};
    EXPECT_EQ(fridayDhuhr(), Dhuhr(true, "13:30"));
    cfg.jumuahEnabled = false;
    EXPECT_EQ(fridayDhuhr(), Dhuhr(false, "12:15"));
    cfg.jumuahEnabled.reset(); // absent counts as enabled
    EXPECT_EQ(fridayDhuhr(), Dhuhr(true, "13:30"));
    cfg.jumuahTime = "13:75";
    EXPECT_EQ(fridayDhuhr(), Dhuhr(false, "12:15"));
    cfg.jumuahTime.reset();
    EXPECT_EQ(fridayDhuhr(), Dhuhr(false, "12:15"));
    EXPECT_FALSE(Timetable::scheduledTimes(tuesday, cfg).jumuah);

    // A timetable wins over overrides, and its Jumu'ah over the setting.
    cfg.jumuahTime = Config().jumuahTime;
    test::writeSupportFile("timetable.json", R"({
        "2025-03-11": {"Fajr": "05:45", "Asr": "16:40", "Isha": "not a time", "Witr": "23:00"},
        "2025-03-14": {"Jumu'ah": "13:10", "Maghrib": "18:22"}
    })");
    cfg.prayerOverrides = QMap<QString, QString>{{"Fajr", "+20"}, {"Isha", "+5"}};
    const EffectiveTimes t = Timetable::scheduledTimes(tuesday, cfg);
    EXPECT_EQ(clock(t.final.value("Fajr")), "05:45");
    EXPECT_EQ(clock(t.final.value("Asr")), "16:40");
    EXPECT_EQ(*t.final.value("Isha"), t.waqt.value("Isha")->addSecs(300));
    EXPECT_FALSE(t.jumuah);

    const EffectiveTimes f = Timetable::scheduledTimes(friday, cfg);
    EXPECT_TRUE(f.jumuah);
    EXPECT_EQ(clock(f.final.value("Dhuhr")), "13:10");
    EXPECT_EQ(clock(f.final.value("Maghrib")), "18:22");
}

// A lock window opens the lead before the lock time and lasts the bounded length: Jumu'ah's
// only for Dhuhr on a Jumu'ah day. Whole milliseconds, rounded once.
TEST_F(ScheduleTest, LockWindowIsTheLeadBeforeTheLockTimeForTheBoundedLength) {
    const QDateTime one = tuesday.addSecs(13 * 3600);
    auto window = [&](const QString& prayer, bool jumuah) {
        const LockPeriod w = lockPeriod(one, prayer, jumuah, cfg);
        return QStringList{clock(w.start), clock(w.end)};
    };
    EXPECT_EQ(window("Dhuhr", false), QStringList({"12:55", "13:10"}));
    EXPECT_EQ(window("Dhuhr", true), QStringList({"12:55", "13:40"}));
    EXPECT_EQ(window("Asr", true), QStringList({"12:55", "13:10"}));
    cfg.lockMinutes = 500;
    cfg.jumuahLockMinutes = 0;
    cfg.lockLeadMinutes = 0.5;
    EXPECT_EQ(lockPeriod(one, "Isha", false, cfg).start, one.addSecs(-30));
    EXPECT_EQ(window("Isha", false), QStringList({"12:59", "15:59"}));
    EXPECT_EQ(window("Dhuhr", true), QStringList({"12:59", "13:00"}));
    cfg.lockLeadMinutes = 0.6 / 60000; // 0.6 ms rounds to one
    const LockPeriodMs ms = lockPeriodMs(1000, "Fajr", false, cfg);
    EXPECT_EQ(ms.start, 999);
    EXPECT_EQ(ms.end, 999 + 180 * 60000);
    EXPECT_FALSE(lockPeriod(QDateTime(), "Fajr", false, cfg).start.isValid());
}
