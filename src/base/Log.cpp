#include "base/Log.h"

#include <QFile>
#include <QMutex>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvanel {

Q_LOGGING_CATEGORY(lcGeneral, "tarvanel", QtInfoMsg)
Q_LOGGING_CATEGORY(lcAgent, "tarvanel.agent", QtInfoMsg)
Q_LOGGING_CATEGORY(lcFiles, "tarvanel.files", QtInfoMsg)
Q_LOGGING_CATEGORY(lcSettings, "tarvanel.settings", QtInfoMsg)
Q_LOGGING_CATEGORY(lcSchedule, "tarvanel.schedule", QtInfoMsg)
Q_LOGGING_CATEGORY(lcRecords, "tarvanel.records", QtInfoMsg)
Q_LOGGING_CATEGORY(lcLock, "tarvanel.lock", QtInfoMsg)
Q_LOGGING_CATEGORY(lcCalendar, "tarvanel.calendar", QtInfoMsg)
Q_LOGGING_CATEGORY(lcFocus, "tarvanel.focus", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDesktop, "tarvanel.desktop", QtInfoMsg)
Q_LOGGING_CATEGORY(lcSound, "tarvanel.sound", QtInfoMsg)
Q_LOGGING_CATEGORY(lcOcr, "tarvanel.ocr", QtInfoMsg)

namespace {

struct Outputs {
    QMutex mutex; // lines come from worker threads too
    LogSink sink;
    QByteArray file;
};
Outputs& outputs() {
    static Outputs o;
    return o;
}

bool writeAll(int fd, const QByteArray& bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t n = ::write(fd, bytes.constData() + done, size_t(bytes.size() - done));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += n;
    }
    return true;
}

int openForAppend(const QByteArray& path) {
    return ::open(path.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
}

// The file never passes the limit unless one line alone does; a folder that is gone (the user
// deleted ~/.tarvanel) is not created again.
void appendRotated(const QByteArray& path, const QByteArray& line) {
    int fd = openForAppend(path);
    if (fd < 0) return;
    struct stat st = {};
    if (::fstat(fd, &st) == 0 && st.st_size > 0 && st.st_size + line.size() > logFileLimit) {
        ::close(fd);
        ::rename((path + ".1").constData(), (path + ".2").constData());
        ::rename(path.constData(), (path + ".1").constData());
        fd = openForAppend(path);
        if (fd < 0) return;
    }
    writeAll(fd, line);
    ::close(fd);
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const bool ours = context.category && std::strncmp(context.category, "tarvanel", 8) == 0;
    Outputs& o = outputs();
    QMutexLocker lock(&o.mutex);
    if (ours && o.sink) {
        const LogSink sink = o.sink;
        lock.unlock();
        sink(message);
        return;
    }
    const QByteArray line =
        (ours ? message : qFormatLogMessage(type, context, message)).toUtf8() + '\n';
    writeAll(STDERR_FILENO, line);
    if (!o.file.isEmpty()) appendRotated(o.file, line);
}

void installHandler() {
    static const bool installed = [] {
        qInstallMessageHandler(handleMessage);
        return true;
    }();
    (void)installed;
}

} // namespace

void logLine(LogArea area, const QString& text) {
    installHandler();
    qCInfo(area).noquote() << text;
}

void logLine(const QString& text) {
    logLine(lcGeneral, text);
}

LogSink setLogSink(LogSink sink) {
    installHandler();
    QMutexLocker lock(&outputs().mutex);
    std::swap(outputs().sink, sink);
    return sink;
}

void setLogFile(const QString& path) {
    installHandler();
    QMutexLocker lock(&outputs().mutex);
    outputs().file = QFile::encodeName(path);
}

} // namespace tarvanel
