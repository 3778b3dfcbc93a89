// 12. Streak & history: how long "I'm Excused" lasts, and the CSV export.
#include "desktop/settings/SectionKit.h"

#include <QPushButton>
#include <QSpinBox>

namespace tarvanel {

QWidget* makeHistorySection(SectionContext& c) {
    auto* s = new Section(
        QStringLiteral("Streak & history"),
        QStringLiteral("I'm Excused… in the menu turns off reminders and locks without breaking "
                       "your streak. Mark as Prayed counts a prayer you prayed at the masjid or "
                       "made up late (qada). Export saves every prayer with how it was kept as a "
                       "CSV."));
    const QString label = QStringLiteral("“I'm Excused” ends by itself after");
    s->addRow(label, boundStepper(c, label, Field::excusedDays, &PrayerSettingsModel::excusedDays,
                                  &PrayerSettingsModel::setExcusedDays, 1, 30, 1,
                                  QStringLiteral(" days")));
    QPushButton* exportButton = button(QStringLiteral("Export History…"), c.actions.exportHistory);
    exportButton->setEnabled(bool(c.actions.exportHistory));
    s->addRow(hbox({exportButton}));
    return s;
}

} // namespace tarvanel
