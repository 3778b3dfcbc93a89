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

// Tests point every path at a scratch home; the cached paths follow.
void setHomeDirForTesting(const QString& home);

// Creates supportDir with its parents; true when it exists afterwards.
bool ensureSupportDir();

// Whole-file helpers. The atomic writer leaves the previous file intact on any failure.
std::optional<QByteArray> readWholeFile(const QString& path);
bool writeFileAtomically(const QString& path, const QByteArray& bytes);
// Same, with the new file holding `permissions` before any byte is written (secrets).
bool writeFileAtomically(const QString& path, const QByteArray& bytes,
                         QFileDevice::Permissions permissions);
bool writeFilePlain(const QString& path, const QByteArray& bytes);

// JSON stores in supportDir: pretty-printed, keys sorted, atomic. A missing, unreadable or
// unparsable file loads as absent.
std::optional<QJsonDocument> jsonLoad(const QString& name);
bool jsonSave(const QJsonDocument& doc, const QString& name);

// Day key → name → text, the shape of marks.json and timetable.json. A value of any other
// shape anywhere fails the whole decode, as a strict decoder would.
using NestedTextMap = QMap<QString, QMap<QString, QString>>;
std::optional<NestedTextMap> decodeNestedTextMap(const QJsonDocument& doc);
QJsonDocument encodeNestedTextMap(const NestedTextMap& map);

// Day key "yyyy-MM-dd" of an instant in the process's time zone.
QString dayKey(const QDateTime& instant);
QString dayKey(const QDate& date);
std::optional<QDate> parseDayKey(const QString& key);

// ISO 8601 internet date-time in UTC without fractional seconds (2025-03-01T21:00:00Z).
QString isoString(const QDateTime& instant);
std::optional<QDateTime> parseIso(const QString& text);

// Modification time of a file, absent when it is missing or has none.
std::optional<QDateTime> fileModified(const QString& path);

} // namespace tarvanel
