// Files of several pages: PDFs read from their text layer, scanned PDFs and TIFFs through the
// recogniser, page after page, with progress, a bound on the pages and a stop.
#include "desktop/TimetableImportView.h"
#include "ocr/SheetReader.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <leptonica/allheaders.h>

using namespace tarvanel;

namespace {

constexpr int dpi = 200;
const QSize pagePixels(1650, 2340); // A4-like at 200 dpi

// A month of day numbers and eleven unmarked 12-hour times, under its title.
QStringList monthLines(int month, int year) {
    const QDate first(year, month, 1);
    QStringList lines{"Masjid Timetable " + QLocale::c().monthName(month) + " " +
                          QString::number(year),
                      "Day  Fajr  Jamaat  Sunrise  Zuhr  Jamaat  Asr  Jamaat  Maghrib  Jamaat  "
                      "Isha  Jamaat"};
    const int base[11] = {290, 320, 380, 720, 780, 930, 960, 1090, 1095, 1180, 1200};
    for (int d = 1; d <= first.daysInMonth(); ++d) {
        QString line = QString::number(d);
        for (int i = 0; i < 11; ++i) {
            const int m = base[i] + (i % 2 ? 1 : -1) * (d + month * 3) / 3;
            line += QString::asprintf("  %d:%02d", (m / 60 - 1) % 12 + 1, m % 60);
        }
        lines << line;
    }
    return lines;
}

// Title and heading as text; the day rows as a table, one cell per column.
void paintPage(QPainter& p, const QStringList& lines, QColor ink = Qt::black) {
    p.fillRect(QRect(QPoint(), pagePixels), Qt::white);
    p.setPen(ink);
    QFont font("DejaVu Sans");
    font.setPixelSize(26);
    p.setFont(font);
    const int row = 58, margin = 80;
    for (int r = 0; r < lines.size(); ++r) {
        const int y = margin + (r + 1) * row;
        const QStringList cells = lines[r].split("  ");
        if (r < 2) {
            p.drawText(margin, y, cells.join("   "));
            continue;
        }
        const int width = (pagePixels.width() - 2 * margin) / int(cells.size());
        for (int c = 0; c < cells.size(); ++c)
            p.drawText(QRect(margin + c * width, y - row, width, row), Qt::AlignCenter, cells[c]);
    }
}

QImage pageImage(const QStringList& lines) {
    QImage image(pagePixels, QImage::Format_Grayscale8);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    paintPage(p, lines);
    return image;
}

// A PDF with a text layer (as a word processor makes), or of page pictures only (as a scanner).
QString pdf(const QString& path, const QList<QStringList>& pages, bool scanned,
            QColor ink = Qt::black) {
    QPdfWriter writer(path);
    writer.setResolution(dpi);
    writer.setPageSize(QPageSize(QSizeF(pagePixels) / dpi, QPageSize::Inch));
    writer.setPageMargins({});
    QPainter p(&writer);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i > 0) writer.newPage();
        if (scanned)
            p.drawImage(0, 0, pageImage(pages[i]));
        else
            paintPage(p, pages[i], ink);
    }
    return path;
}

QString tiff(const QString& path, const QList<QStringList>& pages) {
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QImage image = pageImage(pages[i]);
        Pix* pix = pixCreate(image.width(), image.height(), 8);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                pixSetPixel(pix, x, y, image.constScanLine(y)[x]);
        pixWriteTiff(QFile::encodeName(path).constData(), pix, IFF_TIFF_ZIP, i ? "a" : "w");
        pixDestroy(&pix);
    }
    return path;
}

DayTable daysOf(const QStringList& lines) {
    TimetableImportModel model;
    model.setText(lines.join('\n'));
    return model.days();
}

// Cells of `want` that `have` holds exactly.
int cellsRight(const DayTable& want, const DayTable& have) {
    int right = 0;
    for (auto day = want.begin(); day != want.end(); ++day)
        for (auto cell = day->begin(); cell != day->end(); ++cell)
            right += have.value(day.key()).value(cell.key()) == cell.value();
    return right;
}

// Processes of this user whose command line names `file`: the sheet readers reading it.
int readersOf(const QString& file) {
    int count = 0;
    for (QDirIterator it("/proc", QDir::Dirs | QDir::NoDotAndDotDot); it.hasNext();) {
        QFile cmdline(it.next() + "/cmdline");
        if (cmdline.open(QIODevice::ReadOnly) &&
            cmdline.readAll().split('\0').contains(file.toUtf8()))
            ++count;
    }
    return count;
}

} // namespace

TEST(TimetablePagesTest, TextPdfsAreReadFromTheirTextEveryPageInOrderUpToTwelve) {
    QTemporaryDir dir;
    const QStringList march = monthLines(3, 2026), april = monthLines(4, 2026);
    const DayTable want = daysOf(march + april);
    ASSERT_EQ(want.size(), 61);

    QList<int> progress;
    SheetReader::Hooks hooks;
    hooks.progress = [&](int page, int of) { progress << page << of; };
    const SheetReading two =
        SheetReader::read(pdf(dir.filePath("two.pdf"), {march, april}, false), hooks);
    EXPECT_EQ(progress, QList<int>({1, 2, 2, 2}));
    EXPECT_EQ(std::pair(two.pagesRead, two.pageCount), std::pair(2, 2));
    EXPECT_TRUE(two.doubtful.isEmpty());
    EXPECT_EQ(two.lines.first(), "Masjid   Timetable   March   2026");
    EXPECT_EQ(daysOf(two.lines), want);
    // Text in white on white: nothing for a recogniser to see, all there in the text layer.
    EXPECT_EQ(SheetReader::read(pdf(dir.filePath("white.pdf"), {march}, false, Qt::white)).lines,
              SheetReader::read(dir.filePath("two.pdf")).lines.mid(0, march.size()));

    // A long document: its first twelve pages only, and it says how many there were.
    QList<QStringList> book;
    for (int i = 1; i <= 200; ++i)
        book << QStringList{QString("Page %1").arg(i),
                            QString("%1  5:00  1:00  4:00").arg(i % 28 + 1)};
    const SheetReading first = SheetReader::read(pdf(dir.filePath("book.pdf"), book, false));
    EXPECT_EQ(std::pair(first.pagesRead, first.pageCount), std::pair(12, 200));
    EXPECT_EQ(first.lines.size(), 24);
    EXPECT_EQ(first.lines.last(), "13   5:00   1:00   4:00");

    // Stopped before the first page: nothing.
    hooks.stop = [] { return true; };
    EXPECT_TRUE(SheetReader::read(dir.filePath("two.pdf"), hooks).lines.isEmpty());
}

TEST(TimetablePagesTest, ScannedPdfAndTiffPagesAreRecognisedOneAfterAnother) {
    QTemporaryDir dir;
    const QStringList march = monthLines(3, 2026), april = monthLines(4, 2026);
    const DayTable want = daysOf(march + april);
    for (const QString& path : {pdf(dir.filePath("scan.pdf"), {march, april}, true),
                                tiff(dir.filePath("scan.tiff"), {march, april})}) {
        const SheetReading read = SheetReader::read(path);
        EXPECT_EQ(std::pair(read.pagesRead, read.pageCount), std::pair(2, 2));
        const DayTable have = daysOf(read.lines);
        std::printf("%s: %d of %d jamaat cells right, %lld marked doubtful\n",
                    qPrintable(QFileInfo(path).fileName()), cellsRight(want, have), 61 * 5,
                    (long long)read.doubtful.size());
        EXPECT_GE(cellsRight(want, have), 61 * 5 * 98 / 100) << read.lines.join('\n').toStdString();
        EXPECT_TRUE(have.contains("2026-03-31") && have.contains("2026-04-30"));
        for (const TextMark& mark : read.doubtful)
            EXPECT_LE(mark.start + mark.length, read.lines.value(mark.line).size());
    }
}

TEST(TimetablePagesTest, TheWindowShowsEachPageAndClosingItStopsTheReading) {
    QTemporaryDir dir;
    QList<QStringList> year;
    for (int m = 1; m <= 12; ++m)
        year << monthLines(m, 2026);
    const QString scans = pdf(dir.filePath("year.pdf"), year, true);
    TimetableImportView* view = openTimetableImport(scans, {});
    QLabel* status = nullptr;
    for (auto* label : view->findChildren<QLabel*>())
        if (label->text() == "Reading year.pdf\u2026") status = label;
    ASSERT_NE(status, nullptr);
    // The event loop keeps running while the pages are read.
    EXPECT_TRUE(
        test::waitFor([&] { return status->text() == "Reading page 2 of 12\u2026"; }, 20000))
        << status->text().toStdString();
    // It is read in a process of its own, which Cancel ends at once.
    EXPECT_EQ(readersOf(scans), 1);
    QElapsedTimer cancelling;
    cancelling.start();
    for (auto* button : view->findChildren<QPushButton*>())
        if (button->text() == "Cancel") button->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(test::waitFor([&] { return readersOf(scans) == 0; }, 2000));
    EXPECT_LE(cancelling.elapsed(), 500);

    // A text PDF of two months fills both, and the status says how many pages it had.
    view = openTimetableImport(
        pdf(dir.filePath("spring.pdf"), {monthLines(3, 2026), monthLines(4, 2026)}, false), {});
    ASSERT_TRUE(test::waitFor([&] { return !view->model().reading(); }, 5000));
    EXPECT_EQ(view->model().status(), "Found 61 rows with 11 times each. Read 2 pages.");
    EXPECT_EQ(view->model().days().size(), 61);
    view->window()->close();
}
