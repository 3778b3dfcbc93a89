#include "base/StateFiles.h"
#include "base/Log.h"
#include "base/Store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonObject>
#include <QJsonParseError>
#include <QMutex>
#include <QSaveFile>
#include <QScopeGuard>
#include <QSet>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

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

// Causes already logged per file since its last good write.
QHash<QString, QSet<QString>>& logged() {
    static QHash<QString, QSet<QString>> map;
    return map;
}
QMutex& loggedMutex() {
    static QMutex m;
    return m;
}
} // namespace

QString showSettingsMarker() {
    return supportPath(QStringLiteral(".show-settings"));
}

std::optional<QString> adhanFileURL() {
    for (const char* ext : {"mp3", "m4a", "aiff", "wav"}) {
        const QString path = supportPath(QStringLiteral("adhan.") + QLatin1String(ext));
        if (QFileInfo(path).isFile()) return path;
    }
    return std::nullopt;
}

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
    const QString dir = supportDir();
    if (!QDir().mkpath(QFileInfo(dir).absolutePath())) return false;
    const QByteArray native = QFile::encodeName(dir);
    // Made owner-only from the start, so nothing inside is ever open to others.
    if (::mkdir(native.constData(), 0700) != 0 && errno != EEXIST) return false;
    struct stat st {};
    if (::stat(native.constData(), &st) != 0 || !S_ISDIR(st.st_mode)) return false;
    // Only the bits of others go: a folder its owner made read-only stays read-only.
    if ((st.st_mode & 077) && ::chmod(native.constData(), st.st_mode & 0700) == 0)
        logLine(lcFiles, QStringLiteral("Tarvanel: %1 was mode %2; made owner-only")
                             .arg(dir, QString::number(st.st_mode & 07777, 8)));
    return true;
}

void makeOwnerOnly(const QString& path) {
    const QByteArray native = QFile::encodeName(path);
    struct stat st {};
    if (::stat(native.constData(), &st) != 0 || !S_ISREG(st.st_mode) || !(st.st_mode & 077)) return;
    if (::chmod(native.constData(), st.st_mode & 0700) == 0)
        logLine(lcFiles, QStringLiteral("Tarvanel: %1 was mode %2; made owner-only")
                             .arg(path, QString::number(st.st_mode & 07777, 8)));
}

std::optional<QByteArray> readWholeFile(const QString& path, QString* error) {
    QFile f(path);
    if (f.open(QIODevice::ReadOnly)) {
        QByteArray bytes = f.readAll();
        if (f.error() == QFileDevice::NoError) return bytes;
    }
    if (error) *error = f.errorString();
    return std::nullopt;
}

void logOncePerCause(const QString& file, const QString& cause, const QString& line) {
    QMutexLocker lock(&loggedMutex());
    if (!logged()[file].contains(cause)) logLine(lcFiles, line);
    logged()[file].insert(cause);
}

bool setAside(const QString& path, const QString& reason) {
    const QString base = path + QStringLiteral(".unreadable-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString target = base;
    for (int n = 2; QFileInfo::exists(target); ++n)
        target = base + u'-' + QString::number(n);
    // rename(2) itself: QFile::rename would fall back to a copy.
    if (::rename(QFile::encodeName(path).constData(), QFile::encodeName(target).constData()) == 0) {
        logLine(lcFiles, QStringLiteral("Tarvanel: %1 could not be read (%2); moved aside to %3")
                             .arg(path, reason, target));
        return true;
    }
    logOncePerCause(path, QStringLiteral("set aside"),
                    QStringLiteral("Tarvanel: %1 could not be read (%2) nor moved aside (%3); "
                                   "it is kept and nothing replaces it")
                        .arg(path, reason, QString::fromLocal8Bit(std::strerror(errno))));
    return false;
}

namespace {
bool writeFile(const QString& path, const QByteArray& bytes,
               std::optional<QFileDevice::Permissions> permissions, QString* error = nullptr) {
    // Unbuffered on purpose: a buffered QSaveFile flushes a short write (file-size limit, full
    // disk) without noticing and commits a truncated file. Unbuffered, write() reports the
    // short count and the temporary file is discarded.
    // Past a file-size limit the kernel would kill the program; ignored, the write just fails.
    struct sigaction ignore {
    }, previous{};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &previous);
    const auto restore = qScopeGuard([&] { sigaction(SIGXFSZ, &previous, nullptr); });
    QSaveFile f(path);
    // Applies to the temporary file, so no byte ever sits in a file others can read.
    bool ok = f.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
              (!permissions || f.setPermissions(*permissions));
    // A short count carries no reason; the next write of the rest fails with one.
    for (qint64 done = 0; ok && done < bytes.size();) {
        const qint64 n = f.write(bytes.constData() + done, bytes.size() - done);
        ok = n > 0;
        done += n;
    }
    const QString reason = f.errorString();
    if (ok) {
        ok = f.commit();
    } else {
        f.cancelWriting();
    }
    if (ok) {
        QMutexLocker lock(&loggedMutex());
        logged().remove(path);
        return true;
    }
    const QString why =
        reason.isEmpty() || reason == QLatin1String("Unknown error") ? f.errorString() : reason;
    if (error) *error = why;
    logOncePerCause(path, why,
                    QStringLiteral("Tarvanel: could not save %1 (%2); the previous file is kept")
                        .arg(path, why));
    return false;
}
} // namespace

bool writeFileAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    const bool inside =
        QFileInfo(path).absolutePath() == QFileInfo(supportDir()).absoluteFilePath();
    return writeFile(path, bytes,
                     inside ? std::optional(QFileDevice::ReadOwner | QFileDevice::WriteOwner)
                            : std::nullopt,
                     error);
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes,
                         QFileDevice::Permissions permissions) {
    return writeFile(path, bytes, permissions);
}

std::optional<QJsonDocument> jsonLoad(const QString& name) {
    return StoreFile(name, QJsonDocument::Indented, true).read();
}

bool jsonSave(const QJsonDocument& doc, const QString& name) {
    StoreFile file(name, QJsonDocument::Indented, true);
    file.read(); // an unreadable file is moved aside before anything replaces it
    // QJsonObject keeps its keys sorted, so equal values give identical bytes.
    return file.write(doc);
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
