// Starting and ending a lock, its windows and the guardian code typed on them.
#include "engine/Quotes.h"
#include "lock/AppDelegate.h"
#include "lock/Presence.h"
#include "records/Log.h"
#include "records/Modes.h"

namespace tarvanel {

void AppDelegate::startLock(const QString&, const QString& displayName, const QDateTime& until) {
    if (lockEnd_) return; // the first lock's end stands
    lockPrayer_ = displayName;
    lockEnd_ = until;
    lockLastSeen_ = QDateTime();
    guardianBuffer_.clear();
    guardianMessage_.clear();
    logLine(QStringLiteral("Tarvanel: locked for ") + displayName + QStringLiteral(" until ") +
            defaultDescription(until));
    platform_.closeBanner();
    platform_.activateApp();
    buildLockWindows();

    const std::optional<QString> adhan =
        config_.isOn(config_.adhanEnabled, true) ? adhanFileURL() : std::nullopt;
    if (!adhan || !platform_.playSoundFile(*adhan))
        platform_.playNamedSound(QStringLiteral("Blow"));

    if (config_.isOn(config_.focusShortcuts, false) && completedLocksKeyPending_) {
        // Focus shortcuts are a separate piece of work; remember that this lock asked for one.
        focusOn_ = true;
    }
}

void AppDelegate::buildLockWindows() {
    lockState_->setGuardian(guardianIsSet() ? guardianLine() : QString());
    QList<LockWindowContent> perScreen;
    const int screens = std::max(platform_.screenCount(), 1);
    for (int i = 0; i < screens; ++i)
        perScreen << LockWindowContent{lockPrayer_, pickQuote(lockPrayer_)};
    platform_.showLockWindows(perScreen, lockState_);
}

void AppDelegate::endLock(bool early) {
    platform_.closeLockWindows();
    lockState_->setCountdown(QString());
    lockState_->setGuardian(QString());
    guardianBuffer_.clear();
    lockEnd_.reset();
    lockLastSeen_ = QDateTime();
    focusOn_ = false; // Focus shortcuts would be switched off here.

    const QString name = lockPrayer_;
    lockPrayer_.clear();
    if (completedLocksKeyPending_) {
        const QString key = *completedLocksKeyPending_;
        const std::optional<QString> partner = combinedPending_;
        completedLocksKeyPending_.reset();
        combinedPending_.reset();
        if (!early) {
            if (config_.isOn(config_.strictMode, false)) {
                strict_ = StrictPending{key, partner, name};
                platform_.post([self = QPointer<AppDelegate>(this)] {
                    if (self) self->askStrict();
                });
            } else {
                recordKept(key, partner);
            }
        } else {
            completedLocks_.insert(key);
            saveLocks();
            logLine(QStringLiteral("Tarvanel: ") + name +
                    QStringLiteral(" lock ended early with the guardian code"));
        }
    }
    platform_.playNamedSound(QStringLiteral("Glass"));
    logLine(QStringLiteral("Tarvanel: unlocked after ") + name);
    if (exitAfterTest_) platform_.exitProcess(0);
}

QString AppDelegate::guardianLine() const {
    const qsizetype n = guardianBuffer_.size();
    if (n > 0) {
        QStringList symbols;
        for (qsizetype i = 0; i < 6; ++i)
            symbols << (i < n ? QStringLiteral("●") : QStringLiteral("○"));
        return symbols.join(QLatin1Char(' '));
    }
    if (!guardianMessage_.isEmpty()) return guardianMessage_;
    return QStringLiteral("Emergency? Type your guardian's 6-digit code");
}

void AppDelegate::lockKey(LockKey key, const QString& text) {
    switch (key) {
    case LockKey::Escape:
        guardianBuffer_.clear();
        guardianMessage_.clear();
        lockState_->setGuardian(guardianLine());
        break;
    case LockKey::Backspace:
        guardianKeyInput(QString(), true);
        break;
    case LockKey::Other:
        guardianKeyInput(text, false);
        break;
    }
}

void AppDelegate::guardianKeyInput(const QString& text, bool del) {
    if (!guardianIsSet() || !lockEnd_) return;
    if (del && !guardianBuffer_.isEmpty()) guardianBuffer_.chop(1);
    for (const QChar c : text)
        if (c.isNumber()) guardianBuffer_ += c;
    guardianMessage_.clear();
    if (guardianBuffer_.size() >= 6) {
        const QString code = guardianBuffer_.left(6);
        guardianBuffer_.clear();
        switch (verifyGuardian(code, currentTime())) {
        case GuardianAnswer::ok:
            endLock(true);
            return;
        case GuardianAnswer::wrong:
            guardianMessage_ = QStringLiteral("That code didn't work");
            break;
        case GuardianAnswer::tooManyTries:
            guardianMessage_ = QStringLiteral("Too many tries. Try again in 5 minutes");
            break;
        }
    }
    lockState_->setGuardian(guardianLine());
}

} // namespace tarvanel
