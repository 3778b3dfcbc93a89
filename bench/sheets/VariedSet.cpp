// The varied set: fifteen layouts, each drawn clean, photographed, and photographed again in
// another month and type. The recognition test scores it; the OCR benchmark times it.
#include "sheets/TimetableSheets.h"

namespace tarvanel::sheets {

// clang-format off
const Layout layouts[15] = {
    // name                         begins sunrise dates                 clock               ruling         alt    arabic title  footer two
    {"begins, day, unmarked, rows",   true,  true,  Dates::Number,        Clock::Unmarked,    Ruling::Rows},
    {"weekday first, am/pm, zebra",   true,  true,  Dates::WeekdayFirst,  Clock::AmPm,        Ruling::Zebra, false, false, true},
    {"jamaat only, 24h, grid, dates", false, true,  Dates::Slash,         Clock::TwentyFour,  Ruling::Grid},
    {"jamaat only, 1 Mar, bare",      false, false, Dates::DayMonth,      Clock::Unmarked,    Ruling::None,  false, false, false, true},
    {"Zuhr/Esha, Arabic, 24h, zebra", true,  false, Dates::Number,        Clock::TwentyFour,  Ruling::Zebra, true,  true},
    {"day weekday, dotted, grid",     true,  true,  Dates::NumberWeekday, Clock::Dotted,      Ruling::Grid,  false, false, false, true},
    {"two months, begins, rows",      true,  true,  Dates::Slash,         Clock::Unmarked,    Ruling::Rows,  false, false, true,  false, true},
    {"jamaat, Arabic, am/pm, zebra",  false, true,  Dates::WeekdayFirst,  Clock::AmPm,        Ruling::Zebra, false, true},
    {"1 Mar, 24h, bare, title",       true,  true,  Dates::DayMonth,      Clock::TwentyFour,  Ruling::None,  false, false, true,  true},
    {"jamaat, Zuhr/Esha, grid",       false, false, Dates::Number,        Clock::Unmarked,    Ruling::Grid,  true},
    {"dates, am/pm, Arabic, title",   true,  false, Dates::Slash,         Clock::AmPm,        Ruling::Rows,  false, true,  true},
    {"two months, jamaat, 24h, zebra",false, true,  Dates::Slash,         Clock::TwentyFour,  Ruling::Zebra, false, false, false, true,  true},
    {"dotted, Zuhr/Esha, zebra, all", true,  true,  Dates::Number,        Clock::Dotted,      Ruling::Zebra, true,  false, true,  true},
    {"jamaat, day weekday, Arabic",   false, true,  Dates::NumberWeekday, Clock::Dotted,      Ruling::None,  false, true},
    {"Arabic am/pm marks, zebra",     true,  true,  Dates::NumberWeekday, Clock::ArabicMarks, Ruling::Zebra, false, true,  true},
};
// Clean renders and screenshots, one per layout.
const Look clean[15] = {
    {"DejaVu Sans", 16, false, {}}, {"Nimbus Roman", 20, true, {}}, {"DejaVu Sans Condensed", 14, false, {}},
    {"DejaVu Sans Mono", 15, true, {}}, {"C059", 18, false, {}}, {"Nimbus Sans Narrow", 17, true, {}},
    {"Noto Serif", 16, false, {}}, {"Nimbus Mono PS", 18, true, {}}, {"Noto Sans", 13, false, {}},
    {"P052", 22, true, {}}, {"URW Gothic", 16, false, {}}, {"DejaVu Serif", 15, true, {}},
    {"Nimbus Sans", 14, false, {}}, {"DejaVu Sans Condensed", 20, true, {}},
    {"Nimbus Sans Narrow", 16, true, {}},
};
// Phone photos: tilted, keystoned, out of focus, unevenly lit, compressed; and small print.
const Look photos[15] = {
    {"Nimbus Sans", 26, false, {2.0, 0.02, 1.0, 60, true}}, {"DejaVu Serif", 28, true, {-3.0, 0.0, 0.8, 60, false}},
    {"Nimbus Sans Narrow", 24, false, {1.0, 0.04, 1.5, 70, true}}, {"Noto Sans", 9, false, {0, 0, 0, 60, false}},
    {"Nimbus Roman", 30, true, {-1.5, 0.03, 1.2, 60, true}}, {"DejaVu Sans Mono", 24, false, {3.0, 0.0, 0.7, 60, false}},
    {"C059", 10, true, {0, 0, 0.5, 60, false}}, {"DejaVu Sans Condensed", 26, false, {-2.5, 0.02, 1.0, 60, true}},
    {"Noto Serif", 28, false, {0.5, 0.05, 1.5, 60, false}}, {"Nimbus Mono PS", 8, true, {0, 0, 0, 60, false}},
    {"URW Gothic", 26, false, {-1.0, 0.0, 1.3, 60, true}}, {"P052", 27, true, {2.5, 0.03, 0.9, 60, true}},
    {"DejaVu Sans", 10, false, {0.8, 0, 0.6, 60, false}}, {"Nimbus Sans", 25, true, {-3.0, 0.04, 1.1, 60, true}},
    {"DejaVu Sans Condensed", 22, false, {1.2, 0.02, 0.9, 60, true}},
};
// Other months of the same layouts, photographed nearer and further, in other type.
const Look snapshots[15] = {
    {"C059", 22, true, {-2.0, 0.03, 1.4, 60, true}}, {"Noto Sans", 16, false, {1.5, 0.0, 0.7, 60, true}},
    {"DejaVu Serif", 14, false, {-0.7, 0.02, 0.6, 60, false}}, {"URW Gothic", 24, true, {2.8, 0.01, 1.2, 60, true}},
    {"DejaVu Sans Mono", 20, false, {-1.2, 0.04, 1.0, 60, false}}, {"Nimbus Roman", 24, false, {0.3, 0.0, 1.5, 60, true}},
    {"Nimbus Sans Narrow", 19, true, {-2.2, 0.05, 0.6, 60, false}}, {"Noto Serif", 24, false, {1.8, 0.02, 1.3, 60, true}},
    {"P052", 18, true, {-0.4, 0.03, 0.8, 60, false}}, {"DejaVu Sans Condensed", 16, false, {2.2, 0.0, 0.7, 60, true}},
    {"Nimbus Mono PS", 22, true, {-2.8, 0.02, 1.1, 60, true}}, {"Noto Sans", 26, false, {0.9, 0.04, 1.5, 60, false}},
    {"DejaVu Serif", 18, true, {-1.6, 0.01, 0.7, 60, true}}, {"URW Gothic", 16, false, {1.1, 0.03, 0.8, 60, false}},
    {"Noto Sans", 18, true, {-1.5, 0.03, 1.1, 60, false}},
};
// clang-format on

} // namespace tarvanel::sheets
