// 11. Emergency exit: the guardian code, set up, shown as on, or removed.
#include "desktop/settings/GuardianSetup.h"
#include "desktop/settings/SectionKit.h"

#include <QCoreApplication>
#include <QPushButton>

namespace tarvanel {

QWidget* makeEmergencySection(SectionContext& c) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Emergency exit"),
        //: “A speed bump, not a vault”: it slows a determined person down but cannot stop one
        QCoreApplication::translate(
            "Settings",
            "Optional. Someone you trust keeps a 6-digit code in their phone. In a real emergency "
            "they read it to you and you type it on the lock screen to end the lock; that prayer "
            "isn't counted as kept. The key is stored on this computer, so this is a speed bump, "
            "not a vault."));
    PrayerSettingsModel* m = &c.model;
    //: The guardian's code is set; a Remove button follows
    auto* isSet = hbox(
        {new QLabel(QCoreApplication::translate("Settings", "Guardian code")),
         //: A button: remove the guardian's code
         button(QCoreApplication::translate("Settings", "Remove"), [m] { m->removeGuardian(); })});
    QPushButton* start = button(QCoreApplication::translate("Settings", "Set Up Guardian Code…"),
                                [m] { m->startGuardian(); });

    auto* notSet = hbox({start});
    auto* setup = new GuardianSetup(*m);
    s->addRow(isSet);
    s->addRow(notSet);
    s->addRow(setup);
    s->addRow(statusLabel(c, Field::guardianMessage, &PrayerSettingsModel::guardianMessage));
    watch(*m, s, {Field::guardianSet, Field::guardianDraft}, [m, isSet, notSet, setup] {
        const bool drafting = m->guardianDraft().has_value();
        isSet->setVisible(m->guardianSet() && !drafting);
        notSet->setVisible(!m->guardianSet() && !drafting);
        setup->setVisible(drafting);
    });
    return s;
}

} // namespace tarvanel
