#include "base/Language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>
#include <vector>

namespace tarvanel {
namespace {

struct Known {
    const char* code;
    const char* nativeName;
};

constexpr Known kLanguages[] = {
    {"ar", "العربية"},       {"ur", "اردو"},   {"id", "Bahasa Indonesia"},
    {"ms", "Bahasa Melayu"}, {"tr", "Türkçe"}, {"fr", "Français"},
};

// A test's folder of catalogues (a pseudo-language) is spoken too.
QString testFolder() {
    return qEnvironmentVariable("TARVANEL_TRANSLATIONS");
}

bool speaks(const QString& code) {
    for (const Known& k : kLanguages) {
        if (code == QLatin1String(k.code)) return true;
    }
    return !code.isEmpty() && !testFolder().isEmpty() &&
           QFile::exists(testFolder() + QStringLiteral("/tarvanel_") + code +
                         QStringLiteral(".qm"));
}

// "ar_SA.UTF-8@latin" → "ar"; "C" and "POSIX" → "en".
QString languageOf(QString value) {
    value = value.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    if (value == QLatin1String("C") || value == QLatin1String("POSIX")) return QStringLiteral("en");
    return value.section(QLatin1Char('_'), 0, 0).section(QLatin1Char('-'), 0, 0).toLower();
}

QString fromEnvironment() {
    // LANGUAGE is a list of preferences; the first one spoken wins.
    const QStringList wanted =
        qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString& w : wanted) {
        const QString code = languageOf(w);
        if (speaks(code) || code == QLatin1String("en")) return code;
    }
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(name);
        if (!value.isEmpty()) return languageOf(value);
    }
    return QStringLiteral("en");
}

// The installed catalogues: ours (English forms, then the language) and Qt's own.
std::vector<std::unique_ptr<QTranslator>>& installed() {
    static std::vector<std::unique_ptr<QTranslator>> list;
    return list;
}

void install(const QString& file, const QStringList& folders) {
    auto t = std::make_unique<QTranslator>();
    for (const QString& folder : folders) {
        if (t->load(file, folder)) {
            QCoreApplication::installTranslator(t.get());
            installed().push_back(std::move(t));
            return;
        }
    }
}

} // namespace

QList<LanguageChoice> languageChoices() {
    QList<LanguageChoice> list{{QString(), QCoreApplication::translate("Language", "System")}};
    list.append({QStringLiteral("en"), QStringLiteral("English")});
    for (const Known& k : kLanguages)
        list.append({QLatin1String(k.code), QString::fromUtf8(k.nativeName)});
    return list;
}

QString resolveLanguage(const QString& setting) {
    if (setting == QLatin1String("en") || speaks(setting)) return setting;
    const QString code = fromEnvironment();
    return speaks(code) ? code : QStringLiteral("en");
}

QString applyLanguage(const QString& setting) {
    for (const auto& t : installed())
        QCoreApplication::removeTranslator(t.get());
    installed().clear();

    const QString code = resolveLanguage(setting);
    // Catalogues from the build or the package, or a folder a test points at.
    QStringList folders{QStringLiteral(":/i18n")};
    if (!testFolder().isEmpty()) folders.prepend(testFolder());
    install(QStringLiteral("tarvanel_en"), folders);
    if (code != QLatin1String("en")) {
        install(QStringLiteral("tarvanel_") + code, folders);
        install(QStringLiteral("qtbase_") + code,
                {QLibraryInfo::path(QLibraryInfo::TranslationsPath)});
    }

    // A language chosen in Settings brings its own numbers; "System" keeps the user's locale,
    // whose digits and formats may differ from its messages' language.
    const bool system = !(setting == QLatin1String("en") || speaks(setting));
    QLocale::setDefault(system ? QLocale::system() : QLocale(code));
    return code;
}

QString inEnglish(const std::function<QString()>& make) {
    // The first catalogue is the English one (counted texts); the rest speak the language.
    auto& list = installed();
    for (std::size_t i = 1; i < list.size(); ++i)
        QCoreApplication::removeTranslator(list[i].get());
    const QLocale numbers;
    QLocale::setDefault(QLocale::c());
    const QString text = make();
    QLocale::setDefault(numbers);
    for (std::size_t i = 1; i < list.size(); ++i)
        QCoreApplication::installTranslator(list[i].get());
    return text;
}

bool isRightToLeft(const QString& code) {
    return code == QLatin1String("ar") || code == QLatin1String("ur");
}

} // namespace tarvanel
