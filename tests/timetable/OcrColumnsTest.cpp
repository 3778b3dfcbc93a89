#include "timetable/OcrLines.h"

#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

// Rows of cells, each where a table puts it.
QList<RecognizedItem> table(const QList<QStringList>& rows) {
    QList<RecognizedItem> items;
    for (int r = 0; r < rows.size(); ++r)
        for (int c = 0; c < rows[r].size(); ++c)
            items.append({rows[r][c], OcrLines::relativeBox(c * 200, r * 50, c * 200 + 80,
                                                            r * 50 + 20, 1000, 600)});
    return items;
}

// Each doubt's cell as read, what the rows around it agree on, and how it settles.
QStringList settled(const QList<RecognizedItem>& items, const QList<OcrLines::Doubt>& doubts) {
    QStringList out;
    for (const OcrLines::Doubt& doubt : doubts) {
        const QString read = items[doubt.item].text;
        out << read + " " + doubt.agreed + " " + OcrLines::settle(doubt, read, read);
    }
    return out;
}

} // namespace

// A dotted sheet read with a colon here and there: a jamaat column misread three days running,
// a lone look-alike digit, a daily begins column and a jamaat time that changes for good.
TEST(OcrColumnsTest, ATimeReadOnBothSidesOfAMisreadRunIsWhatTheRunSays) {
    const auto items = table({{"1", "3.40", "4.00", "7.15"},
                              {"2", "3.41", "4:00", "7.15"},
                              {"3", "3.42", "4.00", "7.45"},
                              {"4", "3.43", "4.06", "7:15"},
                              {"5", "3.44", "4:08", "7.15"},
                              {"6", "3.45", "4.06", "7.15"},
                              {"7", "3.46", "4.00", "7.15"},
                              {"8", "3.47", "4:00", "7.30"},
                              {"9", "3.48", "4.00", "7.30"},
                              {"10", "3.49", "4.00", "7.30"}});
    // The new Isha time's first day stands: it is read below, never above.
    EXPECT_EQ(
        settled(items, OcrLines::columnDoubts(items)),
        QStringList({"7.45 7.15 7.15", "4.06 4.00 4.00", "4:08 4.00 4.00", "4.06 4:00 4:00"}));
}

// A begins time that moves a minute a day, one day read an hour off (a 5 taken for a 6), on
// twelve- and twenty-four-hour sheets; one off by its minutes is left to its second reading.
TEST(OcrColumnsTest, ADayApartByItsHourAloneTakesTheHourOfTheDaysAround) {
    const auto items = table({{"1", "5:18", "17:18", "5:18"},
                              {"2", "6:20", "18:20", "5:40"},
                              {"3", "5:22", "17:22", "5:22"}});
    EXPECT_EQ(settled(items, OcrLines::doubtful(items)),
              QStringList({"6:20 5:20 5:20", "18:20 17:20 17:20", "5:40  5:40"}));
}

// A month's first day read an hour off: the two days after it tell the hour. A column whose
// times move by an hour for good (a change of clock) is left alone, as is a new month's time.
TEST(OcrColumnsTest, ARunsFirstDayTakesTheHourTheDaysAfterItGive) {
    const auto items = table({{"30", "4:38", "4:15", "7:45"},
                              {"1", "6:25", "5:00", "7:45"},
                              {"2", "5:27", "5.00", "8:45"},
                              {"3", "5:29", "5.00", "8:45"},
                              {"4", "5:31", "5.00", "8:45"}});
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)), QStringList({"6:25 5:25 5:25"}));
}

// A table's last day read an hour off takes the hour of the days before it, unless its other
// times move too: then the clocks went back that day, and every jamaat time with them.
TEST(OcrColumnsTest, ALastDayAnHourOffIsAChangeOfClockWhenTheWholeDayMoves) {
    QList<QStringList> rows{{"29", "6:30", "1:30", "3:45", "8:05"},
                            {"30", "6:30", "1:30", "3:45", "8:05"},
                            {"31", "6:30", "12:30", "3:45", "8:05"}};
    auto items = table(rows);
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)), QStringList({"12:30 1:30 1:30"}));
    rows[2] = QStringList{"31", "5:30", "12:30", "2:45", "7:05"};
    items = table(rows);
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)), QStringList());
}

// Small print misreads a jamaat time's minutes for the rest of the table (1:38 for 1:30), where
// no day below can outvote it. A column kept to round minutes takes the round look-alike it
// holds elsewhere; one that keeps to other minutes, and one that moves a minute a day after a
// month of round times, are left alone.
TEST(OcrColumnsTest, ARoundColumnTakesBackTheRoundTimeAMisreadDigitHid) {
    const auto items = table({{"10", "5:08", "1:30", "6:05"},
                              {"11", "5:08", "1:30", "6:05"},
                              {"12", "5:08", "1.30", "6:05"},
                              {"13", "5:00", "1:30", "6:05"},
                              {"14", "5:03", "1:38", "5:29"},
                              {"15", "5:03", "1:38", "5:30"},
                              {"16", "5:03", "1.38", "5:36"}});
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)),
              QStringList({"1:38 1:30 1:30", "1:38 1:30 1:30", "1.38 1.30 1.30"}));
}

// A jamaat time's hour misread at either end of the table (a 1 taken for a 9 or a 4), where no
// day beyond can outvote it: the column's own time tells it. Two months' Isha two hours apart
// stand.
TEST(OcrColumnsTest, AnHourNoPrayerKeepsWithinASheetTakesTheColumnsHour) {
    const auto items = table({{"1", "4:45", "9:15", "9:30"},
                              {"2", "4:45", "1:15", "9:30"},
                              {"3", "4:45", "1:15", "9:30"},
                              {"4", "4:45", "1:15", "7:30"},
                              {"5", "4:45", "1:15", "7:30"},
                              {"6", "4:45", "4.15", "7:30"},
                              {"7", "4:45", "1:15", "7:30"}});
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)),
              QStringList({"9:15 1:15 1:15", "4.15 1:15 1:15"}));
}

// A first time column that small print left unreadable in every row: a word with a digit and
// the page's am/pm mark is a time to read again, though no clean time stands before it.
TEST(OcrColumnsTest, AWordWithADigitAndAnAmPmMarkIsATimeToReadAgain) {
    const auto items = table({{"1", "4tlam", "4:45am", "5:46am", "1:15pm"},
                              {"2", "4:ilam", "4:45am", "5:46am", "1:15pm"},
                              {"3", "4tlam", "4:45am", "5:45am", "1:15pm"}});
    EXPECT_EQ(settled(items, OcrLines::doubtful(items)),
              QStringList({"4tlam  4tlam", "4:ilam  4:ilam", "4tlam  4tlam"}));
}

// A time column read in a few rows only, among many rows read poorly: the poor rows do not
// raise the evidence a word standing under those times needs to be read again.
TEST(OcrColumnsTest, PoorRowsDoNotHideAColumnsMisreadCell) {
    QList<QStringList> rows;
    for (const char* first : {"4:37", "y0", "43440", "4:33", "4:31", "y1"})
        rows << QStringList{"1", first, "5:00", "6:12", "12:02"};
    for (int poor = 0; poor < 7; ++poor)
        rows << QStringList{"1", "yy", "5:00", "zz", "12:04"};
    const auto items = table(rows);
    QStringList doubted;
    for (const OcrLines::Doubt& doubt : OcrLines::doubtful(items))
        doubted << items[doubt.item].text;
    EXPECT_TRUE(doubted.contains("43440")) << doubted.join(' ').toStdString();
}

// Two cells running unreadable in a begins column that moves a minute or two a day: each takes
// the time as far between the clean ones around it as it stands from them in rows; a column
// that moves further than two minutes a day between them says nothing.
TEST(OcrColumnsTest, UnreadableCellsOfAMovingColumnStandBetweenTheTimesAroundThem) {
    const auto items = table({{"1", "6:44", "7:00", "8:00"},
                              {"2", "6:46", "7:00", "8:03"},
                              {"3", "6:48", "7:00", "8:06"},
                              {"4", "6%", "7:00", "8;0"},
                              {"5", "6s!", "7:00", "#1!"},
                              {"6", "6:53", "7:00", "8:13"},
                              {"7", "6:55", "7:00", "8:16"}});
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)),
              QStringList({"6%  6:49", "8;0  8;0", "6s!  6:51", "#1!  #1!"}));
}

// A Maghrib column moving a minute or two a day, two days running read hours off, on twelve-
// and twenty-four-hour sheets: the days around that keep pace give each its hour, passing over
// the misread one beside it. A time whose minutes do not fit there is left to its second
// reading.
TEST(OcrColumnsTest, ADayHoursOffAColumnThatKeepsPaceTakesTheHourItsNeighboursGive) {
    const auto items = table({{"11", "8:51pm", "20:51", "22:30"},
                              {"12", "8:52pm", "20:52", "22:30"},
                              {"13", "4:54pm", "16:54", "22:30"},
                              {"14", "5:55pm", "20:55", "22:30"},
                              {"15", "8:57pm", "20:57", "22:30"},
                              {"16", "7:20pm", "20:58", "22:30"},
                              {"17", "9:00pm", "21:00", "22:30"}});
    EXPECT_EQ(settled(items, OcrLines::columnDoubts(items)),
              QStringList({"4:54pm 8:54pm 8:54pm", "16:54 20:54 20:54", "5:55pm 8:55pm 8:55pm"}));
}

// A begins column of small print that reads cleanly on three days in twenty, its digits taken
// for letters on the others: it is a column all the same, each of those cells one to settle.
TEST(OcrColumnsTest, AColumnReadAsLettersOnMostDaysIsAColumnStill) {
    QList<QStringList> rows;
    for (int r = 0; r < 20; ++r) {
        const QString fajr = QString::asprintf(r % 8 == 0 ? "5:%02d" : "OS.%02d", 40 + r);
        rows << QStringList{QString::number(r + 1), fajr, "6:25", "13:15"};
    }
    const QStringList out = settled(table(rows), OcrLines::columnDoubts(table(rows)));
    EXPECT_EQ(out.size(), 17) << out.join(" | ").toStdString();
    EXPECT_TRUE(out.contains("OS.46  05.46")) << out.join(" | ").toStdString();
}

// Right of the times: a right-to-left table's whole date, and a second table's day column that
// small print read on some rows only. Neither is a time to read again; a garbled time is.
TEST(OcrColumnsTest, DatesAndADayColumnRightOfTheTimesAreNoTimes) {
    QList<QStringList> rows;
    for (int day = 1; day <= 9; ++day)
        rows.append({QString::asprintf("5:%02d", 10 + day), "1:30", "8:15",
                     day % 3 ? QString::number(day + 10) : QStringLiteral("~"),
                     QString::asprintf("%02d/10/2027", day)});
    rows[4][1] = "1;3O";
    const auto items = table(rows);
    QStringList doubted;
    for (const OcrLines::Doubt& doubt : OcrLines::doubtful(items))
        doubted << items[doubt.item].text;
    EXPECT_EQ(doubted, QStringList({"1;3O"}));
}
