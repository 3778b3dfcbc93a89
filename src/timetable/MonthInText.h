#pragma once
// The month and year a sheet names in its title or its dates ("Prayer timetable – March 2026").
#include <QString>
#include <QStringList>
#include <optional>

namespace tarvanel {

struct MonthAndYear {
    int month = 0; // 1-12
    std::optional<int> year;
    bool operator==(const MonthAndYear&) const = default;
};

namespace MonthInText {

// The English months shortened to three letters, as a regular expression's alternatives: the
// form a date prints its month in ("01-Oct", "Sep 1").
inline const QString shortEnglish =
    QStringLiteral("jan|feb|mar|apr|may|jun|jul|aug|sep|oct|nov|dec");

// The first month named in `text`, in `names` (the user's language, January first) or in
// English, full or shortened to three letters, with the year written after it if there is one.
// A long name with one letter misread, missing or added counts when a year follows it: a
// photographed title ("FERUARY 2026").
std::optional<MonthAndYear> find(const QString& text, const QStringList& names);

} // namespace MonthInText
} // namespace tarvanel
