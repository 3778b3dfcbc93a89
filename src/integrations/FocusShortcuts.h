#pragma once
// Focus during a lock: two executable scripts, "Tarvanel Focus On" and "Tarvanel Focus Off", in
// ~/.tarvanel/shortcuts/. The user writes them, or has them made for the running desktop from a
// known pair of commands that switch notification banners off and on again.
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

namespace tarvanel::FocusShortcuts {

QString onName();  // "Tarvanel Focus On"
QString offName(); // "Tarvanel Focus Off"
QString folder();  // ~/.tarvanel/shortcuts

// Both scripts exist and are executable. A stat each: cheap enough for the main thread.
bool installed();

// The scripts of the pair that exist but were not written by Tarvanel (its own carry a marker
// comment line); one that cannot be read counts as the user's.
QStringList handWritten();

// Starts the On or Off script and returns at once; the lock never waits for it. A non-zero
// status, a script that cannot start and one still running after `timeoutMs` (then killed) log
// `Tarvanel: shortcut "<name>" failed (<status>)`, with -1 when there is no status.
// `context` owns the running script.
void run(bool on, QObject* context, int timeoutMs = 30000);

// Commands that silence notifications for one desktop or notification daemon.
struct Template {
    QString desktop; // "GNOME", "Cinnamon", "MATE", "XFCE", "dunst", "mako"
    QString onCommand;
    QString offCommand;
    QString note; // what the user may still need to set up, as a script comment; may be empty
};
QList<Template> templates();

// The template key for this session: a running dunst or mako wins (they replace the desktop's
// notifications), then XDG_CURRENT_DESKTOP. Empty when nothing is recognised.
QString currentDesktop();

enum class CreateResult {
    written,        // both scripts written, mode 0700
    unknownDesktop, // no template: the folder exists and the scripts are left to the user
    failed          // the folder or a script could not be written (logged)
};
// Writes both scripts for `desktop` (a Template key), replacing any already there: callers ask
// before replacing hand-written ones.
CreateResult createFor(const QString& desktop);

} // namespace tarvanel::FocusShortcuts
