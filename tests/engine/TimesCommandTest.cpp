// Runs the real binary: `tarvanel --times` must print the header and table to the character.
#include "app/CommandLine.h"
#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "support/TestEnv.h"

#include <QProcess>

using namespace tarvanel;

namespace {

struct Result {
    int status = -1;
    QString out, err;
};

class TimesCommandTest : public test::ScratchTest {
protected:
    // `now`: the clock faketime sets; the real clock when empty.
    Result run(const QStringList& args, const char* tz = "Europe/London", const QString& now = {}) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", test::scratchHome());
        env.insert("TZ", tz);
        env.insert("LC_ALL", "C");
        env.remove("TARVANEL_AGENT");
        p.setProcessEnvironment(env);
        if (now.isEmpty())
            p.start(TARVANEL_BINARY, args);
        else
            p.start("faketime", QStringList{now, TARVANEL_BINARY} + args);
        if (!p.waitForFinished(20000)) {
            p.kill();
            return {};
        }
        return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }
    void london() {
        test::writeSupportFile("config.json",
                               R"({"locationName": "London", "latitude": 51.5072,
                                   "longitude": -0.1276})");
    }
};

} // namespace

TEST_F(TimesCommandTest, LondonOnAFridayInRamadan) {
    // The table the README documents: lock = final - 5 min, Dhuhr shown as Jumu'ah at 13:30.
    london();
    const Result r = run({"--times", "--date", "2025-03-14"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, QString::fromUtf8("Tarvanel \u2014 London  (Friday 14 March 2025 \u2022 "
                                       "14 Ramadan 1446 AH \u2022 Ramadan \U0001F319)\n"
                                       "  Prayer   Waqt      Lock at\n"
                                       "  Fajr     4:24 AM   4:19 AM\n"
                                       "  Sunrise  6:16 AM   \u2014\n"
                                       "  Jumu'ah  12:11 PM  1:25 PM\n"
                                       "  Asr      3:19 PM   3:14 PM\n"
                                       "  Maghrib  6:05 PM   6:00 PM\n"
                                       "  Isha     7:49 PM   7:44 PM\n"));
}

TEST_F(TimesCommandTest, StandardErrorSaysWhenTheTimesAreNotForTheUsersSettings) {
    const QString noPlace =
        QString::fromUtf8("tarvanel: no place is set, so these times are for 0° N 0° E; to set "
                          "yours, open Tarvanel (its settings open on the first start) or write ") +
        configURL() + "\n";
    const QStringList args = {"--times", "--date", "2025-03-14"};
    const Result none = run(args);
    ASSERT_EQ(none.status, 0);
    EXPECT_EQ(none.err, noPlace);
    // Standard output is the table of the default settings, as with a file that sets nothing.
    const struct {
        const char* what;
        QByteArray json;
        QString out, err; // `err`: a part of standard error; empty: nothing there
    } rows[] = {
        {"an empty object", "{}", none.out, ""},
        {"London", R"({"locationName": "London", "latitude": 51.5072, "longitude": -0.1276})", "",
         ""},
        {"not an object", "[1]", none.out, "tarvanel: config.json is invalid (the top level"},
        {"north of the pole", R"({"latitude": 95, "longitude": 10})", none.out,
         "tarvanel: config.json is invalid (line 1: latitude: expected a number from -90 to 90, "
         "found 95); printing the default settings' times\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        test::writeSupportFile("config.json", row.json);
        const Result r = run(args);
        EXPECT_EQ(r.status, 0);
        EXPECT_EQ(r.out, row.out.isEmpty() ? r.out : row.out);
        EXPECT_TRUE(row.err.isEmpty() ? r.err.isEmpty() : r.err.contains(row.err))
            << r.err.toStdString();
        EXPECT_FALSE(r.err.contains("no place is set"));
    }
    EXPECT_TRUE(none.out.startsWith(QString::fromUtf8("Tarvanel \u2014   (Friday 14 March 2025")))
        << none.out.toStdString();
}

TEST_F(TimesCommandTest,
       OptionsDispatchAndParseBadDatesFallBackToTodayAndClockChangeDaysAreStable) {
    london();
    const QString today = formatLocal(QDateTime::currentDateTimeUtc(), "dddd d MMMM yyyy");
    for (const QStringList& args :
         {QStringList{"--times", "--install-agent", "--date", "2025-13-40"},
          QStringList{"--times", "--date"}}) {
        const Result r = run(args);
        SCOPED_TRACE(args.join(' ').toStdString());
        EXPECT_EQ(r.status, 0);
        // Today's table (the date could roll over between the two readings only at midnight).
        EXPECT_TRUE(r.out.contains(today)) << r.out.toStdString();
        EXPECT_FALSE(r.out.contains(QString::fromUtf8("\u2713 Tarvanel running")));
    }
    // Dispatch order: --times, then --help/--version, then a mistyped option refuses to start.
    EXPECT_TRUE(run({"--help", "--times"}).out.startsWith(QString::fromUtf8("Tarvanel \u2014")));
    const Result help = run({"--tims2", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.contains("--test-lock SECONDS"));
    const Result typo = run({"--tims"});
    EXPECT_EQ(typo.status, 2);
    EXPECT_TRUE(typo.out.isEmpty());
    EXPECT_TRUE(typo.err.startsWith("tarvanel: unknown option --tims\nUsage: tarvanel"));

    // Clock-change days print the same table whatever the hour. libfaketime cannot be preloaded
    // ahead of the address sanitizer's runtime, so the sanitizer build leaves this to the other.
#ifndef __SANITIZE_ADDRESS__
    for (auto [zone, day] :
         {std::pair{"Europe/London", "2025-03-30"}, std::pair{"Europe/London", "2025-10-26"},
          std::pair{"America/New_York", "2025-11-02"},
          std::pair{"Australia/Sydney", "2025-04-06"}}) {
        SCOPED_TRACE(zone);
        const Result asked = run({"--times", "--date", day}, zone);
        ASSERT_EQ(asked.status, 0);
        EXPECT_EQ(run({"--times"}, zone, QString(day) + " 15:00:00").out, asked.out);
    }
#endif

    // Values, files and mistyped options as parsed.
    const auto parse = [](const QStringList& args) {
        return parseCommandLine(QStringList{"tarvanel"} + args);
    };
    for (const char* refused : {"nan", "inf", "-inf", "1e300", "86400.5", "abc", ""})
        EXPECT_FALSE(parse({"--test-lock", refused}).testLockSeconds) << refused;
    EXPECT_EQ(parse({"--test-lock", "86400"}).testLockSeconds, 86400);
    const CommandLine cl =
        parse({"--test-lock", "-3", "sheet.pdf", "--date", "-x", "other.csv", "-"});
    EXPECT_EQ(cl.testLockSeconds, -3);
    EXPECT_EQ(cl.importFile, "sheet.pdf");
    EXPECT_EQ(cl.unknownOption, "-");
    EXPECT_FALSE(parse({"--times", "--test-nudge", "--install-agent"}).unknownOption);
}
