#include "DaySimulator.h"
#include "records/ConfigFile.h"

#include "app/Agent.h"
#include "base/Log.h"
#include "engine/DayTimes.h"
#include "engine/LocalTime.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvanel::test {

QDateTime localAt(const QDate& date, const QString& time) {
    const QStringList parts = time.split(QLatin1Char(':'));
    const double seconds = parts.size() > 2 ? parts[2].toDouble() : 0.0;
    const int ms = int(std::lround(seconds * 1000.0));
    // Wall-clock time: on a day with a clock change, "13:00" is not midnight + 13 h.
    return QDateTime(date, QTime(parts[0].toInt(), parts[1].toInt(), ms / 1000, ms % 1000)).toUTC();
}

QString localText(const QDateTime& instant) {
    return formatLocal(instant, QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
}

Config fixedTimesConfig(const QStringList& times) {
    Config cfg;
    cfg.locationName = QStringLiteral("London");
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    cfg.method = QStringLiteral("MWL");
    QStringList all{"06:30", "13:00", "15:00", "16:30", "18:30"};
    cfg.prayerOverrides.emplace();
    for (int i = 0; i < 5; ++i)
        cfg.prayerOverrides->insert(prayerNames()[i], times.value(i, all[i]));
    return cfg;
}

DaySimulator::DaySimulator(const std::optional<Config>& cfg, const QDateTime& start,
                           const CommandLine& cl)
    : now(start) {
    platform.whileModal = [this] {
        for (int i = 0; i < modalTicks; ++i) {
            now = now.addSecs(1);
            app->tick();
        }
    };
    setLogSink([this](const QString& line) { logs << line; });
    if (cfg) saveConfig(*cfg);
    makeApp(cl);
}

DaySimulator::~DaySimulator() {
    app.reset();
    releaseInstanceLockForTesting();
    setLogSink(nullptr);
}

void DaySimulator::makeApp(const CommandLine& cl) {
    app = std::make_unique<AppDelegate>(platform, controllerOptions(cl, platform));
    app->clock = [this] { return now; };
    app->callCheck = [this] {
        ++callChecks;
        return inCall;
    };
    app->askDidPray = [this](const QString&) {
        const std::optional<bool> answer =
            didPrayAnswers.empty() ? std::nullopt : didPrayAnswers.front();
        if (!didPrayAnswers.empty()) didPrayAnswers.pop_front();
        return answer;
    };
    app->launchFinished();
    platform.runPosted();
    record();
}

void DaySimulator::restart(const CommandLine& cl) {
    app.reset();
    releaseInstanceLockForTesting();
    platform.lockWindowsUp = false;
    makeApp(cl);
}

void DaySimulator::step(double seconds) {
    now = now.addMSecs(qint64(seconds * 1000.0));
    app->tick();
    platform.runPosted();
    record();
}

void DaySimulator::runUntil(const QDateTime& end, const std::function<void()>& check) {
    while (now.addSecs(1) <= end) {
        step(1);
        if (check) {
            SCOPED_TRACE(("simulated time " + localText(now)).toStdString());
            check();
            if (::testing::Test::HasFatalFailure()) return;
        }
    }
}

void DaySimulator::record() {
    auto add = [this](const QString& what) {
        events << localText(now).mid(11, 8) + QLatin1Char(' ') + what;
    };
    for (; seenBanners_ < platform.banners.size(); ++seenBanners_)
        add(QStringLiteral("banner: ") + platform.banners[seenBanners_].message);
    for (; seenShows_ < platform.lockShows.size(); ++seenShows_)
        add(QStringLiteral("lock: ") + platform.lockShows[seenShows_].value(0).prayer);
    for (; seenCloses_ < platform.closes; ++seenCloses_)
        add(QStringLiteral("unlock"));
    for (; seenAlerts_ < platform.alerts.size(); ++seenAlerts_)
        add(QStringLiteral("alert: ") + platform.alerts[seenAlerts_].message);
}

QStringList DaySimulator::timeline(const QString& prefix, int from, int length) const {
    QStringList out;
    for (const QString& e : events)
        if (QStringView(e).mid(9).startsWith(prefix)) out << e.mid(from, length);
    return out;
}

QStringList DaySimulator::texts(const QList<MenuItem>& items) {
    QStringList out;
    for (const MenuItem& item : items)
        out << item.text;
    return out;
}

std::optional<MenuItem> DaySimulator::find(const QString& prefix) const {
    for (const MenuItem& item : app->buildMenu())
        if (item.text.startsWith(prefix)) return item;
    return std::nullopt;
}

MenuItem DaySimulator::item(const QString& prefix) {
    const auto found = find(prefix);
    EXPECT_TRUE(found) << "no menu item " << prefix.toStdString();
    MenuItem item = found.value_or(MenuItem::info({}));
    // A click returns to the event loop, which then runs the work the command posted.
    auto clicked = [this](std::function<void()> action) -> std::function<void()> {
        if (!action) return action;
        return [this, action] {
            action();
            platform.runPosted();
            record();
        };
    };
    item.action = clicked(item.action);
    for (MenuItem& sub : item.submenu)
        sub.action = clicked(sub.action);
    return item;
}

} // namespace tarvanel::test
