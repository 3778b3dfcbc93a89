// The settings model against a fake geocoder and a fixed clock, and the offline city search
// against the real GeoNames table.
#include "engine/LocalTime.h"
#include "guardian/Guardian.h"
#include "records/StateFiles.h"
#include "settings/CitySearch.h"
#include "settings/PrayerSettingsModel.h"
#include "support/TestEnv.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

bool waitFor(const std::function<bool()>& done, int timeoutMs) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > timeoutMs) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return true;
}
void pump(int ms) {
    waitFor([] { return false; }, ms);
}

const QDateTime monday = QDateTime::fromString("2025-03-03T09:00:00Z", Qt::ISODate);

// Answers like a real geocoder: later, through the event loop.
struct FakeGeocoder : Geocoder {
    QList<GeoPlace> places;
    QStringList asked;
    void geocode(const QString& text, QObject* context,
                 std::function<void(QList<GeoPlace>)> answer) override {
        asked << text;
        QTimer::singleShot(5, context, [answer, p = places] { answer(p); });
    }
};

const GeoPlace lahore{"Lahore",       "Lahore", "Punjab", "Pakistan", "PK",
                      "Asia/Karachi", 31.55809, 74.35071, 6310888,    true};
const GeoPlace westminster{
    "Westminster", "",   "England", "United Kingdom", "GB", "Europe/London", 51.49999,
    -0.12789,      1000, true};

SettingsServices services(std::shared_ptr<FakeGeocoder> geo = {}) {
    SettingsServices s;
    s.clock = [] { return monday; };
    s.localZone = [] { return QTimeZone("Europe/London"); };
    s.geocoder = std::move(geo);
    return s;
}

Config saved() {
    Config c;
    c.locationName = "Toronto";
    c.latitude = 43.7001;
    c.longitude = -79.4163;
    c.method = "ISNA";
    c.fajrAngle = 15;
    c.ishaAngle = 15;
    c.asrFactor = 2;
    c.lockMinutes = 20;
    c.lockLeadMinutes = 7;
    c.nudgeOffsetsMinutes = {15, 2.5};
    c.prayerOverrides =
        QMap<QString, QString>{{"Fajr", "+10"}, {"Isha", "-5"}, {"Maghrib", "19:40"}};
    c.jumuahTime = "13:15";
    c.jumuahLockMinutes = 60;
    c.travelMode = true;
    c.calendarSync = true;
    c.calendarID = "work/calendar";
    c.focusShortcuts = true;
    c.strictMode = true;
    c.excusedMaxDays = 9;
    return c;
}

class SettingsModel : public ScratchTest {};

} // namespace

TEST_F(SettingsModel, DefaultsOfAnEmptyConfigAndTheCoordinateName) {
    PrayerSettingsModel m(Config(), true, services());
    EXPECT_EQ(m.methodID(), "MWL");
    EXPECT_FALSE(m.hanafi());
    EXPECT_EQ(m.nudges(), "20, 10, 5, 2");
    EXPECT_EQ(m.lockLead(), 5);
    EXPECT_TRUE(m.jumuahEnabled());
    EXPECT_EQ(localFields(m.jumuahTime()).hour * 60 + localFields(m.jumuahTime()).minute,
              13 * 60 + 30);
    EXPECT_EQ(m.jumuahLock(), 45);
    EXPECT_FALSE(m.hasLocation());
    EXPECT_TRUE(m.preview().isEmpty());
    EXPECT_EQ(m.makeConfig().locationName, "0.00, 0.00");

    m.setLatitude(51.5074);
    m.setLongitude(-0.1278);
    EXPECT_EQ(m.makeConfig().locationName, "51.51, -0.13");
    const QList<PreviewEntry> preview = m.preview();
    ASSERT_EQ(preview.size(), 6);
    EXPECT_EQ(preview[1].id, "today-Sunrise");
    EXPECT_FALSE(preview[1].lock.has_value());
    ASSERT_TRUE(preview[2].lock.has_value()); // Dhuhr locks 5 minutes before its time
    EXPECT_EQ(preview[2].lock->secsTo(preview[2].start), 300);

    m.setNudges("5; 20, 10 10 abc 500");
    EXPECT_EQ(m.parsedNudges(), (QList<double>{20, 10, 5}));
    m.setNudges("abc");
    EXPECT_TRUE(m.makeConfig().nudgeOffsetsMinutes.isEmpty());
}

TEST_F(SettingsModel, UntouchedModelGivesBackTheSavedSettings) {
    Config custom = saved();
    custom.method = "Custom";
    custom.fajrAngle = 16.5;
    custom.ishaAngle = 14;
    custom.asrFactor = 1;
    custom.calendarSync = false;
    custom.calendarID.reset();
    Config makkah = saved(); // Isha by minutes: the user's Isha angle is kept
    makkah.method = "Makkah";
    makkah.fajrAngle = 18.5;
    makkah.ishaMinutes = 90;
    for (const Config& c : {saved(), custom, makkah}) {
        SCOPED_TRACE(c.method->toStdString());
        PrayerSettingsModel m(c, false, services());
        EXPECT_EQ(m.makeConfig(), c);
    }
}

TEST_F(SettingsModel, HandEditedOverridesBecomeRows) {
    Config c = saved();
    c.prayerOverrides = QMap<QString, QString>{{"Fajr", " +0\t"},
                                               {"Dhuhr", "+1e300"},
                                               {"Asr", "\t-7.9 "},
                                               {"Maghrib", "soon"},
                                               {"Isha", "21:05"}};
    PrayerSettingsModel m(c, false, services());
    const QList<PrayerTimeRow> rows = m.rows();
    ASSERT_EQ(rows.size(), 5);
    EXPECT_EQ(rows[0].mode, TimeMode::offset);
    EXPECT_EQ(rows[0].minutes, 0);
    EXPECT_EQ(rows[1].mode, TimeMode::waqt); // a number no whole minutes can hold
    EXPECT_EQ(rows[2].mode, TimeMode::offset);
    EXPECT_EQ(rows[2].minutes, -7);
    EXPECT_EQ(rows[3].mode, TimeMode::waqt);
    EXPECT_EQ(rows[3].time.toSecsSinceEpoch() % 300, 0); // the waqt rounded up to 5 minutes
    EXPECT_GE(rows[3].time, monday.addSecs(8 * 3600));
    EXPECT_EQ(rows[4].mode, TimeMode::fixed);
    EXPECT_EQ(m.makeConfig().prayerOverrides,
              (QMap<QString, QString>{{"Asr", "-7"}, {"Isha", "21:05"}})); // +0 writes nothing
}

TEST_F(SettingsModel, SearchFillsThePlaceSuggestsOnFirstRunAndWarnsOfAnotherZone) {
    auto geo = std::make_shared<FakeGeocoder>();
    geo->places = {lahore};
    PrayerSettingsModel first(Config(), true, services(geo));
    first.setQuery("  lahore ");
    first.search();
    first.search(); // ignored while one runs
    EXPECT_TRUE(first.searching());
    EXPECT_EQ(first.searchMessage(), "Searching…");
    ASSERT_TRUE(waitFor([&] { return !first.searching(); }, 2000));
    EXPECT_EQ(geo->asked, QStringList{"lahore"});
    EXPECT_EQ(first.latitude(), 31.558);
    EXPECT_EQ(first.longitude(), 74.3507);
    EXPECT_EQ(first.locationName(), "Lahore");
    EXPECT_EQ(first.methodID(), "Karachi");
    EXPECT_TRUE(first.hanafi());
    EXPECT_EQ(first.searchMessage(),
              "Found Lahore, Punjab, Pakistan. Suggested: Karachi (Univ. of Islamic Sciences), "
              "Hanafi Asr. Change it below if your mosque uses something else. Heads up: your "
              "computer is set to Europe/London, not Asia/Karachi. Times follow your computer's "
              "clock.");

    // Not a first run: the method stays; a place in the computer's zone gets no heads-up.
    geo->places = {westminster};
    PrayerSettingsModel later(saved(), false, services(geo));
    later.setQuery("Westminster");
    later.search();
    ASSERT_TRUE(waitFor([&] { return !later.searching(); }, 2000));
    EXPECT_EQ(later.methodID(), "ISNA");
    EXPECT_TRUE(later.hanafi());
    EXPECT_EQ(later.longitude(), -0.1278); // cut toward zero
    EXPECT_EQ(later.searchMessage(), "Found Westminster, England, United Kingdom.");

    geo->places = {};
    later.setQuery("Atlantis");
    later.search();
    ASSERT_TRUE(waitFor([&] { return !later.searching(); }, 2000));
    EXPECT_EQ(later.searchMessage(),
              "Couldn't find “Atlantis”. Check the spelling, or enter coordinates below.");
    EXPECT_EQ(later.locationName(), "Westminster");

    // A model gone before the answer hears nothing (and nothing crashes).
    auto gone = std::make_unique<PrayerSettingsModel>(Config(), true, services(geo));
    gone->setQuery("London");
    gone->search();
    gone.reset();
    pump(30);
}

TEST_F(SettingsModel, GuardianCodeTypedWithASpaceIsAccepted) {
    PrayerSettingsModel m(Config(), false, services());
    m.startGuardian();
    ASSERT_TRUE(m.guardianDraft().has_value());
    const QString key = m.guardianSecretText();
    EXPECT_EQ(key.size(), 32 + 7); // 32 base32 characters in 8 groups
    EXPECT_EQ(key.split(' ').size(), 8);
    EXPECT_EQ(QString(key).remove(' '), Guardian::base32(*m.guardianDraft()));

    const QString code = Guardian::code(*m.guardianDraft(), monday.addSecs(-30));
    m.setGuardianCode(code.left(3) == "000" ? "111 111" : "000 000");
    m.confirmGuardian();
    EXPECT_TRUE(m.guardianDraft().has_value());
    EXPECT_EQ(m.guardianMessage(),
              "That code doesn't match. Check both clocks are right and try the newest code.");
    EXPECT_FALSE(Guardian::isSet());

    m.setGuardianCode(code.left(3) + " " + code.mid(3));
    m.confirmGuardian();
    EXPECT_EQ(m.guardianMessage(), "Guardian code is on.");
    EXPECT_TRUE(m.guardianSet());
    EXPECT_FALSE(m.guardianDraft().has_value());
    EXPECT_TRUE(Guardian::isSet());
    m.removeGuardian();
    EXPECT_FALSE(Guardian::isSet());
}

TEST_F(SettingsModel, CalendarAccessAnsweredFromAnotherThread) {
    SettingsServices s = services();
    bool grant = false;
    s.calendarAuthorized = [] { return false; };
    s.requestCalendarAccess = [&grant](std::function<void(bool)> done) {
        QThread* t = QThread::create([done, g = grant] { done(g); });
        QObject::connect(t, &QThread::finished, t, &QObject::deleteLater);
        t->start();
    };
    s.writableCalendars = [] { return QList<CalendarChoice>{{"acct/work", "Work", "acct"}}; };
    PrayerSettingsModel m(Config(), false, s);
    m.calendarToggled(true);
    EXPECT_EQ(m.calendarMessage(), "Asking for Calendar access…");
    ASSERT_TRUE(waitFor([&] { return !m.calendarSync(); }, 2000));
    EXPECT_EQ(m.calendarMessage(), "Calendar access is off. Turn on Tarvanel in System Settings → "
                                   "Privacy & Security → Calendars.");
    grant = true;
    m.calendarToggled(true);
    ASSERT_TRUE(waitFor([&] { return !m.calendars().isEmpty(); }, 2000));
    EXPECT_TRUE(m.calendarSync());
    EXPECT_TRUE(m.calendarMessage().isEmpty());
    EXPECT_FALSE(m.makeConfig().calendarSync.value()); // on, but no calendar chosen yet
}

TEST(CitySearch, FoldsSpellingsAndPrefersTheMostPopulous) {
    EXPECT_EQ(foldPlaceName("  KÖLN-Süd "), "koln sud");
    struct Case {
        const char* query;
        const char* name;
        const char* code;
    };
    for (const Case& c :
         {Case{"Mecca", "Makkah al Mukarramah", "SA"}, Case{"Koln", "Cologne", "DE"},
          Case{"Köln", "Cologne", "DE"}, Case{"sao paulo", "São Paulo", "BR"},
          Case{"LONDON", "London", "GB"}, Case{"London, Canada", "London", "CA"},
          Case{"Springfield", "Springfield", "US"}, Case{"Madinah", "Medina", "SA"}}) {
        SCOPED_TRACE(c.query);
        const QList<GeoPlace> found = matchCities(geonamesCities(), c.query);
        ASSERT_FALSE(found.isEmpty());
        EXPECT_EQ(found[0].name, c.name);
        EXPECT_EQ(found[0].isoCountryCode, c.code);
        EXPECT_FALSE(found[0].timeZone.isEmpty());
        for (int i = 1; i < found.size(); ++i) {
            if (found[i].name == found[0].name) {
                EXPECT_LE(found[i].population, found[0].population);
            }
        }
    }
    EXPECT_TRUE(matchCities(geonamesCities(), "Qqqzzzx").isEmpty());
}
