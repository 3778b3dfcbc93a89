#pragma once
// The process entry's reading of the command line and the terminal commands.
#include "engine/Config.h"

#include <QDateTime>
#include <QStringList>
#include <optional>

namespace tarvanel {

inline constexpr const char* appLabel = "com.velmora.tarvanel";
inline constexpr const char* appDisplayName = "Tarvanel";

struct CommandLine {
    bool help = false;
    bool version = false;
    bool times = false;
    std::optional<QString> date; // the argument after --date, as given
    bool installAgent = false;
    std::optional<double> testLockSeconds;
    bool testNudge = false;
    // The first argument that starts with "-" and is no option (nor an option's value).
    std::optional<QString> unknownOption;
    // The first other argument: a timetable file to import.
    std::optional<QString> importFile;
};

// Options are exact, case-sensitive whole arguments in any position; a value is the argument
// right after its option. args[0] is the program path.
CommandLine parseCommandLine(const QStringList& args);

// The day --times prints: local midnight of --date when it parses, else `now`.
QDateTime timesDay(const CommandLine& cl, const QDateTime& now);
// The header and table of --times.
QString timesText(const Config& cfg, const QDateTime& day);

// --times with the settings in config.json: the table for standard output and, for standard
// error, one line when the times are not for the user's own settings (no config.json yet, or one
// that does not decode); empty otherwise.
struct TimesOutput {
    QString table;
    QString note;
};
TimesOutput timesCommand(const CommandLine& cl, const QDateTime& now);

QString usageText();

} // namespace tarvanel
