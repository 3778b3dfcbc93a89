#pragma once
// ~/.tarvanel/config.json: the settings record on disk.
#include "engine/Config.h"

#include <QString>
#include <optional>

namespace tarvanel {

// Reads configURL(); never fails (see the fall-back rules in Config.cpp).
Config loadConfig();
// Pretty, key-sorted, atomic; failures are swallowed.
void saveConfig(const Config& config);

// Why the last read of config.json failed ("line 3: latitude: expected a number, found text");
// absent after a read that decoded or found no file.
const std::optional<QString>& lastConfigError();

// The last config that decoded in this process (absent until one did).
const std::optional<Config>& lastGoodConfig();
void resetLastGoodConfigForTesting();

} // namespace tarvanel
