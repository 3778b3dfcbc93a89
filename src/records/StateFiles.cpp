#include "records/StateFiles.h"
#include "engine/LocalTime.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSaveFile>

namespace tarvanel {
namespace {
struct Paths {
    QString home, support, config;
};

Paths makePaths(const QString& home) {
    Paths p;
    p.home = home;
    p.support = QDir(home).filePath(QStringLiteral(".tarvanel"));
    p.config = QDir(p.support).filePath(QStringLiteral("config.json"));
    return p;
}

Paths& paths() {
    static Paths p = makePaths(QDir::homePath());
    return p;
}
} // namespace

QString homeDir() {
    return paths().home;
}
QString supportDir() {
    return paths().support;
}
QString configURL() {
    return paths().config;
}
QString supportPath(const QString& name) {
    return QDir(paths().support).filePath(name);
}

void setHomeDirForTesting(const QString& home) {
    paths() = makePaths(home);
}

bool ensureSupportDir() {
    return QDir().mkpath(supportDir());
}

std::optional<QByteArray> readWholeFile(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return std::nullopt;
    QByteArray bytes = f.readAll();
    if (f.error() != QFileDevice::NoError) return std::nullopt;
    return bytes;
}

// Unbuffered on purpose: a buffered QSaveFile flushes a short write (file-size limit, full
// disk) without noticing and commits a truncated file. Unbuffered, write() reports the short
// count and the temporary file is discarded.
bool writeFileAtomically(const QString& path, const QByteArray& bytes) {
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return false;
    if (f.write(bytes) != bytes.size()) {
        f.cancelWriting();
        return false;
    }
    return f.commit();
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes,
                         QFileDevice::Permissions permissions) {
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return false;
    // Applies to the temporary file, so the secret never sits in a file others can read.
    if (!f.setPermissions(permissions) || f.write(bytes) != bytes.size()) {
        f.cancelWriting();
        return false;
    }
    return f.commit();
}

bool writeFilePlain(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) return false;
    return f.write(bytes) == bytes.size();
}

std::optional<QJsonDocument> jsonLoad(const QString& name) {
    const auto bytes = readWholeFile(supportPath(name));
    if (!bytes) return std::nullopt;
    QJsonParseError error{};
    QJsonDocument doc = QJsonDocument::fromJson(*bytes, &error);
    if (error.error != QJsonParseError::NoError || doc.isNull()) return std::nullopt;
    return doc;
}

bool jsonSave(const QJsonDocument& doc, const QString& name) {
    ensureSupportDir();
    // QJsonObject keeps its keys sorted, so equal values give identical bytes.
    return writeFileAtomically(supportPath(name), doc.toJson(QJsonDocument::Indented));
}

std::optional<NestedTextMap> decodeNestedTextMap(const QJsonDocument& doc) {
    if (!doc.isObject()) return std::nullopt;
    NestedTextMap map;
    const QJsonObject root = doc.object();
    for (auto it = root.begin(); it != root.end(); ++it) {
        if (!it.value().isObject()) return std::nullopt;
        const QJsonObject inner = it.value().toObject();
        QMap<QString, QString> entry;
        for (auto p = inner.begin(); p != inner.end(); ++p) {
            if (!p.value().isString()) return std::nullopt;
            entry.insert(p.key(), p.value().toString());
        }
        map.insert(it.key(), entry);
    }
    return map;
}

QJsonDocument encodeNestedTextMap(const NestedTextMap& map) {
    QJsonObject root;
    for (auto it = map.begin(); it != map.end(); ++it) {
        QJsonObject inner;
        for (auto p = it.value().begin(); p != it.value().end(); ++p)
            inner.insert(p.key(), p.value());
        root.insert(it.key(), inner);
    }
    return QJsonDocument(root);
}

QString dayKey(const QDateTime& instant) {
    const LocalFields f = localFields(instant);
    return QString::asprintf("%04d-%02d-%02d", f.year, f.month, f.day);
}

QString dayKey(const QDate& date) {
    return QString::asprintf("%04d-%02d-%02d", date.year(), date.month(), date.day());
}

std::optional<QDate> parseDayKey(const QString& key) {
    const QDate d = QDate::fromString(key, QStringLiteral("yyyy-MM-dd"));
    if (!d.isValid()) return std::nullopt;
    return d;
}

QString isoString(const QDateTime& instant) {
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}

std::optional<QDateTime> parseIso(const QString& text) {
    QDateTime t = QDateTime::fromString(text, Qt::ISODate);
    if (!t.isValid()) return std::nullopt;
    return t.toUTC();
}

std::optional<QDateTime> fileModified(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) return std::nullopt;
    const QDateTime m = info.fileTime(QFileDevice::FileModificationTime);
    if (!m.isValid()) return std::nullopt;
    return m.toUTC();
}

} // namespace tarvanel
