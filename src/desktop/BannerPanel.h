#pragma once
// The reminder banner: a card near the top of the main screen that never takes focus and lets
// clicks through. A newer banner replaces the open one; each closes itself after its time.
#include "platform/Platform.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>

class QLabel;

namespace tarvanel {

class WaylandDisplay;
class WaylandSurface;

class BannerView : public QWidget {
    Q_OBJECT
public:
    static constexpr int cardWidth = 640;

    // Rounded corners need a compositor to show through them; without one they paint black.
    BannerView(const BannerContent& content, bool rounded, QWidget* parent = nullptr);
    QLabel* messageLabel() const { return message_; }
    QLabel* quoteLabel() const { return quote_; }
    BannerStyle style() const { return style_; }
    // Border width and colour for a style: none for normal, 2 px orange or red otherwise.
    static double borderWidth(BannerStyle style);
    static QColor borderColour(BannerStyle style);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    BannerStyle style_;
    bool rounded_;
    QLabel* message_ = nullptr;
    QLabel* quote_ = nullptr;
};

// True when the screen has a compositing manager (on X11 the owner of _NET_WM_CM_S<screen>).
bool compositorRunning();

class BannerPanel : public QObject {
    Q_OBJECT
public:
    explicit BannerPanel(QObject* parent = nullptr);
    ~BannerPanel() override;

    // False when there is no screen to show it on.
    bool show(const BannerContent& content);
    void close();
    QWidget* window() const { return window_; }

private:
    // On a compositor with the layer shell: a top-layer surface, on a connection of its own.
    bool showOnLayerShell(const BannerContent& content);

    QPointer<QWidget> window_;
    std::unique_ptr<WaylandDisplay> wayland_;
    std::unique_ptr<WaylandSurface> layer_;
    std::unique_ptr<BannerView> layerView_;
    QTimer closeTimer_;
};

} // namespace tarvanel
