// 13. Extras: Ramadan mode and the weekly report.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QCoreApplication>

namespace tarvanel {

QWidget* makeExtrasSection(SectionContext& c) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Extras"),
        QCoreApplication::translate("Settings", "Ramadan mode adds suhoor and iftar times and a "
                                                "Tarawih reminder during Ramadan."));
    s->addRow(boundToggle(c, QCoreApplication::translate("Settings", "Ramadan mode"),
                          Field::ramadan, &PrayerSettingsModel::ramadan,
                          &PrayerSettingsModel::setRamadan));
    s->addRow(
        boundToggle(c, QCoreApplication::translate("Settings", "Weekly report on Sunday evenings"),
                    Field::weekly, &PrayerSettingsModel::weekly, &PrayerSettingsModel::setWeekly));

    return s;
}

} // namespace tarvanel
