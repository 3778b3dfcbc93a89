#pragma once
// Recognised words of an image grouped into the text lines of the sheet they came from.
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace tarvanel {

struct RecognizedItem {
    QString text;
    // Relative to the image (0..1 on both axes) with the vertical axis pointing up:
    // y is the bottom edge.
    QRectF box;
    bool doubtful = false; // read again, or settled from the neighbouring rows
};

// A stretch of one line of text: a cell whose reading was doubtful.
struct TextMark {
    int line = 0;
    int start = 0;
    int length = 0;
    bool operator==(const TextMark&) const = default;
};

// What reading a file gave: its text lines, top to bottom and page after page, the cells
// among them that were settled from their neighbours, and how many pages were read of how many.
struct SheetReading {
    QStringList lines;
    QList<TextMark> doubtful;
    int pagesRead = 0;
    int pageCount = 0;
};

namespace OcrLines {

// Top to bottom; an item joins a line when its vertical middle lies within 0.6 of the typical
// (median) item height of the line's first item; a line's items are joined left to right with
// three spaces.
QStringList group(const QList<RecognizedItem>& items);
// The same lines, with where each item marked `doubtful` ended up in them.
QStringList group(const QList<RecognizedItem>& items, QList<TextMark>& marks);

// A word that stands where a table's times or day numbers stand but does not read as one;
// worth reading again with only the characters those are written with.
struct Doubt {
    enum Kind { Time, Day };
    qsizetype item;
    Kind kind;
    // What the neighbouring rows say it should be: minutes on a twelve-hour dial for a time
    // that stands apart from the days around it, the day the count gives for a day number;
    // -1 when they say nothing.
    int expected = -1;
    // For a time: what the nearest rows above and below it both read in its column, when they
    // agree (a masjid keeps a jamaat time for days on end); empty otherwise.
    QString agreed = {};
    // For a time standing in a column that holds a time in every row read cleanly, in a row
    // short of times: the clean times nearest above and below it in that column (empty where
    // there is none).
    QString above = {}, below = {};
    // Where the cell stands when nothing was read there at all (`item` is then -1), in the
    // items' coordinates.
    QRectF box = {};
    // How many rows away `above` and `below` stand.
    int aboveRows = 1, belowRows = 1;
};
QList<Doubt> doubtful(const QList<RecognizedItem>& items);
// The day cells the count of the table's days settles; meant for after a day column read too
// poorly to count has been read again cell by cell.
QList<Doubt> dayDoubts(const QList<RecognizedItem>& items);
// The cells of the table's time columns that hold no time, in the rows that read fewer times
// than the rows read cleanly: a word that reads as no time, or a place where nothing was read
// (`item` -1); and clean times the column's times around them say were misread (`agreed`). Meant
// for items already settled one by one, so that the columns are learned from as many clean rows as
// there can be.
QList<Doubt> columnDoubts(const QList<RecognizedItem>& items);
// The text to keep for a doubtful item read `first` and then, with fewer characters allowed,
// `second`: a second reading that is no time or day never wins, nor one further from what the
// neighbours say; a day the count gives wins over both readings.
QString settle(const Doubt& doubt, const QString& first, const QString& second);

// The lines with the one time that breaks a row's order of the day (a day's prayers, left to
// right, span less than a day on the twelve-hour dial) given the hour that restores it, its
// minutes kept; the cells changed are added to `marks`.
QStringList hoursInOrder(QStringList lines, QList<TextMark>& marks);
// The lines with a day and month read as a clock ("01:02" for 01/02, its slash thin) written as
// a date: a column that stands first, or after the weekday, whose minutes keep one month while
// its hours count a day a row (on a third of rows or more: small print misreads the rest), as
// no prayer's column does. The dates written are added to `marks`.
QStringList datesFromClocks(QStringList lines, QList<TextMark>& marks);
// The lines with full dates down the first column counted up a day a row: one that is
// unreadable, or off the count without the row below going on from it, is the day after the
// row above it; a short run at the top read ahead of the rows below is counted back from them.
// The dates written are added to `marks`.
QStringList datesCounted(QStringList lines, QList<TextMark>& marks);
// The characters the page's clean times are written with: digits, separators and the letters
// of its am/pm markers, in the case the page prints them.
QString timeCharacters(const QList<RecognizedItem>& items);

// One clock time ("5:12", "13.05", "5:12pm", "5:12 am") or one day of the month, whole.
bool isTime(const QString& word);
bool isDay(const QString& word);

// A box in pixels (y down, as recognisers report it) made image-relative with y up.
QRectF relativeBox(int left, int top, int right, int bottom, int width, int height);
QRectF relativeBox(const QRectF& box, const QSizeF& page);

} // namespace OcrLines
} // namespace tarvanel
