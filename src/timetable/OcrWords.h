#pragma once
// What the reading of one recognised word rests on, shared by finding doubtful cells and
// settling them: look-alike letters, lost colons and the twelve-hour dial.
#include "timetable/OcrLines.h"

#include <QList>
#include <QRectF>
#include <QRegularExpression>
#include <QString>

namespace tarvanel::OcrLines::words {

// "448": a time whose colon went missing.
const QRegularExpression& colonless();
// A time, or one whose colon went missing.
bool isTimeLike(const QString& word);
// The words of `line` (item indices) that are times or lack only their colon.
qsizetype timesIn(const QList<RecognizedItem>& items, const QList<qsizetype>& line);
// Four letters or more and no digit: a footer's or a heading's word ("Jumu'ah"), never a
// misread day ("1440" is 14 run into 4:40).
bool wordOnly(const QString& text);
// S for 5, O for 0, l for 1 and the like: what a blurred digit is read as without a list of
// the characters allowed.
QString asDigits(QString reading);
// Minutes on a twelve-hour dial: a sheet may print 13:05 or 1:05 for the same time.
int dialMinutes(const QString& time);
int dialDistance(int a, int b);
// Two digits that print as each other in a blurred or small type (0 and 8, 1 and 7).
bool lookalike(QChar a, QChar b);
// A clean time that reads as `agreed` misread: only its hour off, by an hour or more (8:00
// for 5:00, 11:30 for 1:30), or one digit taken for a look-alike (19:36 for 19:30, 7.45 for
// 7:15: a dot and a colon are the same separator).
bool misread(QString time, QString agreed);
// `time` with the hour of `near` (or one either side) that puts it between `low` and `high`
// (dial minutes, low first): a time read with its hour alone wrong, as 6:20 between 5:18 and
// 5:22. Empty when no such hour does.
QString withHourNear(const QString& time, const QString& near, int low, int high);

// The day numbers down the first column of `table` (lines of `lines`) that are no number or
// break the count between their neighbours, with the day the count gives (-1 when it does not).
QList<Doubt> dayDoubts(const QList<RecognizedItem>& items, const QList<QList<qsizetype>>& lines,
                       const QList<qsizetype>& table);

// A cell of a time column: in a row that read fewer times than the rows read cleanly, the word
// standing in it (-1 for none), where it stands, and the clean times nearest above and below
// it in that column; or a clean time that the column's times on both sides of it say was
// misread.
struct Slot {
    qsizetype item = -1;
    QRectF box;
    QString above, below;
    int aboveRows = 1, belowRows = 1; // how many rows away each stands
};
// The cells of the table's time columns that hold no time, or a misread one (`table`: lines
// of `lines`, top to bottom, each item indices left to right), judged by the columns of the
// rows that read cleanly.
QList<Slot> emptySlots(const QList<RecognizedItem>& items, const QList<QList<qsizetype>>& lines,
                       const QList<qsizetype>& table);

} // namespace tarvanel::OcrLines::words
