#pragma once
#include <QList>
#include <QString>
#include <QStringList>

namespace tarvanel {

struct Quote {
    QString text;
    QString source;
    QStringList prayers; // empty for a general quote
    bool operator==(const Quote&) const = default;
};

const QList<Quote>& quotes();
// Two chances in three of a quote about the prayer; always the specific one for Jumu'ah and
// Tarawih; a general quote otherwise.
Quote pickQuote(const QString& prayer);

} // namespace tarvanel
