#include "timetable/OcrLines.h"

#include <gtest/gtest.h>

using namespace tarvanel;

TEST(OcrOrderTest, TheTimesThatBreakARowsOrderOfTheDayTakeTheHourThatRestoresIt) {
    QList<TextMark> marks{{3, 0, 10}};
    const QStringList read = OcrLines::hoursInOrder(
        {"February   20:26",
         "25   4:41   5:00   6:08   12:08   1:15   3:13   3:30   7:26   7:31   9:03   9:15",
         "26   4:42   5.00   6:09   12:08   1:15   3:14   2:30   7:28   7.33   9:06   9.30",
         "27   4:43   5:00   6:09   12:08   1:15   3:15   3:30   7:30   7:35   9:08   9:30",
         "30   4:46   1:15   6:11   12:08   1:15   3:18   3:30   7:36   7:41   9:16   5:30",
         "1   4:40   12:08   3:12   7:24   9:01   5:00   1:15   3:30   7:29   9:15",
         "2   4:40am   4:30   12:08   3:12   7:24pm   9:01",
         "3   4:40   5:00   12:08   1:15   3:12   3:30   7:24   7:29   9:01   9:15",
         "4   4:30   4:40   12:08   3:12   7:24   9:01   7:20",
         "5   4:29   4:40   12:08   3:13   7:26   9:03   7:20",
         "6   4:27   4:40   12:08   3:14   7:28   9:05   7:20"},
        marks);
    EXPECT_EQ(read[0], "February   20:26"); // a title, no row; no row in order is marked
    // 2:30 and 3:14 out of order alike: the one its column does not read is misread.
    EXPECT_EQ(read[2],
              "26   4:42   5.00   6:09   12:08   1:15   3:14   3:30   7:28   7.33   9:06   9.30");
    EXPECT_EQ(read[4],
              "30   4:46   5:15   6:11   12:08   1:15   3:18   3:30   7:36   7:41   9:16   9:30");
    // Begins and jamaat in two groups, and am/pm, are orders of their own.
    EXPECT_EQ(read[5], "1   4:40   12:08   3:12   7:24   9:01   5:00   1:15   3:30   7:29   9:15");
    EXPECT_EQ(read[6], "2   4:40am   4:30   12:08   3:12   7:24pm   9:01");
    // So is an iftar column after isha when no row of several that wide keeps the day's order.
    EXPECT_EQ(read[8], "4   4:30   4:40   12:08   3:12   7:24   9:01   7:20");
    EXPECT_EQ(marks, QList<TextMark>({{3, 0, 10}, {2, 48, 4}, {4, 12, 4}, {4, 76, 4}}));

    // A twenty-four-hour sheet's times only rise across a row.
    QList<TextMark> none;
    EXPECT_EQ(OcrLines::hoursInOrder({"1   05:10   13:15   16:45   18:52   14:15",
                                      "2   05:09   13:15   16:46   18:54   19:15"},
                                     none),
              QStringList({"1   05:10   13:15   16:45   18:52   19:15",
                           "2   05:09   13:15   16:46   18:54   19:15"}));
    EXPECT_EQ(none, QList<TextMark>({{0, 36, 5}}));

    // Begins and jamaat in two groups on a twelve-hour sheet, Isha's jamaat reaching the clock's
    // reading of Fajr: from then on the rows span a whole day, and they are the sheet's order.
    const QStringList groups{
        "9   6:45   8:09   12:11   2:20   4:08   6:13   7:10   12:30   2:30   6:35",
        "10   6:45   8:08   12:11   2:22   4:09   6:14   7:05   12:30   2:40   6:45",
        "11   6:45   8:07   12:11   2:23   4:11   6:15   7:05   12:30   2:40   6:45",
        "12   6:44   8:06   12:12   2:24   4:12   6:17   7:05   12:30   2:40   6:45"};
    EXPECT_EQ(OcrLines::hoursInOrder(groups, none), groups);
}
