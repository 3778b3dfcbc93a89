#include "desktop/BannerPanel.h"

#include "desktop/Look.h"
#include "desktop/X11.h"
#include "desktop/wayland/WaylandDisplay.h"
#include "desktop/wayland/WaylandSurface.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>
#include <xcb/xcb.h>

namespace tarvanel {

namespace {

constexpr int gapBelowTop = 16;
constexpr double radius = 24;

} // namespace

bool compositorRunning() {
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return true;
    xcb_connection_t* c = x11Connection();
    if (!c) return false;
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) == 0) screen = 0;
    free(host);
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screen);
    xcb_intern_atom_reply_t* atom = xcb_intern_atom_reply(
        c, xcb_intern_atom(c, 1, uint16_t(name.size()), name.constData()), nullptr);
    const xcb_atom_t selection = atom ? atom->atom : xcb_atom_t(XCB_ATOM_NONE);
    free(atom);
    if (selection == XCB_ATOM_NONE) return false; // no one ever claimed it
    xcb_get_selection_owner_reply_t* owner =
        xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, selection), nullptr);
    const bool owned = owner && owner->owner != XCB_NONE;
    free(owner);
    return owned;
}

double BannerView::borderWidth(BannerStyle style) {
    return style == BannerStyle::normal ? 0 : 2;
}

QColor BannerView::borderColour(BannerStyle style) {
    return style == BannerStyle::critical ? look::red : look::orange;
}

BannerView::BannerView(const BannerContent& content, bool rounded, QWidget* parent)
    : QWidget(parent), style_(content.style), rounded_(rounded) {
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
    const double r = rounded_ ? radius : 0;
    QPainterPath path;
    path.addRoundedRect(card, r, r);
    // The card: the theme's near-black, lit faintly by the palette's green from the top left.
    QColor base = look::themeBase;
    base.setAlphaF(rounded_ ? 0.94f : 1.0f);
    p.fillPath(path, base);
    p.setClipPath(path);
    look::paintGlow(p, card.topLeft(), card.width() * 0.9, look::glowA, 0.22);
    p.setClipping(false);
    p.fillPath(path, look::white(0.04));
    const double border = borderWidth(style_);
    if (border > 0) {
        QPainterPath inset;
        const double inner = std::max(0.0, r - border / 2);
        inset.addRoundedRect(card.adjusted(border / 2, border / 2, -border / 2, -border / 2), inner,
                             inner);
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

bool BannerPanel::showOnLayerShell(const BannerContent& content) {
    wayland_ = WaylandDisplay::open();
    if (!wayland_ || !wayland_->layerShell() || wayland_->outputs().isEmpty()) {
        wayland_.reset();
        return false;
    }
    // Every Wayland compositor blends translucent surfaces: the corners can be round.
    layerView_ = std::make_unique<BannerView>(content, true);
    layerView_->adjustSize();
    BannerView* view = layerView_.get();
    layer_ = std::make_unique<WaylandSurface>(
        *wayland_, wayland_->outputs().first(), WaylandSurface::Role::Banner,
        [view](QPainter& painter, QSize) {
            painter.setCompositionMode(QPainter::CompositionMode_Source);
            painter.fillRect(QRect(QPoint(), view->size()), Qt::transparent);
            painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
            view->render(&painter, {}, {}, QWidget::DrawChildren);
        },
        nullptr, view->size());
    wayland_->flush();
    return true;
}

bool BannerPanel::show(const BannerContent& content) {
    close();
    if (showOnLayerShell(content)) {
        closeTimer_.start(std::max(0, content.seconds) * 1000);
        return true;
    }
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return false;

    auto* panel =
        new QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                 Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus |
                                 Qt::WindowTransparentForInput);
    const bool rounded = compositorRunning();
    panel->setAttribute(Qt::WA_TranslucentBackground, rounded);
    panel->setAttribute(Qt::WA_ShowWithoutActivating);
    panel->setAttribute(Qt::WA_X11DoNotAcceptFocus);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(QStringLiteral("Tarvanel"));
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* view = new BannerView(content, rounded, panel);
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
    layer_.reset();
    layerView_.reset();
    wayland_.reset();
}

} // namespace tarvanel
