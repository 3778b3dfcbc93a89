#include "app/CommandLine.h"
#include "base/StateFiles.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/Schedule.h"
#include "records/ConfigFile.h"
#include "timetable/Timetable.h"

#include <QFileInfo>
#include <cmath>

namespace tarvanel {
namespace {

// Pads with blanks or cuts to exactly `width` characters.
QString fit(const QString& text, int width) {
    return text.size() > width ? text.left(width) : text.leftJustified(width, u' ');
}

const QString kTimePattern = QStringLiteral("h:mm AP");

} // namespace

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
    QString out = QStringLiteral("Tarvanel \u2014 ") + cfg.locationName + QStringLiteral("  (") +
                  formatLocal(day, QStringLiteral("dddd d MMMM yyyy")) +
                  QStringLiteral(" \u2022 ") + hijriString(day);
    if (isRamadan(day)) out += QStringLiteral(" \u2022 Ramadan \U0001F319");
    out += QStringLiteral(")\n");
    out += QStringLiteral("  Prayer   Waqt      Lock at\n");

    for (const QString& name : dayRowNames()) {
        const auto waqt = t.waqt.value(name);
        if (!waqt) continue;
        const QDateTime lock =
            lockPeriod(t.final.value(name).value_or(*waqt), name, t.jumuah, cfg).start;
        const QString lockText = name == QLatin1String("Sunrise") ? QStringLiteral("\u2014")
                                                                  : formatLocal(lock, kTimePattern);
        const QString shown =
            (name == QLatin1String("Dhuhr") && t.jumuah) ? QStringLiteral("Jumu'ah") : name;
        out += QStringLiteral("  ") + fit(shown, 8) + u' ' +
               fit(formatLocal(*waqt, kTimePattern), 9) + u' ' + lockText + u'\n';
    }
    return out;
}

TimesOutput timesCommand(const CommandLine& cl, const QDateTime& now) {
    const bool noFile = !QFileInfo::exists(configURL());
    const Config cfg = loadConfig();
    TimesOutput out{timesText(cfg, timesDay(cl, now)), {}};
    if (const auto& error = lastConfigError())
        out.note = QStringLiteral("tarvanel: config.json is invalid (") + *error +
                   QStringLiteral("); printing the default settings' times\n");
    else if (noFile)
        out.note = QStringLiteral("tarvanel: no place is set, so these times are for 0° N 0° E; to "
                                  "set yours, open Tarvanel (its settings open on the first start) "
                                  "or write ") +
                   configURL() + u'\n';
    return out;
}

QString usageText() {
    return QStringLiteral(
        "Usage: tarvanel [option] [timetable file]\n"
        "\n"
        "Without options Tarvanel starts in the tray and locks the screens at prayer times.\n"
        "A timetable file (CSV, text, image or PDF) opens the timetable import window.\n"
        "\n"
        "  --times                 print today's prayer and lock times and exit\n"
        "  --date yyyy-MM-dd       with --times: the day to print\n"
        "  --install-agent         install and start the per-user login service\n"
        "  --test-lock SECONDS     show one lock named \"Test\" for SECONDS, then exit\n"
        "  --test-nudge            show one Asr reminder, exit 17 seconds later\n"
        "  --help                  show this text\n"
        "  --version               show the version\n"
        "\n"
        "Settings: ~/.tarvanel/config.json. Time zone: the TZ environment variable or the "
        "system's.\n");
}

} // namespace tarvanel
