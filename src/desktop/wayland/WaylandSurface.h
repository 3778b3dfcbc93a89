#pragma once
// One surface of ours on one output, in one of the roles a lock or a banner needs, painted from
// a QPainter into shared-memory buffers at the output's scale.
#include <QImage>
#include <QList>
#include <QSize>
#include <functional>

class QPainter;
struct wl_surface;
struct wl_buffer;
struct ext_session_lock_v1;
struct ext_session_lock_surface_v1;
struct zwlr_layer_surface_v1;
struct zwp_keyboard_shortcuts_inhibitor_v1;

namespace tarvanel {

class WaylandDisplay;
struct WaylandOutput;

class WaylandSurface {
public:
    // SessionLock: the output's lock surface. Overlay: a layer-shell surface above everything,
    // covering the output and taking the keyboard. Banner: a top-layer card at the top of the
    // output that takes neither keyboard nor pointer.
    enum class Role { SessionLock, Overlay, Banner };
    // Paints the whole surface; `size` is in logical pixels.
    using Painter = std::function<void(QPainter& painter, QSize size)>;

    WaylandSurface(WaylandDisplay& display, WaylandOutput* output, Role role, Painter paint,
                   ext_session_lock_v1* lock = nullptr, QSize bannerSize = {});
    ~WaylandSurface();
    WaylandSurface(const WaylandSurface&) = delete;
    WaylandSurface& operator=(const WaylandSurface&) = delete;

    // Paints again (once the compositor has said how large).
    void repaint();
    WaylandOutput* output() const { return output_; }
    bool painted() const { return painted_; }
    bool closed() const { return closed_; }

    std::function<void()> onFirstPaint;
    // The compositor closed a layer surface (its output went, or it refused the surface).
    std::function<void()> onClosed;

private:
    struct Buffer {
        wl_buffer* buffer = nullptr;
        uchar* data = nullptr;
        qsizetype bytes = 0;
        QImage image;
        bool busy = false;
    };
    friend struct SurfaceListeners;
    void configured(quint32 serial, QSize size);
    Buffer* freeBuffer(QSize pixels);
    static void release(Buffer* buffer);

    WaylandDisplay& display_;
    WaylandOutput* output_;
    Role role_;
    Painter paint_;
    wl_surface* surface_ = nullptr;
    ext_session_lock_surface_v1* lockSurface_ = nullptr;
    zwlr_layer_surface_v1* layerSurface_ = nullptr;
    zwp_keyboard_shortcuts_inhibitor_v1* shortcuts_ = nullptr;
    QList<Buffer*> buffers_;
    QSize size_;
    bool painted_ = false;
    bool closed_ = false;
};

} // namespace tarvanel
