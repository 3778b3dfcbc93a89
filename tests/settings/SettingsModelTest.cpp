// The settings model against a fake geocoder and a fixed clock, and the offline city search
// against the real GeoNames table.
#include "engine/LocalTime.h"
#include "guardian/Guardian.h"
#include "settings/CitySearch.h"
#include "settings/PrayerSettingsModel.h"
#include "support/TestEnv.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QThread>
#include <QThreadPool>
#include <QTimer>
#include <gtest/gtest.h>
#include <thread>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

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

SettingsServices services(std::shared_ptr<FakeGeocoder> geo = {}) {
    SettingsServices s;
    s.clock = [] { return monday; };
    s.localZone = [] { return QTimeZone("Europe/London"); };
    s.geocoder = std::move(geo);
    return s;
}

// Settings as saved by an earlier run, with some keys changed.
Config saved(const char* changes = "{}") {
    QJsonObject o = QJsonDocument::fromJson(R"({"locationName": "Toronto", "latitude": 43.7001,
        "longitude": -79.4163, "method": "ISNA", "fajrAngle": 15, "ishaAngle": 15, "asrFactor": 2,
        "lockMinutes": 20, "lockLeadMinutes": 7, "nudgeOffsetsMinutes": [15, 2.5], "prayerOverrides":
        {"Fajr": "+10", "Isha": "-5", "Maghrib": "19:40"}, "jumuahTime": "13:15", "jumuahLockMinutes":
        60, "travelMode": true, "excusedMaxDays": 9, "calendarSync": true, "calendarID":
        "work/calendar", "focusShortcuts": true, "strictMode": true})")
                        .object();
    const QJsonObject changed = QJsonDocument::fromJson(changes).object();
    for (auto it = changed.begin(); it != changed.end(); ++it)
        o[it.key()] = *it;
    return decodeConfig(o).value();
}

class SettingsModel : public ScratchTest {};

} // namespace

TEST_F(SettingsModel, DefaultsOfAnEmptyConfigAndTheCoordinateName) {
    PrayerSettingsModel m(Config(), true, services());
    const LocalFields jumuah = localFields(m.jumuahTime());
    EXPECT_EQ(std::tuple(m.methodID(), m.hanafi(), m.nudges(), m.lockLead(), m.jumuahEnabled(),
                         jumuah.hour, jumuah.minute, m.jumuahLock()),
              std::tuple(QString("MWL"), false, QString("20, 10, 5, 2"), 5, true, 13, 30, 45));
    EXPECT_TRUE(!m.hasLocation() && m.preview().isEmpty());
    EXPECT_EQ(m.makeConfig().locationName, "0.00, 0.00");

    m.setLatitude(51.5074);
    m.setLongitude(-0.1278);
    EXPECT_EQ(m.makeConfig().locationName, "51.51, -0.13");
    const QList<PreviewEntry> preview = m.preview();
    ASSERT_EQ(preview.size(), 6);
    EXPECT_EQ(preview[1].id, "today-Sunrise");
    EXPECT_FALSE(preview[1].lock.has_value());
    EXPECT_EQ(preview[2].lock.value_or(QDateTime()).secsTo(preview[2].start), 300);

    m.setNudges("5; 20, 10 10 abc 500");
    EXPECT_EQ(m.parsedNudges(), (QList<double>{20, 10, 5}));
    m.setNudges("abc");
    EXPECT_TRUE(m.makeConfig().nudgeOffsetsMinutes.isEmpty());
}

TEST_F(SettingsModel, UntouchedModelGivesBackTheSavedSettingsAndHandEditsBecomeRows) {
    // Isha by minutes: the user's Isha angle is kept.
    for (const Config& c :
         {saved(), saved(R"({"method": "Makkah", "fajrAngle": 18.5, "ishaMinutes": 90})"),
          saved(R"({"method": "Custom", "fajrAngle": 16.5, "ishaAngle": 14,
                                "asrFactor": 1, "calendarSync": false, "calendarID": null})")})
        EXPECT_EQ(PrayerSettingsModel(c, false, services()).makeConfig(), c)
            << c.method->toStdString();

    const Config c = saved(R"({"prayerOverrides": {"Fajr": " +0\t", "Dhuhr": "+1e300",
        "Asr": "\t-7.9 ", "Maghrib": "soon", "Isha": "21:05"}})");
    PrayerSettingsModel m(c, false, services());
    const QList<PrayerTimeRow> rows = m.rows();
    ASSERT_EQ(rows.size(), 5);
    QList<TimeMode> modes; // +1e300: no whole minutes can hold it
    for (const PrayerTimeRow& row : rows)
        modes << row.mode;
    EXPECT_EQ(modes, QList({TimeMode::offset, TimeMode::waqt, TimeMode::offset, TimeMode::waqt,
                            TimeMode::fixed}));
    EXPECT_EQ(std::pair(rows[0].minutes, rows[2].minutes), std::pair(0, -7));
    EXPECT_EQ(rows[3].time.toSecsSinceEpoch() % 300, 0); // the waqt rounded up to 5 minutes
    EXPECT_GE(rows[3].time, monday.addSecs(8 * 3600));
    EXPECT_EQ(m.makeConfig().prayerOverrides,
              (QMap<QString, QString>{{"Asr", "-7"}, {"Isha", "21:05"}})); // +0 writes nothing
}

TEST_F(SettingsModel, SearchFillsThePlaceSuggestsOnFirstRunAndWarnsOfAnotherZone) {
    auto geo = std::make_shared<FakeGeocoder>();
    auto find = [](PrayerSettingsModel& m, const QString& query) {
        m.setQuery(query);
        m.search();
        m.search(); // ignored while one runs
        EXPECT_EQ(m.searchMessage(), "Searching…");
        EXPECT_TRUE(waitFor([&] { return !m.searching(); }));
        return m.searchMessage();
    };
    geo->places = {{"Lahore", "Lahore", "Punjab", "Pakistan", "PK", "Asia/Karachi", 31.55809,
                    74.35071, 6310888, true}};
    PrayerSettingsModel first(Config(), true, services(geo));
    EXPECT_EQ(find(first, "  lahore "),
              "Found Lahore, Punjab, Pakistan. Suggested: Karachi (Univ. of Islamic Sciences), "
              "Hanafi Asr. Change it below if your mosque uses something else. Heads up: your "
              "computer is set to Europe/London, not Asia/Karachi. Times follow your computer's "
              "clock.");
    EXPECT_EQ(std::tuple(first.latitude(), first.longitude(), first.locationName(),
                         first.methodID(), first.hanafi()),
              std::tuple(31.558, 74.3507, QString("Lahore"), QString("Karachi"), true));

    // Not a first run: the method stays; a place in the computer's zone gets no heads-up.
    PrayerSettingsModel later(saved(), false, services(geo));
    EXPECT_TRUE(find(later, "Lahore").startsWith("Found Lahore, Punjab, Pakistan. Heads up: "));
    EXPECT_EQ(std::pair(later.methodID(), later.hanafi()), std::pair(QString("ISNA"), true));
    geo->places = {{"Westminster", "", "England", "United Kingdom", "GB", "Europe/London", 51.49999,
                    -0.12789, 1000, true}};
    EXPECT_EQ(find(later, "Westminster"), "Found Westminster, England, United Kingdom.");
    EXPECT_EQ(later.longitude(), -0.1278); // cut toward zero
    geo->places = {};
    EXPECT_EQ(find(later, "Atlantis"),
              "Couldn't find “Atlantis”. Check the spelling, or enter coordinates below.");
    EXPECT_EQ(later.locationName(), "Westminster");
    EXPECT_EQ(geo->asked, QStringList({"lahore", "Lahore", "Westminster", "Atlantis"}));

    // A model gone before the answer hears nothing (and nothing crashes).
    auto gone = std::make_unique<PrayerSettingsModel>(Config(), true, services(geo));
    gone->setQuery("London");
    gone->search();
    gone.reset();
    pump(30);
}

// Each search suggests for its own country only: a country with no suggestion takes back the
// last one (never the user's own pick), and several places of one name are offered to choose.
TEST_F(SettingsModel, SuggestionsFollowTheLastPlaceAndSameNamesOfferAChoice) {
    auto geo = std::make_shared<FakeGeocoder>();
    auto find = [&](PrayerSettingsModel& m, const QList<GeoPlace>& places) {
        geo->places = places;
        m.setQuery(places.value(0).name + "?");
        m.search();
        EXPECT_TRUE(waitFor([&] { return !m.searching(); }));
        return m.searchMessage();
    };
    auto place = [](const char* name, const char* area, const char* country, const char* code,
                    double lat) {
        return GeoPlace{name, name, area, country, code, "Europe/London", lat, -1, 1000, true};
    };
    const GeoPlace makkah = place("Makkah", "Makkah Region", "Saudi Arabia", "SA", 21.4266);
    const GeoPlace cologne = place("Cologne", "North Rhine-Westphalia", "Germany", "DE", 50.9333);
    const GeoPlace london = place("London", "England", "United Kingdom", "GB", 51.5085);
    const QList<GeoPlace> springfields{
        place("Springfield", "Missouri", "United States", "US", 37.2153),
        place("Springfield", "Massachusetts", "United States", "US", 42.1015),
        place("Springfield", "Missouri", "United States", "US", 37.3), // the same line again
        place("Springfield Gardens", "New York", "United States", "US", 40.6632),
        place("Springfield", "Illinois", "United States", "US", 39.80175)};

    PrayerSettingsModel m(Config(), true, services(geo));
    EXPECT_TRUE(find(m, {makkah}).contains(" Suggested: Umm al-Qura (Makkah)."));
    EXPECT_EQ(m.methodID(), "Makkah");
    EXPECT_EQ(find(m, {cologne}), "Found Cologne, North Rhine-Westphalia, Germany.");
    EXPECT_EQ(std::pair(m.methodID(), m.hanafi()), std::pair(QString("MWL"), false));
    EXPECT_TRUE(m.places().isEmpty());

    EXPECT_TRUE(find(m, springfields).contains(" Suggested: ISNA (North America)."));
    EXPECT_EQ(m.methodID(), "ISNA");
    ASSERT_EQ(m.places().size(), 3);
    QStringList lines;
    for (const GeoPlace& p : m.places())
        lines << placeLine(p);
    EXPECT_EQ(lines, QStringList({"Springfield, Missouri, United States",
                                  "Springfield, Massachusetts, United States",
                                  "Springfield, Illinois, United States"}));
    EXPECT_EQ(m.latitude(), 37.2153);
    m.choosePlace(2);
    EXPECT_EQ(m.latitude(), 39.8017);
    EXPECT_TRUE(m.searchMessage().startsWith("Found Springfield, Illinois, United States."));
    EXPECT_EQ(m.methodID(), "ISNA");
    m.choosePlace(3); // out of range: nothing changes
    EXPECT_EQ(m.latitude(), 39.8017);
    EXPECT_EQ(find(m, {london}), "Found London, England, United Kingdom.");
    EXPECT_EQ(m.methodID(), "MWL");
    EXPECT_TRUE(m.places().isEmpty());

    // The user's own choice after a suggestion stays when the next country has none.
    find(m, {place("Lahore", "Punjab", "Pakistan", "PK", 31.5581)});
    EXPECT_EQ(std::pair(m.methodID(), m.hanafi()), std::pair(QString("Karachi"), true));
    m.setMethodID("Egypt");
    find(m, {cologne});
    EXPECT_EQ(std::pair(m.methodID(), m.hanafi()), std::pair(QString("Egypt"), true));
}

// A refused calendar (answered later, from another thread) says where access comes from on this
// computer; Write Scripts names every script of the user's it would replace.
TEST_F(SettingsModel, RefusedCalendarAndTheUsersOwnScriptsSayWhatHappensHere) {
    SettingsServices s = services();
    s.calendarAuthorized = [] { return false; };
    s.requestCalendarAccess = [](std::function<void(bool)> done) {
        QThreadPool::globalInstance()->start([done] {
            QThread::msleep(5);
            done(false);
        });
    };
    QStringList own{"Tarvanel Focus On", "Tarvanel Focus Off"}, written, asked;
    s.focusHandWritten = [&] { return own; };
    s.confirmReplace = [&](const QString& question, const QString& info) {
        asked << question << info;
        return true;
    };
    s.writeFocus = [&](const QString& desktop) {
        written << desktop;
        own.clear();
        return true;
    };
    PrayerSettingsModel m(saved(R"({"calendarSync": false})"), false, s);
    m.calendarToggled(true);
    EXPECT_EQ(m.calendarMessage(), "Asking for Calendar access…");
    ASSERT_TRUE(waitFor([&] { return !m.calendarSync(); }));
    EXPECT_EQ(m.calendarMessage(),
              "Calendar access is off. Tarvanel writes its events under ~/.local/share/calendars: "
              "turn this on again and choose Allow, and check that you can write to that folder.");
    EXPECT_EQ(m.makeConfig().calendarSync, false);

    m.writeFocusScripts("GNOME");
    EXPECT_EQ(asked.value(0), "Replace your own “Tarvanel Focus On” and “Tarvanel Focus Off”?");
    EXPECT_EQ(written, QStringList{"GNOME"});
    EXPECT_EQ(m.focusMessage(), "Wrote “Tarvanel Focus On” and “Tarvanel Focus Off” for GNOME.");
    asked.clear();
    m.writeFocusScripts("MATE"); // Tarvanel's own pair: replaced without a question
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(written, QStringList({"GNOME", "MATE"}));

    // With nobody to ask, the user's scripts stay.
    s.confirmReplace = nullptr;
    PrayerSettingsModel quiet(Config(), false, s);
    own = QStringList{"Tarvanel Focus On"};
    quiet.writeFocusScripts("MATE");
    EXPECT_EQ(written.size(), 2);
    EXPECT_EQ(quiet.focusMessage(), "Kept your own “Tarvanel Focus On”.");
}

TEST_F(SettingsModel, GuardianCodeTypedInPersianDigitsWithASpaceIsAccepted) {
    PrayerSettingsModel m(Config(), false, services());
    m.startGuardian();
    ASSERT_TRUE(m.guardianDraft().has_value());
    const QString key = m.guardianSecretText(); // 32 base32 characters in 8 groups
    EXPECT_EQ(key.split(' ').size(), 8);
    EXPECT_EQ(QString(key).remove(' '), Guardian::base32(*m.guardianDraft()));

    const QString code = Guardian::code(*m.guardianDraft(), monday.addSecs(-30));
    m.setGuardianCode(code.left(3) == "000" ? "111 111" : "000 000");
    m.confirmGuardian();
    EXPECT_EQ(m.guardianMessage(),
              "That code doesn't match. Check both clocks are right and try the newest code.");
    EXPECT_FALSE(Guardian::isSet());

    // Typed in Persian digits, a space between the halves.
    QString persian;
    for (const QChar c : code)
        persian += QChar(char16_t(0x06F0 + c.digitValue()));
    m.setGuardianCode(persian.left(3) + " " + persian.mid(3));
    m.confirmGuardian();
    EXPECT_EQ(m.guardianMessage(), "Guardian code is on.");
    EXPECT_TRUE(m.guardianSet() && !m.guardianDraft() && Guardian::isSet());
    m.removeGuardian();
    EXPECT_FALSE(Guardian::isSet());
}

TEST(CitySearch, FoldsSpellingsAndPrefersTheMostPopulous) {
    EXPECT_EQ(foldPlaceName("  KÖLN-Süd "), "koln sud");
    const QString table = R"(Mecca|Makkah al Mukarramah|SA;Koln|Cologne|DE;Köln|Cologne|DE
        sao paulo|São Paulo|BR;LONDON|London|GB;London, Canada|London|CA;Madinah|Medina|SA
        Springfield|Springfield|US;Qqqzzzx||)";
    const std::shared_ptr<const CityTable> cities = CityTable::shared();
    for (const QString& row : table.split(QRegularExpression("\\s*[;\\n]\\s*"))) {
        const QStringList want = row.split('|');
        const QList<GeoPlace> found = cities->match(want[0]);
        // Any list of places answers as the table does, folding as it goes.
        const QList<GeoPlace> plain = matchCities(cities->places(), want[0], 3);
        EXPECT_EQ(plain.value(0).name + plain.value(0).administrativeArea,
                  found.value(0).name + found.value(0).administrativeArea);
        EXPECT_LE(plain.size(), 3);
        const GeoPlace best = found.value(0);
        EXPECT_EQ(QStringList({want[0], best.name, best.isoCountryCode}), want);
        EXPECT_EQ(best.timeZone.isEmpty(), found.isEmpty());
    }
}

TEST(CitySearch, TheTableIsInMemoryOnlyWhileAGeocoderHoldsIt) {
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_FALSE(CityTable::inMemory());
    QList<GeoPlace> answer;
    {
        GeonamesGeocoder geocoder; // starts reading the table at once
        QObject context;
        geocoder.geocode("Mecca", &context,
                         [&](const QList<GeoPlace>& places) { answer = places; });
        ASSERT_TRUE(waitFor([&] { return !answer.isEmpty(); }));
        EXPECT_EQ(answer.first().name, "Makkah al Mukarramah");
        EXPECT_TRUE(CityTable::inMemory());
        // A second holder shares the table rather than reading another.
        EXPECT_EQ(&CityTable::shared()->places(), &CityTable::shared()->places());
    }
    // The searches under way hold it too, then let it go.
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_FALSE(CityTable::inMemory());
    { GeonamesGeocoder closedAtOnce; }
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_FALSE(CityTable::inMemory());
}
