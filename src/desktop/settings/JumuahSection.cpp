// 6. Jumu'ah: on Fridays Dhuhr becomes Jumu'ah at a set time with a longer lock.
#include "desktop/settings/SectionKit.h"
#include "engine/PrayerNames.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QSpinBox>
#include <QTimeEdit>

namespace tarvanel {

QWidget* makeJumuahSection(SectionContext& c) {
    auto* s = new Section(
        prayerLabel(QStringLiteral("Jumu'ah")),
        QCoreApplication::translate(
            "Settings", "On Fridays Dhuhr becomes Jumu'ah at this time, with a longer lock."));
    PrayerSettingsModel* m = &c.model;
    s->addRow(boundToggle(c, QCoreApplication::translate("Settings", "Jumu'ah on Fridays"),
                          Field::jumuahEnabled, &PrayerSettingsModel::jumuahEnabled,
                          &PrayerSettingsModel::setJumuahEnabled));
    auto* time = new QTimeEdit;
    time->setDisplayFormat(timePattern());
    time->setMaximumWidth(140);
    watch(*m, time, {Field::jumuahTime}, [m, time] {
        if (time->time() != localTime(m->jumuahTime())) time->setTime(localTime(m->jumuahTime()));
    });
    QObject::connect(time, &QTimeEdit::timeChanged, m, [m](const QTime& t) {
        m->setJumuahTime(instantToday(t, m->services().clock()));
    });
    s->addRow(QCoreApplication::translate("Settings", "Jumu'ah time"), time);
    const QString lasts = QCoreApplication::translate("Settings", "Jumu'ah lock lasts");
    //: A unit after a number of minutes in a field; keep the leading space if your language has one
    s->addRow(lasts, boundStepper(c, lasts, Field::jumuahLock, &PrayerSettingsModel::jumuahLock,
                                  &PrayerSettingsModel::setJumuahLock, 10, 90, 5,
                                  QCoreApplication::translate("Settings", " min")));

    return s;
}

} // namespace tarvanel
