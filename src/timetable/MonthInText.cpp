#include "timetable/MonthInText.h"

#include "timetable/TimetableParser.h"

#include <QLocale>
#include <QRegularExpression>

namespace tarvanel::MonthInText {

namespace {

// Whether `a` and `b` differ by one letter changed, left out or added.
bool oneLetterApart(QStringView a, QStringView b) {
    if (a.size() > b.size()) std::swap(a, b);
    if (b.size() - a.size() > 1) return false;
    qsizetype start = 0;
    while (start < a.size() && a[start] == b[start])
        ++start;
    if (start == a.size()) return a.size() != b.size();
    const qsizetype skip = a.size() == b.size() ? 1 : 0; // changed, or left out of `a`
    return a.mid(start + skip) == b.mid(start + 1);
}

const QRegularExpression& yearPattern() {
    static const QRegularExpression pattern(QStringLiteral("20\\d\\d"));
    return pattern;
}

} // namespace

std::optional<MonthAndYear> find(const QString& text, const QStringList& names) {
    const QString haystack = TimetableParser::plainDigits(text).toLower();
    auto letterAt = [&](qsizetype i) {
        return i >= 0 && i < haystack.size() && haystack[i].isLetter();
    };
    auto yearAfter = [&](qsizetype end) {
        const QRegularExpressionMatch year = yearPattern().match(haystack.mid(end, 12));
        return year.hasMatch() ? std::optional<int>(year.captured().toInt()) : std::nullopt;
    };
    qsizetype bestAt = -1;
    qsizetype bestEnd = 0;
    int bestMonth = 0;
    auto consider = [&](qsizetype at, qsizetype end, int month) {
        if (bestAt >= 0 && at >= bestAt) return;
        bestAt = at;
        bestEnd = end;
        bestMonth = month;
    };
    // Sheets are often in English whatever the user's language, so English names count too.
    const QLocale english = QLocale::c();
    QList<std::pair<QString, int>> longNames;
    for (int m = 1; m <= 12; ++m) {
        const QString full = names.value(m - 1).toLower();
        const QString inEnglish = english.standaloneMonthName(m, QLocale::LongFormat).toLower();
        for (const QString& form : {full, full.left(3), inEnglish, inEnglish.left(3)}) {
            if (form.isEmpty()) continue;
            const bool shortForm = form.size() == 3 && form != full && form != inEnglish;
            for (qsizetype at = haystack.indexOf(form); at >= 0;
                 at = haystack.indexOf(form, at + 1)) {
                if (letterAt(at - 1) || (shortForm && letterAt(at + form.size()))) continue;
                consider(at, at + form.size(), m);
                break;
            }
        }
        // Short names one letter apart are other words ("match", "jury").
        for (const QString& name : {full, inEnglish})
            if (name.size() >= 6) longNames.append({name, m});
    }
    static const QRegularExpression word(QStringLiteral("\\p{L}{5,}"));
    for (auto it = word.globalMatch(haystack); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        if (bestAt >= 0 && m.capturedStart() >= bestAt) break;
        if (!yearAfter(m.capturedEnd())) continue;
        for (const auto& [name, month] : longNames)
            if (oneLetterApart(m.capturedView(), name)) {
                consider(m.capturedStart(), m.capturedEnd(), month);
                break;
            }
    }
    if (bestAt < 0) return std::nullopt;
    return MonthAndYear{bestMonth, yearAfter(bestEnd)};
}

} // namespace tarvanel::MonthInText
