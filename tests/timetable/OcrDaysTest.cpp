#include "timetable/OcrLines.h"

#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

// The day doubts of rows that begin with `firsts`, each followed by the same three times unless
// it holds words of its own.
QStringList dayDoubts(const QStringList& firsts) {
    QList<RecognizedItem> items;
    for (int r = 0; r < firsts.size(); ++r) {
        QStringList row = firsts[r].split(' ');
        if (row.size() == 1) row << QStringList{"5:10", "1:05", "3:30", "7:00"};
        for (int c = 0; c < row.size(); ++c)
            items.append({row[c], OcrLines::relativeBox(c * 200, r * 50, c * 200 + 80, r * 50 + 20,
                                                        1000, 1000)});
    }
    QStringList found;
    for (const OcrLines::Doubt& d : OcrLines::doubtful(items))
        if (d.kind == OcrLines::Doubt::Day)
            found << items[d.item].text + "/" + QString::number(d.expected);
    return found;
}

} // namespace

// Small print: most day numbers unreadable, the few read keeping the count between them.
TEST(OcrDaysTest, AFewDaysThatKeepTheCountNumberTheRowsBetweenThem) {
    EXPECT_EQ(dayDoubts({"i", "2", "3", "S", "W", "Vi", "O", "Slan", "x", "W", "11", "12"}),
              QStringList({"i/1", "S/4", "W/5", "Vi/6", "O/7", "Slan/8", "x/9", "W/10"}));
    // A date's month before a time whose colon went unread: the day is what is missing.
    EXPECT_EQ(dayDoubts({"1", "2", "Jun 445 1:05 3:30", "4", "Mon 5 5:10 1:05 3:30", "6"}),
              QStringList({"Jun/3"}));
    // A weekday's name before its day read as four digits: the day, not a time.
    const QString times = " 5:10 1:05 3:30 7:00";
    EXPECT_EQ(dayDoubts({"Thu 11" + times, "Fri 12" + times, "Sat 1300" + times, "Sun 14" + times}),
              QStringList({"1300/13"}));
    // Where most rows' first time lost its colon too, a misread day before it is still the day.
    EXPECT_EQ(dayDoubts({"10 414" + times, "ll 414" + times, "12 414" + times}),
              QStringList({"ll/11"}));
    // Nor is "ll" a weekday before the second date column (the Hijri day): 11 misread.
    EXPECT_EQ(dayDoubts({"10 20" + times, "ll 21" + times, "12 22" + times, "13 23" + times}),
              QStringList({"ll/11"}));
    // A Ramadan day first, then the date: the dates keep a count of their own, across the turn
    // of the month; 11 read as "1 and 17 as 7 are named, the month's 1st is not.
    QStringList ramadan;
    for (int r = 0; r < 20; ++r) {
        const int date = r < 2 ? 27 + r : r - 1;
        const QString read = date == 11 ? "\"1" : date == 17 ? "7" : QString::number(date);
        ramadan << QString::number(r + 1) + " " + read + times;
    }
    EXPECT_EQ(dayDoubts(ramadan), QStringList({"\"1/11", "7/17"}));
    // The 28th read as 26 and the 1st unread: the 2nd after them is the next month's, not a
    // 28 that lost a digit, and the 1st is counted back from it.
    QStringList turn;
    for (int r = 0; r < 10; ++r)
        turn << QString::number(r + 9) + " " +
                    QStringList{"24", "25", "26", "27", "26", "x"}.value(r,
                                                                         QString::number(r - 4)) +
                    times;
    EXPECT_EQ(dayDoubts(turn), QStringList({"x/1"}));
    // 29 read as 2, the 30th as 0: the 31st below says the month goes on, read whole or not.
    EXPECT_EQ(dayDoubts({"27", "28", "2", "0", "31"}), QStringList({"2/29", "0/30"}));
    EXPECT_EQ(dayDoubts({"27", "28", "2", "0", "3"}), QStringList({"2/29", "0/30", "3/31"}));
    EXPECT_EQ(dayDoubts({"27", "28", "2", "3", "4"}), QStringList({"2/29", "3/30", "4/31"}));
    // The same with the weekday between them, Thursday's T lost: "hu" is no day to count.
    QStringList named;
    for (int r = 0; r < 10; ++r)
        named << QString::number(r + 1) + (r % 7 == 1 ? " hu " : " Wed ") +
                     (r == 5 ? "Z5" : QString::number(20 + r)) + times;
    EXPECT_EQ(dayDoubts(named), QStringList({"Z5/25"}));
    // A weekday's name and its day read as one word ("Sunt" for "Sun 1") is no weekday before
    // a Hijri day: the new month's first day.
    EXPECT_EQ(dayDoubts({"Fri 27 12" + times, "Sat 28 13" + times, "Sunt 14" + times,
                         "Mon 2 15" + times, "Tue 3 16" + times}),
              QStringList({"Sunt/1"}));
    // The last day, and the first, read wrong: the count of the two rows beside it gives it,
    // also when a footer with times stands after the table ("13" is 14 here, "7" is 1).
    EXPECT_EQ(dayDoubts({"7", "2", "3", "11", "12", "13", "13", "Jumu'ah 12:45 1:30 2:15"}),
              QStringList({"7/1", "13/14"}));
    // A last day misread as a word holds a whole row of times, a footer does not.
    EXPECT_EQ(dayDoubts({"15", "16", "Wian 5:10 1:05 3:30 7:00"}), QStringList({"Wian/17"}));
    EXPECT_EQ(dayDoubts({"15", "16", "Wian 510 1:05 3:30 7:00"}), QStringList({"Wian/17"}));
    // A row whose times ran together into one unreadable word keeps its place in the count.
    EXPECT_EQ(dayDoubts({"10", "11", "12", "13 4400«-500)0«6612 0", "1440 5:10 1:05 3:30"}),
              QStringList({"1440/14"}));
    // Tens lost: 13, 14, 15 read as 3, 4, 5; a new month's 1 after 30 is left alone.
    EXPECT_EQ(dayDoubts({"11", "12", "3", "4", "5"}), QStringList({"3/13", "4/14", "5/15"}));
    EXPECT_EQ(dayDoubts({"11", "12", "3", "l4", "5"}), QStringList({"3/13", "l4/14", "5/15"}));
    EXPECT_EQ(dayDoubts({"9", "10", "ll", "2", "13"}), QStringList({"ll/11", "2/12"}));
    EXPECT_EQ(dayDoubts({"28", "29", "30", "1", "2", "3"}), QStringList());
    // A tens digit misread is no digit lost: after 11 read as 21, the 12th is the 12th.
    EXPECT_EQ(dayDoubts({"09", "10", "21", "12", "13", "14"}), QStringList({"21/11"}));
    // A run read as a count of its own between rows that count on: the rows around it give it.
    EXPECT_EQ(dayDoubts({"21", "22", "1", "2", "3", "6", "2", "28", "29"}),
              QStringList({"1/23", "2/24", "3/25", "6/26", "2/27"}));
    // The rows below a day set right count on from it: 28 read as 26, then the last three lost.
    EXPECT_EQ(dayDoubts({"24", "25", "2", "2", "26", "2»", "3x0", "uv"}),
              QStringList({"2/26", "2/27", "26/28", "2»/29", "3x0/30", "uv/31"}));
    // Last digits lost: 30 and 31 read as 3 after 29, the last rows of a month's table.
    EXPECT_EQ(dayDoubts({"27", "28", "29", "3", "3", "APRIL 2026", "1", "2", "3"}),
              QStringList({"3/30", "3/31"}));
    // Small print: a run of days unread, and rows with two times left, still count; so do the
    // last rows, read as poorly.
    EXPECT_EQ(dayDoubts({"8", "9", "100", "1h 4:30) 1:05 3:30", "120", "13900430 1:05 3:30", "4",
                         "5", "6 4390 1:05 3:30", "17 4390 1:05 3:30"}),
              QStringList({"100/10", "1h/11", "120/12", "13900430/13", "4/14", "5/15", "6/16"}));
    // Numbers that keep no count are no day column to go by: each short word is read again on
    // its own, a whole date or a weekday's name is not.
    EXPECT_EQ(dayDoubts({"i", "Q", "5", "W", "12", "x", "Sat", "y", "01/08/2026"}),
              QStringList({"i/-1", "Q/-1", "5/-1", "W/-1", "12/-1", "x/-1", "y/-1"}));
    // Two that do are not enough to outweigh a column mostly unread.
    EXPECT_EQ(dayDoubts({"i", "Q", "3", "4", "x", "W", "yy", "z"}),
              QStringList({"i/-1", "Q/-1", "3/-1", "4/-1", "x/-1", "W/-1", "yy/-1", "z/-1"}));
    // Read again one by one, the days that come back count the rest; a day may keep its zero.
    QList<RecognizedItem> items;
    const QStringList read{"01", "oo", "03", "4", "5", "w", "7"};
    for (int r = 0; r < read.size(); ++r)
        for (int c = 0; c < 4; ++c)
            items.append(
                {c ? QStringLiteral("5:1%1").arg(c) : read[r],
                 OcrLines::relativeBox(c * 200, r * 50, c * 200 + 80, r * 50 + 20, 1000, 1000)});
    QStringList counted;
    for (const OcrLines::Doubt& d : OcrLines::dayDoubts(items))
        counted << items[d.item].text + "/" + QString::number(d.expected);
    EXPECT_EQ(counted, QStringList({"oo/2", "w/6"}));
    // A row whose day went unread keeps its first time.
    for (int c = 1; c < 4; ++c)
        items.append({QStringLiteral("5:1%1").arg(c),
                      OcrLines::relativeBox(c * 200, 350, c * 200 + 80, 370, 1000, 1000)});
    EXPECT_EQ(OcrLines::dayDoubts(items).size(), 2);
}

// Full dates, where a photo of small print misreads a digit or loses a slash.
TEST(OcrDaysTest, FullDatesCountUpADayARowAndRunForward) {
    const QString times = "   5:30   1:15   3:30";
    QStringList lines{"November   2026"};
    for (const char* date : {"29/11/2026", "30/11/2026", "25/11/2026", "26/11/2026", "2711/2026",
                             "28/11/2026", "29/11/2026", "30/11/2026", "01/12/2026", "21/12/2026"})
        lines << date + times;
    QList<TextMark> marks{{3, 13, 4}};
    const QStringList counted = OcrLines::datesCounted(lines, marks);
    QStringList dates;
    for (const QString& line : counted.mid(1))
        dates << line.section(' ', 0, 0);
    EXPECT_EQ(counted[0], "November   2026");
    EXPECT_EQ(dates,
              QStringList({"23/11/2026", "24/11/2026", "25/11/2026", "26/11/2026", "27/11/2026",
                           "28/11/2026", "29/11/2026", "30/11/2026", "01/12/2026", "02/12/2026"}));
    EXPECT_EQ(counted[5], "27/11/2026" + times);
    // Each date written is marked; a mark after a rewritten date moves with it.
    EXPECT_EQ(marks,
              QList<TextMark>({{3, 13, 4}, {5, 0, 10}, {10, 0, 10}, {2, 0, 10}, {1, 0, 10}}));
    // Two days read ten on (06 and 07 as 16 and 17), each going on from the other: the days on
    // both sides count past them.
    QStringList misread;
    for (const char* date : {"03/12/2026", "04/12/2026", "05/12/2026", "16/12/2026", "17/12/2026",
                             "08/12/2026", "09/12/2026", "10/12/2026"})
        misread << date + times;
    marks.clear();
    const QStringList recounted = OcrLines::datesCounted(misread, marks);
    EXPECT_EQ(recounted[3], "06/12/2026" + times);
    EXPECT_EQ(recounted[4], "07/12/2026" + times);
    EXPECT_EQ(recounted.mid(5), misread.mid(5));
    EXPECT_EQ(marks, QList<TextMark>({{3, 0, 10}, {4, 0, 10}}));
    // The date first with the Hijri day and the weekday after it: the date alone is counted,
    // and a date misread past reading ("177022026") too.
    const QStringList hijri =
        OcrLines::datesCounted({"01/02/2026   13   Sun" + times, "02/02/2026   14   Mon" + times,
                                "04/02/2026   15   Tue" + times, "04/02/2026   16   Wed" + times,
                                "177022026   17   Thu" + times, "06/02/2026   18   Fri" + times},
                               marks);
    EXPECT_EQ(hijri[2], "03/02/2026   15   Tue" + times);
    EXPECT_EQ(hijri[4], "05/02/2026   17   Thu" + times);
    EXPECT_EQ(hijri[5], "06/02/2026   18   Fri" + times);
}

// Day and month read as a clock, their slash taken for a colon, first or after the weekday: a
// column that keeps one month while it counts a day a row is dates; a Fajr column that keeps
// its time, or moves a minute a day, is not.
TEST(OcrDaysTest, DayAndMonthReadAsAClockAreDates) {
    QStringList lines{"Date   Fajr   Zuhr   Asr   Maghrib"};
    for (int day = 1; day <= 6; ++day)
        lines << QString::asprintf("Sun   %02d:02   6:%02d   12:22   2:%02d   4:52", day, 30 - day,
                                   20 + day);
    lines[4].remove(0, 6);
    QList<TextMark> marks;
    const QStringList dated = OcrLines::datesFromClocks(lines, marks);
    EXPECT_EQ(dated[1], "Sun   01/02   6:29   12:22   2:21   4:52");
    EXPECT_EQ(dated[4], "04/02   6:26   12:22   2:24   4:52");
    EXPECT_EQ(dated[0], lines[0]);
    EXPECT_EQ(marks.size(), 6);
    EXPECT_EQ(marks[3], (TextMark{4, 0, 5}));
    EXPECT_EQ(marks[4], (TextMark{5, 6, 5}));
    for (const bool moving : {false, true}) {
        QStringList times;
        for (int day = 1; day <= 6; ++day)
            times << QString::asprintf("5:%02d   6:30   12:22   2:20   4:52", moving ? day : 2);
        marks.clear();
        EXPECT_EQ(OcrLines::datesFromClocks(times, marks), times) << moving;
        EXPECT_TRUE(marks.isEmpty());
    }
}
