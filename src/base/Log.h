#pragma once
// One way out for every "Tarvanel: …" line. Standard error by default; the agent's unit
// appends standard error to ~/.tarvanel/log.txt. Tests install a sink to read the lines.
#include <QString>
#include <functional>

namespace tarvanel {

void logLine(const QString& text);

// nullptr restores standard error. Returns the previous sink.
using LogSink = std::function<void(const QString&)>;
LogSink setLogSink(LogSink sink);

} // namespace tarvanel
