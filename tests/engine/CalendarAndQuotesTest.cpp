#include "engine/CalcMethods.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/Quotes.h"
#include "support/TestEnv.h"
#include <QLocale>
#include <QTimeZone>

using namespace tarvanel;

namespace {
class HijriTest : public test::ScratchTest {};
QDateTime noonOf(int y, int m, int d) {
    return startOfLocalDay(QDate(y, m, d)).addSecs(43200);
}
} // namespace

TEST_F(HijriTest, UmmAlQuraDatesOnTheLocalDateInTheLanguageEnglishAsItWasUnderEnglishOrC) {
    // The language's month names and digits; the era comes from the catalogue ("AH" without).
    QLocale::setDefault(QLocale(QStringLiteral("ar_SA")));
    EXPECT_EQ(hijriString(noonOf(2025, 3, 14)), "\u0661\u0664 \u0631\u0645\u0636\u0627\u0646 "
                                                "\u0661\u0664\u0664\u0666 AH");
    EXPECT_EQ(hijriDate(noonOf(2025, 3, 14)).day, 14); // the numbers stay numbers
    QLocale::setDefault(QLocale(QStringLiteral("en_IN")));
    EXPECT_EQ(hijriString(noonOf(2025, 3, 14)), "14 Ramadan 1446 AH");
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(hijriString(noonOf(2026, 2, 18)), "1 Ramadan 1447 AH");
    EXPECT_EQ(hijriString(noonOf(2026, 3, 20)), "1 Shawwal 1447 AH");
    EXPECT_TRUE(hijriString(noonOf(2026, 1, 30)).contains(QString::fromUtf8("Sha\u02BBban 1447")));
    EXPECT_TRUE(isRamadan(noonOf(2026, 3, 19)));
    EXPECT_FALSE(isRamadan(noonOf(2026, 2, 17)));
    EXPECT_FALSE(isRamadan(noonOf(2026, 3, 20)));
    // Far dates and no date at all still give text.
    for (int year : {1, 1600, 2200, 9999})
        EXPECT_GT(hijriString(startOfLocalDay(QDate(year, 6, 1))).size(), 3) << year;
    EXPECT_EQ(hijriString(QDateTime()), " AH");
    // 23:30 UTC on 17 February 2026 is already 18 February (1 Ramadan) in Tokyo.
    const QDateTime instant(QDate(2026, 2, 17), QTime(23, 30), QTimeZone::utc());
    test::setTimeZone("Asia/Tokyo");
    EXPECT_EQ(hijriDate(instant).day, 1);
    EXPECT_TRUE(isRamadan(instant));
    test::setTimeZone("America/Los_Angeles");
    EXPECT_FALSE(isRamadan(instant));
}

TEST(QuotesAndMethods, PickFollowsThePrayerAndMethodsAreKnownByIdOrAngles) {
    const QList<Quote>& q = quotes();
    ASSERT_EQ(q.size(), 21);
    const auto isGeneral = [](const Quote& quote) { return quote.prayers.isEmpty(); };
    for (int i = 0; i < 200; ++i) {
        EXPECT_TRUE(isGeneral(pickQuote("Dhuhr")));
        EXPECT_TRUE(isGeneral(pickQuote("fajr"))); // names are case-sensitive
        EXPECT_EQ(pickQuote("Jumu'ah"), q[19]);
        EXPECT_EQ(pickQuote("Tarawih"), q[20]);
        const Quote fajr = pickQuote("Fajr");
        EXPECT_TRUE(isGeneral(fajr) || fajr.prayers.contains("Fajr"));
    }
    // Isha's only specific quote comes about two times in three.
    int specific = 0;
    for (int i = 0; i < 6000; ++i)
        specific += pickQuote("Isha") == q[18];
    EXPECT_NEAR(specific / 6000.0, 2.0 / 3, 0.05);

    Config c;
    EXPECT_EQ(methodSummary(c), "Standard Asr, Muslim World League");
    c.ishaAngle = 18;
    EXPECT_EQ(methodFor(c)->id, "Karachi");
    c.ishaMinutes = 90;
    c.ishaAngle = 3;
    EXPECT_EQ(methodFor(c)->id, "Qatar");
    c.fajrAngle = 18.5;
    EXPECT_EQ(methodFor(c)->id, "Makkah");
    c = Config();
    c.fajrAngle = 16;
    c.ishaAngle = 14;
    EXPECT_FALSE(methodFor(c));
    c.maghribAngle = 4;
    EXPECT_EQ(methodFor(c)->id, "Jafari");
    c.method = "Custom";
    EXPECT_FALSE(methodFor(c));
    c.asrFactor = 2.5;
    EXPECT_EQ(methodSummary(c), "Hanafi, custom angles");
    c.asrFactor = 1.5;
    c.method = "Tehran"; // an id wins over the angles
    EXPECT_EQ(methodSummary(c), "Standard Asr, Institute of Geophysics, Tehran");
    c.method = "tehran";
    EXPECT_FALSE(methodFor(c));
    // Every country suggestion names a known method.
    for (auto it = suggestedMethods().begin(); it != suggestedMethods().end(); ++it) {
        c.method = it.value().methodId;
        EXPECT_TRUE(methodFor(c)) << it.key().toStdString();
    }
}
