#include "desktop/BannerPanel.h"

#include "desktop/Look.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>

namespace tarvanel {

namespace {

constexpr int gapBelowTop = 16;

} // namespace

double BannerView::borderWidth(BannerStyle style) {
    return style == BannerStyle::normal ? 0 : 2;
}

QColor BannerView::borderColour(BannerStyle style) {
    return style == BannerStyle::critical ? look::red : look::orange;
}

BannerView::BannerView(const BannerContent& content, QWidget* parent)
    : QWidget(parent), style_(content.style) {
    setFixedWidth(cardWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 18, 22, 18);
    column->setSpacing(6);
    message_ = look::textLabel(
        this,
        look::systemFont(17, content.style == BannerStyle::normal ? QFont::DemiBold : QFont::Bold),
        Qt::white, true);
    message_->setText(content.message);
    column->addWidget(message_);
    if (content.quote) {
        quote_ =
            look::textLabel(this, look::systemFont(13.5, QFont::Normal), look::white(0.78), true);
        quote_->setText(QStringLiteral("“") + content.quote->text + QStringLiteral("”"));
        column->addSpacing(2);
        column->addWidget(quote_);
        auto* source =
            look::textLabel(this, look::systemFont(11.5, QFont::DemiBold), look::white(0.45), true);
        source->setText(content.quote->source);
        column->addWidget(source);
    }
    // Fixed width; the height follows the wrapped texts.
    setFixedHeight(heightForWidth(cardWidth));
}

void BannerView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF card = QRectF(rect());
    QPainterPath path;
    path.addRoundedRect(card, 24, 24);
    // The card: the theme's near-black, lit faintly by the palette's green from the top left.
    QColor base = look::themeBase;
    base.setAlphaF(0.94f);
    p.fillPath(path, base);
    p.setClipPath(path);
    look::paintGlow(p, card.topLeft(), card.width() * 0.9, look::glowA, 0.22);
    p.setClipping(false);
    p.fillPath(path, look::white(0.04));
    const double border = borderWidth(style_);
    if (border > 0) {
        QPainterPath inset;
        inset.addRoundedRect(card.adjusted(border / 2, border / 2, -border / 2, -border / 2),
                             24 - border / 2, 24 - border / 2);
        p.setPen(QPen(borderColour(style_), border));
        p.drawPath(inset);
    } else {
        p.setPen(QPen(look::white(0.10), 1));
        p.drawPath(path);
    }
}

BannerPanel::BannerPanel(QObject* parent) : QObject(parent) {
    closeTimer_.setSingleShot(true);
    connect(&closeTimer_, &QTimer::timeout, this, &BannerPanel::close);
}

BannerPanel::~BannerPanel() {
    close();
}

bool BannerPanel::show(const BannerContent& content) {
    close();
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return false;

    auto* panel =
        new QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                 Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus |
                                 Qt::WindowTransparentForInput);
    panel->setAttribute(Qt::WA_TranslucentBackground);
    panel->setAttribute(Qt::WA_ShowWithoutActivating);
    panel->setAttribute(Qt::WA_X11DoNotAcceptFocus);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(QStringLiteral("Tarvanel"));
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* view = new BannerView(content, panel);
    layout->addWidget(view);
    panel->setFixedSize(view->size());

    const QSize size = panel->size();
    const QRect area = screen->availableGeometry();
    const QRect full = screen->geometry();
    panel->move(full.x() + (full.width() - size.width()) / 2, area.top() + gapBelowTop);
    panel->show();
    panel->raise();
    window_ = panel;
    closeTimer_.start(std::max(0, content.seconds) * 1000);
    return true;
}

void BannerPanel::close() {
    closeTimer_.stop();
    if (window_) window_->close();
    window_ = nullptr;
}

} // namespace tarvanel
