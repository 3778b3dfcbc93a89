#include "ocr/TimetableOCR.h"

#include "ocr/PageImage.h"
#include "ocr/Recognizer.h"
#include "ocr/SheetReader.h"
#include "timetable/MonthInText.h"
#include "timetable/OcrLines.h"
#include "timetable/OcrWords.h"
#include "timetable/TimetableParser.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <climits>
#include <functional>
#include <leptonica/allheaders.h>
#include <unistd.h>

namespace tarvanel {
namespace TimetableOCR {

namespace {

// How much of a table the lines hold: the most times that rows of one width give together,
// counting only rows that name their day (a reading that lost the day column gives no day)
// and only the times that read; and how many of the times keep pace with their column. A
// printed time moves a minute or two a day, or not at all; what a poor reading takes for
// times jumps from row to row.
struct TableShape {
    int cells = 0;
    int columns = 0; // the times in each of those rows
    int times = 0;
    int steady = 0;     // within five minutes of the same column's time a row above or below
    QSet<QString> read; // each time that read, with its row's day or date and its column
};
TableShape tableShape(const QStringList& lines) {
    QMap<int, int> rowsWithCount;
    TableShape shape;
    const QList<ParsedRow> rows = TimetableParser::parse(lines);
    for (const ParsedRow& row : rows) {
        const int read = row.readTimes();
        if (row.day || row.date) ++rowsWithCount[read];
        shape.times += read;
        if (!row.day && !row.date) continue;
        const QString day = row.date ? row.date->toString(Qt::ISODate) : QString::number(*row.day);
        for (qsizetype c = 0; c < row.times.size(); ++c)
            if (row.times[c].read())
                shape.read.insert(day + u' ' + QString::number(c) + u' ' + row.times[c].label());
    }
    for (auto it = rowsWithCount.begin(); it != rowsWithCount.end(); ++it)
        if (it.value() * it.key() > shape.cells) {
            shape.cells = it.value() * it.key();
            shape.columns = it.key();
        }
    auto dial = [](const ParsedTime& t) { return (t.hour % 12) * 60 + t.minute; }; // 1:05 = 13:05
    auto near = [&](qsizetype r, qsizetype other, qsizetype c) {
        if (other < 0 || other >= rows.size() || rows[other].times.size() <= c) return false;
        const ParsedTime& a = rows[r].times[c];
        const ParsedTime& b = rows[other].times[c];
        if (!a.read() || !b.read()) return false;
        return OcrLines::words::dialDistance(dial(a), dial(b)) <= 5;
    };
    for (qsizetype r = 0; r < rows.size(); ++r)
        if (rows[r].day || rows[r].date)
            for (qsizetype c = 0; c < rows[r].times.size(); ++c)
                shape.steady += near(r, r - 1, c) || near(r, r + 1, c);
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

// "01/03/2026" from "01032026" or "0103/2026": the slashes are thin and the first to go.
QString wholeDate(const QString& word) {
    static const QRegularExpression date(
        QStringLiteral("^([0-3]\\d)[^\\d]?([01]\\d)[^\\d]?(20\\d\\d)$"));
    const QRegularExpressionMatch m = date.match(word);
    if (!m.hasMatch()) return {};
    return m.captured(1) + u'/' + m.captured(2) + u'/' + m.captured(3);
}

// The word's box cut into one box per part, each as wide as its share of the letters.
QList<Recognizer::Word> cut(const Recognizer::Word& word, const QStringList& parts) {
    QList<Recognizer::Word> pieces;
    const QRect box = word.box;
    qsizetype before = 0;
    for (const QString& part : parts) {
        if (part.isEmpty()) continue;
        const int left = box.left() + int(box.width() * before / word.text.size());
        before += part.size();
        const int right = box.left() + int(box.width() * before / word.text.size()) - 1;
        pieces.append({part, QRect(QPoint(left, box.top()), QPoint(right, box.bottom()))});
    }
    return pieces;
}

// Dates as the parser reads them: whole (see wholeDate), and "1Mar" as the day and the month it
// is printed with: a narrow space between them is easily lost, and the day is then no day to
// the parser nor to the count down the column. A weekday's name runs into the day the same way
// ("Wed25Feb", "hu12Mar" with the T lost, "Mon23").
QList<Recognizer::Word> datesTidied(const QList<Recognizer::Word>& words) {
    static const QString month =
        QStringLiteral("((%1)\\w*\\.?)")
            .arg(QString(MonthInText::shortEnglish)
                     .replace(QStringLiteral("oct"), QStringLiteral("[o0]ct")));
    static const QRegularExpression glued(QStringLiteral("^(\\S{1,3}?)") + month + u'$',
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression named(QStringLiteral("^([a-z]{2,3})([\\dlIi|]{1,2})") + month +
                                              u'$',
                                          QRegularExpression::CaseInsensitiveOption);
    // A 1 read as a letter beside a digit ("Satl0", "Monl2"); the T of Tuesday read as a J.
    static const QRegularExpression weekday(
        QStringLiteral("^(mon|[tj]ue|wed|thu|fri|sat|sun)((?=\\D?\\d)[\\dlI|]{1,2})$"),
        QRegularExpression::CaseInsensitiveOption);
    QList<Recognizer::Word> apart;
    for (const Recognizer::Word& word : words) {
        if (const QString date = wholeDate(word.text); !date.isEmpty()) {
            apart.append({date, word.box});
            continue;
        }
        if (const QRegularExpressionMatch m = named.match(word.text); m.hasMatch())
            apart << cut(word, {m.captured(1), m.captured(2), m.captured(3)});
        else if (const QRegularExpressionMatch m = weekday.match(word.text); m.hasMatch())
            apart << cut(word, {m.captured(1), OcrLines::words::asDigits(m.captured(2))});
        else if (const QRegularExpressionMatch m = glued.match(word.text); m.hasMatch())
            apart << cut(word, {m.captured(1), m.captured(2)});
        else
            apart.append(word);
    }
    return apart;
}

// Reads again, with only a time's or a day's characters allowed, the words that stand in the
// table's time and day columns but read as something else, or stand apart from the days
// around them; then, the columns learned from the rows that now read cleanly, the cells of
// those columns that still hold no time, and those where nothing was read at all. A cell that
// no reading gives a time stands as unread in its column.
void repair(QList<RecognizedItem>& items, QList<Recognizer::Word> words, Recognizer& recognizer,
            Pix* page) {
    const QByteArray timeCharacters = OcrLines::timeCharacters(items).toLatin1();
    const QRect whole(0, 0, pixGetWidth(page), pixGetHeight(page));
    QSet<qsizetype> reread;
    // Some print reads right only larger (a serif 4 passes for an A).
    auto readAgain = [&](const OcrLines::Doubt& doubt) {
        QString& text = items[doubt.item].text;
        const bool time = doubt.kind == OcrLines::Doubt::Time;
        const QRect box = words[doubt.item].box;
        const int margin = box.height() / 3;
        const QRect area = box.adjusted(-margin, -margin, margin, margin).intersected(whole);
        reread << doubt.item;
        for (int scale : {1, 2, 3}) {
            const QString second = recognizer.reread(
                page, area, time ? timeCharacters.constData() : "0123456789", scale);
            const QString kept = OcrLines::settle(doubt, text, second);
            if (kept == text) continue;
            text = kept;
            return true;
        }
        return false;
    };
    for (const OcrLines::Doubt& doubt : OcrLines::doubtful(items)) {
        if (doubt.kind == OcrLines::Doubt::Day && doubt.expected > 0) // the count says it
            items[doubt.item].text = OcrLines::settle(doubt, items[doubt.item].text, {});
        else
            readAgain(doubt);
    }
    // Day cells read again one by one may count now, and the count settles those still unread.
    for (const OcrLines::Doubt& doubt : OcrLines::dayDoubts(items))
        items[doubt.item].text = OcrLines::settle(doubt, items[doubt.item].text, {});
    // Twice: a cell settled in the first round is a clean time the second can go by.
    for (int round = 0; round < 2; ++round)
        for (OcrLines::Doubt doubt : OcrLines::columnDoubts(items)) {
            if (doubt.item < 0) {
                const QRectF at = doubt.box;
                words.append({QString(),
                              QRectF(at.left() * whole.width(), (1 - at.bottom()) * whole.height(),
                                     at.width() * whole.width(), at.height() * whole.height())
                                  .toRect()});
                items.append({QString(), at});
                doubt.item = items.size() - 1;
            }
            // What the column says counts only once the cell's own readings have had their say.
            OcrLines::Doubt alone = doubt;
            alone.above = alone.below = QString();
            QString& text = items[doubt.item].text;
            if (reread.contains(doubt.item) || !readAgain(alone))
                text = OcrLines::settle(doubt, text, text);
            if (round == 1 && !OcrLines::isTime(text)) text = QString::fromLatin1(unreadTime);
        }
}

QStringList read(Recognizer& recognizer, Pix* page, tesseract::PageSegMode mode,
                 Recognizer::Threshold threshold, QList<TextMark>& marks) {
    const QList<Recognizer::Word> words = datesTidied(recognizer.words(page, mode, threshold));
    QList<RecognizedItem> items = relative(words, page);
    const QList<RecognizedItem> first = items;
    repair(items, words, recognizer, page);
    auto cell = [](const QString& text) {
        return OcrLines::isTime(text) || text == QLatin1String(unreadTime);
    };
    // Cells read where nothing had been read are kept only as times, read or not.
    items.erase(std::remove_if(items.begin() + first.size(), items.end(),
                               [&](const RecognizedItem& item) { return !cell(item.text); }),
                items.end());
    // A cell the second reading or its neighbours changed, or one read where nothing had been,
    // is shown to the user to check, once it reads as a cell the table can use or is unread.
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i].doubtful = (i >= first.size() || items[i].text != first[i].text) &&
                            (cell(items[i].text) || OcrLines::isDay(items[i].text));
    return OcrLines::datesCounted(
        OcrLines::hoursInOrder(OcrLines::datesFromClocks(OcrLines::group(items, marks), marks),
                               marks),
        marks);
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
    const std::function<bool()> stopped = [&recognizer] { return recognizer.stopped(); };
    const PageImage::PixPtr page = PageImage::prepare(image, stopped);
    if (!page) return {};
    // A sheet read as one block of rows is quickest and keeps wide rows whole; a page with
    // several blocks of text needs the automatic layout. Each threshold reads some photos far
    // better than the other, and the table each finds tells which did.
    struct Reading {
        QStringList lines;
        QList<TextMark> marks;
        TableShape shape;
        int agreed = 0; // its times that another reading read the same
    };
    QList<Reading> taken;
    auto readAs = [&](tesseract::PageSegMode mode, Recognizer::Threshold threshold,
                      Pix* at = nullptr) {
        Reading reading;
        reading.lines = read(recognizer, at ? at : page.get(), mode, threshold, reading.marks);
        reading.shape = tableShape(reading.lines);
        taken.append(reading);
        return reading;
    };
    // A week's rows at least: a reading that found a row or two and nothing else has lost the
    // table, however cleanly those rows read.
    auto whole = [](const TableShape& shape) {
        return shape.times > 0 && shape.cells == shape.times && shape.cells >= 7 * shape.columns;
    };
    // The table with more cells, a cell that keeps pace with its column counting twice, one
    // settled from its neighbours or read again counting one less, and one no reading gave
    // counting nothing: a page read poorly fills a table with guesses and with times that jump.
    // A threshold or the automatic layout may lose a column of the table (the layout sets it
    // apart as a picture): a table with fewer cells to a row has lost one, however sure its
    // cells, unless it holds a quarter more cells in all.
    auto sure = [](const Reading& r) {
        const auto guessed = std::count_if(r.marks.begin(), r.marks.end(), [&](auto m) {
            return r.lines.value(m.line).mid(m.start, m.length) != QLatin1String(unreadTime);
        });
        return r.shape.cells + r.shape.steady + r.agreed - int(guessed);
    };
    auto better = [&](const Reading& one, const Reading& than) {
        return sure(one) > sure(than) && (one.shape.columns >= than.shape.columns ||
                                          4 * one.shape.cells >= 5 * than.shape.cells);
    };
    using Threshold = Recognizer::Threshold;
    Reading best = readAs(tesseract::PSM_SINGLE_BLOCK, Threshold::Local);
    Threshold threshold = Threshold::Local;
    if (!whole(best.shape)) {
        Reading global = readAs(tesseract::PSM_SINGLE_BLOCK, Threshold::Global);
        if (better(global, best)) {
            best = std::move(global);
            threshold = Threshold::Global;
        }
    }
    if (!whole(best.shape)) {
        Reading layout = readAs(tesseract::PSM_AUTO, threshold);
        if (better(layout, best)) best = std::move(layout);
    }
    // Still no whole table: the page at another size, then with its edges steepened, then
    // steepened harder over a shorter reach. A page that no reading has found whole yet gave the
    // first two little to choose a threshold by: the steepened page is read with the other one
    // too.
    using PageImage::Look;
    for (const Look look : {Look::Resized, Look::Sharpened, Look::SharpenedNear}) {
        if (whole(best.shape)) break;
        const PageImage::PixPtr other = PageImage::prepare(image, stopped, look);
        if (!other) continue;
        Reading reading = readAs(tesseract::PSM_SINGLE_BLOCK, threshold, other.get());
        if (better(reading, best)) best = std::move(reading);
        if (look != Look::Sharpened || whole(best.shape)) continue;
        const Threshold second =
            threshold == Threshold::Local ? Threshold::Global : Threshold::Local;
        reading = readAs(tesseract::PSM_SINGLE_BLOCK, second, other.get());
        if (better(reading, best)) best = std::move(reading);
    }
    // A page read three ways or more is judged again, each time another reading bears out
    // counting once more: a reading that fills the table with steady but wrong times (a column
    // shifted, a digit misread the same way all down) stands alone in them.
    if (taken.size() >= 3) {
        for (Reading& r : taken)
            for (const QString& time : r.shape.read)
                r.agreed += std::any_of(taken.begin(), taken.end(), [&](const Reading& other) {
                    return &other != &r && other.shape.read.contains(time);
                });
        best = taken.first();
        for (const Reading& r : taken)
            if (better(r, best)) best = r;
    }
    marks = best.marks;
    return best.lines;
}

QStringList readFile(const QString& path) {
    return SheetReader::read(path).lines;
}

void restartWithThreadLimit(char** argv) {
    if (qEnvironmentVariableIsSet("OMP_THREAD_LIMIT")) return;
    qputenv("OMP_THREAD_LIMIT", "1");
    // Through the file's own path: started as /proc/self/exe, the process would be called "exe"
    // in ps and top. The link itself serves when the file is gone (" (deleted)" in its target).
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path - 1);
    if (length > 0) {
        path[length] = '\0';
        ::execv(path, argv);
    }
    ::execv("/proc/self/exe", argv);
}

} // namespace TimetableOCR

} // namespace tarvanel
