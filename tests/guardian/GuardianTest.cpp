#include "guardian/Guardian.h"
#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <sys/stat.h>

using namespace tarvanel;

namespace {
class GuardianTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        Guardian::resetFailuresForTesting();
    }
};

QDateTime epoch(qint64 seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

const QByteArray rfcKey = "12345678901234567890";

// Runs a tool and returns its standard output, or absent when it is not installed or fails.
std::optional<QString> runTool(const QString& name, const QStringList& args) {
    const QString path = QStandardPaths::findExecutable(name);
    if (path.isEmpty()) return std::nullopt;
    QProcess p;
    p.start(path, args);
    if (!p.waitForFinished(20000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return std::nullopt;
    return QString::fromUtf8(p.readAllStandardOutput()).trimmed();
}
} // namespace

TEST_F(GuardianTest, CodesFollowThePublishedSha1Vectors) {
    // RFC 6238 appendix B, SHA-1 rows, last six digits of each eight-digit value.
    const QList<std::pair<qint64, const char*>> vectors{
        {59, "287082"},         {1111111109, "081804"}, {1111111111, "050471"},
        {1234567890, "005924"}, {2000000000, "279037"}, {20000000000, "353130"},
    };
    for (const auto& [seconds, expected] : vectors) {
        SCOPED_TRACE(seconds);
        EXPECT_EQ(Guardian::code(rfcKey, epoch(seconds)), QString::fromLatin1(expected));
    }
    // The step is floor(t / 30): the whole step shares its code, the next differs.
    EXPECT_EQ(Guardian::code(rfcKey, epoch(30)), Guardian::code(rfcKey, epoch(59)));
    EXPECT_NE(Guardian::code(rfcKey, epoch(60)), Guardian::code(rfcKey, epoch(59)));
}

TEST_F(GuardianTest, CodesAgreeWithOathtoolForRandomSecrets) {
    if (QStandardPaths::findExecutable(QStringLiteral("oathtool")).isEmpty())
        GTEST_SKIP() << "oathtool is not installed";
    const qint64 base = 1740000000; // early 2025
    for (int i = 0; i < 12; ++i) {
        const QByteArray secret = Guardian::newSecret();
        const qint64 at = base + qint64(i) * 7919 + i; // steps and offsets within steps vary
        SCOPED_TRACE(QString::fromLatin1(secret.toHex()).toStdString());
        const auto expected =
            runTool(QStringLiteral("oathtool"),
                    {QStringLiteral("--totp"), QStringLiteral("-b"), Guardian::base32(secret),
                     QStringLiteral("-N"), QStringLiteral("@%1").arg(at)});
        ASSERT_TRUE(expected.has_value());
        EXPECT_EQ(Guardian::code(secret, epoch(at)), *expected);
    }
}

TEST_F(GuardianTest, Base32FollowsRfc4648WithoutPadding) {
    const QList<std::pair<QByteArray, const char*>> vectors{
        {"", ""},
        {"f", "MY"},
        {"fo", "MZXQ"},
        {"foo", "MZXW6"},
        {"foob", "MZXW6YQ"},
        {"fooba", "MZXW6YTB"},
        {"foobar", "MZXW6YTBOI"},
        {"Hello", "JBSWY3DP"},
        {QByteArray(1, char(0xFF)), "74"},
    };
    for (const auto& [bytes, expected] : vectors)
        EXPECT_EQ(Guardian::base32(bytes), QString::fromLatin1(expected)) << bytes.toHex().data();
    EXPECT_EQ(Guardian::base32(rfcKey), QStringLiteral("GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQ"));
}

TEST_F(GuardianTest, NewSecretsAreTwentyFreshBytes) {
    const QByteArray a = Guardian::newSecret();
    const QByteArray b = Guardian::newSecret();
    EXPECT_EQ(a.size(), 20);
    EXPECT_EQ(b.size(), 20);
    EXPECT_NE(a, b);
    EXPECT_EQ(Guardian::base32(a).size(), 32);
}

TEST_F(GuardianTest, SecretFileHoldsBase64AndOnlyTheOwnerCanReadIt) {
    EXPECT_FALSE(Guardian::isSet());
    // A world-readable folder and no umask: the file must still be created owner-only.
    ASSERT_TRUE(ensureSupportDir());
    QFile::setPermissions(supportDir(), QFileDevice::Permissions(0x7777));
    const mode_t oldMask = umask(0);
    const QByteArray secret = Guardian::newSecret();
    Guardian::save(secret);
    umask(oldMask);

    const auto bytes = readWholeFile(Guardian::fileURL());
    ASSERT_TRUE(bytes.has_value());
    EXPECT_EQ(bytes->size(), 28);
    EXPECT_EQ(*bytes, secret.toBase64());
    struct stat st {};
    ASSERT_EQ(stat(QFile::encodeName(Guardian::fileURL()).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);
    EXPECT_EQ(Guardian::secret(), secret);
    EXPECT_TRUE(Guardian::isSet());

    // A second save over an existing file keeps it owner-only.
    Guardian::save(Guardian::newSecret());
    ASSERT_EQ(stat(QFile::encodeName(Guardian::fileURL()).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);

    Guardian::remove();
    EXPECT_FALSE(Guardian::isSet());
    Guardian::remove(); // a missing file is fine
}

TEST_F(GuardianTest, SecretFileIsReadStrictlyWithSurroundingWhiteSpace) {
    test::writeSupportFile(".guardian", rfcKey.toBase64() + "\n");
    EXPECT_EQ(Guardian::secret(), rfcKey);
    test::writeSupportFile(".guardian", "  \t" + rfcKey.toBase64() + "\r\n\n");
    EXPECT_EQ(Guardian::secret(), rfcKey);
    test::writeSupportFile(".guardian", rfcKey.toBase64() + "\xc2\xa0\xe2\x80\xa8");
    EXPECT_EQ(Guardian::secret(), rfcKey); // no-break space, line separator

    for (const QByteArray& bad :
         {QByteArray(), QByteArray("\n"), QByteArray("not base64!"), QByteArray("QUJD RA=="),
          QByteArray("QUJDRA"), QByteArray("QUJDRA=\n="), QByteArray("\xff\xfe\x00", 3),
          rfcKey.toBase64() + "\xff"}) {
        SCOPED_TRACE(bad.toHex().toStdString());
        test::writeSupportFile(".guardian", bad);
        EXPECT_FALSE(Guardian::secret().has_value());
        EXPECT_FALSE(Guardian::isSet());
    }
}

TEST_F(GuardianTest, VerifyAcceptsTheThreeStepWindowAndIgnoresSeparators) {
    Guardian::save(rfcKey);
    const QDateTime now = epoch(1740000015);
    const QString current = Guardian::code(rfcKey, now);
    const QString spaced = current.left(3) + QStringLiteral(" ") + current.mid(3);
    EXPECT_EQ(Guardian::verify(spaced, now), Guardian::Check::ok);
    EXPECT_EQ(Guardian::verify(QStringLiteral("-") + current + QStringLiteral("-"), now),
              Guardian::Check::ok);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, now.addSecs(-30)), now), Guardian::Check::ok);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, now.addSecs(30)), now), Guardian::Check::ok);

    const QString twoBack = Guardian::code(rfcKey, now.addSecs(-60));
    if (twoBack != current && twoBack != Guardian::code(rfcKey, now.addSecs(-30)) &&
        twoBack != Guardian::code(rfcKey, now.addSecs(30))) {
        EXPECT_EQ(Guardian::verify(twoBack, now), Guardian::Check::wrong);
    }
    EXPECT_EQ(Guardian::verify(current.left(5), now), Guardian::Check::wrong);
    EXPECT_EQ(Guardian::verify(current + QStringLiteral("0"), now), Guardian::Check::wrong);

    // The same check without bookkeeping, as the set-up uses it on an unsaved secret.
    const QByteArray other = Guardian::newSecret();
    EXPECT_TRUE(Guardian::matches(other, Guardian::code(other, now), now));
    EXPECT_FALSE(Guardian::matches(other, QStringLiteral("12345"), now));
}

TEST_F(GuardianTest, FiveFailuresLockOutUntilTheOldestIsFiveMinutesOld) {
    Guardian::save(rfcKey);
    const QDateTime midnight = QDateTime(QDate(2025, 3, 1), QTime(0, 0), Qt::UTC);
    auto wrongCode = [&](const QDateTime& at) {
        // A six-digit code outside the window at `at`.
        return Guardian::code(rfcKey, at.addSecs(3600));
    };
    for (int i = 0; i < 5; ++i) {
        const QDateTime at = midnight.addSecs(i * 10);
        ASSERT_EQ(Guardian::verify(wrongCode(at), at), Guardian::Check::wrong) << i;
    }
    const QDateTime before = midnight.addSecs(4 * 60 + 59);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, before), before),
              Guardian::Check::tooManyTries);
    // Refused attempts are not counted, so the window opens exactly 300 s after the first.
    const QDateTime open = midnight.addSecs(300);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, open), open), Guardian::Check::ok);

    // A correct code clears the count: four more failures do not lock out.
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Guardian::verify(QStringLiteral("abc"), open), Guardian::Check::wrong);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, open), open), Guardian::Check::ok);
}

TEST_F(GuardianTest, WithoutASecretEveryAttemptIsWrongAndCounts) {
    const QDateTime now = epoch(1740000000);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Guardian::verify(QStringLiteral("123456"), now), Guardian::Check::wrong);
    EXPECT_EQ(Guardian::verify(QStringLiteral("123456"), now), Guardian::Check::tooManyTries);
}

TEST_F(GuardianTest, NonAsciiNumeralsCountTowardsLengthButNeverMatch) {
    Guardian::save(rfcKey);
    const QDateTime now = epoch(1740000000);
    // Arabic-Indic digits for the right code: six numerals, but not the code's characters.
    QString arabic;
    for (QChar c : Guardian::code(rfcKey, now))
        arabic += QChar(0x0660 + c.digitValue());
    EXPECT_EQ(Guardian::verify(arabic, now), Guardian::Check::wrong);
}

TEST_F(GuardianTest, SetupLinkHasTheAuthenticatorShape) {
    EXPECT_EQ(Guardian::otpauthURL(rfcKey),
              QStringLiteral("otpauth://totp/Tarvanel:Guardian?secret=") +
                  Guardian::base32(rfcKey) + QStringLiteral("&issuer=Tarvanel&digits=6&period=30"));
}

TEST_F(GuardianTest, QrMatrixScansBackToTheSetupLink) {
    const QString url = Guardian::otpauthURL(Guardian::newSecret());
    const auto qr = Guardian::qrMatrix(url);
    ASSERT_TRUE(qr.has_value());
    ASSERT_GE(qr->size, 21);
    EXPECT_EQ((qr->size - 17) % 4, 0); // a QR version's side
    ASSERT_EQ(qr->dark.size(), size_t(qr->size) * size_t(qr->size));
    // Finder pattern corners: dark outer ring, light ring, dark centre.
    EXPECT_TRUE(qr->at(0, 0));
    EXPECT_FALSE(qr->at(1, 1));
    EXPECT_TRUE(qr->at(3, 3));
    EXPECT_TRUE(qr->at(qr->size - 1, 0));
    EXPECT_TRUE(qr->at(0, qr->size - 1));

    if (QStandardPaths::findExecutable(QStringLiteral("zbarimg")).isEmpty())
        GTEST_SKIP() << "zbarimg is not installed";
    // A plain PGM: 8 pixels per module and a 4-module quiet zone.
    const int scale = 8, quiet = 4;
    const int side = (qr->size + 2 * quiet) * scale;
    QByteArray pgm = "P5\n" + QByteArray::number(side) + " " + QByteArray::number(side) + "\n255\n";
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const int mx = x / scale - quiet, my = y / scale - quiet;
            const bool dark =
                mx >= 0 && my >= 0 && mx < qr->size && my < qr->size && qr->at(mx, my);
            pgm += dark ? char(0) : char(255);
        }
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("qr.pgm"));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(pgm);
    f.close();
    const auto scanned =
        runTool(QStringLiteral("zbarimg"), {QStringLiteral("--raw"), QStringLiteral("-q"), path});
    ASSERT_TRUE(scanned.has_value());
    EXPECT_EQ(*scanned, url);
}

TEST_F(GuardianTest, QrMatrixRefusesWhatCannotBeEncoded) {
    EXPECT_FALSE(Guardian::qrMatrix(QString()).has_value());
    EXPECT_FALSE(Guardian::qrMatrix(QString(5000, u'x')).has_value());
    EXPECT_TRUE(Guardian::qrMatrix(QStringLiteral("ü \u2013 \U0001F4FF")).has_value());
}
