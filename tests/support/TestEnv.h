#pragma once
// A scratch home for each test process, emptied between tests, and helpers to switch the
// process's time zone.
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>

// Readable failure messages for Qt values.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QDateTime& t, std::ostream* os) {
    *os << t.toString(Qt::ISODateWithMs).toStdString();
}
QT_END_NAMESPACE

namespace tarvanel::test {

// The scratch home of this process (HOME, XDG_CONFIG_HOME and XDG_DATA_HOME live inside it).
QString scratchHome();
// Points every per-user path of this process (HOME, XDG folders) at a fresh scratch home and
// sets LC_ALL=C; a test main calls it first, before anything computes a path.
void useScratchHome();
// Removes everything under the scratch home; the next test starts with no ~/.tarvanel.
void wipeScratchHome();
// Switches TZ for this process (C library and Qt alike).
void setTimeZone(const char* zone);
// Writes bytes to path (creating its folder), optionally as an executable script.
void writeFile(const QString& path, const QByteArray& bytes, bool executable = false);
// Writes bytes to ~/.tarvanel/name.
void writeSupportFile(const QString& name, const QByteArray& bytes);

// Runs the event loop until `done` holds; false when `timeoutMs` passes first.
bool waitFor(const std::function<bool()>& done, int timeoutMs = 10000);
inline void pump(int ms) {
    waitFor([] { return false; }, ms);
}

// Fixture: a clean home, a known zone (Europe/London unless the test changes it) and the log
// lines of the test.
class ScratchTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    QStringList logs;
};

} // namespace tarvanel::test
