#include "ocr/SheetReader.h"

#include "ocr/PageImage.h"
#include "ocr/Recognizer.h"
#include "ocr/TimetableOCR.h"

#include <QFileInfo>
#include <QThread>
#include <atomic>
#include <memory>
#include <mutex>
#include <poppler-qt6.h>
#include <thread>
#include <vector>

namespace tarvanel::SheetReader {

namespace {

// Pages are recognised side by side, each reader with a model and a page of its own (some
// 120 MB together at 300 dpi): three keep twelve pages well within 15 s and the peak near 400 MB.
constexpr int maxReaders = 3;

// Where the pages come from. Both calls are made one at a time (a PDF document serves one
// thread); the recognition that follows runs in parallel.
struct Pages {
    int count = 0; // in the file
    // A page's text layer; empty for a page without one.
    std::function<QStringList(int)> text = [](int) { return QStringList(); };
    std::function<QImage(int)> image;
};

struct PageText {
    QStringList lines;
    QList<TextMark> doubtful;
};

// One reader's pages, taken in turn from the shared counter.
class PageWorker {
public:
    PageWorker(const Pages& pages, const Hooks& hooks) : pages_(pages), hooks_(hooks) {}

    void run(std::atomic_int& next, int last, std::mutex& file, std::vector<PageText>& out,
             const std::function<void()>& pageDone) {
        for (int i = next++; i < last; i = next++) {
            if (hooks_.stop && hooks_.stop()) return;
            QStringList text;
            QImage image;
            {
                const std::lock_guard lock(file);
                text = pages_.text(i);
                if (text.isEmpty()) image = pages_.image(i);
            }
            if (text.isEmpty() && !image.isNull() && recognizer())
                text = TimetableOCR::lines(image, *recognizer_, out[size_t(i)].doubtful);
            out[size_t(i)].lines = text;
            pageDone();
        }
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

    const Pages& pages_;
    const Hooks& hooks_;
    std::unique_ptr<Recognizer> recognizer_;
    bool failed_ = false;
};

SheetReading readPages(const Pages& pages, const Hooks& hooks) {
    const int last = std::min(pages.count, maxPages);
    if (last < 1) return {};
    std::vector<PageText> out(static_cast<size_t>(last));
    std::atomic_int next = 0;
    std::mutex file, progress;
    int done = 0, reported = 0;
    auto report = [&] { // "page k of n": the first page not yet finished
        const std::lock_guard lock(progress);
        const int page = std::min(done + 1, last);
        if (page != reported && hooks.progress) hooks.progress(page, last);
        reported = page;
    };
    auto pageDone = [&] {
        {
            const std::lock_guard lock(progress);
            ++done;
        }
        report();
    };
    report();
    const int readers = std::clamp(QThread::idealThreadCount(), 1, std::min(maxReaders, last));
    std::vector<std::thread> helpers;
    std::vector<std::unique_ptr<PageWorker>> workers;
    for (int r = 0; r < readers; ++r)
        workers.push_back(std::make_unique<PageWorker>(pages, hooks));
    for (int r = 1; r < readers; ++r)
        helpers.emplace_back([&, r] { workers[size_t(r)]->run(next, last, file, out, pageDone); });
    workers[0]->run(next, last, file, out, pageDone);
    for (std::thread& helper : helpers)
        helper.join();
    if (hooks.stop && hooks.stop()) return {};

    SheetReading reading;
    for (const PageText& page : out) {
        for (TextMark mark : page.doubtful) {
            mark.line += int(reading.lines.size());
            reading.doubtful << mark;
        }
        reading.lines += page.lines;
    }
    reading.pagesRead = last;
    reading.pageCount = pages.count;
    return reading;
}

SheetReading readPdf(const QString& path, const Hooks& hooks) {
    const std::unique_ptr<Poppler::Document> doc = Poppler::Document::load(path);
    if (!doc || doc->isLocked() || doc->numPages() < 1) return {};
    doc->setRenderHint(Poppler::Document::Antialiasing);
    doc->setRenderHint(Poppler::Document::TextAntialiasing);
    Pages pages;
    pages.count = doc->numPages();
    pages.text = [&](int i) {
        const std::unique_ptr<Poppler::Page> page = doc->page(i);
        return page ? textLines(*page) : QStringList();
    };
    pages.image = [&](int i) {
        const std::unique_ptr<Poppler::Page> page = doc->page(i);
        return page ? PageImage::render(*page) : QImage();
    };
    return readPages(pages, hooks);
}

} // namespace

SheetReading read(const QString& path, const Hooks& hooks) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("pdf")) return readPdf(path, hooks);
    Pages pages;
    if (suffix == QLatin1String("tif") || suffix == QLatin1String("tiff")) {
        pages.count = PageImage::tiffPageCount(path);
        pages.image = [&path](int i) { return PageImage::tiffPage(path, i); };
    } else {
        pages.count = 1;
        pages.image = [&path](int) { return PageImage::load(path); };
    }
    return readPages(pages, hooks);
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
