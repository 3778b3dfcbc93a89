// The login service: its unit, installing it, the hand-off of a copy opened by hand, uninstalling,
// the single instance and the stamp. systemctl is a script that answers a little later.
#include "app/Agent.h"
#include "records/StateFiles.h"
#include "records/UserDefaults.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QProcess>
#include <QThread>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

const QString unitFile = "com.velmora.tarvanel.service";

template <typename F> bool waitUntil(F done, int ms = 10000) {
    QElapsedTimer t;
    t.start();
    while (!done() && t.elapsed() < ms) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
    return done();
}

QString text(const QString& path) {
    return QString::fromUtf8(readWholeFile(path).value_or(QByteArray()));
}

int run(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    return p.waitForFinished(20000) && p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

class AgentTest : public ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        // Logs its arguments, with "+unit" while the unit file exists; fails the subcommands
        // listed in ~/fail.
        const QString path = scratchHome() + "/bin/systemctl";
        writeFile(path,
                  QStringLiteral("#!/bin/sh\nsleep 0.05\nh=%1\n"
                                 "[ -e \"%2\" ] && u=' +unit'\necho \"$*$u\" >> $h/calls\n"
                                 "grep -qx \"$2\" $h/fail 2>/dev/null && exit 1\nexit 0\n")
                      .arg(scratchHome(), agentUnitPath())
                      .toUtf8(),
                  true);
        setSystemctlForTesting(path);
    }
    void TearDown() override {
        setSystemctlForTesting({});
        setExecutablePathForTesting({});
        releaseInstanceLock();
        qunsetenv("TARVANEL_AGENT");
        ScratchTest::TearDown();
    }
    void fail(const QString& subcommands) {
        writeFile(scratchHome() + "/fail", subcommands.toUtf8());
    }
    QStringList calls() {
        const QStringList c = text(scratchHome() + "/calls").split('\n', Qt::SkipEmptyParts);
        QFile::remove(scratchHome() + "/calls");
        return c;
    }
    // A program that notes how it was started.
    QString program(const QString& path) {
        writeFile(path, "#!/bin/sh\necho \"started $TARVANEL_AGENT\" > \"$0.ran\"\n", true);
        setExecutablePathForTesting(path);
        return path;
    }
    InstallOutcome install() {
        QObject context;
        std::optional<InstallOutcome> out;
        installAgent(toolsBesideEventLoop(&context), [&](const InstallOutcome& o) { out = o; });
        EXPECT_FALSE(out.has_value()) << "answered before the tools did";
        EXPECT_TRUE(waitUntil([&] { return out.has_value(); }));
        return out.value_or(InstallOutcome{});
    }
};

TEST_F(AgentTest, UnitRunsTheExecutableAsTheAgentAndPassesSystemdAnalyze) {
    const QString exe = scratchHome() + "/my bin/tarvanel";
    ASSERT_TRUE(QDir().mkpath(scratchHome() + "/my bin") && QFile::copy("/bin/true", exe));
    const QString unit = agentUnitText(exe);
    for (const QString& line : QStringList{
             "ExecStart=\"" + exe + "\"", "Environment=TARVANEL_AGENT=com.velmora.tarvanel",
             "Restart=on-failure\nRestartSec=5", "StandardError=append:" + supportPath("log.txt"),
             "WantedBy=graphical-session.target"})
        EXPECT_TRUE(unit.contains("\n" + line + "\n")) << line.toStdString();
    writeFile(scratchHome() + "/verify/" + unitFile, unit.toUtf8());
    QProcess verify;
    verify.start("systemd-analyze", {"verify", scratchHome() + "/verify/" + unitFile});
    ASSERT_TRUE(verify.waitForFinished(20000));
    EXPECT_EQ(verify.exitCode(), 0);
    EXPECT_EQ(verify.readAllStandardError(), QByteArray());
}

TEST_F(AgentTest, InstallTwiceThenRefusedThenWithoutServiceManager) {
    program(scratchHome() + "/.local/bin/tarvanel");
    const QStringList expected = {
        "--user daemon-reload +unit", "--user stop " + unitFile + " +unit",
        "--user import-environment DISPLAY WAYLAND_DISPLAY XAUTHORITY +unit",
        "--user enable --now " + unitFile + " +unit"};
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(install().ok);
        EXPECT_EQ(calls(), expected);
        EXPECT_EQ(text(agentUnitPath()), agentUnitText(executablePath()));
    }
    fail("enable");
    InstallOutcome out = install();
    EXPECT_FALSE(out.ok);
    EXPECT_EQ(out.reason, "systemctl --user enable --now " + unitFile + " failed with status 1");

    calls();
    fail("daemon-reload");
    out = install();
    EXPECT_TRUE(out.ok && out.autostart);
    EXPECT_EQ(calls(), QStringList{"--user daemon-reload +unit"});
    EXPECT_TRUE(
        text(autostartPath())
            .contains("\nExec=env TARVANEL_AGENT=com.velmora.tarvanel " + executablePath() + "\n"));
    EXPECT_TRUE(waitUntil(
        [&] { return text(executablePath() + ".ran") == "started com.velmora.tarvanel\n"; }));
    EXPECT_EQ(run("desktop-file-validate", {autostartPath()}), 0);
}

TEST_F(AgentTest, InstallAgentCommandPrintsTheOutcomeAndWhy) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("PATH", scratchHome() + "/bin:" + env.value("PATH"));
    p.setProcessEnvironment(env);
    struct Case {
        QString failing;
        int status;
        QString output;
    };
    for (const Case& c : {Case{"", 0, "✓ Tarvanel running — look for 🕌 in the menu bar\n"},
                          Case{"enable", 1,
                               "✗ launchctl bootstrap failed\nsystemctl --user enable --now " +
                                   unitFile + " failed with status 1\n"}}) {
        fail(c.failing);
        p.start(TARVANEL_BINARY, {"--install-agent"});
        ASSERT_TRUE(p.waitForFinished(20000));
        EXPECT_EQ(p.exitCode(), c.status);
        EXPECT_EQ(QString::fromUtf8(p.readAllStandardOutput()), c.output);
    }
    // --times comes first: nothing is installed.
    calls();
    p.start(TARVANEL_BINARY, {"--install-agent", "--times"});
    ASSERT_TRUE(p.waitForFinished(20000));
    EXPECT_EQ(p.exitCode(), 0);
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(AgentTest, HandOffRoads) {
    QProcess bus; // a session bus of our own, before anything in this process asks for one
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(bus.waitForReadyRead(10000));
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());

    const QString local = scratchHome() + "/.local/bin/tarvanel";
    const QString downloaded = scratchHome() + "/Downloads/tarvanel";
    struct Road {
        const char* name;
        QString exe;
        QString failing;
        std::optional<int> answer;
        int status;
        QStringList alerts;
    };
    const QList<Road> roads = {
        {"agent running", local, "", {}, 0, {}},
        {"installed", local, "", {}, 0, {}},
        {"installed, refused",
         local,
         "enable",
         1000,
         1,
         {"Tarvanel couldn't start in the background"}},
        {"elsewhere, quit", downloaded, "", 1001, 0, {"Move Tarvanel to Applications?"}},
        {"elsewhere, move", downloaded, "", 1000, 0, {"Move Tarvanel to Applications?"}},
        {"elsewhere, no room",
         downloaded,
         "",
         1000,
         1,
         {"Move Tarvanel to Applications?",
          "Couldn't copy Tarvanel to " + scratchHome() + "/.local/bin"}},
    };
    for (const Road& road : roads) {
        SCOPED_TRACE(road.name);
        SetUp(); // a fresh home for each road
        fail(road.failing);
        program(road.exe);
        QProcess holder;
        QObject receiver;
        QPointer<QObject> shown = new QObject;
        FakePlatform platform;
        if (road.answer) platform.answerAlert(*road.answer);
        if (road.answer) platform.answerAlert(1000);
        if (QString(road.name) == "agent running") {
            ensureSupportDir();
            holder.start("flock", {supportPath(".instance.lock"), "sleep", "30"});
            ASSERT_TRUE(waitUntil([] {
                const bool free = acquireInstanceLock();
                releaseInstanceLock();
                return !free;
            }));
            ASSERT_TRUE(QDBusConnection::sessionBus().connect(
                {}, "/com/velmora/tarvanel", "com.velmora.tarvanel", "showSettings", shown,
                SLOT(deleteLater())));
        }
        if (QString(road.name) == "elsewhere, move") writeFile(local, "older copy");
        if (QString(road.name) == "elsewhere, no room")
            writeFile(scratchHome() + "/.local/bin", "not a folder");
        std::optional<int> status;
        handOffToAgent(&platform, [&](int s) { status = s; });
        ASSERT_TRUE(waitUntil([&] { return status.has_value(); }));
        EXPECT_EQ(status, road.status);
        QStringList messages;
        for (const AlertRequest& a : platform.alerts)
            messages << a.message;
        EXPECT_EQ(messages, road.alerts);

        const QString name = road.name;
        if (name == "agent running") {
            EXPECT_TRUE(waitUntil([&] { return shown.isNull(); }));
        }
        if (name == "installed") {
            EXPECT_TRUE(QFile::exists(showSettingsMarker()));
            EXPECT_EQ(calls().last(), "--user enable --now " + unitFile + " +unit");
        }
        if (name == "installed, refused") {
            EXPECT_FALSE(QFile::exists(showSettingsMarker()));
            EXPECT_EQ(platform.openedUrls,
                      QStringList{"file://" + scratchHome() + "/.config/systemd/user"});
        }
        if (name == "elsewhere, quit") {
            EXPECT_FALSE(QFile::exists(local));
        }
        if (name == "elsewhere, move") {
            EXPECT_EQ(readWholeFile(local), readWholeFile(downloaded));
            EXPECT_EQ(text(scratchHome() + "/.local/share/Trash/files/tarvanel"), "older copy");
            EXPECT_TRUE(text(menuEntryPath()).contains("\nExec=" + local + " %f\n"));
            EXPECT_EQ(run("desktop-file-validate", {menuEntryPath()}), 0);
            EXPECT_TRUE(text(menuIconPath()).contains("<svg"));
            EXPECT_TRUE(waitUntil([&] { return text(local + ".ran") == "started \n"; }));
        }
        holder.kill();
        holder.waitForFinished();
        delete shown.data();
    }
    bus.kill();
    bus.waitForFinished();
}

TEST_F(AgentTest, UninstallStopsTheServiceBeforeItsFileGoesAndKeepsDataUnlessAsked) {
    const QString local = scratchHome() + "/.local/bin/tarvanel";
    struct Case {
        QString exe;
        bool agent;
        bool deleteData;
        QStringList calls;
    };
    const QString disable = "--user disable " + unitFile + " +unit";
    for (const Case& c :
         {Case{local, true, false, {disable, "--user daemon-reload"}},
          Case{local,
               false,
               true,
               {disable, "--user stop " + unitFile + " +unit", "--user daemon-reload"}},
          Case{"/usr/bin/tarvanel", true, true, {disable, "--user daemon-reload"}}}) {
        SCOPED_TRACE(c.exe.toStdString());
        SetUp();
        const QStringList files = {agentUnitPath(), autostartPath(), menuEntryPath(),
                                   menuIconPath()};
        for (const QString& f :
             files + QStringList{supportPath("config.json"), UserDefaults::defaultPath(), local})
            writeFile(f, "x");
        setExecutablePathForTesting(c.exe);
        if (c.agent)
            qputenv("TARVANEL_AGENT", "com.velmora.tarvanel");
        else
            qunsetenv("TARVANEL_AGENT");
        FakePlatform platform;
        uninstallApp(platform, c.deleteData);
        ASSERT_TRUE(waitUntil([&] { return platform.exitStatus.has_value(); }));
        EXPECT_EQ(platform.exitStatus, 0);
        EXPECT_EQ(calls(), c.calls);
        for (const QString& f : files)
            EXPECT_FALSE(QFile::exists(f)) << f.toStdString();
        EXPECT_NE(QFile::exists(supportDir()), c.deleteData);
        EXPECT_NE(QFile::exists(UserDefaults::folder()), c.deleteData);
        const bool packaged = c.exe.startsWith("/usr/");
        EXPECT_EQ(QFile::exists(local), packaged); // a copy of our own goes to the trash
        EXPECT_EQ(platform.alerts.size(), packaged ? 1 : 0);
        if (packaged) {
            EXPECT_TRUE(platform.alerts[0].info.endsWith("\n\nsudo apt remove tarvanel"));
        }
    }
}

TEST_F(AgentTest, OneInstanceAtATime) {
    EXPECT_TRUE(acquireInstanceLock());
    EXPECT_TRUE(acquireInstanceLock()); // this process already holds it
    EXPECT_NE(run("flock", {"-n", supportPath(".instance.lock"), "true"}), 0);
    releaseInstanceLock();
    EXPECT_EQ(run("flock", {"-n", supportPath(".instance.lock"), "true"}), 0);
}

TEST_F(AgentTest, StampChangesWithTheFileAndOnlyTheAgentRestarts) {
    const QString exe = scratchHome() + "/exe";
    writeFile(exe, {});
    QFile f(exe);
    setExecutablePathForTesting(exe);
    const auto first = executableStamp();
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(first->split(':').size(), 3);
    EXPECT_FALSE(appWasReplaced()); // not the agent

    // Only the exact label marks a start by the login service.
    qputenv("TARVANEL_AGENT", "com.velmora.tarvanel ");
    EXPECT_FALSE(launchedByAgent());
    qputenv("TARVANEL_AGENT", "com.velmora.tarvanel");
    EXPECT_TRUE(launchedByAgent());
    EXPECT_FALSE(appWasReplaced()); // first comparison takes the stamp
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.setFileTime(QDateTime::currentDateTimeUtc().addSecs(120),
                              QFileDevice::FileModificationTime));
    f.close();
    EXPECT_TRUE(appWasReplaced());

    // A stamp that cannot be read never restarts.
    setExecutablePathForTesting(scratchHome() + "/gone");
    EXPECT_FALSE(executableStamp().has_value());
    EXPECT_FALSE(appWasReplaced());
}

} // namespace
