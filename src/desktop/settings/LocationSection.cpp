// 1. Location: search a city, or type coordinates.
#include "desktop/settings/SectionKit.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeZone>
#include <QToolButton>

namespace tarvanel {

namespace {

// A coordinate as the language writes it (Arabic-Indic digits, a decimal comma) or with a point.
double readCoordinate(const QString& text, bool* ok) {
    const QString trimmed = text.trimmed();
    const double v = QLocale().toDouble(trimmed, ok);
    return *ok ? v : trimmed.toDouble(ok);
}

QLineEdit* coordinateField(SectionContext& c, const QString& label, Field field,
                           const double& (PrayerSettingsModel::*get)() const,
                           void (PrayerSettingsModel::*set)(const double&), double limit) {
    auto* edit = new QLineEdit;
    edit->setAccessibleName(label);
    PrayerSettingsModel* m = &c.model;
    watch(*m, edit, {field}, [m, edit, get] {
        bool ok = false;
        const double shown = readCoordinate(edit->text(), &ok);
        if (!ok || shown != (m->*get)()) edit->setText(QLocale().toString((m->*get)(), 'f', 4));
    });
    QObject::connect(edit, &QLineEdit::textChanged, m, [m, set, limit](const QString& text) {
        bool ok = false;
        const double v = readCoordinate(text, &ok);
        if (ok && std::abs(v) <= limit) (m->*set)(v);
    });
    return edit;
}

// Several places of the searched name: one line each (name, region, country), the one in use
// selected. Arrow keys or a click use another at once; a screen reader reads each line.
void addPlaceChoice(Section& s, PrayerSettingsModel& model) {
    const QString label = QCoreApplication::translate("Settings", "Places with this name");
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
    auto* s =
        new Section(QCoreApplication::translate("Settings", "Location"),
                    //: %1 the time zone's identifier, such as Europe/London
                    QCoreApplication::translate(
                        "Settings", "Times are calculated on your computer, no internet needed. "
                                    "Your computer's time zone: %1")
                        .arg(QString::fromUtf8(c.model.services().localZone().id())));
    PrayerSettingsModel* m = &c.model;

    const QString cityLabel = QCoreApplication::translate("Settings", "City");
    QLineEdit* city = boundText(
        c, cityLabel, Field::query, &PrayerSettingsModel::query, &PrayerSettingsModel::setQuery,
        //: Examples of cities; use cities your readers know
        QCoreApplication::translate("Settings", "e.g. London, Dhaka, Toronto"));
    QObject::connect(city, &QLineEdit::returnPressed, m, [m] { m->search(); });
    //: A button: search for the city typed
    QPushButton* find =
        button(QCoreApplication::translate("Settings", "Find"), [m] { m->search(); });
    watch(*m, find, {Field::searching}, [m, find] { find->setEnabled(!m->searching()); });
    auto* cityRow = hbox({city, find});
    city->setMinimumWidth(260);
    s->addRow(cityLabel, cityRow);
    cityRow->setAccessibleName(QString()); // the field itself carries the name
    city->setAccessibleName(cityLabel);
    qobject_cast<QLabel*>(s->form()->labelForField(cityRow))->setBuddy(city);
    s->addRow(statusLabel(c, Field::searchMessage, &PrayerSettingsModel::searchMessage));
    addPlaceChoice(*s, *m);

    auto* using_ = wrapped(QString());
    //: The location in use: a label before the place's name and coordinates
    const QString usingLabel = QCoreApplication::translate("Settings", "Using");
    watch(*m, using_, {Field::locationName, Field::latitude, Field::longitude},
          [m, using_, usingLabel] {
              const QLocale locale;
              //: %1 the place's name, %2 its latitude, %3 its longitude
              const QString text =
                  m->hasLocation()
                      ? QCoreApplication::translate("Settings", "%1  %2, %3")
                            .arg(m->locationName(), locale.toString(m->latitude(), 'f', 4),
                                 locale.toString(m->longitude(), 'f', 4))
                      : QCoreApplication::translate("Settings", "Not set yet");
              using_->setText(text);
              using_->setAccessibleName(usingLabel + QLatin1Char(' ') + text);
          });
    s->form()->addRow(new QLabel(usingLabel), using_);

    auto* expand = new QToolButton;
    expand->setText(QCoreApplication::translate("Settings", "Enter coordinates"));
    expand->setAccessibleName(expand->text());
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
    //: The place's name, typed with its coordinates
    const QString nameLabel = QCoreApplication::translate("Settings", "Name");
    addManual(nameLabel,
              boundText(c, nameLabel, Field::locationName, &PrayerSettingsModel::locationName,
                        &PrayerSettingsModel::setLocationName));
    const QString latitude = QCoreApplication::translate("Settings", "Latitude");
    addManual(latitude,
              coordinateField(c, latitude, Field::latitude, &PrayerSettingsModel::latitude,
                              &PrayerSettingsModel::setLatitude, 90));
    const QString longitude = QCoreApplication::translate("Settings", "Longitude");
    addManual(longitude,
              coordinateField(c, longitude, Field::longitude, &PrayerSettingsModel::longitude,
                              &PrayerSettingsModel::setLongitude, 180));

    manual->setVisible(false);
    QObject::connect(expand, &QToolButton::toggled, manual, [manual, expand](bool on) {
        manual->setVisible(on);
        expand->setArrowType(on ? Qt::DownArrow : Qt::RightArrow);
    });
    s->addRow(manual);
    return s;
}

} // namespace tarvanel
