#include "desktop/wayland/WaylandSurface.h"

#include "desktop/wayland/WaylandDisplay.h"

#include "desktop/wayland/Protocols.h"

#include <QPainter>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

namespace tarvanel {

namespace {
constexpr int bannerGapBelowTop = 16;
} // namespace

struct SurfaceListeners {
    static WaylandSurface* self(void* data) { return static_cast<WaylandSurface*>(data); }

    static void lockConfigure(void* data, ext_session_lock_surface_v1* s, uint32_t serial,
                              uint32_t width, uint32_t height) {
        ext_session_lock_surface_v1_ack_configure(s, serial);
        self(data)->configured(serial, QSize(int(width), int(height)));
    }
    static constexpr ext_session_lock_surface_v1_listener lock{&lockConfigure};

    static void layerConfigure(void* data, zwlr_layer_surface_v1* s, uint32_t serial,
                               uint32_t width, uint32_t height) {
        zwlr_layer_surface_v1_ack_configure(s, serial);
        self(data)->configured(serial, QSize(int(width), int(height)));
    }
    static void layerClosed(void* data, zwlr_layer_surface_v1*) {
        WaylandSurface* s = self(data);
        s->closed_ = true;
        if (s->onClosed) s->onClosed();
    }
    static constexpr zwlr_layer_surface_v1_listener layer{&layerConfigure, &layerClosed};

    static void release(void* data, wl_buffer*) {
        static_cast<WaylandSurface::Buffer*>(data)->busy = false;
    }
    static constexpr wl_buffer_listener buffer{&release};
};

WaylandSurface::WaylandSurface(WaylandDisplay& display, WaylandOutput* output, Role role,
                               Painter paint, ext_session_lock_v1* lock, QSize bannerSize)
    : display_(display), output_(output), role_(role), paint_(std::move(paint)) {
    surface_ = wl_compositor_create_surface(display.compositor());
    if (role == Role::SessionLock) {
        lockSurface_ = ext_session_lock_v1_get_lock_surface(lock, surface_, output->output);
        ext_session_lock_surface_v1_add_listener(lockSurface_, &SurfaceListeners::lock, this);
        return;
    }
    const bool overlay = role == Role::Overlay;
    layerSurface_ = zwlr_layer_shell_v1_get_layer_surface(
        display.layerShell(), surface_, output->output,
        overlay ? ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY : ZWLR_LAYER_SHELL_V1_LAYER_TOP,
        overlay ? "tarvanel-lock" : "tarvanel-banner");
    zwlr_layer_surface_v1_add_listener(layerSurface_, &SurfaceListeners::layer, this);
    if (overlay) {
        zwlr_layer_surface_v1_set_anchor(layerSurface_, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                                            ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                                                            ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT |
                                                            ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT);
        // Over panels too: other surfaces' exclusive zones do not shrink it.
        zwlr_layer_surface_v1_set_exclusive_zone(layerSurface_, -1);
        zwlr_layer_surface_v1_set_keyboard_interactivity(layerSurface_, 1);
        if (display.shortcutsInhibit() && display.seat())
            shortcuts_ = zwp_keyboard_shortcuts_inhibit_manager_v1_inhibit_shortcuts(
                display.shortcutsInhibit(), surface_, display.seat());
    } else {
        // Anchored to the top edge only: centred, as the banner is on X11.
        zwlr_layer_surface_v1_set_anchor(layerSurface_, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP);
        zwlr_layer_surface_v1_set_size(layerSurface_, uint32_t(bannerSize.width()),
                                       uint32_t(bannerSize.height()));
        zwlr_layer_surface_v1_set_margin(layerSurface_, bannerGapBelowTop, 0, 0, 0);
        zwlr_layer_surface_v1_set_keyboard_interactivity(layerSurface_, 0);
        // Clicks go through to whatever is below.
        wl_region* none = wl_compositor_create_region(display.compositor());
        wl_surface_set_input_region(surface_, none);
        wl_region_destroy(none);
    }
    wl_surface_commit(surface_); // the compositor answers with the size
}

WaylandSurface::~WaylandSurface() {
    if (shortcuts_) zwp_keyboard_shortcuts_inhibitor_v1_destroy(shortcuts_);
    if (lockSurface_) ext_session_lock_surface_v1_destroy(lockSurface_);
    if (layerSurface_) zwlr_layer_surface_v1_destroy(layerSurface_);
    wl_surface_destroy(surface_);
    for (Buffer* b : buffers_)
        release(b);
    display_.flush();
}

void WaylandSurface::release(Buffer* b) {
    wl_buffer_destroy(b->buffer);
    munmap(b->data, size_t(b->bytes));
    delete b;
}

void WaylandSurface::configured(quint32, QSize size) {
    if (size.isEmpty()) return; // a layer surface sized by anchors gets the output's size
    size_ = size;
    repaint();
}

WaylandSurface::Buffer* WaylandSurface::freeBuffer(QSize pixels) {
    for (qsizetype i = buffers_.size() - 1; i >= 0; --i) {
        Buffer* b = buffers_[i];
        if (b->image.size() == pixels && !b->busy) return b;
        if (b->image.size() != pixels && !b->busy) { // an old size: no longer needed
            buffers_.removeAt(i);
            release(b);
        }
    }
    const int stride = pixels.width() * 4;
    const qsizetype bytes = qsizetype(stride) * pixels.height();
    const int fd = memfd_create("tarvanel-lock", MFD_CLOEXEC);
    if (fd < 0) return nullptr;
    void* data = ftruncate(fd, bytes) == 0
                     ? mmap(nullptr, size_t(bytes), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0)
                     : MAP_FAILED;
    if (data == MAP_FAILED) {
        close(fd);
        return nullptr;
    }
    wl_shm_pool* pool = wl_shm_create_pool(display_.shm(), fd, int32_t(bytes));
    auto* b = new Buffer;
    b->data = static_cast<uchar*>(data);
    b->bytes = bytes;
    // Little-endian ARGB8888 is Qt's premultiplied ARGB32.
    b->buffer = wl_shm_pool_create_buffer(pool, 0, pixels.width(), pixels.height(), stride,
                                          WL_SHM_FORMAT_ARGB8888);
    b->image = QImage(b->data, pixels.width(), pixels.height(), stride,
                      QImage::Format_ARGB32_Premultiplied);
    wl_buffer_add_listener(b->buffer, &SurfaceListeners::buffer, b);
    wl_shm_pool_destroy(pool);
    close(fd);
    buffers_ << b;
    return b;
}

void WaylandSurface::repaint() {
    if (size_.isEmpty() || closed_ || display_.broken()) return;
    const int scale = output_->scale;
    Buffer* b = freeBuffer(size_ * scale);
    if (!b) return;
    b->image.setDevicePixelRatio(scale);
    {
        QPainter painter(&b->image);
        paint_(painter, size_);
    }
    b->busy = true;
    wl_surface_set_buffer_scale(surface_, scale);
    wl_surface_attach(surface_, b->buffer, 0, 0);
    wl_surface_damage(surface_, 0, 0, INT32_MAX, INT32_MAX);
    wl_surface_commit(surface_);
    display_.flush();
    if (!painted_) {
        painted_ = true;
        if (onFirstPaint) onFirstPaint();
    }
}

} // namespace tarvanel
