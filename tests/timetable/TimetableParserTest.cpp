#include "timetable/TimetableParser.h"
#include "support/TestEnv.h"
#include "timetable/TimetableImportModel.h"

using namespace tarvanel;

namespace {
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

const ColumnMap fiveColumns = TimetableParser::guessColumns(5);
} // namespace

TEST(TimetableParserTest, DayNumberWeekdayAndTwelveHourTimesMakeADay) {
    const ParsedRow row = only("1 Sat 5:12 1:15 4:40 7:22 8:50");
    EXPECT_EQ(row.day, 1);
    EXPECT_FALSE(row.date.has_value());
    EXPECT_EQ(labels(row), QStringList({"5:12", "1:15", "4:40", "7:22", "8:50"}));
    const DayTable table = TimetableParser::days({row}, 3, 2025, fiveColumns);
    EXPECT_EQ(table.keys(), QStringList{"2025-03-01"});
    EXPECT_EQ(table.first().values(), QStringList({"16:40", "13:15", "05:12", "20:50", "19:22"}));

    // The day number stands as a word near the start of the line or right before the first
    // time, up to 31; a day printed with its month's name is the day, whatever number (a Hijri
    // day) stands before it, and a Hijri day with its month's name is none.
    // clang-format off
    const QList<std::pair<const char*, std::optional<int>>> days = {
        {"Sat 1 5:12 1:15 4:40", 1}, {"Wed, 12 5:12 6:45 1:15", 12}, {"  31 | 5:12 6:45 1:15", 31},
        {"1st Mar 5:12 6:45 1:15", {}}, {"Mon1 5:12 6:45 1:15", {}}, {"5:12 6:45 1:15 12", {}},
        {"Wednesday, the 1 5:12 6:45 1:15", 1}, {"32 5:12 6:45 1:15", {}},
        {"el Mis} pl ph 2 5.09 6.37 12.07", 2}, {"Timetable 2026 5:12 6:45 1:15", {}},
        {"Thu 17 Rabi II 01- Oct 4:25am 4:30am 4:40am", 1}, {"3Jum 16-Oct 5:12 6:45 1:15", 16},
        {"19 Rabi' al-Awwal Sep 1 Tuesday 04:09 04:25 05:34", 1}, {"Mar7 Fri 5:39 5:39 6:00", 7},
        {"11   Rajab   10   Friday 05:56 07:25 12:26", 10}, {"1 Ramadan 06:12 06:17 06:35", {}},
        {"2 Sha'ban 31 Friday 06:07 07:36 12:37", 31}};
    // clang-format on
    for (const auto& [line, day] : days)
        EXPECT_EQ(only(line).day, day) << line;
}

TEST(TimetableParserTest, DatesAreReadCarriedOverOrBlankedAndTimesNeedThree) {
    const ParsedRow csv = only("2025-03-01, 05:12, 06:45, 12:30, 15:40, 18:05, 19:30");
    EXPECT_EQ(csv.date, QDate(2025, 3, 1));
    EXPECT_FALSE(csv.day.has_value());
    EXPECT_EQ(csv.times.size(), 6);
    // Day first, two-digit year; dots in a date are no time; out-of-range parts carry over.
    EXPECT_EQ(labels(only("01/03/25 5.12 6.45 1.15")), QStringList({"5:12", "6:45", "1:15"}));
    const QList<std::pair<const char*, QDate>> dates = {{"01/03/25", QDate(2025, 3, 1)},
                                                        {"01.03.2025", QDate(2025, 3, 1)},
                                                        {"31/04/2025", QDate(2025, 5, 1)},
                                                        {"2025-13-01", QDate(2026, 1, 1)},
                                                        {"2025-02-30", QDate(2025, 3, 2)}};
    for (const auto& [date, expected] : dates) {
        const ParsedRow row = only(QString::fromLatin1(date) + " 5:12 6:45 1:15");
        EXPECT_EQ(std::pair(row.date, row.times.size()),
                  std::pair(std::optional(expected), qsizetype(3)))
            << date;
    }

    // Month first where a second part above 12 says so (an American sheet); day first where
    // nothing does. A date without its year gives the day.
    EXPECT_EQ(only("03/25/2025 5:12 6:45 1:15").date, QDate(2025, 3, 25));
    const QList<ParsedRow> american =
        TimetableParser::parse({"Sat 02/28 5:12 6:45 1:15", "Sun 03/01 5:12 6:45 1:15",
                                "03/02/2026 5:12 6:45 1:15", "3/1 5:12 6:45 1:15"});
    const QList<ParsedRow> european =
        TimetableParser::parse({"Sat 28/02 5:12 6:45 1:15", "Sun 01/03 5:12 6:45 1:15",
                                "02/03/2026 5:12 6:45 1:15", "1/3 5:12 6:45 1:15"});
    for (const QList<ParsedRow>& rows : {american, european}) {
        ASSERT_EQ(rows.size(), 4);
        EXPECT_EQ(rows[0].day, 28);
        EXPECT_EQ(rows[1].day, 1);
        EXPECT_EQ(rows[2].date, QDate(2026, 3, 2));
        EXPECT_EQ(rows[3].day, 1);
    }

    // A row needs three times; glued or foreign digits are no time.
    for (const QString& line :
         {QString(), QStringLiteral("1 5:12 6:45"), QStringLiteral("Fajr Dhuhr Asr"),
          QStringLiteral("1234 24:00 9:5 1:00 2:00"), // none of the first three is a time
          QStringLiteral("\u096B:\u0967\u0968 \u096C:\u096A\u096B \u0967:\u0967\u096B "
                         "\u096A:\u096A\u0966")}) // Devanagari digits
        EXPECT_TRUE(TimetableParser::parse({line}).isEmpty()) << line.toStdString();
    EXPECT_EQ(labels(only("12:30:45 1:00 2:00 3:00")),
              QStringList({"12:30", "1:00", "2:00", "3:00"}));
}

TEST(TimetableParserTest, EasternArabicDigitsAndSeparatorsReadAsWesternOnes) {
    // Arabic-Indic digits, the Arabic decimal separator between hour and minute, Arabic commas
    // between cells and a right-to-left mark glued to a time: day 5, times 5:12 1:15 4:40.
    const QString arabic =
        QStringLiteral("\u0665 \u0665\u066B\u0661\u0662\u060C \u0661:\u0661\u0665\u200F\u060C "
                       "\u0664:\u0664\u0660\u060C \u0667:\u0662\u0662");
    const ParsedRow row = only(arabic);
    EXPECT_EQ(row.day, 5);
    EXPECT_EQ(row.raw, arabic);
    EXPECT_EQ(labels(row), QStringList({"5:12", "1:15", "4:40", "7:22"}));
    // Extended (Persian and Urdu) digits in a full date, mixed with Western ones in the times.
    const ParsedRow dated = only(QStringLiteral(
        "\u06F0\u06F1/\u06F0\u06F3/\u06F2\u06F0\u06F2\u06F6  05:12  \u06F1:\u06F1\u06F5  "
        "4:40 pm"));
    EXPECT_EQ(dated.date, QDate(2026, 3, 1));
    EXPECT_EQ(labels(dated), QStringList({"5:12", "1:15", "4:40 pm"}));
    // The boundaries of both ranges; the Arabic semicolon, ratio sign and full-width colon.
    EXPECT_EQ(TimetableParser::plainDigits(QStringLiteral(
                  "\u0660\u0669\u06F0\u06F9\u065F\u066A\u061B\u2236\uFF1A\u06D4\u202B")),
              QStringLiteral("0909\u065F\u066A;::."));
    // A month heading with an Eastern year.
    EXPECT_EQ(TimetableImportModel::monthAndYear(QStringLiteral("March \u0662\u0660\u0662\u0666")),
              (MonthAndYear{3, 2026}));
}

TEST(TimetableParserTest, MarkersDecideTheHalfOfTheDayElseThePrayerDoes) {
    const ParsedRow row = only("5:12 A.M. 12:30 am 12:30 pm 1:15PM 7:30 p.m 18:05");
    EXPECT_EQ(labels(row),
              QStringList({"5:12 am", "12:30 am", "12:30 pm", "1:15 pm", "7:30 pm", "18:05"}));
    const QStringList marked{"05:12", "00:30", "12:30", "13:15", "19:30", "18:05"};
    for (const char* prayer : {"Fajr", "Dhuhr", "Isha", "Jumu'ah"})
        for (int i = 0; i < marked.size(); ++i)
            EXPECT_EQ(row.times[i].clock(prayer), marked[i]) << prayer << " " << i;
    // Arabic markers: sad for the morning, meem for the evening, spaced or glued to the
    // minutes; the meem that begins a word (Maghrib) is none.
    const ParsedRow arabic =
        only(QStringLiteral("5:12 \u0635 12:30\u0635 1:15 \u0645 \u0667:\u0662\u0662\u0645 8:50 "
                            "\u0645\u063A\u0631\u0628"));
    EXPECT_EQ(labels(arabic), QStringList({"5:12 am", "12:30 am", "1:15 pm", "7:22 pm", "8:50"}));
    const QStringList arabicClock{"05:12", "00:30", "13:15", "19:22", "20:50"};
    for (int i = 0; i < arabicClock.size(); ++i)
        EXPECT_EQ(arabic.times[i].clock("Isha"), arabicClock[i]) << i;
    // A letter glued to the minutes is a marker; one apart from them, or beginning a word, is not.
    const ParsedRow letters = only("6:48a 12:09p 8:05P. 7:30 p 5:30 Asr");
    EXPECT_EQ(labels(letters), QStringList({"6:48 am", "12:09 pm", "8:05 pm", "7:30", "5:30"}));
    EXPECT_EQ(letters.times[2].clock("Fajr"), "20:05");

    const struct {
        int hour, minute;
        const char* prayer;
        std::optional<QString> clock;
    } unmarked[] = {
        {5, 12, "Fajr", "05:12"},     {12, 5, "Fajr", "00:05"},      {13, 0, "Fajr", "13:00"},
        {3, 0, "fajr", "15:00"},      {1, 15, "Dhuhr", "13:15"},     {5, 0, "Dhuhr", "05:00"},
        {11, 50, "Dhuhr", "11:50"},   {12, 45, "Dhuhr", "12:45"},    {4, 59, "Jumu'ah", "16:59"},
        {12, 10, "Asr", "12:10"},     {0, 10, "Maghrib", "12:10"},   {18, 5, "Maghrib", "18:05"},
        {7, 30, "Isha", "19:30"},     {24, 0, "Isha", std::nullopt}, {5, 60, "Isha", std::nullopt},
        {-1, 0, "Isha", std::nullopt}};
    for (const auto& c : unmarked)
        EXPECT_EQ((ParsedTime{c.hour, c.minute, std::nullopt}.clock(c.prayer)), c.clock)
            << c.prayer << " " << c.hour << ":" << c.minute;
}

TEST(TimetableParserTest, ColumnGuessDependsOnTheCountAlone) {
    // Column count → positions of Fajr, Dhuhr, Asr, Maghrib, Isha.
    // clang-format off
    const QList<std::pair<int, QList<int>>> cases = {
        {12, {1, 4, 6, 8, 10}}, {11, {1, 4, 6, 8, 10}}, {10, {1, 3, 5, 7, 9}}, {9, {0, 1, 2, 3, 4}},
        {8, {0, 1, 2, 3, 4}}, {7, {0, 1, 2, 3, 4}}, {6, {0, 2, 3, 4, 5}}, {5, {0, 1, 2, 3, 4}},
        {3, {0, 1, 2}}, {0, {}}, {-4, {}}};
    // clang-format on
    const QStringList names{"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha"};
    for (const auto& [count, positions] : cases) {
        ColumnMap expected;
        for (int i = 0; i < positions.size(); ++i)
            expected[names[i]] = positions[i];
        EXPECT_EQ(TimetableParser::guessColumns(count), expected) << count;
    }
}

TEST(TimetableParserTest, DaysTakeTheLaterRowWholeAndSkipWhatDoesNotFit) {
    const QList<ParsedRow> rows =
        TimetableParser::parse({"2025-03-01 5:10 1:10 4:10 7:10 8:10", "2025-03-01 5:20 1:20 4:20",
                                "2 5:30 1:30 4:30 7:30 8:30",
                                "2025-04-03 5:40 1:40 4:40 7:40 8:40", // outside March: still taken
                                "31 5:12 1:15 4:40",                   // no 31 April
                                "0 5:12 1:15 4:40"});
    ASSERT_EQ(rows.size(), 6);
    EXPECT_EQ(rows[5].day, 0);
    ColumnMap columns = fiveColumns;
    columns.insert("Jumu'ah", 9);
    const DayTable table = TimetableParser::days(rows, 4, 2025, columns);
    EXPECT_EQ(table.keys(), QStringList({"2025-03-01", "2025-04-02", "2025-04-03"}));
    EXPECT_EQ(table["2025-03-01"],
              (QMap<QString, QString>{{"Fajr", "05:20"}, {"Dhuhr", "13:20"}, {"Asr", "16:20"}}));
    EXPECT_FALSE(table["2025-04-02"].contains("Jumu'ah"));
    EXPECT_EQ(table["2025-04-03"]["Isha"], "20:40");
    EXPECT_EQ(TimetableParser::days(rows, 2, 2025, fiveColumns).keys(),
              QStringList({"2025-02-02", "2025-03-01", "2025-04-03"}));

    // A row whose mapped columns all fall outside it adds no day.
    EXPECT_TRUE(TimetableParser::days(rows, 3, 2025, {{"Isha", 7}}).isEmpty());
    EXPECT_TRUE(TimetableParser::days(rows, 3, 2025, {{"Isha", -1}}).isEmpty());
}
