#pragma once
// An Xvfb display of its own for end-to-end tests: two monitors side by side on one screen,
// screenshots of the root window, and the X tools run against it.
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>
#include <memory>

namespace tarvanel::test {

class XSession {
public:
    XSession() = default;
    ~XSession();
    XSession(const XSession&) = delete;
    XSession& operator=(const XSession&) = delete;

    // Starts Xvfb on a free display number (-noreset keeps it alive between clients); false
    // when Xvfb is missing or does not come up.
    bool start(int width = 2560, int height = 800);
    // LEFT and RIGHT halves as two monitors.
    bool splitIntoTwoMonitors();
    bool removeMonitor(const QString& name);
    QString display() const { return display_; }
    // The environment for a client of this display (offscreen platform setting removed).
    QProcessEnvironment environment(const QProcessEnvironment& base) const;
    // Runs an X tool against this display; its exit status, or -1.
    int run(const QString& program, const QStringList& args, QByteArray* out = nullptr,
            int timeoutMs = 15000) const;
    QImage screenshot() const;

private:
    std::unique_ptr<QProcess> server_;
    QString display_;
};

// How a region of a screenshot looks.
struct Coverage {
    double bright = 0; // share of near-white pixels (text, or an uncovered root's weave)
    double dark = 0;   // share of dark pixels (the lock's background)
    bool greenGlow = false;
};
Coverage coverage(const QImage& image, const QRect& region);
// A lock screen: mostly dark, with the glow and some text.
bool lockedLooking(const QImage& image, const QRect& region);

// Waits for `done` while the event loop runs; false on timeout.
bool waitFor(const std::function<bool()>& done, int timeoutMs);

} // namespace tarvanel::test
