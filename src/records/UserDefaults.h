#pragma once
// The per-user key–value store for the two mode instants ("pausedUntil", "travellingUntil") and
// the language chosen in Settings ("language"):
// an INI file under $XDG_CONFIG_HOME/com.velmora.tarvanel/ (~/.config when unset).
#include <QDateTime>
#include <QString>
#include <memory>
#include <optional>

class QSettings;

namespace tarvanel {

class UserDefaults {
public:
    UserDefaults();                                // the per-user file
    explicit UserDefaults(const QString& iniPath); // any file (tests)
    ~UserDefaults();
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

    // $XDG_CONFIG_HOME/com.velmora.tarvanel (or ~/.config/com.velmora.tarvanel).
    static QString folder();
    static QString defaultPath(); // folder()/settings.ini

    // A missing value, or one that is not an instant, reads as absent.
    std::optional<QDateTime> pausedUntil() const;
    std::optional<QDateTime> travellingUntil() const;
    // Absent removes the key. Written to disk at once.
    void setPausedUntil(const std::optional<QDateTime>& until);
    void setTravellingUntil(const std::optional<QDateTime>& until);

    // The language code chosen in Settings; empty for the system's.
    QString language() const;
    void setLanguage(const QString& code);

    // Uninstall with "delete data": the keys and the folder go.
    void removeAll();

private:
    std::optional<QDateTime> instant(const char* key) const;
    void setInstant(const char* key, const std::optional<QDateTime>& value);

    QString path_;
    std::unique_ptr<QSettings> settings_;
};

} // namespace tarvanel
