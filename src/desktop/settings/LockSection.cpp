// 4. Lock: its length, lead, reminders and the wait for calls.
#include "desktop/LockBackendChoice.h"
#include "desktop/gnome/GnomeExtensionSwitch.h"
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QSpinBox>

namespace tarvanel {

QString lockFooter(bool guardianSet) {
    //: “Did you pray?” and Not Yet are the texts of the question asked after a lock and its button
    if (guardianSet)
        return QCoreApplication::translate(
            "Settings",
            "During a lock every screen goes black, and the lock holds the keyboard and mouse, so "
            "the panel, window and workspace switching and the desktop's shortcuts are out of "
            "reach. There's no way to end it early except your guardian's code. If your mic or "
            "camera is in use when a lock is due, it waits for the call to end, then locks for "
            "the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. "
            "If your computer is asleep, it locks on wake only while still inside the lock "
            "window.");
    //: “Did you pray?” and Not Yet are the texts of the question asked after a lock and its button
    return QCoreApplication::translate(
        "Settings",
        "During a lock every screen goes black, and the lock holds the keyboard and mouse, so "
        "the panel, window and workspace switching and the desktop's shortcuts are out of "
        "reach. There's no way to end it early. If your mic or camera is in use when a lock is "
        "due, it waits for the call to end, then locks for the full time. With “Did you "
        "pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it "
        "locks on wake only while still inside the lock window.");
}

namespace {

// The sentence that says where this desktop lets a lock be left, on a line of its own.
QString weaknessLine(const QString& weakness) {
    if (weakness.isEmpty()) return {};
    QString said = QCoreApplication::translate("LockWeakness", weakness.toUtf8().constData());
    said = said.front().toUpper() + said.mid(1);
    //: A sentence's full stop: %1 the sentence
    return QLatin1Char('\n') + QCoreApplication::translate("Settings", "%1.").arg(said);
}

} // namespace

QWidget* makeLockSection(SectionContext& c) {
    //: The heading of the section about the lock (a noun)
    auto* s = new Section(QCoreApplication::translate("Settings", "Lock"));

    PrayerSettingsModel* m = &c.model;
    //: A unit after a number of minutes in a field; keep the leading space if your language has one
    const QString min = QCoreApplication::translate("Settings", " min");
    const QString lasts = QCoreApplication::translate("Settings", "Lock lasts");
    s->addRow(lasts, boundStepper(c, lasts, Field::lockMinutes, &PrayerSettingsModel::lockMinutes,
                                  &PrayerSettingsModel::setLockMinutes, 3, 60, 1, min));
    const QString lead = QCoreApplication::translate("Settings", "Lock starts before prayer");
    s->addRow(lead, boundStepper(c, lead, Field::lockLead, &PrayerSettingsModel::lockLead,
                                 &PrayerSettingsModel::setLockLead, 0, 30, 1, min));
    const QString nudges = QCoreApplication::translate("Settings", "Reminders (minutes before)");
    //: An example of the reminders field: minutes before the lock, separated by commas
    s->addRow(nudges, boundText(c, nudges, Field::nudges, &PrayerSettingsModel::nudges,
                                &PrayerSettingsModel::setNudges,
                                QCoreApplication::translate("Settings", "20, 10, 5, 2")));
    //: How long a lock waits while the mic or camera is in use
    const QString grace = QCoreApplication::translate("Settings", "Wait for a call to end");
    s->addRow(grace, boundStepper(c, grace, Field::callGrace, &PrayerSettingsModel::callGrace,
                                  &PrayerSettingsModel::setCallGrace, 0, 60, 5, min));
    s->addRow(boundToggle(
        c, QCoreApplication::translate("Settings", "Ask “Did you pray?” after each lock"),
        Field::strict, &PrayerSettingsModel::strict, &PrayerSettingsModel::setStrict));
    if (QWidget* gnome = gnomeExtensionSwitch()) s->addRow(gnome); // GNOME only
    // Said plainly where the desktop lets a lock be left.
    const QString weakness = weaknessLine(lockWeaknessHere());

    watch(*m, s, {Field::guardianSet}, [m, s, weakness] {
        s->footer()->setText(lockFooter(m->guardianSet()) + weakness);
        s->footer()->setAccessibleName(s->footer()->text());
        s->footer()->show();
    });
    return s;
}

} // namespace tarvanel
