#include "desktop/settings/PrayerSettingsView.h"

#include "desktop/TrayIcon.h"
#include "desktop/settings/SectionKit.h"
#include "engine/PrayerNames.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

namespace tarvanel {

QString headerStatus(const PrayerSettingsModel& model) {
    if (!model.hasLocation())
        return QCoreApplication::translate("Settings", "Find your city to begin");
    const QString place = model.locationName().isEmpty()
                              ? QCoreApplication::translate("Settings", "Your location")
                              : model.locationName();
    const QDateTime now = model.services().clock();
    for (const PreviewEntry& e : model.preview()) {
        if (e.name == QLatin1String("Sunrise") || !e.lock || *e.lock <= now) continue;
        //: The settings window's header: %1 the place, %2 a prayer, %3 the time its lock starts
        return QCoreApplication::translate("Settings", "%1  ·  %2 locks at %3")
            .arg(place, prayerLabel(e.name), shortTime(*e.lock));
    }
    return place;
}

QString saveTitle(bool firstRun) {
    //: The button that saves the settings on the first run and starts the program
    return firstRun ? QCoreApplication::translate("Settings", "Start Tarvanel")
                    : QCoreApplication::translate("Settings", "Save");
}

PrayerSettingsView::PrayerSettingsView(std::unique_ptr<PrayerSettingsModel> model,
                                       PrayerSettingsActions actions, QWidget* parent)
    : QWidget(parent), model_(std::move(model)), actions_(std::move(actions)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeHeader());
    if (!model_->configProblem().isEmpty()) {
        //: %1 what is wrong with the settings file
        const QString text = tr("Your settings file can't be used (%1), so nothing locks yet. "
                                "Check the settings below and save to start again.")
                                 .arg(model_->configProblem());
        auto* problem = new QLabel(text, this);
        problem->setWordWrap(true);
        problem->setContentsMargins(20, 6, 20, 6);
        problem->setStyleSheet(QStringLiteral("color: #c62828;"));
        problem->setAccessibleName(text);
        column->addWidget(problem);
        // A hand fix of the file reloads the form; the problem is then gone.
        PrayerSettingsModel* m = model_.get();
        watch(*m, problem, {Field::fileNotice, Field::latitude},
              [m, problem] { problem->setVisible(!m->configProblem().isEmpty()); });
    }
    column->addWidget(makeFileNotice());

    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus); // Tab goes from the last button straight to "City"
    auto* form = new QWidget;
    auto* sections = new QVBoxLayout(form);
    sections->setContentsMargins(20, 4, 20, 12);
    SectionContext ctx{*model_, actions_, this};
    using Maker = QWidget* (*)(SectionContext&);
    for (Maker make :
         {makeLocationSection, makeCalculationSection, makeTodaySection, makeLockSection,
          makeWhenYouPraySection, makeJumuahSection, makeTravelSection, makeAdhanSection,
          makeCalendarSection, makePhoneSection, makeEmergencySection, makeHistorySection,
          makeExtrasSection, makeLanguageSection})
        sections->addWidget(make(ctx));
    sections->addStretch(1);
    holdWheelUntilFocused(form);
    scroll->setWidget(form);
    column->addWidget(scroll, 1);
    column->addWidget(makeButtonBar());
}

PrayerSettingsView::~PrayerSettingsView() = default;

QWidget* PrayerSettingsView::makeHeader() {
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(20, 16, 20, 8);
    auto* icon = new QLabel(header);
    icon->setPixmap(QPixmap::fromImage(trayImage(QString(), TitleColor::Label, 56)));
    icon->setAccessibleName(QStringLiteral("Tarvanel"));
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    const bool first = model_->firstRun();
    auto* title =
        new QLabel(first ? tr("Welcome to Tarvanel") : QStringLiteral("Tarvanel"), header);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    title->setFont(big);
    title->setAccessibleName(title->text());
    texts->addWidget(title);
    status_ = new QLabel(header);
    texts->addWidget(status_);
    if (!model_->headerNote().isEmpty()) texts->addWidget(wrapped(model_->headerNote(), header));
    if (first) {
        auto* tagline = new QLabel(tr("Get up and pray, on time"), header);
        QFont bold = tagline->font();
        bold.setBold(true);
        tagline->setFont(bold);
        tagline->setAccessibleName(tagline->text());
        texts->addWidget(tagline);
        texts->addWidget(
            wrapped(tr("At each prayer time Tarvanel turns every screen black for a few minutes so "
                       "you step away and pray. You get reminders before each lock. Once a lock "
                       "starts there's no way out until it ends. Find your city to begin."),
                    header));
    }
    row->addLayout(texts, 1);
    PrayerSettingsModel* m = model_.get();
    QLabel* status = status_;
    auto update = [m, status] {
        status->setText(headerStatus(*m));
        status->setAccessibleName(status->text());
    };
    watch(*m, status,
          {Field::locationName, Field::latitude, Field::longitude, Field::methodID,
           Field::fajrAngle, Field::ishaAngle, Field::hanafi, Field::lockLead, Field::rows,
           Field::jumuahEnabled, Field::jumuahTime},
          update);
    // The next lock moves on as the day passes.
    auto* minute = new QTimer(status);
    connect(minute, &QTimer::timeout, status, update);
    minute->start(30000);
    return header;
}

// Shown when config.json changes under edits the user has not saved.
QWidget* PrayerSettingsView::makeFileNotice() {
    auto* notice = new QLabel(this);
    notice->setWordWrap(true);
    notice->setContentsMargins(20, 6, 20, 6);
    notice->setStyleSheet(QStringLiteral("color: #e65100;"));
    notice->hide();
    PrayerSettingsModel* m = model_.get();
    watch(*m, notice, {Field::fileNotice}, [m, notice] {
        notice->setText(m->fileNotice());
        notice->setAccessibleName(m->fileNotice());
        notice->setVisible(!m->fileNotice().isEmpty());
    });
    return notice;
}

QWidget* PrayerSettingsView::makeButtonBar() {
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(20, 8, 20, 14);
    QPushButton* preview = button(tr("Preview Lock"), actions_.previewLock, bar);
    preview->setToolTip(tr("Black out the screen for 10 seconds"));
    row->addWidget(preview);
    row->addWidget(button(tr("Uninstall…"), actions_.uninstall, bar));
    row->addStretch(1);
    QPushButton* cancel = button(
        tr("Cancel"),
        [this] {
            if (actions_.cancel) actions_.cancel();
            closeWindow();
        },
        bar);
    row->addWidget(cancel);
    cancel_ = cancel;
    save_ = button(
        saveTitle(model_->firstRun()),
        [this] {
            if (!model_->hasLocation()) return;
            model_->stopAdhan();
            if (actions_.save) actions_.save(model_->makeConfig());
            closeWindow();
        },
        bar);
    save_->setDefault(true);
    save_->setAutoDefault(true);
    row->addWidget(save_);
    PrayerSettingsModel* m = model_.get();
    QPushButton* save = save_;
    watch(*m, save, {Field::latitude, Field::longitude}, [m, save] {
        save->setEnabled(m->hasLocation());
        save->setToolTip(m->hasLocation() ? QString()
                                          : tr("Find your city or enter coordinates first."));
    });
    return bar;
}

// Escape that no control took (an open picker closes its popup first) leaves as Cancel does.
void PrayerSettingsView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier && cancel_) {
        cancel_->click();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PrayerSettingsView::closeWindow() {
    if (QWidget* w = window()) w->close();
}

} // namespace tarvanel
