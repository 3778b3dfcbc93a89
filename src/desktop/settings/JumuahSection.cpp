// 6. Jumu'ah: on Fridays Dhuhr becomes Jumu'ah at a set time with a longer lock.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QSpinBox>
#include <QTimeEdit>

namespace tarvanel {

QWidget* makeJumuahSection(SectionContext& c) {
    auto* s = new Section(
        QStringLiteral("Jumu'ah"),
        QStringLiteral("On Fridays Dhuhr becomes Jumu'ah at this time, with a longer lock."));
    PrayerSettingsModel* m = &c.model;
    s->addRow(boundToggle(c, QStringLiteral("Jumu'ah on Fridays"), Field::jumuahEnabled,
                          &PrayerSettingsModel::jumuahEnabled,
                          &PrayerSettingsModel::setJumuahEnabled));
    auto* time = new QTimeEdit;
    time->setDisplayFormat(QStringLiteral("h:mm AP"));
    time->setMaximumWidth(140);
    watch(*m, time, {Field::jumuahTime}, [m, time] {
        if (time->time() != localTime(m->jumuahTime())) time->setTime(localTime(m->jumuahTime()));
    });
    QObject::connect(time, &QTimeEdit::timeChanged, m, [m](const QTime& t) {
        m->setJumuahTime(instantToday(t, m->services().clock()));
    });
    s->addRow(QStringLiteral("Jumu'ah time"), time);
    s->addRow(QStringLiteral("Jumu'ah lock lasts"),
              boundStepper(c, QStringLiteral("Jumu'ah lock lasts"), Field::jumuahLock,
                           &PrayerSettingsModel::jumuahLock, &PrayerSettingsModel::setJumuahLock,
                           10, 90, 5, QStringLiteral(" min")));
    return s;
}

} // namespace tarvanel
