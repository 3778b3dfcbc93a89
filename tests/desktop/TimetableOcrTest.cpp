// Recognition quality on sheets drawn and photographed by the test itself, and files that hold
// no timetable.
#include "ocr/TimetableOCR.h"
#include "TimetableSheets.h"
#include "support/TestEnv.h"
#include "timetable/TimetableImportModel.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

using test::Clock;
using test::Dates;
using test::Layout;
using test::Look;
using test::Ruling;

// clang-format off
const Layout layouts[] = {
    // name                         begins sunrise dates                 clock               ruling         alt    arabic title  footer two
    {"begins, day, unmarked, rows",   true,  true,  Dates::Number,        Clock::Unmarked,    Ruling::Rows},
    {"weekday first, am/pm, zebra",   true,  true,  Dates::WeekdayFirst,  Clock::AmPm,        Ruling::Zebra, false, false, true},
    {"jamaat only, 24h, grid, dates", false, true,  Dates::Slash,         Clock::TwentyFour,  Ruling::Grid},
    {"jamaat only, 1 Mar, bare",      false, false, Dates::DayMonth,      Clock::Unmarked,    Ruling::None,  false, false, false, true},
    {"Zuhr/Esha, Arabic, 24h, zebra", true,  false, Dates::Number,        Clock::TwentyFour,  Ruling::Zebra, true,  true},
    {"day weekday, dotted, grid",     true,  true,  Dates::NumberWeekday, Clock::Dotted,      Ruling::Grid,  false, false, false, true},
    {"two months, begins, rows",      true,  true,  Dates::Slash,         Clock::Unmarked,    Ruling::Rows,  false, false, true,  false, true},
    {"jamaat, Arabic, am/pm, zebra",  false, true,  Dates::WeekdayFirst,  Clock::AmPm,        Ruling::Zebra, false, true},
    {"1 Mar, 24h, bare, title",       true,  true,  Dates::DayMonth,      Clock::TwentyFour,  Ruling::None,  false, false, true,  true},
    {"jamaat, Zuhr/Esha, grid",       false, false, Dates::Number,        Clock::Unmarked,    Ruling::Grid,  true},
    {"dates, am/pm, Arabic, title",   true,  false, Dates::Slash,         Clock::AmPm,        Ruling::Rows,  false, true,  true},
    {"two months, jamaat, 24h, zebra",false, true,  Dates::Slash,         Clock::TwentyFour,  Ruling::Zebra, false, false, false, true,  true},
    {"dotted, Zuhr/Esha, zebra, all", true,  true,  Dates::Number,        Clock::Dotted,      Ruling::Zebra, true,  false, true,  true},
    {"jamaat, day weekday, Arabic",   false, true,  Dates::NumberWeekday, Clock::Dotted,      Ruling::None,  false, true},
};
// Clean renders and screenshots, one per layout.
const Look clean[] = {
    {"DejaVu Sans", 16, false, {}}, {"Nimbus Roman", 20, true, {}}, {"DejaVu Sans Condensed", 14, false, {}},
    {"DejaVu Sans Mono", 15, true, {}}, {"C059", 18, false, {}}, {"Nimbus Sans Narrow", 17, true, {}},
    {"Noto Serif", 16, false, {}}, {"Nimbus Mono PS", 18, true, {}}, {"Noto Sans", 13, false, {}},
    {"P052", 22, true, {}}, {"URW Gothic", 16, false, {}}, {"DejaVu Serif", 15, true, {}},
    {"Nimbus Sans", 14, false, {}}, {"DejaVu Sans Condensed", 20, true, {}},
};
// Phone photos: tilted, keystoned, out of focus, unevenly lit, compressed; and small print.
const Look photos[] = {
    {"Nimbus Sans", 26, false, {2.0, 0.02, 1.0, 60, true}},
    {"DejaVu Serif", 28, true, {-3.0, 0.0, 0.8, 60, false}},
    {"Nimbus Sans Narrow", 24, false, {1.0, 0.04, 1.5, 70, true}},
    {"Noto Sans", 9, false, {0, 0, 0, 60, false}},
    {"Nimbus Roman", 30, true, {-1.5, 0.03, 1.2, 60, true}},
    {"DejaVu Sans Mono", 24, false, {3.0, 0.0, 0.7, 60, false}},
    {"C059", 10, true, {0, 0, 0.5, 60, false}},
    {"DejaVu Sans Condensed", 26, false, {-2.5, 0.02, 1.0, 60, true}},
    {"Noto Serif", 28, false, {0.5, 0.05, 1.5, 60, false}},
    {"Nimbus Mono PS", 8, true, {0, 0, 0, 60, false}},
    {"URW Gothic", 26, false, {-1.0, 0.0, 1.3, 60, true}},
    {"P052", 27, true, {2.5, 0.03, 0.9, 60, true}},
    {"DejaVu Sans", 10, false, {0.8, 0, 0.6, 60, false}},
    {"Nimbus Sans", 25, true, {-3.0, 0.04, 1.1, 60, true}},
};
// clang-format on

struct Score {
    int right = 0;
    int all = 0;
};

// Jamaat cells that come out of the parser exactly as drawn: what the import would save.
Score jamaatCells(const Layout& layout, const test::Sheet& sheet, const QStringList& read) {
    TimetableImportModel expected, got;
    expected.setText(sheet.lines.join('\n'));
    got.setText(read.join('\n'));
    // The month is the user's to confirm; only the cells are measured here.
    got.setMonth(expected.month());
    got.setYear(expected.year());
    const QList<int> positions = test::jamaatPositions(layout);
    for (int p = 0; p < 5; ++p) {
        expected.setColumn(TimetableImportModel::prayers()[p], positions[p]);
        got.setColumn(TimetableImportModel::prayers()[p], positions[p]);
    }
    const DayTable want = expected.days();
    const DayTable have = got.days();
    Score score;
    for (auto day = want.begin(); day != want.end(); ++day)
        for (auto cell = day->begin(); cell != day->end(); ++cell, ++score.all)
            score.right += have.value(day.key()).value(cell.key()) == cell.value();
    EXPECT_EQ(score.all, sheet.days * 5) << layout.name; // the drawn text itself parses whole
    return score;
}

} // namespace

TEST(TimetableOcrTest, JamaatCellsOfVariedSheetsAndPhotosOfThemAreReadBack) {
    QTemporaryDir dir;
    Score cleanTotal, photoTotal;
    int worstPhoto = 100;
    std::printf("%-32s %-22s %3s %5s %6s %6s\n", "layout", "font", "px", "kind", "cells", "ms");
    // To look at a few while tuning: their names, and the files are kept.
    const QByteArray only = qgetenv("TARVANEL_SHEETS");
    dir.setAutoRemove(only.isEmpty());
    for (int i = 0; i < int(std::size(layouts)); ++i) {
        for (const bool photo : {false, true}) {
            const Look& look = photo ? photos[i] : clean[i];
            const QString name = QString("%1-%2").arg(i).arg(photo ? "photo" : "clean");
            if (!only.isEmpty() && !QString(only).split(',').contains(name)) continue;
            const test::Sheet sheet = test::drawSheet(layouts[i], look, 1000u + i);
            const QString path = test::saveSheet(sheet, look, dir.path(), name);
            QElapsedTimer timer;
            timer.start();
            const QStringList read = TimetableOCR::readFile(path);
            const qint64 ms = timer.elapsed();
            const Score score = jamaatCells(layouts[i], sheet, read);
            (photo ? photoTotal : cleanTotal).right += score.right;
            (photo ? photoTotal : cleanTotal).all += score.all;
            const int percent = score.all ? 100 * score.right / score.all : 0;
            if (photo) worstPhoto = std::min(worstPhoto, percent);
            std::printf("%-32s %-22s %3d %5s %3d/%-3d %5lld\n", layouts[i].name, look.font,
                        look.pixels, photo ? "photo" : "clean", score.right, score.all, ms);
            if (score.right < score.all && !only.isEmpty())
                std::printf("%s\n%s\n", qPrintable(path), qPrintable(read.join('\n')));
        }
    }
    auto share = [](Score s) { return s.all ? double(s.right) / s.all : 1.0; };
    std::printf("clean %.2f %%, photos %.2f %%, worst photo %d %%\n", share(cleanTotal) * 100,
                share(photoTotal) * 100, worstPhoto);
    EXPECT_GE(share(cleanTotal), 0.995);
    EXPECT_GE(share(photoTotal), 0.97);
    EXPECT_GE(worstPhoto, 90);
}

TEST(TimetableOcrTest, FilesWithoutATimetableGiveNoLines) {
    QTemporaryDir dir;
    // Files that hold no timetable give no lines.
    auto file = [&](const char* name, const QByteArray& bytes) {
        test::writeFile(dir.filePath(name), bytes);
        return dir.filePath(name);
    };
    QImage blank(2000, 1400, QImage::Format_Grayscale8);
    blank.fill(255);
    blank.save(dir.filePath("blank.png"));
    QImage huge(8700, 5800, QImage::Format_Grayscale8); // 50 megapixels
    huge.fill(200);
    huge.save(dir.filePath("huge.jpg"), nullptr, 50);
    const QByteArray noPages = "%PDF-1.4\n1 0 obj <</Type/Catalog/Pages 2 0 R>> endobj\n"
                               "2 0 obj <</Type/Pages/Kids[]/Count 0>> endobj\n"
                               "trailer <</Root 1 0 R/Size 3>>\n%%EOF\n";
    QByteArray locked = noPages;
    locked.replace("trailer <<", "3 0 obj <</Filter/Standard/V 1/R 2/P -4/O<" +
                                     QByteArray(64, 'a') + ">/U<" + QByteArray(64, 'b') +
                                     ">>> endobj\ntrailer <</Encrypt 3 0 R/ID[<01><01>]");
    const QString paths[] = {dir.filePath("blank.png"),        dir.filePath("huge.jpg"),
                             file("nopages.pdf", noPages),     file("locked.pdf", locked),
                             file("fake.png", "not an image"), dir.filePath("missing.pdf")};
    for (const QString& path : paths)
        EXPECT_EQ(TimetableOCR::readFile(path), QStringList()) << path.toStdString();
    EXPECT_LE(TimetableOCR::loadImage(dir.filePath("huge.jpg")).sizeInBytes(),
              TimetableOCR::maxPixels * 4);
}
