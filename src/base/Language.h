#pragma once
// Which language the texts are in, and the catalogues that put them there. Every text's source is
// English; an English catalogue carries only the singular forms of counted texts.
#include <QList>
#include <QString>
#include <functional>

namespace tarvanel {

struct LanguageChoice {
    QString code;       // "ar", "fr", …; empty for "System"
    QString nativeName; // the language named in itself
};

// "System" first, then every language the program speaks.
QList<LanguageChoice> languageChoices();

// The language of the texts for a setting: the setting when the program has it, otherwise the
// first of LANGUAGE, LC_ALL, LC_MESSAGES and LANG that it has; English for C, POSIX or any
// language it lacks. Always one of languageChoices()' codes, or "en".
QString resolveLanguage(const QString& setting);

// Installs the catalogues of resolveLanguage(setting) (replacing earlier ones) and makes numbers,
// times and dates follow it. Needs a QCoreApplication. Returns the language code applied.
QString applyLanguage(const QString& setting);

// Runs `make` with the texts, numbers and times in English, for a log line built from texts the
// user also sees; the language is back when it returns.
QString inEnglish(const std::function<QString()>& make);

// True for the languages written right to left.
bool isRightToLeft(const QString& code);

} // namespace tarvanel
