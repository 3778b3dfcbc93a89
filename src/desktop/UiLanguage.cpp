#include "desktop/UiLanguage.h"

#include "base/Language.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace tarvanel {
namespace {

// Arabic in Naskh and Urdu in Nastaliq, named first: a Latin family's own Arabic glyphs (DejaVu
// has some) would otherwise win, and Urdu in a Naskh face reads as foreign.
QStringList scriptFamilies(const QString& code) {
    if (code == QLatin1String("ar")) return {QStringLiteral("Noto Naskh Arabic")};
    if (code == QLatin1String("ur")) return {QStringLiteral("Noto Nastaliq Urdu")};
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
