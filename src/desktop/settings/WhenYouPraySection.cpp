// 5. When you pray: each prayer at its start, after it, or at a fixed time; the timetable.
#include "desktop/settings/SectionKit.h"

#include <QComboBox>
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
    minutes->setSuffix(QStringLiteral(" min"));
    minutes->setAccessibleName(name + QStringLiteral(" minutes after start"));
    auto* time = new QTimeEdit;
    time->setDisplayFormat(QStringLiteral("h:mm AP"));
    time->setAccessibleName(name + QStringLiteral(" fixed time"));
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
        QStringLiteral("When you pray"),
        QStringLiteral("Lock at the time you actually pray, like your mosque's jamaat, instead of "
                       "the moment the time starts. An imported timetable wins on the days it "
                       "covers."));
    PrayerSettingsModel* m = &c.model;
    const QList<PrayerTimeRow> rows = m->rows();
    for (int i = 0; i < rows.size(); ++i)
        s->addRow(rows[i].name, prayerRow(c, i, rows[i].name));

    auto* timetable = new QLabel;
    QPushButton* clear = button(QStringLiteral("Clear"), [m] { m->clearTimetable(); });
    watch(*m, timetable, {Field::timetableSummary}, [m, timetable, clear] {
        const auto summary = m->timetableSummary();
        timetable->setText(summary ? QStringLiteral("Masjid timetable: ") + *summary
                                   : QStringLiteral("No masjid timetable imported"));
        timetable->setAccessibleName(timetable->text());
        clear->setVisible(summary.has_value());
    });
    s->addRow(hbox({timetable, clear}));
    QPushButton* import = button(QStringLiteral("Import Timetable…"), c.actions.importTimetable);
    import->setEnabled(bool(c.actions.importTimetable));
    s->addRow(hbox({import}));
    return s;
}

} // namespace tarvanel
