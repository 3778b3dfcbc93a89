// Every title of the status item, and the cached "Fajr at" title against the plain rule.
#include "../lock/DaySimulator.h"

#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "support/TestEnv.h"

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

using StatusTitleTest = SimTest;

// The colour turns exactly 20 and 5 minutes before the lock's start (12:55).
TEST_F(StatusTitleTest, CountdownAndColourByMinutesToTheLockStart) {
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    sim.launch();
    EXPECT_EQ(sim.platform.title, "🕌 Dhuhr in 1h 0m");
    EXPECT_EQ(sim.platform.titleColor, TitleColor::Label);
    const struct {
        const char* wake; // the tick comes `step` seconds later
        double step;
        const char* title;
        TitleColor color;
    } cases[] = {{"12:36:29", 1, "🕌 Dhuhr in 23m", TitleColor::Orange},
                 {"12:50:59", 1, "🕌 Dhuhr in 9m", TitleColor::Red},
                 {"12:34:59", 1, "🕌 Dhuhr in 25m", TitleColor::Orange},
                 {"12:34:59.999", 0.001, "🕌 Dhuhr in 25m", TitleColor::Orange},
                 {"12:34:58", 1, "🕌 Dhuhr in 25m", TitleColor::Label}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.wake);
        sim.sleepUntil(at(c.wake));
        sim.step(c.step);
        EXPECT_EQ(sim.platform.title, c.title);
        EXPECT_EQ(sim.platform.titleColor, c.color);
    }
}

TEST_F(StatusTitleTest, APrayerAtThisVeryInstantIsNotNext) {
    Config cfg = fixedTimesConfig();
    cfg.lockLeadMinutes = 0;
    cfg.nudgeOffsetsMinutes = {};
    DaySimulator sim(cfg, at("14:59:59"));
    sim.launch();
    sim.app->markPrayed(2);
    sim.step(); // 15:00:00, Asr's time, Asr done
    EXPECT_EQ(sim.platform.title, "🕌 Maghrib in 1h 30m");
}

// The evening title comes from a cache; at every tick it must equal what the rule gives when
// tomorrow is computed afresh, across a settings change and the eve of a clock change.
TEST_F(StatusTitleTest, CachedFajrTitleMatchesTheRuleEverySecond) {
    const QDate eve(2026, 3, 28); // London moves to summer time at 01:00 on the 29th
    Config cfg = fixedTimesConfig("06:30", "13:00", "15:00", "18:00", "20:00");
    cfg.prayerOverrides->remove("Fajr");
    DaySimulator sim(cfg, at("20:00", eve));
    sim.launch();
    auto expected = [&](const Config& c) {
        const auto fajr = effectiveTimes(sim.now.addSecs(86400), c).final.value(u"Fajr");
        return "🕌 Fajr at " + formatLocal(*fajr, "h:mm AP");
    };
    QSet<QString> seen;
    sim.runUntil(at("21:00", eve), [&] {
        if (!sim.app->isLocked()) {
            EXPECT_EQ(sim.platform.title, expected(cfg));
        }
    });
    Config later = cfg;
    later.prayerOverrides->insert("Fajr", "+10");
    sim.app->applyConfig(later);
    sim.runUntil(at("23:59:59", eve), [&] {
        EXPECT_EQ(sim.platform.title, expected(later));
        seen << sim.platform.title;
    });
    // Before 23:00 "now + 24 h" is Sunday; after it, Monday.
    EXPECT_EQ(seen.size(), 2);
}

} // namespace
