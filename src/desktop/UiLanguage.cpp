#include "desktop/UiLanguage.h"

#include "base/Language.h"
#include "desktop/NastaliqFont.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace tarvanel {
namespace {

// Arabic in Naskh and Urdu in Nastaliq, named first: a Latin family's own Arabic glyphs (DejaVu
// has some) would otherwise win. Naskh stays behind Nastaliq for a missing Nastaliq font.
QStringList scriptFamilies(const QString& code) {
    const QString naskh = QStringLiteral("Noto Naskh Arabic");
    if (code == QLatin1String("ar")) return {naskh};
    if (code != QLatin1String("ur")) return {};
    const QString nastaliq = nastaliqFamily();
    return nastaliq.isEmpty() ? QStringList{naskh} : QStringList{nastaliq, naskh};
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
