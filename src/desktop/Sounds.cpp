#include "desktop/Sounds.h"

#include "base/Log.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QUrl>

namespace tarvanel {

std::optional<QString> soundThemeEvent(const QString& name) {
    if (name == QLatin1String("Blow")) return QStringLiteral("alarm-clock-elapsed");
    if (name == QLatin1String("Glass")) return QStringLiteral("complete");
    if (name == QLatin1String("Sosumi")) return QStringLiteral("dialog-warning");
    return std::nullopt;
}

std::optional<QString> soundThemeFile(const QString& event, const QStringList& dataDirs) {
    for (const QString& dir : dataDirs)
        for (const char* ext : {".oga", ".ogg", ".wav"}) {
            const QString path =
                dir + QStringLiteral("/sounds/freedesktop/stereo/") + event + QLatin1String(ext);
            if (QFileInfo(path).isFile()) return path;
        }
    return std::nullopt;
}

bool looksLikeAudio(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) return false;
    // By content, so a renamed text file is not taken for a sound.
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent);
    return type.name().startsWith(QLatin1String("audio/")) ||
           type.inherits(QStringLiteral("audio/mpeg")) ||
           type.inherits(QStringLiteral("audio/mp4"));
}

Sounds::Sounds(QObject* parent, bool needDevice) : QObject(parent), needDevice_(needDevice) {}
Sounds::~Sounds() = default;

bool Sounds::haveDevice() {
    if (!needDevice_ || !QMediaDevices::defaultAudioOutput().isNull()) return true;
    if (!noDeviceLogged_) {
        logLine(lcSound, QStringLiteral("Tarvanel: no sound device; sounds are skipped"));
        noDeviceLogged_ = true;
    }
    return false;
}

bool Sounds::start(QMediaPlayer*& player, QAudioOutput*& output, const QString& path) {
    if (!haveDevice()) return true; // a file that is fine stays the chosen sound, unheard
    if (!player) {
        player = new QMediaPlayer(this);
        output = new QAudioOutput(this);
        player->setAudioOutput(output);
        connect(player, &QMediaPlayer::errorOccurred, this,
                [this, player](QMediaPlayer::Error, const QString& message) {
                    failed(player, message);
                });
        // Some undecodable files end as invalid media without an error.
        connect(player, &QMediaPlayer::mediaStatusChanged, this,
                [this, player](QMediaPlayer::MediaStatus status) {
                    if (status == QMediaPlayer::InvalidMedia)
                        failed(player, QStringLiteral("not playable"));
                });
    }
    player->stop();
    player->setSource(QUrl::fromLocalFile(path));
    player->play();
    emit started(path);
    return true;
}

void Sounds::playNamed(const QString& name) {
    const auto event = soundThemeEvent(name);
    if (!event) return;
    const auto file = soundThemeFile(
        *event, QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation));
    if (!file) {
        logLine(lcSound, QStringLiteral("Tarvanel: sound ") + *event +
                             QStringLiteral(" is not installed (sound-theme-freedesktop)"));
        return;
    }
    start(chime_, chimeOut_, *file);
}

void Sounds::stopFile() {
    if (adhan_) adhan_->stop();
}

bool Sounds::playFile(const QString& path) {
    if (!looksLikeAudio(path)) return false;
    adhanPending_ = true;
    return start(adhan_, adhanOut_, path);
}

void Sounds::failed(QMediaPlayer* player, const QString& why) {
    const bool adhan = player == adhan_;
    if (adhan && !adhanPending_) return; // the error and the status both report one file
    logLine(lcSound, QStringLiteral("Tarvanel: cannot play ") + player->source().toLocalFile() +
                         QStringLiteral(": ") + why);
    if (!adhan) return;
    adhanPending_ = false;
    // The same sound the lock plays when there is no adhan file at all.
    playNamed(QStringLiteral("Blow"));
}

} // namespace tarvanel
