// 2. Calculation: the method, custom angles and the Asr school.
#include "desktop/settings/SectionKit.h"
#include "engine/CalcMethods.h"

#include <QComboBox>
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
    auto* s = new Section(QStringLiteral("Calculation"));
    PrayerSettingsModel* m = &c.model;

    auto* method = new QComboBox;
    for (const CalcMethod& row : calcMethods())
        method->addItem(row.name, row.id);
    method->addItem(QStringLiteral("Custom angles"), QStringLiteral("Custom"));
    s->addRow(QStringLiteral("Method"), method);

    auto* fajr = angleStepper(c, QStringLiteral("Fajr angle"), Field::fajrAngle,
                              &PrayerSettingsModel::fajrAngle, &PrayerSettingsModel::setFajrAngle);
    auto* isha = angleStepper(c, QStringLiteral("Isha angle"), Field::ishaAngle,
                              &PrayerSettingsModel::ishaAngle, &PrayerSettingsModel::setIshaAngle);
    s->addRow(QStringLiteral("Fajr angle"), fajr);
    s->addRow(QStringLiteral("Isha angle"), isha);

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
    asr->addItem(QStringLiteral("Standard (Shafi'i, Maliki, Hanbali)"));
    asr->addItem(QStringLiteral("Hanafi"));
    s->addRow(QStringLiteral("Asr"), asr);
    watch(*m, asr, {Field::hanafi}, [m, asr] { asr->setCurrentIndex(m->hanafi() ? 1 : 0); });
    QObject::connect(asr, &QComboBox::activated, m, [m](int i) { m->setHanafi(i == 1); });
    return s;
}

} // namespace tarvanel
