// Display check, termination signals, sounds, alerts and the platform's event-loop services.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "desktop/Dialogs.h"
#include "desktop/DisplayCheck.h"
#include "desktop/QtPlatform.h"
#include "desktop/Sounds.h"
#include "desktop/SystemEvents.h"
#include "platform/AgentBus.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDateEdit>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>

using namespace tarvanel;
using test::pump;
using test::waitFor;

TEST(SystemEvents, MissingServersAreNamedAndTerminationSignalsArriveOnTheEventLoop) {
    QTemporaryDir runtime;
    const QList<std::pair<QStringList, QString>> cases = {
        {{"QT_QPA_PLATFORM=offscreen"}, {}},
        {{}, "DISPLAY is not set"},
        {{"DISPLAY=:987"}, "cannot connect to X display :987"},
        {{"QT_QPA_PLATFORM=wayland", "WAYLAND_DISPLAY=wayland-9",
          "XDG_RUNTIME_DIR=" + runtime.path()},
         "wayland-9"},
    };
    for (const auto& [vars, problem] : cases) {
        SCOPED_TRACE(vars.join(' ').toStdString());
        QProcessEnvironment env;
        for (const QString& var : vars)
            env.insert(var.section('=', 0, 0), var.section('=', 1));
        const QString got = displayProblem(env).value_or("none");
        EXPECT_TRUE(got.contains(problem.isEmpty() ? "none" : problem)) << got.toStdString();
    }

    // Termination signals arrive on the event loop.
    SystemEvents events;
    ASSERT_TRUE(events.watchSignals());
    QList<int> received;
    QObject::connect(&events, &SystemEvents::terminateRequested,
                     [&](int number) { received << number; });
    ::raise(SIGHUP);
    EXPECT_TRUE(received.isEmpty()); // not inside the handler
    waitFor([&] { return !received.isEmpty(); }, 2000);
    ::raise(SIGTERM);
    ::raise(SIGINT);
    waitFor([&] { return received.size() == 3; }, 2000);
    EXPECT_EQ(received, (QList<int>{SIGHUP, SIGTERM, SIGINT}));
}

TEST(SystemEvents, OnlyTheAgentsNameAnswersAndASecondCopyHandsItsFileOver) {
    QProcess daemon; // a session bus of our own
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(daemon.waitForReadyRead(10000));
    const QString address = QString::fromUtf8(daemon.readLine().trimmed());
    QDBusConnection agentSide = QDBusConnection::connectToBus(address, "agent");
    QDBusConnection caller = QDBusConnection::connectToBus(address, "caller");
    SystemEvents events, rival;
    int shown = 0;
    QStringList files;
    QObject::connect(&events, &SystemEvents::showSettingsRequested, [&] { ++shown; });
    QObject::connect(&events, &SystemEvents::importFileRequested,
                     [&](const QString& path) { files << path; });
    ASSERT_TRUE(events.answerOtherCopies(agentSide));
    // While the agent holds the name, no other process takes it.
    EXPECT_FALSE(rival.answerOtherCopies(caller));

    // The call's error name, empty when it was answered.
    const auto call = [&](const QString& interface, const QString& member,
                          const QVariantList& args) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(agentBus::service, agentBus::path, interface, member);
        message.setArguments(args);
        QDBusPendingCallWatcher watcher(caller.asyncCall(message, 5000));
        waitFor([&] { return watcher.isFinished(); }, 6000);
        return watcher.isError() ? watcher.error().name() : QString();
    };
    EXPECT_EQ(call(agentBus::interface, agentBus::showSettings, {}), "");
    EXPECT_EQ(call({}, agentBus::showSettings, {}), ""); // the interface may be left out
    EXPECT_EQ(call(agentBus::interface, agentBus::importFile, {"/tmp/sheet.png"}), "");
    const QString invalid = "org.freedesktop.DBus.Error.InvalidArgs";
    EXPECT_EQ(call(agentBus::interface, agentBus::importFile, {}), invalid);
    EXPECT_EQ(call(agentBus::interface, agentBus::importFile, {42}), invalid);
    EXPECT_EQ(call(agentBus::interface, agentBus::showSettings, {"extra"}), invalid);
    EXPECT_EQ(call(agentBus::interface, "Quit", {}), "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(call("com.velmora.tarvanel.Other", agentBus::showSettings, {}),
              "org.freedesktop.DBus.Error.UnknownInterface");
    // A signal to the agent's path is no request.
    caller.send(
        QDBusMessage::createSignal(agentBus::path, agentBus::interface, agentBus::showSettings));
    pump(200);
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(files, QStringList{"/tmp/sheet.png"});

    // `tarvanel FILE` beside a running agent hands the file over, made absolute, and ends.
    ASSERT_TRUE(ensureSupportDir());
    QProcess holder;
    holder.start("flock", {supportPath(".instance.lock"), "sleep", "30"});
    ASSERT_TRUE(waitFor([] {
        return QProcess::execute("flock", {"-n", supportPath(".instance.lock"), "true"}) != 0;
    }));
    QTemporaryDir downloads;
    QProcess second;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("DBUS_SESSION_BUS_ADDRESS", address);
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.remove("TARVANEL_AGENT");
    second.setProcessEnvironment(env);
    second.setWorkingDirectory(downloads.path());
    second.start(TARVANEL_BINARY, {"timetable.png"});
    ASSERT_TRUE(waitFor([&] { return second.state() == QProcess::NotRunning; }, 20000));
    EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().toStdString();
    EXPECT_EQ(files, (QStringList{"/tmp/sheet.png", downloads.filePath("timetable.png")}));
    EXPECT_EQ(shown, 2);
    holder.kill();
    holder.waitForFinished();
    daemon.kill();
    daemon.waitForFinished();
}

TEST(Sounds, ThemeSoundsAreFoundAndAnAdhanThatDoesNotDecodeGivesWayToTheChime) {
    EXPECT_EQ(soundThemeEvent("Glass"), "complete");
    EXPECT_FALSE(soundThemeEvent("Ping"));
    QTemporaryDir first, second;
    const QString theme = second.filePath("sounds/freedesktop/stereo/complete.oga");
    test::writeFile(theme, {});
    EXPECT_EQ(soundThemeFile("complete", {first.path(), second.path()}), theme);
    EXPECT_FALSE(soundThemeFile("dialog-warning", {first.path(), second.path()}));

    // Words are no sound; an MP3 header over noise looks like one until the player tries it.
    const QString words = first.filePath("words.mp3"), noise = first.filePath("noise.mp3");
    test::writeFile(words, "this is not a sound at all, just words\n");
    test::writeFile(noise, QByteArray("ID3\x04\0\0\0\0\0\0\xff\xfb\x90\x64", 14) +
                               QByteArray(20000, '\x5a'));
    EXPECT_FALSE(looksLikeAudio(words));
    EXPECT_FALSE(looksLikeAudio(first.filePath("missing.wav")));
    EXPECT_TRUE(looksLikeAudio(noise));

    QStringList lines, played;
    setLogSink([&](const QString& line) { lines << line; });
    Sounds real;
    EXPECT_FALSE(real.playFile(words));
    const QString chime = "/usr/share/sounds/freedesktop/stereo/complete.oga";
    const QString blow = "/usr/share/sounds/freedesktop/stereo/alarm-clock-elapsed.oga";
    Sounds sounds(nullptr, false); // heard or not, the players run
    QObject::connect(&sounds, &Sounds::started, [&](const QString& path) { played << path; });
    if (QFile::exists(chime) && QFile::exists(blow)) {
        EXPECT_TRUE(sounds.playFile(chime));
        EXPECT_TRUE(sounds.playFile(noise));
        EXPECT_TRUE(waitFor([&] { return played.size() == 3; }, 5000));
        test::pump(300);
        EXPECT_EQ(played, (QStringList{chime, noise, blow}));
        EXPECT_EQ(lines.filter("cannot play " + noise).size(), 1);
    }
    // Whatever the machine has, at most one line about a missing device.
    EXPECT_LE(lines.filter("no sound device").size(), 1);
    setLogSink(nullptr);
}

namespace {
// Runs the dialog; `answer` is given as soon as it is up.
int runAnswered(QDialog& dialog, const std::function<void()>& answer) {
    QTimer::singleShot(0, &dialog, answer);
    return dialog.exec();
}
} // namespace

TEST(Alerts, ButtonsInTheGivenOrderTheCheckBoxTheAnswersAndTheDatesMinimum) {
    const AlertRequest request{"Uninstall Tarvanel?",
                               "Your prayer times stop locking the screen.",
                               {"Uninstall", "Cancel", "Later"},
                               "Also delete my data",
                               true};
    auto box = buildAlert(request);
    box->show();
    QList<QAbstractButton*> buttons = box->buttons(); // sorted as laid out, left to right
    std::sort(buttons.begin(), buttons.end(), [&](QAbstractButton* a, QAbstractButton* b) {
        return a->mapTo(box.get(), QPoint()).x() < b->mapTo(box.get(), QPoint()).x();
    });
    ASSERT_EQ(buttons.size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(buttons[i]->text(), request.buttons[i]);
    // A destructive first button is never the default: Return takes the way out.
    EXPECT_EQ(box->defaultButton(), buttons[2]);
    ASSERT_NE(box->checkBox(), nullptr);
    EXPECT_FALSE(box->checkBox()->isChecked());

    for (int i : {1, 0, 2}) {
        box->checkBox()->setChecked(i == 2);
        runAnswered(*box, [b = buttons[i]] { b->click(); });
        EXPECT_EQ(alertAnswer(*box).response, 1000 + i);
        EXPECT_EQ(alertAnswer(*box).checkBoxOn, i == 2);
    }
    // Escape answers with the last button, never with the first.
    runAnswered(*box, [&] { box->reject(); });
    EXPECT_EQ(alertAnswer(*box).response, 1002);
    box->hide();
    auto press = [](QMessageBox& question, Qt::Key key) {
        return runAnswered(question, [&question, key] {
            QWidget* target = question.focusWidget() ? question.focusWidget() : &question;
            QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(target, &down);
        });
    };
    // The uninstall question as asked: Return cancels, and so does Enter.
    const AlertRequest uninstall{"Uninstall Tarvanel?", "…", {"Uninstall", "Cancel"}, "", true};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto question = buildAlert(uninstall);
        press(*question, key);
        ASSERT_NE(question->clickedButton(), nullptr) << key;
        EXPECT_EQ(question->clickedButton()->text(), "Cancel");
        EXPECT_EQ(alertAnswer(*question).response, 1001);
    }
    // An ordinary question keeps its first button as the default.
    auto ordinary = buildAlert({"Did you pray Asr?", {}, {"Yes, I Prayed", "Not Yet"}, {}, false});
    EXPECT_EQ(ordinary->defaultButton()->text(), "Yes, I Prayed");
    press(*ordinary, Qt::Key_Return);
    EXPECT_EQ(alertAnswer(*ordinary).response, 1000);

    // A question opens in the middle of the primary screen, even with the pointer elsewhere.
    QCursor::setPos(QGuiApplication::screens().last()->geometry().center());
    QRect shownAt;
    QScreen* shownOn = nullptr;
    QTimer::singleShot(0, [&] {
        QWidget* open = QApplication::activeModalWidget();
        if (!open) return;
        shownAt = open->frameGeometry();
        shownOn = open->screen();
        open->close();
    });
    runAlert({"Did you pray Asr?", "", {"Yes, I Prayed", "Not Yet"}, {}, false});
    QScreen* primary = QGuiApplication::primaryScreen();
    EXPECT_EQ(shownOn, primary);
    EXPECT_TRUE(primary->geometry().contains(shownAt)) << shownAt.x() << "," << shownAt.y();
    EXPECT_LE(std::abs(shownAt.center().x() - primary->availableGeometry().center().x()), 40);

    // A date question never goes earlier than its minimum.
    const QDate minimum(2026, 3, 10);
    DateQuestion question({"When did you pray?", {}, {"Save", "Cancel"}, {}, false}, minimum,
                          QDate(2026, 3, 1));
    EXPECT_EQ(question.dateEdit()->date(), minimum);
    question.dateEdit()->setDate(QDate(2026, 2, 1));
    EXPECT_EQ(question.dateEdit()->date(), minimum);
    ASSERT_EQ(question.buttons().size(), 2);
    EXPECT_EQ(runAnswered(question, [&] { question.buttons()[1]->click(); }), QDialog::Rejected);
    EXPECT_EQ(runAnswered(question, [&] { question.buttons()[0]->click(); }), QDialog::Accepted);
}

TEST(QtPlatform, EventLoopServicesAndOneSettingsWindow) {
    QtPlatform platform;
    EXPECT_EQ(platform.screenCount(), 2);
    EXPECT_FALSE(platform.settingsWindowOpen());
    platform.openSettingsWindow(std::make_unique<PrayerSettingsModel>(Config(), true), {});
    EXPECT_TRUE(platform.settingsWindowOpen());
    // A second request raises the open window and keeps its edits.
    platform.openSettingsWindow(std::make_unique<PrayerSettingsModel>(Config(), false), {});
    test::pump(20);
    QList<QWidget*> windows = QApplication::topLevelWidgets();
    windows.removeIf([](QWidget* w) { return !qobject_cast<QMainWindow*>(w) || !w->isVisible(); });
    ASSERT_EQ(windows.size(), 1);
    EXPECT_EQ(windows[0]->windowTitle(), "Welcome to Tarvanel");
    // No tray host here: the header says how to find the program again.
    bool noted = false;
    for (QLabel* l : windows[0]->findChildren<QLabel*>())
        noted = noted || l->text().startsWith("There's no tray on this desktop, so Tarvanel runs "
                                              "without an icon");
    EXPECT_TRUE(noted);
    windows[0]->close();
    test::pump(20);
    EXPECT_FALSE(platform.settingsWindowOpen());
}
