#include "records/LockState.h"
#include "records/StateFiles.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tarvanel {
namespace {
const QString fileName = QStringLiteral("state.json");
} // namespace

QSet<QString> loadCompletedLocks() {
    const auto doc = jsonLoad(fileName);
    if (!doc || !doc->isArray()) return {};
    QSet<QString> keys;
    for (const QJsonValue& v : doc->array()) {
        if (!v.isString()) return {}; // one wrong element spoils the whole array
        keys.insert(v.toString());
    }
    return keys;
}

void saveCompletedLocks(const QSet<QString>& completedLocks) {
    ensureSupportDir();
    QJsonArray array;
    for (const QString& key : completedLocks)
        array.append(key);
    writeFilePlain(supportPath(fileName), QJsonDocument(array).toJson(QJsonDocument::Compact));
}

} // namespace tarvanel
