// Failed writes keep the previous file whole and say so; unreadable files are set aside, never
// overwritten; a process killed at any moment loses no confirmed record.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "guardian/Guardian.h"
#include "records/DayLedger.h"
#include "records/Excused.h"
#include "records/History.h"
#include "records/LockState.h"
#include "support/TestEnv.h"
#include "timetable/Timetable.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTimeZone>
#include <csignal>
#include <functional>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tarvanel;

namespace {
class WriteFailureTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        ensureSupportDir();
        ledger = std::make_unique<DayLedger>();
    }
    std::unique_ptr<DayLedger> ledger;
};

// Runs `write` in a read-only folder, with this thread's permission override dropped so that
// it stops root too.
void inReadOnlyFolder(const std::function<void()>& write) {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct caps[2]{}, dropped[2]{};
    ASSERT_EQ(syscall(SYS_capget, &header, caps), 0);
    std::copy(caps, caps + 2, dropped);
    dropped[0].effective &= ~((1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH));
    ASSERT_EQ(syscall(SYS_capset, &header, dropped), 0);
    ASSERT_EQ(chmod(QFile::encodeName(supportDir()).constData(), 0500), 0);
    write();
    chmod(QFile::encodeName(supportDir()).constData(), 0700);
    syscall(SYS_capset, &header, caps);
}

QByteArray bytesOf(const QString& name) {
    return readWholeFile(supportPath(name)).value_or(QByteArray("<missing>"));
}

QStringList filesIn(const QString& pattern) {
    return QDir(supportDir()).entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Name);
}

QString day(int i) {
    return dayKey(QDate(2000, 1, 1).addDays(i));
}

const QDateTime march1 = QDateTime(QDate(2025, 3, 1), QTime(0, 0), QTimeZone::utc());
} // namespace

TEST_F(WriteFailureTest, AFullDiskOrReadOnlyFolderKeepsEveryFileAndSaysSoOnce) {
    ledger->logKept(day(0) + "-Fajr", std::nullopt);
    Marks::save({{day(0), {{"Fajr", "qada"}}}});
    Excused::save({{march1, march1.addDays(1)}});
    Timetable::merge({{day(0), {{"Fajr", "05:45"}}}});
    const QByteArray secret = Guardian::newSecret();
    Guardian::save(secret);
    const QStringList names{"history.json", "state.json",     "marks.json",
                            "excused.json", "timetable.json", ".guardian"};
    QList<QByteArray> before;
    std::transform(names.begin(), names.end(), std::back_inserter(before), bytesOf);
    const qsizetype files = filesIn("*").size();

    // Every file grows past the limit below (the base64 secret is 28 bytes).
    auto saveAll = [&] {
        for (int i = 1; i <= 3; ++i)
            ledger->logKept(day(i) + "-Isha", QStringLiteral("Maghrib"));
        Marks::save({{day(1), {{"Isha", "elsewhere"}}}});
        Excused::save({{march1, march1.addDays(1)}, {march1.addDays(2), std::nullopt}});
        Timetable::merge({{day(1), {{"Isha", "20:50"}}}});
        Guardian::save(Guardian::newSecret());
    };
    // No file may grow past 20 bytes: the writer must not die of SIGXFSZ.
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit limited{20, old.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
    saveAll();
    setrlimit(RLIMIT_FSIZE, &old);
    inReadOnlyFolder(saveAll);
    for (qsizetype i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(names[i].toStdString());
        EXPECT_EQ(bytesOf(names[i]), before[i]);
        // One line per file and cause, however many saves failed.
        for (const char* cause : {"File too large", "Permission denied"})
            EXPECT_EQ(logs.filter(supportPath(names[i]) + " (").filter(cause).size(), 1) << cause;
    }
    EXPECT_EQ(logs.size(), 2 * names.size()) << logs.join('\n').toStdString();
    EXPECT_EQ(filesIn("*").size(), files); // no temporary files left behind

    // Nothing is lost: the next write that succeeds carries what could not be saved.
    Guardian::resetFailuresForTesting();
    EXPECT_EQ(Guardian::secret(), secret);
    ledger->logKept(day(4) + "-Fajr", std::nullopt);
    EXPECT_EQ(QJsonDocument::fromJson(bytesOf("history.json")).object().size(), 5);
    EXPECT_EQ(loadCompletedLocks().size(), 1 + 3 * 2 + 1);
}

TEST_F(WriteFailureTest, UnreadableFilesAreSetAsideNotReplaced) {
    const QString bad = R"({"2025-03-01": ["Fajr", 3]})";
    const auto noHistory = [] { return loadHistory().isEmpty(); };
    const struct {
        const char* name;
        QByteArray bytes;
        std::function<bool()> readsEmpty;
    } cases[] = {
        // clang-format off
        {"history.json", R"({"2025-03-01": ["Fajr"], "2025-03-02": ["Fa)", noHistory},
        {"history.json", bad.toUtf8(), noHistory},
        {"state.json", R"(["2025-03-01-Fajr", null])", [] { return loadCompletedLocks().isEmpty(); }},
        {"marks.json", R"({"2025-03-01": {"Fajr": 1}})", [] { return Marks::load().isEmpty(); }},
        {"excused.json", R"([{"start": "2025-03-01"}, {}])", [] { return Excused::load().isEmpty(); }},
        {"timetable.json", "", [] { return Timetable::all().isEmpty(); }},
        {".guardian", "not base64!", [] { return !Guardian::isSet(); }}};
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        test::writeSupportFile(c.name, c.bytes);
        logs.clear();
        EXPECT_TRUE(c.readsEmpty());
        const QStringList aside = filesIn(QString::fromLatin1(c.name) + ".unreadable-*");
        ASSERT_EQ(aside.size(), 1);
        EXPECT_EQ(bytesOf(aside[0]), c.bytes);
        ASSERT_EQ(logs.filter("moved aside").size(), 1) << logs.join('\n').toStdString();
        EXPECT_TRUE(logs.filter("moved aside")[0].contains(supportPath(aside[0])));
        QFile::remove(supportPath(aside[0]));
    }
    // A folder that cannot take the renamed file keeps the bad one and refuses to replace it.
    test::writeSupportFile("history.json", bad.toUtf8());
    inReadOnlyFolder([&] { ledger->logKept(day(0) + "-Fajr", std::nullopt); });
    EXPECT_EQ(bytesOf("history.json"), bad.toUtf8());
    ledger->logKept(day(0) + "-Fajr", std::nullopt); // now it moves aside and starts anew
    EXPECT_EQ(filesIn("history.json.unreadable-*").size(), 1);
    EXPECT_EQ(loadHistory().keys(), QStringList{day(0)});
}

TEST_F(WriteFailureTest, KilledAtAnyMomentNoConfirmedRecordIsLost) {
    // A child records a kept prayer on one day after another and reports each confirmed day
    // through a pipe; it is killed at random moments, and the next child carries on.
    int confirmed = -1;
    for (int kill = 0; kill < 300; ++kill) {
        int fds[2];
        ASSERT_EQ(pipe(fds), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            close(fds[0]);
            for (int i = confirmed + 1;; ++i) {
                ledger->logKept(day(i) + "-Fajr", std::nullopt);
                if (write(fds[1], &i, sizeof i) != sizeof i) _exit(1);
            }
        }
        close(fds[1]);
        // Killed at a random moment after its first confirmed record, mostly mid-write.
        ASSERT_EQ(read(fds[0], &confirmed, sizeof confirmed), ssize_t(sizeof confirmed));
        usleep(QRandomGenerator::global()->bounded(1000));
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        for (int i; read(fds[0], &i, sizeof i) == sizeof i;)
            confirmed = i;
        close(fds[0]);
        const HistoryMap history = loadHistory();
        ASSERT_GE(history.size(), confirmed + 1) << "after kill " << kill;
        ASSERT_TRUE(confirmed < 0 || history.contains(day(confirmed))) << "after kill " << kill;
        ASSERT_FALSE(loadCompletedLocks().isEmpty() && confirmed >= 0);
    }
    EXPECT_GE(confirmed, 299); // one record at least per child
    EXPECT_EQ(filesIn("*.unreadable-*"), QStringList());
    EXPECT_EQ(logs, QStringList());
}

TEST_F(WriteFailureTest, TheFolderAndItsFilesAreOwnerOnly) {
    ASSERT_EQ(chmod(QFile::encodeName(supportDir()).constData(), 0755), 0);
    test::writeSupportFile(".guardian", QByteArray("12345678901234567890").toBase64());
    test::writeSupportFile("history.json", R"({"2025-03-01": ["Fajr"]})");
    chmod(QFile::encodeName(supportPath(".guardian")).constData(), 0644);
    chmod(QFile::encodeName(supportPath("history.json")).constData(), 0664);
    ensureSupportDir();
    EXPECT_TRUE(Guardian::isSet());
    EXPECT_EQ(loadHistory().size(), 1);
    Marks::save({});
    for (const QString& path : {supportDir(), supportPath(".guardian"), supportPath("history.json"),
                                supportPath("marks.json")}) {
        struct stat st {};
        ASSERT_EQ(stat(QFile::encodeName(path).constData(), &st), 0);
        EXPECT_EQ(st.st_mode & 0777, path == supportDir() ? 0700u : 0600u) << path.toStdString();
    }
    EXPECT_EQ(logs.size(), 3) << logs.join('\n').toStdString(); // the folder and two files
}
