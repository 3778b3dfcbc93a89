// 12. Streak & history: how long "I'm Excused" lasts, and the CSV export.
#include "desktop/settings/SectionKit.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QSpinBox>

namespace tarvanel {

QWidget* makeHistorySection(SectionContext& c) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Streak & history"),
        //: I'm Excused… and Mark as Prayed are commands of the tray menu; use their translations
        QCoreApplication::translate(
            "Settings",
            "I'm Excused… in the menu turns off reminders and locks without breaking your "
            "streak. Mark as Prayed counts a prayer you prayed at the masjid or made up late "
            "(qada). Export saves every prayer with how it was kept as a CSV."));
    //: A number of days follows in a field; I'm Excused is a command of the tray menu
    const QString label =
        QCoreApplication::translate("Settings", "“I'm Excused” ends by itself after");
    //: A unit after a number of days in a field; keep the leading space if your language has one
    const QString days = QCoreApplication::translate("Settings", " days");
    s->addRow(label, boundStepper(c, label, Field::excusedDays, &PrayerSettingsModel::excusedDays,
                                  &PrayerSettingsModel::setExcusedDays, 1, 30, 1, days));
    QPushButton* exportButton =
        button(QCoreApplication::translate("Settings", "Export History…"), c.actions.exportHistory);

    exportButton->setEnabled(bool(c.actions.exportHistory));
    s->addRow(hbox({exportButton}));
    return s;
}

} // namespace tarvanel
