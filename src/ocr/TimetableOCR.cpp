#include "ocr/TimetableOCR.h"

#include "ocr/PageImage.h"
#include "ocr/Recognizer.h"
#include "ocr/SheetReader.h"
#include "timetable/OcrLines.h"
#include "timetable/TimetableParser.h"

#include <QFileInfo>
#include <QFutureWatcher>
#include <QtConcurrent>
#include <leptonica/allheaders.h>
#include <unistd.h>

namespace tarvanel {
namespace TimetableOCR {

namespace {

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

QList<RecognizedItem> relative(const QList<Recognizer::Word>& words, Pix* page) {
    QList<RecognizedItem> items;
    for (const Recognizer::Word& w : words)
        items.append(
            {w.text, OcrLines::relativeBox(w.box.left(), w.box.top(), w.box.right(), w.box.bottom(),
                                           pixGetWidth(page), pixGetHeight(page))});
    return items;
}

// Reads again, with only a time's or a day's characters allowed, the words that stand in the
// table's time and day columns but read as something else, or stand apart from the days
// around them.
void repair(QList<RecognizedItem>& items, const QList<Recognizer::Word>& words,
            Recognizer& recognizer, Pix* page) {
    const QByteArray timeCharacters = OcrLines::timeCharacters(items).toLatin1();
    const QRect whole(0, 0, pixGetWidth(page), pixGetHeight(page));
    for (const OcrLines::Doubt& doubt : OcrLines::doubtful(items)) {
        QString& text = items[doubt.item].text;
        const bool time = doubt.kind == OcrLines::Doubt::Time;
        if (!time && doubt.expected > 0) { // the count says it; no need to look again
            text = OcrLines::settle(doubt, text, {});
            continue;
        }
        const QRect box = words[doubt.item].box;
        const int margin = box.height() / 3;
        const QRect area = box.adjusted(-margin, -margin, margin, margin).intersected(whole);
        // Some print reads right only larger (a serif 4 passes for an A).
        for (int scale : {1, 2}) {
            const QString second = recognizer.reread(
                page, area, time ? timeCharacters.constData() : "0123456789", scale);
            const QString kept = OcrLines::settle(doubt, text, second);
            if (kept == text) continue;
            text = kept;
            break;
        }
    }
}

QStringList read(Recognizer& recognizer, Pix* page, tesseract::PageSegMode mode,
                 QList<TextMark>& marks) {
    const QList<Recognizer::Word> words = recognizer.words(page, mode);
    QList<RecognizedItem> items = relative(words, page);
    const QList<RecognizedItem> first = items;
    repair(items, words, recognizer, page);
    // A cell the second reading or its neighbours changed is shown to the user to check, once
    // it reads as a cell the table can use.
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i].doubtful = items[i].text != first[i].text &&
                            (OcrLines::isTime(items[i].text) || OcrLines::isDay(items[i].text));
    return OcrLines::group(items, marks);
}

} // namespace

QImage loadImage(const QString& path) {
    return PageImage::load(path);
}

QStringList lines(const QImage& image) {
    Recognizer recognizer;
    if (!recognizer.load()) return {};
    QList<TextMark> marks;
    return lines(image, recognizer, marks);
}

QStringList lines(const QImage& image, Recognizer& recognizer, QList<TextMark>& marks) {
    const PageImage::PixPtr page =
        PageImage::prepare(image, [&recognizer] { return recognizer.stopped(); });
    if (!page) return {};
    // A sheet read as one block of rows is quickest and keeps wide rows whole; a page with
    // several blocks of text needs the automatic layout.
    QList<TextMark> columnMarks, layoutMarks;
    const QStringList column =
        read(recognizer, page.get(), tesseract::PSM_SINGLE_BLOCK, columnMarks);
    const TableShape shape = tableShape(column);
    if (shape.times == 0 || shape.cells == shape.times) {
        marks = columnMarks;
        return column;
    }
    const QStringList layout = read(recognizer, page.get(), tesseract::PSM_AUTO, layoutMarks);
    const bool byLayout = tableShape(layout).cells > shape.cells;
    marks = byLayout ? layoutMarks : columnMarks;
    return byLayout ? layout : column;
}

QStringList readFile(const QString& path) {
    return SheetReader::read(path).lines;
}

void restartWithThreadLimit(char** argv) {
    if (qEnvironmentVariableIsSet("OMP_THREAD_LIMIT")) return;
    qputenv("OMP_THREAD_LIMIT", "1");
    ::execv("/proc/self/exe", argv);
}

} // namespace TimetableOCR

TimetableImageReader::~TimetableImageReader() {
    cancel();
}

void TimetableImageReader::cancel() {
    for (QFutureWatcher<SheetReading>* watcher : std::as_const(watchers_)) {
        watcher->cancel();
    }
}

void TimetableImageReader::read(const QString& path) {
    auto* watcher = new QFutureWatcher<SheetReading>(this);
    watchers_ << watcher;
    const QString fileName = QFileInfo(path).fileName();
    connect(watcher, &QFutureWatcher<SheetReading>::finished, this, [this, watcher, fileName] {
        watchers_.removeOne(watcher);
        watcher->deleteLater();
        if (!watcher->isCanceled() && watcher->future().resultCount() > 0)
            emit finished(fileName, watcher->result());
    });
    connect(watcher, &QFutureWatcher<SheetReading>::progressValueChanged, this,
            [this, watcher](int page) { emit progress(page, watcher->progressMaximum()); });
    watcher->setFuture(QtConcurrent::run([path](QPromise<SheetReading>& promise) {
        SheetReader::Hooks hooks;
        hooks.stop = [&promise] { return promise.isCanceled(); };
        hooks.progress = [&promise](int page, int pageCount) {
            promise.setProgressRange(0, pageCount);
            promise.setProgressValue(page);
        };
        promise.addResult(SheetReader::read(path, hooks));
    }));
}

} // namespace tarvanel
