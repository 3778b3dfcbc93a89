// 4. Lock: its length, lead, reminders and the wait for calls.
#include "desktop/gnome/GnomeShellLock.h"
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

namespace tarvanel {

QString lockFooter(bool guardianSet) {
    return QStringLiteral("During a lock every screen goes black, and the Dock, ⌘-Tab and Force "
                          "Quit are switched off. There's no way to end it early") +
           (guardianSet ? QStringLiteral(" except your guardian's code") : QString()) +
           QStringLiteral(". If your mic or camera is in use when a lock is due, it waits for the "
                          "call to end, then locks for the full time. With “Did you pray?”, "
                          "answering Not Yet locks again for 5 minutes. If your computer is "
                          "asleep, it locks on wake only while still inside the lock window.") +
           QStringLiteral("\nOn Linux the lock covers every screen and holds the keyboard and "
                          "mouse, so the panel and window switching can't be reached.");
}

namespace {

// On GNOME the lock is held by Tarvanel's Shell extension, which each user turns on once.
void addGnomeExtensionRow(Section* s) {
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME"))) return;
    auto* status = wrapped({});
    const auto say = [status](const QString& text) {
        status->setText(text);
        status->setAccessibleName(text);
    };
    const bool on = GnomeShellLock::available();
    say(on ? QStringLiteral("The GNOME Shell extension is on: a lock covers every screen.")
           : QStringLiteral("The GNOME Shell extension is off, so GNOME's shortcuts still "
                            "work during a lock."));
    auto* enable = button(QStringLiteral("Enable the GNOME Shell extension"), {});
    enable->setVisible(!on);
    QObject::connect(enable, &QPushButton::clicked, status, [status, enable, say] {
        enable->setEnabled(false);
        auto* run = new QProcess(status);
        const auto done = [run, enable, say](const QString& error) {
            run->deleteLater();
            enable->setEnabled(true);
            if (!error.isEmpty()) return say(error);
            // The Shell loads at once an extension it found at login; one installed since,
            // only at the next login (Wayland cannot restart the Shell).
            QTimer::singleShot(1500, enable, [enable, say] {
                const bool loaded = GnomeShellLock::available();
                enable->setVisible(!loaded);
                say(loaded ? QStringLiteral("The GNOME Shell extension is on.")
                           : QStringLiteral("Log out and back in to load it."));
            });
        };
        QObject::connect(run, &QProcess::errorOccurred, status,
                         [run, done](QProcess::ProcessError error) {
                             if (error == QProcess::FailedToStart) done(run->errorString());
                         });
        QObject::connect(run, &QProcess::finished, status, [run, done](int code) {
            done(code == 0 ? QString() : QString::fromLocal8Bit(run->readAll()).trimmed());
        });
        run->setProcessChannelMode(QProcess::MergedChannels);
        run->start(QStringLiteral("gnome-extensions"),
                   {QStringLiteral("enable"), GnomeShellLock::extensionUuid});
    });
    s->addRow(status);
    s->addRow(enable);
}

} // namespace

QWidget* makeLockSection(SectionContext& c) {
    auto* s = new Section(QStringLiteral("Lock"));
    PrayerSettingsModel* m = &c.model;
    s->addRow(QStringLiteral("Lock lasts"),
              boundStepper(c, QStringLiteral("Lock lasts"), Field::lockMinutes,
                           &PrayerSettingsModel::lockMinutes, &PrayerSettingsModel::setLockMinutes,
                           3, 60, 1, QStringLiteral(" min")));
    s->addRow(QStringLiteral("Lock starts before prayer"),
              boundStepper(c, QStringLiteral("Lock starts before prayer"), Field::lockLead,
                           &PrayerSettingsModel::lockLead, &PrayerSettingsModel::setLockLead, 0, 30,
                           1, QStringLiteral(" min")));
    s->addRow(QStringLiteral("Reminders (minutes before)"),
              boundText(c, QStringLiteral("Reminders (minutes before)"), Field::nudges,
                        &PrayerSettingsModel::nudges, &PrayerSettingsModel::setNudges,
                        QStringLiteral("20, 10, 5, 2")));
    s->addRow(QStringLiteral("Wait for a call to end"),
              boundStepper(c, QStringLiteral("Wait for a call to end"), Field::callGrace,
                           &PrayerSettingsModel::callGrace, &PrayerSettingsModel::setCallGrace, 0,
                           60, 5, QStringLiteral(" min")));
    s->addRow(boundToggle(c, QStringLiteral("Ask “Did you pray?” after each lock"), Field::strict,
                          &PrayerSettingsModel::strict, &PrayerSettingsModel::setStrict));
    addGnomeExtensionRow(s);
    watch(*m, s, {Field::guardianSet}, [m, s] {
        s->footer()->setText(lockFooter(m->guardianSet()));
        s->footer()->setAccessibleName(s->footer()->text());
        s->footer()->show();
    });
    return s;
}

} // namespace tarvanel
