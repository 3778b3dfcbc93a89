#pragma once
// Offline city search over the GeoNames cities that libgeonames ships. The table is read into
// memory (in the background) while the settings window is open, then each query is folded (case,
// accents, common English spellings), optionally narrowed by ", state or country", and the most
// populous match wins.
#include "settings/SettingsTypes.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace tarvanel {

// Lower case, accents and other marks removed, "ß" as "ss", runs of blanks and dashes as one
// blank: "Köln" and "KOLN" both give "koln".
QString foldPlaceName(const QString& text);

// Places of `cities` matching `query`, best first: exact names before names that merely start
// with the query, each group by population. At most `limit` results.
QList<GeoPlace> matchCities(const QList<GeoPlace>& cities, const QString& query, int limit = 10);

// The cities libgeonames knows (about 24,000) with their folded names, in memory only while
// something holds it: the settings window's geocoder does, so the agent frees the table when
// that window closes.
class CityTable {
public:
    // The table, read now unless a holder keeps it already. Thread-safe.
    static std::shared_ptr<const CityTable> shared();
    // Whether a holder keeps it in memory now.
    static bool inMemory();

    const QList<GeoPlace>& places() const { return places_; }
    // matchCities over the table, with the names folded once.
    QList<GeoPlace> match(const QString& query, int limit = 10) const;

private:
    QList<GeoPlace> places_;
    QStringList folded_;
};

class GeonamesGeocoder : public Geocoder {
public:
    // Starts reading the table in the background, so the first search is quick too. The table
    // stays while the geocoder or a search it started is alive.
    GeonamesGeocoder();
    void geocode(const QString& text, QObject* context,
                 std::function<void(QList<GeoPlace>)> answer) override;

private:
    struct Holder;
    std::shared_ptr<Holder> holder_;
};

} // namespace tarvanel
