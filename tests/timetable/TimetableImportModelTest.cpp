#include "timetable/TimetableImportModel.h"
#include "support/TestEnv.h"
#include "timetable/OcrLines.h"
#include "timetable/OcrWords.h"
#include "timetable/ReaderMessages.h"

#include <QFile>
#include <QTemporaryDir>
#include <tuple>

using namespace tarvanel;

namespace {
// "1  05:01 05:31 06:40 12:10 13:15 …": eleven times per day, the jamaat ones every other.
QString sheet(int days, const QString& title = "Masjid timetable March 2025") {
    QString text = title + "\nDate Fajr Jamaat Sunrise Zuhr Jamaat Asr Jamaat Maghrib Jamaat "
                           "Isha Jamaat\n";
    for (int d = 1; d <= days; ++d) {
        QStringList times;
        for (int i = 0; i < (d == 5 || d == 9 ? 10 : 11); ++i)
            times << QString::asprintf("%d:%02d", 1 + i, d);
        text += QString::number(d) + " Sat  " + times.join("  ") + "\r\n";
    }
    return text;
}
} // namespace

TEST(TimetableImportModelTest, PastedSheetGivesRowsGuessMonthAndPreview) {
    TimetableImportModel model;
    model.setText(sheet(30));
    EXPECT_EQ(model.status(), "Found 30 rows with 11 times each.");
    EXPECT_EQ(model.columns(), ColumnMap({{"Fajr", 1},
                                          {"Dhuhr", 4},
                                          {"Asr", 6},
                                          {"Maghrib", 8},
                                          {"Isha", 10},
                                          {"Jumu'ah", -1}}));
    EXPECT_EQ(std::pair(model.month(), model.year()), std::pair(3, 2025));
    EXPECT_EQ(model.columnLabel(2), "Column 3  \u00B7  3:01");
    EXPECT_EQ(model.columnLabel(11), "Column 12");
    // Days 5 and 9 miss Isha's column and drop out; the preview shows 7 of 28.
    EXPECT_EQ(model.usableRows().size(), 28);
    EXPECT_EQ(model.days().size(), 28);
    const auto preview = model.preview();
    ASSERT_EQ(preview.size(), 7);
    EXPECT_EQ(preview[4].first, "2025-03-06");
    // Asr, Dhuhr, Fajr, Isha, Maghrib.
    EXPECT_EQ(preview[0].second.values(),
              QStringList({"19:01", "05:01", "02:01", "23:01", "21:01"}));
    // A pick lasts until the text changes; a dated row beats the title's month.
    model.setColumn("Isha", -1);
    EXPECT_EQ(model.days().size(), 30);
    model.setText(sheet(3, "April") + "2024-02-10 5:00 6:00 7:00");
    EXPECT_EQ(model.column("Isha"), 10);
    EXPECT_EQ(std::pair(model.month(), model.year()), std::pair(2, 2024));
    // Equal numbers of rows with 6 and 5 times: 6 wins.
    model.setText("1 1:00 2:00 3:00 4:00 5:00\n2 1:00 2:00 3:00 4:00 5:00 6:00");
    EXPECT_EQ(model.columnCount(), 6);
    model.setText("Nothing here 12:00");
    EXPECT_EQ(model.status(), "No rows with prayer times found yet.");
    EXPECT_TRUE(model.days().isEmpty());
    model.setText(" \n\u2029\t");
    EXPECT_EQ(model.status(), "");
}

TEST(TimetableImportModelTest, MonthAndYearInFreeText) {
    using M = MonthAndYear;
    // clang-format off
    const QList<std::pair<QString, std::optional<M>>> cases = {
        {"Prayer timetable \u2013 Ramadan / March 2025", M{3, 2025}}, {"Mar 2025", M{3, 2025}},
        {"Marks for 2025", std::nullopt}, {"March", M{3, std::nullopt}}, {"xmay 2025", std::nullopt},
        {"SEPTEMBER ... and a long way on 2026", M{9, std::nullopt}},
        {"Decemberish 2031, then jan", M{12, 2031}},
        // A photographed title with a letter misread, lost or doubled; not a short name.
        {"FERUARY 2026", M{2, 2026}}, {"Jamaat Novenber  2026", M{11, 2026}},
        {"SEPTEMBBER 2026 ... Jumu'ah 1 March", M{9, 2026}}, {"Match 2026", std::nullopt},
        {"Feruary timetable", std::nullopt}, {"Febuary 1999, Octber 2026", M{10, 2026}}};
    // clang-format on
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(TimetableImportModel::monthAndYear(text), expected) << text.toStdString();
}

TEST(TimetableImportModelTest, FilesAndImageReadsReportInTheStatusLine) {
    QTemporaryDir dir;
    auto write = [&](const QString& name, const QByteArray& bytes) {
        QFile f(dir.filePath(name));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return f.fileName();
    };
    const QString csv = "date,fajr,dhuhr,asr\n1,5:00,1:00,4:00\n";
    TimetableImportModel model;
    model.loadTextFile(write(
        "utf16.csv", QByteArray("\xFF\xFE") +
                         QByteArray(reinterpret_cast<const char*>(csv.utf16()), csv.size() * 2)));
    EXPECT_EQ(model.status(), "Found 1 row with 3 times each.");
    const QList<std::pair<QString, QByteArray>> unreadable = {
        {"bare16.csv", QByteArray::fromHex("31002c0035003a00")},
        {"latin1.txt", "5:00 \xE9"},
        {"big.txt", QByteArray(2 << 20, '1')}};
    for (const auto& [name, bytes] : unreadable) {
        model.loadTextFile(write(name, bytes));
        EXPECT_EQ(model.status(), QString("Couldn't read any text in %1.").arg(name));
        EXPECT_EQ(model.text(), csv);
    }
    model.imageReadStarted("a.png");
    model.imageReadStarted("b.pdf");
    EXPECT_EQ(model.status(), "Reading b.pdf\u2026");
    model.imageReadProgress(3, 12);
    EXPECT_EQ(model.status(), "Reading page 3 of 12\u2026");
    model.imageReadFinished("b.pdf", {{"1 5:00 6:00 7:00", "2 5:01 6:01 7:01"}, {}, 12, 200});
    EXPECT_EQ(model.status(), "Found 2 rows with 3 times each. Read the first 12 of 200 pages.");
    EXPECT_TRUE(model.reading());
    model.imageReadFinished("a.png", {});
    EXPECT_FALSE(model.reading());
    EXPECT_EQ(model.status(), "Couldn't read any text in a.png.");
    EXPECT_EQ(model.text(), "1 5:00 6:00 7:00\n2 5:01 6:01 7:01");
    // The pages stay said while the text is mended; a single page says nothing of pages.
    model.setText("1 5:00 6:00 7:00");
    EXPECT_EQ(model.status(), "Found 1 row with 3 times each. Read the first 12 of 200 pages.");
    model.imageReadStarted("c.tiff");
    model.imageReadProgress(1, 1);
    EXPECT_EQ(model.status(), "Reading c.tiff\u2026");
    model.imageReadFinished("c.tiff", {{"1 5:00 6:00 7:00"}, {{0, 2, 4}}, 2, 2});
    EXPECT_EQ(model.status(), "Found 1 row with 3 times each. Read 2 pages.");
    EXPECT_EQ(model.doubtfulCells(), QList<TextMark>({{0, 2, 4}}));
    // A read that ends without an answer says why and leaves the text and its marks alone.
    model.imageReadStarted("d.png");
    model.imageReadFailed("d.png", "The reader stopped.");
    EXPECT_FALSE(model.reading());
    EXPECT_EQ(model.status(), "The reader stopped.");
    EXPECT_EQ(model.text(), "1 5:00 6:00 7:00");
    EXPECT_EQ(model.doubtfulCells(), QList<TextMark>({{0, 2, 4}}));
    model.loadTextFile(write("plain.txt", "1 5:00 6:00 7:00"));
    EXPECT_EQ(model.status(), "Found 1 row with 3 times each.");
    EXPECT_TRUE(model.doubtfulCells().isEmpty());
    EXPECT_EQ(TimetableImportModel::kindOf("/x/Sheet.JPG"), ImportFileKind::Image);
}

TEST(TimetableImportModelTest, ReaderMessagesReadBackAsWritten) {
    using ReaderMessages::Message;
    const QByteArray progress = ReaderMessages::progress(3, 12);
    EXPECT_TRUE(progress.endsWith('\n'));
    EXPECT_EQ(progress.count('\n'), 1);
    const Message page = ReaderMessages::parse(progress);
    EXPECT_EQ(page.kind, Message::Progress);
    EXPECT_EQ(std::pair(page.page, page.pageCount), std::pair(3, 12));

    const SheetReading sent{
        {"Masjid \"Noor\"", "1   5:01   1:10", "", "2 é 5:02"}, {{1, 4, 4}, {3, 0, 1}}, 2, 7};
    const QByteArray line = ReaderMessages::reading(sent);
    EXPECT_EQ(line.count('\n'), 1); // one line, however many the sheet has
    const Message read = ReaderMessages::parse(line);
    EXPECT_EQ(read.kind, Message::Reading);
    EXPECT_EQ(read.reading.lines, sent.lines);
    EXPECT_EQ(read.reading.doubtful, sent.doubtful);
    EXPECT_EQ(std::pair(read.reading.pagesRead, read.reading.pageCount), std::pair(2, 7));
    // Nothing read is still an answer; noise is none.
    EXPECT_EQ(ReaderMessages::parse(ReaderMessages::reading({})).kind, Message::Reading);
    for (const char* noise : {"", "Segmentation fault", "{\"lines\": 3}", "[1,2]"})
        EXPECT_EQ(ReaderMessages::parse(noise).kind, Message::Unknown) << noise;
}

TEST(TimetableImportModelTest, RecognisedWordsGroupIntoLevelLines) {
    // Pixel boxes (y down) of a 1000 × 1000 image: two columns of text at nearly the same
    // height, a slightly lower word, a tall header, and a line far below.
    auto item = [](const char* text, int left, int top, int height = 20) {
        return RecognizedItem{
            text, OcrLines::relativeBox(left, top, left + 80, top + height, 1000, 1000)};
    };
    const QList<RecognizedItem> items = {item("5:12", 300, 105), item("1", 10, 100),
                                         item("1:15", 500, 108), item("Sat", 100, 100),
                                         item("2", 10, 200),     item("TITLE", 10, 10, 60)};
    EXPECT_EQ(OcrLines::group(items), QStringList({"TITLE", "1   Sat   5:12   1:15", "2"}));
    // Two rows photographed askew, each falling more than half a word's height from its first
    // word to its last, still a row's height apart.
    QList<RecognizedItem> askew;
    for (int row = 0; row < 2; ++row)
        for (int c = 0; c < 5; ++c)
            askew << item(c ? "4:10" : row ? "4" : "3", 10 + 200 * c, 300 + 40 * row + 5 * c);
    EXPECT_EQ(OcrLines::group(askew),
              QStringList({"3   4:10   4:10   4:10   4:10", "4   4:10   4:10   4:10   4:10"}));
    // Rows still a little askew after levelling, each with a word whose box reaches down into
    // the rule below it: its middle lies lower than its print, and the row's last word lies as
    // far from its first as words of one place may.
    QList<RecognizedItem> ruled;
    for (int row = 0; row < 2; ++row)
        for (int c = 0; c < 5; ++c)
            ruled << item(c     ? "4:10"
                          : row ? "2"
                                : "1",
                          10 + 200 * c, 300 + 40 * row + 3 * c, c == 2 ? 34 : 20);
    EXPECT_EQ(OcrLines::group(ruled),
              QStringList({"1   4:10   4:10   4:10   4:10", "2   4:10   4:10   4:10   4:10"}));
    EXPECT_EQ(OcrLines::relativeBox(100, 0, 300, 50, 1000, 500), QRectF(0.1, 0.9, 0.2, 0.1));
    EXPECT_TRUE(OcrLines::group({}).isEmpty());

    // Doubtful items are found again in the joined lines.
    QList<RecognizedItem> marked = items;
    marked[2].doubtful = marked[4].doubtful = true;
    QList<TextMark> marks;
    EXPECT_EQ(OcrLines::group(marked, marks), OcrLines::group(items));
    EXPECT_EQ(marks, QList<TextMark>({{1, 17, 4}, {2, 0, 1}}));
}

TEST(TimetableImportModelTest, RowsThatWouldNotBeSavedAreNamedWithTheirReason) {
    // April: 1 and 3 lack Isha's column, 5 has no day number, 31 is no April day, 4 comes twice.
    QString text = "April 2026\n";
    for (int d = 1; d <= 6; ++d) {
        const int times = d == 1 || d == 3 ? 10 : 11;
        QStringList cells;
        for (int i = 0; i < times; ++i)
            cells << QString::asprintf("%d:%02d", 1 + i, d);
        text +=
            (d == 5 ? "Sat" : QString::number(d == 6 ? 31 : d)) + "  " + cells.join("  ") + "\n";
    }
    text += "4  5:00 5:30 6:40 12:10 1:15 4:20 4:40 7:30 7:35 8:50 9:00\n";
    TimetableImportModel model;
    model.setText(text);
    EXPECT_EQ(model.status(), "Found 7 rows with 11 times each.");
    EXPECT_EQ(model.problemSummary(),
              "5 rows can't be used: 1 and 3 April are missing a time in a chosen column; line 6 "
              "has no day number or date; day 31 is not in April; 4 April appears twice (the "
              "later row is used).");
    QList<int> lines;
    for (const RowProblem& p : model.problems())
        lines << p.line;
    EXPECT_EQ(lines, QList<int>({1, 3, 4, 5, 6}));
    EXPECT_EQ(model.days().size(), 2); // 2 and 4 April

    // Isha taken out of the timetable: the short rows count again. In May day 31 is a day.
    model.setColumn("Isha", -1);
    model.setMonth(5);
    EXPECT_EQ(model.problemSummary(),
              "2 rows can't be used: line 6 has no day number or date; 4 May appears twice (the "
              "later row is used).");
    EXPECT_EQ(model.days().size(), 5);
    // No column chosen: nothing is saved, and nothing is blamed on a row.
    for (const QString& prayer : TimetableImportModel::prayers())
        model.setColumn(prayer, -1);
    EXPECT_TRUE(model.problems().isEmpty());
    EXPECT_EQ(model.problemSummary(), "");

    // Full dates of two months.
    model.setText("30/04/2026 5:00 6:00 7:00 8:00\n01/05/2026 5:00 6:00 7:00 8:00\n"
                  "02/05/2026 5:00 6:00 7:00");
    EXPECT_EQ(model.problemSummary(),
              "1 row can't be used: 2 May is missing a time in a chosen column.");
    model.setColumn("Isha", 4);
    EXPECT_EQ(model.problemSummary(), "3 rows can't be used: 30 April and 1 and 2 May are "
                                      "missing a time in a chosen column.");

    // Times the recogniser could not read keep their places: an unread time in a column that
    // is not chosen costs nothing, one in a chosen column the day. Three read times make a row.
    model.setText("May 2026\n1  4:01 ??:?? 1:01 5:01 8:01 9:01\n2  4:02 5:32 ??:?? 5:02 8:02 "
                  "9:02\n3  ??:?? ??:??  ??:?? 5:03 8:03 9:03\nJumu'ah ??:?? ??:?? 1:30 2:00");
    EXPECT_EQ(model.status(), "Found 3 rows with 6 times each.");
    EXPECT_EQ(model.problemSummary(),
              "2 rows can't be used: 2 and 3 May are missing a time in a chosen column.");
    const DayTable days = model.days();
    EXPECT_EQ(days.keys(), QStringList{"2026-05-01"});
    EXPECT_EQ(days.value("2026-05-01"), (QMap<QString, QString>{{"Fajr", "04:01"},
                                                                {"Dhuhr", "13:01"},
                                                                {"Asr", "17:01"},
                                                                {"Maghrib", "20:01"},
                                                                {"Isha", "21:01"}}));
    EXPECT_EQ(model.columnLabel(1), "Column 2  \u00B7  ??:??");
}

TEST(TimetableImportModelTest, MisreadCellsOfATableAreFoundAndSettledByTheirNeighbours) {
    // Day, then three time columns; a heading above the time columns and a note below.
    const QStringList rows[] = {
        {"Day", "Fajr", "Zuhr", "Asr", "Isha"},     {"1", "5:10", "1:05", "3:30", "7:50"},
        {"A", "5:09", "1:05", "3:31", "7:52"},      {"3", "5:08", "7Al", "3:32", "7:57pm"},
        {"1", "5:07", "1:05", "3:33", "7:50"},      {"5", "5:06", "1:05", "3:34", "7:48"},
        {"Jumu'ah", "1:30", "in", "winter", "only"}};
    QList<RecognizedItem> items;
    for (int r = 0; r < 7; ++r)
        for (int c = 0; c < 5; ++c)
            items.append(
                {rows[r][c], OcrLines::relativeBox(c * 200, r * 50 + r % 2 * 3, c * 200 + 80,
                                                   r * 50 + 20, 1000, 1000)});
    const auto doubts = OcrLines::doubtful(items);
    QStringList found;
    for (const OcrLines::Doubt& d : doubts)
        found << items[d.item].text + (d.kind == OcrLines::Doubt::Day ? "/day " : "/time ") +
                     QString::number(d.expected);
    // "1" breaks the count 3, ?, 5; "7:57pm" stands apart from 7:52 and 7:50 (on a 12-hour
    // dial: 471 minutes); the heading and the note stay as they are.
    EXPECT_EQ(found, QStringList({"7Al/time -1", "7:57pm/time 471", "A/day 2", "1/day 4"}));
    EXPECT_EQ(OcrLines::timeCharacters(items), "0123456789:.pm");

    const OcrLines::Doubt cell = doubts[0], apart = doubts[1], day = doubts[2];
    // The rows around "7Al" agree on 1:05; those around "7:57pm" do not.
    EXPECT_EQ(std::pair(cell.agreed, apart.agreed), std::pair(QString("1:05"), QString()));
    EXPECT_EQ(OcrLines::settle(cell, "7Al", "7:41"), "7:41");
    EXPECT_EQ(OcrLines::settle(cell, "7Al", "7:1"), "7Al");
    EXPECT_EQ(OcrLines::settle(cell, "448", "4a8"), "4:48"); // a blurred colon
    EXPECT_EQ(OcrLines::settle(cell, "5:01-5:42", "5:015:42"), "5:01   5:42");
    EXPECT_EQ(OcrLines::settle(cell, "4325", "4325:11"), "4325");
    // The hour the second reading lost, from the first one's look-alike letters.
    EXPECT_EQ(OcrLines::settle(cell, "SS", ".15"), "5.15");
    EXPECT_EQ(OcrLines::settle(cell, "Sal", ".11"), "5.11");
    EXPECT_EQ(OcrLines::settle(cell, "1Z30", ":30"), "12:30");
    EXPECT_EQ(OcrLines::settle(cell, "xx", ".15"), "xx");
    EXPECT_EQ(OcrLines::settle(cell, "S$33pm", ":33pm"), "5:33pm"); // its $ the colon
    // A mark read after the time: the time it begins with.
    EXPECT_EQ(OcrLines::settle(cell, "4:26.62", "4:26.62"), "4:26");
    EXPECT_EQ(OcrLines::settle(cell, "442~", "442~"), "4:42");
    EXPECT_EQ(OcrLines::settle(cell, "1:302", "1:302"), "1:302");
    // An "a" glued to the minutes and read as a 0 or an 8: the time without it.
    EXPECT_EQ(OcrLines::settle(cell, "5.150", "5.150"), "5.15");
    EXPECT_EQ(OcrLines::settle(cell, "6:208", "6:208"), "6:20");
    EXPECT_EQ(OcrLines::settle(cell, "5150", "5150"), "5150");
    EXPECT_EQ(OcrLines::settle(cell, "1544160001718)", "154 16:00"), "1544160001718)");
    // Unreadable twice: the agreed time when the readings end in its last digit, else kept.
    EXPECT_EQ(OcrLines::settle(cell, "#5", "5"), "1:05");
    EXPECT_EQ(OcrLines::settle(cell, "a0", ""), "a0");
    EXPECT_EQ(OcrLines::settle(cell, "#5", "0"), "1:05");
    EXPECT_EQ(OcrLines::settle(cell, "#4", "x"), "#4");
    EXPECT_EQ(OcrLines::settle(apart, "7:57pm", "7:51pm"), "7:51pm");
    EXPECT_EQ(OcrLines::settle(apart, "7:57pm", "7:59"), "7:57pm"); // further off: kept
    EXPECT_EQ(OcrLines::settle(day, "A", "8"), "2");
    EXPECT_EQ(OcrLines::settle({0, OcrLines::Doubt::Day}, "A", "8"), "8");
    EXPECT_EQ(OcrLines::settle({0, OcrLines::Doubt::Day}, "A", "x"), "A");
}

TEST(TimetableImportModelTest, CellsOfATimeColumnKeepTheirColumnWhateverTheyRead) {
    // Day and five time columns. Row 3 reads junk in the second column and nothing at all in
    // the fifth; row 5 reads a cell as two words; row 7 too poorly to count as a row of times.
    // The heading and the note are no rows.
    const QStringList rows[] = {{"Day", "Fajr", "Zuhr", "Asr", "Maghrib", "Isha"},
                                {"1", "5:10", "1:05", "3:30", "6:10", "7:50"},
                                {"2", "5:09", "1:05", "3:31", "6:11", "7:51"},
                                {"3", "5:08", "#15", "3:32", "6:12", ""},
                                {"4", "5:07", "1:30", "3:33", "6:13", "7:54"},
                                {"5", "5:06", "1:36", "3:34", "6:14", "7:55"},
                                {"6", "5:05", "1:30", "3:35", "6:15", "7:56"},
                                {"7", "5:04", "1a30", "3:3b", "6l16", "7:57"},
                                {"Jumu'ah", "1:30", "in", "winter", "only", ""}};
    auto box = [](int left, int row, int right) {
        return OcrLines::relativeBox(left, row * 50, right, row * 50 + 20, 1200, 1000);
    };
    auto read = [&](QList<int> which) {
        QList<RecognizedItem> items;
        for (int r : which)
            for (int c = 0; c < 6; ++c)
                if (!rows[r][c].isEmpty())
                    items.append({rows[r][c], box(c * 200, r, c * 200 + 80)});
        return items;
    };
    QList<RecognizedItem> items = read({0, 1, 2, 3, 4, 5, 6, 7, 8});
    for (RecognizedItem& item : items)
        if (item.text == "3:34") item = {"3:", box(600, 5, 645)};
    items.append({"34", box(650, 5, 680)});

    const QList<OcrLines::Doubt> doubts = OcrLines::columnDoubts(items);
    ASSERT_EQ(doubts.size(), 7);
    const OcrLines::Doubt junk = doubts[0], missing = doubts[1], halves = doubts[2];
    // The poor row's cells too, the colon read as another character.
    QStringList poor;
    for (const OcrLines::Doubt& d : doubts.mid(3, 3))
        poor << items[d.item].text + " " + OcrLines::settle(d, items[d.item].text, "");
    EXPECT_EQ(poor, QStringList({"1a30 1:30", "3:3b 3:36", "6l16 6:16"}));
    EXPECT_EQ(items[junk.item].text, "#15");
    EXPECT_EQ(std::pair(junk.above, junk.below), std::pair(QString("1:05"), QString("1:30")));
    // Nothing read: where the column stands, at the row's height.
    EXPECT_EQ(missing.item, -1);
    EXPECT_EQ(missing.box, box(1000, 3, 1080));
    EXPECT_EQ(std::pair(missing.above, missing.below), std::pair(QString("7:51"), QString("7:54")));
    EXPECT_EQ(items[halves.item].text, "3:"); // the wider of the two
    EXPECT_EQ(std::pair(halves.above, halves.below), std::pair(QString("3:33"), QString("3:35")));

    // Minutes still read take the hour of the nearest clean time, within half an hour of it.
    EXPECT_EQ(OcrLines::settle(junk, "#15", "#15"), "1:15");
    EXPECT_EQ(OcrLines::settle(junk, "#35", "&35"), "1:35");
    EXPECT_EQ(OcrLines::settle(junk, "#36", "#36"), "#36");
    EXPECT_EQ(OcrLines::settle(junk, "a5", ""), "1:05"); // one digit: the nearest, if it ends so
    EXPECT_EQ(OcrLines::settle(junk, "a0", ""), "a0");
    EXPECT_EQ(OcrLines::settle(junk, "xx", "x"), "xx"); // 1:05 and 1:30 agree on nothing
    // Midway between times up to four minutes apart, in the print of the one above.
    EXPECT_EQ(OcrLines::settle(halves, "3:", ""), "3:34");
    EXPECT_EQ(OcrLines::settle(missing, "", ""), "7:52");
    OcrLines::Doubt apart = missing;
    apart.below = "7.55pm";
    EXPECT_EQ(OcrLines::settle(apart, "", "~"), "7:53");
    apart.below = "7:56";
    EXPECT_EQ(OcrLines::settle(apart, "", "~"), "");
    // A cell that reads as a time keeps it; one without a column to learn from stays as read.
    EXPECT_EQ(OcrLines::settle(missing, "", "7:50"), "7:50");
    EXPECT_EQ(OcrLines::settle({0, OcrLines::Doubt::Time}, "#15", "#15"), "#15");

    // A clean time between two rows that agree, off by its hour alone, an hour or more: a
    // misread hour digit. Other differences stand (a Friday's Dhuhr jamaat).
    const OcrLines::Doubt hour{0, OcrLines::Doubt::Time, 90, "1:30"};
    EXPECT_EQ(OcrLines::settle(hour, "11:30", "11:30"), "1:30");
    EXPECT_EQ(OcrLines::settle(hour, "2:30", "2:31"), "1:30");
    EXPECT_EQ(OcrLines::settle(hour, "13:30", "11:30"), "13:30");
    EXPECT_EQ(OcrLines::settle(hour, "1:45", "1:45"), "1:45");
    EXPECT_EQ(OcrLines::settle(hour, "12:31", "12:31"), "12:31");
    EXPECT_EQ(OcrLines::settle(hour, "13:00", "13:00"), "1:30"); // a dot read as a 0
    // A 0 closed into a 6 where an hour cannot hold one.
    EXPECT_EQ(OcrLines::settle(hour, "26:12", "26:12"), "20:12");

    // 1:36 between rows of 1:30: a look-alike digit, found by the column and settled so.
    const OcrLines::Doubt lookalike = doubts[6];
    EXPECT_EQ(std::tuple(items[lookalike.item].text, lookalike.agreed, lookalike.expected),
              std::tuple(QString("1:36"), QString("1:30"), 90));
    EXPECT_EQ(OcrLines::settle(lookalike, "1:36", "1:36"), "1:30");
    EXPECT_EQ(OcrLines::settle(lookalike, "1:36", "1:31"), "1:31");
    using OcrLines::words::misread;
    EXPECT_TRUE(misread("19:36", "19:30") && misread("8:00", "5:00") && misread("4:30", "4:36") &&
                misread("5.18", "5.15") && misread("13:00", "1.30"));
    EXPECT_FALSE(misread("13:30", "1:30") || misread("1:34", "1:30") || misread("1:45", "1:30") ||
                 misread("2:36", "1:30") || misread("7:30pm", "7:36"));

    // One row read cleanly is no column to go by.
    EXPECT_TRUE(OcrLines::columnDoubts(read({0, 1, 3, 8})).isEmpty());
}

TEST(TimetableImportModelTest, DayNumbersThatStartAgainBelongToTheNextMonth) {
    // Ramadan across two months, numbered by day alone: 20–31 March, then 1–19 April.
    QString text = "Ramadan 1447 / March 2026\n";
    for (int i = 0; i < 31; ++i) {
        const int day = i < 12 ? 20 + i : i - 11;
        text += QString::asprintf("%d  5:%02d  1:10  4:%02d  7:%02d  8:40\n", day, i, i, i);
    }
    TimetableImportModel model;
    model.setText(text);
    const DayTable days = model.days();
    ASSERT_EQ(days.size(), 31);
    EXPECT_EQ(days.firstKey(), "2026-03-20");
    EXPECT_EQ(days.lastKey(), "2026-04-19");
    EXPECT_EQ(days["2026-04-01"]["Fajr"], "05:12");
    EXPECT_TRUE(model.problems().isEmpty());
    // A count that falls in the middle of a month is a misread day, not a new month.
    model.setText("10 5:00 6:00 7:00\n1 5:00 6:00 7:00\n12 5:00 6:00 7:00");
    EXPECT_EQ(model.days().keys(), QStringList({"2026-03-01", "2026-03-10", "2026-03-12"}));
    // The fasts numbered before the dates (19 February to 19 March), and a month's dates before
    // their Hijri days, which start again at 1 after the 30th: the date is told from the fast and
    // from the Hijri day by where its count starts again.
    for (const auto& [title, rows, fast] :
         {std::tuple{"February 2026", 29, true}, std::tuple{"June 2026", 30, false}}) {
        text = QString::fromLatin1(title) + "\nFast  Date  Day\n";
        for (int i = 0; i < rows; ++i) {
            const int date = fast ? (i < 10 ? 19 + i : i - 9) : i + 1;
            const int second = fast ? date : (i + 15 - 1) % 30 + 1;
            text += QString::asprintf("%d  %d  Sat  5:%02d  1:10  4:%02d  7:%02d  8:40\n",
                                      fast ? i + 1 : date, second, i, i, i);
        }
        model.setText(text);
        const DayTable read = model.days();
        EXPECT_EQ(read.size(), rows) << title;
        EXPECT_EQ(read.firstKey(), fast ? "2026-02-19" : "2026-06-01") << title;
        EXPECT_EQ(read.lastKey(), fast ? "2026-03-19" : "2026-06-30") << title;
        EXPECT_EQ(read.value(fast ? "2026-03-01" : "2026-06-11")["Fajr"], "05:10") << title;
        EXPECT_TRUE(model.problems().isEmpty()) << title;
    }
    // The Hijri day before the date, its month turning on the 15th: the date is the number that
    // runs through the whole month.
    text = "October 2026\nHijri  Date  Day\n";
    for (int i = 0; i < 31; ++i)
        text += QString::asprintf("%d Rabi II  %d  Thu  5:%02d  1:10  4:%02d  7:%02d  8:40\n",
                                  (i + 16) % 30 + 1, i + 1, i, i, i);
    model.setText(text);
    const DayTable hijriFirst = model.days();
    EXPECT_EQ(hijriFirst.size(), 31);
    EXPECT_EQ(hijriFirst.value("2026-10-15")["Fajr"], "05:14");
    EXPECT_EQ(hijriFirst.lastKey(), "2026-10-31");
    // A right-to-left table: Isha first, then the Hijri day and the date at the right end. A
    // Hijri day at the end of rows whose dates went unread is no date.
    for (const bool rightToLeft : {true, false}) {
        text = "June 2025\n";
        for (int i = 0; i < 30; ++i)
            text += QString::asprintf("%s 8.%02d 7.07 3.42 12.25 4.07 %d %s\n",
                                      rightToLeft ? "" : "|", i, (i + 4) % 30 + 1,
                                      rightToLeft ? qPrintable(QString::number(i + 1)) : "");
        model.setText(text);
        for (int p = 0; p < 5; ++p)
            model.setColumn(TimetableImportModel::prayers()[p], 4 - p);
        const DayTable read = model.days();
        EXPECT_EQ(read.size(), rightToLeft ? 30 : 0);
        EXPECT_EQ(read.value("2025-06-12")["Isha"], rightToLeft ? "20:11" : "");
    }
    // The 28th misread as 26 and the 1st unread, just where the dates start again: the count
    // of the days before still ends the month, and the fasts stay fasts.
    text = "February 2026\nFast  Date  Day\n";
    for (int i = 0; i < 29; ++i) {
        const QString date = i == 9    ? "26"
                             : i == 10 ? "|"
                                       : QString::number(i < 10 ? 19 + i : i - 9);
        text += QString::asprintf("%d  %s  Sat  5:%02d  1:10  4:%02d  7:%02d  8:40\n", i + 1,
                                  qPrintable(date), i, i, i);
    }
    model.setText(text);
    const DayTable misread = model.days();
    EXPECT_EQ(misread.firstKey(), "2026-02-19");
    EXPECT_EQ(misread.value("2026-03-02")["Fajr"], "05:11");
    EXPECT_EQ(misread.lastKey(), "2026-03-19");
    // Dates before their Ramadan days, 16 February to 17 March, where the 1st went unread and
    // its row holds the Ramadan day alone.
    text = "February 2026\nDate  Ramadan  Day\n";
    for (int i = 0; i < 30; ++i) {
        const QString date = i == 13 ? "" : QString::number(i < 13 ? 16 + i : i - 12);
        text += QString::asprintf("%s  %d  Sun  5:%02d  1:10  4:%02d  7:%02d  8:40\n",
                                  qPrintable(date), i + 1, i, i, i);
    }
    model.setText(text);
    const DayTable unread = model.days();
    EXPECT_EQ(unread.value("2026-03-02")["Fajr"], "05:14");
    EXPECT_EQ(unread.lastKey(), "2026-03-17");
    // October and November side by side, each row of the page a day of both; a row whose
    // November day is missing (the 31st) stands alone, and one whose November day went unread
    // takes its October day, as every line read whole says the months go day by day.
    text = "OCTOBER 2026      NOVEMBER 2026\n";
    for (int day = 1; day <= 31; ++day) {
        text += QString::asprintf("%d Thu 6:%02d 13:30 16:30 19:00 20:30", day, day);
        if (day <= 30)
            text += QString::asprintf("   %s Sun 7:%02d 12:15 14:30 16:55 18:30",
                                      day == 12 ? "Wea" : qPrintable(QString::number(day)), day);
        text += u'\n';
    }
    model.setText(text);
    EXPECT_EQ(model.status(), "Found 61 rows with 5 times each.");
    const DayTable both = model.days();
    EXPECT_EQ(both.size(), 61);
    EXPECT_EQ(both.value("2026-10-12")["Fajr"], "06:12");
    EXPECT_EQ(both.value("2026-11-12")["Fajr"], "07:12");
    EXPECT_EQ(both.value("2026-10-31")["Fajr"], "06:31");
    EXPECT_EQ(both.value("2026-11-01")["Fajr"], "07:01");
    EXPECT_EQ(both.value("2026-11-30")["Isha"], "18:30");
    EXPECT_TRUE(model.problems().isEmpty());
    // November and December: December's 31st stands alone below both tables and is its day.
    text = "NOVEMBER 2026      DECEMBER 2026\n";
    for (int day = 1; day <= 31; ++day) {
        if (day <= 30)
            text += QString::asprintf("%d Sun 6:%02d 12:00 14:00 16:30 18:00   ", day, day);
        text += QString::asprintf("%d Tue 7:%02d 12:15 13:50 16:%02d 18:15\n", day, day, day);
    }
    model.setText(text);
    const DayTable longer = model.days();
    EXPECT_EQ(longer.size(), 61);
    EXPECT_EQ(longer.value("2026-11-30")["Fajr"], "06:30");
    EXPECT_EQ(longer.value("2026-12-31")["Fajr"], "07:31");
    EXPECT_TRUE(model.problems().isEmpty());
    // December and January: the second day between its weekday and its Hijri day; then, those
    // unread in every row, the line cut where its times begin a second day, which is the first's.
    for (const bool unread : {false, true}) {
        text = "DECEMBER 2026      JANUARY 2027\n";
        for (int day = 1; day <= 31; ++day)
            text += QString::asprintf(
                "Mon %d 6:%02d 12:15 14:00 16:30 18:00   %s 7:%02d 12:30 "
                "14:20 16:50 18:20\n",
                day, day,
                unread ? "" : qPrintable(QString::asprintf("Fri %d %d", day, day % 30 + 1)), day);
        model.setText(text);
        const DayTable two = model.days();
        EXPECT_EQ(two.size(), 62) << unread;
        EXPECT_EQ(two.value("2026-12-31")["Fajr"], "06:31");
        EXPECT_EQ(two.value("2027-01-01")["Fajr"], "07:01");
        EXPECT_EQ(two.value("2027-01-31")["Isha"], "18:20");
        EXPECT_TRUE(model.problems().isEmpty());
    }
    // A month in two halves side by side: the lines say the halves go apart, so a second day
    // unread is named, not taken from the first half's.
    text = "FEBRUARY 2027\n";
    for (int day = 1; day <= 14; ++day)
        text += QString::asprintf("%d 5:%02d 12:30 15:40 18:00 19:30   %s 5:%02d 12:30 15:50 "
                                  "18:20 19:40\n",
                                  day, 40 - day,
                                  day == 5 ? "" : qPrintable(QString::number(day + 14)), 26 - day);
    model.setText(text);
    EXPECT_EQ(model.days().size(), 27);
    EXPECT_EQ(model.days().value("2027-02-28")["Fajr"], "05:12");
    ASSERT_EQ(model.problems().size(), 1);
    EXPECT_EQ(model.problems()[0].reason, RowProblem::NoDay);
}
