#include "settings/CitySearch.h"

// GLib uses "signals" as a field name; Qt defines it as a keyword.
#pragma push_macro("signals")
#undef signals
#include <geonames.h>
#pragma pop_macro("signals")

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QThreadPool>
#include <algorithm>
#include <malloc.h>
#include <mutex>

namespace tarvanel {

namespace {

// English spellings people type → the folded names GeoNames stores.
const QHash<QString, QStringList>& aliases() {
    static const QHash<QString, QStringList> table{
        {QStringLiteral("mecca"), {QStringLiteral("makkah")}},
        {QStringLiteral("makka"), {QStringLiteral("makkah")}},
        {QStringLiteral("madinah"), {QStringLiteral("medina")}},
        {QStringLiteral("al madinah"), {QStringLiteral("medina")}},
        {QStringLiteral("koln"), {QStringLiteral("cologne")}},
        {QStringLiteral("koeln"), {QStringLiteral("cologne")}},
        {QStringLiteral("munchen"), {QStringLiteral("munich")}},
        {QStringLiteral("muenchen"), {QStringLiteral("munich")}},
        {QStringLiteral("wien"), {QStringLiteral("vienna")}},
        {QStringLiteral("praha"), {QStringLiteral("prague")}},
        {QStringLiteral("roma"), {QStringLiteral("rome")}},
        {QStringLiteral("lisboa"), {QStringLiteral("lisbon")}},
        {QStringLiteral("al quds"), {QStringLiteral("jerusalem")}},
        {QStringLiteral("bombay"), {QStringLiteral("mumbai")}},
        {QStringLiteral("calcutta"), {QStringLiteral("kolkata")}},
        {QStringLiteral("madras"), {QStringLiteral("chennai")}},
        {QStringLiteral("dacca"), {QStringLiteral("dhaka")}},
        {QStringLiteral("peking"), {QStringLiteral("beijing")}},
        {QStringLiteral("constantinople"), {QStringLiteral("istanbul")}},
        {QStringLiteral("new york city"), {QStringLiteral("new york")}},
        {QStringLiteral("nyc"), {QStringLiteral("new york")}},
        {QStringLiteral("jiddah"), {QStringLiteral("jeddah")}},
    };
    return table;
}

// Countries typed by a short or everyday name.
const QHash<QString, QString>& countryAliases() {
    static const QHash<QString, QString> table{
        {QStringLiteral("uk"), QStringLiteral("gb")},
        {QStringLiteral("england"), QStringLiteral("gb")},
        {QStringLiteral("britain"), QStringLiteral("gb")},
        {QStringLiteral("usa"), QStringLiteral("us")},
        {QStringLiteral("america"), QStringLiteral("us")},
        {QStringLiteral("uae"), QStringLiteral("ae")},
        {QStringLiteral("ksa"), QStringLiteral("sa")},
    };
    return table;
}

bool qualifies(const GeoPlace& p, const QString& qualifier) {
    const QString q = foldPlaceName(qualifier);
    if (q.isEmpty()) return true;
    const QString code = countryAliases().value(q, q);
    return foldPlaceName(p.country).startsWith(q) || foldPlaceName(p.administrativeArea) == q ||
           foldPlaceName(p.isoCountryCode) == code;
}

// Every city in GeoNames order; read in one go.
QList<GeoPlace> readCities() {
    QList<GeoPlace> places;
    const int n = geonames_get_n_cities();
    places.reserve(n);
    for (int i = 0; i < n; ++i) {
        GeonamesCity* c = geonames_get_city(i);
        if (!c) continue;
        GeoPlace p;
        p.name = QString::fromUtf8(geonames_city_get_name(c));
        p.locality = p.name;
        p.administrativeArea = QString::fromUtf8(geonames_city_get_state(c));
        p.country = QString::fromUtf8(geonames_city_get_country(c));
        p.isoCountryCode = QString::fromUtf8(geonames_city_get_country_code(c));
        p.timeZone = QString::fromUtf8(geonames_city_get_timezone(c));
        p.latitude = geonames_city_get_latitude(c);
        p.longitude = geonames_city_get_longitude(c);
        p.population = geonames_city_get_population(c);
        geonames_city_free(c);
        places << p;
    }
    return places;
}

// `folded` holds the places' folded names when the caller has them (the city table).
QList<GeoPlace> matchPlaces(const QList<GeoPlace>& cities, const QStringList* folded,
                            const QString& query, int limit) {
    const qsizetype comma = query.indexOf(u',');
    const QString qualifier = comma < 0 ? QString() : query.mid(comma + 1);
    const QString name = foldPlaceName(comma < 0 ? query : query.left(comma));
    if (name.isEmpty()) return {};
    QStringList wanted = aliases().value(name);
    if (!wanted.contains(name)) wanted.prepend(name);

    struct Hit {
        int rank; // 0: the name itself, 1: the name starts with it
        const GeoPlace* place;
    };
    QList<Hit> hits;
    for (qsizetype i = 0; i < cities.size(); ++i) {
        const QString candidate = folded ? folded->at(i) : foldPlaceName(cities[i].name);
        int rank = -1;
        for (const QString& w : wanted) {
            if (candidate == w)
                rank = 0;
            else if (rank < 0 && candidate.startsWith(w))
                rank = 1;
        }
        if (rank >= 0 && qualifies(cities[i], qualifier)) hits.append({rank, &cities[i]});
    }
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) {
        if (a.rank != b.rank) return a.rank < b.rank;
        return a.place->population > b.place->population;
    });
    QList<GeoPlace> out;
    for (const Hit& h : hits) {
        if (out.size() >= limit) break;
        out << *h.place;
    }
    return out;
}

std::mutex tableMutex;
std::weak_ptr<const CityTable> liveTable;

} // namespace

QString foldPlaceName(const QString& text) {
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString out;
    out.reserve(decomposed.size());
    bool blank = false;
    for (QChar ch : decomposed) {
        if (ch.isMark()) continue;
        if (ch == u'ß') {
            out += QStringLiteral("ss");
        } else if (ch.isSpace() || ch == u'-' || ch == u'\'' || ch == u'.' || ch == u'’') {
            blank = !out.isEmpty();
            continue;
        } else {
            if (blank) out += u' ';
            out += ch.toLower();
        }
        blank = false;
    }
    return out;
}

QList<GeoPlace> matchCities(const QList<GeoPlace>& cities, const QString& query, int limit) {
    return matchPlaces(cities, nullptr, query, limit);
}

std::shared_ptr<const CityTable> CityTable::shared() {
    const std::lock_guard lock(tableMutex);
    if (std::shared_ptr<const CityTable> table = liveTable.lock()) return table;
    auto* table = new CityTable;
    table->places_ = readCities();
    table->folded_.reserve(table->places_.size());
    for (const GeoPlace& p : std::as_const(table->places_))
        table->folded_ << foldPlaceName(p.name);
    // Some 24,000 small strings: hand the freed pages back, or the agent keeps them anyway.
    std::shared_ptr<const CityTable> held(table, [](const CityTable* t) {
        delete t;
        ::malloc_trim(0);
    });
    liveTable = held;
    return held;
}

bool CityTable::inMemory() {
    const std::lock_guard lock(tableMutex);
    return !liveTable.expired();
}

QList<GeoPlace> CityTable::match(const QString& query, int limit) const {
    return matchPlaces(places_, &folded_, query, limit);
}

// The geocoder's hold on the table, shared with the searches it started.
struct GeonamesGeocoder::Holder {
    std::mutex mutex;
    std::shared_ptr<const CityTable> table;
    std::shared_ptr<const CityTable> get() {
        const std::lock_guard lock(mutex);
        if (!table) table = CityTable::shared();
        return table;
    }
};

GeonamesGeocoder::GeonamesGeocoder() : holder_(std::make_shared<Holder>()) {
    QThreadPool::globalInstance()->start([holder = holder_] { holder->get(); });
}

void GeonamesGeocoder::geocode(const QString& text, QObject* context,
                               std::function<void(QList<GeoPlace>)> answer) {
    QPointer<QObject> weak(context);
    QThreadPool::globalInstance()->start(
        [holder = holder_, text, weak, answer = std::move(answer)] {
            QList<GeoPlace> places = holder->get()->match(text);
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [weak, answer, places = std::move(places)] {
                    if (weak) answer(places);
                },
                Qt::QueuedConnection);
        });
}

} // namespace tarvanel
