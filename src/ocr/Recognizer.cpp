#include "ocr/Recognizer.h"

#include "base/Log.h"
#include "ocr/PageImage.h"
#include "timetable/OcrLines.h"

#include <QRegularExpression>
#include <algorithm>
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

// A gap wider than most of a character's height is no space between words of one cell.
bool cellsApart(QRect word, QRect next) {
    return !word.isNull() && next.left() - word.right() > word.height() * 4 / 5;
}
// One word's characters as the cells they stand in, when the gaps part a time from what
// stands beside it. Anything else stays whole: the boxes of single characters are rough, and a
// garbled cell is read again as a whole.
QList<Recognizer::Word> cells(const QList<Recognizer::Word>& symbols) {
    QList<Recognizer::Word> pieces;
    Recognizer::Word word, whole;
    auto finish = [&] {
        word.text = word.text.trimmed();
        if (!word.text.isEmpty()) pieces.append(word);
        word = {};
    };
    for (const Recognizer::Word& symbol : symbols) {
        if (cellsApart(word.box, symbol.box)) finish();
        word.text += symbol.text;
        word.box = word.box.isNull() ? symbol.box : word.box.united(symbol.box);
        whole.text += symbol.text;
        whole.box = whole.box.isNull() ? symbol.box : whole.box.united(symbol.box);
    }
    finish();
    whole.text = whole.text.trimmed();
    const bool parted = pieces.size() > 1 && !OcrLines::isTime(whole.text) &&
                        std::any_of(pieces.begin(), pieces.end(), [](const Recognizer::Word& w) {
                            return OcrLines::isTime(w.text);
                        });
    if (parted) return pieces;
    return whole.text.isEmpty() ? QList<Recognizer::Word>{} : QList<Recognizer::Word>{whole};
}

// "5 15" as one time when its two halves stand closer than cells do: small print loses the
// dot or colon between them.
QList<Recognizer::Word> withTimesWhole(const QList<Recognizer::Word>& words) {
    static const QRegularExpression hours(QStringLiteral("^[012]?\\d$"));
    static const QRegularExpression minutes(QStringLiteral("^[0-5]\\d$"));
    QList<Recognizer::Word> whole;
    for (const Recognizer::Word& word : words) {
        if (!whole.isEmpty()) {
            Recognizer::Word& last = whole.last();
            const bool sameLine =
                word.box.top() < last.box.center().y() && last.box.center().y() < word.box.bottom();
            if (sameLine && hours.match(last.text).hasMatch() &&
                minutes.match(word.text).hasMatch() && !cellsApart(last.box, word.box)) {
                last.text += u':' + word.text;
                last.box = last.box.united(word.box);
                continue;
            }
        }
        whole.append(word);
    }
    return whole;
}
} // namespace

bool Recognizer::load() {
    const std::vector<std::string> names{"load_system_dawg", "load_freq_dawg"};
    const std::vector<std::string> values{"0", "0"};
    if (api_.Init(nullptr, "eng", tesseract::OEM_LSTM_ONLY, nullptr, 0, &names, &values, false) !=
        0) {
        logLine(lcOcr,
                QStringLiteral("Tarvanel: text recognition is not available (no English model)"));
        return false;
    }
    // Tesseract's diagnostics (statistics of an empty cell) are no use in the log, nor is
    // Leptonica's complaint about a page's background with holes at its edge, which it fills
    // all the same. Once for the process: the setting is Leptonica's global.
    api_.SetVariable("debug_file", "/dev/null");
    [[maybe_unused]] static const int quiet = setMsgSeverity(L_SEVERITY_NONE);
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
    if (!stopped()) logLine(lcOcr, QStringLiteral("Tarvanel: text recognition failed"));
    return false;
}

QList<Recognizer::Word> Recognizer::words(Pix* page, tesseract::PageSegMode mode,
                                          Threshold threshold) {
    api_.SetVariable("thresholding_method", threshold == Threshold::Local ? "2" : "0");
    api_.SetPageSegMode(mode);
    api_.SetImage(page);
    api_.SetSourceResolution(300);
    if (!recognize()) return {};
    const std::unique_ptr<tesseract::ResultIterator> it(api_.GetIterator());
    if (!it || it->Empty(tesseract::RIL_SYMBOL)) return {};
    // Built from the characters: the recogniser joins cells of a tight table into one word
    // ("54:20" for day 5 and 4:20), and the gap between them tells them apart again.
    QList<Word> words;
    QList<Word> symbols; // of the word being read
    do {
        if (it->IsAtBeginningOf(tesseract::RIL_WORD)) {
            words << cells(symbols);
            symbols.clear();
        }
        const std::unique_ptr<char[]> text(it->GetUTF8Text(tesseract::RIL_SYMBOL));
        int left, top, right, bottom;
        if (text && it->BoundingBox(tesseract::RIL_SYMBOL, &left, &top, &right, &bottom))
            symbols.append(
                {QString::fromUtf8(text.get()), QRect(QPoint(left, top), QPoint(right, bottom))});
    } while (it->Next(tesseract::RIL_SYMBOL));
    words << cells(symbols);
    return withTimesWhole(words);
}

QString Recognizer::reread(Pix* page, QRect box, const char* allowed, int scale) {
    // Tesseract's local threshold fails on a crop a few pixels across, and nothing that small
    // holds a time or a day.
    constexpr int smallest = 8;
    if (box.width() < smallest || box.height() < smallest) return {};
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
