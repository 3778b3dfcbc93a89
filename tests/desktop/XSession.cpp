#include "XSession.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <csignal>

namespace tarvanel::test {

XSession::~XSession() {
    if (server_ && server_->state() != QProcess::NotRunning) {
        server_->terminate();
        if (!server_->waitForFinished(3000)) server_->kill();
        server_->waitForFinished(1000);
    }
}

bool XSession::start(int width, int height) {
    server_ = std::make_unique<QProcess>();
    // -displayfd picks a free display number and writes it to our standard output.
    server_->start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(width).arg(height),
                    QStringLiteral("-noreset"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    if (!server_->waitForStarted(5000)) return false;
    QByteArray number;
    QElapsedTimer t;
    t.start();
    while (!number.contains('\n') && t.elapsed() < 10000) {
        server_->waitForReadyRead(200);
        number += server_->readAllStandardOutput();
    }
    if (!number.contains('\n')) return false;
    display_ = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    return run(QStringLiteral("xdpyinfo"), {}) == 0 || run(QStringLiteral("xrandr"), {}) == 0;
}

bool XSession::splitIntoTwoMonitors() {
    return run(QStringLiteral("xrandr"),
               {QStringLiteral("--setmonitor"), QStringLiteral("LEFT"),
                QStringLiteral("1280/339x800/212+0+0"), QStringLiteral("screen")}) == 0 &&
           run(QStringLiteral("xrandr"),
               {QStringLiteral("--setmonitor"), QStringLiteral("RIGHT"),
                QStringLiteral("1280/339x800/212+1280+0"), QStringLiteral("none")}) == 0;
}

bool XSession::removeMonitor(const QString& name) {
    return run(QStringLiteral("xrandr"), {QStringLiteral("--delmonitor"), name}) == 0;
}

QProcessEnvironment XSession::environment(const QProcessEnvironment& base) const {
    QProcessEnvironment env = base;
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.insert(QStringLiteral("DISPLAY"), display_);
    return env;
}

int XSession::run(const QString& program, const QStringList& args, QByteArray* out,
                  int timeoutMs) const {
    QProcess p;
    p.setProcessEnvironment(environment(QProcessEnvironment::systemEnvironment()));
    p.start(program, args);
    if (!p.waitForStarted(5000)) return -1;
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished(1000);
        return -1;
    }
    if (out) *out = p.readAllStandardOutput();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

QImage XSession::screenshot() const {
    QByteArray png;
    run(QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("xwd -root -silent | convert xwd:- ppm:-")}, &png);
    return QImage::fromData(png, "PPM");
}

Coverage coverage(const QImage& image, const QRect& region) {
    Coverage c;
    qint64 bright = 0, dark = 0, total = 0, green = 0;
    const QRect r = region.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); y += 2)
        for (int x = r.left(); x <= r.right(); x += 2) {
            const QColor px = image.pixelColor(x, y);
            ++total;
            if (px.red() > 200 && px.green() > 200 && px.blue() > 200) ++bright;
            if (px.value() < 140) ++dark;
            if (y < r.top() + r.height() / 5 && x < r.left() + r.width() / 4 &&
                px.green() > px.red() + 30)
                ++green;
        }
    if (total == 0) return c;
    c.bright = double(bright) / double(total);
    c.dark = double(dark) / double(total);
    c.greenGlow = green > total / 100;
    return c;
}

bool lockedLooking(const QImage& image, const QRect& region) {
    const Coverage c = coverage(image, region);
    return c.dark > 0.85 && c.bright > 0.001 && c.bright < 0.08 && c.greenGlow;
}

bool waitFor(const std::function<bool()>& done, int timeoutMs) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > timeoutMs) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(10);
    }
    return true;
}

} // namespace tarvanel::test
