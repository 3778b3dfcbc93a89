#include "engine/PrayerTimes.h"
#include "engine/LocalTime.h"
#include "support/TestEnv.h"

#include <cmath>

using namespace tarvanel;

namespace {

class PrayerTimesTest : public test::ScratchTest {};

Config at(double lat, double lon) {
    Config c;
    c.latitude = lat;
    c.longitude = lon;
    return c;
}

QDateTime localNoon(int y, int m, int d) {
    return startOfLocalDay(QDate(y, m, d)).addSecs(12 * 3600);
}

double hoursAfterMidnight(const QDateTime& instant) {
    const LocalFields f = localFields(instant);
    return f.hour + f.minute / 60.0 + f.second / 3600.0;
}

} // namespace

TEST_F(PrayerTimesTest, EveryTimeFallsOnTheRequestedLocalDayWhateverTheHourItIsAsked) {
    // Makkah in order; 170° E in UTC wraps Isha into the small hours of the same date; the
    // clock-change days are 23 or 25 hours long (the table moved by an hour when asked after the
    // change); the New York fall-back day starts in EDT and has Dhuhr in EST.
    struct Case {
        const char* zone;
        QDate day;
        double lat, lon;
        int dhuhrHour;
        bool inOrder = true;
    };
    for (const Case& k : {Case{"Asia/Riyadh", {2024, 11, 5}, 21.4225, 39.8262, 12},
                          Case{"UTC", {2025, 3, 20}, 0, 170, 0, false},
                          Case{"Europe/London", {2025, 3, 30}, 51.5072, -0.1276, 13},
                          Case{"Europe/London", {2025, 10, 26}, 51.5072, -0.1276, 11},
                          Case{"America/New_York", {2025, 11, 2}, 40.71, -74.01, 11},
                          Case{"Australia/Sydney", {2025, 4, 6}, -33.87, 151.21, 11}}) {
        SCOPED_TRACE(k.zone);
        test::setTimeZone(k.zone);
        const Config c = at(k.lat, k.lon);
        const QDateTime midnight = startOfLocalDay(k.day);
        const DayTimes first = PrayerTimes(c).times(midnight);
        QDateTime previous;
        for (const QString& name : dayRowNames()) {
            ASSERT_TRUE(first.contains(name)) << name.toStdString();
            EXPECT_EQ(localDate(*first.value(name)), k.day) << name.toStdString();
            EXPECT_TRUE(!k.inOrder || !previous.isValid() || previous < *first.value(name));
            previous = *first.value(name);
        }
        EXPECT_EQ(*first.value("Isha") < *first.value("Fajr"), !k.inOrder);
        for (int hours : {1, 4, 15, 22})
            EXPECT_EQ(PrayerTimes(c).times(midnight.addSecs(hours * 3600)), first) << hours;
        EXPECT_EQ(localFields(*first.value("Dhuhr")).hour, k.dhuhrHour);
    }
}

TEST_F(PrayerTimesTest,
       HighLatitudesDropOrPortionTimesAndNonsenseCoordinatesGiveNoneInsteadOfGarbage) {
    // At 55° N in June the sun never gets 18° below the horizon.
    test::setTimeZone("Europe/London");
    const Config c = at(55.0, -1.6);
    const DayTimes t = PrayerTimes(c).times(localNoon(2025, 6, 21));
    ASSERT_TRUE(t.contains("Sunrise") && t.contains("Fajr") && t.contains("Isha"));
    const double sunrise = hoursAfterMidnight(*t.value("Sunrise"));
    const double sunsetish = hoursAfterMidnight(*t.value("Maghrib")) - 1.0 / 30;
    const double night = sunrise - sunsetish + 24;
    EXPECT_NEAR(t.value("Fajr")->msecsTo(*t.value("Sunrise")) / 60000.0, 18.0 / 60 * night * 60,
                0.05);
    EXPECT_NEAR(hoursAfterMidnight(*t.value("Isha")) - sunsetish, 17.0 / 60 * night, 0.001);

    test::setTimeZone("Europe/Oslo");
    const Config tromso = at(69.65, 18.96);
    // In winter the sun still reaches 18° below the horizon, but Maghrib needs a sunset.
    const DayTimes winter = PrayerTimes(tromso).times(localNoon(2024, 12, 21));
    EXPECT_FALSE(winter.contains("Sunrise") || winter.contains("Maghrib"));
    EXPECT_TRUE(winter.contains("Dhuhr") && winter.contains("Fajr"));
    const DayTimes summer = PrayerTimes(tromso).times(localNoon(2025, 6, 21));
    EXPECT_FALSE(summer.contains("Sunrise") || summer.contains("Fajr") || summer.contains("Isha"));
    EXPECT_TRUE(summer.contains("Dhuhr") && summer.contains("Asr"));

    test::setTimeZone("UTC");
    const QDateTime day = localNoon(2025, 3, 20);
    for (double lat : {std::nan(""), 1000.0, -91.0, 1e308}) {
        SCOPED_TRACE(lat);
        const DayTimes t = PrayerTimes(at(lat, 0)).times(day);
        for (int i = 0; i < DayTimes::Count; ++i)
            EXPECT_TRUE(!t.at(i) || localDate(*t.at(i)) == QDate(2025, 3, 20)) << i;
    }
    EXPECT_TRUE(PrayerTimes(at(10, std::numeric_limits<double>::infinity())).times(day).isEmpty());
    Config badAngles = at(10, 10);
    badAngles.fajrAngle = std::nan("");
    badAngles.asrFactor = -5;
    EXPECT_TRUE(PrayerTimes(badAngles).times(day).contains("Dhuhr"));
}
