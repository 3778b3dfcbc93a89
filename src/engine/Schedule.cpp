#include "engine/Schedule.h"
#include "base/Log.h"
#include "engine/LocalTime.h"
#include "engine/PrayerTimes.h"

#include <QCoreApplication>
#include <QSet>
#include <cmath>

namespace tarvanel {
namespace {

QStringView trimBlanksAndTabs(QStringView s) {
    qsizetype b = 0, e = s.size();
    while (b < e && (s[b] == u' ' || s[b] == u'\t'))
        ++b;
    while (e > b && (s[e - 1] == u' ' || s[e - 1] == u'\t'))
        --e;
    return s.mid(b, e - b);
}

// A whole decimal number: an optional sign and ASCII digits only.
std::optional<int> wholeNumber(QStringView s) {
    qsizetype i = 0;
    if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) ++i;
    if (i == s.size()) return std::nullopt;
    for (qsizetype j = i; j < s.size(); ++j)
        if (s[j] < u'0' || s[j] > u'9') return std::nullopt;
    bool ok = false;
    const int v = s.toInt(&ok);
    if (!ok) return std::nullopt;
    return v;
}

// Offsets beyond this many minutes (about 1,900 years) cannot be meant; they are skipped like
// text that is not a number.
constexpr double kMaxOffsetMinutes = 1e9;

std::optional<double> offsetMinutes(QStringView rule) {
    bool ok = false;
    const double v = rule.toDouble(&ok);
    if (!ok || !std::isfinite(v) || std::fabs(v) > kMaxOffsetMinutes) return std::nullopt;
    return v;
}

} // namespace

std::optional<QDateTime> parseFixedTime(const QString& text, const QDateTime& on) {
    const QStringView trimmed = trimBlanksAndTabs(text);
    QList<QStringView> pieces;
    for (QStringView piece : trimmed.split(u':', Qt::SkipEmptyParts))
        pieces << piece;
    if (pieces.size() != 2) return std::nullopt;
    const auto hour = wholeNumber(pieces[0]);
    const auto minute = wholeNumber(pieces[1]);
    if (!hour || !minute || *hour < 0 || *hour > 23 || *minute < 0 || *minute > 59)
        return std::nullopt;
    const QDateTime start = startOfLocalDay(on);
    if (!start.isValid()) return std::nullopt;
    // Follow the wall clock on days when the clock changes: 20:30 is 20:30 on the clock, not
    // twenty and a half hours after midnight. A clock time that the change skips stays at the
    // elapsed-time reading, just after the jump.
    const QDateTime elapsed = start.addSecs(qint64(*hour) * 3600 + qint64(*minute) * 60);
    const int shift = utcOffsetSeconds(start) - utcOffsetSeconds(elapsed);
    if (shift == 0) return elapsed;
    const QDateTime wall = elapsed.addSecs(shift);
    const LocalFields f = localFields(wall);
    if (f.hour == *hour && f.minute == *minute) return wall;
    return elapsed;
}

DayTimes applyOverrides(const DayTimes& times, const Config& cfg, const QDateTime& on) {
    if (!cfg.prayerOverrides || cfg.prayerOverrides->isEmpty() || times.isEmpty()) return times;
    DayTimes result = times;
    for (auto it = cfg.prayerOverrides->begin(); it != cfg.prayerOverrides->end(); ++it) {
        const QString& name = it.key();
        const auto base = times.value(name);
        if (!base) continue;
        const QStringView rule = trimBlanksAndTabs(it.value());
        if (rule.startsWith(u'+') || rule.startsWith(u'-')) {
            if (const auto minutes = offsetMinutes(rule))
                result.insert(name, base->addMSecs(qint64(std::llround(*minutes * 60000.0))));
            continue;
        }
        if (const auto fixed = parseFixedTime(rule.toString(), on)) {
            result.insert(name, *fixed);
        } else {
            // Schedules are computed for many days (menu grid, export): say it once per rule.
            static QSet<QString> reported;
            const QString line =
                QStringLiteral("Tarvanel: ignoring invalid override for %1: \"%2\"")
                    .arg(name, it.value());
            if (!reported.contains(line)) {
                reported.insert(line);
                logLine(lcSchedule, line);
            }
        }
    }
    return result;
}

bool isFriday(const QDateTime& date) {
    return localWeekday(date) == 6;
}

EffectiveTimes effectiveTimes(const QDateTime& date, const Config& cfg,
                              const QMap<QString, QString>& day) {
    EffectiveTimes out;
    out.waqt = PrayerTimes(cfg).times(date);
    out.final = applyOverrides(out.waqt, cfg, date);

    const QString jumuahKey = QStringLiteral("Jumu'ah");
    for (auto it = day.begin(); it != day.end(); ++it) {
        if (it.key() == jumuahKey || !out.final.contains(it.key())) continue;
        if (const auto t = parseFixedTime(it.value(), date)) out.final.insert(it.key(), *t);
    }

    if (!isFriday(date) || !cfg.jumuahOn()) return out;
    std::optional<QString> text;
    if (day.contains(jumuahKey))
        text = day.value(jumuahKey);
    else
        text = cfg.jumuahTime;
    if (!text) return out;
    if (const auto t = parseFixedTime(*text, date)) {
        out.final.insert(QStringLiteral("Dhuhr"), *t);
        out.jumuah = true;
    }
    return out;
}

QString rawText(TimeMode mode) {
    switch (mode) {
    case TimeMode::waqt:
        return QStringLiteral("waqt");
    case TimeMode::offset:
        return QStringLiteral("offset");
    case TimeMode::fixed:
        return QStringLiteral("fixed");
    }
    return {};
}

QString label(TimeMode mode) {
    switch (mode) {
    case TimeMode::waqt:
        //: When the lock comes: at the prayer's start time (its waqt).
        return QCoreApplication::translate("TimeMode", "At start time");
    case TimeMode::offset:
        //: When the lock comes: some minutes after the prayer's start time.
        return QCoreApplication::translate("TimeMode", "After start");
    case TimeMode::fixed:
        //: When the lock comes: at a fixed clock time, such as a mosque's jamaat.
        return QCoreApplication::translate("TimeMode", "Fixed time");
    }
    return {};
}

std::optional<TimeMode> timeModeFromRaw(const QString& raw) {
    for (TimeMode m : {TimeMode::waqt, TimeMode::offset, TimeMode::fixed})
        if (rawText(m) == raw) return m;
    return std::nullopt;
}

std::optional<QString> PrayerTimeRow::rule() const {
    switch (mode) {
    case TimeMode::waqt:
        return std::nullopt;
    case TimeMode::offset:
        if (minutes == 0) return std::nullopt;
        return minutes > 0 ? QStringLiteral("+%1").arg(minutes) : QString::number(minutes);
    case TimeMode::fixed: {
        const LocalFields f = localFields(time);
        return QString::asprintf("%02d:%02d", f.hour, f.minute);
    }
    }
    return std::nullopt;
}

} // namespace tarvanel
