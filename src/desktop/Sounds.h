#pragma once
// Sounds: the adhan from a file, and the three named event sounds from the freedesktop sound
// theme. No sound device, a missing theme file or a missing decoder is one log line and silence.
#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>

class QMediaPlayer;
class QAudioOutput;

namespace tarvanel {

// "Blow" → alarm-clock-elapsed, "Glass" → complete, "Sosumi" → dialog-warning.
std::optional<QString> soundThemeEvent(const QString& name);
// The event's file in the freedesktop theme under the given data folders (.oga, .ogg, .wav).
std::optional<QString> soundThemeFile(const QString& event, const QStringList& dataDirs);
// True when the file exists and its content looks like audio.
bool looksLikeAudio(const QString& path);

class Sounds : public QObject {
    Q_OBJECT
public:
    // Without `needDevice` the players run even with no sound device (unheard), as tests do.
    explicit Sounds(QObject* parent = nullptr, bool needDevice = true);
    ~Sounds() override;

    void playNamed(const QString& name);
    // False when the file is missing or is not audio. A file the player then fails to decode
    // is logged and the "Blow" chime plays in its place, so a lock never starts silent.
    bool playFile(const QString& path);
    void stopFile();

signals:
    // A player was handed this file.
    void started(const QString& path);

private:
    bool start(QMediaPlayer*& player, QAudioOutput*& output, const QString& path);
    bool haveDevice();
    void failed(QMediaPlayer* player, const QString& why);

    QMediaPlayer* adhan_ = nullptr;
    QAudioOutput* adhanOut_ = nullptr;
    QMediaPlayer* chime_ = nullptr;
    QAudioOutput* chimeOut_ = nullptr;
    bool needDevice_;
    bool noDeviceLogged_ = false;
    bool adhanPending_ = false; // the adhan was started and has not failed yet
};

} // namespace tarvanel
