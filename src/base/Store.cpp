#include "base/Store.h"
#include "base/Log.h"
#include "base/StateFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonParseError>

namespace tarvanel {

StoreFile::StoreFile(QString name, QJsonDocument::JsonFormat format, bool createsFolder)
    : name_(std::move(name)), format_(format), createsFolder_(createsFolder) {}

QString StoreFile::path() const {
    return supportPath(name_);
}

bool StoreFile::changed() const {
    if (!known_) return true;
    const QString p = path();
    return p != knownPath_ || FileStamp::of(QFile::encodeName(p)) != stamp_;
}

std::optional<QJsonDocument> StoreFile::read() {
    const QString p = path();
    knownPath_ = p;
    known_ = true;
    stuck_ = false;
    stamp_ = FileStamp::of(QFile::encodeName(p));
    if (!stamp_.exists) return std::nullopt;
    makeOwnerOnly(p);
    QString error;
    const auto bytes = readWholeFile(p, &error);
    if (!bytes) {
        // A folder in the file's place is left alone; writing there fails and says so.
        if (!QFileInfo(p).isDir()) setAside(error);
        return std::nullopt;
    }
    QJsonParseError parse{};
    QJsonDocument doc = QJsonDocument::fromJson(*bytes, &parse);
    if (parse.error != QJsonParseError::NoError || doc.isNull()) {
        setAside(QStringLiteral("%1 at byte %2").arg(parse.errorString()).arg(parse.offset));
        return std::nullopt;
    }
    return doc;
}

void StoreFile::reject(const QString& reason) {
    setAside(reason);
}

void StoreFile::setAside(const QString& reason) {
    const QString p = path();
    stuck_ = !tarvanel::setAside(p, reason);
    if (stuck_)
        stuckReason_ = reason;
    else
        stamp_ = FileStamp::of(QFile::encodeName(p));
}

bool StoreFile::write(const QJsonDocument& doc) {
    const QString p = path();
    if (stuck_) setAside(stuckReason_); // the folder may take the renamed file by now
    if (stuck_) {
        logOncePerCause(p, QStringLiteral("stuck"),
                        QStringLiteral("Tarvanel: could not save %1 (an unreadable file is in "
                                       "its place)")
                            .arg(p));
        return false;
    }
    if (createsFolder_) ensureSupportDir();
    if (!writeFileAtomically(p, doc.toJson(format_))) return false;
    knownPath_ = p;
    known_ = true;
    stamp_ = FileStamp::of(QFile::encodeName(p));
    return true;
}

bool StoreFile::remove() {
    const QString p = path();
    const bool removed = !QFileInfo::exists(p) || QFile::remove(p);
    knownPath_ = p;
    known_ = removed; // a file that stayed is read again
    stuck_ = false;
    stamp_ = FileStamp::of(QFile::encodeName(p));
    return removed;
}

} // namespace tarvanel
