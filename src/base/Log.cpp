#include "base/Log.h"

#include <cstdio>

namespace tarvanel {
namespace {
LogSink& sink() {
    static LogSink s;
    return s;
}
} // namespace

void logLine(const QString& text) {
    if (sink()) {
        sink()(text);
        return;
    }
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

LogSink setLogSink(LogSink s) {
    LogSink old = std::move(sink());
    sink() = std::move(s);
    return old;
}

} // namespace tarvanel
