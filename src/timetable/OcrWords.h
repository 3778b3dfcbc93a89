#pragma once
// What the reading of one recognised word rests on, shared by finding doubtful cells and
// settling them: look-alike letters, lost colons and the twelve-hour dial.
#include <QRegularExpression>
#include <QString>

namespace tarvanel::OcrLines::words {

// "448": a time whose colon went missing.
const QRegularExpression& colonless();
// A time, or one whose colon went missing.
bool isTimeLike(const QString& word);
// S for 5, O for 0, l for 1 and the like: what a blurred digit is read as without a list of
// the characters allowed.
QString asDigits(QString reading);
// Minutes on a twelve-hour dial: a sheet may print 13:05 or 1:05 for the same time.
int dialMinutes(const QString& time);
int dialDistance(int a, int b);

} // namespace tarvanel::OcrLines::words
