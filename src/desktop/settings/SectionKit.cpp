#include "desktop/settings/SectionKit.h"

#include "engine/LocalTime.h"
#include "engine/Schedule.h"

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <cmath>

namespace tarvanel {

Section::Section(const QString& title, const QString& footer, QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 8, 0, 8);
    auto* heading = new QLabel(title, this);
    QFont bold = heading->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    heading->setFont(bold);
    heading->setAccessibleName(title);
    column->addWidget(heading);
    auto* box = new QWidget(this);
    box->setObjectName(QStringLiteral("sectionBox"));
    box->setAttribute(Qt::WA_StyledBackground);
    box->setStyleSheet(
        QStringLiteral("#sectionBox { background: palette(base); border: 1px solid palette(mid); "
                       "border-radius: 8px; }"));
    form_ = new QFormLayout(box);
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::DontWrapRows);
    column->addWidget(box);
    footer_ = wrapped(footer, this);
    QPalette dim = footer_->palette();
    dim.setColor(QPalette::WindowText, dim.color(QPalette::PlaceholderText));
    footer_->setPalette(dim);
    footer_->setVisible(!footer.isEmpty());
    column->addWidget(footer_);
}

void Section::addRow(const QString& label, QWidget* control) {
    control->setAccessibleName(label);
    auto* text = new QLabel(label);
    text->setBuddy(control);
    form_->addRow(text, control);
}

void Section::addRow(QWidget* wide) {
    form_->addRow(wide);
}

void watch(PrayerSettingsModel& model, QObject* receiver, std::initializer_list<Field> fields,
           std::function<void()> update) {
    update();
    QList<Field> list(fields);
    QObject::connect(&model, &PrayerSettingsModel::changed, receiver, [list, update](Field f) {
        if (list.contains(f)) update();
    });
}

QCheckBox* boundToggle(SectionContext& c, const QString& label, Field field,
                       const bool& (PrayerSettingsModel::*get)() const,
                       void (PrayerSettingsModel::*set)(const bool&)) {
    auto* box = new QCheckBox(label);
    box->setAccessibleName(label);
    PrayerSettingsModel* m = &c.model;
    watch(*m, box, {field}, [m, box, get] { box->setChecked((m->*get)()); });
    QObject::connect(box, &QCheckBox::toggled, m, [m, set](bool on) { (m->*set)(on); });
    return box;
}

QSpinBox* boundStepper(SectionContext& c, const QString& label, Field field,
                       const double& (PrayerSettingsModel::*get)() const,
                       void (PrayerSettingsModel::*set)(const double&), int min, int max, int step,
                       const QString& suffix) {
    auto* spin = new QSpinBox;
    spin->setRange(min, max);
    spin->setSingleStep(step);
    spin->setSuffix(suffix);
    spin->setAccessibleName(label);
    spin->setMaximumWidth(140);
    PrayerSettingsModel* m = &c.model;
    watch(*m, spin, {field}, [m, spin, get] {
        const double v = (m->*get)();
        if (spin->value() != int(std::lround(v))) spin->setValue(int(std::lround(v)));
    });
    QObject::connect(spin, &QSpinBox::valueChanged, m, [m, set](int v) { (m->*set)(double(v)); });
    return spin;
}

QLineEdit* boundText(SectionContext& c, const QString& label, Field field,
                     const QString& (PrayerSettingsModel::*get)() const,
                     void (PrayerSettingsModel::*set)(const QString&), const QString& placeholder) {
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(placeholder);
    edit->setAccessibleName(label);
    edit->setClearButtonEnabled(true);
    PrayerSettingsModel* m = &c.model;
    watch(*m, edit, {field}, [m, edit, get] {
        if (edit->text() != (m->*get)()) edit->setText((m->*get)());
    });
    QObject::connect(edit, &QLineEdit::textChanged, m,
                     [m, set](const QString& t) { (m->*set)(t); });
    return edit;
}

QLabel* statusLabel(SectionContext& c, Field field,
                    const QString& (PrayerSettingsModel::*get)() const) {
    auto* label = wrapped(QString());
    PrayerSettingsModel* m = &c.model;
    watch(*m, label, {field}, [m, label, get] {
        label->setText((m->*get)());
        label->setAccessibleName((m->*get)());
        label->setVisible(!(m->*get)().isEmpty());
    });
    return label;
}

QPushButton* button(const QString& text, std::function<void()> onClick, QWidget* parent) {
    auto* b = new QPushButton(text, parent);
    b->setAccessibleName(text);
    b->setAutoDefault(false);
    QObject::connect(b, &QPushButton::clicked, b, [onClick] {
        if (onClick) onClick();
    });
    return b;
}

QLabel* wrapped(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAccessibleName(text);
    return label;
}

QWidget* hbox(std::initializer_list<QWidget*> widgets) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : widgets)
        layout->addWidget(w);
    layout->addStretch(1);
    return row;
}

namespace {

// Hands a wheel turn over an unfocused control to the scroll area around it.
class WheelGuard : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* control = qobject_cast<QWidget*>(watched);
        if (event->type() != QEvent::Wheel || !control || control->hasFocus()) return false;
        for (QWidget* up = control->parentWidget(); up; up = up->parentWidget()) {
            auto* area = qobject_cast<QAbstractScrollArea*>(up);
            if (!area) continue;
            if (area->verticalScrollBar() != control)
                QCoreApplication::sendEvent(area->verticalScrollBar(), event);
            break;
        }
        return true;
    }
};

} // namespace

void holdWheelUntilFocused(QWidget* root) {
    auto* guard = new WheelGuard(root);
    for (QWidget* w : root->findChildren<QWidget*>()) {
        // A list's own scroll bars scroll it and stay out of the Tab order.
        const bool slider = qobject_cast<QAbstractSlider*>(w) && !qobject_cast<QScrollBar*>(w);
        if (!qobject_cast<QAbstractSpinBox*>(w) && !qobject_cast<QComboBox*>(w) && !slider)
            continue;
        w->setFocusPolicy(Qt::StrongFocus);
        w->installEventFilter(guard);
    }
}

QTime localTime(const QDateTime& instant) {
    const LocalFields f = localFields(instant);
    return QTime(f.hour, f.minute);
}

QDateTime instantToday(const QTime& time, const QDateTime& now) {
    return parseFixedTime(time.toString(QStringLiteral("HH:mm")), now).value_or(now);
}

} // namespace tarvanel
