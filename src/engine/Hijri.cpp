#include "engine/Hijri.h"
#include "engine/LocalTime.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QTimeZone>
#include <map>
#include <memory>
#include <unicode/calendar.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace tarvanel {
namespace {

// The Umm al-Qura calendar and its formatter in one language, both in GMT so that only the
// local Gregorian date we hand in decides the day.
struct UmmAlQura {
    std::unique_ptr<icu::Calendar> calendar;
    std::unique_ptr<icu::SimpleDateFormat> format;

    explicit UmmAlQura(const QByteArray& language) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Locale locale((language + "@calendar=islamic-umalqura").constData());
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

    // English month names under an English or C locale, whatever the region: the date reads
    // the same on every English system. Other languages get their own month names and digits.
    static UmmAlQura& forLanguage() {
        const QLocale locale;
        const bool english =
            locale.language() == QLocale::English || locale.language() == QLocale::C;
        const QByteArray name = english ? QByteArray("en") : locale.name().toLatin1();
        static std::map<QByteArray, std::unique_ptr<UmmAlQura>> built;
        auto& u = built[name];
        if (!u) u = std::make_unique<UmmAlQura>(name);
        return *u;
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
    // The numbers do not depend on the language: one calendar serves every caller.
    static UmmAlQura u("en");
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
    UmmAlQura& u = UmmAlQura::forLanguage();
    icu::UnicodeString text;
    if (u.format && instant.isValid()) u.format->format(noonOfLocalDate(instant), text);
    //: A Hijri date: %1 is the day, month and year ("14 Ramadan 1446"); AH is the era.
    return QCoreApplication::translate("Hijri", "%1 AH")
        .arg(
            QString::fromUtf16(reinterpret_cast<const char16_t*>(text.getBuffer()), text.length()));
}

bool isRamadan(const QDateTime& instant) {
    return hijriDate(instant).month == 9;
}

} // namespace tarvanel
