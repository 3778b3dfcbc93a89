#pragma once
// What the tick compares to notice that a file changed: one stat, no read, no allocation.
#include <QByteArray>
#include <QDateTime>
#include <QTimeZone>
#include <optional>
#include <sys/stat.h>

namespace tarvanel {

struct FileStamp {
    bool exists = false;
    qint64 seconds = 0, nanoseconds = 0, size = 0;
    quint64 inode = 0, device = 0;

    static FileStamp of(const QByteArray& path) {
        struct stat st {};
        if (::stat(path.constData(), &st) != 0) return {};
        return {true,
                qint64(st.st_mtim.tv_sec),
                qint64(st.st_mtim.tv_nsec),
                qint64(st.st_size),
                quint64(st.st_ino),
                quint64(st.st_dev)};
    }
    // The modification date; absent for a missing file.
    std::optional<QDateTime> modified() const {
        if (!exists) return std::nullopt;
        return QDateTime::fromMSecsSinceEpoch(seconds * 1000 + nanoseconds / 1000000,
                                              QTimeZone::utc());
    }
    bool operator==(const FileStamp&) const = default;
};

} // namespace tarvanel
