// The real program on its own Xvfb display with two monitors: the test reminder, no display,
// the tray icon, the agent locking at a prayer under a sped-up fake clock, and a guardian code
// typed through Arabic and Persian keyboard layouts.
#include "EndToEnd.h"
#include "base/StateFiles.h"
#include "guardian/Guardian.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {
const QByteArray london = R"("locationName": "London", "latitude": 51.5074, "longitude": -0.1278)";
} // namespace

TEST(EndToEndNoDisplay, OneLineAndStatusOne) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("QT_QPA_PLATFORM");
    env.insert("DISPLAY", ":4242");
    Program tarvanel(env, {"--test-lock", "2"});
    EXPECT_EQ(tarvanel.finish(10000), 1);
    EXPECT_TRUE(tarvanel.log.startsWith("Tarvanel: no display available (")) << tarvanel.dump();
    EXPECT_EQ(tarvanel.log.count('\n'), 1) << tarvanel.dump();
}

TEST_F(EndToEnd, TrayIconAppearsOnceATrayHostStartsAndOpensTheMenu) {
    if (QStandardPaths::findExecutable("trayer").isEmpty()) GTEST_SKIP() << "trayer missing";
    writeSupportFile("config.json", "{" + london + "}");
    Program tarvanel(environment(true), {});
    QThread::msleep(1500); // up and running with no tray host yet
    ASSERT_TRUE(tarvanel.running()) << tarvanel.dump();

    QProcess trayer;
    trayer.setProcessEnvironment(environment());
    trayer.start(
        "trayer",
        QString("--edge top --align right --widthtype pixel --width 200 --height 32").split(' '));
    ASSERT_TRUE(trayer.waitForStarted(5000));
    // A Tarvanel window inside trayer's panel.
    const QString inTray = "for w in $(xdotool search --class trayer); do xwininfo -tree -id $w; "
                           "done | grep -q '\"tarvanel\" \"Tarvanel\"'";
    ASSERT_TRUE(waitFor([&] { return run(inTray) == 0; }, 8000));
    // A click on the icon (the panel's right end) opens the menu built by the core: a Tarvanel
    // window at least 100 px square.
    run("xdotool mousemove 1268 16 click 1");
    const QString menuUp =
        R"(xwininfo -root -tree | grep -qE '"tarvanel" "Tarvanel"\)\s+[0-9]{3,}x[0-9]{3,}')";
    EXPECT_TRUE(waitFor([&] { return run(menuUp) == 0; }, 5000));
    trayer.kill();
    trayer.waitForFinished(2000);
}

TEST_F(EndToEnd, AgentLocksEveryMonitorAtThePrayerAndRecordsIt) {
    // The library itself rather than the faketime wrapper, so signals reach the program.
    const QString libfaketime = "/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1";
    if (!QFile::exists(libfaketime)) GTEST_SKIP() << "libfaketime is not installed";
    // Tuesday 3 March 2026 in London (GMT): Dhuhr fixed at 13:00, locked from 13:00 for one
    // minute, no reminders or other banners.
    writeSupportFile("config.json", "{" + london + R"(, "lockMinutes": 1, "lockLeadMinutes": 0,
        "nudgeOffsetsMinutes": [], "prayerOverrides": {"Dhuhr": "13:00"}, "jumuahEnabled": false,
        "adhanEnabled": false, "weeklyReport": false, "ramadanMode": false})");

    // Twenty fake seconds before the lock, the clock running ten times as fast.
    QProcessEnvironment env = environment(true);
    env.insert("LD_PRELOAD", libfaketime);
    env.insert("FAKETIME", "@2026-03-03 12:59:40 x10");
    env.insert("FAKETIME_NO_CACHE", "1");
    Program tarvanel(env, {});
    ASSERT_TRUE(tarvanel.waitForLog("Tarvanel: locked for Dhuhr until", 15000)) << tarvanel.dump();
    EXPECT_TRUE(bothLocked(4000)) << "the lock did not cover both monitors";
    // ps and top show it by its name.
    const QString proc = "/proc/" + QString::number(tarvanel.process.processId());
    EXPECT_EQ(readWholeFile(proc + "/comm"), "tarvanel\n");
    ASSERT_TRUE(tarvanel.waitForLog("Tarvanel: unlocked after Dhuhr", 15000)) << tarvanel.dump();
    QThread::msleep(500);
    shot = screenshot();
    EXPECT_FALSE(lockedLooking(shot, leftHalf) || lockedLooking(shot, rightHalf));

    const auto history = jsonLoad("history.json");
    ASSERT_TRUE(history.has_value());
    EXPECT_TRUE(history->object().value("2026-03-03").toArray().contains("Dhuhr"))
        << history->toJson().toStdString();
    EXPECT_EQ(tarvanel.log.count("Tarvanel: locked for"), 1) << tarvanel.dump();

    // As the agent, a termination request ends it with status 1 so the service restarts it.
    tarvanel.process.terminate();
    EXPECT_EQ(tarvanel.finish(5000), 1) << tarvanel.dump();
    // Its own log holds its lines as standard error had them.
    const QStringList logged = QString::fromUtf8(readWholeFile(supportPath("log.txt")).value_or(""))
                                   .split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(logged.filter("Tarvanel: locked for Dhuhr until").size(), 1)
        << logged.join('\n').toStdString();
    EXPECT_EQ(logged.filter("Tarvanel: unlocked after Dhuhr").size(), 1);
    for (const QString& line : logged)
        EXPECT_TRUE(tarvanel.log.contains(line + '\n')) << line.toStdString();
}

TEST_F(EndToEnd, GuardianCodeTypedOnArabicAndPersianLayoutsEndsTheLock) {
    if (QStandardPaths::findExecutable("setxkbmap").isEmpty()) GTEST_SKIP() << "setxkbmap missing";
    Guardian::save(secret);
    Program tarvanel(environment(), {"--test-lock", "120"});
    ASSERT_TRUE(bothLocked(6000)) << tarvanel.dump();
    // The code in the digits whose zero is `zero`.
    const auto inDigits = [](const QString& code, char16_t zero) {
        QString out;
        for (const QChar c : code)
            out += QChar(char16_t(zero + c.digitValue()));
        return out;
    };
    // A layout as a user sets it; keycode 13 (the "4" key) then gives that layout's four, so
    // xdotool presses the layout's own keys rather than remapping a spare one.
    const auto layout = [&](const QString& args, const QString& four) {
        return run("setxkbmap " + args + " && xmodmap -pke | grep -q '^keycode  13 = " + four +
                   " '") == 0;
    };
    const auto type = [&](const QString& text) {
        return run("LC_ALL=C.UTF-8 xdotool type --delay 40 '" + text + "'") == 0;
    };

    // Arabic (Eastern Arabic numerals): a wrong code is a wrong try and the lock stays.
    ASSERT_TRUE(layout("-layout ara -variant digits", "Arabic_4"));
    const QString now = Guardian::code(secret, QDateTime::currentDateTimeUtc());
    ASSERT_TRUE(type(inDigits(QChar('0' + (now[0].digitValue() + 5) % 10) + now.mid(1), 0x0660)));
    QThread::msleep(500);
    ASSERT_TRUE(tarvanel.running()) << tarvanel.dump();
    EXPECT_TRUE(bothLocked());

    // Devanagari digits, typed on the Hindi layout, do nothing; then the right code's first half
    // in Arabic-Indic digits, a space, and the second half on the Persian layout.
    ASSERT_TRUE(layout("in", "U096A"));
    ASSERT_TRUE(type("४४४"));
    ASSERT_TRUE(layout("-layout ara -variant digits", "Arabic_4"));
    const QString code = Guardian::code(secret, QDateTime::currentDateTimeUtc());
    ASSERT_TRUE(type(inDigits(code.left(3), 0x0660) + " "));
    QThread::msleep(300);
    ASSERT_TRUE(tarvanel.running()) << tarvanel.dump();
    ASSERT_TRUE(layout("ir", "Farsi_4"));
    ASSERT_TRUE(type(inDigits(code.mid(3), 0x06F0)));
    EXPECT_EQ(tarvanel.finish(5000), 0) << tarvanel.dump();
    EXPECT_TRUE(tarvanel.log.contains("Tarvanel: unlocked after Test")) << tarvanel.dump();
}

TEST_F(EndToEnd, TheAgentReadsNoImageItselfAndOutlivesAReaderThatCrashes) {
    writeSupportFile("config.json", "{" + london + "}");
    const QString reader = scratchHome() + "/crashing-reader.sh";
    QFile script(reader);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nsleep 0.5\nkill -SEGV $$\n");
    script.close();
    script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
    QProcessEnvironment env = environment(true);
    env.insert("TARVANEL_SHEET_READER", reader);
    Program tarvanel(env, {scratchHome() + "/sheet.png"});
    ASSERT_TRUE(tarvanel.waitForLog("Tarvanel: the sheet reader gave nothing for sheet.png (" +
                                        reader + ", Process crashed)",
                                    15000))
        << tarvanel.dump();
    QThread::msleep(500);
    ASSERT_TRUE(tarvanel.running()) << tarvanel.dump();
    QFile maps(QString("/proc/%1/maps").arg(tarvanel.process.processId()));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    const QString mapped = QString::fromUtf8(maps.readAll());
    for (const char* library : {"libtesseract", "liblept", "libpoppler"})
        EXPECT_FALSE(mapped.contains(library)) << library;
}
