#include "support/TestEnv.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/Config.h"
#include "engine/LocalTime.h"
#include "records/ConfigFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>
#include <cstdlib>

namespace tarvanel::test {

QTemporaryDir& scratch() {
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/tarvanel-test-XXXXXX"));
    return dir;
}

QString scratchHome() {
    return scratch().path() + QStringLiteral("/home");
}

bool waitFor(const std::function<bool()>& done, int timeoutMs) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > timeoutMs) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return true;
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

void writeFile(const QString& path, const QByteArray& bytes, bool executable) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
    if (executable) f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void writeSupportFile(const QString& name, const QByteArray& bytes) {
    writeFile(supportPath(name), bytes);
}

void ScratchTest::SetUp() {
    wipeScratchHome();
    setTimeZone("Europe/London");
    resetLastGoodConfigForTesting();
    setLogSink([this](const QString& line) { logs << line; });
}

void ScratchTest::TearDown() {
    setLogSink(nullptr);
}

} // namespace tarvanel::test
