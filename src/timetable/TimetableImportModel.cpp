#include "timetable/TimetableImportModel.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStringDecoder>
#include <algorithm>
#include <span>

namespace tarvanel {

namespace {

// A timetable file is a few kilobytes; anything far bigger is not one and must not stall the
// window while it is decoded and parsed.
constexpr qint64 maxTextFileBytes = 1 << 20;

bool isLineBreak(QChar c) {
    const char16_t u = c.unicode();
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

QStringList splitLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isLineBreak(text[i])) continue;
        lines << text.mid(start, i - start);
        start = i + 1;
    }
    lines << text.mid(start);
    return lines;
}

bool isBlank(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

QString couldNotRead(const QString& fileName) {
    //: %1 is a file's name.
    return TimetableImportModel::tr("Couldn't read any text in %1.").arg(fileName);
}

std::optional<QString> decodeText(const QByteArray& bytes) {
    if (const auto bom = QStringConverter::encodingForData(bytes)) {
        QStringDecoder decoder(*bom, QStringDecoder::Flag::Stateless);
        QString text = decoder(bytes);
        if (decoder.hasError()) return std::nullopt;
        return text;
    }
    // UTF-16 without a mark and binary files are full of NULs, which UTF-8 would accept.
    if (bytes.contains('\0')) return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError()) return std::nullopt;
    return text;
}

} // namespace

TimetableImportModel::TimetableImportModel(QObject* parent)
    : QObject(parent), month_(QDate::currentDate().month()), year_(QDate::currentDate().year()) {}

const QStringList& TimetableImportModel::prayers() {
    static const QStringList names{QStringLiteral("Fajr"), QStringLiteral("Dhuhr"),
                                   QStringLiteral("Asr"),  QStringLiteral("Maghrib"),
                                   QStringLiteral("Isha"), QStringLiteral("Jumu'ah")};
    return names;
}

QStringList TimetableImportModel::monthNames() {
    const QLocale locale;
    QStringList names;
    for (int m = 1; m <= 12; ++m) {
        QString name = locale.standaloneMonthName(m, QLocale::LongFormat);
        if (name.isEmpty()) name = QLocale::c().standaloneMonthName(m, QLocale::LongFormat);
        names << name;
    }
    return names;
}

std::optional<MonthAndYear> TimetableImportModel::monthAndYear(const QString& text) {
    return MonthInText::find(text, monthNames());
}

ImportFileKind TimetableImportModel::kindOf(const QString& path) {
    static const QStringList images{"png",  "jpg", "jpeg", "gif", "bmp",  "tif", "tiff",
                                    "webp", "pbm", "pgm",  "ppm", "heic", "heif"};
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("pdf")) return ImportFileKind::Pdf;
    return images.contains(suffix) ? ImportFileKind::Image : ImportFileKind::Text;
}

void TimetableImportModel::setText(const QString& text) {
    assignText(text, {});
}

void TimetableImportModel::assignText(const QString& text, const QList<TextMark>& doubtful) {
    text_ = text;
    doubtful_ = doubtful;
    reparse();
    emit textChanged();
}

void TimetableImportModel::reparse() {
    rows_ = TimetableParser::parse(splitLines(text_));

    QMap<qsizetype, int> rowsWithCount;
    for (const ParsedRow& row : rows_)
        ++rowsWithCount[row.times.size()];
    columnCount_ = 0;
    int most = 0;
    for (auto it = rowsWithCount.begin(); it != rowsWithCount.end(); ++it) {
        // Ascending counts: `>=` lets the larger count win a tie.
        if (it.value() >= most) {
            most = it.value();
            columnCount_ = int(it.key());
        }
    }

    columns_ = TimetableParser::guessColumns(columnCount_);
    columns_.insert(QStringLiteral("Jumu'ah"), -1);

    const auto dated = std::find_if(rows_.begin(), rows_.end(),
                                    [](const ParsedRow& row) { return row.date.has_value(); });
    if (dated != rows_.end()) {
        month_ = dated->date->month();
        year_ = dated->date->year();
    } else if (const auto found = monthAndYear(text_)) {
        month_ = found->month;
        if (found->year) year_ = *found->year;
    }

    if (rows_.isEmpty()) {
        status_ = isBlank(text_) ? QString() : tr("No rows with prayer times found yet.");
    } else {
        //: %Ln is the number of rows read from a timetable, %1 the number of times in each.
        status_ = tr("Found %Ln rows with %1 times each.", nullptr, int(rows_.size()))
                      .arg(QLocale().toString(columnCount_));
    }
    if (!pagesNote_.isEmpty()) status_ += u' ' + pagesNote_;
    emit changed();
}

void TimetableImportModel::setColumn(const QString& prayer, int position) {
    columns_.insert(prayer, position);
    emit changed();
}

void TimetableImportModel::setMonth(int month) {
    if (month < 1 || month > 12 || month == month_) return;
    month_ = month;
    emit changed();
}

void TimetableImportModel::setYear(int year) {
    if (year == year_) return;
    year_ = year;
    emit changed();
}

void TimetableImportModel::setStatus(const QString& status) {
    status_ = status;
    emit changed();
}

int TimetableImportModel::largestColumn() const {
    int largest = -1;
    for (int position : columns_)
        largest = std::max(largest, position);
    return largest;
}

namespace {
ColumnMap chosenOnly(const ColumnMap& columns) {
    ColumnMap chosen;
    for (auto it = columns.begin(); it != columns.end(); ++it)
        if (it.value() >= 0) chosen.insert(it.key(), it.value());
    return chosen;
}

QList<ParsedRow> usable(const QList<ParsedRow>& rows, int largest) {
    QList<ParsedRow> usable;
    for (const ParsedRow& row : rows)
        if (row.times.size() >= largest + 1) usable << row;
    return usable;
}

// Whether a count of days that starts again at `day` has just passed the month's last day.
// Counting on one day a row from any of the last three days reaches `day` of the next month (or
// the 2nd with the 1st missing), so one day misread or unread near the turn still turns the
// month. A Hijri count, which starts again after its 29th or 30th, does not reach it.
bool monthEnded(std::span<const int> before, int day, int monthEnd) {
    if (day < 1 || day > 2) return false;
    for (size_t k = 1; k <= 3 && k <= before.size(); ++k) {
        const int counted = before[before.size() - k] + int(k) - monthEnd;
        if (counted == day || (day == 2 && counted == 1)) return true;
    }
    return false;
}

// Whether a column of day numbers runs through the whole month, from the 1st to its last day.
bool wholeMonth(const QList<int>& down, int monthEnd) {
    return !down.isEmpty() && down.first() == 1 && down.last() == monthEnd;
}

// A right-to-left table prints the day at the right end of its rows, after the times. Taken
// there only when most rows have none before the times and the numbers after them run through
// the whole month: a Hijri day at the end of a row whose day went unread is no day.
QList<ParsedRow> daysAtLineEnds(QList<ParsedRow> rows, int monthEnd) {
    const auto dayless = std::count_if(rows.begin(), rows.end(), [](const ParsedRow& row) {
        return !row.day && !row.date && !row.numbersAfter.isEmpty();
    });
    if (2 * dayless <= rows.size()) return rows;
    for (qsizetype column = 0; column < 2; ++column) {
        QList<int> down;
        for (const ParsedRow& row : rows)
            if (row.numbersAfter.size() > column) down << row.numbersAfter[column];
        if (!wholeMonth(down, monthEnd)) continue;
        for (ParsedRow& row : rows)
            if (!row.day && !row.date && row.numbersAfter.size() > column) {
                row.dayNumbers = row.numbersAfter;
                row.day = row.dayNumbers[column];
            }
        break;
    }
    return rows;
}

// A Ramadan sheet numbers its fasts before the dates, and a sheet may print the Hijri day
// before the date; each counts up a row at a time. The date is the first number that runs
// through the whole month, from the 1st to its last day; else the one that runs from the
// month's last day back to the 1st, unless the first number does so itself (then a later one
// is a Hijri day).
QList<ParsedRow> datesChosen(QList<ParsedRow> rows, int month, int year) {
    const int monthEnd = QDate(year, month, 1).daysInMonth();
    rows = daysAtLineEnds(std::move(rows), monthEnd);
    auto numbers = [&](qsizetype column) {
        QList<int> down;
        for (const ParsedRow& row : rows)
            if (row.dayNumbers.size() > column) down << row.dayNumbers[column];
        return down;
    };
    auto turns = [&](const QList<int>& down) {
        for (qsizetype i = 1; i < down.size(); ++i)
            if (monthEnded({down.constData(), size_t(i)}, down[i], monthEnd)) return true;
        return false;
    };
    auto dayFrom = [&](qsizetype column) {
        for (ParsedRow& row : rows)
            if (!row.dayNumbers.isEmpty())
                row.day = row.dayNumbers.size() > column ? std::optional(row.dayNumbers[column])
                                                         : std::nullopt;
        return rows;
    };
    constexpr qsizetype columns = 3;
    for (qsizetype column = 0; column < columns; ++column)
        if (wholeMonth(numbers(column), monthEnd)) return column == 0 ? rows : dayFrom(column);
    const QList<int> first = numbers(0);
    if (first.isEmpty() || turns(first)) return rows;
    for (qsizetype column = 1; column < columns; ++column)
        if (turns(numbers(column))) return dayFrom(column);
    return rows;
}

// A sheet of several months numbered by day alone (a Ramadan sheet, one month a page): where
// the count falls from the month's last days back to its first, the rows that follow belong to
// the next month. Those rows get that month's date; a day it does not have gets none.
QList<ParsedRow> continuedMonths(QList<ParsedRow> rows, int month, int year) {
    rows = datesChosen(std::move(rows), month, year);
    int monthsOn = 0;
    QList<int> counted; // the days of the month so far
    for (ParsedRow& row : rows) {
        if (row.date || !row.day) continue;
        const int monthEnd = QDate(year, month, 1).addMonths(monthsOn).daysInMonth();
        const int last = counted.isEmpty() ? 0 : counted.last();
        if ((last >= 28 && *row.day >= 1 && *row.day <= 3) ||
            monthEnded(counted, *row.day, monthEnd)) {
            ++monthsOn;
            counted.clear();
        }
        counted << *row.day;
        if (monthsOn == 0) continue;
        const QDate first = QDate(year, month, 1).addMonths(monthsOn);
        const QDate date(first.year(), first.month(), *row.day);
        if (date.isValid())
            row.date = date;
        else
            row.day.reset();
    }
    return rows;
}
} // namespace

QList<ParsedRow> TimetableImportModel::usableRows() const {
    return usable(rows_, largestColumn());
}

DayTable TimetableImportModel::days() const {
    return TimetableParser::days(usable(continuedMonths(rows_, month_, year_), largestColumn()),
                                 month_, year_, chosenOnly(columns_));
}

QList<RowProblem> TimetableImportModel::problems() const {
    return RowProblems::find(continuedMonths(rows_, month_, year_), month_, year_, largestColumn(),
                             chosenOnly(columns_));
}

QString TimetableImportModel::problemSummary() const {
    return RowProblems::describe(problems(), month_, monthNames());
}

QList<std::pair<QString, QMap<QString, QString>>> TimetableImportModel::preview() const {
    const DayTable table = days(); // a map: already in day-key order
    QList<std::pair<QString, QMap<QString, QString>>> first;
    for (auto it = table.begin(); it != table.end() && first.size() < 7; ++it)
        first.append({it.key(), it.value()});
    return first;
}

QString TimetableImportModel::columnLabel(int i) const {
    //: A column of the timetable being imported, counted from 1.
    QString label = tr("Column %1").arg(QLocale().toString(i + 1));
    const auto typical = std::find_if(rows_.begin(), rows_.end(), [this](const ParsedRow& row) {
        return row.times.size() == columnCount_;
    });
    if (typical != rows_.end() && i >= 0 && i < typical->times.size())
        label += QStringLiteral("  \u00B7  ") + typical->times[i].label();
    return label;
}

void TimetableImportModel::loadTextFile(const QString& path) {
    const QFileInfo info(path);
    QFile file(path);
    std::optional<QString> text;
    if (info.size() <= maxTextFileBytes && file.open(QIODevice::ReadOnly))
        text = decodeText(file.read(maxTextFileBytes + 1));
    if (!text) {
        setStatus(couldNotRead(info.fileName()));
        return;
    }
    pagesNote_.clear();
    setText(*text);
}

void TimetableImportModel::imageReadStarted(const QString& fileName) {
    ++readsUnderWay_;
    //: %1 is a file's name.
    setStatus(tr("Reading %1…").arg(fileName));
}

void TimetableImportModel::imageReadProgress(int page, int pageCount) {
    if (readsUnderWay_ > 0 && pageCount > 1)
        //: While a file of several pages is read: %1 is the page, %2 the number of pages.
        setStatus(tr("Reading page %1 of %2…")
                      .arg(QLocale().toString(page), QLocale().toString(pageCount)));
}

void TimetableImportModel::imageReadFinished(const QString& fileName, const SheetReading& reading) {
    readsUnderWay_ = std::max(0, readsUnderWay_ - 1);
    if (reading.lines.isEmpty()) {
        setStatus(couldNotRead(fileName));
        return;
    }
    pagesNote_.clear();
    if (reading.pageCount > reading.pagesRead)
        //: %1 is the number of pages read, %Ln the number of pages in the file.
        pagesNote_ = tr("Read the first %1 of %Ln pages.", nullptr, reading.pageCount)
                         .arg(QLocale().toString(reading.pagesRead));
    else if (reading.pagesRead > 1)
        //: After a file of several pages was read whole.
        pagesNote_ = tr("Read %Ln pages.", nullptr, reading.pagesRead);
    assignText(reading.lines.join(QLatin1Char('\n')), reading.doubtful);
}

void TimetableImportModel::imageReadFailed(const QString&, const QString& status) {
    readsUnderWay_ = std::max(0, readsUnderWay_ - 1);
    setStatus(status);
}

} // namespace tarvanel
