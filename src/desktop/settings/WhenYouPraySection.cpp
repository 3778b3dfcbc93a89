// 5. When you pray: each prayer at its start, after it, or at a fixed time; the timetable.
#include "desktop/settings/SectionKit.h"
#include "engine/PrayerNames.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeEdit>

namespace tarvanel {

namespace {

QWidget* prayerRow(SectionContext& c, int index, const QString& name) {
    PrayerSettingsModel* m = &c.model;
    auto* mode = new QComboBox;
    for (TimeMode t : {TimeMode::waqt, TimeMode::offset, TimeMode::fixed})
        mode->addItem(label(t), int(t));
    mode->setAccessibleName(name);
    auto* minutes = new QSpinBox;
    minutes->setRange(-60, 180);
    minutes->setSingleStep(5);
    //: A unit after a number of minutes in a field; keep the leading space if your language has one
    minutes->setSuffix(QCoreApplication::translate("Settings", " min"));
    //: Read by a screen reader: %1 a prayer
    minutes->setAccessibleName(
        QCoreApplication::translate("Settings", "%1 minutes after start").arg(name));
    auto* time = new QTimeEdit;
    time->setDisplayFormat(timePattern());
    //: Read by a screen reader: %1 a prayer
    time->setAccessibleName(QCoreApplication::translate("Settings", "%1 fixed time").arg(name));
    auto* row = hbox({mode, minutes, time});

    watch(*m, row, {Field::rows}, [m, index, mode, minutes, time] {
        const PrayerTimeRow r = m->rows().value(index);
        mode->setCurrentIndex(mode->findData(int(r.mode)));
        minutes->setVisible(r.mode == TimeMode::offset);
        time->setVisible(r.mode == TimeMode::fixed);
        if (minutes->value() != r.minutes) minutes->setValue(r.minutes);
        if (time->time() != localTime(r.time)) time->setTime(localTime(r.time));
    });
    auto edit = [m, index](auto change) {
        PrayerTimeRow r = m->rows().value(index);
        change(r);
        m->setRow(index, r);
    };
    QObject::connect(mode, &QComboBox::activated, m, [edit, mode](int i) {
        edit([&](PrayerTimeRow& r) { r.mode = TimeMode(mode->itemData(i).toInt()); });
    });
    QObject::connect(minutes, &QSpinBox::valueChanged, m,
                     [edit](int v) { edit([&](PrayerTimeRow& r) { r.minutes = v; }); });
    QObject::connect(time, &QTimeEdit::timeChanged, m, [edit, m](const QTime& t) {
        edit([&](PrayerTimeRow& r) { r.time = instantToday(t, m->services().clock()); });
    });
    return row;
}

} // namespace

QWidget* makeWhenYouPraySection(SectionContext& c) {
    auto* s = new Section(
        QCoreApplication::translate("Settings", "When you pray"),
        //: “Lock” here is a verb; jamaat is the congregational prayer at the mosque
        QCoreApplication::translate(
            "Settings", "Lock at the time you actually pray, like your mosque's jamaat, instead of "
                        "the moment the time starts. An imported timetable wins on the days it "
                        "covers."));
    PrayerSettingsModel* m = &c.model;
    const QList<PrayerTimeRow> rows = m->rows();
    for (int i = 0; i < rows.size(); ++i) {
        const QString name = prayerLabel(rows[i].name);
        s->addRow(name, prayerRow(c, i, name));
    }

    auto* timetable = new QLabel;
    //: A button: forget the imported timetable
    QPushButton* clear =
        button(QCoreApplication::translate("Settings", "Clear"), [m] { m->clearTimetable(); });
    watch(*m, timetable, {Field::timetableSummary}, [m, timetable, clear] {
        const auto summary = m->timetableSummary();
        //: %1 the imported timetable's days and dates, such as “31 days, 1 Mar 2025 – 31 Mar 2025”
        timetable->setText(
            summary ? QCoreApplication::translate("Settings", "Masjid timetable: %1").arg(*summary)
                    : QCoreApplication::translate("Settings", "No masjid timetable imported"));
        timetable->setAccessibleName(timetable->text());
        clear->setVisible(summary.has_value());
    });
    s->addRow(hbox({timetable, clear}));
    QPushButton* import = button(QCoreApplication::translate("Settings", "Import Timetable…"),
                                 c.actions.importTimetable);

    import->setEnabled(bool(c.actions.importTimetable));
    s->addRow(hbox({import}));
    return s;
}

} // namespace tarvanel
