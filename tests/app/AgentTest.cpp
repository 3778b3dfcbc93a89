// The login service: its unit, installing it, the single instance and the stamp.
#include "app/Agent.h"
#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

class AgentTest : public ScratchTest {
protected:
    void TearDown() override {
        setSystemctlForTesting({});
        setExecutablePathForTesting({});
        releaseInstanceLockForTesting();
        qunsetenv("TARVANEL_AGENT");
        ScratchTest::TearDown();
    }
    // A systemctl that logs its arguments and exits with `status`.
    QString fakeSystemctl(int status) {
        const QString path = scratchHome() + "/systemctl";
        writeFile(path,
                  QStringLiteral("#!/bin/sh\necho \"$@\" >> %1/calls\nexit %2\n")
                      .arg(scratchHome())
                      .arg(status)
                      .toUtf8(),
                  true);
        return path;
    }
    QStringList calls() {
        return QString::fromUtf8(readWholeFile(scratchHome() + "/calls").value_or(QByteArray()))
            .split('\n', Qt::SkipEmptyParts);
    }
};

TEST_F(AgentTest, UnitRunsTheExecutableAsTheAgentAndRestartsOnFailure) {
    const QString unit = agentUnitText("/home/u/.local/bin/my tarvanel");
    for (const QString& line : QStringList{
             "ExecStart=\"/home/u/.local/bin/my tarvanel\"",
             "Environment=TARVANEL_AGENT=com.velmora.tarvanel", "Restart=on-failure\nRestartSec=5",
             "StandardError=append:" + supportPath("log.txt"), "WantedBy=graphical-session.target"})
        EXPECT_TRUE(unit.contains("\n" + line + "\n")) << line.toStdString();
    EXPECT_TRUE(agentUnitPath().endsWith("/systemd/user/com.velmora.tarvanel.service"));
}

TEST_F(AgentTest, InstallWritesTheUnitAndStartsItOrGivesUpAfterTwelveTries) {
    setExecutablePathForTesting("/opt/tarvanel/tarvanel");
    setSystemctlForTesting(fakeSystemctl(0));
    EXPECT_TRUE(installAgent());
    EXPECT_EQ(QString::fromUtf8(readWholeFile(agentUnitPath()).value_or(QByteArray())),
              agentUnitText("/opt/tarvanel/tarvanel"));
    EXPECT_EQ(calls(), QStringList({"--user stop com.velmora.tarvanel.service",
                                    "--user import-environment DISPLAY WAYLAND_DISPLAY XAUTHORITY",
                                    "--user daemon-reload",
                                    "--user enable --now com.velmora.tarvanel.service"}));
    EXPECT_TRUE(installAgent()); // twice in a row is fine

    QFile::remove(scratchHome() + "/calls");
    setSystemctlForTesting(fakeSystemctl(1));
    EXPECT_FALSE(installAgent());
    EXPECT_EQ(calls().filter("enable --now").size(), 12);
}

TEST_F(AgentTest, InstallAgentCommandPrintsTheOutcome) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", scratchHome());
    env.insert("XDG_CONFIG_HOME", scratchHome() + "/.config");
    env.insert("PATH", scratchHome() + ":" + env.value("PATH"));
    fakeSystemctl(0);
    p.setProcessEnvironment(env);
    p.start(TARVANEL_BINARY, {"--install-agent"});
    ASSERT_TRUE(p.waitForFinished(20000));
    EXPECT_EQ(p.exitCode(), 0);
    EXPECT_EQ(QString::fromUtf8(p.readAllStandardOutput()),
              "✓ Tarvanel running — look for 🕌 in the menu bar\n");
    EXPECT_TRUE(
        QFile::exists(scratchHome() + "/.config/systemd/user/com.velmora.tarvanel.service"));

    // --times comes first: nothing is installed.
    QFile::remove(scratchHome() + "/calls");
    p.start(TARVANEL_BINARY, {"--install-agent", "--times"});
    ASSERT_TRUE(p.waitForFinished(20000));
    EXPECT_EQ(p.exitCode(), 0);
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(AgentTest, OneInstanceAtATime) {
    EXPECT_TRUE(acquireInstanceLock());
    EXPECT_TRUE(acquireInstanceLock()); // this process already holds it
    QProcess other;
    other.start("flock", {"-n", supportPath(".instance.lock"), "true"});
    ASSERT_TRUE(other.waitForFinished(5000));
    EXPECT_NE(other.exitCode(), 0);
    releaseInstanceLockForTesting();
    other.start("flock", {"-n", supportPath(".instance.lock"), "true"});
    ASSERT_TRUE(other.waitForFinished(5000));
    EXPECT_EQ(other.exitCode(), 0);
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
