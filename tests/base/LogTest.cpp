// The log: areas that rules can quiet, standard error and the agent's file, and the file's
// rotation at its exact limit.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryFile>
#include <unistd.h>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

QByteArray contents(const QString& path) {
    return readWholeFile(path).value_or("(missing)");
}

// Standard error of this process goes to a file while the object lives.
class CapturedStderr {
public:
    CapturedStderr() {
        file_.open();
        saved_ = ::dup(STDERR_FILENO);
        ::dup2(file_.handle(), STDERR_FILENO);
    }
    ~CapturedStderr() { release(); }
    QByteArray release() {
        if (saved_ >= 0) {
            ::dup2(saved_, STDERR_FILENO);
            ::close(saved_);
            saved_ = -1;
        }
        return contents(file_.fileName());
    }

private:
    QTemporaryFile file_;
    int saved_ = -1;
};

class LogTest : public ScratchTest {
protected:
    void TearDown() override {
        setLogFile({});
        QLoggingCategory::setFilterRules({});
        ScratchTest::TearDown();
    }
};

} // namespace

TEST_F(LogTest, AreasReachTheSinkAndRulesQuietOneArea) {
    logLine(lcLock, "Tarvanel: locked for Asr until 15:40");
    logLine(lcCalendar, "Tarvanel: calendar synced");
    logLine("Tarvanel already running; exiting.");
    EXPECT_EQ(logs, (QStringList{"Tarvanel: locked for Asr until 15:40",
                                 "Tarvanel: calendar synced",
                                 "Tarvanel already running; exiting."}));
    EXPECT_STREQ(lcCalendar().categoryName(), "tarvanel.calendar");
    EXPECT_STREQ(lcGeneral().categoryName(), "tarvanel");

    logs.clear();
    QLoggingCategory::setFilterRules("tarvanel.calendar.info=false");
    logLine(lcCalendar, "Tarvanel: calendar synced");
    logLine(lcLock, "Tarvanel: unlocked after Asr");
    EXPECT_EQ(logs, QStringList{"Tarvanel: unlocked after Asr"});
    // Qt's own messages never reach the sink: tests read only the program's lines.
    qWarning("a toolkit warning");
    EXPECT_EQ(logs, QStringList{"Tarvanel: unlocked after Asr"});
}

TEST_F(LogTest, WithoutASinkLinesGoToStandardErrorAndTheFileAlike) {
    setLogSink(nullptr);
    const QString path = scratchHome() + "/.tarvanel/log.txt";
    ASSERT_TRUE(ensureSupportDir());
    CapturedStderr captured;
    logLine(lcLock, "Tarvanel: before the file");
    setLogFile(path);
    logLine(lcLock, "Tarvanel: locked for Dhuhr until 13:20");
    logLine(lcFiles, "Tarvanel: état.json could not be read");
    qWarning("a toolkit warning");
    setLogFile({});
    logLine(lcLock, "Tarvanel: after the file");
    const QByteArray err = captured.release();
    EXPECT_EQ(err.left(err.indexOf("a toolkit warning")),
              "Tarvanel: before the file\nTarvanel: locked for Dhuhr until 13:20\n"
              "Tarvanel: état.json could not be read\n");
    EXPECT_TRUE(err.endsWith("a toolkit warning\nTarvanel: after the file\n")) << err.data();
    const QByteArray file = contents(path);
    EXPECT_TRUE(file.startsWith("Tarvanel: locked for Dhuhr until 13:20\n"
                                "Tarvanel: état.json could not be read\n"))
        << file.data();
    EXPECT_TRUE(file.endsWith("a toolkit warning\n")) << file.data();

    // A folder that is gone is not made again.
    QFile::remove(path);
    QDir(scratchHome() + "/.tarvanel").removeRecursively();
    setLogFile(path);
    CapturedStderr again;
    logLine(lcLock, "Tarvanel: uninstalled");
    EXPECT_EQ(again.release(), "Tarvanel: uninstalled\n");
    EXPECT_FALSE(QFile::exists(scratchHome() + "/.tarvanel"));
}

TEST_F(LogTest, TheFileRotatesAtItsLimitKeepingTwoOlderFiles) {
    setLogSink(nullptr);
    const QString path = scratchHome() + "/log.txt";
    const QByteArray line = "Tarvanel: locked for Isha until 20:10\n";
    const auto fill = [&](char c, qint64 free) {
        writeFile(path, QByteArray(logFileLimit - free - 1, c) + '\n');
    };
    CapturedStderr quiet;
    setLogFile(path);

    // A line that ends the file exactly at the limit stays in it.
    fill('a', line.size());
    logLine(lcLock, line.chopped(1));
    EXPECT_EQ(QFileInfo(path).size(), logFileLimit);
    EXPECT_FALSE(QFile::exists(path + ".1"));
    // One byte more, and the full file moves aside first.
    const QByteArray first = contents(path);
    logLine(lcLock, line.chopped(1));
    EXPECT_EQ(contents(path), line);
    EXPECT_EQ(contents(path + ".1"), first);
    EXPECT_FALSE(QFile::exists(path + ".2"));

    // The second rotation keeps both older files; the third drops the oldest.
    fill('b', line.size() - 1);
    const QByteArray second = contents(path);
    logLine(lcLock, line.chopped(1));
    EXPECT_EQ(contents(path + ".1"), second);
    EXPECT_EQ(contents(path + ".2"), first);
    fill('c', 0);
    const QByteArray third = contents(path);
    logLine(lcLock, line.chopped(1));
    EXPECT_EQ(contents(path), line);
    EXPECT_EQ(contents(path + ".1"), third);
    EXPECT_EQ(contents(path + ".2"), second);
    EXPECT_FALSE(QFile::exists(path + ".3"));
    // Standard error had every line regardless.
    EXPECT_EQ(quiet.release().count(line), 4);
}
