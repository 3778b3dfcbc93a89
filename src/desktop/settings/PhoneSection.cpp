// 10. Your phone too: two executable scripts that quiet notifications during each lock.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QPushButton>

namespace tarvanel {

namespace {

// "~/.tarvanel/shortcuts" rather than the whole home path.
QString shortFolder(const QString& folder) {
    const QString home = QDir::homePath();
    return folder.startsWith(home + QLatin1Char('/'))
               ? QStringLiteral("~") + folder.mid(home.size())
               : folder;
}

} // namespace

QWidget* makePhoneSection(SectionContext& c) {
    PrayerSettingsModel* m = &c.model;
    const SettingsServices& sv = m->services();
    const QString folder = shortFolder(sv.focusFolder);
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Your phone too"),
        //: %1 and %2 the names of the two scripts (file names: they stay as they are)
        QCoreApplication::translate(
            "Settings",
            "Tarvanel runs the script “%1” when a lock starts and “%2” when it ends. The pair "
            "written for your desktop turns its notification banners off and back on; a command "
            "added to both can quiet your phone as well.")
            .arg(sv.focusOnName, sv.focusOffName));
    //: Focus names the pair of scripts run at the start and the end of a lock
    s->addRow(boundToggle(
        c, QCoreApplication::translate("Settings", "Run the Focus scripts during each lock"),
        Field::focusOn, &PrayerSettingsModel::focusOn, &PrayerSettingsModel::setFocusOn));
    const QString scripts = QCoreApplication::translate("Settings", "Scripts");
    auto* status = new QLabel;
    watch(*m, status, {Field::focusInstalled}, [m, status, scripts] {
        const auto installed = m->focusInstalled();
        status->setText(!installed   ? QCoreApplication::translate("Settings", "Not checked yet")
                        : *installed ? QCoreApplication::translate("Settings", "Both scripts found")
                                     : QCoreApplication::translate("Settings", "Scripts missing"));
        status->setAccessibleName(scripts + QLatin1Char(' ') + status->text());
    });
    s->addRow(scripts, status);
    status->setAccessibleName(scripts + QLatin1Char(' ') + status->text());
    //: %1 and %2 the names of the two scripts, %3 their folder; Write Scripts is a button below
    s->addRow(wrapped(
        QCoreApplication::translate(
            "Settings",
            "1. Choose your desktop below and press Write Scripts: it makes “%1” and “%2” in %3, "
            "which switch the desktop's notification banners off and on.\n2. Or write them "
            "yourself: any executable files with those names (each may run for 30 seconds at "
            "most).\n3. For your phone: add to both scripts a command of the tool that links "
            "your phone to this computer, if you use one.")
            .arg(sv.focusOnName, sv.focusOffName, folder)));

    // The desktops a pair can be written for, this session's first.
    auto* desktop = new QComboBox;
    desktop->addItems(sv.focusDesktops);
    desktop->setMaximumWidth(220);
    desktop->setCurrentIndex(std::max(0, int(sv.focusDesktops.indexOf(sv.focusDesktop))));
    //: The desktop the scripts are written for
    const QString pickerLabel = QCoreApplication::translate("Settings", "Scripts for");
    s->addRow(pickerLabel, desktop);
    QPushButton* write = button(QCoreApplication::translate("Settings", "Write Scripts"),
                                [m, desktop] { m->writeFocusScripts(desktop->currentText()); });
    write->setEnabled(bool(sv.writeFocus) && !sv.focusDesktops.isEmpty());
    desktop->setEnabled(write->isEnabled());
    s->addRow(hbox(
        {write,
         button(QCoreApplication::translate("Settings", "Open Shortcuts Folder"),
                [m] { m->openShortcuts(); }),
         button(QCoreApplication::translate("Settings", "Check Again"), [m] { m->checkFocus(); }),
         //: A button: run the scripts once now to try them
         button(QCoreApplication::translate("Settings", "Test"), [m] { m->testFocus(); })}));

    s->addRow(statusLabel(c, Field::focusMessage, &PrayerSettingsModel::focusMessage));
    m->checkFocus();
    return s;
}

} // namespace tarvanel
