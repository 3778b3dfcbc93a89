// Busy events in vdir calendars: what a week's sync writes, what it leaves alone, when it runs,
// and that a real client (khal) reads it.
#include "integrations/PrayerCalendar.h"
#include "records/StateFiles.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <libical/ical.h>

using namespace tarvanel;

namespace {
using Calendar = PrayerCalendar::Calendar;
using Rows = QStringList;
const QDateTime kTuesday2pm(QDate(2025, 11, 4), QTime(14, 0)); // London: UTC in November

Config weekConfig() {
    Config c;
    c.lockMinutes = 20;
    c.jumuahLockMinutes.reset();
    c.prayerOverrides = QMap<QString, QString>{{"Fajr", "05:30"},
                                               {"Dhuhr", "13:20"},
                                               {"Asr", "16:45"},
                                               {"Maghrib", "19:10"},
                                               {"Isha", "20:40"}};
    c.calendarSync = true;
    c.calendarID = QStringLiteral("work/office");
    return c;
}

QString row(const QDateTime& start, const QDateTime& end, const QString& title) {
    return start.toLocalTime().toString("MM-dd HH:mm-") + end.toLocalTime().toString("HH:mm ") +
           title;
}

QString calendar(const QString& id, const QByteArray& title = {}) {
    const QString path = PrayerCalendar::rootPath() + '/' + id;
    QDir().mkpath(path);
    if (!title.isEmpty()) test::writeFile(path + "/displayname", title);
    return path;
}

void event(const QString& folder, const QString& uid, const char* start, const char* end,
           const QByteArray& summary, const QByteArray& extra) {
    test::writeFile(folder + '/' + uid + ".ics",
                    "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\nBEGIN:VEVENT\r\nUID:" +
                        uid.toUtf8() + "\r\nDTSTAMP:20251101T000000Z\r\nDTSTART:" + start +
                        "\r\nDTEND:" + end + "\r\nSUMMARY:" + summary + "\r\n" + extra +
                        "END:VEVENT\r\nEND:VCALENDAR\r\n");
}

// Every event of a folder as libical reads it, sorted; each file must be named after its UID.
Rows events(const QString& folder) {
    Rows rows;
    for (const QFileInfo& f : QDir(folder).entryInfoList({"*.ics"}, QDir::Files)) {
        icalcomponent* cal = icalparser_parse_string(readWholeFile(f.filePath())->constData());
        icalcomponent* e = icalcomponent_get_first_component(cal, ICAL_VEVENT_COMPONENT);
        EXPECT_EQ(f.completeBaseName(), QString(icalcomponent_get_uid(e)));
        const auto at = [](icaltimetype t) {
            return QDateTime::fromSecsSinceEpoch(icaltime_as_timet_with_zone(t, t.zone), Qt::UTC);
        };
        rows << row(at(icalcomponent_get_dtstart(e)), at(icalcomponent_get_dtend(e)),
                    icalcomponent_get_summary(e));
        icalcomponent_free(cal);
    }
    rows.sort();
    return rows;
}

Rows planned(const Config& cfg, const QDateTime& now) {
    Rows rows;
    for (const auto& e : PrayerCalendar::plannedEvents(cfg, now))
        rows << row(e.start, e.end, e.title);
    return rows;
}
} // namespace

class CalendarTest : public test::ScratchTest {};

TEST_F(CalendarTest, TheWeekStartsAtTheNextUnfinishedLockAndFridayIsJumuah) {
    struct Case {
        double lead;
        QDateTime now;
        int count;
        QString first;
    } cases[] = {
        {5, kTuesday2pm, 33, "11-04 16:40-17:00 Asr (prayer)"},
        {0, kTuesday2pm, 33, "11-04 16:45-17:05 Asr (prayer)"},
        {5, kTuesday2pm.addSecs(-26 * 60), 34, "11-04 13:15-13:35 Dhuhr (prayer)"},
    };
    for (const Case& c : cases) {
        Config cfg = weekConfig();
        cfg.lockLeadMinutes = c.lead;
        const Rows rows = planned(cfg, c.now);
        SCOPED_TRACE(c.first.toStdString());
        EXPECT_EQ(rows.size(), c.count);
        EXPECT_EQ(rows.value(0), c.first);
        EXPECT_TRUE(rows.contains(c.lead ? "11-07 13:25-14:10 Jumu'ah (prayer)"
                                         : "11-07 13:30-14:15 Jumu'ah (prayer)"));
        EXPECT_EQ(rows.last(),
                  c.lead ? "11-10 20:35-20:55 Isha (prayer)" : "11-10 20:40-21:00 Isha (prayer)");
    }
}

TEST_F(CalendarTest, SyncReplacesOnlyItsOwnEventsInEveryCalendar) {
    const QString office = calendar("work/office", "Office"), home = calendar("personal/home");
    event(office, "meeting", "20251104T163000Z", "20251104T173000Z", "Team meeting",
          "URL:https://example.org\r\nDESCRIPTION:Planning\r\n");
    event(home, "url-mark", "20251105T164000Z", "20251105T170000Z", "Asr (prayer)",
          "URL:tarvanel://lock\r\n");
    // The tag folded across two lines, on day 8: inside the 9 days cleared.
    event(home, "folded-notes", "20251112T052500Z", "20251112T054500Z", "Fajr (prayer)",
          "DESCRIPTION:Blocked. Added by\r\n  Tarvanel\r\n");
    event(home, "yesterday", "20251103T164000Z", "20251103T170000Z", "Asr (prayer)",
          "URL:tarvanel://lock\r\n");
    event(home, "day-ten", "20251114T164000Z", "20251114T170000Z", "Asr (prayer)",
          "URL:tarvanel://lock\r\n");
    const QString meeting = "11-04 16:30-17:30 Team meeting";
    Rows week = planned(weekConfig(), kTuesday2pm) << meeting;
    week.sort();

    Config cfg = weekConfig();
    PrayerCalendar::sync(cfg, kTuesday2pm);
    PrayerCalendar::sync(cfg, kTuesday2pm); // a second run replaces, never duplicates
    EXPECT_EQ(events(office), week);
    EXPECT_EQ(events(home),
              Rows({"11-03 16:40-17:00 Asr (prayer)", "11-14 16:40-17:00 Asr (prayer)"}));
    const QString first = QDir(office).entryInfoList({"*.ics"}).first().filePath();
    const QByteArray text = readWholeFile(first).value();
    for (const char* line :
         {"TRANSP:OPAQUE", "URL:tarvanel://lock", "DESCRIPTION:Added by Tarvanel"})
        EXPECT_TRUE(text.contains(line)) << line;
    EXPECT_TRUE(QRegularExpression("DTSTART:2025110\\dT\\d{6}Z").match(text).hasMatch());

    cfg.calendarID = "gone/away"; // a calendar that no longer exists: emptied, nothing written
    PrayerCalendar::sync(cfg, kTuesday2pm);
    EXPECT_EQ(events(office), Rows{meeting});
    PrayerCalendar::sync(weekConfig(), kTuesday2pm);
    Config off = weekConfig();
    off.calendarSync = false;
    EXPECT_TRUE(PrayerCalendar::syncAfterSave(weekConfig(), off, kTuesday2pm));
    EXPECT_EQ(events(office), Rows{meeting});
    EXPECT_FALSE(PrayerCalendar::syncAfterSave(off, off, kTuesday2pm));
}

TEST_F(CalendarTest, TheDailyTriggerSyncsOnceADayAndAgainAfterAReset) {
    const QString office = calendar("work/office");
    QString synced;
    const auto count = [&] { return QDir(office).entryList({"*.ics"}).size(); };
    EXPECT_TRUE(PrayerCalendar::syncIfNeeded(weekConfig(), kTuesday2pm, "2025-11-04", synced));
    EXPECT_EQ(synced, "2025-11-04");
    EXPECT_EQ(count(), 33);
    QDir(office).removeRecursively();
    QDir().mkpath(office);
    EXPECT_FALSE(
        PrayerCalendar::syncIfNeeded(weekConfig(), kTuesday2pm.addSecs(1), "2025-11-04", synced));
    EXPECT_EQ(count(), 0);
    synced.clear(); // what a timetable import does
    EXPECT_TRUE(PrayerCalendar::syncIfNeeded(weekConfig(), kTuesday2pm, "2025-11-04", synced));
    EXPECT_EQ(count(), 33);
    Config off = weekConfig();
    off.calendarSync = false;
    EXPECT_FALSE(PrayerCalendar::syncIfNeeded(off, kTuesday2pm, "2025-11-05", synced));
    EXPECT_EQ(synced, "2025-11-04");
}

TEST_F(CalendarTest, AccessIsAskedLaterAndGivesACalendarToChoose) {
    test::FakePlatform platform;
    QList<bool> answers;
    const auto ask = [&] {
        PrayerCalendar::requestAccess(platform, [&](bool granted) { answers << granted; });
    };
    EXPECT_TRUE(PrayerCalendar::writableCalendars().isEmpty());
    ask();
    EXPECT_TRUE(answers.isEmpty()); // never answered before the event loop runs
    platform.runPosted();           // refused
    EXPECT_EQ(answers, QList<bool>{false});
    EXPECT_FALSE(PrayerCalendar::authorized());
    platform.answerAlert(1000);
    ask();
    platform.runPosted();
    EXPECT_EQ(answers, QList<bool>({false, true}));
    EXPECT_TRUE(platform.alerts.last().info.contains(PrayerCalendar::rootPath()));
    calendar("b/x", "A"), calendar("a/z", "Z"), calendar("a/y", "M");
    Rows shown;
    for (const Calendar& c : PrayerCalendar::writableCalendars())
        shown << c.title + " (" + c.sourceTitle + ") " + c.identifier;
    EXPECT_EQ(shown,
              Rows({"M (a) a/y", "Z (a) a/z", "A (b) b/x", "Prayer times (local) local/prayer"}));
    ask(); // already granted: no second question
    platform.runPosted();
    EXPECT_EQ(answers.last(), true);
    EXPECT_EQ(platform.alerts.size(), 2);
}

TEST_F(CalendarTest, KhalListsTheWeekAndTheHandMadeEvent) {
    const QString khal = QStandardPaths::findExecutable("khal");
    if (khal.isEmpty()) GTEST_SKIP() << "khal is not installed";
    const QString office = calendar("work/office", "Office");
    event(office, "meeting", "20251105T090000Z", "20251105T100000Z", "Team meeting", {});
    PrayerCalendar::sync(weekConfig(), kTuesday2pm);
    const QString conf = test::scratchHome() + "/khal.conf";
    test::writeFile(conf, "[calendars]\n[[office]]\npath = " + office.toUtf8() +
                              "\n[locale]\nlocal_timezone = Europe/London\n"
                              "default_timezone = Europe/London\ntimeformat = %H:%M\n"
                              "dateformat = %Y-%m-%d\nlongdateformat = %Y-%m-%d\n"
                              "datetimeformat = %Y-%m-%d %H:%M\n"
                              "longdatetimeformat = %Y-%m-%d %H:%M\n");
    QProcess p;
    p.start(khal, {"-c", conf, "list", "2025-11-04", "9d"});
    ASSERT_TRUE(p.waitForFinished(60000));
    const QString out = QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError());
    EXPECT_EQ(out.count("(prayer)"), 33) << out.toStdString();
    EXPECT_TRUE(out.contains("13:25-14:10 Jumu'ah (prayer)")) << out.toStdString();
    EXPECT_TRUE(out.contains("Team meeting"));
}
