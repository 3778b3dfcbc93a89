// Lock windows on every screen, the lock view's texts and look, and the keys that get through.
#include "desktop/LockKeys.h"
#include "desktop/LockView.h"
#include "desktop/LockWindows.h"
#include "lock/LockScreenState.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QScreen>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {

const Quote shortQuote{QStringLiteral("Prayer is better than sleep."), QStringLiteral("Adhan"), {}};

void pump(int ms = 30) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

struct KeyLog {
    QList<std::pair<LockKey, QString>> keys;
    LockWindow::KeyHandler handler() {
        return [this](LockKey key, const QString& text) { keys.append({key, text}); };
    }
};

void press(QWidget* w, int key, Qt::KeyboardModifiers mods = {}, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, mods, text);
    QCoreApplication::sendEvent(w, &event);
}

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
        // Num Lock off: the keypad's navigation keys still mean their printed digit.
        {Qt::Key_End, Qt::KeypadModifier, {}, LockKey::Other, "1"},
        {Qt::Key_Clear, Qt::KeypadModifier, {}, LockKey::Other, "5"},
        {Qt::Key_PageUp, Qt::KeypadModifier, {}, LockKey::Other, "9"},
        {Qt::Key_Escape, {}, "\x1b", LockKey::Escape, {}},
        {Qt::Key_Backspace, {}, "\b", LockKey::Backspace, {}},
        // Letters reach the core as text (it keeps digits only); keys without text stay here.
        {Qt::Key_A, {}, "a", LockKey::Other, "a"},
        {Qt::Key_Left, {}, {}, std::nullopt, {}},
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
}

TEST(LockView, CaptionNameAndLiveTexts) {
    LockScreenState state;
    state.setCountdown(QStringLiteral("Screen unlocks in 4:59"));
    LockView preview(QStringLiteral("Test"), shortQuote, &state);
    EXPECT_EQ(preview.captionLabel()->text(), QStringLiteral("PREVIEW"));
    EXPECT_EQ(LockView::captionFor(QStringLiteral("Preview")), QStringLiteral("PREVIEW"));
    LockView jumuah(QStringLiteral("Jumu'ah"), shortQuote, &state);
    EXPECT_EQ(jumuah.captionLabel()->text(), QStringLiteral("IT'S TIME FOR"));
    EXPECT_EQ(jumuah.nameLabel()->text(), QStringLiteral("Jumu'ah"));
    EXPECT_EQ(jumuah.quoteLabel()->text(), QStringLiteral("“Prayer is better than sleep.”"));

    // Both views follow the shared state.
    EXPECT_EQ(jumuah.countdownLabel()->text(), QStringLiteral("Screen unlocks in 4:59"));
    state.setCountdown(QStringLiteral("Screen unlocks in 4:58"));
    EXPECT_EQ(preview.countdownLabel()->text(), QStringLiteral("Screen unlocks in 4:58"));
    EXPECT_EQ(jumuah.countdownLabel()->text(), QStringLiteral("Screen unlocks in 4:58"));

    // No guardian: no line at all; a line appears and goes with the state.
    jumuah.resize(1280, 800);
    jumuah.show();
    pump();
    EXPECT_FALSE(jumuah.guardianLabel()->isVisible());
    state.setGuardian(QStringLiteral("● ● ○ ○ ○ ○"));
    EXPECT_TRUE(jumuah.guardianLabel()->isVisible());
    EXPECT_EQ(jumuah.guardianLabel()->text(), QStringLiteral("● ● ○ ○ ○ ○"));
    state.setGuardian({});
    EXPECT_FALSE(jumuah.guardianLabel()->isVisible());
}

TEST(LockView, SizesWeightsAndOpacities) {
    LockScreenState state;
    LockView view(QStringLiteral("Asr"), shortQuote, &state);
    // At Qt's reference 96 dpi a design point is one pixel: 104 px is 78 pt.
    EXPECT_DOUBLE_EQ(view.nameLabel()->font().pointSizeF(), 78.0);
    EXPECT_EQ(view.nameLabel()->font().weight(), QFont::Bold);
    EXPECT_DOUBLE_EQ(view.captionLabel()->font().pointSizeF(), 11 * 0.75);
    EXPECT_NEAR(view.captionLabel()->font().letterSpacing(), 1.6, 0.01);
    EXPECT_EQ(view.captionLabel()->palette().color(QPalette::WindowText).alpha(),
              qRound(0.55 * 255));
    EXPECT_EQ(view.countdownLabel()->font().weight(), QFont::DemiBold);
    EXPECT_EQ(view.quoteLabel()->palette().color(QPalette::WindowText).alpha(), qRound(0.85 * 255));
    EXPECT_EQ(view.guardianLabel()->palette().color(QPalette::WindowText).alpha(),
              qRound(0.4 * 255));
    EXPECT_EQ(view.guardianLabel()->font().weight(), QFont::Medium);
}

TEST(LockView, LongQuoteWrapsInsideTheCardWidth) {
    LockScreenState state;
    Quote longQuote{QString(QStringLiteral("Indeed, prayer has been decreed upon the believers a "
                                           "decree of specified times. "))
                        .repeated(6),
                    QStringLiteral("An-Nisa 4:103"),
                    {}};
    LockView view(QStringLiteral("Fajr"), longQuote, &state);
    view.resize(2560, 1000);
    view.show();
    pump();
    EXPECT_LE(view.quoteCard()->width(), 720);
    EXPECT_GT(view.quoteLabel()->height(), view.quoteLabel()->fontMetrics().height() * 2);
    // Centred horizontally.
    const QRect card = view.quoteCard()->geometry();
    EXPECT_NEAR(card.center().x(), view.width() / 2, 2);
}

TEST(LockView, AuroraGlowsSitWhereThePaletteSays) {
    LockScreenState state;
    LockView view(QStringLiteral("Isha"), shortQuote, &state);
    view.resize(1000, 600);
    const QImage image = view.grab().toImage();
    const QColor topLeft = image.pixelColor(100, 30); // the green glow's centre
    const QColor bottom = image.pixelColor(500, 595); // the gold glow's centre
    const QColor corner = image.pixelColor(999, 599); // far from every glow centre
    EXPECT_GT(topLeft.green(), topLeft.red() + 40);
    EXPECT_GT(bottom.red(), bottom.blue() + 40);
    EXPECT_GT(bottom.green(), bottom.blue() + 20);
    EXPECT_LT(corner.value(), topLeft.value());
    EXPECT_LT(corner.value(), 110); // a dark screen
}

TEST(LockWindows, OneWindowPerScreenCoveringItAndRebuiltInPlace) {
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    LockScreenState state;
    KeyLog log;
    LockWindows lock;
    lock.setKeyHandler(log.handler());
    qint64 coveredAfter = -1;
    QObject::connect(&lock, &LockWindows::covered, [&](qint64 ms) { coveredAfter = ms; });

    lock.show({{QStringLiteral("Dhuhr"), shortQuote},
               {QStringLiteral("Dhuhr"), Quote{QStringLiteral("Second"), QStringLiteral("S"), {}}}},
              &state);
    ASSERT_EQ(lock.windows().size(), 2);
    for (int i = 0; i < 2; ++i) {
        LockWindow* w = lock.windows().at(i);
        EXPECT_TRUE(w->isVisible());
        EXPECT_EQ(w->geometry(), QGuiApplication::screens().at(i)->geometry());
        EXPECT_TRUE(w->windowFlags() & Qt::WindowStaysOnTopHint);
        EXPECT_TRUE(w->windowFlags() & Qt::X11BypassWindowManagerHint);
        EXPECT_TRUE(w->windowFlags() & Qt::FramelessWindowHint);
    }
    EXPECT_EQ(lock.windows().at(1)->view()->quoteLabel()->text(), QStringLiteral("“Second”"));
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BlankCursor);
    pump(100);
    EXPECT_GE(coveredAfter, 0);

    // Rebuilding (a screen change) replaces the windows; the lock stays up throughout.
    const QList<LockWindow*> before = lock.windows();
    lock.show({{QStringLiteral("Dhuhr"), shortQuote}}, &state);
    ASSERT_EQ(lock.windows().size(), 2); // one entry still covers both screens
    for (LockWindow* w : before)
        EXPECT_FALSE(lock.windows().contains(w));
    EXPECT_EQ(lock.windows().at(1)->view()->nameLabel()->text(), QStringLiteral("Dhuhr"));
    EXPECT_TRUE(lock.up());

    // Keys on any window reach the handler; closing is refused.
    press(lock.windows().at(1), Qt::Key_4, {}, QStringLiteral("4"));
    press(lock.windows().at(0), Qt::Key_Escape, {}, QStringLiteral("\x1b"));
    press(lock.windows().at(0), Qt::Key_Right);
    ASSERT_EQ(log.keys.size(), 2);
    EXPECT_EQ(log.keys.at(0), std::make_pair(LockKey::Other, QStringLiteral("4")));
    EXPECT_EQ(log.keys.at(1).first, LockKey::Escape);
    EXPECT_FALSE(lock.windows().at(0)->close());
    EXPECT_TRUE(lock.windows().at(0)->isVisible());

    lock.raise(true);
    lock.close();
    EXPECT_FALSE(lock.up());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    pump();
    for (QWidget* w : QApplication::topLevelWidgets())
        EXPECT_FALSE(w->isVisible() && qobject_cast<LockWindow*>(w));
}
