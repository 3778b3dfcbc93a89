// 1. Location: search a city, or type coordinates.
#include "desktop/settings/SectionKit.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeZone>
#include <QToolButton>

namespace tarvanel {

namespace {

QLineEdit* coordinateField(SectionContext& c, const QString& label, Field field,
                           const double& (PrayerSettingsModel::*get)() const,
                           void (PrayerSettingsModel::*set)(const double&), double limit) {
    auto* edit = new QLineEdit;
    edit->setAccessibleName(label);
    PrayerSettingsModel* m = &c.model;
    watch(*m, edit, {field}, [m, edit, get] {
        bool ok = false;
        const double shown = edit->text().toDouble(&ok);
        if (!ok || shown != (m->*get)()) edit->setText(QString::number((m->*get)(), 'f', 4));
    });
    QObject::connect(edit, &QLineEdit::textChanged, m, [m, set, limit](const QString& text) {
        bool ok = false;
        const double v = text.trimmed().toDouble(&ok);
        if (ok && std::abs(v) <= limit) (m->*set)(v);
    });
    return edit;
}

// Several places of the searched name: one line each (name, region, country), the one in use
// selected. Arrow keys or a click use another at once; a screen reader reads each line.
void addPlaceChoice(Section& s, PrayerSettingsModel& model) {
    const QString label = QStringLiteral("Places with this name");
    auto* list = new QListWidget;
    s.addRow(label, list);
    auto* caption = s.form()->labelForField(list);
    PrayerSettingsModel* m = &model;
    watch(*m, list, {Field::places}, [m, list, caption] {
        const QSignalBlocker quiet(list);
        list->clear();
        for (const GeoPlace& p : m->places()) {
            auto* item = new QListWidgetItem(placeLine(p), list);
            item->setData(Qt::AccessibleTextRole, item->text());
        }
        if (list->count() > 0) list->setCurrentRow(0);
        const int rows = std::min(list->count(), 6);
        list->setFixedHeight(rows * std::max(list->sizeHintForRow(0), 1) + 2 * list->frameWidth());
        list->setVisible(rows > 0);
        if (caption) caption->setVisible(rows > 0);
    });
    QObject::connect(list, &QListWidget::currentRowChanged, m,
                     [m](int row) { m->choosePlace(row); });
}

} // namespace

QWidget* makeLocationSection(SectionContext& c) {
    auto* s = new Section(
        QStringLiteral("Location"),
        QStringLiteral("Times are calculated on your computer, no internet needed. Your "
                       "computer's time zone: ") +
            QString::fromUtf8(c.model.services().localZone().id()));
    PrayerSettingsModel* m = &c.model;

    QLineEdit* city =
        boundText(c, QStringLiteral("City"), Field::query, &PrayerSettingsModel::query,
                  &PrayerSettingsModel::setQuery, QStringLiteral("e.g. London, Dhaka, Toronto"));
    QObject::connect(city, &QLineEdit::returnPressed, m, [m] { m->search(); });
    QPushButton* find = button(QStringLiteral("Find"), [m] { m->search(); });
    watch(*m, find, {Field::searching}, [m, find] { find->setEnabled(!m->searching()); });
    auto* cityRow = hbox({city, find});
    city->setMinimumWidth(260);
    s->addRow(QStringLiteral("City"), cityRow);
    cityRow->setAccessibleName(QString()); // the field itself carries the name
    city->setAccessibleName(QStringLiteral("City"));
    qobject_cast<QLabel*>(s->form()->labelForField(cityRow))->setBuddy(city);
    s->addRow(statusLabel(c, Field::searchMessage, &PrayerSettingsModel::searchMessage));
    addPlaceChoice(*s, *m);

    auto* using_ = wrapped(QString());
    watch(*m, using_, {Field::locationName, Field::latitude, Field::longitude}, [m, using_] {
        const QString text =
            m->hasLocation() ? m->locationName() + QStringLiteral("  ") +
                                   QString::asprintf("%.4f, %.4f", m->latitude(), m->longitude())
                             : QStringLiteral("Not set yet");
        using_->setText(text);
        using_->setAccessibleName(QStringLiteral("Using ") + text);
    });
    s->form()->addRow(new QLabel(QStringLiteral("Using")), using_);

    auto* expand = new QToolButton;
    expand->setText(QStringLiteral("Enter coordinates"));
    expand->setAccessibleName(QStringLiteral("Enter coordinates"));
    expand->setCheckable(true);
    expand->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    expand->setArrowType(Qt::RightArrow);
    expand->setAutoRaise(true);
    s->addRow(expand);
    auto* manual = new QWidget;
    auto* form = new QFormLayout(manual);
    form->setContentsMargins(16, 0, 0, 0);
    auto addManual = [form](const QString& label, QWidget* w) {
        auto* l = new QLabel(label);
        l->setBuddy(w);
        w->setAccessibleName(label);
        form->addRow(l, w);
    };
    addManual(QStringLiteral("Name"),
              boundText(c, QStringLiteral("Name"), Field::locationName,
                        &PrayerSettingsModel::locationName, &PrayerSettingsModel::setLocationName));
    addManual(QStringLiteral("Latitude"),
              coordinateField(c, QStringLiteral("Latitude"), Field::latitude,
                              &PrayerSettingsModel::latitude, &PrayerSettingsModel::setLatitude,
                              90));
    addManual(QStringLiteral("Longitude"),
              coordinateField(c, QStringLiteral("Longitude"), Field::longitude,
                              &PrayerSettingsModel::longitude, &PrayerSettingsModel::setLongitude,
                              180));
    manual->setVisible(false);
    QObject::connect(expand, &QToolButton::toggled, manual, [manual, expand](bool on) {
        manual->setVisible(on);
        expand->setArrowType(on ? Qt::DownArrow : Qt::RightArrow);
    });
    s->addRow(manual);
    return s;
}

} // namespace tarvanel
