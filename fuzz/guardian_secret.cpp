// Any bytes as the .guardian file: the decoder accepts only canonical base64, and whatever it
// accepts gives codes and a setup link.
#include "FuzzHome.h"
#include "guardian/Guardian.h"
#include <QTimeZone>

using namespace tarvanel;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::setUpHome();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto decoded = Guardian::decodeSecret(text);
    if (decoded) {
        if (!QString::fromUtf8(text).contains(QString::fromLatin1(decoded->toBase64()))) abort();
        const QDateTime at = QDateTime::fromSecsSinceEpoch(1740000000, QTimeZone::utc());
        if (Guardian::code(*decoded, at).size() != 6) abort();
        if (!Guardian::matches(*decoded, Guardian::code(*decoded, at), at)) abort();
        (void)Guardian::otpauthURL(*decoded);
    }
    // The same bytes through the file and the lock-screen check.
    fuzz::writeSupportFile(QStringLiteral(".guardian"), data, size);
    if (Guardian::secret() != decoded) abort();
    Guardian::resetFailuresForTesting();
    (void)Guardian::verify(QString::fromUtf8(text.left(64)), QDateTime::currentDateTimeUtc());
    return 0;
}
