#pragma once
// The two live texts of every lock window: the countdown and the guardian line.
#include <QObject>
#include <QString>

namespace tarvanel {

class LockScreenState : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString countdown READ countdown NOTIFY countdownChanged)
    Q_PROPERTY(QString guardian READ guardian NOTIFY guardianChanged)
public:
    using QObject::QObject;

    QString countdown() const { return countdown_; }
    QString guardian() const { return guardian_; }

    void setCountdown(const QString& text) {
        if (text == countdown_) return;
        countdown_ = text;
        emit countdownChanged(text);
    }
    void setGuardian(const QString& text) {
        if (text == guardian_) return;
        guardian_ = text;
        emit guardianChanged(text);
    }

signals:
    void countdownChanged(const QString& text);
    void guardianChanged(const QString& text);

private:
    QString countdown_;
    QString guardian_;
};

} // namespace tarvanel
