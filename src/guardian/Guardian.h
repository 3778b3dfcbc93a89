#pragma once
// The guardian's emergency code: RFC 6238 time-based codes (HMAC-SHA-1, 30 s, 6 digits) over a
// secret kept in ~/.tarvanel/.guardian (base64, owner-only), with a lock-out after failures.
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

namespace tarvanel {

// A QR code as modules: true is dark. The desktop scales it to an image.
struct QrMatrix {
    int size = 0;
    std::vector<bool> dark; // size × size, row by row
    bool at(int x, int y) const { return dark[size_t(y) * size_t(size) + size_t(x)]; }
};

namespace Guardian {

enum class Check { ok, wrong, tooManyTries };

inline constexpr const char* appDisplayName = "Tarvanel";

QString fileURL();      // supportDir()/.guardian
QByteArray newSecret(); // 20 bytes from the system's secure generator
// Atomic write of the base64 text, mode 0600 from the start; a failure is logged.
void save(const QByteArray& secret);
void remove();
// Absent when the file is missing or not strict base64 (surrounding white space allowed); such
// a file is moved aside. A file others may read is made owner-only first.
std::optional<QByteArray> secret();
bool isSet();
// Strict standard base64 (with padding) in UTF-8 text, white space at either end allowed;
// absent for anything else.
std::optional<QByteArray> decodeSecret(const QByteArray& text);

QString base32(const QByteArray& bytes); // RFC 4648, no padding
QString code(const QByteArray& secret, const QDateTime& at);
// The three-step window (at − 30 s, at, at + 30 s) on the digits of `input` (Western, Arabic-Indic
// or Extended Arabic-Indic, mixed as typed; anything else between them ignored, other scripts'
// digits never match); no bookkeeping.
// The settings window checks an unsaved secret with it.
bool matches(const QByteArray& secret, const QString& input, const QDateTime& at);
// The stored secret, the window and the lock-out of 5 failures within 300 s; the failure times
// are kept in .guardian-failures (0600) so a restart does not reset them.
Check verify(const QString& input, const QDateTime& at);
QString otpauthURL(const QByteArray& secret);
// Error-correction level M; absent when the text cannot be encoded.
std::optional<QrMatrix> qrMatrix(const QString& text);

void resetFailuresForTesting();

} // namespace Guardian
} // namespace tarvanel
