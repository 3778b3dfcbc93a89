#include "engine/Hijri.h"
#include "engine/LocalTime.h"

#include <QDate>
#include <QTimeZone>
#include <memory>
#include <unicode/calendar.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace tarvanel {
namespace {

// Built once: the Umm al-Qura calendar and its formatter, both in GMT so that only the local
// Gregorian date we hand in decides the day.
struct UmmAlQura {
    std::unique_ptr<icu::Calendar> calendar;
    std::unique_ptr<icu::SimpleDateFormat> format;

    UmmAlQura() {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Locale locale("en@calendar=islamic-umalqura");
        calendar.reset(
            icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), locale, status));
        if (U_FAILURE(status)) calendar.reset();
        status = U_ZERO_ERROR;
        format = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString(u"d MMMM yyyy"), locale,
                                                         status);
        if (U_FAILURE(status)) {
            format.reset();
        } else if (calendar) {
            format->adoptCalendar(calendar->clone());
        }
    }

    static UmmAlQura& instance() {
        static UmmAlQura u;
        return u;
    }
};

// Noon GMT of the instant's local calendar date, in ICU's milliseconds.
UDate noonOfLocalDate(const QDateTime& instant) {
    const QDate d = localDate(instant);
    const QDateTime noon(d, QTime(12, 0), QTimeZone::utc());
    return UDate(noon.toMSecsSinceEpoch());
}

} // namespace

HijriDate hijriDate(const QDateTime& instant) {
    UmmAlQura& u = UmmAlQura::instance();
    if (!u.calendar || !instant.isValid()) return {};
    UErrorCode status = U_ZERO_ERROR;
    u.calendar->setTime(noonOfLocalDate(instant), status);
    HijriDate h;
    h.day = u.calendar->get(UCAL_DATE, status);
    h.month = u.calendar->get(UCAL_MONTH, status) + 1;
    h.year = u.calendar->get(UCAL_YEAR, status);
    if (U_FAILURE(status)) return {};
    return h;
}

QString hijriString(const QDateTime& instant) {
    UmmAlQura& u = UmmAlQura::instance();
    if (!u.format || !instant.isValid()) return QStringLiteral(" AH");
    icu::UnicodeString text;
    u.format->format(noonOfLocalDate(instant), text);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text.getBuffer()), text.length()) +
           QStringLiteral(" AH");
}

bool isRamadan(const QDateTime& instant) {
    return hijriDate(instant).month == 9;
}

} // namespace tarvanel
