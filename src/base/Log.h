#pragma once
// One way out for every "Tarvanel: …" line: Qt's logging, one category per area, so that
// QT_LOGGING_RULES can quiet an area ("tarvanel.calendar.info=false"). One message handler
// writes each line to standard error and, in the agent, to ~/.tarvanel/log.txt, which it
// rotates. Tests install a sink to read the lines.
#include <QLoggingCategory>
#include <QString>
#include <functional>

namespace tarvanel {

Q_DECLARE_LOGGING_CATEGORY(lcGeneral)  // tarvanel
Q_DECLARE_LOGGING_CATEGORY(lcAgent)    // tarvanel.agent: login service, hand-off, uninstall
Q_DECLARE_LOGGING_CATEGORY(lcFiles)    // tarvanel.files: the state files
Q_DECLARE_LOGGING_CATEGORY(lcSettings) // tarvanel.settings
Q_DECLARE_LOGGING_CATEGORY(lcSchedule) // tarvanel.schedule: the day's times
Q_DECLARE_LOGGING_CATEGORY(lcRecords)  // tarvanel.records: excused days, travel
Q_DECLARE_LOGGING_CATEGORY(lcLock)     // tarvanel.lock: locks, reminders, lock backends
Q_DECLARE_LOGGING_CATEGORY(lcCalendar) // tarvanel.calendar
Q_DECLARE_LOGGING_CATEGORY(lcFocus)    // tarvanel.focus: the Focus scripts
Q_DECLARE_LOGGING_CATEGORY(lcDesktop)  // tarvanel.desktop: tray, windows, signals, the bus
Q_DECLARE_LOGGING_CATEGORY(lcSound)    // tarvanel.sound
Q_DECLARE_LOGGING_CATEGORY(lcOcr)      // tarvanel.ocr: reading timetable images

using LogArea = const QLoggingCategory& (*)();

void logLine(LogArea area, const QString& text);
void logLine(const QString& text); // the general area

// Takes the lines of the tarvanel areas instead of standard error and the file; nullptr
// gives them back. Returns the previous sink.
using LogSink = std::function<void(const QString&)>;
LogSink setLogSink(LogSink sink);

// Every line, Qt's own included, also goes to `path` (empty: to no file). A line that would
// take the file past logFileLimit first moves it to `path`.1, and that one to `path`.2.
void setLogFile(const QString& path);
inline constexpr qint64 logFileLimit = 1024 * 1024;

} // namespace tarvanel
