#include "records/UserDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace tarvanel {
namespace {
const char* const pausedKey = "pausedUntil";
const char* const travellingKey = "travellingUntil";
const char* const languageKey = "language";
} // namespace

QString UserDefaults::folder() {
    QString base = qEnvironmentVariable("XDG_CONFIG_HOME");
    // The XDG rules ignore a relative path.
    if (base.isEmpty() || QDir::isRelativePath(base))
        base = QDir::homePath() + QStringLiteral("/.config");
    return base + QStringLiteral("/com.velmora.tarvanel");
}

QString UserDefaults::defaultPath() {
    return folder() + QStringLiteral("/settings.ini");
}

UserDefaults::UserDefaults() : UserDefaults(defaultPath()) {}

UserDefaults::UserDefaults(const QString& iniPath)
    : path_(iniPath), settings_(std::make_unique<QSettings>(iniPath, QSettings::IniFormat)) {}

UserDefaults::~UserDefaults() = default;

std::optional<QDateTime> UserDefaults::pausedUntil() const {
    return instant(pausedKey);
}
std::optional<QDateTime> UserDefaults::travellingUntil() const {
    return instant(travellingKey);
}
void UserDefaults::setPausedUntil(const std::optional<QDateTime>& until) {
    setInstant(pausedKey, until);
}
void UserDefaults::setTravellingUntil(const std::optional<QDateTime>& until) {
    setInstant(travellingKey, until);
}

QString UserDefaults::language() const {
    settings_->sync();
    return settings_->value(QLatin1String(languageKey)).toString();
}

void UserDefaults::setLanguage(const QString& code) {
    if (code.isEmpty())
        settings_->remove(QLatin1String(languageKey));
    else
        settings_->setValue(QLatin1String(languageKey), code);
    settings_->sync();
}

std::optional<QDateTime> UserDefaults::instant(const char* key) const {
    // Another process (or a hand edit) may have changed the file since the last read.
    settings_->sync();
    const QVariant value = settings_->value(QLatin1String(key));
    if (value.typeId() != QMetaType::QString) return std::nullopt;
    const QDateTime t = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
    if (!t.isValid()) return std::nullopt;
    return t.toUTC();
}

void UserDefaults::setInstant(const char* key, const std::optional<QDateTime>& value) {
    if (value && value->isValid())
        settings_->setValue(QLatin1String(key), value->toUTC().toString(Qt::ISODateWithMs));
    else
        settings_->remove(QLatin1String(key));
    settings_->sync();
}

void UserDefaults::removeAll() {
    settings_->clear();
    settings_->sync();
    QFile::remove(path_);
    const QString dir = QFileInfo(path_).absolutePath();
    if (dir == folder()) QDir(dir).removeRecursively();
}

} // namespace tarvanel
