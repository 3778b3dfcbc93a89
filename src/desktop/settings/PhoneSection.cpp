// 10. Your phone too: two executable scripts that quiet notifications during each lock.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QComboBox>
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
    const QString on = QStringLiteral("“") + sv.focusOnName + QStringLiteral("”");
    const QString off = QStringLiteral("“") + sv.focusOffName + QStringLiteral("”");
    const QString folder = shortFolder(sv.focusFolder);
    auto* s = new Section(
        QStringLiteral("Your phone too"),
        QStringLiteral("Tarvanel runs the script ") + on +
            QStringLiteral(" when a lock starts and ") + off +
            QStringLiteral(" when it ends. The pair written for your desktop turns its "
                           "notification banners off and back on; a command added to both can "
                           "quiet your phone as well."));
    s->addRow(boundToggle(c, QStringLiteral("Run the Focus scripts during each lock"),
                          Field::focusOn, &PrayerSettingsModel::focusOn,
                          &PrayerSettingsModel::setFocusOn));
    auto* status = new QLabel;
    watch(*m, status, {Field::focusInstalled}, [m, status] {
        const auto installed = m->focusInstalled();
        status->setText(!installed   ? QStringLiteral("Not checked yet")
                        : *installed ? QStringLiteral("Both scripts found")
                                     : QStringLiteral("Scripts missing"));
        status->setAccessibleName(QStringLiteral("Scripts ") + status->text());
    });
    s->addRow(QStringLiteral("Scripts"), status);
    status->setAccessibleName(QStringLiteral("Scripts ") + status->text());
    s->addRow(wrapped(
        QStringLiteral("1. Choose your desktop below and press Write Scripts: it makes ") + on +
        QStringLiteral(" and ") + off + QStringLiteral(" in ") + folder +
        QStringLiteral(", which switch the desktop's notification banners off and on.\n2. Or "
                       "write them yourself: any executable files with those names (each may "
                       "run for 30 seconds at most).\n3. For your phone: add to both scripts a "
                       "command of the tool that links your phone to this computer, if you use "
                       "one.")));

    // The desktops a pair can be written for, this session's first.
    auto* desktop = new QComboBox;
    desktop->addItems(sv.focusDesktops);
    desktop->setMaximumWidth(220);
    desktop->setCurrentIndex(std::max(0, int(sv.focusDesktops.indexOf(sv.focusDesktop))));
    const QString pickerLabel = QStringLiteral("Scripts for");
    s->addRow(pickerLabel, desktop);
    QPushButton* write = button(QStringLiteral("Write Scripts"),
                                [m, desktop] { m->writeFocusScripts(desktop->currentText()); });
    write->setEnabled(bool(sv.writeFocus) && !sv.focusDesktops.isEmpty());
    desktop->setEnabled(write->isEnabled());
    s->addRow(
        hbox({write, button(QStringLiteral("Open Shortcuts Folder"), [m] { m->openShortcuts(); }),
              button(QStringLiteral("Check Again"), [m] { m->checkFocus(); }),
              button(QStringLiteral("Test"), [m] { m->testFocus(); })}));
    s->addRow(statusLabel(c, Field::focusMessage, &PrayerSettingsModel::focusMessage));
    m->checkFocus();
    return s;
}

} // namespace tarvanel
