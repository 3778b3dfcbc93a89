#pragma once
// The per-user directory ~/.tarvanel and the small helpers every store uses.
#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QFileDevice>
#include <QJsonDocument>
#include <QMap>
#include <QString>
#include <optional>

namespace tarvanel {

QString homeDir();
QString supportDir(); // homeDir()/.tarvanel
QString configURL();  // supportDir()/config.json
QString supportPath(const QString& name);
// ~/.tarvanel/.show-settings: a copy started by hand asks the agent to open its settings.
QString showSettingsMarker();
// The adhan file the user installed: ~/.tarvanel/adhan.{mp3,m4a,aiff,wav}, first that exists.
std::optional<QString> adhanFileURL();

// Tests point every path at a scratch home; the cached paths follow.
void setHomeDirForTesting(const QString& home);

// Creates supportDir (0700) with its parents; an existing one loses any bits of others.
bool ensureSupportDir();
// Makes a file owner-only (0600) when others may read or write it, with a log line.
void makeOwnerOnly(const QString& path);

// Whole-file helpers. `error`, when given, receives the reason of a failed read.
std::optional<QByteArray> readWholeFile(const QString& path, QString* error = nullptr);
// The one way the program writes a file: a temporary file in the same folder, flushed and
// renamed over the old one. Files in supportDir are owner-only from the first byte. A failure
// leaves the previous file whole and logs one line naming the file and the reason, once per
// file and cause. `error`, when given, receives the reason of a failed write.
bool writeFileAtomically(const QString& path, const QByteArray& bytes, QString* error = nullptr);
bool writeFileAtomically(const QString& path, const QByteArray& bytes,
                         QFileDevice::Permissions permissions);

// A file that exists but cannot be read is never replaced: it is renamed to
// "<name>.unreadable-<yyyyMMdd-HHmmss>" with a log line. False when the rename failed (logged).
bool setAside(const QString& path, const QString& reason);

// Logs `line` unless the same cause was already logged for `file` since its last good write.
void logOncePerCause(const QString& file, const QString& cause, const QString& line);

// JSON documents in supportDir, pretty-printed with sorted keys. A missing file loads as
// absent; one that does not read or parse is moved aside (see Store.h) and loads as absent.
std::optional<QJsonDocument> jsonLoad(const QString& name);
bool jsonSave(const QJsonDocument& doc, const QString& name);

// Day key → name → text, the shape of marks.json and timetable.json. A value of any other
// shape anywhere fails the whole decode, as a strict decoder would.
using NestedTextMap = QMap<QString, QMap<QString, QString>>;
std::optional<NestedTextMap> decodeNestedTextMap(const QJsonDocument& doc);
QJsonDocument encodeNestedTextMap(const NestedTextMap& map);

// Day key "yyyy-MM-dd" of a date (LocalTime.h gives the key of an instant).
QString dayKey(const QDate& date);
std::optional<QDate> parseDayKey(const QString& key);

// ISO 8601 internet date-time in UTC without fractional seconds (2025-03-01T21:00:00Z).
QString isoString(const QDateTime& instant);
std::optional<QDateTime> parseIso(const QString& text);

// Modification time of a file, absent when it is missing or has none.
std::optional<QDateTime> fileModified(const QString& path);

} // namespace tarvanel
