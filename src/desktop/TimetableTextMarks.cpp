#include "desktop/TimetableTextMarks.h"

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QTextBlock>

namespace tarvanel {

void TimetableTextMarks::take(const QList<TextMark>& cells) {
    cells_.clear();
    for (const TextMark& mark : cells) {
        const QTextBlock block = editor_->document()->findBlockByNumber(mark.line);
        if (!block.isValid() || mark.start + mark.length > block.length()) continue;
        QTextCursor cell(block);
        cell.setPosition(block.position() + mark.start);
        cell.setPosition(block.position() + mark.start + mark.length, QTextCursor::KeepAnchor);
        cells_ << cell;
    }
}

int TimetableTextMarks::show(const QList<RowProblem>& problems) {
    QList<QTextEdit::ExtraSelection> marks;
    for (const RowProblem& problem : problems) {
        QTextEdit::ExtraSelection row;
        row.cursor = QTextCursor(editor_->document()->findBlockByNumber(problem.line));
        row.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        row.format.setBackground(QColor(0xF8, 0xD7, 0xD3));
        row.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks << row;
    }
    int doubts = 0;
    for (const QTextCursor& cell : std::as_const(cells_)) {
        if (!cell.hasSelection()) continue; // typed over
        QTextEdit::ExtraSelection mark;
        mark.cursor = cell;
        mark.format.setBackground(QColor(0xFF, 0xE8, 0x8C));
        marks << mark;
        ++doubts;
    }
    editor_->setExtraSelections(marks);
    return doubts;
}

QString TimetableTextMarks::note(int doubts) {
    if (doubts == 0) return {};
    //: Cells of the timetable's text that the reader was unsure of
    return QCoreApplication::translate("ImportWindow",
                                       "%Ln cells were hard to read and are marked in yellow: "
                                       "check them against the sheet.",
                                       nullptr, doubts);
}

} // namespace tarvanel
