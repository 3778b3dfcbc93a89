// The settings model's fields: made from a Config, turned back into one, and previewed.
#include "settings/PrayerSettingsModel.h"

#include "base/StateFiles.h"
#include "engine/CalcMethods.h"
#include "engine/DayTimes.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "guardian/Guardian.h"
#include "timetable/Timetable.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTimeZone>
#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvanel {

namespace {

QString formatG(double v) {
    return QString::asprintf("%g", v);
}

// The next whole five minutes counted from the epoch (the instant itself when it is one).
QDateTime roundUpToFive(const QDateTime& t) {
    const qint64 step = 300;
    const qint64 secs = t.toSecsSinceEpoch() + (t.toMSecsSinceEpoch() % 1000 > 0 ? 1 : 0);
    const qint64 up = (secs + step - 1) / step * step;
    return QDateTime::fromSecsSinceEpoch(up, QTimeZone::utc());
}

// An override rule from config.json as a row's mode.
void applyRule(PrayerTimeRow& row, QString rule, const QDateTime& now) {
    while (!rule.isEmpty() && (rule.front() == u' ' || rule.front() == u'\t'))
        rule.remove(0, 1);
    while (!rule.isEmpty() && (rule.back() == u' ' || rule.back() == u'\t'))
        rule.chop(1);
    if (rule.startsWith(u'+') || rule.startsWith(u'-')) {
        bool ok = false;
        const double v = rule.toDouble(&ok);
        // A number too large for whole minutes leaves the row at the start time.
        if (ok && std::isfinite(v) && std::fabs(v) <= double(std::numeric_limits<int>::max())) {
            row.mode = TimeMode::offset;
            row.minutes = int(std::trunc(v));
            return;
        }
    }
    if (const auto t = parseFixedTime(rule, now)) {
        row.mode = TimeMode::fixed;
        row.time = *t;
    }
}

QString hhmm(const QDateTime& t) {
    const LocalFields f = localFields(t);
    return QString::asprintf("%02d:%02d", f.hour, f.minute);
}

} // namespace

PrayerSettingsModel::PrayerSettingsModel(const Config& config, bool firstRun,
                                         SettingsServices services, QObject* parent)
    : QObject(parent), firstRun_(firstRun), base_(config), services_(std::move(services)) {
    if (!services_.clock) services_.clock = systemNow;
    if (!services_.localZone) services_.localZone = [] { return QTimeZone::systemTimeZone(); };
    load(base_);
    if (const auto adhan = adhanFileURL()) adhanName_ = QFileInfo(*adhan).fileName();
    timetableSummary_ = Timetable::summary();
    guardianSet_ = Guardian::isSet();
    if (services_.calendarAuthorized && services_.calendarAuthorized()) loadCalendars();
    timetableObserver_ = connect(&timetableChangedNote(), &TimetableChangedNote::posted, this,
                                 &PrayerSettingsModel::refreshTimetable);
}

// The fields that come from the settings record; the form's own state (search, guardian
// draft, calendars) is left as it is.
void PrayerSettingsModel::load(const Config& c) {
    const QDateTime at = now();
    locationName_ = c.locationName;
    latitude_ = c.latitude;
    longitude_ = c.longitude;
    fajrAngle_ = c.fajrAngle;
    ishaAngle_ = c.ishaAngle;
    lockMinutes_ = c.lockMinutes;
    lockLead_ = c.lockLeadMinutes.value_or(5);
    jumuahEnabled_ = c.jumuahOn();
    jumuahLock_ = c.jumuahLock();
    ramadan_ = c.ramadanOn();
    weekly_ = c.weeklyReportOn();
    travel_ = c.travelOn();
    adhanEnabled_ = c.adhanOn();
    callGrace_ = c.callGrace();
    strict_ = c.strictOn();
    combine_ = c.combineOn();
    excusedDays_ = c.excusedDays();
    calendarSync_ = c.calendarSyncOn();
    calendarID_ = c.calendarID.value_or(QString());
    focusOn_ = c.focusOn();

    const auto method = methodFor(c);
    methodID_ = method ? method->id : QStringLiteral("Custom");
    hanafi_ = c.asrFactor >= 2;

    QStringList parts;
    for (double n : c.nudgeOffsetsMinutes)
        parts << formatG(n);
    nudges_ = parts.join(QStringLiteral(", "));

    jumuahTime_ = parseFixedTime(c.jumuahTime.value_or(QStringLiteral("13:30")), at).value_or(at);

    const DayTimes waqt = firstRun_ ? DayTimes{} : Timetable::scheduledTimes(at, c).waqt;
    const QMap<QString, QString> overrides = c.prayerOverrides.value_or(QMap<QString, QString>{});
    rows_.clear();
    for (const QString& name : prayerNames()) {
        PrayerTimeRow row;
        row.name = name;
        row.mode = TimeMode::waqt;
        row.minutes = 15;
        const auto t = waqt.value(name);
        row.time = t && t->isValid() ? roundUpToFive(*t) : at;
        if (overrides.contains(name)) applyRule(row, overrides.value(name), at);
        rows_ << row;
    }
    loaded_ = makeConfig();
}

bool PrayerSettingsModel::hasUnsavedEdits() const {
    return makeConfig() != loaded_;
}

bool PrayerSettingsModel::fileChanged(const Config& config) {
    if (hasUnsavedEdits()) {
        //: "Save" and "Cancel" are the window's buttons.
        setFileNotice(tr("The settings file changed while this window was open. Save keeps what "
                         "you see here; Cancel keeps the file's settings."));
        return false;
    }
    base_ = config;
    configProblem_.clear();
    load(base_);
    setFileNotice({});
#define TARVANEL_FIELD_CHANGED(Type, name, Name) emit changed(Field::name);
    TARVANEL_SETTINGS_FIELDS(TARVANEL_FIELD_CHANGED)
#undef TARVANEL_FIELD_CHANGED
    return true;
}

PrayerSettingsModel::~PrayerSettingsModel() {
    disconnect(timetableObserver_);
    if (playing_ && services_.stopSound) services_.stopSound();
}

void PrayerSettingsModel::setRow(int index, const PrayerTimeRow& row) {
    if (index < 0 || index >= rows_.size()) return;
    QList<PrayerTimeRow> next = rows_;
    next[index] = row;
    setRows(next);
}

QList<double> PrayerSettingsModel::parsedNudges() const {
    static const QRegularExpression separators(QStringLiteral("[,;\\s]+"));
    QList<double> out;
    for (const QString& piece : nudges_.split(separators, Qt::SkipEmptyParts)) {
        bool ok = false;
        const double v = piece.toDouble(&ok);
        if (ok && v > 0 && v <= 120 && !out.contains(v)) out << v;
    }
    std::sort(out.begin(), out.end(), std::greater<>());
    return out;
}

Config PrayerSettingsModel::makeConfig() const {
    Config c;
    c.locationName = !locationName_.isEmpty()
                         ? locationName_
                         : QString::asprintf("%.2f, %.2f", latitude_, longitude_);
    c.latitude = latitude_;
    c.longitude = longitude_;
    const auto& table = calcMethods();
    const auto row = std::find_if(table.begin(), table.end(),
                                  [this](const CalcMethod& m) { return m.id == methodID_; });
    if (row != table.end()) {
        c.method = row->id;
        c.fajrAngle = row->fajr;
        c.ishaMinutes = row->ishaMinutes;
        c.maghribAngle = row->maghribAngle;
        c.ishaAngle = row->ishaMinutes ? ishaAngle_ : row->isha;
    } else {
        c.method = QStringLiteral("Custom");
        c.fajrAngle = fajrAngle_;
        c.ishaAngle = ishaAngle_;
        c.ishaMinutes.reset();
        c.maghribAngle.reset();
    }
    c.asrFactor = hanafi_ ? 2 : 1;
    c.lockMinutes = lockMinutes_;
    c.lockLeadMinutes = lockLead_;
    c.nudgeOffsetsMinutes = parsedNudges();
    QMap<QString, QString> overrides;
    for (const PrayerTimeRow& r : rows_)
        if (const auto rule = r.rule()) overrides.insert(r.name, *rule);
    c.prayerOverrides = overrides;
    c.jumuahEnabled = jumuahEnabled_;
    c.jumuahTime = hhmm(jumuahTime_);
    c.jumuahLockMinutes = jumuahLock_;
    c.ramadanMode = ramadan_;
    c.weeklyReport = weekly_;
    c.travelMode = travel_;
    c.adhanEnabled = adhanEnabled_;
    c.callGraceMinutes = callGrace_;
    c.excusedMaxDays = excusedDays_;
    c.calendarSync = calendarSync_ && !calendarID_.isEmpty();
    c.calendarID = calendarID_.isEmpty() ? std::nullopt : std::optional<QString>(calendarID_);
    c.focusShortcuts = focusOn_;
    c.strictMode = strict_;
    c.combineWhenTravelling = combine_;
    return c;
}

QList<PreviewEntry> PrayerSettingsModel::preview() const {
    QList<PreviewEntry> out;
    if (!hasLocation()) return out;
    const Config cfg = makeConfig();
    const EffectiveTimes eff = Timetable::scheduledTimes(now(), cfg);
    for (const QString& name : dayRowNames()) {
        const auto start = eff.waqt.value(name);
        if (!start) continue;
        PreviewEntry e;
        e.id = QStringLiteral("today-") + name;
        e.name = eff.jumuah && name == QLatin1String("Dhuhr") ? QStringLiteral("Jumu'ah") : name;
        e.start = *start;
        if (name != QLatin1String("Sunrise")) {
            if (const auto fin = eff.final.value(name))
                e.lock = lockPeriod(*fin, name, eff.jumuah, cfg).start;
        }
        out << e;
    }
    return out;
}

QStringList PrayerSettingsModel::adhanExtensions() {
    return {QStringLiteral("mp3"), QStringLiteral("m4a"), QStringLiteral("aiff"),
            QStringLiteral("wav")};
}

void PrayerSettingsModel::refreshTimetable() {
    setTimetableSummary(Timetable::summary());
}

void PrayerSettingsModel::clearTimetable() {
    Timetable::clear();
    TimetableChangedNote::post();
}

} // namespace tarvanel
