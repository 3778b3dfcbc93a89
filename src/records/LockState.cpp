#include "records/LockState.h"
#include "base/Store.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tarvanel {
namespace {
const QString fileName = QStringLiteral("state.json");

std::optional<QSet<QString>> decode(const QJsonDocument& doc) {
    if (!doc.isArray()) return std::nullopt;
    QSet<QString> keys;
    for (const QJsonValue& v : doc.array()) {
        if (!v.isString()) return std::nullopt; // one wrong element spoils the whole array
        keys.insert(v.toString());
    }
    return keys;
}

QJsonDocument encode(const QSet<QString>& keys) {
    return QJsonDocument(QJsonArray::fromStringList(QStringList(keys.begin(), keys.end())));
}

JsonStore<QSet<QString>>& store() {
    static JsonStore<QSet<QString>> s(fileName, decode, encode, QJsonDocument::Compact);
    return s;
}
} // namespace

QSet<QString> loadCompletedLocks() {
    return store().load();
}

void saveCompletedLocks(const QSet<QString>& completedLocks) {
    store().save(completedLocks);
}

} // namespace tarvanel
