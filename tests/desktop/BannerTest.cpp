// The banner panel: placement, styles, replacement and closing on time.
#include "support/TestEnv.h"
#include "desktop/BannerPanel.h"
#include "desktop/Look.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <gtest/gtest.h>

using namespace tarvanel;
using test::pump;

namespace {
BannerContent nudge(BannerStyle style, int seconds = 16) {
    return {"🕌  Asr in 10 minutes. Start finishing up.",
            Quote{"Guard strictly the prayers.", "Al-Baqarah 2:238", {}}, style, seconds};
}
} // namespace

TEST(Banner, CentredClickThroughReplacedClosedOnTimeBorderAndCornersFollowTheStyleAndCompositor) {
    BannerPanel panel;
    ASSERT_TRUE(panel.show(nudge(BannerStyle::normal, 16)));
    QPointer<QWidget> first = panel.window();
    ASSERT_FALSE(first.isNull());
    const QScreen* main = QGuiApplication::primaryScreen();
    EXPECT_EQ(first->width(), BannerView::cardWidth);
    EXPECT_EQ(first->y(), main->availableGeometry().top() + 16);
    EXPECT_EQ(first->x() + first->width() / 2, main->geometry().center().x() + 1);
    EXPECT_TRUE(first->windowFlags() & Qt::WindowTransparentForInput);
    EXPECT_NE(QApplication::activeWindow(), first); // never takes focus

    ASSERT_TRUE(panel.show(nudge(BannerStyle::urgent, 1)));
    pump(20);
    EXPECT_TRUE(first.isNull() || !first->isVisible());
    QPointer<QWidget> second = panel.window();
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

    EXPECT_FALSE(compositorRunning()); // no X server here
    struct Case {
        BannerStyle style;
        bool rounded;
        QColor border;
    };
    for (const auto& [style, rounded, border] : {Case{BannerStyle::normal, false, {}},
                                                 {BannerStyle::urgent, true, look::orange},
                                                 {BannerStyle::critical, false, look::red}}) {
        SCOPED_TRACE(static_cast<int>(style));
        BannerView view(nudge(style), rounded);
        view.setAttribute(Qt::WA_TranslucentBackground); // as in its panel
        view.adjustSize();
        const QImage image = view.grab().toImage();
        // Without a compositor the corner is the card's own colour, never a see-through hole.
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), rounded ? 0 : 255);
        // The card's left edge, halfway down: no orange or red there without a border.
        const QColor edge = image.pixelColor(1, view.height() / 2);
        if (!border.isValid()) {
            EXPECT_LT(edge.red(), 120);
            continue;
        }
        EXPECT_NEAR(edge.red(), border.red(), 40);
        EXPECT_NEAR(edge.green(), border.green(), 40);
        EXPECT_NEAR(edge.blue(), border.blue(), 40);
    }
    EXPECT_EQ(BannerView(nudge(BannerStyle::normal), true).quoteLabel()->text(),
              "“Guard strictly the prayers.”");
    BannerContent bare = nudge(BannerStyle::critical);
    bare.quote.reset();
    EXPECT_EQ(BannerView(bare, false).quoteLabel(), nullptr);
}
