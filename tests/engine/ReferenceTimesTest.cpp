// Our engine against official timetables published with another prayer-time library's tests
// (../shared/reference/adhan-times). Their Dhuhr and Maghrib carry their own minute adjustments
// instead of our two-minute margins, so both are brought to the same footing before comparing.
#include "engine/LocalTime.h"
#include "engine/PrayerTimes.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

using namespace tarvanel;

namespace {

struct Case {
    const char* file;
    double fajr;
    std::optional<double> isha;
    std::optional<double> ishaMinutes;
    std::optional<double> maghribAngle;
    // Their minute adjustments for sunrise, dhuhr, asr, maghrib.
    int sunriseAdj, dhuhrAdj, asrAdj, maghribAdj;
    bool roundUp;
};

const Case kCases[] = {{"Ankara-Turkey", 18, 17, {}, {}, -7, 5, 4, 7, false},
                       {"Doha-Qatar", 18, {}, 90, {}, 0, 0, 0, 0, false},
                       {"Dubai-Gulf", 18.2, 18.2, {}, {}, -3, 3, 3, 3, false},
                       {"Kuwait-City-Kuwait", 18, 17.5, {}, {}, 0, 0, 0, 0, false},
                       {"Makkah-UmmAlQura", 18.5, {}, 90, {}, 0, 0, 0, 0, false},
                       {"Singapore-Singapore", 20, 18, {}, {}, 0, 1, 0, 0, true},
                       {"Tehran-Tehran", 17.7, 14, {}, 4.5, 0, 0, 0, 0, false}};

QString referenceDir() {
    return QStringLiteral(TARVANEL_SOURCE_DIR "/../shared/reference/adhan-times");
}

class ReferenceTimesTest : public test::ScratchTest, public ::testing::WithParamInterface<Case> {};

} // namespace

TEST_P(ReferenceTimesTest, AgreesWithOfficialTimetable) {
    const Case& c = GetParam();
    QFile file(referenceDir() + "/" + c.file + ".json");
    if (!file.open(QIODevice::ReadOnly)) GTEST_SKIP() << "reference data not found beside the repo";
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject params = root["params"].toObject();
    const int variance = root["variance"].toInt(0);
    test::setTimeZone(params["timezone"].toString().toUtf8().constData());

    Config cfg;
    cfg.latitude = params["latitude"].toDouble();
    cfg.longitude = params["longitude"].toDouble();
    cfg.fajrAngle = c.fajr;
    if (c.isha) cfg.ishaAngle = *c.isha;
    cfg.ishaMinutes = c.ishaMinutes;
    cfg.maghribAngle = c.maghribAngle;

    const QStringList names = {"Fajr", "Sunrise", "Dhuhr", "Asr", "Maghrib", "Isha"};
    const double adjustMinutes[] = {0,
                                    double(c.sunriseAdj),
                                    c.dhuhrAdj - 2.0,
                                    double(c.asrAdj),
                                    c.maghribAngle ? double(c.maghribAdj) : c.maghribAdj - 2.0,
                                    0};

    int rows = 0;
    for (const QJsonValue& v : root["times"].toArray()) {
        const QJsonObject row = v.toObject();
        const QDate date = QDate::fromString(row["date"].toString(), "yyyy-MM-dd");
        ASSERT_TRUE(date.isValid());
        const QDateTime midnight = startOfLocalDay(date);
        const DayTimes ours = PrayerTimes(cfg).times(midnight);
        for (int i = 0; i < names.size(); ++i) {
            SCOPED_TRACE(QString("%1 %2").arg(row["date"].toString(), names[i]).toStdString());
            const QTime theirs = QTime::fromString(row[names[i].toLower()].toString(), "h:mm AP");
            ASSERT_TRUE(theirs.isValid());
            ASSERT_TRUE(ours.contains(names[i]));
            const LocalFields f = localFields(*ours.value(names[i]));
            const double oursMinutes = f.hour * 60 + f.minute + f.second / 60.0 + adjustMinutes[i];
            const double rounded = c.roundUp ? std::ceil(oursMinutes) : std::round(oursMinutes);
            const double theirMinutes = theirs.hour() * 60 + theirs.minute();
            EXPECT_LE(std::fabs(rounded - theirMinutes), variance + 1.0);
        }
        ++rows;
    }
    EXPECT_GT(rows, 0);
}

INSTANTIATE_TEST_SUITE_P(Cities, ReferenceTimesTest, ::testing::ValuesIn(kCases),
                         [](const auto& info) {
                             return QString(info.param.file).remove('-').toStdString();
                         });
