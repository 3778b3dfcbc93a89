#include "engine/CalcMethods.h"

#include <QCoreApplication>

namespace tarvanel {

namespace {

struct MethodRow {
    const char* id;
    const char* name;
    double fajr, isha;
    std::optional<double> ishaMinutes, maghribAngle;
};

// Organisation names stay as they are officially written; the words around them (regions,
// countries, "custom") are translated.
const MethodRow kMethods[] = {
    //: A calculation method: the organisation's own name.
    {"MWL", QT_TRANSLATE_NOOP("CalcMethods", "Muslim World League"), 18, 17, {}, {}},
    //: A calculation method: ISNA, the Islamic Society of North America.
    {"ISNA", QT_TRANSLATE_NOOP("CalcMethods", "ISNA (North America)"), 15, 15, {}, {}},
    {"Egypt", QT_TRANSLATE_NOOP("CalcMethods", "Egyptian General Authority"), 19.5, 17.5, {}, {}},
    {"Makkah", QT_TRANSLATE_NOOP("CalcMethods", "Umm al-Qura (Makkah)"), 18.5, 0, 90, {}},
    //: A calculation method: the University of Islamic Sciences, Karachi.
    {"Karachi",
     QT_TRANSLATE_NOOP("CalcMethods", "Karachi (Univ. of Islamic Sciences)"),
     18,
     18,
     {},
     {}},
    //: A calculation method used in the Gulf states.
    {"Gulf", QT_TRANSLATE_NOOP("CalcMethods", "Gulf Region"), 19.5, 0, 90, {}},
    {"Kuwait", QT_TRANSLATE_NOOP("CalcMethods", "Kuwait"), 18, 17.5, {}, {}},
    {"Qatar", QT_TRANSLATE_NOOP("CalcMethods", "Qatar"), 18, 0, 90, {}},
    {"Singapore",
     QT_TRANSLATE_NOOP("CalcMethods", "Singapore, Malaysia, Indonesia"),
     20,
     18,
     {},
     {}},
    //: A calculation method: UOIF, the Union of Islamic Organisations of France.
    {"France", QT_TRANSLATE_NOOP("CalcMethods", "UOIF (France)"), 12, 12, {}, {}},
    {"Russia",
     QT_TRANSLATE_NOOP("CalcMethods", "Spiritual Administration of Russia"),
     16,
     15,
     {},
     {}},
    //: A calculation method: the Shia Ithna-Ashari (Jafari) school.
    {"Jafari", QT_TRANSLATE_NOOP("CalcMethods", "Shia Ithna-Ashari (Jafari)"), 16, 14, {}, 4},
    {"Tehran",
     QT_TRANSLATE_NOOP("CalcMethods", "Institute of Geophysics, Tehran"),
     17.7,
     14,
     {},
     4.5},
};

} // namespace

QList<CalcMethod> calcMethods() {
    QList<CalcMethod> table;
    for (const MethodRow& r : kMethods)
        table.append({QLatin1String(r.id), QCoreApplication::translate("CalcMethods", r.name),
                      r.fajr, r.isha, r.ishaMinutes, r.maghribAngle});
    return table;
}

std::optional<CalcMethod> methodFor(const Config& cfg) {
    const QList<CalcMethod> table = calcMethods();
    if (cfg.method) {
        for (const CalcMethod& m : table)
            if (m.id == *cfg.method) return m;
        return std::nullopt;
    }
    for (const CalcMethod& m : table) {
        if (m.fajr != cfg.fajrAngle) continue;
        if (m.maghribAngle != cfg.maghribAngle) continue; // both absent, or equal
        if (m.ishaMinutes) {
            if (cfg.ishaMinutes != m.ishaMinutes) continue;
        } else if (cfg.ishaMinutes || m.isha != cfg.ishaAngle) {
            continue;
        }
        return m;
    }
    return std::nullopt;
}

QString methodSummary(const Config& cfg) {
    const bool hanafi = cfg.asrFactor >= 2;
    const auto m = methodFor(cfg);
    if (m && hanafi)
        //: The Asr school and the calculation method: "Hanafi, Muslim World League".
        return QCoreApplication::translate("CalcMethods", "Hanafi, %1").arg(m->name);
    if (m)
        //: "Standard Asr" (the Shafi'i, Maliki and Hanbali Asr) and the calculation method:
        //: "Standard Asr, Muslim World League".
        return QCoreApplication::translate("CalcMethods", "Standard Asr, %1").arg(m->name);
    if (hanafi)
        //: The Hanafi Asr with angles the user set, not a known method.
        return QCoreApplication::translate("CalcMethods", "Hanafi, custom angles");
    //: The standard Asr with angles the user set, not a known method.
    return QCoreApplication::translate("CalcMethods", "Standard Asr, custom angles");
}

const QMap<QString, MethodSuggestion>& suggestedMethods() {
    static const QMap<QString, MethodSuggestion> map = [] {
        QMap<QString, MethodSuggestion> m;
        auto add = [&m](std::initializer_list<const char*> codes, const char* id, bool hanafi) {
            for (const char* code : codes)
                m.insert(QString::fromLatin1(code), {id, hanafi});
        };
        add({"BD", "PK", "IN", "AF", "NP"}, "Karachi", true);
        add({"US", "CA"}, "ISNA", false);
        add({"EG", "SD", "LY"}, "Egypt", false);
        add({"SA", "YE"}, "Makkah", false);
        add({"AE", "OM", "BH"}, "Gulf", false);
        add({"KW"}, "Kuwait", false);
        add({"QA"}, "Qatar", false);
        add({"SG", "MY", "ID", "BN"}, "Singapore", false);
        add({"FR"}, "France", false);
        add({"RU"}, "Russia", false);
        add({"TR", "AZ", "UZ", "KZ", "TJ", "KG", "TM"}, "MWL", true);
        add({"IR"}, "Tehran", false);
        return m;
    }();
    return map;
}

} // namespace tarvanel
