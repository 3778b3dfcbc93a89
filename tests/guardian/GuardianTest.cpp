#include "guardian/Guardian.h"
#include "base/StateFiles.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTimeZone>
#include <sys/stat.h>

using namespace tarvanel;
using Check = Guardian::Check;

namespace {
class GuardianTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        Guardian::resetFailuresForTesting();
    }
};

QDateTime epoch(qint64 seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc());
}

const QByteArray rfcKey = "12345678901234567890";

mode_t fileMode(const QString& path) {
    struct stat st {};
    return stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_mode & 0777 : 0;
}
} // namespace

TEST_F(GuardianTest, CodesAndBase32FollowThePublishedVectors) {
    // RFC 6238 appendix B, SHA-1 rows, last six digits of each eight-digit value.
    const QList<std::pair<qint64, const char*>> vectors = {
        {59, "287082"},         {1111111109, "081804"}, {1111111111, "050471"},
        {1234567890, "005924"}, {2000000000, "279037"}, {20000000000, "353130"}};
    for (const auto& [seconds, expected] : vectors)
        EXPECT_EQ(Guardian::code(rfcKey, epoch(seconds)), QString::fromLatin1(expected)) << seconds;
    // RFC 4648 section 10: every prefix of "foobar", here without the padding.
    const QStringList foobar{"", "MY", "MZXQ", "MZXW6", "MZXW6YQ", "MZXW6YTB", "MZXW6YTBOI"};
    for (int n = 0; n < foobar.size(); ++n)
        EXPECT_EQ(Guardian::base32(QByteArray("foobar").left(n)), foobar[n]) << n;
    EXPECT_EQ(Guardian::base32(QByteArray(1, char(0xFF))), "74");
}

TEST_F(GuardianTest, SecretFileIsOwnerOnlyBase64ReadStrictly) {
    EXPECT_FALSE(Guardian::isSet());
    const QByteArray secret = Guardian::newSecret();
    Guardian::save(secret); // created owner-only whatever the umask (022 here) allows
    EXPECT_EQ(readWholeFile(Guardian::fileURL()), secret.toBase64());
    EXPECT_EQ(fileMode(Guardian::fileURL()), 0600u);
    EXPECT_EQ(Guardian::secret(), secret);
    EXPECT_NE(Guardian::newSecret(), secret);
    Guardian::remove();
    EXPECT_FALSE(Guardian::isSet());
    Guardian::remove(); // a missing file is fine

    const QByteArray b64 = rfcKey.toBase64();
    // Trailing no-break space and line separator count as white space too.
    for (const QByteArray& text :
         {b64 + "\n", "  \t" + b64 + "\r\n\n", b64 + "\xc2\xa0\xe2\x80\xa8", QByteArray("\n"),
          QByteArray("QUJD RA=="), QByteArray("QUJDRA"), b64 + "\xff"}) {
        test::writeSupportFile(".guardian", text);
        const bool good = text.contains(b64) && !text.endsWith("\xff");
        EXPECT_EQ(Guardian::secret(), good ? std::optional(rfcKey) : std::nullopt)
            << text.toHex().data();
    }
}

namespace {
// A code written in the digits whose zero is `zero`.
QString inDigits(const QString& code, char16_t zero) {
    QString out;
    for (QChar c : code)
        out += QChar(char16_t(zero + c.digitValue()));
    return out;
}
} // namespace

TEST_F(GuardianTest, VerifyReadsArabicDigitsAndTheThreeStepWindow) {
    Guardian::save(rfcKey);
    const QDateTime now = epoch(1740000015);
    const QString c = Guardian::code(rfcKey, now);
    const QString arabic = inDigits(c, 0x0660), persian = inDigits(c, 0x06F0),
                  devanagari = inDigits(c, 0x0966);
    const QString wrongCode = QChar('0' + (c[0].digitValue() + 5) % 10) + c.mid(1);
    const struct {
        const char* what;
        QString typed;
        bool ok;
    } rows[] = {
        {"Western", c, true},
        {"a space between the halves", c.left(3) + " " + c.mid(3), true},
        {"dashes around", "-" + c + "-", true},
        {"Arabic-Indic", arabic, true},
        {"Extended Arabic-Indic", persian, true},
        {"the three sets mixed", arabic.left(2) + persian.mid(2, 2) + c.mid(4), true},
        {"Extended halves, no-break space", persian.left(3) + QChar(0xA0) + persian.mid(3), true},
        {"one step back", Guardian::code(rfcKey, now.addSecs(-30)), true},
        {"one step ahead, Arabic-Indic", inDigits(Guardian::code(rfcKey, now.addSecs(30)), 0x0660),
         true},
        {"two steps back", Guardian::code(rfcKey, now.addSecs(-60)), false},
        {"five digits", c.left(5), false},
        {"five Arabic-Indic digits", arabic.left(5), false},
        {"seven digits", c + "0", false},
        {"seven, the last Extended", c + QChar(0x06F0), false},
        {"a wrong code, Arabic-Indic", inDigits(wrongCode, 0x0660), false},
        {"Devanagari", devanagari, false},
        {"one Devanagari digit", c.left(5) + devanagari.mid(5), false},
        {"Arabic-Indic and a Devanagari digit", arabic + devanagari.left(1), false},
    };
    for (const auto& row : rows) {
        Guardian::resetFailuresForTesting();
        EXPECT_EQ(Guardian::verify(row.typed, now), row.ok ? Check::ok : Check::wrong) << row.what;
        // The same check without bookkeeping, as the set-up uses it on an unsaved secret.
        EXPECT_EQ(Guardian::matches(rfcKey, row.typed, now), row.ok) << row.what;
    }
    const QByteArray other = Guardian::newSecret();
    EXPECT_TRUE(Guardian::matches(other, inDigits(Guardian::code(other, now), 0x06F0), now));
}

TEST_F(GuardianTest, FiveFailuresLockOutUntilTheOldestIsFiveMinutesOld) {
    // Without a secret every attempt is wrong and counts.
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Guardian::verify("123456", epoch(1740000000)), Check::wrong);
    EXPECT_EQ(Guardian::verify("123456", epoch(1740000000)), Check::tooManyTries);
    // The times live in an owner-only file: a new process reading it is still locked out.
    const QString failures = supportPath(".guardian-failures");
    EXPECT_EQ(fileMode(failures), 0600u);
    const QByteArray kept = readWholeFile(failures).value_or("");
    Guardian::resetFailuresForTesting();
    test::writeSupportFile(".guardian-failures", kept);
    EXPECT_EQ(Guardian::verify("123456", epoch(1740000299)), Check::tooManyTries);

    Guardian::resetFailuresForTesting();
    Guardian::save(rfcKey);
    const QDateTime midnight = QDateTime(QDate(2025, 3, 1), QTime(0, 0), QTimeZone::utc());
    for (int i = 0; i < 5; ++i) {
        const QDateTime at = midnight.addSecs(i * 10);
        ASSERT_EQ(Guardian::verify(Guardian::code(rfcKey, at.addSecs(3600)), at), Check::wrong);
    }
    const QDateTime before = midnight.addSecs(4 * 60 + 59);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, before), before), Check::tooManyTries);
    // Refused attempts are not counted, so the window opens exactly 300 s after the first.
    const QDateTime open = midnight.addSecs(300);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, open), open), Check::ok);

    // A correct code clears the count: four more failures do not lock out.
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Guardian::verify("abc", open), Check::wrong);
    EXPECT_EQ(Guardian::verify(Guardian::code(rfcKey, open), open), Check::ok);
}

TEST_F(GuardianTest, QrMatrixScansBackToTheSetupLink) {
    // The secret of the RFC 6238 vectors in base32.
    EXPECT_EQ(Guardian::otpauthURL(rfcKey),
              "otpauth://totp/Tarvanel:Guardian?secret=GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQ"
              "&issuer=Tarvanel&digits=6&period=30");
    EXPECT_FALSE(Guardian::qrMatrix(QString()).has_value());
    EXPECT_FALSE(Guardian::qrMatrix(QString(5000, u'x')).has_value());
    EXPECT_TRUE(Guardian::qrMatrix(QStringLiteral("ü \u2013 \U0001F4FF")).has_value());

    const QString url = Guardian::otpauthURL(Guardian::newSecret());
    const auto qr = Guardian::qrMatrix(url);
    ASSERT_TRUE(qr.has_value());
    ASSERT_EQ(qr->dark.size(), size_t(qr->size) * size_t(qr->size));
    if (QStandardPaths::findExecutable("zbarimg").isEmpty()) GTEST_SKIP() << "no zbarimg";
    // A plain PGM: 8 pixels per module and a 4-module quiet zone.
    const int scale = 8, quiet = 4, side = (qr->size + 2 * quiet) * scale;
    QByteArray pgm = "P5\n" + QByteArray::number(side) + " " + QByteArray::number(side) + "\n255\n";
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const int mx = x / scale - quiet, my = y / scale - quiet;
            const bool inside = mx >= 0 && my >= 0 && mx < qr->size && my < qr->size;
            pgm += inside && qr->at(mx, my) ? char(0) : char(255);
        }
    const QString file = test::scratchHome() + "/qr.pgm";
    test::writeFile(file, pgm);
    QProcess zbar;
    zbar.start("zbarimg", {"--raw", "-q", file});
    ASSERT_TRUE(zbar.waitForFinished(20000));
    EXPECT_EQ(QString::fromUtf8(zbar.readAllStandardOutput()).trimmed(), url);
}
