#include "engine/CalcMethods.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/Quotes.h"
#include "support/TestEnv.h"

#include <QHash>

using namespace tarvanel;

namespace {
class HijriTest : public test::ScratchTest {};
QDateTime noonOf(int y, int m, int d) {
    return startOfLocalDay(QDate(y, m, d)).addSecs(43200);
}
} // namespace

TEST_F(HijriTest, UmmAlQuraDatesAndRamadan) {
    EXPECT_EQ(hijriString(noonOf(2025, 3, 14)), "14 Ramadan 1446 AH");
    EXPECT_EQ(hijriString(noonOf(2026, 2, 18)), "1 Ramadan 1447 AH");
    EXPECT_EQ(hijriString(noonOf(2026, 3, 20)), "1 Shawwal 1447 AH");
    EXPECT_TRUE(isRamadan(noonOf(2026, 2, 18)));
    EXPECT_TRUE(isRamadan(noonOf(2026, 3, 19)));
    EXPECT_FALSE(isRamadan(noonOf(2026, 2, 17)));
    EXPECT_FALSE(isRamadan(noonOf(2026, 3, 20)));
    EXPECT_TRUE(hijriString(noonOf(2026, 1, 30)).contains(QString::fromUtf8("Sha\u02BBban 1447")));
}

TEST_F(HijriTest, FollowsTheLocalDateNotUtc) {
    // 23:30 UTC on 17 February 2026 is already 18 February (1 Ramadan) in Tokyo.
    const QDateTime instant(QDate(2026, 2, 17), QTime(23, 30), Qt::UTC);
    test::setTimeZone("Asia/Tokyo");
    EXPECT_EQ(hijriDate(instant).day, 1);
    EXPECT_TRUE(isRamadan(instant));
    test::setTimeZone("America/Los_Angeles");
    EXPECT_FALSE(isRamadan(instant));
}

TEST_F(HijriTest, EnglishWesternDigitsWhateverTheUsersLanguage) {
    const QByteArray old = qgetenv("LC_ALL");
    qputenv("LC_ALL", "ar_SA.UTF-8");
    qputenv("LANG", "ar_SA.UTF-8");
    const QString text = hijriString(noonOf(2025, 3, 14));
    qputenv("LC_ALL", old);
    EXPECT_EQ(text, "14 Ramadan 1446 AH");
}

TEST_F(HijriTest, FarDatesDoNotFail) {
    for (int year : {1, 1600, 2200, 9999}) {
        const QString s = hijriString(startOfLocalDay(QDate(year, 6, 1)));
        EXPECT_TRUE(s.endsWith(" AH")) << year;
        EXPECT_GT(s.size(), 3) << year;
    }
    EXPECT_EQ(hijriString(QDateTime()), " AH");
}

TEST(QuotesTest, TableHoldsTwentyOneWithTheRightDashes) {
    const QList<Quote>& q = quotes();
    ASSERT_EQ(q.size(), 21);
    int general = 0;
    for (const Quote& quote : q)
        general += quote.prayers.isEmpty();
    EXPECT_EQ(general, 14);
    EXPECT_TRUE(q[9].text.contains(QChar(0x2014)));
    EXPECT_TRUE(q[16].text.contains(QChar(0x2014)));
    EXPECT_EQ(q[3].source, QString::fromUtf8("Qur'an 23:1\u20132"));
    EXPECT_EQ(q[19].prayers, QStringList{"Jumu'ah"});
    EXPECT_EQ(q[20].source, "Sahih al-Bukhari 37");
}

TEST(QuotesTest, PickFollowsThePrayer) {
    const QList<Quote>& q = quotes();
    const auto isGeneral = [](const Quote& quote) { return quote.prayers.isEmpty(); };
    for (int i = 0; i < 200; ++i) {
        EXPECT_TRUE(isGeneral(pickQuote("Dhuhr")));
        EXPECT_TRUE(isGeneral(pickQuote("Maghrib")));
        EXPECT_TRUE(isGeneral(pickQuote("fajr"))); // names are case-sensitive
        EXPECT_EQ(pickQuote("Jumu'ah"), q[19]);
        EXPECT_EQ(pickQuote("Tarawih"), q[20]);
        const Quote fajr = pickQuote("Fajr");
        EXPECT_TRUE(isGeneral(fajr) || fajr == q[14] || fajr == q[15] || fajr == q[16] ||
                    fajr == q[18]);
    }
    // Isha's only specific quote comes about two times in three.
    int specific = 0;
    const int draws = 6000;
    for (int i = 0; i < draws; ++i)
        specific += pickQuote("Isha") == q[18];
    EXPECT_NEAR(double(specific) / draws, 2.0 / 3, 0.05);
}

TEST(CalcMethodsTest, RecognisesMethodsFromIdOrAngles) {
    Config c;
    EXPECT_EQ(methodFor(c)->id, "MWL");
    EXPECT_EQ(methodSummary(c), "Standard Asr, Muslim World League");
    c.ishaAngle = 18;
    EXPECT_EQ(methodFor(c)->id, "Karachi");
    c.ishaAngle = 17.5;
    EXPECT_EQ(methodFor(c)->id, "Kuwait");
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
}

TEST(CalcMethodsTest, TableAndSuggestions) {
    ASSERT_EQ(calcMethods().size(), 13);
    QHash<QString, int> ids;
    for (const CalcMethod& m : calcMethods())
        ++ids[m.id];
    EXPECT_EQ(ids.size(), 13);
    const auto& s = suggestedMethods();
    EXPECT_EQ(s.size(), 31);
    for (auto it = s.begin(); it != s.end(); ++it)
        EXPECT_EQ(ids.value(it.value().methodId), 1);
    EXPECT_EQ(s.value("PK").methodId, "Karachi");
    EXPECT_TRUE(s.value("TR").hanafi);
    EXPECT_FALSE(s.value("IR").hanafi);
    EXPECT_FALSE(s.contains("GB"));
}
