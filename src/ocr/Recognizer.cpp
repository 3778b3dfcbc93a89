#include "ocr/Recognizer.h"

#include "ocr/PageImage.h"
#include "records/Log.h"

#include <leptonica/allheaders.h>
#include <memory>
#include <tesseract/ocrclass.h>
#include <tesseract/resultiterator.h>

namespace tarvanel {

namespace {
// A recognition never runs longer than this, whatever the page holds.
constexpr int deadlineMs = 30'000;
// Capitals that look like digits (7, 1, 2, 8, 6, 0) and begin no month name.
constexpr const char* lookalikeCapitals = "TLIZBGQ";
} // namespace

bool Recognizer::load() {
    const std::vector<std::string> names{"load_system_dawg", "load_freq_dawg"};
    const std::vector<std::string> values{"0", "0"};
    if (api_.Init(nullptr, "eng", tesseract::OEM_LSTM_ONLY, nullptr, 0, &names, &values, false) !=
        0) {
        logLine(QStringLiteral("Tarvanel: text recognition is not available (no English model)"));
        return false;
    }
    // Tesseract's diagnostics (statistics of an empty cell) are no use in the log.
    api_.SetVariable("debug_file", "/dev/null");
    // Sauvola's local threshold copes with the uneven light of a phone photo.
    api_.SetVariable("thresholding_method", "2");
    // Retrying doubtful words as white on black doubles the time and never helps a sheet.
    api_.SetVariable("tessedit_do_invert", "0");
    api_.SetVariable("tessedit_char_blacklist", lookalikeCapitals);
    return true;
}

bool Recognizer::recognize() {
    if (stopped()) return false;
    tesseract::ETEXT_DESC monitor;
    monitor.set_deadline_msecs(deadlineMs);
    if (stop_) {
        monitor.cancel_this = &stop_;
        monitor.cancel = [](void* stop, int) {
            return (*static_cast<std::function<bool()>*>(stop))();
        };
    }
    if (api_.Recognize(&monitor) == 0) return true;
    if (!stopped()) logLine(QStringLiteral("Tarvanel: text recognition failed"));
    return false;
}

QList<Recognizer::Word> Recognizer::words(Pix* page, tesseract::PageSegMode mode) {
    api_.SetPageSegMode(mode);
    api_.SetImage(page);
    api_.SetSourceResolution(300);
    if (!recognize()) return {};
    const std::unique_ptr<tesseract::ResultIterator> it(api_.GetIterator());
    if (!it) return {};
    QList<Word> words;
    do {
        const std::unique_ptr<char[]> text(it->GetUTF8Text(tesseract::RIL_WORD));
        int left, top, right, bottom;
        if (!text || !it->BoundingBox(tesseract::RIL_WORD, &left, &top, &right, &bottom)) continue;
        const QString word = QString::fromUtf8(text.get()).trimmed();
        if (!word.isEmpty()) words.append({word, QRect(QPoint(left, top), QPoint(right, bottom))});
    } while (it->Next(tesseract::RIL_WORD));
    return words;
}

QString Recognizer::reread(Pix* page, QRect box, const char* allowed, int scale) {
    Box* area = boxCreate(box.x(), box.y(), box.width(), box.height());
    PageImage::PixPtr cell(pixClipRectangle(page, area, nullptr));
    boxDestroy(&area);
    if (cell && scale > 1) cell.reset(pixScaleGrayLI(cell.get(), float(scale), float(scale)));
    if (!cell) return {};
    api_.SetVariable("tessedit_char_whitelist", allowed);
    api_.SetPageSegMode(tesseract::PSM_SINGLE_LINE);
    api_.SetImage(cell.get());
    api_.SetSourceResolution(300);
    QString text;
    if (recognize()) {
        const std::unique_ptr<char[]> utf8(api_.GetUTF8Text());
        if (utf8) text = QString::fromUtf8(utf8.get()).simplified();
    }
    api_.SetVariable("tessedit_char_whitelist", "");
    return text;
}

} // namespace tarvanel
