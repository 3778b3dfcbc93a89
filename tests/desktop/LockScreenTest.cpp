// The lock's keys, the quote card's layout, and the lock windows on every screen.
#include "support/TestEnv.h"
#include "desktop/LockKeys.h"
#include "desktop/LockView.h"
#include "desktop/QtPlatform.h"
#include "lock/LockScreenState.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <gtest/gtest.h>

using namespace tarvanel;
using test::pump;

namespace {
const Quote shortQuote{"Prayer is better than sleep.", "Adhan", {}};
} // namespace

TEST(LockKeys, DigitsFromMainRowAndKeypadEscapeAndBackspace) {
    struct Case {
        int key;
        Qt::KeyboardModifiers mods;
        QString text;
        std::optional<LockKey> kind;
        QString expected;
    };
    const QList<Case> cases = {
        {Qt::Key_7, {}, "7", LockKey::Other, "7"},
        {Qt::Key_0, Qt::KeypadModifier, "0", LockKey::Other, "0"},
        // Another layout's digit on a digit key goes on as typed; the core reads Arabic digits
        // and ignores the rest.
        {Qt::Key_4, {}, "٤", LockKey::Other, "٤"},
        {Qt::Key_4, {}, "४", LockKey::Other, "४"},
        // Num Lock off: the keypad's navigation keys still mean their printed digit.
        {Qt::Key_End, Qt::KeypadModifier, {}, LockKey::Other, "1"},
        {Qt::Key_Clear, Qt::KeypadModifier, {}, LockKey::Other, "5"},
        {Qt::Key_Escape, {}, "\x1b", LockKey::Escape, {}},
        {Qt::Key_Backspace, {}, "\b", LockKey::Backspace, {}},
        // Letters reach the core as text (it keeps digits only); keys without text stay here.
        {Qt::Key_A, {}, "a", LockKey::Other, "a"},
        {Qt::Key_End, {}, {}, std::nullopt, {}},
        {Qt::Key_Tab, {}, "\t", std::nullopt, {}},
        {Qt::Key_F4, Qt::AltModifier, {}, std::nullopt, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(QStringLiteral("key %1").arg(c.key, 0, 16).toStdString());
        const auto got = translateLockKey(c.key, c.mods, c.text);
        ASSERT_EQ(got.has_value(), c.kind.has_value());
        if (!got) continue;
        EXPECT_EQ(got->key, *c.kind);
        EXPECT_EQ(got->text, c.expected);
    }
    // The same from a Wayland keyboard's keysyms (X11 keysym values; xkbcommon's are equal).
    struct SymCase {
        quint32 sym;
        QString text;
        std::optional<LockKey> kind;
        QString expected;
    };
    const QList<SymCase> syms = {
        {0x0037 /* 7 */, "7", LockKey::Other, "7"},
        {0xffb0 /* KP_0 */, "0", LockKey::Other, "0"},
        {0xff9c /* KP_End, Num Lock off */, {}, LockKey::Other, "1"},
        {0xff9d /* KP_Begin */, {}, LockKey::Other, "5"},
        {0xff1b /* Escape */, "\x1b", LockKey::Escape, {}},
        {0xff08 /* BackSpace */, "\b", LockKey::Backspace, {}},
        {0x0664 + 0x1000000 /* Arabic-Indic four */, "٤", LockKey::Other, "٤"},
        {0xff57 /* End on the main block */, {}, std::nullopt, {}},
        {0xffeb /* Super */, {}, std::nullopt, {}},
        {0xff09 /* Tab */, "\t", std::nullopt, {}},
    };
    for (const SymCase& c : syms) {
        SCOPED_TRACE(QStringLiteral("keysym %1").arg(c.sym, 0, 16).toStdString());
        const auto got = translateLockKeysym(c.sym, c.text);
        ASSERT_EQ(got.has_value(), c.kind.has_value());
        if (!got) continue;
        EXPECT_EQ(got->key, *c.kind);
        EXPECT_EQ(got->text, c.expected);
    }
}

TEST(LockWindows, OnePerScreenFollowingTheStateRebuiltInPlaceWithKeysReachingTheCore) {
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    struct Events : PlatformEvents {
        QList<std::pair<LockKey, QString>> keys;
        void launchFinished() override {}
        void tick() override {}
        void lockKey(LockKey key, const QString& text) override { keys.append({key, text}); }
        void screensChanged() override {}
        void showSettingsRequested() override {}
        void poweringOff() override {}
        void terminateRequested() override {}
    } events;
    QtPlatform platform;
    platform.setEvents(&events);
    const LockWindows& lock = platform.lockWindows();
    qint64 coveredAfter = -1;
    QObject::connect(&lock, &LockWindows::covered, [&](qint64 ms) { coveredAfter = ms; });
    LockScreenState state;
    state.setCountdown("Screen unlocks in 4:59");
    platform.showLockWindows(
        {{"Jumu'ah", shortQuote, {}}, {"Jumu'ah", Quote{"Second", "S", {}}, {}}}, &state);
    ASSERT_EQ(lock.windows().size(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(lock.windows().at(i)->isVisible());
        EXPECT_EQ(lock.windows().at(i)->geometry(), QGuiApplication::screens().at(i)->geometry());
    }
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BlankCursor);
    pump(100);
    EXPECT_GE(coveredAfter, 0);

    // Each view names the prayer and shows its screen's quote; the countdown and the guardian
    // line follow the shared state, and no guardian means no line at all.
    const LockView* left = lock.windows().at(0)->view();
    const LockView* right = lock.windows().at(1)->view();
    EXPECT_EQ(left->captionLabel()->text(), "IT'S TIME FOR");
    // A preview's long quote wraps inside the centred card.
    LockView preview("Test", {QString("Indeed, prayer has been decreed. ").repeated(20), "", {}},
                     nullptr);
    preview.resize(2560, 1000);
    preview.show();
    pump(30);
    EXPECT_EQ(preview.captionLabel()->text(), "PREVIEW");
    EXPECT_LE(preview.quoteCard()->width(), 720);
    EXPECT_GT(preview.quoteLabel()->height(), preview.quoteLabel()->fontMetrics().height() * 2);
    EXPECT_NEAR(preview.quoteCard()->geometry().center().x(), preview.width() / 2, 2);
    EXPECT_EQ(right->nameLabel()->text(), "Jumu'ah");
    EXPECT_EQ(left->quoteLabel()->text(), "“Prayer is better than sleep.”");
    EXPECT_EQ(right->quoteLabel()->text(), "“Second”");
    state.setCountdown("Screen unlocks in 4:58");
    EXPECT_EQ(left->countdownLabel()->text(), "Screen unlocks in 4:58");
    EXPECT_EQ(right->countdownLabel()->text(), "Screen unlocks in 4:58");
    EXPECT_FALSE(right->guardianLabel()->isVisible());
    state.setGuardian("● ● ○ ○ ○ ○");

    // A screen change rebuilds the windows; the lock and the digits typed so far stay.
    const QList<LockWindow*> before = lock.windows();
    platform.showLockWindows({{"Jumu'ah", shortQuote, {}}}, &state);
    ASSERT_EQ(lock.windows().size(), 2); // one entry still covers both screens
    for (LockWindow* w : before)
        EXPECT_FALSE(lock.windows().contains(w));
    const QLabel* guardian = lock.windows().at(1)->view()->guardianLabel();
    EXPECT_EQ(guardian->text(), "● ● ○ ○ ○ ○");
    EXPECT_TRUE(guardian->isVisible());
    state.setGuardian({});
    EXPECT_FALSE(guardian->isVisible());

    // Keys on either window reach the core as the guardian entry takes them; closing is refused.
    for (auto [window, key, text] : {std::tuple{1, Qt::Key_3, "3"}, {0, Qt::Key_Escape, "\x1b"}}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(lock.windows().at(window), &event);
    }
    EXPECT_EQ(events.keys,
              (QList<std::pair<LockKey, QString>>{{LockKey::Other, "3"}, {LockKey::Escape, {}}}));
    EXPECT_FALSE(lock.windows().at(0)->close());
    EXPECT_TRUE(lock.windows().at(0)->isVisible());

    platform.raiseLockWindows(true);
    platform.closeLockWindows();
    EXPECT_FALSE(lock.up());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    pump(30);
    for (QWidget* w : QApplication::topLevelWidgets())
        EXPECT_FALSE(w->isVisible() && qobject_cast<LockWindow*>(w));
}
