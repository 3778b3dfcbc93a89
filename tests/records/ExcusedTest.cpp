#include "records/Excused.h"
#include "records/Log.h"
#include "records/StateFiles.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QFile>

using namespace tarvanel;

namespace {
class ExcusedTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        setLogSink([this](const QString& line) { logs << line; });
    }
    QStringList logs;
};

QDateTime utc(int y, int m, int d, int h = 0, int min = 0, int s = 0) {
    return QDateTime(QDate(y, m, d), QTime(h, min, s), Qt::UTC);
}

QByteArray excusedBytes() {
    return readWholeFile(supportPath("excused.json")).value_or(QByteArray());
}
} // namespace

TEST_F(ExcusedTest, FileHoldsUtcSecondsAndOmitsAnOpenEnd) {
    const QDateTime start = utc(2025, 3, 1, 18, 2, 11).addMSecs(750);
    Excused::save({{utc(2025, 2, 1), utc(2025, 2, 3, 6)}, {start, std::nullopt}});
    EXPECT_EQ(excusedBytes(), QByteArray("[\n"
                                         "    {\n"
                                         "        \"end\": \"2025-02-03T06:00:00Z\",\n"
                                         "        \"start\": \"2025-02-01T00:00:00Z\"\n"
                                         "    },\n"
                                         "    {\n"
                                         "        \"start\": \"2025-03-01T18:02:11Z\"\n"
                                         "    }\n"
                                         "]\n"));
    const QList<ExcusedRange> back = Excused::load();
    ASSERT_EQ(back.size(), 2);
    EXPECT_EQ(back[1].start, utc(2025, 3, 1, 18, 2, 11)); // the fraction is gone
    EXPECT_FALSE(back[1].end.has_value());
    EXPECT_EQ(back[0].end, utc(2025, 2, 3, 6));
}

TEST_F(ExcusedTest, OffsetsAndNullEndsAreReadOtherFormsSpoilTheFile) {
    test::writeSupportFile("excused.json",
                           R"([{"start": "2025-03-01T20:00:00+02:00", "end": null}])");
    const QList<ExcusedRange> ranges = Excused::load();
    ASSERT_EQ(ranges.size(), 1);
    EXPECT_EQ(ranges[0].start, utc(2025, 3, 1, 18));
    EXPECT_FALSE(ranges[0].end.has_value());

    for (const char* bad :
         {R"({"start": "2025-03-01T18:00:00Z"})", R"([{"start": "2025-03-01T18:00:00"}])",
          R"([{"start": "2025-03-01T18:00:00.5Z"}])", R"([{"start": "2025-03-01"}])",
          R"([{"start": 1740852000}])", R"([{"end": "2025-03-01T18:00:00Z"}])",
          R"([{"start": "2025-03-01T18:00:00Z", "end": "soon"}])",
          R"([{"start": "2025-03-01T18:00:00Z"}, 7])", "[", ""}) {
        SCOPED_TRACE(bad);
        test::writeSupportFile("excused.json", bad);
        EXPECT_TRUE(Excused::load().isEmpty());
        EXPECT_FALSE(Excused::current(15, utc(2025, 3, 2)).has_value());
    }
    // begin starts a fresh list over the damaged file.
    Excused::begin(utc(2025, 3, 2));
    EXPECT_EQ(Excused::load(), QList<ExcusedRange>({{utc(2025, 3, 2), std::nullopt}}));
}

TEST_F(ExcusedTest, BeginKeepsOneOpenPeriodAndFinishClosesIt) {
    Excused::begin(utc(2025, 3, 1, 18));
    Excused::begin(utc(2025, 3, 2, 18));
    ASSERT_EQ(Excused::load().size(), 1);
    Excused::finish(utc(2025, 3, 4, 9));
    Excused::begin(utc(2025, 3, 10));
    EXPECT_EQ(Excused::load(), QList<ExcusedRange>({{utc(2025, 3, 1, 18), utc(2025, 3, 4, 9)},
                                                    {utc(2025, 3, 10), std::nullopt}}));
}

TEST_F(ExcusedTest, FinishWithoutAnOpenPeriodWritesNothing) {
    Excused::finish(utc(2025, 3, 4));
    EXPECT_FALSE(QFile::exists(supportPath("excused.json")));
    const QByteArray handWritten =
        R"([{"end":"2025-03-02T00:00:00Z","start":"2025-03-01T00:00:00Z"}])";
    test::writeSupportFile("excused.json", handWritten);
    Excused::finish(utc(2025, 3, 4));
    EXPECT_EQ(excusedBytes(), handWritten);
}

TEST_F(ExcusedTest, AnOpenPeriodClosesItselfAtItsLimit) {
    Excused::begin(utc(2025, 3, 1, 18));
    const auto during = Excused::current(15, utc(2025, 3, 16, 17, 59, 59));
    ASSERT_TRUE(during.has_value());
    EXPECT_EQ(during->start, utc(2025, 3, 1, 18));
    EXPECT_FALSE(Excused::load()[0].end.has_value());

    EXPECT_FALSE(Excused::current(15, utc(2025, 3, 20)).has_value());
    // Closed at the limit, not at the moment of the call.
    EXPECT_EQ(Excused::load()[0].end, utc(2025, 3, 16, 18));
    EXPECT_FALSE(Excused::current(15, utc(2025, 3, 10)).has_value()); // closed ranges never count
}

TEST_F(ExcusedTest, TheLimitFollowsTheCurrentSetting) {
    Excused::begin(utc(2025, 3, 1, 0));
    EXPECT_TRUE(Excused::current(15, utc(2025, 3, 8, 12)).has_value());
    EXPECT_TRUE(Excused::current(7.5, utc(2025, 3, 8, 11, 59, 59)).has_value());
    EXPECT_FALSE(Excused::current(7.5, utc(2025, 3, 8, 12)).has_value());
    EXPECT_EQ(Excused::load()[0].end, utc(2025, 3, 8, 12));
}

TEST_F(ExcusedTest, ContainsIsStartInclusiveEndExclusive) {
    const QList<ExcusedRange> ranges{{utc(2025, 3, 1, 18), utc(2025, 3, 2, 6)},
                                     {utc(2025, 3, 10), std::nullopt}};
    EXPECT_TRUE(Excused::contains(utc(2025, 3, 1, 18), ranges, 15));
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 1, 17, 59, 59), ranges, 15));
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 2, 6), ranges, 15));
    // The open range runs to start + maxDays even before it is closed.
    EXPECT_TRUE(Excused::contains(utc(2025, 3, 11, 23, 59, 59), ranges, 2));
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 12), ranges, 2));
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 12), {}, 2));
}

TEST_F(ExcusedTest, TouchesDayCountsAGrazeButNotAnEdge) {
    const QDateTime day = utc(2025, 3, 5);
    EXPECT_TRUE(Excused::touchesDay(day, {{utc(2025, 3, 4, 12), utc(2025, 3, 5, 0, 0, 1)}}, 15));
    EXPECT_FALSE(Excused::touchesDay(day, {{utc(2025, 3, 4, 12), utc(2025, 3, 5)}}, 15));
    EXPECT_TRUE(Excused::touchesDay(day, {{utc(2025, 3, 5, 23, 59, 59), utc(2025, 3, 7)}}, 15));
    EXPECT_FALSE(Excused::touchesDay(day, {{utc(2025, 3, 6), utc(2025, 3, 7)}}, 15));
    EXPECT_TRUE(Excused::touchesDay(day, {{utc(2025, 3, 1), std::nullopt}}, 4.5));
    EXPECT_FALSE(Excused::touchesDay(day, {{utc(2025, 3, 1), std::nullopt}}, 4));
}

TEST_F(ExcusedTest, AbsurdLimitsDoNotOverflow) {
    const QList<ExcusedRange> open{{utc(2025, 3, 1), std::nullopt}};
    EXPECT_TRUE(Excused::contains(utc(2999, 1, 1), open, 1e300));
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 1), open, -1));
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 1), open, std::nan("")));
    EXPECT_TRUE(open[0].effectiveEnd(std::numeric_limits<double>::infinity()).isValid());
}

TEST_F(ExcusedTest, StartAsksWithTheWholeNumberOfDaysAndLogs) {
    test::FakePlatform platform;
    Config cfg;
    cfg.excusedMaxDays = 7.5;
    EXPECT_FALSE(askStartExcused(platform, cfg, utc(2025, 3, 1, 18)));
    ASSERT_EQ(platform.alerts.size(), 1);
    EXPECT_EQ(platform.alerts[0].message, QStringLiteral("Turn off reminders and locks?"));
    EXPECT_EQ(platform.alerts[0].info,
              QStringLiteral("They come back when you choose No Longer Excused, or after 7 days. "
                             "Your streak is kept."));
    EXPECT_EQ(platform.alerts[0].buttons, QStringList({"Turn Off", "Cancel"}));
    EXPECT_TRUE(Excused::load().isEmpty());
    EXPECT_TRUE(logs.isEmpty());

    platform.answerAlert(1000);
    cfg.excusedMaxDays = std::nullopt;
    EXPECT_TRUE(askStartExcused(platform, cfg, utc(2025, 3, 1, 18)));
    EXPECT_TRUE(platform.alerts[1].info.contains(QStringLiteral("after 15 days.")));
    EXPECT_EQ(logs, QStringList({"Tarvanel: excused"}));
    EXPECT_TRUE(Excused::current(15, utc(2025, 3, 2)).has_value());

    endExcused(utc(2025, 3, 3, 7));
    EXPECT_EQ(logs.last(), QStringLiteral("Tarvanel: no longer excused"));
    EXPECT_EQ(Excused::load()[0].end, utc(2025, 3, 3, 7));
}
