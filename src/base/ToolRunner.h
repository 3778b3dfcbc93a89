#pragma once
// External tools run beside the event loop, never inside it: a hung tool must not freeze the
// lock's countdown. The answer comes back through the event loop.
#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

namespace tarvanel {

struct ToolResult {
    // The tool's exit status; -1 when it could not start, crashed or was killed at the limit.
    int status = -1;
    bool timedOut = false;
    QByteArray output; // standard output, only when asked for
};

struct ToolRun {
    QString program;
    QStringList arguments;
    int timeoutMs = 30000;
    bool captureOutput = false; // otherwise standard output and error are discarded
};

// Starts the tool and returns at once. `done` runs on the calling thread's event loop, once,
// unless `context` is destroyed first (the tool is then killed).
void runToolAsync(const ToolRun& run, QObject* context,
                  std::function<void(const ToolResult&)> done);

} // namespace tarvanel
