#include "support/TestEnv.h"
#include "engine/Config.h"
#include "engine/LocalTime.h"
#include "records/Log.h"
#include "records/StateFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

namespace tarvanel::test {

QTemporaryDir& scratch() {
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/tarvanel-test-XXXXXX"));
    return dir;
}

QString scratchHome() {
    return scratch().path() + QStringLiteral("/home");
}

void wipeScratchHome() {
    QDir(scratchHome()).removeRecursively();
    QDir().mkpath(scratchHome() + QStringLiteral("/.config"));
    QDir().mkpath(scratchHome() + QStringLiteral("/.local/share"));
}

void useScratchHome() {
    wipeScratchHome();
    const QByteArray home = scratchHome().toUtf8();
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/.config");
    qputenv("XDG_DATA_HOME", home + "/.local/share");
    qunsetenv("TARVANEL_AGENT");
    qputenv("LC_ALL", "C");
    setHomeDirForTesting(scratchHome());
}

void setTimeZone(const char* zone) {
    qputenv("TZ", zone);
    resetLocalTimeZone();
}

void writeSupportFile(const QString& name, const QByteArray& bytes) {
    QDir().mkpath(supportDir());
    QFile f(supportPath(name));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

void ScratchTest::SetUp() {
    wipeScratchHome();
    setTimeZone("Europe/London");
    resetLastGoodConfigForTesting();
}

void ScratchTest::TearDown() {
    setLogSink(nullptr);
}

} // namespace tarvanel::test
