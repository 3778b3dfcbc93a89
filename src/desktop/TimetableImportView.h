#pragma once
// The import form: the sheet's text (typed, pasted, or read from a file), which column is
// which prayer, month and year, and a preview of the days that "Use This Timetable" saves.
#include "desktop/TimetableTextMarks.h"
#include "timetable/TimetableImportModel.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace tarvanel {

class SheetReaderProcess;

class TimetableImportView : public QWidget {
    Q_OBJECT
public:
    // `save` gets the day table to store; `cancel` closes. Both come from the opener.
    TimetableImportView(std::function<void(const DayTable&)> save, std::function<void()> cancel,
                        QWidget* parent = nullptr);

    TimetableImportModel& model() { return *model_; }
    // Reads a text, CSV, image or PDF file into the model (images and PDFs in the reader process).
    void openFile(const QString& path);
    void chooseFile(); // the open panel; nothing happens when it is cancelled

    // Puts the text cursor at the start of the first row that would not be saved.
    void goToFirstProblem();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();
    void refreshMarks();
    void refreshPickers();
    void refreshPreview();

    std::function<void(const DayTable&)> save_;
    std::function<void()> cancel_;
    TimetableImportModel* model_;
    SheetReaderProcess* reader_;
    QPlainTextEdit* editor_;
    QProgressBar* spinner_;
    QLabel* status_;
    QLabel* problems_;
    QLabel* doubts_; // how many cells the reading settled from their neighbours
    std::unique_ptr<TimetableTextMarks> marks_;
    QList<QComboBox*> pickers_;
    QComboBox* month_;
    QSpinBox* year_;
    QWidget* previewBox_;
    QVBoxLayout* previewRows_;
    QPushButton* use_;
    QStringList pickerCaptions_;
};

// The window host until the settings window's host takes it over: title "Import Masjid
// Timetable", 640 × 700. Opening again first closes an open one. Saving merges into
// timetable.json, then calls `onUse` (the controller's follow-up) and closes. `file`, when not
// empty, is read at once.
TimetableImportView* openTimetableImport(const QString& file, std::function<void()> onUse);

} // namespace tarvanel
