#pragma once
// One JSON file in supportDir held in memory. The file is read again only when its stamp (size,
// modification time, inode) changes; save() and remove() are the cache's one invalidation point.
// A file that exists but does not parse or decode is moved aside, never overwritten.
#include "base/FileStamp.h"

#include <QJsonDocument>
#include <QString>
#include <functional>
#include <optional>

namespace tarvanel {

class StoreFile {
public:
    StoreFile(QString name, QJsonDocument::JsonFormat format, bool createsFolder);

    QString path() const;
    // True when the file is not the one last read or written (or the home moved).
    bool changed() const;
    // The parsed document, absent when the file is missing or was moved aside. Takes the stamp.
    std::optional<QJsonDocument> read();
    // The document read does not have the store's shape: moves the file aside.
    void reject(const QString& reason);
    // Atomic write; refused while an unreadable file could not be moved aside.
    bool write(const QJsonDocument& doc);
    bool remove();
    void forget() { known_ = false; }

private:
    void setAside(const QString& reason);

    QString name_, knownPath_, stuckReason_;
    QJsonDocument::JsonFormat format_;
    bool createsFolder_;
    bool known_ = false, stuck_ = false;
    FileStamp stamp_;
};

template <typename T> class JsonStore {
public:
    using Decode = std::function<std::optional<T>(const QJsonDocument&)>;
    using Encode = std::function<QJsonDocument(const T&)>;
    // Turns the document of `before` into that of `after`, for stores where re-encoding
    // everything would be slow and a save changes little.
    using Update = std::function<QJsonDocument(const T& before, QJsonDocument doc, const T& after)>;

    JsonStore(QString name, Decode decode, Encode encode,
              QJsonDocument::JsonFormat format = QJsonDocument::Indented, bool createsFolder = true,
              Update update = {})
        : file_(std::move(name), format, createsFolder), decode_(std::move(decode)),
          encode_(std::move(encode)), update_(std::move(update)) {}

    const T& load() {
        if (!file_.changed()) return value_;
        value_ = T();
        doc_ = QJsonDocument();
        if (auto doc = file_.read()) {
            if (auto decoded = decode_(*doc)) {
                value_ = std::move(*decoded);
                doc_ = std::move(*doc);
            } else {
                file_.reject(QStringLiteral("not of the expected shape"));
            }
        }
        return value_;
    }

    // A failed write keeps `value` in memory (the old file stays whole), so the next write that
    // succeeds carries it; a change to the file by someone else still wins.
    bool save(const T& value) {
        load(); // an unreadable file is moved aside before anything replaces it
        if (update_ && !doc_.isNull()) {
            doc_ = update_(value_, std::move(doc_), value);
            value_ = value; // stores with an update encode without loss
        } else {
            doc_ = encode_(value);
            // What a read of the file would give (an encoding may drop a fraction of a second).
            value_ = decode_(doc_).value_or(value);
        }
        return file_.write(doc_);
    }

    bool remove() {
        value_ = T();
        doc_ = QJsonDocument();
        return file_.remove();
    }
    void forget() { file_.forget(); }
    QString path() const { return file_.path(); }

private:
    StoreFile file_;
    Decode decode_;
    Encode encode_;
    Update update_;
    T value_{};
    QJsonDocument doc_; // value_'s document when known, so an update need not encode it all
};

} // namespace tarvanel
