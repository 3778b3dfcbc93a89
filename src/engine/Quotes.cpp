#include "engine/Quotes.h"

#include <QRandomGenerator>

namespace tarvanel {

const QList<Quote>& quotes() {
    static const QList<Quote> list{
        {"Indeed, performing prayers is a duty on the believers at the appointed times.",
         "Qur'an 4:103",
         {}},
        {"Indeed, prayer restrains from shameful and unjust deeds, and the remembrance of Allah "
         "is greater.",
         "Qur'an 29:45",
         {}},
        {"Seek help through patience and prayer. Indeed, it is burdensome except for the humble.",
         "Qur'an 2:45",
         {}},
        {"Successful indeed are the believers: those who humble themselves in prayer.",
         QString::fromUtf8("Qur'an 23:1\u20132"),
         {}},
        {"Establish prayer for My remembrance.", "Qur'an 20:14", {}},
        {"Verily, in the remembrance of Allah do hearts find rest.", "Qur'an 13:28", {}},
        {"O you who believe! Do not let your wealth or your children divert you from the "
         "remembrance of Allah.",
         "Qur'an 63:9",
         {}},
        {"And enjoin prayer upon your family and be steadfast therein.", "Qur'an 20:132", {}},
        {"The first thing a servant will be asked about on the Day of Judgment is his prayer. If "
         "it is sound, the rest of his deeds will be sound.",
         "Jami` at-Tirmidhi 413",
         {}},
        {QString::fromUtf8("If there were a river at your door in which you bathed five times a "
                           "day, would any dirt remain on you? Such is the example of the five "
                           "daily prayers \u2014 Allah wipes away sins with them."),
         "Sahih al-Bukhari 528",
         {}},
        {"The closest a servant is to his Lord is while he is prostrating.",
         "Sahih Muslim 482",
         {}},
        {"Whoever guards the five prayers, they will be a light, a proof and salvation for him on "
         "the Day of Resurrection.",
         "Musnad Ahmad 6576",
         {}},
        {"The coolness of my eyes is in prayer.", "Sunan an-Nasa'i 3939", {}},
        {"Between a man and shirk and disbelief is the abandonment of prayer.",
         "Sahih Muslim 82",
         {}},
        {"Whoever prays the morning prayer is under the protection of Allah.",
         "Sahih Muslim 657",
         {"Fajr"}},
        {"The two rak'ahs of dawn are better than this world and all it contains.",
         "Sahih Muslim 725",
         {"Fajr"}},
        {QString::fromUtf8(
             "Whoever prays the two cool prayers \u2014 Fajr and Asr \u2014 will enter Paradise."),
         "Sahih al-Bukhari 574",
         {"Fajr", "Asr"}},
        {"Whoever misses the Asr prayer, it is as if he lost his family and his property.",
         "Sahih al-Bukhari 552",
         {"Asr"}},
        {"Whoever prays Isha in congregation, it is as if he prayed half the night; and whoever "
         "prays Fajr in congregation, it is as if he prayed the whole night.",
         "Sahih Muslim 656",
         {"Isha", "Fajr"}},
        {"The best day on which the sun has risen is Friday.", "Sahih Muslim 854", {"Jumu'ah"}},
        {"Whoever prays during the nights of Ramadan out of sincere faith and hoping for reward, "
         "his previous sins will be forgiven.",
         "Sahih al-Bukhari 37",
         {"Tarawih"}},
    };
    return list;
}

Quote pickQuote(const QString& prayer) {
    QRandomGenerator* rng = QRandomGenerator::global();
    QList<const Quote*> specific, general;
    for (const Quote& q : quotes()) {
        if (q.prayers.isEmpty())
            general << &q;
        else if (q.prayers.contains(prayer))
            specific << &q;
    }
    if (!specific.isEmpty()) {
        const bool always =
            prayer == QLatin1String("Tarawih") || prayer == QLatin1String("Jumu'ah");
        if (always || rng->bounded(3) < 2) return *specific[rng->bounded(int(specific.size()))];
    }
    return *general[rng->bounded(int(general.size()))];
}

} // namespace tarvanel
