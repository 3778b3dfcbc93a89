#include "timetable/OcrLines.h"

#include <gtest/gtest.h>

using namespace tarvanel;

// A dotted sheet read with a colon here and there: a jamaat column misread three days running,
// a lone look-alike digit, a daily begins column and a jamaat time that changes for good.
TEST(OcrColumnsTest, ATimeReadOnBothSidesOfAMisreadRunIsWhatTheRunSays) {
    const QStringList rows[] = {{"1", "3.40", "4.00", "7.15"}, {"2", "3.41", "4:00", "7.15"},
                                {"3", "3.42", "4.00", "7.45"}, {"4", "3.43", "4.06", "7:15"},
                                {"5", "3.44", "4:08", "7.15"}, {"6", "3.45", "4.06", "7.15"},
                                {"7", "3.46", "4.00", "7.15"}, {"8", "3.47", "4:00", "7.30"},
                                {"9", "3.48", "4.00", "7.30"}, {"10", "3.49", "4.00", "7.30"}};
    QList<RecognizedItem> items;
    for (int r = 0; r < int(std::size(rows)); ++r)
        for (int c = 0; c < 4; ++c)
            items.append({rows[r][c], OcrLines::relativeBox(c * 200, r * 50, c * 200 + 80,
                                                            r * 50 + 20, 1000, 600)});
    QStringList settled;
    for (const OcrLines::Doubt& doubt : OcrLines::columnDoubts(items)) {
        const QString read = items[doubt.item].text;
        settled << read + " " + OcrLines::settle(doubt, read, read);
    }
    // The new Isha time's first day stands: it is read below, never above.
    EXPECT_EQ(settled, QStringList({"7.45 7.15", "4.06 4.00", "4:08 4.00", "4.06 4:00"}));
}

// A begins time that moves a minute a day, one day read an hour off (a 5 taken for a 6), on
// twelve- and twenty-four-hour sheets; one off by its minutes is left to its second reading.
TEST(OcrColumnsTest, ADayApartByItsHourAloneTakesTheHourOfTheDaysAround) {
    const QStringList rows[] = {{"1", "5:18", "17:18", "5:18"},
                                {"2", "6:20", "18:20", "5:40"},
                                {"3", "5:22", "17:22", "5:22"}};
    QList<RecognizedItem> items;
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 4; ++c)
            items.append({rows[r][c], OcrLines::relativeBox(c * 200, r * 50, c * 200 + 80,
                                                            r * 50 + 20, 1000, 600)});
    QStringList settled;
    for (const OcrLines::Doubt& doubt : OcrLines::doubtful(items)) {
        const QString read = items[doubt.item].text;
        settled << read + " " + doubt.agreed + " " + OcrLines::settle(doubt, read, read);
    }
    EXPECT_EQ(settled, QStringList({"6:20 5:20 5:20", "18:20 17:20 17:20", "5:40  5:40"}));
}
