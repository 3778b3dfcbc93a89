#pragma once
// A scratch home for each test process, emptied between tests, and helpers to switch the
// process's time zone.
#include <QString>
#include <gtest/gtest.h>

namespace tarvanel::test {

// The scratch home of this process (HOME, XDG_CONFIG_HOME and XDG_DATA_HOME live inside it).
QString scratchHome();
// Removes everything under the scratch home; the next test starts with no ~/.tarvanel.
void wipeScratchHome();
// Switches TZ for this process (C library and Qt alike).
void setTimeZone(const char* zone);
// Writes bytes to ~/.tarvanel/name, creating the folder.
void writeSupportFile(const QString& name, const QByteArray& bytes);

// Fixture: a clean home and a known zone (Europe/London unless the test changes it).
class ScratchTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
};

} // namespace tarvanel::test
