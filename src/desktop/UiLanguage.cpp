#include "desktop/UiLanguage.h"

#include "base/Language.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace tarvanel {
namespace {

// Arabic and Urdu in Naskh, named first: a Latin family's own Arabic glyphs (DejaVu has some)
// would otherwise win. Urdu's own Nastaliq face is not used: Qt (6.4 and 6.8 alike) draws Noto
// Nastaliq Urdu with its marks and cursive joins misplaced, where HarfBuzz alone draws it right,
// and a legible Naskh beats a garbled Nastaliq.
QStringList scriptFamilies(const QString& code) {
    if (isRightToLeft(code)) return {QStringLiteral("Noto Naskh Arabic")};
    return {};
}

} // namespace

QString useLanguage(const QString& setting) {
    const QString code = applyLanguage(setting);
    QApplication::setLayoutDirection(isRightToLeft(code) ? Qt::RightToLeft : Qt::LeftToRight);

    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    QStringList families = scriptFamilies(code);
    if (!families.isEmpty()) {
        families.append(font.families().isEmpty() ? QStringList{font.family()} : font.families());
        font.setFamilies(families);
    }
    QApplication::setFont(font);
    return code;
}

} // namespace tarvanel
