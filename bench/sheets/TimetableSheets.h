#pragma once
// Monthly sheets of a masjid drawn the way real ones vary (layout, type, ruling, title and
// footer) and, if asked, photographed badly; each comes with the text it was drawn from.
#include <QImage>
#include <QString>
#include <QStringList>
#include <random>

namespace tarvanel::sheets {

enum class Dates { Number, DayMonth, Slash, WeekdayFirst, NumberWeekday };
// ArabicMarks: twelve-hour times followed by the Arabic sad (morning) or meem (evening).
enum class Clock { Unmarked, AmPm, TwentyFour, Dotted, ArabicMarks };
enum class Ruling { None, Rows, Grid, Zebra };

struct Layout {
    const char* name;
    bool begins = true;  // begins and jamaat side by side, else jamaat only
    bool sunrise = true; // a sunrise column after Fajr
    Dates dates = Dates::Number;
    Clock clock = Clock::Unmarked;
    Ruling ruling = Ruling::Rows;
    bool altNames = false; // Zuhr and Esha rather than Dhuhr and Isha
    bool arabic = false;   // Arabic prayer names beside the English
    bool title = false;    // masjid name, address and a logo above the table
    bool footer = false;   // Jumu'ah times and notices below it
    bool twoMonths = false;
};

struct Photo {
    double tilt = 0;        // degrees
    double perspective = 0; // share of the width the top edge is narrowed by
    double blur = 0;        // Gaussian sigma in pixels
    int jpeg = -1;          // quality; -1 saves a PNG
    bool shade = false;     // light falling from one side
};

struct Look {
    const char* font;
    int pixels; // text size
    bool boldHeaders = false;
    Photo photo;
};

struct Sheet {
    QStringList lines; // the text drawn: title and headers, then one line per day
    QImage image;
    int days = 0;
};

// Where each prayer's jamaat time stands among a row's times, Fajr to Isha.
QList<int> jamaatPositions(const Layout& layout);

// `seed` decides the month, the times and the masjid's name.
Sheet drawSheet(const Layout& layout, const Look& look, unsigned seed);

// The page as a phone would photograph it: on a table, askew, out of focus, with grain.
QImage photographed(const QImage& page, const Photo& photo, std::mt19937& random);

// Saves the sheet as PNG or JPEG under `dir`; the file's path.
QString saveSheet(const Sheet& sheet, const Look& look, const QString& dir, const QString& name);

// Saves the sheet as a PDF of one page holding only its picture, as a scanner makes them.
QString saveScan(const Sheet& sheet, const QString& path);

// The varied set (VariedSet.cpp): a look per layout for each kind of sheet.
extern const Layout layouts[15];
extern const Look clean[15];
extern const Look photos[15];
extern const Look snapshots[15];

} // namespace tarvanel::sheets
