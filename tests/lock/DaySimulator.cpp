#include "DaySimulator.h"

#include "app/Agent.h"
#include "engine/LocalTime.h"
#include "records/Log.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvanel::test {

QDateTime localAt(const QDate& date, const QString& time) {
    const QStringList parts = time.split(QLatin1Char(':'));
    const double seconds = parts.size() > 2 ? parts[2].toDouble() : 0.0;
    const int ms = int(std::lround(seconds * 1000.0));
    // Wall-clock time: on a day with a clock change, "13:00" is not midnight + 13 h.
    return QDateTime(date, QTime(parts[0].toInt(), parts[1].toInt(), ms / 1000, ms % 1000),
                     Qt::LocalTime)
        .toUTC();
}

QString localText(const QDateTime& instant) {
    return formatLocal(instant, QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
}

Config fixedTimesConfig(const QString& fajr, const QString& dhuhr, const QString& asr,
                        const QString& maghrib, const QString& isha) {
    Config cfg;
    cfg.locationName = QStringLiteral("London");
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    cfg.method = QStringLiteral("MWL");
    cfg.prayerOverrides = QMap<QString, QString>{{QStringLiteral("Fajr"), fajr},
                                                 {QStringLiteral("Dhuhr"), dhuhr},
                                                 {QStringLiteral("Asr"), asr},
                                                 {QStringLiteral("Maghrib"), maghrib},
                                                 {QStringLiteral("Isha"), isha}};
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
    app = std::make_unique<AppDelegate>(platform, cl);
    app->clock = [this] { return now; };
    app->callCheck = [this] {
        ++callChecks;
        return inCall;
    };
    app->askDidPray = [this](const QString&) -> std::optional<bool> {
        if (didPrayAnswers.empty()) return std::nullopt;
        const std::optional<bool> answer = didPrayAnswers.front();
        didPrayAnswers.pop_front();
        return answer;
    };
}

void DaySimulator::restart(const CommandLine& cl) {
    app.reset();
    releaseInstanceLockForTesting();
    platform.lockWindowsUp = false;
    makeApp(cl);
    launch();
}

void DaySimulator::launch() {
    app->launchFinished();
    platform.runPosted();
    record();
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

QStringList DaySimulator::timeline(const QString& prefix) const {
    QStringList out;
    for (const QString& e : events)
        if (QStringView(e).mid(9).startsWith(prefix)) out << e;
    return out;
}

QStringList DaySimulator::column(const QString& prefix, int from, int length) const {
    QStringList out;
    for (const QString& e : timeline(prefix))
        out << e.mid(from, length);
    return out;
}

QStringList DaySimulator::logsContaining(const QString& part) const {
    QStringList out;
    for (const QString& line : logs)
        if (line.contains(part)) out << line;
    return out;
}

QStringList DaySimulator::menuTexts() const {
    QStringList out;
    for (const MenuItem& item : app->buildMenu())
        out << item.text;
    return out;
}

} // namespace tarvanel::test
