#include "ocr/SheetReader.h"

#include "ocr/PageImage.h"
#include "ocr/Recognizer.h"
#include "ocr/TimetableOCR.h"

#include <QFileInfo>
#include <memory>
#include <optional>
#include <poppler-qt6.h>

namespace tarvanel::SheetReader {

namespace {

// Reads the pages of one file into one text, loading the recogniser only for the first page
// that needs it.
class Reading {
public:
    explicit Reading(const Hooks& hooks) : hooks_(hooks) {}

    bool stopped() const { return hooks_.stop && hooks_.stop(); }

    // False when the read was stopped before the page.
    bool startPage(int index, int pageCount) {
        if (stopped()) return false;
        if (hooks_.progress) hooks_.progress(index + 1, pageCount);
        return true;
    }

    void addText(const QStringList& lines) {
        out_.lines += lines;
        ++out_.pagesRead;
    }

    void addImage(const QImage& image) {
        QList<TextMark> marks;
        QStringList lines;
        if (!image.isNull() && recognizer())
            lines = TimetableOCR::lines(image, *recognizer_, marks);
        for (TextMark& mark : marks)
            mark.line += int(out_.lines.size());
        out_.doubtful += marks;
        addText(lines);
    }

    SheetReading finish(int pageCount) {
        if (stopped()) return {};
        out_.pageCount = pageCount;
        return out_;
    }

private:
    Recognizer* recognizer() {
        if (!recognizer_) {
            recognizer_ = std::make_unique<Recognizer>();
            recognizer_->stopWhen(hooks_.stop);
            if (!recognizer_->load()) failed_ = true;
        }
        return failed_ ? nullptr : recognizer_.get();
    }

    const Hooks& hooks_;
    SheetReading out_;
    std::unique_ptr<Recognizer> recognizer_;
    bool failed_ = false;
};

SheetReading readPdf(const QString& path, Reading& reading) {
    const std::unique_ptr<Poppler::Document> doc = Poppler::Document::load(path);
    if (!doc || doc->isLocked() || doc->numPages() < 1) return {};
    doc->setRenderHint(Poppler::Document::Antialiasing);
    doc->setRenderHint(Poppler::Document::TextAntialiasing);
    const int pages = std::min(doc->numPages(), maxPages);
    for (int i = 0; i < pages; ++i) {
        if (!reading.startPage(i, pages)) break;
        const std::unique_ptr<Poppler::Page> page = doc->page(i);
        if (!page) {
            reading.addText({});
            continue;
        }
        const QStringList text = textLines(*page);
        if (text.isEmpty())
            reading.addImage(PageImage::render(*page));
        else
            reading.addText(text);
    }
    return reading.finish(doc->numPages());
}

SheetReading readTiff(const QString& path, Reading& reading) {
    const int count = PageImage::tiffPageCount(path);
    const int pages = std::min(count, maxPages);
    for (int i = 0; i < pages; ++i) {
        if (!reading.startPage(i, pages)) break;
        reading.addImage(PageImage::tiffPage(path, i));
    }
    return reading.finish(count);
}

} // namespace

SheetReading read(const QString& path, const Hooks& hooks) {
    Reading reading(hooks);
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("pdf")) return readPdf(path, reading);
    if (suffix == QLatin1String("tif") || suffix == QLatin1String("tiff"))
        return readTiff(path, reading);
    if (!reading.startPage(0, 1)) return {};
    reading.addImage(PageImage::load(path));
    return reading.finish(1);
}

QStringList textLines(const Poppler::Page& page) {
    const QSizeF size = page.pageSizeF();
    QList<RecognizedItem> items;
    bool readable = false;
    for (const std::unique_ptr<Poppler::TextBox>& word : page.textList()) {
        const QString text = word->text().trimmed();
        if (text.isEmpty()) continue;
        readable = readable || std::any_of(text.begin(), text.end(),
                                           [](QChar c) { return c.isLetterOrNumber(); });
        items.append({text, OcrLines::relativeBox(word->boundingBox(), size)});
    }
    return readable ? OcrLines::group(items) : QStringList();
}

} // namespace tarvanel::SheetReader
