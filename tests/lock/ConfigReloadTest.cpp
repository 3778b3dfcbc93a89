// Hand edits of config.json while the program runs: a bad one is said on screen once and the
// last good settings keep locking; a good one reaches an open settings window.
#include "DaySimulator.h"

#include "base/StateFiles.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

using ConfigReloadTest = SimTest;

// The settings of `cfg` as one line of JSON, with `key` set to `value`.
QByteArray editedJson(const Config& cfg, const char* key, const QJsonValue& value) {
    QJsonObject o = *encodeConfig(cfg);
    o.insert(QLatin1String(key), value);
    return QJsonDocument(o).toJson(QJsonDocument::Compact);
}

const QString kKept = QStringLiteral(". Tarvanel keeps the last good settings.");

TEST_F(ConfigReloadTest, BadHandEditsAreSaidOnceEachAndTheLastGoodSettingsKeepLocking) {
    const Config good = fixedTimesConfig();
    DaySimulator sim(good, at("12:20:00.5"));
    auto notices = [&] { return sim.whats("banner: ⚠️"); };

    writeSupportFile("config.json", editedJson(good, "latitude", 95));
    sim.step();
    const QString latitude =
        "banner: ⚠️  config.json can't be used (line 1: latitude: expected a "
        "number from -90 to 90, found 95)" +
        kKept;
    EXPECT_EQ(notices(), QStringList{latitude});
    EXPECT_EQ(sim.platform.banners.last().style, BannerStyle::urgent);
    EXPECT_EQ(sim.app->config(), good);
    EXPECT_EQ(sim.platform.title, "🕌 Dhuhr in 39m"); // the times did not vanish

    // The same error written again is not repeated; another one is.
    writeSupportFile("config.json", editedJson(good, "latitude", 95));
    sim.step(5);
    EXPECT_EQ(notices().size(), 1);
    writeSupportFile("config.json", "{\"lockMinutes\": 20,");
    sim.step();
    ASSERT_EQ(notices().size(), 2);
    EXPECT_TRUE(notices()[1].startsWith("banner: ⚠️  config.json can't be used (line 1: "));
    EXPECT_TRUE(notices()[1].endsWith(kKept));

    // Fixed, then the same latitude again: said again. The fixed file's settings took hold.
    Config longer = good;
    longer.lockMinutes = 20;
    saveConfig(longer);
    sim.step();
    EXPECT_EQ(sim.app->config(), longer);
    EXPECT_EQ(notices().size(), 2);
    writeSupportFile("config.json", editedJson(longer, "latitude", 95));
    sim.step();
    EXPECT_EQ(notices(), QStringList({latitude, notices()[1], latitude}));

    // Nothing is said over a lock: an error written during Dhuhr's lock shows when it ends,
    // after a lock of the last good length.
    sim.runUntil(at("12:56"));
    ASSERT_TRUE(sim.app->isLocked());
    writeSupportFile("config.json", "[]");
    sim.runUntil(at("13:16"));
    EXPECT_EQ(sim.times("unlock"), QStringList{"13:15:00"});
    EXPECT_EQ(sim.times("banner: ⚠️").last(), "13:15:01");
    EXPECT_EQ(notices().last(),
              "banner: ⚠️  config.json can't be used (the top level is not an "
              "object)" +
                  kKept);
    EXPECT_EQ(sim.app->config(), longer);
    EXPECT_EQ(*readWholeFile(configURL()), "[]"); // the user's file is never overwritten
    EXPECT_EQ(sim.whats("banner: 🕌").size(), 4);
}

// A settings window open on the old values follows a good hand edit, unless the user has edits
// of their own there: then it keeps them and says so. A bad edit, or our own save, changes nothing.
TEST_F(ConfigReloadTest, AnOpenSettingsWindowFollowsAGoodHandEditOrSaysTheFileChanged) {
    const Config good = fixedTimesConfig();
    DaySimulator sim(good, at("10:00"));
    sim.app->openSettings();
    ASSERT_TRUE(sim.platform.settingsModel);
    PrayerSettingsModel& model = *sim.platform.settingsModel;
    EXPECT_FALSE(model.hasUnsavedEdits());

    Config leeds = good;
    leeds.locationName = "Leeds";
    leeds.latitude = 53.8;
    leeds.lockMinutes = 25;
    saveConfig(leeds);
    sim.step();
    EXPECT_EQ(model.locationName(), "Leeds");
    EXPECT_EQ(model.latitude(), 53.8);
    EXPECT_EQ(model.lockMinutes(), 25);
    EXPECT_EQ(model.makeConfig(), leeds);
    EXPECT_FALSE(model.hasUnsavedEdits());
    EXPECT_TRUE(model.fileNotice().isEmpty());

    writeSupportFile("config.json", editedJson(leeds, "latitude", -91));
    sim.step();
    EXPECT_EQ(sim.platform.settingsFileChanges, 1);
    EXPECT_EQ(model.latitude(), 53.8);

    model.setLockMinutes(30);
    EXPECT_TRUE(model.hasUnsavedEdits());
    Config later = leeds;
    later.lockMinutes = 40;
    saveConfig(later);
    sim.step();
    EXPECT_EQ(sim.platform.settingsFileChanges, 2);
    EXPECT_EQ(model.lockMinutes(), 30);
    EXPECT_EQ(model.fileNotice(),
              "The settings file changed while this window was open. Save keeps what you see "
              "here; Cancel keeps the file's settings.");
    EXPECT_EQ(sim.app->config(), later);

    sim.platform.settingsActions.save(model.makeConfig());
    sim.step();
    EXPECT_EQ(sim.platform.settingsFileChanges, 2);
    EXPECT_EQ(loadConfig().lockMinutes, 30);
}

} // namespace
