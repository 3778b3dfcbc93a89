#pragma once
// One loaded English Tesseract model, used for the passes over one prepared page.
#include <QList>
#include <QRect>
#include <QString>
#include <functional>
#include <tesseract/baseapi.h>

struct Pix;

namespace tarvanel {

class Recognizer {
public:
    struct Word {
        QString text;
        QRect box; // pixels of the page, y down
    };

    // How the page is made black and white: Sauvola's local threshold copes with light that
    // varies across the page; Otsu's one threshold for the whole page, evened already, keeps
    // whole the strokes that the local one breaks where a rule was painted out.
    enum class Threshold { Local, Global };

    // False (one log line) when the model cannot be loaded.
    bool load();
    // Every word of the page in reading order of the given layout; the cells read again after
    // it are made black and white the same way.
    QList<Word> words(Pix* page, tesseract::PageSegMode mode, Threshold threshold);
    // What one part of the page says when read with only the characters `allowed`, enlarged
    // `scale` times; the pass for a cell whose first reading is doubtful.
    QString reread(Pix* page, QRect box, const char* allowed, int scale);

    // Asked between words; true ends the recognition under way and every later one at once.
    void stopWhen(std::function<bool()> stop) { stop_ = std::move(stop); }
    bool stopped() const { return stop_ && stop_(); }

private:
    bool recognize();

    tesseract::TessBaseAPI api_;
    std::function<bool()> stop_;
};

} // namespace tarvanel
