#pragma once
// What every lock window shows: caption, prayer name, the call to prayer in Arabic, the live
// countdown, a quote card and the guardian line, on the aurora background.
#include "engine/Quotes.h"

#include <QLabel>
#include <QWidget>

namespace tarvanel {

class LockScreenState;

class LockView : public QWidget {
    Q_OBJECT
public:
    LockView(const QString& prayer, const Quote& quote, LockScreenState* state,
             QWidget* parent = nullptr);

    // For tests and screenshots: the labels as laid out.
    QLabel* captionLabel() const { return caption_; }
    QLabel* nameLabel() const { return name_; }
    QLabel* countdownLabel() const { return countdown_; }
    QLabel* quoteLabel() const { return quoteText_; }
    QLabel* guardianLabel() const { return guardian_; }
    QWidget* quoteCard() const { return quoteCard_; }

    static QString captionFor(const QString& prayer);
    static QString nameFor(const QString& prayer);

signals:
    void firstPaint();

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void setCountdown(const QString& text);
    void setGuardian(const QString& text);

    QLabel* caption_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* countdown_ = nullptr;
    QWidget* quoteCard_ = nullptr;
    QLabel* quoteText_ = nullptr;
    QLabel* guardian_ = nullptr;
    bool painted_ = false;
};

// A label drawn on a glass card; the countdown capsule and the banner's pieces use it.
class GlassLabel : public QLabel {
    Q_OBJECT
public:
    GlassLabel(double radius, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double radius_;
};

} // namespace tarvanel
