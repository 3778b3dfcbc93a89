// 10. Your phone too: a Focus during each lock, through two shortcut files.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QPushButton>

namespace tarvanel {

QWidget* makePhoneSection(SectionContext& c) {
    auto* s = new Section(QStringLiteral("Your phone too"),
                          QStringLiteral("A Focus shared across devices silences your iPhone "
                                         "during the lock as well. No phone app needed."));
    PrayerSettingsModel* m = &c.model;
    const SettingsServices& sv = m->services();
    s->addRow(boundToggle(c, QStringLiteral("Turn on a Focus during each lock"), Field::focusOn,
                          &PrayerSettingsModel::focusOn, &PrayerSettingsModel::setFocusOn));
    auto* status = new QLabel;
    watch(*m, status, {Field::focusInstalled}, [m, status] {
        const auto installed = m->focusInstalled();
        status->setText(!installed   ? QStringLiteral("Not checked yet")
                        : *installed ? QStringLiteral("Both shortcuts found")
                                     : QStringLiteral("Shortcuts missing"));
        status->setAccessibleName(QStringLiteral("Shortcuts ") + status->text());
    });
    s->addRow(QStringLiteral("Shortcuts"), status);
    status->setAccessibleName(QStringLiteral("Shortcuts ") + status->text());
    s->addRow(wrapped(
        QStringLiteral("1. In Shortcuts, make a shortcut named “") + sv.focusOnName +
        QStringLiteral("” with the action Set Focus → Turn On (Do Not Disturb or your own "
                       "Focus).\n2. Make a shortcut named “") +
        sv.focusOffName +
        QStringLiteral("” with Set Focus → Turn Off.\n3. For your iPhone: System Settings → Focus "
                       "→ Share across devices.\nOn Linux a shortcut is an executable script "
                       "with that name in ~/.tarvanel/shortcuts/ (for example one that runs "
                       "your phone-bridge tool, or turns on your desktop's Do Not Disturb).")));
    s->addRow(hbox({button(QStringLiteral("Open Shortcuts"), [m] { m->openShortcuts(); }),
                    button(QStringLiteral("Check Again"), [m] { m->checkFocus(); }),
                    button(QStringLiteral("Test"), [m] { m->testFocus(); })}));
    s->addRow(statusLabel(c, Field::focusMessage, &PrayerSettingsModel::focusMessage));
    m->checkFocus();
    return s;
}

} // namespace tarvanel
