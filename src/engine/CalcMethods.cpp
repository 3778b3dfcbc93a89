#include "engine/CalcMethods.h"

namespace tarvanel {

const QList<CalcMethod>& calcMethods() {
    static const QList<CalcMethod> table{
        {"MWL", "Muslim World League", 18, 17, {}, {}},
        {"ISNA", "ISNA (North America)", 15, 15, {}, {}},
        {"Egypt", "Egyptian General Authority", 19.5, 17.5, {}, {}},
        {"Makkah", "Umm al-Qura (Makkah)", 18.5, 0, 90, {}},
        {"Karachi", "Karachi (Univ. of Islamic Sciences)", 18, 18, {}, {}},
        {"Gulf", "Gulf Region", 19.5, 0, 90, {}},
        {"Kuwait", "Kuwait", 18, 17.5, {}, {}},
        {"Qatar", "Qatar", 18, 0, 90, {}},
        {"Singapore", "Singapore, Malaysia, Indonesia", 20, 18, {}, {}},
        {"France", "UOIF (France)", 12, 12, {}, {}},
        {"Russia", "Spiritual Administration of Russia", 16, 15, {}, {}},
        {"Jafari", "Shia Ithna-Ashari (Jafari)", 16, 14, {}, 4},
        {"Tehran", "Institute of Geophysics, Tehran", 17.7, 14, {}, 4.5},
    };
    return table;
}

std::optional<CalcMethod> methodFor(const Config& cfg) {
    const QList<CalcMethod>& table = calcMethods();
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
    const QString school =
        cfg.asrFactor >= 2 ? QStringLiteral("Hanafi") : QStringLiteral("Standard Asr");
    if (const auto m = methodFor(cfg)) return school + QStringLiteral(", ") + m->name;
    return school + QStringLiteral(", custom angles");
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
