#pragma once
// The import window's state and logic: the sheet's text, the rows found in it, the chosen
// columns, month and year, and the day table that "Use This Timetable" would save.
#include "timetable/MonthInText.h"
#include "timetable/OcrLines.h"
#include "timetable/RowProblems.h"
#include "timetable/TimetableParser.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>

namespace tarvanel {

// What a picked file is read as.
enum class ImportFileKind { Text, Image, Pdf };

class TimetableImportModel : public QObject {
    Q_OBJECT
public:
    explicit TimetableImportModel(QObject* parent = nullptr);

    // The pickers' and the preview's order: the five prayers, then "Jumu'ah".
    static const QStringList& prayers();
    // The locale's full month names, January first; English where the locale has none.
    static QStringList monthNames();
    static std::optional<MonthAndYear> monthAndYear(const QString& text);
    static ImportFileKind kindOf(const QString& path);

    const QString& text() const { return text_; }
    void setText(const QString& text); // runs reparse
    void reparse();

    const QList<ParsedRow>& rows() const { return rows_; }
    int columnCount() const { return columnCount_; }
    const ColumnMap& columns() const { return columns_; }
    int column(const QString& prayer) const { return columns_.value(prayer, -1); }
    void setColumn(const QString& prayer, int position);
    int month() const { return month_; }
    void setMonth(int month);
    int year() const { return year_; }
    void setYear(int year);
    const QString& status() const { return status_; }
    bool reading() const { return readsUnderWay_ > 0; }

    QList<ParsedRow> usableRows() const;
    DayTable days() const;
    QList<std::pair<QString, QMap<QString, QString>>> preview() const;
    QString columnLabel(int i) const;
    // The rows found that would not be saved, in line order, and the line that says so
    // ("3 rows can't be used: …"; empty when every row is used).
    QList<RowProblem> problems() const;
    QString problemSummary() const;
    // The cells of the last file read that were settled from their neighbours; cleared when
    // anything else sets the text.
    const QList<TextMark>& doubtfulCells() const { return doubtful_; }

    // A text or CSV file: UTF-8, or UTF-16/32 with a byte-order mark. Anything else (too big,
    // binary, unreadable) leaves `text` alone and says so in `status`.
    void loadTextFile(const QString& path);
    // An image or PDF read elsewhere: announce it, then hand over the recognised lines. Each
    // finished read with lines sets `text`, so the one that finishes last wins.
    void imageReadStarted(const QString& fileName);
    // "Reading page 3 of 12…" while a file of several pages is read.
    void imageReadProgress(int page, int pageCount);
    void imageReadFinished(const QString& fileName, const SheetReading& reading);
    // The read ended without an answer (the reader crashed or is missing): `status` says so and
    // the text stays as it was.
    void imageReadFailed(const QString& fileName, const QString& status);

signals:
    void textChanged();
    // rows, columnCount, columns, month, year, status or reading changed.
    void changed();

private:
    void setStatus(const QString& status);
    void assignText(const QString& text, const QList<TextMark>& doubtful);
    int largestColumn() const;

    QString text_;
    QList<ParsedRow> rows_;
    int columnCount_ = 0;
    ColumnMap columns_;
    int month_;
    int year_;
    QString status_;
    int readsUnderWay_ = 0;
    QList<TextMark> doubtful_;
    QString pagesNote_; // how many pages the last file gave, when it had several
};

} // namespace tarvanel
