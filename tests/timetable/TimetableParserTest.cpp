#include "timetable/TimetableParser.h"
#include "support/TestEnv.h"

using namespace tarvanel;

namespace {
class TimetableParserTest : public test::ScratchTest {};

ParsedRow only(const QString& line) {
    const QList<ParsedRow> rows = TimetableParser::parse({line});
    EXPECT_EQ(rows.size(), 1) << line.toStdString();
    return rows.value(0);
}

QStringList labels(const ParsedRow& row) {
    QStringList out;
    for (const ParsedTime& t : row.times)
        out << t.label();
    return out;
}

ColumnMap fiveColumns() {
    return TimetableParser::guessColumns(5);
}
} // namespace

TEST_F(TimetableParserTest, DayNumberWeekdayAndTwelveHourTimesMakeADay) {
    const ParsedRow row = only(QStringLiteral("1 Sat 5:12 1:15 4:40 7:22 8:50"));
    EXPECT_EQ(row.day, 1);
    EXPECT_FALSE(row.date.has_value());
    EXPECT_EQ(labels(row), QStringList({"5:12", "1:15", "4:40", "7:22", "8:50"}));
    EXPECT_EQ(row.raw, QStringLiteral("1 Sat 5:12 1:15 4:40 7:22 8:50"));

    const DayTable table = TimetableParser::days({row}, 3, 2025, fiveColumns());
    const QMap<QString, QString> expected{{"Fajr", "05:12"},
                                          {"Dhuhr", "13:15"},
                                          {"Asr", "16:40"},
                                          {"Maghrib", "19:22"},
                                          {"Isha", "20:50"}};
    EXPECT_EQ(table, DayTable({{"2025-03-01", expected}}));
    EXPECT_EQ(only(QStringLiteral("Sat 1 5:12 1:15 4:40")).day, 1);
}

TEST_F(TimetableParserTest, FullDatesAreReadAndBlankedBeforeTimes) {
    const ParsedRow csv =
        only(QStringLiteral("2025-03-01, 05:12, 06:45, 12:30, 15:40, 18:05, 19:30"));
    EXPECT_EQ(csv.date, QDate(2025, 3, 1));
    EXPECT_FALSE(csv.day.has_value());
    EXPECT_EQ(csv.times.size(), 6);

    const ParsedRow slash = only(QStringLiteral("01/03/25 5.12 6.45 1.15"));
    EXPECT_EQ(slash.date, QDate(2025, 3, 1)); // day first, two-digit year
    EXPECT_EQ(labels(slash), QStringList({"5:12", "6:45", "1:15"}));

    const ParsedRow dotted = only(QStringLiteral("01.03.2025 5:12 6:45 1:15"));
    EXPECT_EQ(dotted.date, QDate(2025, 3, 1));
    EXPECT_EQ(dotted.times.size(), 3); // 01.03 is not a time

    // Month first: no date, the text is blanked anyway, so no day either.
    const ParsedRow monthFirst = only(QStringLiteral("03/25/2025 5:12 6:45 1:15"));
    EXPECT_FALSE(monthFirst.date.has_value());
    EXPECT_FALSE(monthFirst.day.has_value());
    EXPECT_TRUE(TimetableParser::days({monthFirst}, 3, 2025, fiveColumns()).isEmpty());
}

TEST_F(TimetableParserTest, OutOfRangeFullDatesCarryOverButDayNumbersDoNot) {
    EXPECT_EQ(only(QStringLiteral("31/04/2025 5:12 6:45 1:15")).date, QDate(2025, 5, 1));
    EXPECT_EQ(only(QStringLiteral("2025-13-01 5:12 6:45 1:15")).date, QDate(2026, 1, 1));
    EXPECT_EQ(only(QStringLiteral("2025-02-30 5:12 6:45 1:15")).date, QDate(2025, 3, 2));

    const QList<ParsedRow> rows = TimetableParser::parse({QStringLiteral("31 5:12 1:15 4:40"),
                                                          QStringLiteral("0 5:12 1:15 4:40"),
                                                          QStringLiteral("30 5:10 1:15 4:40")});
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].day, 31);
    EXPECT_EQ(rows[1].day, 0);
    const DayTable april = TimetableParser::days(rows, 4, 2025, fiveColumns());
    EXPECT_EQ(april.keys(), QStringList({"2025-04-30"}));
    const DayTable feb = TimetableParser::days(rows, 2, 2025, fiveColumns());
    EXPECT_TRUE(feb.isEmpty());
}

TEST_F(TimetableParserTest, DayNumberMustStandAsAWordBeforeTheFirstTime) {
    EXPECT_FALSE(only(QStringLiteral("1st Mar 5:12 6:45 1:15")).day.has_value());
    EXPECT_FALSE(only(QStringLiteral("Mon1 5:12 6:45 1:15")).day.has_value());
    EXPECT_FALSE(only(QStringLiteral("5:12 6:45 1:15 12")).day.has_value());
    EXPECT_FALSE(only(QStringLiteral("Wednesday, the 1 5:12 6:45 1:15")).day.has_value());
    EXPECT_EQ(only(QStringLiteral("Wed, 12 5:12 6:45 1:15")).day, 12);
    EXPECT_EQ(only(QStringLiteral("  31 | 5:12 6:45 1:15")).day, 31);
    EXPECT_FALSE(only(QStringLiteral("32 5:12 6:45 1:15")).day.has_value());
}

TEST_F(TimetableParserTest, TimesNeedThreeOnALineAndRefuseGluedDigits) {
    EXPECT_TRUE(TimetableParser::parse({QStringLiteral("1 5:12 6:45")}).isEmpty());
    EXPECT_TRUE(TimetableParser::parse({QString(), QStringLiteral("Fajr Dhuhr Asr")}).isEmpty());
    // 12:30:45 gives 12:30 only; 1234 and 24:00 give nothing; 9:5 is no time.
    EXPECT_EQ(labels(only(QStringLiteral("12:30:45 1:00 2:00 3:00"))),
              QStringList({"12:30", "1:00", "2:00", "3:00"}));
    EXPECT_TRUE(TimetableParser::parse({QStringLiteral("1234 24:00 9:5 1:00 2:00")}).isEmpty());
    // Non-ASCII digits are not digits here.
    EXPECT_TRUE(TimetableParser::parse({QStringLiteral("\u0665:\u0661\u0662 \u0666:\u0664\u0665 "
                                                       "\u0661:\u0661\u0665 \u0664:\u0664\u0660")})
                    .isEmpty());
}

TEST_F(TimetableParserTest, MarkersAreReducedToLettersAndDecideTheHalfOfTheDay) {
    const ParsedRow row = only(QStringLiteral("5:12 A.M. 12:30 am 12:30 pm 1:15PM 7:30 p.m 18:05"));
    ASSERT_EQ(row.times.size(), 6);
    EXPECT_EQ(labels(row),
              QStringList({"5:12 am", "12:30 am", "12:30 pm", "1:15 pm", "7:30 pm", "18:05"}));
    for (const char* prayer : {"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha", "Jumu'ah"}) {
        SCOPED_TRACE(prayer);
        EXPECT_EQ(row.times[0].clock(QString::fromLatin1(prayer)), QStringLiteral("05:12"));
        EXPECT_EQ(row.times[1].clock(QString::fromLatin1(prayer)), QStringLiteral("00:30"));
        EXPECT_EQ(row.times[2].clock(QString::fromLatin1(prayer)), QStringLiteral("12:30"));
        EXPECT_EQ(row.times[3].clock(QString::fromLatin1(prayer)), QStringLiteral("13:15"));
        EXPECT_EQ(row.times[5].clock(QString::fromLatin1(prayer)), QStringLiteral("18:05"));
    }
}

TEST_F(TimetableParserTest, UnmarkedHoursAreReadByPrayer) {
    auto clock = [](int hour, int minute, const char* prayer) {
        return ParsedTime{hour, minute, std::nullopt}.clock(QString::fromLatin1(prayer));
    };
    EXPECT_EQ(clock(5, 12, "Fajr"), "05:12");
    EXPECT_EQ(clock(12, 5, "Fajr"), "00:05");
    EXPECT_EQ(clock(1, 15, "Dhuhr"), "13:15");
    EXPECT_EQ(clock(4, 59, "Jumu'ah"), "16:59");
    EXPECT_EQ(clock(5, 0, "Dhuhr"), "05:00");
    EXPECT_EQ(clock(11, 50, "Dhuhr"), "11:50");
    EXPECT_EQ(clock(12, 45, "Dhuhr"), "12:45");
    EXPECT_EQ(clock(7, 30, "Isha"), "19:30");
    EXPECT_EQ(clock(12, 10, "Asr"), "12:10");
    EXPECT_EQ(clock(0, 10, "Maghrib"), "12:10");
    EXPECT_EQ(clock(18, 5, "Maghrib"), "18:05");
    EXPECT_EQ(clock(13, 0, "Fajr"), "13:00");
    EXPECT_EQ(clock(3, 0, "fajr"), "15:00"); // names compare exactly
    EXPECT_FALSE(clock(24, 0, "Isha").has_value());
    EXPECT_FALSE(clock(5, 60, "Isha").has_value());
    EXPECT_FALSE(clock(-1, 0, "Isha").has_value());
}

TEST_F(TimetableParserTest, ColumnGuessDependsOnTheCountAlone) {
    using M = ColumnMap;
    EXPECT_EQ(TimetableParser::guessColumns(12),
              M({{"Fajr", 1}, {"Dhuhr", 4}, {"Asr", 6}, {"Maghrib", 8}, {"Isha", 10}}));
    EXPECT_EQ(TimetableParser::guessColumns(11), TimetableParser::guessColumns(12));
    EXPECT_EQ(TimetableParser::guessColumns(10),
              M({{"Fajr", 1}, {"Dhuhr", 3}, {"Asr", 5}, {"Maghrib", 7}, {"Isha", 9}}));
    EXPECT_EQ(TimetableParser::guessColumns(6),
              M({{"Fajr", 0}, {"Dhuhr", 2}, {"Asr", 3}, {"Maghrib", 4}, {"Isha", 5}}));
    const M firstFive{{"Fajr", 0}, {"Dhuhr", 1}, {"Asr", 2}, {"Maghrib", 3}, {"Isha", 4}};
    for (int n : {5, 7, 8, 9})
        EXPECT_EQ(TimetableParser::guessColumns(n), firstFive) << n;
    EXPECT_EQ(TimetableParser::guessColumns(3), M({{"Fajr", 0}, {"Dhuhr", 1}, {"Asr", 2}}));
    EXPECT_TRUE(TimetableParser::guessColumns(0).isEmpty());
    EXPECT_TRUE(TimetableParser::guessColumns(-4).isEmpty());
}

TEST_F(TimetableParserTest, DaysTakeTheLaterRowWholeAndSkipColumnsOutsideARow) {
    const QList<ParsedRow> rows = TimetableParser::parse({
        QStringLiteral("2025-03-01 5:10 1:10 4:10 7:10 8:10"),
        QStringLiteral("2025-03-01 5:20 1:20 4:20"), QStringLiteral("2 5:30 1:30 4:30 7:30 8:30"),
        QStringLiteral("2025-04-03 5:40 1:40 4:40 7:40 8:40"), // outside March: still taken
    });
    ColumnMap columns = fiveColumns();
    columns.insert(QStringLiteral("Jumu'ah"), 9);
    const DayTable table = TimetableParser::days(rows, 3, 2025, columns);
    EXPECT_EQ(table.keys(), QStringList({"2025-03-01", "2025-03-02", "2025-04-03"}));
    EXPECT_EQ(table["2025-03-01"],
              (QMap<QString, QString>{{"Fajr", "05:20"}, {"Dhuhr", "13:20"}, {"Asr", "16:20"}}));
    EXPECT_FALSE(table["2025-03-02"].contains("Jumu'ah"));
    EXPECT_EQ(table["2025-04-03"]["Isha"], QStringLiteral("20:40"));

    // A row whose mapped columns all fall outside it adds no day.
    EXPECT_TRUE(TimetableParser::days(rows, 3, 2025, {{QStringLiteral("Isha"), 7}}).isEmpty());
    EXPECT_TRUE(TimetableParser::days(rows, 3, 2025, {{QStringLiteral("Isha"), -1}}).isEmpty());
}

TEST_F(TimetableParserTest, HostileTextIsDroppedQuietly) {
    QString longLine(1 << 20, u'9');
    QString manyTimes;
    for (int i = 0; i < 20000; ++i)
        manyTimes += QStringLiteral("1:11 ");
    QString binary;
    for (int i = 0; i < 4096; ++i)
        binary += QChar(char16_t((i * 7919) & 0xFFFF));
    const QList<ParsedRow> rows = TimetableParser::parse(
        {longLine, binary, manyTimes, QString(3, QChar(0)), QStringLiteral("::::....")});
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].times.size(), 20000);
    EXPECT_TRUE(TimetableParser::days(rows, 3, 2025, fiveColumns()).isEmpty());
    EXPECT_TRUE(TimetableParser::days(rows, 0, 0, fiveColumns()).isEmpty());
}
