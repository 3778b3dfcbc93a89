#include "lock/LockSession.h"

#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/Digits.h"
#include "engine/Quotes.h"
#include "guardian/Guardian.h"
#include "lock/Presence.h"
#include "records/Modes.h"

#include <QCoreApplication>
#include <QLocale>

namespace tarvanel {

LockSession::LockSession(Platform& platform, QObject* owner)
    : platform_(platform), state_(new LockScreenState(owner)) {}

bool LockSession::start(const QString& displayName, const QDateTime& until,
                        const std::optional<QString>& key, const std::optional<QString>& partner,
                        const Config& cfg) {
    if (end_) return false;
    prayer_ = displayName;
    end_ = until;
    key_ = key;
    partner_ = partner;
    lastSeen_ = QDateTime();
    guardianBuffer_.clear();
    guardianMessage_.clear();
    logLine(lcLock, QStringLiteral("Tarvanel: locked for ") + displayName +
                        QStringLiteral(" until ") + defaultDescription(until));
    platform_.closeBanner();
    platform_.activateApp();
    rebuildWindows();
    const std::optional<QString> adhan = cfg.adhanOn() ? adhanFileURL() : std::nullopt;
    if (!adhan || !platform_.playSoundFile(*adhan))
        platform_.playNamedSound(QStringLiteral("Blow"));
    return true;
}

bool LockSession::tick(const QDateTime& now) {
    if (lastSeen_.isValid() && now < lastSeen_) end_ = end_->addMSecs(-now.msecsTo(lastSeen_));
    lastSeen_ = now;
    if (now >= *end_) return true;
    platform_.activateApp();
    platform_.raiseLockWindows(Guardian::isSet());
    const qint64 s = now.msecsTo(*end_) / 1000;
    const QLocale locale;
    QString seconds = locale.toString(s % 60);
    if (s % 60 < 10) seconds.prepend(locale.zeroDigit());
    //: %1 is the time left in minutes and seconds, as in "4:59"
    state_->setCountdown(QCoreApplication::translate("LockScreen", "Screen unlocks in %1")
                             .arg(locale.toString(s / 60) + QLatin1Char(':') + seconds));
    return false;
}

LockSession::Ended LockSession::close() {
    platform_.closeLockWindows();
    state_->setCountdown(QString());
    state_->setGuardian(QString());
    guardianBuffer_.clear();
    end_.reset();
    lastSeen_ = QDateTime();
    Ended ended{prayer_, key_, partner_};
    prayer_.clear();
    key_.reset();
    partner_.reset();
    return ended;
}

void LockSession::rebuildWindows() {
    state_->setGuardian(Guardian::isSet() ? guardianLine() : QString());
    QList<LockWindowContent> perScreen;
    const int screens = std::max(platform_.screenCount(), 1);
    for (int i = 0; i < screens; ++i)
        perScreen << LockWindowContent{prayer_, pickQuote(prayer_), end_ ? *end_ : QDateTime()};
    platform_.showLockWindows(perScreen, state_);
}

QString LockSession::guardianLine() const {
    const qsizetype n = guardianBuffer_.size();
    if (n > 0) {
        QStringList symbols;
        for (qsizetype i = 0; i < 6; ++i)
            symbols << (i < n ? QStringLiteral("●") : QStringLiteral("○"));
        return symbols.join(QLatin1Char(' '));
    }
    if (!guardianMessage_.isEmpty()) return guardianMessage_;
    //: The guardian: the person who keeps the code that ends a lock early
    return QCoreApplication::translate("LockScreen",
                                       "Emergency? Type your guardian's 6-digit code");
}

bool LockSession::keyInput(LockKey key, const QString& text, const QDateTime& now) {
    if (key == LockKey::Escape) {
        guardianBuffer_.clear();
        guardianMessage_.clear();
        state_->setGuardian(guardianLine());
        return false;
    }
    if (!Guardian::isSet() || !end_) return false;
    if (key == LockKey::Backspace && !guardianBuffer_.isEmpty()) guardianBuffer_.chop(1);
    // Western, Arabic-Indic and Extended Arabic-Indic digits; any other key does nothing.
    for (const char32_t c : text.toUcs4())
        if (const int d = digitValue(c); d >= 0) guardianBuffer_ += QLatin1Char(char('0' + d));
    guardianMessage_.clear();
    if (guardianBuffer_.size() >= 6) {
        const QString code = guardianBuffer_.left(6);
        guardianBuffer_.clear();
        switch (Guardian::verify(code, now)) {
        case Guardian::Check::ok:
            return true;
        case Guardian::Check::wrong:
            guardianMessage_ = QCoreApplication::translate("LockScreen", "That code didn't work");
            break;
        case Guardian::Check::tooManyTries:
            guardianMessage_ = QCoreApplication::translate(
                "LockScreen", "Too many tries. Try again in %Ln minutes", nullptr, 5);
            break;
        }
    }
    state_->setGuardian(guardianLine());
    return false;
}

} // namespace tarvanel
