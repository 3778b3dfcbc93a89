// The status menu, built afresh each time it opens, and the commands it carries.
#include "app/Agent.h"
#include "engine/CalcMethods.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "lock/AppDelegate.h"
#include "records/Excused.h"
#include "records/History.h"
#include "records/Log.h"
#include "records/Modes.h"
#include "records/StateFiles.h"
#include "records/TravelLocator.h"
#include "records/UserDefaults.h"
#include "settings/CitySearch.h"

#include <QFile>
#include <QPointer>
#include <cmath>

namespace tarvanel {

namespace {

const QString timePattern = QStringLiteral("h:mm AP");

QString timeText(const QDateTime& instant) {
    return formatLocal(instant, timePattern);
}

// Which start-of-time ends a prayer's window; Isha has none.
std::optional<QString> windowEnd(const QString& prayer) {
    if (prayer == QLatin1String("Fajr")) return QStringLiteral("Sunrise");
    if (prayer == QLatin1String("Dhuhr")) return QStringLiteral("Asr");
    if (prayer == QLatin1String("Asr")) return QStringLiteral("Maghrib");
    if (prayer == QLatin1String("Maghrib")) return QStringLiteral("Isha");
    return std::nullopt;
}

MenuItem gridRow(const QString& text) {
    MenuItem item = MenuItem::info(text);
    item.monospaced = true;
    return item;
}

} // namespace

MenuModel AppDelegate::buildMenu() {
    QPointer<AppDelegate> self(this);
    auto command = [self](const QString& text, void (AppDelegate::*action)(), int tag = 0) {
        return MenuItem::command(
            text,
            [self, action] {
                if (self) (self.data()->*action)();
            },
            tag);
    };
    MenuModel menu;
    if (!configExists()) {
        menu << MenuItem::info(QStringLiteral("Tarvanel isn't set up yet"))
             << command(QStringLiteral("Set Up Tarvanel…"), &AppDelegate::openSettings);
        return menu;
    }

    const QDateTime now = currentTime();
    const Config display = activeConfig();
    const DayTimes times = todaysTimes();
    const double maxDays = config_.excusedDays();
    const QList<ExcusedRange> excusedRanges = Excused::load();
    const bool excused = Excused::current(maxDays, now).has_value();
    const std::optional<TravelCoords> coords = travelCoords();
    const bool combining = config_.isOn(config_.combineWhenTravelling, false) &&
                           isTravelling(now, *defaults_, coords.has_value());
    const bool ramadan = isRamadan(now);
    const std::optional<QDateTime> paused = pausedUntil();
    const std::optional<QDateTime> travelling = travellingUntil();
    const bool pausedNow = paused && *paused > now;
    const bool travellingNow = travelling && *travelling > now;

    // Header lines.
    menu << MenuItem::info((coords ? QStringLiteral("✈️ ") : QString()) + display.locationName +
                           QStringLiteral(" — ") + methodSummary(display));
    menu << MenuItem::info(hijriString(now) +
                           (ramadan ? QStringLiteral("  •  🌙 Ramadan") : QString()));
    if (pausedNow)
        menu << MenuItem::info(QStringLiteral("⏸ Locks paused until ") +
                               formatLocal(*paused, QStringLiteral("dddd h:mm AP")));
    if (excused) menu << MenuItem::info(QStringLiteral("Excused · reminders and locks are off"));
    if (travellingNow)
        menu << MenuItem::info(QStringLiteral("✈️ Travelling until ") +
                               formatLocal(travelling->addSecs(-1), QStringLiteral("dddd d MMM")) +
                               (combining ? QStringLiteral(" · combining prayers") : QString()));
    if (deferred_)
        menu << MenuItem::info(QStringLiteral("📞 ") + deferred_->displayName +
                               QStringLiteral(" locks when your call ends"));
    menu << MenuItem::separator();

    // Today's rows.
    QString next;
    for (const QString& name : prayerNames()) {
        const auto t = times.value(name);
        if (t && t->isValid() && *t > now) {
            next = name;
            break;
        }
    }
    for (const QString& name : dayRowNames()) {
        const auto t = times.value(name);
        if (!t) continue;
        QString text =
            name == QLatin1String("Dhuhr") && cachedJumuah_ ? QStringLiteral("Jumu'ah") : name;
        if (combining && name == QLatin1String("Asr") && !cachedJumuah_)
            text += QStringLiteral(" (with Dhuhr)");
        if (combining && name == QLatin1String("Isha")) text += QStringLiteral(" (with Maghrib)");
        text += QLatin1Char('\t') + timeText(*t);
        if (const auto waqt = cachedWaqt_.value(name);
            waqt && std::llabs(waqt->msecsTo(*t)) > 30000)
            text += QStringLiteral("  (waqt ") + timeText(*waqt) + QLatin1Char(')');
        if (name == next) text += QStringLiteral("  ◀ next");
        menu << MenuItem::info(text);
    }

    // Ramadan times.
    const auto fajrWaqt = cachedWaqt_.value(u"Fajr");
    const auto maghribWaqt = cachedWaqt_.value(u"Maghrib");
    if (ramadan && config_.isOn(config_.ramadanMode, true) && fajrWaqt && maghribWaqt) {
        menu << MenuItem::separator();
        menu << MenuItem::info(QStringLiteral("🌙 Suhoor ends ") + timeText(*fajrWaqt) +
                               QStringLiteral("  •  Iftar ") + timeText(*maghribWaqt));
    }
    menu << MenuItem::separator();

    // Streak and the seven-day grid.
    const HistoryMap history = loadHistory();
    const Marks::Map marks = Marks::load();
    const int streak = streakDays(now, maxDays, history, excusedRanges);
    menu << MenuItem::info(QStringLiteral("🔥 Streak: ") + QString::number(streak) +
                           QStringLiteral(" day") +
                           (streak == 1 ? QString() : QStringLiteral("s")));
    for (int k = 6; k >= 0; --k) {
        const QDateTime day = now.addSecs(-qint64(k) * 86400);
        const QString key = dayKey(day);
        const DayTimes dayTimes = k == 0 ? times : effectiveTimes(day, display).final;
        QStringList cells;
        for (const QString& prayer : prayerNames()) {
            const auto t = dayTimes.value(prayer);
            const bool cellExcused = t && Excused::contains(*t, excusedRanges, maxDays);
            cells << gridMark(prayer, key, history, marks, cellExcused);
        }
        const QString label =
            formatLocal(day, QStringLiteral("ddd d")).leftJustified(7, u' ', true);
        menu << gridRow(label + QLatin1Char(' ') + cells.join(QLatin1Char(' ')));
    }
    menu << MenuItem::separator();

    // "Mark as Prayed".
    MenuItem mark = MenuItem::info(QStringLiteral("Mark as Prayed"));
    mark.enabled = true;
    const QStringList kept = history.value(dayKey(now));
    for (int i = 0; i < prayerNames().size(); ++i) {
        const QString& prayer = prayerNames()[i];
        const auto begun = cachedWaqt_.value(prayer);
        if (!begun || now < *begun) continue;
        const QString label =
            prayer == QLatin1String("Dhuhr") && cachedJumuah_ ? QStringLiteral("Jumu'ah") : prayer;
        if (kept.contains(prayer)) {
            mark.submenu << MenuItem::info(QStringLiteral("✓ ") + label);
            continue;
        }
        const std::optional<QString> endName = windowEnd(prayer);
        const auto end = endName ? cachedWaqt_.value(*endName) : std::nullopt;
        const bool late = end && now >= *end;
        const int tag = late ? i + 100 : i;
        mark.submenu << MenuItem::command(
            label + (late ? QStringLiteral(": Prayed Late (Qada)")
                          : QStringLiteral(": Prayed Elsewhere")),
            [self, tag] {
                if (self) self->markPrayed(tag);
            },
            tag);
    }
    if (mark.submenu.isEmpty())
        mark.submenu << MenuItem::info(QStringLiteral("Nothing to mark yet"));
    menu << mark;

    menu << (excused ? command(QStringLiteral("No Longer Excused"), &AppDelegate::endExcused)
                     : command(QStringLiteral("I'm Excused…"), &AppDelegate::startExcused));
    menu << (travellingNow
                 ? command(QStringLiteral("Stop Travelling"), &AppDelegate::stopTravelling)
                 : command(QStringLiteral("I'm Travelling…"), &AppDelegate::startTravelling));
    if (pausedNow) {
        menu << command(QStringLiteral("Resume Locks"), &AppDelegate::resumeLocks);
    } else {
        MenuItem pause = MenuItem::info(QStringLiteral("Pause Locks"));
        pause.enabled = true;
        for (const auto& [text, days] : {std::pair{"For the Rest of Today", 1},
                                         std::pair{"For 3 Days", 3}, std::pair{"For a Week", 7}})
            pause.submenu << MenuItem::command(
                QString::fromUtf8(text),
                [self, d = days] {
                    if (self) self->pauseLocks(d);
                },
                days);
        menu << pause;
    }
    menu << command(QStringLiteral("Preview Lock (10 s)"), &AppDelegate::previewLock);
    MenuItem settings = command(QStringLiteral("Settings…"), &AppDelegate::openSettings);
    settings.shortcut = QStringLiteral(",");
    menu << settings;
    return menu;
}

void AppDelegate::markPrayed(int tag) {
    const int i = tag % 100;
    if (tag < 0 || i >= prayerNames().size()) return;
    const QString prayer = prayerNames()[i];
    const bool elsewhere = tag < 100;
    markKept({prayer}, dayKey(currentTime()),
             elsewhere ? QStringLiteral("elsewhere") : QStringLiteral("qada"), completedLocks_);
    if (deferred_ && deferred_->prayer == prayer) deferred_.reset();
    logLine(QStringLiteral("Tarvanel: marked ") + prayer + QStringLiteral(" as ") +
            (elsewhere ? QStringLiteral("prayed elsewhere") : QStringLiteral("qada")));
    tick();
}

void AppDelegate::previewLock() {
    // The controller's clock, like every other instant, so the tick that ends it agrees.
    startLock(QStringLiteral("Preview"), QStringLiteral("Preview"), currentTime().addSecs(10));
}

void AppDelegate::openSettings() {
    if (lockEnd_ && !exitAfterTest_) return;
    const bool firstRun = !configExists();
    SettingsServices services;
    services.clock = clock;
    services.geocoder = std::make_shared<GeonamesGeocoder>();
    PrayerSettingsActions actions;
    QPointer<AppDelegate> self(this);
    actions.save = [self](const Config& cfg) {
        if (self) self->applyConfig(cfg);
    };
    actions.cancel = [] {};
    actions.previewLock = [self] {
        if (self) self->previewLock();
    };
    actions.uninstall = [self] {
        if (self) self->uninstall();
    };
    actions.exportHistory = [self] {
        if (self) self->exportHistory();
    };
    platform_.openSettingsWindow(std::make_unique<PrayerSettingsModel>(config_, firstRun, services),
                                 actions);
}

void AppDelegate::exportHistory() {
    platform_.activateApp();
    const std::optional<QString> path =
        platform_.askSavePath(QStringLiteral("Tarvanel history.csv"));
    if (!path) return;
    writeFileAtomically(*path, historyCSV(config_, currentTime()).toUtf8());
}

void AppDelegate::uninstall() {
    if (lockEnd_) return;
    const std::optional<bool> deleteData =
        confirmUninstall(platform_, QStringLiteral("Your prayer times stop locking the screen."));
    if (!deleteData) return;
    if (*deleteData) {
        defaults_->removeAll();
        modesFresh_ = false;
    }
    uninstallApp(platform_, *deleteData);
}

void AppDelegate::startExcused() {
    if (!askStartExcused(platform_, config_, currentTime())) return;
    deferred_.reset();
    tick();
}

void AppDelegate::endExcused() {
    tarvanel::endExcused(currentTime());
    tick();
}

void AppDelegate::startTravelling() {
    modesFresh_ = false;
    if (askTravel(platform_, *defaults_, config_, currentTime())) tick();
}

void AppDelegate::stopTravelling() {
    tarvanel::stopTravelling(*defaults_);
    modesFresh_ = false;
    tick();
}

void AppDelegate::pauseLocks(int days) {
    if (lockEnd_) return;
    modesFresh_ = false;
    if (askPause(platform_, *defaults_, days, currentTime())) tick();
}

void AppDelegate::resumeLocks() {
    resume(*defaults_);
    modesFresh_ = false;
    tick();
}

} // namespace tarvanel
