// 13. Extras: Ramadan mode and the weekly report.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>

namespace tarvanel {

QWidget* makeExtrasSection(SectionContext& c) {
    auto* s = new Section(QStringLiteral("Extras"),
                          QStringLiteral("Ramadan mode adds suhoor and iftar times and a Tarawih "
                                         "reminder during Ramadan."));
    s->addRow(boundToggle(c, QStringLiteral("Ramadan mode"), Field::ramadan,
                          &PrayerSettingsModel::ramadan, &PrayerSettingsModel::setRamadan));
    s->addRow(boundToggle(c, QStringLiteral("Weekly report on Sunday evenings"), Field::weekly,
                          &PrayerSettingsModel::weekly, &PrayerSettingsModel::setWeekly));
    return s;
}

} // namespace tarvanel
