#include "app/CommandLine.h"
#include "base/StateFiles.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerNames.h"
#include "engine/Schedule.h"
#include "menubar/ShownTime.h"
#include "records/ConfigFile.h"
#include "timetable/Timetable.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <array>
#include <cmath>

namespace tarvanel {
namespace {} // namespace

CommandLine parseCommandLine(const QStringList& args) {
    CommandLine cl;
    const QStringList flags{QStringLiteral("--help"), QStringLiteral("--version"),
                            QStringLiteral("--times"), QStringLiteral("--install-agent"),
                            QStringLiteral("--test-nudge")};
    const QStringList withValue{QStringLiteral("--date"), QStringLiteral("--test-lock")};
    const auto valueAfter = [&args](const QString& option) -> std::optional<QString> {
        const qsizetype i = args.indexOf(option, 1);
        if (i < 0 || i + 1 >= args.size()) return std::nullopt;
        return args[i + 1];
    };
    const auto has = [&args](const QString& option) { return args.indexOf(option, 1) >= 0; };

    cl.help = has(QStringLiteral("--help"));
    cl.version = has(QStringLiteral("--version"));
    cl.times = has(QStringLiteral("--times"));
    cl.date = valueAfter(QStringLiteral("--date"));
    cl.installAgent = has(QStringLiteral("--install-agent"));
    if (const auto seconds = valueAfter(QStringLiteral("--test-lock"))) {
        bool ok = false;
        const double v = seconds->toDouble(&ok);
        // A lock longer than a day, or of no finite length, is a typing mistake.
        if (ok && std::isfinite(v) && v <= 86400) cl.testLockSeconds = v;
    }
    cl.testNudge = has(QStringLiteral("--test-nudge"));

    for (qsizetype i = 1; i < args.size(); ++i) {
        const QString& arg = args[i];
        if (withValue.contains(arg)) {
            ++i; // its value, whatever it looks like
        } else if (flags.contains(arg)) {
        } else if (arg.startsWith(u'-')) {
            if (!cl.unknownOption) cl.unknownOption = arg;
        } else if (!cl.importFile) {
            cl.importFile = arg;
        }
    }
    return cl;
}

QDateTime timesDay(const CommandLine& cl, const QDateTime& now) {
    if (!cl.date) return now;
    const QDate d = QDate::fromString(*cl.date, QStringLiteral("yyyy-MM-dd"));
    if (!d.isValid()) return now;
    const QDateTime start = startOfLocalDay(d);
    return start.isValid() ? start : now;
}

QString timesText(const Config& cfg, const QDateTime& day) {
    const EffectiveTimes t = Timetable::scheduledTimes(day, cfg);
    //: Qt pattern of the date above the --times table, as in "Friday 3 October 2025"
    const QString datePattern = QCoreApplication::translate("TimeFormat", "dddd d MMMM yyyy");
    QString out = QStringLiteral("Tarvanel \u2014 ") + cfg.locationName + QStringLiteral("  (") +
                  formatLocal(day, datePattern) + QStringLiteral(" \u2022 ") + hijriString(day);
    if (isRamadan(day))
        out += QStringLiteral(" \u2022 ") + QCoreApplication::translate("TimesCommand", "Ramadan") +
               QStringLiteral(" \U0001F319");
    out += QStringLiteral(")\n");

    QList<std::array<QString, 3>> rows;
    //: Column heading of the --times table: the prayer's name
    rows.append({QCoreApplication::translate("TimesCommand", "Prayer"),
                 //: Column heading of the --times table: the computed time of the prayer
                 QCoreApplication::translate("TimesCommand", "Waqt"),
                 //: Column heading of the --times table: when the screens lock
                 QCoreApplication::translate("TimesCommand", "Lock at")});
    for (const QString& name : dayRowNames()) {
        const auto waqt = t.waqt.value(name);
        if (!waqt) continue;
        const QDateTime lock =
            lockPeriod(t.final.value(name).value_or(*waqt), name, t.jumuah, cfg).start;
        const QString lockText = name == QLatin1String("Sunrise")
                                     ? QStringLiteral("\u2014")
                                     : formatLocal(lock, clockPattern());
        const QString shown =
            (name == QLatin1String("Dhuhr") && t.jumuah) ? QStringLiteral("Jumu'ah") : name;
        rows.append({prayerLabel(shown), formatLocal(*waqt, clockPattern()), lockText});
    }
    // The columns widen for the longer names and times of other languages.
    qsizetype nameWidth = 8, timeWidth = 9;
    for (const auto& row : rows) {
        nameWidth = std::max(nameWidth, row[0].size() + 1);
        timeWidth = std::max(timeWidth, row[1].size() + 1);
    }
    for (const auto& row : rows)
        out += QStringLiteral("  ") + row[0].leftJustified(nameWidth, u' ') + u' ' +
               row[1].leftJustified(timeWidth, u' ') + u' ' + row[2] + u'\n';
    return out;
}

TimesOutput timesCommand(const CommandLine& cl, const QDateTime& now) {
    const bool noFile = !QFileInfo::exists(configURL());
    const Config cfg = loadConfig();
    TimesOutput out{timesText(cfg, timesDay(cl, now)), {}};
    if (const auto& error = lastConfigError())
        //: %1 says what is wrong with the settings file config.json
        out.note = QStringLiteral("tarvanel: ") +
                   QCoreApplication::translate("TimesCommand",
                                               "config.json is invalid (%1); printing the default "
                                               "settings' times")
                       .arg(*error) +
                   u'\n';
    else if (noFile)
        //: %1 is the settings file
        out.note = QStringLiteral("tarvanel: ") +
                   QCoreApplication::translate(
                       "TimesCommand",
                       "no place is set, so these times are for 0° N 0° E; to set yours, open "
                       "Tarvanel (its settings open on the first start) or write %1")
                       .arg(configURL()) +
                   u'\n';
    return out;
}

QString usageText() {
    // Option names are typed as they are in every language; only what they do is translated.
    //: Stands for the number of seconds given to --test-lock
    const QString seconds = QCoreApplication::translate("CommandLine", "SECONDS");
    const QList<std::pair<QString, QString>> options = {
        {QStringLiteral("--times"),
         QCoreApplication::translate("CommandLine",
                                     "print today's prayer and lock times and exit")},
        //: yyyy-MM-dd is the date format typed after --date: keep it as it is
        {QStringLiteral("--date yyyy-MM-dd"),
         QCoreApplication::translate("CommandLine", "with --times: the day to print")},
        {QStringLiteral("--install-agent"),
         QCoreApplication::translate("CommandLine",
                                     "install and start the per-user login service")},
        //: %1 stands for the number of seconds; "Test" is the name the lock shows
        {QStringLiteral("--test-lock ") + seconds,
         QCoreApplication::translate("CommandLine",
                                     "show one lock named \"Test\" for %1, then exit")
             .arg(seconds)},
        //: %1 is the prayer name Asr
        {QStringLiteral("--test-nudge"),
         QCoreApplication::translate("CommandLine", "show one %1 reminder, exit 17 seconds later")
             .arg(prayerLabel(QStringLiteral("Asr")))},
        {QStringLiteral("--help"), QCoreApplication::translate("CommandLine", "show this text")},
        {QStringLiteral("--version"),
         QCoreApplication::translate("CommandLine", "show the version")},
    };
    qsizetype width = 24;
    for (const auto& option : options)
        width = std::max(width, option.first.size() + 2);

    //: "tarvanel" is the command, typed as it is
    QString out =
        QCoreApplication::translate("CommandLine", "Usage: tarvanel [option] [timetable file]") +
        QStringLiteral("\n\n") +
        QCoreApplication::translate("CommandLine",
                                    "Without options Tarvanel starts in the tray and "
                                    "locks the screens at prayer times.") +
        u'\n' +
        QCoreApplication::translate("CommandLine",
                                    "A timetable file (CSV, text, image or PDF) opens "
                                    "the timetable import window.") +
        QStringLiteral("\n\n");
    for (const auto& [option, text] : options)
        out += QStringLiteral("  ") + option.leftJustified(width, u' ') + text + u'\n';
    //: %1 is the settings file; TZ is the name of an environment variable
    out +=
        u'\n' +
        QCoreApplication::translate(
            "CommandLine", "Settings: %1. Time zone: the TZ environment variable or the system's.")
            .arg(QStringLiteral("~/.tarvanel/config.json")) +
        u'\n';
    return out;
}

} // namespace tarvanel
