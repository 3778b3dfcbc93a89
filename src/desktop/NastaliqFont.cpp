#include "desktop/NastaliqFont.h"

#include <QFile>
#include <QFontDatabase>
#include <QtEndian>

namespace tarvanel {
namespace {

quint16 u16(const QByteArray& d, qsizetype at) {
    return at >= 0 && at + 2 <= d.size() ? qFromBigEndian<quint16>(d.constData() + at) : 0;
}

quint32 u32(const QByteArray& d, qsizetype at) {
    return at >= 0 && at + 4 <= d.size() ? qFromBigEndian<quint32>(d.constData() + at) : 0;
}

qsizetype tableOffset(const QByteArray& d, const char tag[4]) {
    const int tables = u16(d, 4);
    for (int i = 0; i < tables; ++i) {
        const qsizetype rec = 12 + 16 * i;
        if (d.mid(rec, 4) == QByteArray(tag, 4)) return u32(d, rec + 8);
    }
    return -1;
}

void plainAnchor(QByteArray& d, qsizetype anchor) {
    if (u16(d, anchor) == 2) // format 2 = format 1 (x, y) plus a contour point number
        qToBigEndian<quint16>(1, d.data() + anchor);
}

void plainCursiveAnchors(QByteArray& d, qsizetype sub) {
    const int records = u16(d, sub + 4);
    for (int i = 0; i < records; ++i) {
        for (int side = 0; side < 2; ++side) { // entry, exit
            const quint16 off = u16(d, sub + 6 + 4 * i + 2 * side);
            if (off) plainAnchor(d, sub + off);
        }
    }
}

// Renames the family (name ids 1, 4, 16) in place so the copy cannot be confused with the
// system face of the same name; the new name must not be longer than the old one.
void renameFamily(QByteArray& d, const QString& from, const QString& to) {
    const qsizetype name = tableOffset(d, "name");
    if (name < 0) return;
    const int count = u16(d, name + 2);
    const qsizetype strings = name + u16(d, name + 4);
    for (int i = 0; i < count; ++i) {
        const qsizetype rec = name + 6 + 12 * i;
        const int platform = u16(d, rec);
        const int id = u16(d, rec + 6);
        const int length = u16(d, rec + 8);
        const qsizetype at = strings + u16(d, rec + 10);
        if ((id != 1 && id != 4 && id != 16) || at + length > d.size()) continue;
        const bool utf16 = platform == 0 || platform == 3;
        QString text;
        if (utf16) {
            for (int c = 0; c + 1 < length; c += 2)
                text += QChar(u16(d, at + c));
        } else {
            text = QString::fromLatin1(d.constData() + at, length);
        }
        if (!text.contains(from)) continue;
        text.replace(from, to);
        QByteArray bytes;
        if (utf16) {
            for (QChar c : std::as_const(text)) {
                bytes += char(c.unicode() >> 8);
                bytes += char(c.unicode() & 0xff);
            }
        } else {
            bytes = text.toLatin1();
        }
        if (bytes.size() > length) continue;
        d.replace(at, bytes.size(), bytes);
        qToBigEndian<quint16>(quint16(bytes.size()), d.data() + rec + 8);
    }
}

} // namespace

QByteArray nastaliqWithPlainAnchors(const QString& fontFile) {
    QFile file(fontFile);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray d = file.readAll();
    // Offsets are read from the file itself: every read is bounds-checked (u16/u32 give 0 past
    // the end), and only the two bytes of an anchor's format are written.
    const qsizetype gpos = tableOffset(d, "GPOS");
    if (gpos < 0) return d;
    const qsizetype lookups = gpos + u16(d, gpos + 8);
    const int lookupCount = u16(d, lookups);
    for (int l = 0; l < lookupCount; ++l) {
        const qsizetype lookup = lookups + u16(d, lookups + 2 + 2 * l);
        const int type = u16(d, lookup);
        const int subCount = u16(d, lookup + 4);
        for (int s = 0; s < subCount; ++s) {
            qsizetype sub = lookup + u16(d, lookup + 6 + 2 * s);
            int subType = type;
            if (type == 9) { // extension: real type and a 32-bit offset
                subType = u16(d, sub + 2);
                sub += u32(d, sub + 4);
            }
            if (subType == 3) plainCursiveAnchors(d, sub);
        }
    }
    return d;
}

QString nastaliqFamily() {
    // The system Bold face claims the same weight and has the same stale points: only the
    // Regular face is used (bold Urdu is drawn emboldened).
    static const QString family = [] {
        QByteArray data = nastaliqWithPlainAnchors(
            QStringLiteral("/usr/share/fonts/truetype/noto/NotoNastaliqUrdu-Regular.ttf"));
        renameFamily(data, QStringLiteral("Noto Nastaliq Urdu"),
                     QStringLiteral("Tarvanel Nastaliq"));
        const int id = data.isEmpty() ? -1 : QFontDatabase::addApplicationFontFromData(data);
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        return families.isEmpty() ? QString() : families.first();
    }();
    return family;
}

} // namespace tarvanel
