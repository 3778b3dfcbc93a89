#pragma once
// The guardian code set-up shown inside the "Emergency exit" section: the otpauth QR code at a
// size a phone camera reads from the screen, the key in groups of four, and the code check.
#include "settings/PrayerSettingsModel.h"

#include <QImage>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace tarvanel {

// The QR code of `text` with a four-module quiet zone, each module `modulePixels` square
// (black on white); a null image when the text cannot be encoded.
QImage qrImage(const QString& text, int modulePixels);

class GuardianSetup : public QWidget {
    Q_OBJECT
public:
    explicit GuardianSetup(PrayerSettingsModel& model, QWidget* parent = nullptr);

private:
    void refresh();
    PrayerSettingsModel& model_;
    QLabel* qr_;
    QLineEdit* key_;
    QLineEdit* code_;
};

} // namespace tarvanel
