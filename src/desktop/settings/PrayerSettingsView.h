#pragma once
// The settings form: header, the thirteen sections in one scrolling column, and the button bar.
// Owns its model; Save and Cancel close the window they sit in.
#include "settings/PrayerSettingsModel.h"

#include <QWidget>
#include <memory>

class QLabel;
class QPushButton;

namespace tarvanel {

QString headerStatus(const PrayerSettingsModel& model);
// Save's text and, while there is no location, why it is off.
QString saveTitle(bool firstRun);

class PrayerSettingsView : public QWidget {
    Q_OBJECT
public:
    PrayerSettingsView(std::unique_ptr<PrayerSettingsModel> model, PrayerSettingsActions actions,
                       QWidget* parent = nullptr);
    ~PrayerSettingsView() override;
    PrayerSettingsModel& model() { return *model_; }
    QPushButton* saveButton() const { return save_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeHeader();
    QWidget* makeButtonBar();
    QWidget* makeFileNotice();
    void closeWindow();

    std::unique_ptr<PrayerSettingsModel> model_;
    PrayerSettingsActions actions_;
    QLabel* status_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace tarvanel
