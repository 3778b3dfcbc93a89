// Busy events in vdir calendars: what a week's sync writes (read back by khal, a real client we
// did not write), what it leaves alone, when it runs, and asking for access.
#include "base/StateFiles.h"
#include "engine/DayTimes.h"
#include "integrations/PrayerCalendar.h"
#include "lock/CalendarAccess.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

using namespace tarvanel;

namespace {
using Rows = QStringList;
const QDateTime kTuesday2pm(QDate(2025, 11, 4), QTime(14, 0)); // London: UTC in November

Config weekConfig() {
    Config c;
    c.lockMinutes = 20;
    c.jumuahLockMinutes.reset();
    const char* times[] = {"05:30", "13:20", "16:45", "19:10", "20:40"};
    for (int i = 0; i < 5; ++i)
        (*c.prayerOverrides)[prayerNames()[i]] = times[i];
    c.calendarSync = true;
    c.calendarID = QStringLiteral("work/office");
    return c;
}

QString calendar(const QString& id, const QByteArray& title = {}) {
    const QString path = PrayerCalendar::rootPath() + '/' + id;
    QDir().mkpath(path);
    if (!title.isEmpty()) test::writeFile(path + "/displayname", title);
    return path;
}

void event(const QString& folder, const QString& uid, const char* start, const QByteArray& extra) {
    test::writeFile(folder + '/' + uid + ".ics",
                    "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\nBEGIN:VEVENT\r\nUID:" +
                        uid.toUtf8() + "\r\nDTSTAMP:20251101T000000Z\r\nDTSTART:" + start +
                        "\r\nDURATION:PT20M\r\nSUMMARY:" + uid.toUtf8() + "\r\n" + extra +
                        "END:VEVENT\r\nEND:VCALENDAR\r\n");
}

Rows files(const QString& folder) {
    return QDir(folder).entryList({"*.ics"});
}

// What khal lists for the 9 days from Tuesday, one day per paragraph.
QString khalList(const QString& folder) {
    const QString conf = folder + "/../khal.conf";
    test::writeFile(conf, "[calendars]\n[[office]]\npath = " + folder.toUtf8() +
                              "\n[locale]\nlocal_timezone = Europe/London\n"
                              "default_timezone = Europe/London\ntimeformat = %H:%M\n"
                              "dateformat = %Y-%m-%d\nlongdateformat = %Y-%m-%d\n"
                              "datetimeformat = %Y-%m-%d %H:%M\n"
                              "longdatetimeformat = %Y-%m-%d %H:%M\n");
    QProcess p;
    p.start("khal", {"-c", conf, "list", "2025-11-04", "9d"});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError());
}
} // namespace

class CalendarTest : public test::ScratchTest {};

TEST_F(CalendarTest, SyncReplacesOnlyItsOwnEventsInEveryCalendar) {
    const QString office = calendar("work/office", "Office"), home = calendar("personal/home");
    event(office, "meeting", "20251104T163000Z", "DESCRIPTION:Planning\r\nURL:https://x.org\r\n");
    // Marked by URL, or by the tag folded across two lines; day 8 is inside the 9 days cleared.
    event(home, "url", "20251105T164000Z", "URL:tarvanel://lock\r\n");
    event(home, "folded", "20251112T164000Z", "DESCRIPTION:x Added by\r\n  Tarvanel\r\n");
    event(home, "yesterday", "20251103T164000Z", "URL:tarvanel://lock\r\n");
    event(home, "day-ten", "20251114T164000Z", "URL:tarvanel://lock\r\n");

    Config cfg = weekConfig();
    cfg.lockLeadMinutes = 6; // then moved: every event is replaced, none duplicated
    PrayerCalendar::sync(cfg, kTuesday2pm);
    const Rows moved = files(office);
    PrayerCalendar::sync(cfg = weekConfig(), kTuesday2pm);
    const Rows written = files(office);
    PrayerCalendar::sync(cfg, kTuesday2pm);
    EXPECT_EQ(files(office), written); // unchanged events stay as they are
    EXPECT_FALSE(written.contains(moved.first()));
    EXPECT_EQ(files(home), Rows({"day-ten.ics", "yesterday.ics"}));
    // At 14:00 today's Dhuhr (13:15-13:35) is over: today gets 3 events, the next six days 5.
    const QString listed = khalList(office);
    EXPECT_EQ(listed.count("(prayer)"), 33) << listed.toStdString();
    for (const char* part :
         {"Tuesday, 2025-11-04\n16:30-16:50 meeting :: Planning\n16:40-17:00 Asr (prayer)",
          "Friday, 2025-11-07\n05:25-05:45 Fajr (prayer) :: Added by Tarvanel\n13:25-14:10 "
          "Jumu'ah (prayer)",
          "Monday, 2025-11-10\n05:25-05:45 Fajr (prayer)"})
        EXPECT_TRUE(listed.contains(part)) << part;
    const QString first = QDir(office).entryInfoList({"*.ics"}).first().filePath();
    const QByteArray text = readWholeFile(first).value();
    for (const QString& line :
         QStringList{"TRANSP:OPAQUE", "URL:tarvanel://lock", "UID:" + QFileInfo(first).baseName()})
        EXPECT_TRUE(text.contains(line.toUtf8())) << line.toStdString();
    EXPECT_TRUE(QRegularExpression("DTSTART:202511\\d\\dT\\d{6}Z").match(text).hasMatch());

    cfg.calendarID = "gone/away"; // a calendar that no longer exists: emptied, nothing written
    PrayerCalendar::sync(cfg, kTuesday2pm);
    EXPECT_EQ(files(office), Rows{"meeting.ics"});
    PrayerCalendar::sync(weekConfig(), kTuesday2pm);
    Config off = weekConfig();
    off.calendarSync = false;
    EXPECT_TRUE(PrayerCalendar::syncAfterSave(weekConfig(), off, kTuesday2pm));
    EXPECT_EQ(files(office), Rows{"meeting.ics"});
    EXPECT_FALSE(PrayerCalendar::syncAfterSave(off, off, kTuesday2pm));

    // The daily trigger: once a day, again after a timetable import clears the day.
    QString synced;
    EXPECT_FALSE(PrayerCalendar::syncIfNeeded(off, kTuesday2pm, "2025-11-04", synced));
    cfg = weekConfig();
    EXPECT_TRUE(PrayerCalendar::syncIfNeeded(cfg, kTuesday2pm, "2025-11-04", synced));
    QFile::remove(QDir(office).filePath(files(office).first()));
    EXPECT_FALSE(PrayerCalendar::syncIfNeeded(cfg, kTuesday2pm, "2025-11-04", synced));
    EXPECT_EQ(files(office).size(), 33);
    synced.clear();
    EXPECT_TRUE(PrayerCalendar::syncIfNeeded(cfg, kTuesday2pm, "2025-11-04", synced));
    EXPECT_EQ(files(office).size(), 34);
    EXPECT_EQ(synced, "2025-11-04");

    // A lead of 0 starts at the lock time; a lock not yet over is still written.
    cfg.lockLeadMinutes = 0;
    const auto events = PrayerCalendar::plannedEvents(cfg, kTuesday2pm.addSecs(-21 * 60));
    EXPECT_EQ(events.value(0).title, "Dhuhr (prayer)");
    EXPECT_EQ(events.value(0).start, kTuesday2pm.addSecs(-40 * 60));
}

TEST_F(CalendarTest, AccessIsAskedLaterAndGivesACalendarToChoose) {
    test::FakePlatform platform;
    QList<bool> answers;
    const auto ask = [&] {
        const qsizetype before = answers.size();
        requestCalendarAccess(platform, [&](bool granted) { answers << granted; });
        EXPECT_EQ(answers.size(), before); // answered from the event loop, never at once
        platform.runPosted();
    };
    EXPECT_TRUE(PrayerCalendar::writableCalendars().isEmpty());
    ask(); // refused
    EXPECT_FALSE(PrayerCalendar::authorized());
    platform.answerAlert(1000);
    ask();
    ask(); // already granted: no second question
    EXPECT_EQ(answers, QList<bool>({false, true, true}));
    EXPECT_EQ(platform.alerts.size(), 2);
    EXPECT_TRUE(platform.alerts.last().info.contains(PrayerCalendar::rootPath()));
    calendar("b/x", "A"), calendar("a/z", "Z"), calendar("a/y", "M");
    Rows shown;
    for (const auto& c : PrayerCalendar::writableCalendars())
        shown << c.title + " (" + c.sourceTitle + ") " + c.identifier;
    EXPECT_EQ(shown,
              Rows({"M (a) a/y", "Z (a) a/z", "A (b) b/x", "Prayer times (local) local/prayer"}));
}

// Each busy event is the lock itself: a hand-edited 500-minute lock locks, and blocks, 180.
TEST_F(CalendarTest, EventsAreTheLockWindowsWithTheBoundedLengths) {
    Config cfg = weekConfig();
    cfg.lockMinutes = 500;
    cfg.jumuahLockMinutes = 30;
    cfg.lockLeadMinutes = 7;
    const auto events = PrayerCalendar::plannedEvents(cfg, kTuesday2pm);
    ASSERT_FALSE(events.isEmpty());
    EXPECT_EQ(events[0].title, "Dhuhr (prayer)"); // 13:13 to 16:13, not over at 14:00
    EXPECT_EQ(events[0].start, kTuesday2pm.addSecs(-47 * 60));
    int jumuah = 0;
    for (const auto& e : events) {
        const bool friday = e.title == "Jumu'ah (prayer)";
        jumuah += friday;
        EXPECT_EQ(e.start.secsTo(e.end), (friday ? 30 : 180) * 60) << e.title.toStdString();
    }
    EXPECT_EQ(jumuah, 1);
}
