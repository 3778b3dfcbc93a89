#pragma once
// Building blocks of the settings form: a titled section with a footer, and controls bound to
// one field of the model both ways. Every control gets its visible label as accessible name.
#include "settings/PrayerSettingsModel.h"

#include <QLabel>
#include <QWidget>
#include <functional>
#include <initializer_list>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QDoubleSpinBox;
class QTimeEdit;

namespace tarvanel {

using Field = PrayerSettingsModel::Field;

// What every section is built from.
struct SectionContext {
    PrayerSettingsModel& model;
    const PrayerSettingsActions& actions;
    QWidget* window; // parent for dialogs
};

// A titled group: its controls go into form(); the footer is a wrapped, secondary text.
class Section : public QWidget {
    Q_OBJECT
public:
    Section(const QString& title, const QString& footer = {}, QWidget* parent = nullptr);
    QFormLayout* form() const { return form_; }
    QLabel* footer() const { return footer_; }
    // A labelled row; the control's accessible name becomes the label.
    void addRow(const QString& label, QWidget* control);
    void addRow(QWidget* wide);

private:
    QFormLayout* form_;
    QLabel* footer_;
};

// Runs `update` now and after every change of one of `fields` while `receiver` lives.
void watch(PrayerSettingsModel& model, QObject* receiver, std::initializer_list<Field> fields,
           std::function<void()> update);

QCheckBox* boundToggle(SectionContext& c, const QString& label, Field field,
                       const bool& (PrayerSettingsModel::*get)() const,
                       void (PrayerSettingsModel::*set)(const bool&));
// A whole-number stepper over a double field, with an optional suffix such as " min".
QSpinBox* boundStepper(SectionContext& c, const QString& label, Field field,
                       const double& (PrayerSettingsModel::*get)() const,
                       void (PrayerSettingsModel::*set)(const double&), int min, int max, int step,
                       const QString& suffix = {});
QLineEdit* boundText(SectionContext& c, const QString& label, Field field,
                     const QString& (PrayerSettingsModel::*get)() const,
                     void (PrayerSettingsModel::*set)(const QString&),
                     const QString& placeholder = {});
// A read-only text that follows a field; hidden while empty.
QLabel* statusLabel(SectionContext& c, Field field,
                    const QString& (PrayerSettingsModel::*get)() const);
QPushButton* button(const QString& text, std::function<void()> onClick, QWidget* parent = nullptr);
// A label whose text is selectable and wraps.
QLabel* wrapped(const QString& text, QWidget* parent = nullptr);
// A horizontal row of widgets, aligned left.
QWidget* hbox(std::initializer_list<QWidget*> widgets);

// Spin boxes, time editors, pickers and sliders under `root` take the mouse wheel only once
// focused (by a click or Tab); until then the wheel scrolls the form around them, so scrolling
// the window never changes a value.
void holdWheelUntilFocused(QWidget* root);

// The local hour and minute of an instant as a QTime, and back onto today's date.
QTime localTime(const QDateTime& instant);
QDateTime instantToday(const QTime& time, const QDateTime& now);

// The pattern of a time field in the language, "h:mm AP" in English.
QString timePattern();
// An instant's time of day in the local zone, as the menu and the banners write it.
QString shortTime(const QDateTime& instant);

// The footer of "Lock"; it names the guardian's code only while one is set.
QString lockFooter(bool guardianSet);

// The thirteen sections, top to bottom.
QWidget* makeLocationSection(SectionContext& c);
QWidget* makeCalculationSection(SectionContext& c);
QWidget* makeTodaySection(SectionContext& c);
QWidget* makeLockSection(SectionContext& c);
QWidget* makeWhenYouPraySection(SectionContext& c);
QWidget* makeJumuahSection(SectionContext& c);
QWidget* makeTravelSection(SectionContext& c);
QWidget* makeAdhanSection(SectionContext& c);
QWidget* makeCalendarSection(SectionContext& c);
QWidget* makePhoneSection(SectionContext& c);
QWidget* makeEmergencySection(SectionContext& c);
QWidget* makeHistorySection(SectionContext& c);
QWidget* makeExtrasSection(SectionContext& c);
QWidget* makeLanguageSection(SectionContext& c);

} // namespace tarvanel
