// 2. Calculation: the method, custom angles and the Asr school.
#include "desktop/settings/SectionKit.h"
#include "engine/CalcMethods.h"
#include "engine/PrayerNames.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>

namespace tarvanel {

namespace {

QDoubleSpinBox* angleStepper(SectionContext& c, const QString& label, Field field,
                             const double& (PrayerSettingsModel::*get)() const,
                             void (PrayerSettingsModel::*set)(const double&)) {
    auto* spin = new QDoubleSpinBox;
    spin->setRange(10, 22);
    spin->setSingleStep(0.5);
    spin->setDecimals(1);
    spin->setSuffix(QStringLiteral("°"));
    spin->setMaximumWidth(140);
    spin->setAccessibleName(label);
    PrayerSettingsModel* m = &c.model;
    watch(*m, spin, {field}, [m, spin, get] {
        if (spin->value() != (m->*get)()) spin->setValue((m->*get)());
    });
    QObject::connect(spin, &QDoubleSpinBox::valueChanged, m, [m, set](double v) { (m->*set)(v); });
    return spin;
}

} // namespace

QWidget* makeCalculationSection(SectionContext& c) {
    auto* s = new Section(QCoreApplication::translate("Settings", "Calculation"));
    PrayerSettingsModel* m = &c.model;

    auto* method = new QComboBox;
    for (const CalcMethod& row : calcMethods())
        method->addItem(row.name, row.id);
    //: The calculation method of one's own: the sun's angles below the horizon for Fajr and Isha
    method->addItem(QCoreApplication::translate("Settings", "Custom angles"),
                    QStringLiteral("Custom"));
    //: The calculation method of prayer times
    s->addRow(QCoreApplication::translate("Settings", "Method"), method);

    //: The sun's angle below the horizon at which Fajr starts
    const QString fajrLabel = QCoreApplication::translate("Settings", "Fajr angle");
    //: The sun's angle below the horizon at which Isha starts
    const QString ishaLabel = QCoreApplication::translate("Settings", "Isha angle");
    auto* fajr = angleStepper(c, fajrLabel, Field::fajrAngle, &PrayerSettingsModel::fajrAngle,
                              &PrayerSettingsModel::setFajrAngle);
    auto* isha = angleStepper(c, ishaLabel, Field::ishaAngle, &PrayerSettingsModel::ishaAngle,
                              &PrayerSettingsModel::setIshaAngle);
    s->addRow(fajrLabel, fajr);
    s->addRow(ishaLabel, isha);

    watch(*m, method, {Field::methodID}, [m, method, fajr, isha, s] {
        int i = method->findData(m->methodID());
        if (i < 0) i = method->count() - 1; // unknown ids read as custom angles
        method->setCurrentIndex(i);
        const bool custom = method->currentData().toString() == QLatin1String("Custom");
        s->form()->setRowVisible(fajr, custom);
        s->form()->setRowVisible(isha, custom);
    });
    QObject::connect(method, &QComboBox::activated, m,
                     [m, method](int i) { m->setMethodID(method->itemData(i).toString()); });

    auto* asr = new QComboBox;
    //: The way of reckoning the Asr time shared by the Shafi'i, Maliki and Hanbali schools
    asr->addItem(QCoreApplication::translate("Settings", "Standard (Shafi'i, Maliki, Hanbali)"));
    //: The Hanafi school's later Asr time
    asr->addItem(QCoreApplication::translate("Settings", "Hanafi"));
    s->addRow(prayerLabel(QStringLiteral("Asr")), asr);

    watch(*m, asr, {Field::hanafi}, [m, asr] { asr->setCurrentIndex(m->hanafi() ? 1 : 0); });
    QObject::connect(asr, &QComboBox::activated, m, [m](int i) { m->setHanafi(i == 1); });
    return s;
}

} // namespace tarvanel
