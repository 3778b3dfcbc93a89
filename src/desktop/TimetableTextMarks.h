#pragma once
// The marks over the import window's text: rows that won't be saved on a pink band, cells the
// reading settled from their neighbours on yellow. The cell marks ride along with the user's
// edits until the cell is typed over.
#include "timetable/OcrLines.h"
#include "timetable/RowProblems.h"

#include <QList>
#include <QTextCursor>

class QPlainTextEdit;

namespace tarvanel {

class TimetableTextMarks {
public:
    explicit TimetableTextMarks(QPlainTextEdit* editor) : editor_(editor) {}

    // The doubtful cells of the text the editor now holds.
    void take(const QList<TextMark>& cells);
    // Draws the marks; returns how many doubtful cells are still marked.
    int show(const QList<RowProblem>& problems);
    // "2 cells were hard to read …"; empty for none.
    static QString note(int doubts);

private:
    QPlainTextEdit* editor_;
    QList<QTextCursor> cells_;
};

} // namespace tarvanel
