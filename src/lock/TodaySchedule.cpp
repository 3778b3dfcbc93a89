#include "lock/TodaySchedule.h"
#include "timetable/Timetable.h"

#include "base/StateFiles.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"

#include <QFile>

#include <cmath>

namespace tarvanel {

namespace {

// The instants that bound `date`; a day the zone cannot represent is never reused.
std::pair<QDateTime, QDateTime> bounds(const QDate& date, const QDateTime& now) {
    const QDateTime from = startOfLocalDay(date), until = startOfLocalDay(date.addDays(1));
    if (!from.isValid() || !until.isValid()) return {now, now};
    return {from, until};
}

} // namespace

bool TodaySchedule::update(const QDateTime& now, const Config& cfg) {
    if (timetablePath_.isEmpty()) timetablePath_ = QFile::encodeName(Timetable::url());
    const FileStamp timetable = FileStamp::of(timetablePath_);
    const bool sameInputs = timetable == timetable_ && cfg == cfg_;
    if (!key_.isEmpty() && sameInputs && now >= from_ && now < until_) return false;
    const QDate date = localDate(now);
    const QString key = tarvanel::dayKey(date);
    std::tie(from_, until_) = bounds(date, now);
    if (key == key_ && sameInputs) return false;

    cfg_ = cfg;
    timetable_ = timetable;

    const EffectiveTimes eff = Timetable::scheduledTimes(now, cfg);
    waqt_ = eff.waqt;
    times_ = eff.final;
    jumuah_ = eff.jumuah;
    ramadan_ = isRamadan(now);
    key_ = key;
    tomorrow_.reset();
    for (int i = 0; i < int(slots_.size()); ++i) {
        PrayerSlot& slot = slots_[size_t(i)];
        slot.name = prayerNames()[i];
        slot.lockKey = key + QLatin1Char('-') + slot.name;
        slot.nudgeKeys.clear();
        for (double offset : cfg.nudgeOffsets())
            slot.nudgeKeys << slot.lockKey + QLatin1Char('-') +
                                  QString::number(qint64(std::trunc(offset)));
        const std::optional<QDateTime> t = times_.value(slot.name);
        slot.valid = t && t->isValid();
        slot.at = slot.valid ? t->toMSecsSinceEpoch() : 0;
    }
    return true;
}

std::optional<QDateTime> TodaySchedule::tomorrowsFajr(const QDateTime& now, const Config& cfg) {
    const QDateTime ahead = now.addSecs(86400);
    if (!tomorrow_ || ahead < tomorrow_->from || ahead >= tomorrow_->until) {
        const auto [from, until] = bounds(localDate(ahead), ahead);
        tomorrow_ =
            Tomorrow{from, until, Timetable::scheduledTimes(ahead, cfg).final.value(u"Fajr")};
    }
    return tomorrow_->fajr;
}

} // namespace tarvanel
