// A write that fails part-way must leave the previous file whole. Tests run as root, where
// permissions stop nothing, so the failure comes from a file-size limit instead.
#include "guardian/Guardian.h"
#include "records/Excused.h"
#include "records/History.h"
#include "records/StateFiles.h"
#include "support/TestEnv.h"
#include "timetable/Timetable.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>
#include <functional>
#include <sys/resource.h>

using namespace tarvanel;

namespace {
class WriteFailureTest : public test::ScratchTest {
protected:
    // Runs `write` while no file may grow past `bytes`; writes past it fail with EFBIG.
    static void withFileSizeLimit(rlim_t bytes, const std::function<void()>& write) {
        rlimit old{};
        ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
        auto* oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = old;
        limited.rlim_cur = bytes;
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
        write();
        setrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, oldHandler);
    }

    static QByteArray bytesOf(const QString& name) {
        return readWholeFile(supportPath(name)).value_or(QByteArray("<missing>"));
    }

    static int leftovers() {
        return int(QDir(supportDir()).entryList(QDir::Files | QDir::Hidden).size());
    }
};

QDateTime utc(int y, int m, int d) {
    return QDateTime(QDate(y, m, d), QTime(0, 0), Qt::UTC);
}
} // namespace

TEST_F(WriteFailureTest, AtomicStoresKeepThePreviousFileWhole) {
    Marks::save({{"2025-03-01", {{"Fajr", "qada"}}}});
    Excused::save({{utc(2025, 3, 1), utc(2025, 3, 2)}});
    Timetable::merge({{"2025-03-01", {{"Fajr", "05:45"}}}});
    const QByteArray secret = Guardian::newSecret();
    Guardian::save(secret);
    const QByteArray marks = bytesOf("marks.json");
    const QByteArray excused = bytesOf("excused.json");
    const QByteArray timetable = bytesOf("timetable.json");
    const int files = leftovers();

    Marks::Map bigMarks;
    QList<ExcusedRange> bigExcused;
    DayTable bigTable;
    for (int i = 0; i < 400; ++i) {
        const QString day = dayKey(QDate(2025, 1, 1).addDays(i));
        bigMarks[day] = {{"Fajr", "elsewhere"}, {"Isha", "qada"}};
        bigExcused.append({utc(2025, 1, 1).addDays(i), utc(2025, 1, 1).addDays(i + 1)});
        bigTable[day] = {{"Fajr", "05:45"}, {"Isha", "20:50"}};
    }
    withFileSizeLimit(1024, [&] {
        Marks::save(bigMarks);
        Excused::save(bigExcused);
        Timetable::merge(bigTable);
        EXPECT_FALSE(writeFileAtomically(supportPath("marks.json"), QByteArray(4096, 'x')));
    });
    // The base64 secret is 28 bytes: a limit of 10 stops its replacement part-way.
    withFileSizeLimit(10, [] { Guardian::save(Guardian::newSecret()); });
    EXPECT_EQ(Guardian::secret(), secret);
    EXPECT_EQ(bytesOf("marks.json"), marks);
    EXPECT_EQ(bytesOf("excused.json"), excused);
    EXPECT_EQ(bytesOf("timetable.json"), timetable);
    EXPECT_EQ(Marks::load()["2025-03-01"]["Fajr"], QStringLiteral("qada"));
    EXPECT_EQ(Excused::load().size(), 1);
    EXPECT_EQ(leftovers(), files); // no temporary files left behind
}

TEST_F(WriteFailureTest, AFolderWhereTheFileMustGoFailsQuietly) {
    ASSERT_TRUE(QDir().mkpath(supportPath("excused.json")));
    Excused::begin(utc(2025, 3, 1));
    EXPECT_TRUE(Excused::load().isEmpty());
    EXPECT_TRUE(QFileInfo(supportPath("excused.json")).isDir());
}
