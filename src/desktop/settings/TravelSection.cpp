// 7. Travel: follow the location, and combine prayers while travelling.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QCoreApplication>

namespace tarvanel {

QWidget* makeTravelSection(SectionContext& c) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Travel"),
        //: I'm Travelling… is a command of the tray menu
        QCoreApplication::translate(
            "Settings",
            "Travel mode checks your rough location online every 6 hours and uses local times "
            "when you're more than 50 km from home; a VPN will fool it. You can also choose I'm "
            "Travelling… in the menu. Combining makes Dhuhr and Asr one lock at Dhuhr, and "
            "Maghrib and Isha one lock at Maghrib, only while travelling. Schools differ: the "
            "Hanafi school, for example, doesn't permit combining except at Arafah and "
            "Muzdalifah. Turn it on only if your school permits it."));
    s->addRow(
        boundToggle(c, QCoreApplication::translate("Settings", "Travel mode (follow my location)"),
                    Field::travel, &PrayerSettingsModel::travel, &PrayerSettingsModel::setTravel));
    s->addRow(boundToggle(
        c, QCoreApplication::translate("Settings", "Combine prayers while travelling"),
        Field::combine, &PrayerSettingsModel::combine, &PrayerSettingsModel::setCombine));

    return s;
}

} // namespace tarvanel
