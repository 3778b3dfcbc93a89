// 4. Lock: its length, lead, reminders and the wait for calls.
#include "desktop/LockBackendChoice.h"
#include "desktop/gnome/GnomeExtensionSwitch.h"
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>

namespace tarvanel {

QString lockFooter(bool guardianSet) {
    return QStringLiteral("During a lock every screen goes black, and the lock holds the "
                          "keyboard and mouse, so the panel, window and workspace switching and "
                          "the desktop's shortcuts are out of reach. There's no way to end it "
                          "early") +
           (guardianSet ? QStringLiteral(" except your guardian's code") : QString()) +
           QStringLiteral(". If your mic or camera is in use when a lock is due, it waits for the "
                          "call to end, then locks for the full time. With “Did you pray?”, "
                          "answering Not Yet locks again for 5 minutes. If your computer is "
                          "asleep, it locks on wake only while still inside the lock window.");
}

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
    if (QWidget* gnome = gnomeExtensionSwitch()) s->addRow(gnome); // GNOME only
    // Said plainly where the desktop lets a lock be left.
    QString weakness = lockWeaknessHere();
    if (!weakness.isEmpty())
        weakness =
            QStringLiteral("\n") + weakness.front().toUpper() + weakness.mid(1) + QLatin1Char('.');
    watch(*m, s, {Field::guardianSet}, [m, s, weakness] {
        s->footer()->setText(lockFooter(m->guardianSet()) + weakness);
        s->footer()->setAccessibleName(s->footer()->text());
        s->footer()->show();
    });
    return s;
}

} // namespace tarvanel
