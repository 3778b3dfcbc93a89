#include "guardian/Guardian.h"
#include "base/StateFiles.h"
#include "base/Store.h"
#include "engine/Digits.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QList>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <QStringDecoder>
#include <QUrl>
#include <array>
#include <qrencode.h>

namespace tarvanel::Guardian {
namespace {
constexpr int secretBytes = 20;
constexpr qint64 stepSeconds = 30;
constexpr qint64 lockoutMs = 300 * 1000;
constexpr int maxFailures = 5;

std::optional<QList<QDateTime>> decodeFailures(const QJsonDocument& doc) {
    if (!doc.isArray()) return std::nullopt;
    QList<QDateTime> times;
    for (const QJsonValue& v : doc.array()) {
        const auto t = parseIso(v.toString());
        if (!t) return std::nullopt;
        times << *t;
    }
    return times;
}

QJsonDocument encodeFailures(const QList<QDateTime>& times) {
    QJsonArray array;
    for (const QDateTime& t : times)
        array.append(t.toUTC().toString(Qt::ISODateWithMs));
    return QJsonDocument(array);
}

// Beside the secret, so a restart does not reset the lock-out.
JsonStore<QList<QDateTime>>& failures() {
    static JsonStore<QList<QDateTime>> store(QStringLiteral(".guardian-failures"), decodeFailures,
                                             encodeFailures);
    return store;
}

// Numeric characters only, by code point (separators dropped). Arabic-Indic and Extended
// Arabic-Indic digits read as 0–9; other scripts' numerals stay as typed and never match.
QList<char32_t> numerals(const QString& input) {
    QList<char32_t> kept;
    for (char32_t c : input.toUcs4()) {
        if (const int d = digitValue(c); d >= 0)
            kept << char32_t(U'0' + d);
        else if (QChar::isNumber(c))
            kept << c;
    }
    return kept;
}
} // namespace

QString fileURL() {
    return supportPath(QStringLiteral(".guardian"));
}

QByteArray newSecret() {
    std::array<quint32, secretBytes / 4> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char*>(words.data()), secretBytes);
}

void save(const QByteArray& secret) {
    ensureSupportDir();
    writeFileAtomically(fileURL(), secret.toBase64(),
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void remove() {
    QFile::remove(fileURL());
}

std::optional<QByteArray> decodeSecret(const QByteArray& text) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = utf8.decode(text);
    if (utf8.hasError()) return std::nullopt;
    // Any white space at the ends, non-breaking and line separators included.
    const QByteArray trimmed = decoded.trimmed().toUtf8();
    if (trimmed.isEmpty() || trimmed.size() % 4 != 0) return std::nullopt;
    auto result = QByteArray::fromBase64Encoding(trimmed, QByteArray::AbortOnBase64DecodingErrors);
    // Only the canonical text of some bytes counts: no stray bits, no missing padding.
    if (!result || result.decoded.toBase64() != trimmed) return std::nullopt;
    return result.decoded;
}

std::optional<QByteArray> secret() {
    const QString path = fileURL();
    makeOwnerOnly(path);
    QString error;
    const auto bytes = readWholeFile(path, &error);
    if (!bytes) {
        if (QFileInfo(path).isFile()) setAside(path, error);
        return std::nullopt;
    }
    auto decoded = decodeSecret(*bytes);
    if (!decoded) setAside(path, QStringLiteral("not a base64 secret"));
    return decoded;
}

bool isSet() {
    return secret().has_value();
}

QString base32(const QByteArray& bytes) {
    static constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";
    QString out;
    out.reserve((bytes.size() * 8 + 4) / 5);
    quint32 buffer = 0;
    int bits = 0;
    for (char c : bytes) {
        buffer = (buffer << 8) | quint8(c);
        bits += 8;
        while (bits >= 5) {
            out += QLatin1Char(alphabet[(buffer >> (bits - 5)) & 31]);
            bits -= 5;
        }
    }
    if (bits > 0) out += QLatin1Char(alphabet[(buffer << (5 - bits)) & 31]);
    return out;
}

QString code(const QByteArray& secret, const QDateTime& at) {
    // Before 1970 there is no step; such instants share step 0.
    const qint64 seconds = at.toSecsSinceEpoch();
    const quint64 step = seconds < 0 ? 0 : quint64(seconds / stepSeconds);
    char message[8];
    for (int i = 0; i < 8; ++i)
        message[i] = char((step >> (8 * (7 - i))) & 0xFF);
    const QByteArray h =
        QMessageAuthenticationCode::hash(QByteArray(message, 8), secret, QCryptographicHash::Sha1);
    const int o = quint8(h[19]) & 0x0F;
    const quint32 v = (quint32(quint8(h[o]) & 0x7F) << 24) | (quint32(quint8(h[o + 1])) << 16) |
                      (quint32(quint8(h[o + 2])) << 8) | quint32(quint8(h[o + 3]));
    return QString::asprintf("%06u", v % 1000000u);
}

namespace {
bool windowMatches(const QByteArray& secret, const QList<char32_t>& digits, const QDateTime& at) {
    if (digits.size() != 6) return false;
    QString typed;
    for (char32_t c : digits) {
        if (c < U'0' || c > U'9') return false; // other numerals never equal a code
        typed += QLatin1Char(char(c));
    }
    for (qint64 offset : {-stepSeconds, qint64(0), stepSeconds})
        if (code(secret, at.addSecs(offset)) == typed) return true;
    return false;
}
} // namespace

bool matches(const QByteArray& secret, const QString& input, const QDateTime& at) {
    return windowMatches(secret, numerals(input), at);
}

Check verify(const QString& input, const QDateTime& at) {
    QList<QDateTime> failed = failures().load();
    // Times far ahead (a clock set back, a hand edit) must not lock out for ever.
    const qsizetype expired = failed.removeIf([&](const QDateTime& t) {
        return t.msecsTo(at) >= lockoutMs || at.msecsTo(t) >= lockoutMs;
    });
    if (failed.size() >= maxFailures) {
        if (expired) failures().save(failed);
        return Check::tooManyTries;
    }
    const QList<char32_t> digits = numerals(input);
    const auto key = secret();
    if (key && digits.size() == 6 && windowMatches(*key, digits, at)) {
        if (!failed.isEmpty() || expired) failures().save({});
        return Check::ok;
    }
    failed.append(at);
    failures().save(failed);
    return Check::wrong;
}

QString otpauthURL(const QByteArray& secret) {
    const QString name = QLatin1String(appDisplayName);
    // The characters a URL path allows stay as they are (":" among them).
    const QByteArray label =
        QUrl::toPercentEncoding(name + QStringLiteral(":Guardian"), "!$&'()*+,;=:@/");
    return QStringLiteral("otpauth://totp/") + QString::fromLatin1(label) +
           QStringLiteral("?secret=") + base32(secret) + QStringLiteral("&issuer=") + name +
           QStringLiteral("&digits=6&period=30");
}

std::optional<QrMatrix> qrMatrix(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    if (bytes.isEmpty()) return std::nullopt;
    QRcode* qr = QRcode_encodeData(int(bytes.size()),
                                   reinterpret_cast<const unsigned char*>(bytes.constData()), 0,
                                   QR_ECLEVEL_M);
    if (!qr) return std::nullopt;
    QrMatrix m;
    m.size = qr->width;
    m.dark.resize(size_t(qr->width) * size_t(qr->width));
    for (size_t i = 0; i < m.dark.size(); ++i)
        m.dark[i] = (qr->data[i] & 1) != 0;
    QRcode_free(qr);
    return m;
}

void resetFailuresForTesting() {
    failures().remove();
}

} // namespace tarvanel::Guardian
