#include "records/ConfigFile.h"

#include "base/Language.h"
#include "base/Log.h"
#include "base/StateFiles.h"

#include <QJsonDocument>

namespace tarvanel {
namespace {

std::optional<Config>& lastGood() {
    static std::optional<Config> value;
    return value;
}
std::optional<QString>& lastError() {
    static std::optional<QString> value;
    return value;
}

} // namespace

Config loadConfig() {
    const auto bytes = readWholeFile(configURL());
    lastError().reset();
    if (!bytes) return Config();
    QString error;
    if (auto config = decodeConfig(*bytes, &error)) {
        lastGood() = *config;
        return *config;
    }
    lastError() = error;
    // The log stays English whatever the language the user reads the error in.
    const QString logged = inEnglish([&bytes] {
        QString english;
        decodeConfig(*bytes, &english);
        return english;
    });
    logLine(lcSettings,
            QStringLiteral("Tarvanel: config.json is invalid (%1); keeping the last good settings")
                .arg(logged));
    return lastGood().value_or(Config());
}

void saveConfig(const Config& config) {
    ensureSupportDir();
    const auto object = encodeConfig(config);
    if (!object) return;
    writeFileAtomically(configURL(), QJsonDocument(*object).toJson(QJsonDocument::Indented));
}

const std::optional<QString>& lastConfigError() {
    return lastError();
}

const std::optional<Config>& lastGoodConfig() {
    return lastGood();
}
void resetLastGoodConfigForTesting() {
    lastGood().reset();
    lastError().reset();
}

} // namespace tarvanel
