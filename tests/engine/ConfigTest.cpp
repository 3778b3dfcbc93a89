#include "engine/Config.h"
#include "base/Language.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "records/ConfigFile.h"
#include "support/TestEnv.h"

#include <QJsonDocument>

using namespace tarvanel;
using tarvanel::test::writeSupportFile;

namespace {
using ConfigTest = test::ScratchTest;
} // namespace

TEST_F(ConfigTest, MissingEmptyAndNullsKeepDefaultsSilently) {
    EXPECT_EQ(loadConfig(), Config());
    EXPECT_FALSE(lastGoodConfig().has_value());
    writeSupportFile("config.json", R"({"lockLeadMinutes": null, "method": null})");
    EXPECT_EQ(loadConfig(), Config());
    EXPECT_TRUE(logs.isEmpty());
    // A method alone keeps the angles; whole numbers read as doubles; extra keys are ignored.
    writeSupportFile("config.json", R"({"method": "ISNA", "lockMinutes": 20, "extra": [1]})");
    Config expected;
    expected.method = "ISNA";
    expected.lockMinutes = 20;
    EXPECT_EQ(loadConfig(), expected);
}

TEST_F(ConfigTest, WrongTypeFallsBackToLastGoodAndReadersBoundHandEditedNumbersTheFileKeeps) {
    // No good file seen yet: defaults, with the message.
    writeSupportFile("config.json", R"({"latitude": "north", "lockMinutes": 30})");
    EXPECT_EQ(loadConfig(), Config());
    ASSERT_EQ(logs.size(), 1);
    EXPECT_TRUE(logs[0].startsWith("Tarvanel: config.json is invalid ("));
    EXPECT_TRUE(logs[0].endsWith("); keeping the last good settings"));
    EXPECT_EQ(lastConfigError(), "line 1: latitude: expected a number, found text");

    // A good file, then a broken one: the good settings stay.
    writeSupportFile("config.json", R"({"latitude": 51.5, "locationName": "London"})");
    const Config good = loadConfig();
    EXPECT_EQ(good.latitude, 51.5);
    for (const char* broken : {"not json", "[1,2]", R"({"nudgeOffsetsMinutes": [20, "x"]})",
                               R"({"prayerOverrides": {"Fajr": 5}})", R"({"strictMode": 1})", ""}) {
        writeSupportFile("config.json", broken);
        EXPECT_EQ(loadConfig(), good) << broken;
    }
    EXPECT_EQ(logs.size(), 7);
    writeSupportFile("config.json", "{\n  \"latitude\": 5,\n  \"strictMode\": 1\n}");
    loadConfig();
    EXPECT_EQ(lastConfigError(), "line 3: strictMode: expected a boolean, found a number");
    // In another language the user reads the error in it, and the log keeps it in English.
    applyLanguage(QStringLiteral("fr"));
    loadConfig();
    applyLanguage(QStringLiteral("en"));
    EXPECT_FALSE(lastConfigError()->contains(QStringLiteral("expected a boolean")));
    EXPECT_TRUE(lastConfigError()->contains(QStringLiteral("strictMode")));
    EXPECT_TRUE(logs.last().contains("(line 3: strictMode: expected a boolean, found a number)"));

    // Readers bound hand-edited numbers; the file keeps them.
    writeSupportFile("config.json", R"({"lockMinutes": 1e300, "lockLeadMinutes": -5,
        "jumuahLockMinutes": -1e300, "callGraceMinutes": 1e9, "excusedMaxDays": 0.2,
        "nudgeOffsetsMinutes": [1e300, -5, 0, 10, 2.5, 120, 120.5]})");
    const Config c = loadConfig();
    EXPECT_EQ(c.lockMinutes, 1e300);
    EXPECT_EQ(c.lockLength(), 180);
    EXPECT_EQ(c.leadMinutes(), 0);
    EXPECT_EQ(c.jumuahLock(), 1);
    EXPECT_EQ(c.callGrace(), 240);
    EXPECT_EQ(c.excusedDays(), 1);
    EXPECT_EQ(c.nudgeOffsets(), (QList<double>{10, 2.5, 120}));
    Config nan;
    nan.lockMinutes = std::nan("");
    nan.lockLeadMinutes = std::numeric_limits<double>::infinity();
    nan.excusedMaxDays = std::nullopt;
    EXPECT_EQ(nan.lockLength(), 15);
    EXPECT_EQ(nan.leadMinutes(), 5);
    EXPECT_EQ(nan.excusedDays(), 15);
}

TEST_F(ConfigTest, SaveRoundTripsEveryFieldLeavesOutAbsentOnesAndNeverWritesNonFiniteOnes) {
    writeSupportFile("config.json", R"({"latitude": 3, "colour": "green"})");
    saveConfig(Config()); // unknown keys vanish
    const auto bytes = readWholeFile(configURL());
    ASSERT_TRUE(bytes);
    const QJsonObject o = QJsonDocument::fromJson(*bytes).object();
    // Absent optionals are left out.
    EXPECT_EQ(o.keys().size(), 23);
    for (const char* key : {"method", "ishaMinutes", "maghribAngle", "calendarID", "colour"})
        EXPECT_FALSE(o.contains(key)) << key;

    Config c;
    c.locationName = "Doha";
    c.latitude = 25.28;
    c.method = "Qatar";
    c.ishaMinutes = 90;
    c.maghribAngle = 4.5;
    c.calendarID = "work/prayers";
    c.prayerOverrides = QMap<QString, QString>{{"Fajr", "+10"}, {"Isha", "20:30"}};
    c.nudgeOffsetsMinutes = {15, 1.5};
    c.strictMode = true;
    c.excusedMaxDays = 7.5;
    saveConfig(c);
    EXPECT_EQ(loadConfig(), c);
    // A non-finite number leaves the previous file whole.
    const QByteArray before = *readWholeFile(configURL());
    c.latitude = std::numeric_limits<double>::infinity();
    saveConfig(c);
    EXPECT_EQ(*readWholeFile(configURL()), before);
}

// A coordinate outside the Earth fails the decode like a wrong type; the bounds themselves
// are places. Every error names the expected value and what was found.
TEST_F(ConfigTest, CoordinatesOutsideTheEarthAndMixedArraysAreNamedInTheError) {
    struct Case {
        const char* json;
        const char* error; // nullptr: decodes
    };
    const Case cases[] = {
        {R"({"latitude": 90, "longitude": -180})", nullptr},
        {R"({"latitude": -90, "longitude": 180})", nullptr},
        {"{\n\"latitude\": 95}", "line 2: latitude: expected a number from -90 to 90, found 95"},
        {R"({"latitude": -90.0001})",
         "line 1: latitude: expected a number from -90 to 90, found -90.0001"},
        {R"({"longitude": 180.5})",
         "line 1: longitude: expected a number from -180 to 180, found 180.5"},
        {R"({"longitude": -1e300})",
         "line 1: longitude: expected a number from -180 to 180, found -1e+300"},
        {R"({"nudgeOffsetsMinutes": [20, 10, "5", 2]})",
         "line 1: nudgeOffsetsMinutes: expected an array of numbers, found an array with text at "
         "position 3"},
        {R"({"nudgeOffsetsMinutes": [null]})",
         "line 1: nudgeOffsetsMinutes: expected an array of numbers, found an array with null at "
         "position 1"},
        {R"({"nudgeOffsetsMinutes": "20"})",
         "line 1: nudgeOffsetsMinutes: expected an array of numbers, found text"},
        {R"({"prayerOverrides": {"Fajr": "+5", "Isha": [1]}})",
         "line 1: prayerOverrides: expected an object of texts, found an object with an array at "
         "\"Isha\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.json);
        writeSupportFile("config.json", c.json);
        const Config loaded = loadConfig();
        if (!c.error) {
            EXPECT_FALSE(lastConfigError().has_value());
            EXPECT_EQ(lastGoodConfig(), loaded);
            continue;
        }
        EXPECT_EQ(lastConfigError(), c.error);
        EXPECT_EQ(loaded.latitude, -90); // the last good settings stay
        EXPECT_EQ(loaded.longitude, 180);
    }
}

// A switch the file leaves out reads as the new settings' value; a present one reads as written.
TEST_F(ConfigTest, AbsentSwitchesReadAsTheDefaultsAndPresentOnesAsWritten) {
    using Flag = std::optional<bool> Config::*;
    using Reader = bool (Config::*)() const;
    const std::pair<Flag, Reader> switches[] = {
        {&Config::jumuahEnabled, &Config::jumuahOn},
        {&Config::ramadanMode, &Config::ramadanOn},
        {&Config::weeklyReport, &Config::weeklyReportOn},
        {&Config::travelMode, &Config::travelOn},
        {&Config::adhanEnabled, &Config::adhanOn},
        {&Config::calendarSync, &Config::calendarSyncOn},
        {&Config::focusShortcuts, &Config::focusOn},
        {&Config::strictMode, &Config::strictOn},
        {&Config::combineWhenTravelling, &Config::combineOn},
    };
    int on = 0;
    const Config fresh;
    for (const auto& [flag, read] : switches) {
        Config absent = fresh, flipped = fresh;
        absent.*flag = std::nullopt;
        flipped.*flag = !*(fresh.*flag);
        EXPECT_EQ((absent.*read)(), *(fresh.*flag));
        EXPECT_EQ((flipped.*read)(), !*(fresh.*flag));
        on += (absent.*read)();
    }
    EXPECT_EQ(on, 4); // Jumu'ah, Ramadan, the weekly report and the adhan start on
}
