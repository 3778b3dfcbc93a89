#pragma once
// Offline city search over the GeoNames cities that libgeonames ships. The table is read once
// into memory (in the background), then each query is folded (case, accents, common English
// spellings), optionally narrowed by ", state or country", and the most populous match wins.
#include "settings/SettingsTypes.h"

#include <QList>
#include <QString>

namespace tarvanel {

// Lower case, accents and other marks removed, "ß" as "ss", runs of blanks and dashes as one
// blank: "Köln" and "KOLN" both give "koln".
QString foldPlaceName(const QString& text);

// Places of `cities` matching `query`, best first: exact names before names that merely start
// with the query, each group by population. At most `limit` results.
QList<GeoPlace> matchCities(const QList<GeoPlace>& cities, const QString& query, int limit = 10);

// Every city libgeonames knows (about 24,000); read once, thread-safe.
const QList<GeoPlace>& geonamesCities();

class GeonamesGeocoder : public Geocoder {
public:
    // Starts reading the table in the background, so the first search is quick too.
    static void warmUp();
    void geocode(const QString& text, QObject* context,
                 std::function<void(QList<GeoPlace>)> answer) override;
};

} // namespace tarvanel
