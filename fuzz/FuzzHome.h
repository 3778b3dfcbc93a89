#pragma once
// A throw-away home for the fuzzers, so loaders read and write files there and nowhere else.
#include "engine/LocalTime.h"
#include "base/StateFiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>

namespace tarvanel::fuzz {

inline void setUpHome() {
    static QTemporaryDir dir;
    qputenv("TZ", "Europe/London");
    qputenv("LC_ALL", "C");
    qputenv("HOME", dir.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (dir.path() + QStringLiteral("/.config")).toUtf8());
    resetLocalTimeZone();
    setHomeDirForTesting(dir.path());
    ensureSupportDir();
}

inline void writeSupportFile(const QString& name, const uint8_t* data, size_t size) {
    QFile f(supportPath(name));
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        f.write(reinterpret_cast<const char*>(data), qint64(size));
}

} // namespace tarvanel::fuzz
