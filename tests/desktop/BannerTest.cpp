// The banner panel: placement, styles, replacement and closing on time.
#include "desktop/BannerPanel.h"
#include "desktop/Look.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {
void pump(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}
BannerContent nudge(BannerStyle style, int seconds = 16) {
    return {QStringLiteral("🕌  Asr in 10 minutes. Start finishing up."),
            Quote{QStringLiteral("Guard strictly the prayers."),
                  QStringLiteral("Al-Baqarah 2:238"),
                  {}},
            style, seconds};
}
} // namespace

TEST(Banner, CentredBelowTheTopOfTheMainScreenAndClickThrough) {
    BannerPanel panel;
    ASSERT_TRUE(panel.show(nudge(BannerStyle::normal)));
    QWidget* w = panel.window();
    ASSERT_NE(w, nullptr);
    QScreen* main = QGuiApplication::primaryScreen();
    EXPECT_EQ(w->width(), BannerView::cardWidth);
    EXPECT_EQ(w->y(), main->availableGeometry().top() + 16);
    EXPECT_EQ(w->x() + w->width() / 2, main->geometry().center().x() + 1);
    EXPECT_TRUE(w->windowFlags() & Qt::WindowTransparentForInput);
    EXPECT_TRUE(w->windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(w->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(w->isVisible());
    EXPECT_NE(QApplication::activeWindow(), w);
}

TEST(Banner, StylesSetWeightAndBorder) {
    BannerView normal(nudge(BannerStyle::normal));
    BannerView urgent(nudge(BannerStyle::urgent));
    BannerContent bare = nudge(BannerStyle::critical);
    bare.quote.reset();
    BannerView critical(bare);
    EXPECT_EQ(normal.messageLabel()->font().weight(), QFont::DemiBold);
    EXPECT_EQ(urgent.messageLabel()->font().weight(), QFont::Bold);
    EXPECT_EQ(critical.messageLabel()->font().weight(), QFont::Bold);
    EXPECT_EQ(BannerView::borderWidth(BannerStyle::normal), 0);
    EXPECT_EQ(BannerView::borderWidth(BannerStyle::urgent), 2);
    EXPECT_EQ(BannerView::borderColour(BannerStyle::urgent), look::orange);
    EXPECT_EQ(BannerView::borderColour(BannerStyle::critical), look::red);
    ASSERT_NE(normal.quoteLabel(), nullptr);
    EXPECT_EQ(normal.quoteLabel()->text(), QStringLiteral("“Guard strictly the prayers.”"));
    EXPECT_EQ(normal.quoteLabel()->palette().color(QPalette::WindowText).alpha(),
              qRound(0.78 * 255));
    EXPECT_EQ(critical.quoteLabel(), nullptr);

    // The critical border is drawn: red pixels on the card's left edge, none on the normal one.
    critical.adjustSize();
    normal.adjustSize();
    const QImage red = critical.grab().toImage();
    const QImage plain = normal.grab().toImage();
    const QColor edge = red.pixelColor(1, red.height() / 2);
    EXPECT_GT(edge.red(), 200);
    EXPECT_LT(edge.green(), 120);
    EXPECT_LT(plain.pixelColor(1, plain.height() / 2).red(), 120);
}

TEST(Banner, ANewerBannerReplacesTheOpenOneAndEachClosesOnTime) {
    BannerPanel panel;
    ASSERT_TRUE(panel.show(nudge(BannerStyle::normal, 16)));
    QPointer<QWidget> first = panel.window();
    ASSERT_TRUE(panel.show(nudge(BannerStyle::urgent, 1)));
    pump(20);
    EXPECT_TRUE(first.isNull() || !first->isVisible());
    QPointer<QWidget> second = panel.window();
    ASSERT_FALSE(second.isNull());
    EXPECT_TRUE(second->isVisible());
    pump(600);
    EXPECT_TRUE(second && second->isVisible()); // not before its time
    pump(700);
    EXPECT_TRUE(second.isNull() || !second->isVisible());
    EXPECT_EQ(panel.window(), nullptr);

    ASSERT_TRUE(panel.show(nudge(BannerStyle::normal, 16)));
    QPointer<QWidget> third = panel.window();
    panel.close(); // as a lock start does
    pump(20);
    EXPECT_TRUE(third.isNull() || !third->isVisible());
}
