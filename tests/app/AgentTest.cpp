// The login service: its unit, installing it, the hand-off of a copy opened by hand, uninstalling,
// the single instance and the stamp. systemctl is a script that answers a little later.
#include "app/Agent.h"
#include "base/StateFiles.h"
#include "records/UserDefaults.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QProcess>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

const QString unitFile = "com.velmora.tarvanel.service";
const QString label = "com.velmora.tarvanel";

QString text(const QString& path) {
    return QString::fromUtf8(readWholeFile(path).value_or(QByteArray()));
}

// Exit status and output (standard output, then standard error) of a tool.
std::pair<int, QString> run(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    const bool done = p.waitForFinished(20000) && p.exitStatus() == QProcess::NormalExit;
    return {done ? p.exitCode() : -1, p.readAllStandardOutput() + p.readAllStandardError()};
}

class AgentTest : public ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        // Logs its arguments, with "+unit" while the unit file exists; fails the subcommands
        // listed in ~/fail.
        writeFile(scratchHome() + "/bin/systemctl",
                  QString("#!/bin/sh\nsleep 0.05; [ -e \"%2\" ] && u=' +unit'; echo \"$*$u\" >> "
                          "%1/calls; ! grep -qx \"$2\" %1/fail 2>/dev/null\n")
                      .arg(scratchHome(), agentUnitPath())
                      .toUtf8(),
                  true);
        setSystemctlForTesting(scratchHome() + "/bin/systemctl");
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
    void program(const QString& path) {
        writeFile(path, "#!/bin/sh\necho \"started $TARVANEL_AGENT\" > \"$0.ran\"\n", true);
        setExecutablePathForTesting(path);
    }
    bool ran(const QString& exe, const QString& agent) {
        return waitFor([&] { return text(exe + ".ran") == "started " + agent + "\n"; });
    }
    InstallOutcome install() {
        QObject context;
        std::optional<InstallOutcome> out;
        installAgent(toolsBesideEventLoop(&context), [&](const InstallOutcome& o) { out = o; });
        EXPECT_FALSE(out.has_value()) << "answered before the tools did";
        EXPECT_TRUE(waitFor([&] { return out.has_value(); }));
        return out.value_or(InstallOutcome{});
    }
};

TEST_F(AgentTest, UnitRunsTheExecutableAsTheAgentAndPassesSystemdAnalyze) {
    const QString exe = scratchHome() + "/my bin/tarvanel";
    ASSERT_TRUE(QDir().mkpath(scratchHome() + "/my bin") && QFile::copy("/bin/true", exe));
    const QString unit = agentUnitText(exe);
    for (const QString& line : QStringList{
             "ExecStart=\"" + exe + "\"", "Environment=TARVANEL_AGENT=" + label,
             "Restart=on-failure\nRestartSec=5", "StandardError=append:" + supportPath("log.txt"),
             "WantedBy=graphical-session.target"})
        EXPECT_TRUE(unit.contains("\n" + line + "\n")) << line.toStdString();
    writeFile(scratchHome() + "/verify/" + unitFile, unit.toUtf8());
    EXPECT_EQ(run("systemd-analyze", {"verify", scratchHome() + "/verify/" + unitFile}),
              std::pair(0, QString()));
}

TEST_F(AgentTest, InstallTwiceThenWithoutServiceManager) {
    program(scratchHome() + "/.local/bin/tarvanel");
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(install().ok);
        EXPECT_EQ(calls(),
                  QStringList({"--user daemon-reload +unit", "--user stop " + unitFile + " +unit",
                               "--user import-environment DISPLAY WAYLAND_DISPLAY XAUTHORITY +unit",
                               "--user enable --now " + unitFile + " +unit"}));
        EXPECT_EQ(text(agentUnitPath()), agentUnitText(executablePath()));
    }
    fail("daemon-reload");
    const InstallOutcome out = install();
    EXPECT_TRUE(out.ok && out.autostart);
    EXPECT_EQ(calls(), QStringList{"--user daemon-reload +unit"});
    EXPECT_TRUE(
        text(autostartPath())
            .contains("\nExec=env TARVANEL_AGENT=" + label + " " + executablePath() + "\n"));
    EXPECT_TRUE(ran(executablePath(), label));
    EXPECT_EQ(run("desktop-file-validate", {autostartPath()}).first, 0);
}

TEST_F(AgentTest, InstallAgentCommandPrintsTheOutcomeAndWhy) {
    qputenv("PATH", (scratchHome() + "/bin:").toUtf8() + qgetenv("PATH"));
    EXPECT_EQ(run(TARVANEL_BINARY, {"--install-agent"}),
              std::pair(0, QString("✓ Tarvanel running — look for 🕌 in the tray\n")));
    fail("enable");
    EXPECT_EQ(
        run(TARVANEL_BINARY, {"--install-agent"}),
        std::pair(1, "✗ Tarvanel's login service did not start\nsystemctl --user enable --now " +
                         unitFile + " failed with status 1\n"));
    calls(); // --times comes first: nothing is installed.
    EXPECT_EQ(run(TARVANEL_BINARY, {"--install-agent", "--times"}).first, 0);
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(AgentTest, HandOffRoads) {
    QProcess bus; // a session bus of our own, before anything in this process asks for one
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(bus.waitForReadyRead(10000));
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
    const QString local = scratchHome() + "/.local/bin/tarvanel",
                  move = "Install Tarvanel in ~/.local/bin?";
    const QString downloaded = scratchHome() + "/Downloads/tarvanel";
    struct Road {
        QString name, exe, failing;
        int answer, status;
        QStringList alerts;
    };
    for (const Road& road : QList<Road>{
             {"agent running", local, "", 1000, 0, {}},
             {"installed", local, "", 1000, 0, {}},
             {"refused", local, "enable", 1000, 1, {"Tarvanel couldn't start in the background"}},
             {"quit", downloaded, "", 1001, 0, {move}},
             {"move", downloaded, "", 1000, 0, {move}},
             {"no room",
              downloaded,
              "",
              1000,
              1,
              {move, "Couldn't copy Tarvanel to " + scratchHome() + "/.local/bin"}}}) {
        SCOPED_TRACE(road.name.toStdString());
        SetUp(); // a fresh home for each road
        fail(road.failing);
        program(road.exe);
        QProcess holder;
        QObject owner;
        QPointer<QObject> shown = new QObject(&owner);
        FakePlatform platform;
        platform.answerAlert(road.answer);
        if (road.name == "agent running") {
            ensureSupportDir();
            holder.start("flock", {supportPath(".instance.lock"), "sleep", "30"});
            ASSERT_TRUE(waitFor([] {
                return run("flock", {"-n", supportPath(".instance.lock"), "true"}).first;
            }));
            ASSERT_TRUE(QDBusConnection::sessionBus().connect(
                {}, "/com/velmora/tarvanel", label, "showSettings", shown, SLOT(deleteLater())));
        }
        if (road.name == "move") writeFile(local, "older copy");
        if (road.name == "no room") writeFile(scratchHome() + "/.local/bin", "not a folder");
        std::optional<int> status;
        handOffToAgent(&platform, [&](int s) { status = s; });
        ASSERT_TRUE(waitFor([&] { return status.has_value(); }));
        EXPECT_EQ(status, road.status);
        QStringList messages;
        for (const AlertRequest& a : platform.alerts)
            messages << a.message;
        EXPECT_EQ(messages, road.alerts);
        EXPECT_TRUE(road.name != "agent running" || waitFor([&] { return shown.isNull(); }));
        EXPECT_EQ(QFile::exists(showSettingsMarker()), road.name == "installed");
        EXPECT_EQ(QFile::exists(local), road.exe == local || road.name == "move");
        EXPECT_TRUE(road.name != "installed" ||
                    calls().last() == "--user enable --now " + unitFile + " +unit");
        EXPECT_EQ(platform.openedUrls.value(0),
                  road.name == "refused" ? "file://" + scratchHome() + "/.config/systemd/user"
                                         : "");
        if (road.name == "move") {
            EXPECT_EQ(readWholeFile(local), readWholeFile(downloaded));
            EXPECT_EQ(text(scratchHome() + "/.local/share/Trash/files/tarvanel"), "older copy");
            EXPECT_TRUE(text(menuEntryPath()).contains("\nExec=" + local + " %f\n"));
            EXPECT_EQ(run("desktop-file-validate", {menuEntryPath()}).first, 0);
            EXPECT_TRUE(text(menuIconPath()).contains("<svg"));
            EXPECT_TRUE(ran(local, ""));
        }
        holder.kill();
        holder.waitForFinished();
    }
    bus.kill();
    bus.waitForFinished();
}

TEST_F(AgentTest, UninstallStopsTheServiceBeforeItsFileGoesAndKeepsDataUnlessAsked) {
    const QString local = scratchHome() + "/.local/bin/tarvanel", reload = "--user daemon-reload";
    const QString disable = "--user disable " + unitFile + " +unit",
                  stop = "--user stop " + unitFile + " +unit";
    struct Case {
        QString exe;
        bool agent, deleteData;
        QStringList calls;
    };
    for (const Case& c : {Case{local, true, false, {disable, reload}},
                          Case{local, false, true, {disable, stop, reload}},
                          Case{"/usr/bin/tarvanel", true, true, {disable, reload}}}) {
        SCOPED_TRACE(c.exe.toStdString());
        SetUp();
        const QStringList files{agentUnitPath(), autostartPath(), menuEntryPath(), menuIconPath()};
        for (const QString& f :
             files + QStringList{supportPath("config.json"), UserDefaults::defaultPath(), local})
            writeFile(f, "x");
        setExecutablePathForTesting(c.exe);
        qputenv("TARVANEL_AGENT", c.agent ? label.toUtf8() : "");
        FakePlatform platform;
        uninstallApp(platform, c.deleteData);
        ASSERT_TRUE(waitFor([&] { return platform.exitStatus.has_value(); }));
        EXPECT_EQ(platform.exitStatus, 0);
        EXPECT_EQ(calls(), c.calls);
        for (const QString& f : files)
            EXPECT_FALSE(QFile::exists(f)) << f.toStdString();
        EXPECT_NE(QFile::exists(supportDir()), c.deleteData);
        EXPECT_NE(QFile::exists(UserDefaults::folder()), c.deleteData);
        const bool packaged = c.exe.startsWith("/usr/");
        EXPECT_EQ(QFile::exists(local), packaged); // a copy of our own goes to the trash
        EXPECT_EQ(platform.alerts.size(), packaged ? 1 : 0);
        EXPECT_EQ(platform.alerts.value(0).info.endsWith("\n\nsudo apt remove tarvanel"), packaged);
    }
}

// The instance lock and a replaced program are driven through the controller in
// LockSessionTest; here only what it cannot see.
TEST_F(AgentTest, OnlyTheExactLabelMarksTheAgentAndAMissingProgramNeverRestarts) {
    qputenv("TARVANEL_AGENT", label.toUtf8() + " ");
    EXPECT_FALSE(launchedByAgent());
    qputenv("TARVANEL_AGENT", label.toUtf8());
    EXPECT_TRUE(launchedByAgent());
    setExecutablePathForTesting(scratchHome() + "/gone");
    EXPECT_FALSE(executableStamp().has_value() || appWasReplaced());
}

} // namespace
