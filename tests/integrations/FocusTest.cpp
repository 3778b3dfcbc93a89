// Focus scripts: run beside the event loop, failures and hangs logged, ready-made pairs.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "integrations/FocusShortcuts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

using namespace tarvanel;
namespace Focus = tarvanel::FocusShortcuts;

class FocusTest : public test::ScratchTest {
protected:
    static void script(const QString& name, const QByteArray& body) {
        test::writeFile(Focus::folder() + '/' + name, "#!/bin/sh\n" + body + "\n", true);
    }
    QObject owner;
};

TEST_F(FocusTest, ScriptsRunBesideTheLoopAndFailuresAndHangsAreLogged) {
    const QString runs = test::scratchHome() + "/runs";
    script(Focus::onName(), "sleep 1; echo on >> '" + runs.toUtf8() + "'");
    EXPECT_FALSE(Focus::installed()); // only one of the pair
    script(Focus::offName(), "echo off >> '" + runs.toUtf8() + "'; exit 1");
    EXPECT_TRUE(Focus::installed());

    Focus::run(true, &owner);
    Focus::run(false, &owner);
    EXPECT_FALSE(readWholeFile(runs).value_or("").contains("on")); // returned before it ran
    ASSERT_TRUE(test::waitFor([&] { return readWholeFile(runs).value_or("").contains("on"); }));
    EXPECT_EQ(readWholeFile(runs).value(), "off\non\n");
    EXPECT_EQ(logs, QStringList{"Tarvanel: shortcut \"Tarvanel Focus Off\" failed (1)"});

    script(Focus::onName(), "exec sleep 30");
    Focus::run(true, &owner, 300);
    ASSERT_TRUE(test::waitFor([&] { return logs.size() == 2; }));
    EXPECT_EQ(logs.last(), "Tarvanel: shortcut \"Tarvanel Focus On\" failed (-1)");
}

TEST_F(FocusTest, EachTemplateWritesAPrivateRunnablePair) {
    const QByteArray saved = qgetenv("XDG_CURRENT_DESKTOP");
    for (const auto& [session, key] : {std::pair{"ubuntu:GNOME", "GNOME"}, {"KDE", ""}}) {
        qputenv("XDG_CURRENT_DESKTOP", session);
        EXPECT_EQ(Focus::currentDesktop(), key) << session;
    }
    qputenv("XDG_CURRENT_DESKTOP", saved);

    EXPECT_EQ(Focus::createFor("KDE"), Focus::CreateResult::unknownDesktop);
    EXPECT_TRUE(QFileInfo(Focus::folder()).isDir()); // opened for the user to fill
    EXPECT_FALSE(Focus::installed());
    for (const Focus::Template& t : Focus::templates()) {
        ASSERT_EQ(Focus::createFor(t.desktop), Focus::CreateResult::written)
            << t.desktop.toStdString();
        EXPECT_TRUE(Focus::installed());
        const QString on = Focus::folder() + '/' + Focus::onName();
        EXPECT_EQ(QFileInfo(on).permissions() & 0x7077, QFile::Permissions(0x7000)); // owner only
        EXPECT_TRUE(readWholeFile(on)->contains("\nexec " + t.onCommand.toUtf8() + "\n"));
        EXPECT_EQ(QProcess::execute("sh", {"-n", on}), 0) << t.desktop.toStdString();
    }
}

// Tarvanel's own scripts carry their marker line, even after the user edits them; anything else
// at those names, an unreadable file included, is the user's.
TEST_F(FocusTest, HandWrittenScriptsAreToldFromTarvanelsOwn) {
    EXPECT_TRUE(Focus::handWritten().isEmpty()); // nothing there yet
    script(Focus::offName(), "notify-send quiet");
    EXPECT_EQ(Focus::handWritten(), QStringList{Focus::offName()});
    script(Focus::onName(), "echo '# Made by Tarvanel for GNOME'"); // not a line of its own
    EXPECT_EQ(Focus::handWritten(), QStringList({Focus::onName(), Focus::offName()}));

    ASSERT_EQ(Focus::createFor("GNOME"), Focus::CreateResult::written);
    EXPECT_TRUE(Focus::handWritten().isEmpty());
    const QString on = Focus::folder() + '/' + Focus::onName();
    test::writeFile(on, readWholeFile(on).value() + "kdeconnect-cli --ping\n", true);
    EXPECT_TRUE(Focus::handWritten().isEmpty()); // edited, still ours

    QFile::remove(on);
    ASSERT_TRUE(QFile::link("/nonexistent/target", on)); // a dangling link cannot be read
    EXPECT_EQ(Focus::handWritten(), QStringList{Focus::onName()});
    QFile::remove(on);
    ASSERT_TRUE(QDir().mkpath(on)); // nor can a folder
    EXPECT_EQ(Focus::handWritten(), QStringList{Focus::onName()});
}
