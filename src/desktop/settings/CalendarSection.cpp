// 9. Calendar: each lock as a busy event in a calendar the user picks.
#include "desktop/settings/SectionKit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>

namespace tarvanel {

QWidget* makeCalendarSection(SectionContext& c) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "Calendar"),
        //: Busy is how the event shows in others' calendars; khal and vdirsyncer are programs
        QCoreApplication::translate(
            "Settings",
            "Adds each lock as a Busy event for the next 7 days, so colleagues see you're busy "
            "and don't book meetings over salah. Pick your work calendar. Turning this off "
            "removes the events.\nOn Linux the calendars are the folders under "
            "~/.local/share/calendars (khal and vdirsyncer use them too)."));
    PrayerSettingsModel* m = &c.model;
    auto* toggle =
        new QCheckBox(QCoreApplication::translate("Settings", "Block prayer times in my calendar"));
    toggle->setAccessibleName(toggle->text());
    watch(*m, toggle, {Field::calendarSync},
          [m, toggle] { toggle->setChecked(m->calendarSync()); });
    // Only a click by the user asks for access; the model's own changes just show.
    QObject::connect(toggle, &QCheckBox::clicked, m, [m](bool on) { m->calendarToggled(on); });
    s->addRow(toggle);

    auto* picker = new QComboBox;
    watch(*m, picker, {Field::calendars, Field::calendarID}, [m, picker] {
        picker->clear();
        //: No calendar chosen
        picker->addItem(QCoreApplication::translate("Settings", "None"), QString());
        for (const CalendarChoice& cal : m->calendars()) {
            //: A calendar in the list: %1 its name, %2 the account or folder it belongs to
            const QString named =
                QCoreApplication::translate("Settings", "%1 (%2)").arg(cal.title, cal.source);
            picker->addItem(cal.source.isEmpty() ? cal.title : named, cal.id);
        }
        const int i = picker->findData(m->calendarID());
        if (i < 0 && !m->calendarID().isEmpty())
            picker->addItem(m->calendarID(), m->calendarID()); // not offered (yet): keep it
        picker->setCurrentIndex(std::max(0, picker->findData(m->calendarID())));
    });
    QObject::connect(picker, &QComboBox::activated, m,
                     [m, picker](int i) { m->setCalendarID(picker->itemData(i).toString()); });
    s->addRow(QCoreApplication::translate("Settings", "Calendar"), picker);

    s->addRow(statusLabel(c, Field::calendarMessage, &PrayerSettingsModel::calendarMessage));
    return s;
}

} // namespace tarvanel
