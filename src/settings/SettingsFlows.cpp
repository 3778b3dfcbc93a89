// The settings model's small flows: city search, adhan sound, calendar access, Focus shortcuts
// and the guardian code set-up.
#include "base/StateFiles.h"
#include "engine/CalcMethods.h"
#include "guardian/Guardian.h"
#include "settings/CitySearch.h"
#include "settings/PrayerSettingsModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>
#include <cmath>

namespace tarvanel {

namespace {

double cutToFourDecimals(double v) {
    return std::trunc(v * 10000.0) / 10000.0;
}

// Runs `work` on the main thread unless the model has gone away by then. The weak pointer is
// made on the main thread, before any other thread is involved.
void onMainThread(const QPointer<PrayerSettingsModel>& weak, std::function<void()> work) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [weak, work = std::move(work)] {
            if (weak) work();
        },
        Qt::QueuedConnection);
}

} // namespace

QString placeLine(const GeoPlace& place) {
    QStringList parts;
    for (const QString& p : {place.locality.isEmpty() ? place.name : place.locality,
                             place.administrativeArea, place.country})
        if (!p.isEmpty() && !parts.contains(p)) parts << p;
    return parts.join(QStringLiteral(", "));
}

QString foundMessage(const GeoPlace& place) {
    //: After a city search: %1 is the place found ("Leeds, England, United Kingdom").
    return PrayerSettingsModel::tr("Found %1.").arg(placeLine(place));
}

QList<GeoPlace> sameNamePlaces(const QList<GeoPlace>& places) {
    if (places.isEmpty()) return {};
    const QString name = foldPlaceName(places.first().name);
    QList<GeoPlace> same;
    QStringList lines;
    for (const GeoPlace& p : places) {
        if (!p.hasLocation || foldPlaceName(p.name) != name || lines.contains(placeLine(p)))
            continue;
        same << p;
        lines << placeLine(p);
    }
    return same.size() > 1 ? same : QList<GeoPlace>();
}

void PrayerSettingsModel::search() {
    const QString text = query_.trimmed();
    if (text.isEmpty() || searching_) return;
    setSearching(true);
    setSearchMessage(tr("Searching…"));
    if (!services_.geocoder) {
        // No geocoder: answer as "nothing found", still later, like a real one.
        onMainThread(QPointer<PrayerSettingsModel>(this), [this, text] { answerSearch(text, {}); });
        return;
    }
    services_.geocoder->geocode(
        text, this, [this, text](const QList<GeoPlace>& places) { answerSearch(text, places); });
}

void PrayerSettingsModel::answerSearch(const QString& text, const QList<GeoPlace>& places) {
    setSearching(false);
    if (places.isEmpty() || !places.first().hasLocation) {
        setPlaces({});
        //: %1 is the place the user searched for.
        setSearchMessage(
            tr("Couldn't find “%1”. Check the spelling, or enter coordinates below.").arg(text));
        return;
    }
    setPlaces(sameNamePlaces(places));
    usePlace(places.first());
}

void PrayerSettingsModel::choosePlace(int index) {
    if (index >= 0 && index < places_.size()) usePlace(places_[index]);
}

QString PrayerSettingsModel::suggestMethod(const QString& countryCode) {
    const auto suggestion = suggestedMethods().constFind(countryCode.toUpper());
    QString name;
    if (suggestion != suggestedMethods().constEnd())
        for (const CalcMethod& m : calcMethods())
            if (m.id == suggestion->methodId) name = m.name;
    const bool standing =
        suggested_ && methodID_ == suggested_->first && hanafi_ == suggested_->second;
    if (name.isEmpty()) {
        // The last place's suggestion does not hold here; a method the user chose stays.
        if (standing) {
            setMethodID(ownMethod_.first);
            setHanafi(ownMethod_.second);
        }
        suggested_.reset();
        return QString();
    }
    if (!standing) ownMethod_ = {methodID_, hanafi_};
    setMethodID(suggestion->methodId);
    setHanafi(suggestion->hanafi);
    suggested_ = std::pair{suggestion->methodId, suggestion->hanafi};
    if (suggestion->hanafi)
        //: Follows "Found <place>." %1 is a calculation method ("Muslim World League").
        return u' ' + tr("Suggested: %1, Hanafi Asr. Change it below if your mosque uses "
                         "something else.")
                          .arg(name);
    //: Follows "Found <place>." %1 is a calculation method ("Muslim World League").
    return u' ' +
           tr("Suggested: %1. Change it below if your mosque uses something else.").arg(name);
}

void PrayerSettingsModel::usePlace(const GeoPlace& place) {
    setLatitude(cutToFourDecimals(place.latitude));
    setLongitude(cutToFourDecimals(place.longitude));
    setLocationName(place.locality.isEmpty() ? place.name : place.locality);
    QString message = foundMessage(place);
    if (firstRun_) message += suggestMethod(place.isoCountryCode);
    if (!place.timeZone.isEmpty()) {
        const QTimeZone there(place.timeZone.toUtf8());
        const QTimeZone here = services_.localZone();
        const QDateTime at = now();
        if (there.isValid() && there.offsetFromUtc(at) != here.offsetFromUtc(at)) {
            //: %1 and %2 are time zones such as "Europe/London" and "Asia/Karachi".
            message += u' ' + tr("Heads up: your computer is set to %1, not %2. Times follow "
                                 "your computer's clock.")
                                  .arg(QString::fromUtf8(here.id()), place.timeZone);
        }
    }
    setSearchMessage(message);
}

// Adhan sound: ~/.tarvanel/adhan.<extension>, one at a time.

void PrayerSettingsModel::useAdhanFile(const QString& path) {
    stopAdhan();
    QString ext = QFileInfo(path).suffix().toLower();
    if (ext == QLatin1String("aif")) ext = QStringLiteral("aiff");
    if (!adhanExtensions().contains(ext)) return;
    for (const QString& e : adhanExtensions())
        QFile::remove(supportPath(QStringLiteral("adhan.") + e));
    ensureSupportDir();
    const QString target = supportPath(QStringLiteral("adhan.") + ext);
    if (!QFile::copy(path, target)) return;
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    setAdhanName(QFileInfo(target).fileName());
}

void PrayerSettingsModel::togglePlay() {
    if (playing_) {
        stopAdhan();
        return;
    }
    if (!adhanName_ || !services_.playSound) return;
    const QString path = supportPath(*adhanName_);
    if (QFileInfo(path).isFile() && services_.playSound(path)) setPlaying(true);
}

void PrayerSettingsModel::stopAdhan() {
    if (playing_ && services_.stopSound) services_.stopSound();
    setPlaying(false);
}

void PrayerSettingsModel::removeAdhan() {
    stopAdhan();
    for (const QString& e : adhanExtensions())
        QFile::remove(supportPath(QStringLiteral("adhan.") + e));
    setAdhanName(std::nullopt);
}

// Calendar.

void PrayerSettingsModel::calendarToggled(bool on) {
    setCalendarSync(on);
    if (!on) return;
    if (services_.calendarAuthorized && services_.calendarAuthorized()) {
        loadCalendars();
        return;
    }
    if (!services_.requestCalendarAccess) return;
    setCalendarMessage(tr("Asking for Calendar access…"));
    services_.requestCalendarAccess(
        [this, weak = QPointer<PrayerSettingsModel>(this)](bool granted) {
            onMainThread(weak, [this, granted] {
                if (granted) {
                    setCalendarMessage(QString());
                    loadCalendars();
                } else {
                    setCalendarSync(false);
                    //: "Allow" is the button of the question asking for calendar access.
                    setCalendarMessage(
                        tr("Calendar access is off. Tarvanel writes its events under "
                           "~/.local/share/calendars: turn this on again and choose Allow, and "
                           "check that you can write to that folder."));
                }
            });
        });
}

void PrayerSettingsModel::loadCalendars() {
    if (services_.writableCalendars) setCalendars(services_.writableCalendars());
}

// Focus.

void PrayerSettingsModel::checkFocus() {
    if (!services_.focusInstalled) return;
    QPointer<PrayerSettingsModel> weak(this);
    QThreadPool::globalInstance()->start([this, weak, installed = services_.focusInstalled] {
        const bool both = installed();
        onMainThread(weak, [this, both] { setFocusInstalled(both); });
    });
}

void PrayerSettingsModel::testFocus() {
    if (!services_.runFocus) return;
    services_.runFocus(true);
    //: Focus: the desktop's do-not-disturb mode, turned on while a lock lasts.
    setFocusMessage(tr("Focus on for 10 seconds… check that notifications stay quiet."));
    QTimer::singleShot(10000, this, [this] {
        services_.runFocus(false);
        setFocusMessage(tr("Done. Focus is off again."));
    });
}

void PrayerSettingsModel::openShortcuts() {
    if (services_.openShortcuts) services_.openShortcuts();
}

namespace {
// “A”, or “A” and “B”.
QString quotedNames(const QStringList& names) {
    QString text;
    for (const QString& name : names) {
        //: A shortcut's name in quotation marks; use the language's own marks.
        const QString quoted = PrayerSettingsModel::tr("“%1”").arg(name);
        //: Two names in a list, each already quoted: “A” and “B”.
        text = text.isEmpty() ? quoted : PrayerSettingsModel::tr("%1 and %2").arg(text, quoted);
    }
    return text;
}
} // namespace

void PrayerSettingsModel::writeFocusScripts(const QString& desktop) {
    if (!services_.writeFocus) return;
    // Scripts the user wrote are replaced only when they say so; Cancel is the default.
    const QStringList own =
        services_.focusHandWritten ? services_.focusHandWritten() : QStringList();
    if (!own.isEmpty()) {
        QPointer<PrayerSettingsModel> weak(this);
        //: %1 is one or two shortcut names the user wrote, already quoted.
        const QString question = tr("Replace your own %1?").arg(quotedNames(own));
        //: %1 is a desktop such as "GNOME" or "XFCE".
        const QString detail =
            tr("Tarvanel's pair for %1 takes the place of what you wrote.").arg(desktop);
        const bool replace = services_.confirmReplace && services_.confirmReplace(question, detail);
        if (!weak) return; // the window went away while the question was open
        if (!replace) {
            //: %1 is one or two shortcut names the user wrote, already quoted.
            setFocusMessage(tr("Kept your own %1.").arg(quotedNames(own)));
            return;
        }
    }
    const QString pair = quotedNames({services_.focusOnName, services_.focusOffName});
    if (services_.writeFocus(desktop))
        //: %1 is the two quoted shortcut names (“Tarvanel Focus On” and “Tarvanel Focus Off”),
        //: %2 a desktop such as "GNOME".
        setFocusMessage(tr("Wrote %1 for %2.").arg(pair, desktop));
    else
        //: %1 is the two quoted shortcut names.
        setFocusMessage(
            tr("Couldn't write %1. The log in ~/.tarvanel/log.txt says why.").arg(pair));
    checkFocus();
}

// Guardian.

void PrayerSettingsModel::startGuardian() {
    setGuardianDraft(Guardian::newSecret());
    setGuardianCode(QString());
    setGuardianMessage(QString());
}

void PrayerSettingsModel::cancelGuardian() {
    setGuardianDraft(std::nullopt);
    setGuardianCode(QString());
    setGuardianMessage(QString());
}

QString PrayerSettingsModel::guardianSecretText() const {
    if (!guardianDraft_) return {};
    const QString b32 = Guardian::base32(*guardianDraft_);
    QStringList groups;
    for (qsizetype i = 0; i < b32.size(); i += 4)
        groups << b32.mid(i, 4);
    return groups.join(QLatin1Char(' '));
}

void PrayerSettingsModel::confirmGuardian() {
    if (!guardianDraft_) return;
    if (Guardian::matches(*guardianDraft_, guardianCode_, now())) {
        Guardian::save(*guardianDraft_);
        setGuardianDraft(std::nullopt);
        setGuardianSet(true);
        //: The guardian: the person whose six-digit code ends a lock early.
        setGuardianMessage(tr("Guardian code is on."));
    } else {
        setGuardianMessage(
            tr("That code doesn't match. Check both clocks are right and try the newest code."));
    }
}

void PrayerSettingsModel::removeGuardian() {
    Guardian::remove();
    setGuardianSet(false);
    setGuardianMessage(QString());
}

} // namespace tarvanel
