// Recognition quality on sheets the test draws itself, and files that hold no timetable.
#include "ocr/TimetableOCR.h"
#include "support/TestEnv.h"
#include "timetable/TimetableImportModel.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

struct Sheet {
    const char* name;
    const char* font;
    int pixels; // text size
    bool twelveHour;
    bool marker;           // am/pm after each time
    double tilt = 0;       // degrees
    bool degraded = false; // blurred, unevenly lit, saved as JPEG
    bool pdf = false;
    // Every cell of a clean sheet; a photo may lose one cell in fifty.
    double floor = 1.0;
    bool grid = false; // ruled between columns too, as a printed form
};

// 31 days of start and jamaat pairs with sunrise after Fajr: 11 times a row.
QStringList truthLines(const Sheet& s) {
    QStringList lines{"Masjid Timetable March 2025",
                      "Day  Fajr  Jamaat  Sunrise  Zuhr  Jamaat  Asr  Jamaat  Maghrib  Jamaat  "
                      "Isha  Jamaat"};
    const int base[11] = {290, 320, 380, 720, 780, 930, 960, 1090, 1095, 1180, 1200};
    for (int d = 1; d <= 31; ++d) {
        QString line = QString::number(d) + "  " +
                       QStringList{"Sat", "Sun", "Mon", "Tue", "Wed", "Thu", "Fri"}[d % 7];
        for (int i = 0; i < 11; ++i) {
            const int m = base[i] + (i % 2 ? 7 : -3) * d / 4 + (i == 4 ? d % 3 * 5 : 0);
            int h = m / 60;
            if (s.twelveHour && h > 12) h -= 12;
            line += QString::asprintf("  %d:%02d", h, m % 60);
            if (s.marker) line += m < 720 ? " am" : " pm";
        }
        lines << line;
    }
    return lines;
}

// Draws the lines as a table: one cell per word-group, columns aligned.
void paintSheet(QPainter& p, const Sheet& s, const QStringList& lines, QSize page) {
    p.fillRect(QRect(QPoint(), page), Qt::white);
    p.setPen(Qt::black);
    QFont font(s.font);
    font.setPixelSize(s.pixels);
    p.setFont(font);
    const int rowHeight = s.pixels * 17 / 10;
    const int margin = s.pixels * 2;
    for (int r = 0; r < lines.size(); ++r) {
        const int y = margin + (r + 1) * rowHeight;
        const QStringList cells = lines[r].split("  ");
        if (r < 2) {
            p.drawText(margin, y, cells.join("   "));
            continue;
        }
        p.drawLine(margin, y + rowHeight / 4, page.width() - margin, y + rowHeight / 4);
        const int width = (page.width() - 2 * margin) / int(cells.size());
        for (int c = 0; s.grid && c <= cells.size(); ++c)
            p.drawLine(margin + c * width, y - rowHeight * 3 / 4, margin + c * width,
                       y + rowHeight / 4);
        for (int c = 0; c < cells.size(); ++c)
            p.drawText(QRect(margin + c * width, y - rowHeight, width, rowHeight), Qt::AlignCenter,
                       cells[c]);
    }
}

QString render(const Sheet& s, const QStringList& lines, const QString& dir) {
    const QSize page(s.pixels * (s.marker ? 90 : 66), s.pixels * 64);
    if (s.pdf) {
        const QString path = dir + "/sheet.pdf";
        QPdfWriter writer(path);
        writer.setResolution(150);
        writer.setPageSize(QPageSize(QSizeF(page) / 150.0, QPageSize::Inch));
        writer.setPageMargins({});
        QPainter p(&writer);
        paintSheet(p, s, lines, page);
        return path;
    }
    QImage image(page, QImage::Format_RGB32);
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        if (s.tilt) {
            p.translate(page.width() / 2.0, page.height() / 2.0);
            p.rotate(s.tilt);
            p.translate(-page.width() / 2.0, -page.height() / 2.0);
        }
        paintSheet(p, s, lines, page);
        if (s.degraded) { // light falling from one side
            QLinearGradient shade(0, 0, page.width(), page.height());
            shade.setColorAt(0, QColor(0, 0, 0, 0));
            shade.setColorAt(1, QColor(40, 30, 0, 110));
            p.fillRect(image.rect(), shade);
        }
    }
    if (s.degraded) // out of focus: down and up again
        image = image.scaled(page / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                    .scaled(page, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QString path = dir + (s.degraded ? "/sheet.jpg" : "/sheet.png");
    image.save(path, nullptr, s.degraded ? 80 : -1);
    return path;
}

// Share of day × prayer jamaat cells that come out exactly as printed.
double cellsRight(const QStringList& truth, const QStringList& read) {
    TimetableImportModel expected, got;
    expected.setText(truth.join('\n'));
    got.setText(read.join('\n'));
    // The month is the user's to confirm; only the cells are measured here.
    got.setMonth(expected.month());
    got.setYear(expected.year());
    const DayTable want = expected.days();
    const DayTable have = got.days();
    int right = 0, all = 0;
    for (auto day = want.begin(); day != want.end(); ++day)
        for (auto cell = day->begin(); cell != day->end(); ++cell, ++all)
            right += have.value(day.key()).value(cell.key()) == cell.value();
    EXPECT_EQ(all, 31 * 5);
    return double(right) / all;
}

} // namespace

TEST(TimetableOcrTest, EveryJamaatCellOfDrawnSheetsIsReadBackAndFilesWithoutATimetableGiveNoLines) {
    // clang-format off
    const Sheet sheets[] = {
        {"clean sans 24-hour", "DejaVu Sans", 26, false, false},
        {"clean serif 12-hour", "Nimbus Roman", 30, true, false},
        {"clean small am/pm screenshot", "Noto Sans", 16, true, true},
        {"clean mono am/pm", "DejaVu Sans Mono", 24, true, true},
        {"pdf serif, ruled", "C059", 22, true, false, 0, false, true, 1.0, true},
        {"photo tilted 1 degree", "Nimbus Sans", 28, false, false, 1.0, false, false, 0.98},
        {"photo blurred, shaded, ruled", "DejaVu Serif", 30, true, false, 0, true, false, 0.98, true},
        {"photo tilted, blurred, am/pm", "Noto Sans", 30, true, true, -1.0, true, false, 0.98}};
    // clang-format on
    QTemporaryDir dir;
    for (const Sheet& s : sheets) {
        const QStringList truth = truthLines(s);
        const QString path = render(s, truth, dir.path());
        QElapsedTimer timer;
        timer.start();
        const QStringList read = TimetableOCR::readFile(path);
        const double share = cellsRight(truth, read);
        std::printf("%-32s %5.1f %% of cells right, %lld ms\n", s.name, share * 100,
                    timer.elapsed());
        EXPECT_GE(share, s.floor) << s.name << "\n" << read.join('\n').toStdString();
    }

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
