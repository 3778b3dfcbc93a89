#include "ocr/TimetableOCR.h"

#include "records/Log.h"
#include "timetable/OcrLines.h"
#include "timetable/TimetableParser.h"

#include <QFileInfo>
#include <QFutureWatcher>
#include <QImageReader>
#include <QPainter>
#include <QPointer>
#include <QtConcurrent>
#include <cmath>
#include <limits>
#include <memory>
#include <poppler-qt6.h>
#include <tesseract/baseapi.h>
#include <tesseract/ocrclass.h>
#include <tesseract/resultiterator.h>
#include <unistd.h>

namespace tarvanel {
namespace TimetableOCR {

namespace {

// Text lines lower than this are enlarged twice before recognition (a small screenshot);
// larger text reads worse when enlarged, the smoothing blurs its strokes.
constexpr int smallLinePixels = 18;
// A recognition never runs longer than this, whatever the image holds.
constexpr int deadlineMs = 30'000;

QSize boundedSize(QSize size) {
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels <= maxPixels) return size;
    const double f = std::sqrt(double(maxPixels) / double(pixels));
    return QSize(std::max(1, int(size.width() * f)), std::max(1, int(size.height() * f)));
}

QImage loadPdfPage(const QString& path) {
    const std::unique_ptr<Poppler::Document> doc = Poppler::Document::load(path);
    if (!doc || doc->isLocked() || doc->numPages() < 1) return {};
    const std::unique_ptr<Poppler::Page> page = doc->page(0);
    if (!page) return {};
    doc->setRenderHint(Poppler::Document::Antialiasing);
    doc->setRenderHint(Poppler::Document::TextAntialiasing);
    const QSizeF points = page->pageSizeF(); // 1/72 inch
    double dpi = 300;
    const double pixels = points.width() * points.height() * (dpi / 72) * (dpi / 72);
    if (pixels > double(maxPixels)) dpi *= std::sqrt(double(maxPixels) / pixels);
    return page->renderToImage(dpi, dpi);
}

// Grey, opaque (a transparent screenshot would turn black), at a size Tesseract reads well.
QImage prepared(const QImage& image) {
    QImage grey(image.size(), QImage::Format_RGB32);
    grey.fill(Qt::white);
    {
        QPainter painter(&grey);
        painter.drawImage(0, 0, image);
    }
    return grey.convertToFormat(QImage::Format_Grayscale8);
}

// One loaded English model for the passes over one image.
class Recognizer {
public:
    bool load() {
        const std::vector<std::string> names{"load_system_dawg", "load_freq_dawg"};
        const std::vector<std::string> values{"0", "0"};
        if (api_.Init(nullptr, "eng", tesseract::OEM_LSTM_ONLY, nullptr, 0, &names, &values,
                      false) != 0) {
            logLine(QStringLiteral("Tarvanel: text recognition is not available (no English "
                                   "model)"));
            return false;
        }
        // Sauvola's local threshold copes with the uneven light of a phone photo.
        api_.SetVariable("thresholding_method", "2");
        // Retrying doubtful words as white on black doubles the time and never helps a sheet.
        api_.SetVariable("tessedit_do_invert", "0");
        // Capitals that look like digits (7, 1, 2, 8, 6, 0) and begin no month name.
        api_.SetVariable("tessedit_char_blacklist", "TLIZBGQ");
        return true;
    }

    // The layout pass alone is quick; its text lines tell how large the print is.
    int medianLineHeight(const QImage& grey) {
        setImage(grey, tesseract::PSM_AUTO);
        const std::unique_ptr<tesseract::PageIterator> it(api_.AnalyseLayout());
        QList<int> heights;
        if (it) {
            do {
                int left, top, right, bottom;
                if (it->BoundingBox(tesseract::RIL_TEXTLINE, &left, &top, &right, &bottom))
                    heights << bottom - top;
            } while (it->Next(tesseract::RIL_TEXTLINE));
        }
        if (heights.isEmpty()) return std::numeric_limits<int>::max();
        std::sort(heights.begin(), heights.end());
        return heights[heights.size() / 2];
    }

    // Word boxes, turned back by the page's skew so that a slightly tilted photo still gives
    // level lines.
    QList<RecognizedItem> words(const QImage& grey, tesseract::PageSegMode mode) {
        setImage(grey, mode);
        tesseract::ETEXT_DESC monitor;
        monitor.set_deadline_msecs(deadlineMs);
        if (api_.Recognize(&monitor) != 0) {
            logLine(QStringLiteral("Tarvanel: text recognition failed"));
            return {};
        }
        const std::unique_ptr<tesseract::ResultIterator> it(api_.GetIterator());
        if (!it) return {};
        tesseract::Orientation orientation;
        tesseract::WritingDirection direction;
        tesseract::TextlineOrder order;
        float deskew = 0;
        it->Orientation(&orientation, &direction, &order, &deskew);
        if (std::abs(deskew) < 1e-4) deskew = baselineTilt();
        const double c = std::cos(-deskew), s = std::sin(-deskew);
        const double cx = grey.width() / 2.0, cy = grey.height() / 2.0;

        QList<RecognizedItem> items;
        do {
            const std::unique_ptr<char[]> text(it->GetUTF8Text(tesseract::RIL_WORD));
            int left, top, right, bottom;
            if (!text || !it->BoundingBox(tesseract::RIL_WORD, &left, &top, &right, &bottom))
                continue;
            const QString word = QString::fromUtf8(text.get()).trimmed();
            if (word.isEmpty()) continue;
            // Rotate the box's centre about the image's centre; keep its size.
            const double x = (left + right) / 2.0 - cx, y = (top + bottom) / 2.0 - cy;
            const double rx = cx + x * c - y * s, ry = cy + x * s + y * c;
            const int halfW = (right - left) / 2, halfH = (bottom - top) / 2;
            items.append(
                {word, OcrLines::relativeBox(int(rx) - halfW, int(ry) - halfH, int(rx) + halfW,
                                             int(ry) + halfH, grey.width(), grey.height())});
        } while (it->Next(tesseract::RIL_WORD));
        return items;
    }

private:
    // Without a page layout there is no page skew; the text lines' baselines show the tilt.
    float baselineTilt() {
        const std::unique_ptr<tesseract::ResultIterator> it(api_.GetIterator());
        QList<double> slopes;
        if (it) {
            do {
                int x1, y1, x2, y2;
                if (it->Baseline(tesseract::RIL_TEXTLINE, &x1, &y1, &x2, &y2) && x2 - x1 > 100)
                    slopes << std::atan2(double(y2 - y1), double(x2 - x1));
            } while (it->Next(tesseract::RIL_TEXTLINE));
        }
        if (slopes.isEmpty()) return 0;
        std::sort(slopes.begin(), slopes.end());
        return float(slopes[slopes.size() / 2]);
    }

    void setImage(const QImage& grey, tesseract::PageSegMode mode) {
        api_.SetPageSegMode(mode);
        api_.SetImage(grey.constBits(), grey.width(), grey.height(), 1, int(grey.bytesPerLine()));
        api_.SetSourceResolution(300);
    }

    tesseract::TessBaseAPI api_;
};

// How much of a table the lines hold: the most times that rows of one width give together.
struct TableShape {
    int cells = 0;
    int times = 0;
};
TableShape tableShape(const QStringList& lines) {
    QMap<qsizetype, int> rowsWithCount;
    TableShape shape;
    for (const ParsedRow& row : TimetableParser::parse(lines)) {
        ++rowsWithCount[row.times.size()];
        shape.times += int(row.times.size());
    }
    for (auto it = rowsWithCount.begin(); it != rowsWithCount.end(); ++it)
        shape.cells = std::max(shape.cells, it.value() * int(it.key()));
    return shape;
}

} // namespace

QImage loadImage(const QString& path) {
    if (QFileInfo(path).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0)
        return loadPdfPage(path);
    QImageReader reader(path);
    reader.setAutoTransform(true); // a phone photo's orientation tag
    const QSize size = reader.size();
    if (size.isValid()) reader.setScaledSize(boundedSize(size));
    QImage image = reader.read();
    if (image.isNull()) return {};
    if (qint64(image.width()) * image.height() > maxPixels)
        image =
            image.scaled(boundedSize(image.size()), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

QStringList lines(const QImage& image) {
    if (image.isNull()) return {};
    Recognizer recognizer;
    if (!recognizer.load()) return {};
    QImage grey = prepared(image);
    if (qint64(grey.width()) * grey.height() * 4 <= maxPixels &&
        recognizer.medianLineHeight(grey) < smallLinePixels)
        grey = grey.scaled(grey.size() * 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // A sheet read as one column of rows is quickest and keeps wide rows whole; a tilted photo
    // needs the automatic layout, which also measures the tilt that the grouping takes out.
    const QStringList column =
        OcrLines::group(recognizer.words(grey, tesseract::PSM_SINGLE_COLUMN));
    const TableShape shape = tableShape(column);
    if (shape.times == 0 || shape.cells == shape.times) return column;
    const QStringList page = OcrLines::group(recognizer.words(grey, tesseract::PSM_AUTO));
    return tableShape(page).cells > shape.cells ? page : column;
}

QStringList readFile(const QString& path) {
    return lines(loadImage(path));
}

void restartWithThreadLimit(char** argv) {
    if (qEnvironmentVariableIsSet("OMP_THREAD_LIMIT")) return;
    qputenv("OMP_THREAD_LIMIT", "1");
    ::execv("/proc/self/exe", argv);
}

} // namespace TimetableOCR

void TimetableImageReader::read(const QString& path) {
    auto* watcher = new QFutureWatcher<QStringList>(this);
    const QString fileName = QFileInfo(path).fileName();
    connect(watcher, &QFutureWatcher<QStringList>::finished, this, [this, watcher, fileName] {
        watcher->deleteLater();
        emit finished(fileName, watcher->result());
    });
    watcher->setFuture(QtConcurrent::run(&TimetableOCR::readFile, path));
}

} // namespace tarvanel
