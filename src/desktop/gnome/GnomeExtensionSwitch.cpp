#include "desktop/gnome/GnomeExtensionSwitch.h"

#include "desktop/gnome/GnomeShellLock.h"
#include "desktop/settings/SectionKit.h"

#include <QCoreApplication>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace tarvanel {

QWidget* gnomeExtensionSwitch() {
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME")))
        return nullptr;
    auto* status = wrapped({});
    const auto say = [status](const QString& text) {
        status->setText(text);
        status->setAccessibleName(text);
    };
    const bool on = GnomeShellLock::available();
    say(on ? QCoreApplication::translate("Settings",
                                         "The GNOME Shell extension is on: a lock covers every "
                                         "screen.")
           : QCoreApplication::translate("Settings",
                                         "The GNOME Shell extension is off, so GNOME's shortcuts "
                                         "still work during a lock."));
    auto* enable =
        button(QCoreApplication::translate("Settings", "Enable the GNOME Shell extension"), {});
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
                say(loaded ? QCoreApplication::translate("Settings",
                                                         "The GNOME Shell extension is on.")
                           //: it: the GNOME Shell extension just enabled
                           : QCoreApplication::translate("Settings",
                                                         "Log out and back in to load it."));
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
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(status);
    column->addWidget(enable, 0, Qt::AlignLeft);
    return box;
}

} // namespace tarvanel
